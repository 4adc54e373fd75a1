#include "Estado.h"

namespace sorvelo {

Celula& TelaPrincipal::Num(int64_t i) {
    if (i < 0 || i >= QuantCelulas) throw falhaElementoControle(int(i));
    return celulas[size_t(i)];
}

const Celula& TelaPrincipal::Num(int64_t i) const {
    if (i < 0 || i >= QuantCelulas) throw falhaElementoControle(int(i));
    return celulas[size_t(i)];
}

Programa::Programa() {
    tela.TxtBanco.aoMudar = [this] { e.BancoAlterado = true; };
}

QString Programa::agoraTexto() {
    const QDateTime agora = s.relogio->agora();
    return textoData(agora) + u' ' + textoHora(agora);
}

} // namespace sorvelo
