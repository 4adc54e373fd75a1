#include "relatorios/Pontuacao.h"

namespace sorvelo {

void CarregaVetDezEsc(Nucleo& p) {
    auto& e = p.e;
    Int16 n = 0;
    for (int i = 0; i <= 79; ++i) {
        const Celula& c = p.tela.Num(i);
        if (c.BackColor == e.CorMarcado) {
            e.VetDezenas(n.valor()) = c.Text;
            ++n;
        }
    }
    e.VetDezenas(n.valor()) = QStringLiteral("#");
}

Int16 contaAcertos(const MatrizTexto& banco, Int32 Index, const Vetor<QString>& sorteio) {
    Int16 pontos = 0;
    for (int j = 0; j <= 99; ++j) {
        const QString celula = banco.valor(j, Index.valor());
        if (celula == u'#') break;
        for (int k = 0; k <= 79; ++k) {
            const QString& entrada = sorteio(k);
            if (entrada == u'#') break;
            if (entrada == celula) ++pontos;
        }
    }
    return pontos;
}

Int16 RetPontos(const Nucleo& p, Int32 Index) {
    return contaAcertos(p.e.VetBan, Index, p.e.VetDezenas);
}

Int16 RetPontos2(const Nucleo& p, Int32 Index) {
    return contaAcertos(p.e.VetBan, Index, p.e.VetDezenas2);
}

QString RetApostaVetBan(const Nucleo& p, Int32 Index) {
    QString s;
    for (int j = 0; j <= 99; ++j) {
        const QString celula = p.e.VetBan.valor(j, Index.valor());
        if (celula == u'#') break;
        s += celula;
        s += u' ';
    }
    return s;
}

bool TestaRepVAleat(const Nucleo& p, Int16 ContDezenas, Int16 Num) {
    if (ContDezenas < 1) return false;
    for (int j = 0; j <= ContDezenas.valor() - 1; ++j)
        if (valorNumerico(p.e.VetDezenas2(j)) == double(Num.valor())) return true;
    return false;
}

} // namespace sorvelo
