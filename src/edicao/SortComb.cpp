#include "edicao/SortComb.h"

#include "core/Grade.h"

#include <cmath>

namespace sorvelo {

QString QuantidadePadraoSortComb(const QString& nomeLoteria) {
    if (nomeLoteria == QStringLiteral("MEGA-SENA") || nomeLoteria == QStringLiteral("DUPLA SENA"))
        return QStringLiteral("6");
    if (nomeLoteria == QStringLiteral("QUINA")) return QStringLiteral("5");
    if (nomeLoteria == QStringLiteral("LOTOMANIA")) return QStringLiteral("50");
    if (nomeLoteria == QStringLiteral("LOTOFÁCIL")) return QStringLiteral("15");
    return QString();
}

SortComb::SortComb(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {}

void SortComb::ativa() {
    const QString padrao = QuantidadePadraoSortComb(p_.e.NomeLoteria);
    if (!padrao.isNull()) mudaTxtDez(padrao);
}

void SortComb::mudaTxtDez(const QString& texto) {
    // A text box raises its change only when its text changes.
    if (texto == TxtDez) return;
    TxtDez = texto;
    const Int32 valor = Int32::de(valorNumerico(texto));
    // A value outside the scroll bar's range leaves the bar where it is.
    if (valor < ScrMin || valor > ScrMax) return;
    mudaScrDez(valor.valor());
}

void SortComb::mudaScrDez(int valor) {
    // A scroll bar raises its change only when its value changes.
    if (valor == ScrDez) return;
    ScrDez = valor;
    mudaTxtDez(formata00(valor));
}

bool SortComb::TestaRepeticao(Int16 c) const {
    for (int i = 0; i < QuantSorteados.valor(); ++i)
        if (Sorteados(i) == c) return true;
    return false;
}

void SortComb::BtnOK() {
    auto& e = p_.e;
    if (valorNumerico(p_.tela.TxtEscolhidos.Text) > 0) {
        if (p_.s.caixa->pergunta(QStringLiteral("Deseja apagar os números da grade de jogos escolhidos?"),
                                 Botoes::SimNao, Resposta::Nao) == Resposta::Sim)
            LimpaNumeros(p_);
    }
    randomizeRelogio(*p_.s.aleatorio, *p_.s.relogio);
    const Int16 q = Int16::de(valorNumerico(TxtDez));
    const Int16 L = e.NumFim == 99 ? Int16(100) : e.NumFim;
    if (q > L) {
        p_.s.caixa->critico(QStringLiteral("Quantidade inválida!"));
        return;
    }
    QuantSorteados = 0;
    Int16 sorteados = 0;
    const float tamanho = float(L.valor());
    while (sorteados < q) {
        const float r = p_.s.aleatorio->rnd();
        const Int16 c = Int16::de(int64_t(std::floor(tamanho * r)));
        if (!TestaRepeticao(c)) {
            MarcaNumero(p_, c);
            if (aoMarcar) aoMarcar(c);
            Sorteados(QuantSorteados.valor()) = c;
            sorteados += 1;
            QuantSorteados += 1;
        }
        p_.s.cedencia->cede();
    }
    AtualizaEscolhidos(p_);
    BtnCancelar();
}

} // namespace sorvelo
