#include "relatorios/GarantiaBanco.h"

#include "base/Semantica.h"
#include "core/BancoApostas.h"

#include <algorithm>
#include <cmath>

namespace sorvelo {

int garantiaDoQuadro(const QString& texto) {
    static const QStringList nomes = {QStringLiteral("Duque"), QStringLiteral("Terno"),
                                      QStringLiteral("Quadra"), QStringLiteral("Quina"),
                                      QStringLiteral("Sena")};
    const auto i = nomes.indexOf(texto);
    if (i >= 0) return int(i) + 2;
    const double v = valorNumerico(texto);
    return std::isfinite(v) && v >= 0 && v <= 100 ? int(v) : 0;
}

std::vector<int> numerosMarcados(const Nucleo& p) {
    std::vector<int> r;
    for (int i = 0; i < TelaPrincipal::QuantCelulas; ++i) {
        const Celula& c = p.tela.Num(i);
        if (c.BackColor != p.e.CorMarcado) continue;
        const uint8_t codigo = MatrizTexto::codigoDe(c.Text);
        if (codigo >= MatrizTexto::PrimeiroNumero && codigo != MatrizTexto::Outro)
            r.push_back(codigo - MatrizTexto::PrimeiroNumero);
    }
    std::sort(r.begin(), r.end());
    return r;
}

void VerificaGarantia::Carrega() {
    const int t = garantiaDoQuadro(p_.tela.CmbGarantia.Text);
    const int acertar = garantiaDoQuadro(p_.tela.CmbAcertar.Text);
    resultado_ = verificaGarantia(numerosMarcados(p_), std::max(acertar, t), t,
                                  apostasDoBanco(p_.e.VetBan, p_.e.QuantBan.valor()));
    const QStringList linhas = textoGarantia(resultado_);
    DocumentoRico& rtf = tela.RTFGarantia;
    rtf.limpa();
    for (qsizetype i = 0; i < linhas.size(); ++i) {
        // The heading lines in bold green, as the other listings; the groups in blue.
        const bool cabecalho = i < 3;
        const bool grupo = !linhas[i].isEmpty() && linhas[i][0].isDigit();
        rtf.acrescenta(linhas[i] + QStringLiteral("\r\n"), grupo ? Cor(rgb(0, 0, 255)) : CorLog, cabecalho);
    }
}

void VerificaGarantia::BtnImprimir() {
    Impressora& impressora = *p_.s.impressora;
    impressora.imprime(QString());
    impressora.imprime(tela.RTFGarantia.texto());
    impressora.fim();
}

} // namespace sorvelo
