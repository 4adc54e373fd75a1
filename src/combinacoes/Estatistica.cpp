#include "combinacoes/Estatistica.h"

#include "core/Module1.h"

namespace sorvelo {

namespace {
// The numeric value of a cell of VetRes.
double valorCelula(const MatrizTexto& vet, int64_t coluna, int64_t linha) {
    const uint8_t c = vet.codigo(coluna, linha);
    if (c >= MatrizTexto::PrimeiroNumero && c != MatrizTexto::Outro) return c - MatrizTexto::PrimeiroNumero;
    if (c == MatrizTexto::Outro) return valorNumerico(vet.valor(coluna, linha));
    return 0; // empty or "#"
}

// Whether the row holds each of the c values that `alvo` gives.
template <typename Alvo> bool linhaTem(Nucleo& p, Module2& m, Int32 linha, Int16 c, Alvo alvo) {
    if (m.Contado(linha.valor())) return false;
    if (c < 1) return false;
    for (int64_t idx = 0; idx < c.valor(); ++idx) {
        const int64_t procurado = alvo(idx);
        bool achou = false;
        for (int64_t col = 0; col < m.DezPorCartao.valor(); ++col) {
            if (valorCelula(p.e.VetRes, col, linha.valor()) == double(procurado)) {
                achou = true;
                break;
            }
        }
        if (!achou) return false;
    }
    m.Contado(linha.valor()) = 1;
    return true;
}

// An interrupted run makes no further pass and leaves its counters as they
// are.
void passeDezenas(Nucleo& p, Module2& m, Int16 c, Int16& contador) {
    if (m.Interrompido) return;
    contador = 0;
    for (Int32 linha = 0; linha < m.LinhaRes && !m.Interrompido; ++linha) {
        if (JogoTemDezenas(p, m, linha, c)) contador += 1;
        AvancaProgresso(p, m);
    }
}

void passeSubconjuntos(Nucleo& p, Module2& m, Int16 k, Int16 n, Int16& contador) {
    if (m.Interrompido) return;
    contador = 0;
    GeraSubconjuntos(p, m, k, n);
    for (Int32 linha = 0; linha < m.LinhaRes && !m.Interrompido; ++linha) {
        for (Int32 j = 0; j < m.QuantSub; ++j)
            if (JogoTemSubconjunto(p, m, linha, j, k)) contador += 1;
        AvancaProgresso(p, m);
    }
}

int gravaSubconjunto(Nucleo& p, Module2& m, Int32 ultimo) {
    Int16 col = 0;
    for (Int32 idx = 0; idx <= ultimo; ++idx) {
        if (PosicaoExcluida(p, m, idx)) continue;
        m.Sub(m.QuantSub.valor(), col.valor()) = m.VetSubBase(idx.valor());
        ++col;
    }
    m.QuantSub += 1;
    return m.VetPos(0) >= m.VetMax(0) ? 1 : 0;
}
} // namespace

void IniciaEstatistica(Nucleo& p, Module2& m, Int32 total) {
    m.VetContado.assign(size_t(int64_t(total.valor()) + 1), 0);
    for (int i = 0; i <= 5; ++i)
        m.VetAcerto(i) = p.e.VetNum(i);
    for (int i = 0; i <= 5; ++i)
        m.VetSubBase(i) = m.VetAcerto(i);
    m.DezPorCartao = p.e.DezAposta;
}

bool JogoTemDezenas(Nucleo& p, Module2& m, Int32 linha, Int16 c) {
    return linhaTem(p, m, linha, c, [&](int64_t idx) { return int64_t(m.VetAcerto(idx).valor()); });
}

bool JogoTemSubconjunto(Nucleo& p, Module2& m, Int32 linha, Int32 j, Int16 c) {
    return linhaTem(p, m, linha, c, [&](int64_t idx) { return int64_t(m.Sub(j.valor(), idx).valor()); });
}

void LimpaContados(Nucleo&, Module2& m) {
    for (Int32 linha = 0; linha < m.LinhaRes; ++linha)
        m.Contado(linha.valor()) = 0;
}

void GeraSubconjuntos(Nucleo& p, Module2& m, Int16 k, Int16 n) {
    const Int32 ultimo = Int32(n.valor()) - 1;
    IniciaPosicoes(m, n, k);
    m.QuantSub = 0;
    // Unlike the generator, a last subset written in a carry does not end
    // the run: the tail is reset and the main loop writes it again.
    PercorreCombinacoes(m, FimNoTransporte::Continua, [&] { return gravaSubconjunto(p, m, ultimo); });
}

void FazEstatistica(Nucleo& p, Module2& m, const QString& jogo, Int32 total) {
    IniciaEstatistica(p, m, total);
    const QString nome = jogo.toUpper();
    if (nome == QStringLiteral("MEGA-SENA") || nome == QStringLiteral("DUPLA SENA")) {
        passeDezenas(p, m, 4, m.QuantQuadras(0));
        LimpaContados(p, m);
        passeDezenas(p, m, 5, m.QuantQuinas(0));
        passeSubconjuntos(p, m, 4, 5, m.QuantQuadras(1));
        LimpaContados(p, m);
        passeDezenas(p, m, 6, m.QuantSenas);
        passeSubconjuntos(p, m, 5, 6, m.QuantQuinas(1));
        passeSubconjuntos(p, m, 4, 6, m.QuantQuadras(2));
    } else if (nome == QStringLiteral("QUINA")) {
        passeDezenas(p, m, 3, m.QuantTernos(0));
        LimpaContados(p, m);
        passeDezenas(p, m, 4, m.QuantQuadras(0));
        passeSubconjuntos(p, m, 3, 4, m.QuantTernos(1));
        LimpaContados(p, m);
        passeDezenas(p, m, 5, m.QuantQuinas(0));
        passeSubconjuntos(p, m, 4, 5, m.QuantQuadras(1));
        passeSubconjuntos(p, m, 3, 5, m.QuantTernos(2));
    }
}

QString RetornaEstatistica(Nucleo& p, Module2& m) {
    auto n = [](Int16 v) { return TextoInteiro(v.valor()); };
    const QString crlf = QStringLiteral("\r\n");
    QString t;
    const QString& jogo = p.e.NomeLoteria;
    if (jogo == QStringLiteral("MEGA-SENA") || jogo == QStringLiteral("DUPLA SENA")) {
        t = QStringLiteral("Acertando 4 dezenas pega ") + n(m.QuantQuadras(0)) + QStringLiteral(" quadras.") +
            crlf;
        t += QStringLiteral("Acertando 5 dezenas pega ") + n(m.QuantQuinas(0)) +
             QStringLiteral(" quina(s), ") + n(m.QuantQuadras(1)) + QStringLiteral(" quadras.") + crlf;
        t += QStringLiteral("Acertando 6 dezenas pega ") + n(m.QuantSenas) + QStringLiteral(" sena, ") +
             n(m.QuantQuinas(1)) + QStringLiteral(" quina(s) e ") + n(m.QuantQuadras(2)) +
             QStringLiteral(" quadras.");
    } else if (jogo == QStringLiteral("QUINA")) {
        t = QStringLiteral("Acertando 3 dezenas pega ") + n(m.QuantTernos(0)) + QStringLiteral(" ternos.") +
            crlf;
        t += QStringLiteral("Acertando 4 dezenas pega ") + n(m.QuantQuadras(0)) +
             QStringLiteral(" quadras e ") + n(m.QuantTernos(1)) + QStringLiteral(" ternos.") + crlf;
        t += QStringLiteral("Acertando 5 dezenas pega ") + n(m.QuantQuinas(0)) +
             QStringLiteral(" quina(s), ") + n(m.QuantQuadras(1)) + QStringLiteral(" quadras e ") +
             n(m.QuantTernos(2)) + QStringLiteral(" ternos.") + crlf;
    }
    p.e.TextoEstatistica = t;
    return t;
}

} // namespace sorvelo
