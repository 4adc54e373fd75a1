#include "Estatistica.h"

#include "../core/Module1.h"

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
template <typename Alvo> bool linhaTem(Programa& p, Int32 linha, Int16 c, Alvo alvo) {
    Module2& m = module2(p);
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
void passeDezenas(Programa& p, Int16 c, Int16& contador) {
    Module2& m = module2(p);
    if (m.Interrompido) return;
    contador = 0;
    for (Int32 linha = 0; linha < m.LinhaRes && !m.Interrompido; ++linha) {
        if (JogoTemDezenas(p, linha, c)) contador += 1;
        AvancaProgresso(p);
    }
}

void passeSubconjuntos(Programa& p, Int16 k, Int16 n, Int16& contador) {
    Module2& m = module2(p);
    if (m.Interrompido) return;
    contador = 0;
    GeraSubconjuntos(p, k, n);
    for (Int32 linha = 0; linha < m.LinhaRes && !m.Interrompido; ++linha) {
        for (Int32 j = 0; j < m.QuantSub; ++j)
            if (JogoTemSubconjunto(p, linha, j, k)) contador += 1;
        AvancaProgresso(p);
    }
}

int gravaSubconjunto(Programa& p, Int32 ultimo) {
    Module2& m = module2(p);
    Int16 col = 0;
    for (Int32 idx = 0; idx <= ultimo; ++idx) {
        if (PosicaoExcluida(p, idx)) continue;
        m.Sub(m.QuantSub.valor(), col.valor()) = m.VetSubBase(idx.valor());
        ++col;
    }
    m.QuantSub += 1;
    return m.VetPos(0) >= m.VetMax(0) ? 1 : 0;
}
} // namespace

void IniciaEstatistica(Programa& p, Int32 total) {
    Module2& m = module2(p);
    m.VetContado.assign(size_t(int64_t(total.valor()) + 1), 0);
    for (int i = 0; i <= 5; ++i)
        m.VetAcerto(i) = p.e.VetNum(i);
    for (int i = 0; i <= 5; ++i)
        m.VetSubBase(i) = m.VetAcerto(i);
    m.DezPorCartao = p.e.DezAposta;
}

bool JogoTemDezenas(Programa& p, Int32 linha, Int16 c) {
    Module2& m = module2(p);
    return linhaTem(p, linha, c, [&](int64_t idx) { return int64_t(m.VetAcerto(idx).valor()); });
}

bool JogoTemSubconjunto(Programa& p, Int32 linha, Int32 j, Int16 c) {
    Module2& m = module2(p);
    return linhaTem(p, linha, c, [&](int64_t idx) { return int64_t(m.Sub(j.valor(), idx).valor()); });
}

void LimpaContados(Programa& p) {
    Module2& m = module2(p);
    for (Int32 linha = 0; linha < m.LinhaRes; ++linha)
        m.Contado(linha.valor()) = 0;
}

void GeraSubconjuntos(Programa& p, Int16 k, Int16 n) {
    Module2& m = module2(p);
    const Int32 ultimo = Int32(n.valor()) - 1;
    m.UltPos = Int32(n.valor()) - 1 - k.valor();
    for (Int32 i = 0; i <= m.UltPos; ++i) {
        m.VetPos(i.valor()) = Int16::de(int64_t(i.valor()));
        m.VetMax(i.valor()) = Int16::de(int64_t((ultimo - (m.UltPos - i)).valor()));
    }
    m.QuantSub = 0;
    for (;;) {
        if (gravaSubconjunto(p, ultimo) == 1) return;
        const int64_t ult = m.UltPos.valor();
        if (m.VetPos(ult) < m.VetMax(ult)) {
            m.VetPos(ult) += 1;
            continue;
        }
        Int32 q = m.UltPos;
        for (;;) {
            q -= 1;
            if (q < 0) break;
            m.VetPos(q.valor()) += 1;
            if (m.VetPos(q.valor()) < m.VetMax(q.valor())) break;
            // Unlike the generator, the last subset written here does not end
            // the run: the tail is reset and the main loop writes it again.
            if (gravaSubconjunto(p, ultimo) == 1) break;
        }
        for (Int32 j = q + 1; j <= m.UltPos; ++j)
            m.VetPos(j.valor()) = m.VetPos(q.valor()) + (j - q).valor();
    }
}

void FazEstatistica(Programa& p, const QString& jogo, Int32 total) {
    Module2& m = module2(p);
    IniciaEstatistica(p, total);
    const QString nome = jogo.toUpper();
    if (nome == QStringLiteral("MEGA-SENA") || nome == QStringLiteral("DUPLA SENA")) {
        passeDezenas(p, 4, m.QuantQuadras(0));
        LimpaContados(p);
        passeDezenas(p, 5, m.QuantQuinas(0));
        passeSubconjuntos(p, 4, 5, m.QuantQuadras(1));
        LimpaContados(p);
        passeDezenas(p, 6, m.QuantSenas);
        passeSubconjuntos(p, 5, 6, m.QuantQuinas(1));
        passeSubconjuntos(p, 4, 6, m.QuantQuadras(2));
    } else if (nome == QStringLiteral("QUINA")) {
        passeDezenas(p, 3, m.QuantTernos(0));
        LimpaContados(p);
        passeDezenas(p, 4, m.QuantQuadras(0));
        passeSubconjuntos(p, 3, 4, m.QuantTernos(1));
        LimpaContados(p);
        passeDezenas(p, 5, m.QuantQuinas(0));
        passeSubconjuntos(p, 4, 5, m.QuantQuadras(1));
        passeSubconjuntos(p, 3, 5, m.QuantTernos(2));
    }
}

QString RetornaEstatistica(Programa& p) {
    Module2& m = module2(p);
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
