#include "core/Estado.h"

#include <stdexcept>

namespace sorvelo {

Celula& TelaPrincipal::Num(int64_t i) {
    if (i < 0 || i >= QuantCelulas) throw falhaElementoControle(int(i));
    return celulas[size_t(i)];
}

const Celula& TelaPrincipal::Num(int64_t i) const {
    if (i < 0 || i >= QuantCelulas) throw falhaElementoControle(int(i));
    return celulas[size_t(i)];
}

namespace {
const Servicos& verificados(const Servicos& s) {
    const bool completos = s.caixa && s.dialogo && s.impressora && s.aleatorio && s.relogio && s.cedencia &&
                           s.abridor && s.pasta;
    if (!completos) throw std::invalid_argument("Nucleo: a service is missing");
    return s;
}
} // namespace

Nucleo::Nucleo(const Servicos& servicos, Dialogos& d) : s(verificados(servicos)), dialogos(d) {
    tela.TxtBanco.aoMudar.liga([this] { e.BancoAlterado = true; });
}

QString Nucleo::agoraTexto() {
    const QDateTime agora = s.relogio->agora();
    return textoData(agora) + u' ' + textoHora(agora);
}

} // namespace sorvelo
