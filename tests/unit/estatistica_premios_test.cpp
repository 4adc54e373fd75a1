// The prize statistics of a full combination and the sentence that tells
// them.
#include "apoio/Combinacao.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
int64_t comb(int n, int k) {
    if (k < 0 || k > n) return 0;
    int64_t r = 1;
    for (int i = 1; i <= k; ++i)
        r = r * (n - k + i) / i;
    return r;
}

// Generates numbers 1..n taken k, then counts the prizes of the game.
void geraEConta(ProgramaTeste& b, int n, int k) {
    b.marcaFaixa(1, n);
    CarregaNumeros(b.p);
    b.p.e.QuantEscolhidos = Int16(int16_t(n));
    b.p.e.DezAposta = Int16(int16_t(k));
    b.p.e.TotalApostas = ArredondaApostas(RetQuantCombinacoes(n, k));
    IniciaProgresso(b.p, module2(b.p), b.p.e.TotalApostas);
    ASSERT_TRUE(CombinaVetor(b.p, module2(b.p), b.p.e.QuantEscolhidos, b.p.e.DezAposta, b.p.e.TotalApostas));
    IniciaProgresso(b.p, module2(b.p), b.p.e.TotalApostas * 6);
    FazEstatistica(b.p, module2(b.p), b.p.e.NomeLoteria, b.p.e.TotalApostas);
}
} // namespace

TEST(FazEstatistica, MegaSenaSeteASeis) {
    ProgramaTeste b;
    geraEConta(b, 7, 6);
    const Module2& m = module2(b.p);
    EXPECT_EQ(m.QuantQuadras(0), 3);
    EXPECT_EQ(m.QuantQuinas(0), 2);
    EXPECT_EQ(m.QuantQuadras(1), 5);
    EXPECT_EQ(m.QuantSenas, 1);
    EXPECT_EQ(m.QuantQuinas(1), 6);
    EXPECT_EQ(m.QuantQuadras(2), 0);
    EXPECT_EQ(RetornaEstatistica(b.p, module2(b.p)),
              QStringLiteral("Acertando 4 dezenas pega 3 quadras.\r\n"
                             "Acertando 5 dezenas pega 2 quina(s), 5 quadras.\r\n"
                             "Acertando 6 dezenas pega 1 sena, 6 quina(s) e 0 quadras."));
    EXPECT_EQ(b.p.e.TextoEstatistica, RetornaEstatistica(b.p, module2(b.p)));
}

TEST(FazEstatistica, MegaSenaOitoASeisContaCadaLinhaNoMaiorPremio) {
    ProgramaTeste b;
    geraEConta(b, 8, 6);
    const Module2& m = module2(b.p);
    // A draw holding the first 4, 5 or 6 chosen numbers; the others (8 - c)
    // fill the rest of each bet.
    EXPECT_EQ(m.QuantQuadras(0), comb(4, 4) * comb(4, 2));
    EXPECT_EQ(m.QuantQuinas(0), comb(5, 5) * comb(3, 1));
    EXPECT_EQ(m.QuantQuadras(1), comb(5, 4) * comb(3, 2));
    EXPECT_EQ(m.QuantSenas, 1);
    EXPECT_EQ(m.QuantQuinas(1), comb(6, 5) * comb(2, 1));
    EXPECT_EQ(m.QuantQuadras(2), comb(6, 4) * comb(2, 2));
}

TEST(FazEstatistica, DuplaSenaComoAMega) {
    ProgramaTeste b(QStringLiteral("Dupla Sena"));
    geraEConta(b, 7, 6);
    EXPECT_EQ(RetornaEstatistica(b.p, module2(b.p)),
              QStringLiteral("Acertando 4 dezenas pega 3 quadras.\r\n"
                             "Acertando 5 dezenas pega 2 quina(s), 5 quadras.\r\n"
                             "Acertando 6 dezenas pega 1 sena, 6 quina(s) e 0 quadras."));
}

TEST(FazEstatistica, QuinaTemTresLinhasComTernos) {
    ProgramaTeste b(QStringLiteral("Quina"));
    geraEConta(b, 7, 5);
    const Module2& m = module2(b.p);
    EXPECT_EQ(m.QuantTernos(0), comb(4, 2));
    EXPECT_EQ(m.QuantQuadras(0), comb(3, 1));
    EXPECT_EQ(m.QuantTernos(1), comb(4, 3) * comb(3, 2));
    EXPECT_EQ(m.QuantQuinas(0), 1);
    EXPECT_EQ(m.QuantQuadras(1), comb(5, 4) * comb(2, 1));
    EXPECT_EQ(m.QuantTernos(2), comb(5, 3) * comb(2, 2));
    EXPECT_EQ(RetornaEstatistica(b.p, module2(b.p)),
              QStringLiteral("Acertando 3 dezenas pega 6 ternos.\r\n"
                             "Acertando 4 dezenas pega 3 quadras e 12 ternos.\r\n"
                             "Acertando 5 dezenas pega 1 quina(s), 10 quadras e 10 ternos."
                             "\r\n"));
}

TEST(FazEstatistica, SeisPassesSobreAsLinhas) {
    ProgramaTeste b;
    geraEConta(b, 8, 6);
    // 28 rows generated, then six passes of 28 rows, one yield a row.
    EXPECT_EQ(b.d.cedencia.quantas, 28 + 6 * 28);
    EXPECT_EQ(module2(b.p).Progresso.Value, 28 * 6);
}

TEST(FazEstatistica, NomeEmQualquerCaixa) {
    ProgramaTeste b;
    geraEConta(b, 7, 6);
    Module2& m = module2(b.p);
    m.QuantQuadras(0) = 99;
    FazEstatistica(b.p, module2(b.p), QStringLiteral("mega-sena"), b.p.e.TotalApostas);
    EXPECT_EQ(m.QuantQuadras(0), 3);
}

TEST(FazEstatistica, OutrosJogosNaoFazemPasseNemMudamContadores) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.marcaFaixa(1, 16);
    CarregaNumeros(b.p);
    b.p.e.DezAposta = 15;
    IniciaProgresso(b.p, module2(b.p), 16);
    ASSERT_TRUE(CombinaVetor(b.p, module2(b.p), 16, 15, 16));
    Module2& m = module2(b.p);
    m.QuantQuadras(0) = 7;
    const long long antes = b.d.cedencia.quantas;
    FazEstatistica(b.p, module2(b.p), b.p.e.NomeLoteria, 16);
    EXPECT_EQ(b.d.cedencia.quantas, antes);
    EXPECT_EQ(m.QuantQuadras(0), 7);
}

TEST(RetornaEstatistica, VaziaParaLotofacilELotomania) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.p.e.TextoEstatistica = QStringLiteral("velha");
    EXPECT_EQ(RetornaEstatistica(b.p, module2(b.p)), QString());
    EXPECT_EQ(b.p.e.TextoEstatistica, QString());
    ProgramaTeste l(QStringLiteral("Lotomania"));
    EXPECT_EQ(RetornaEstatistica(l.p, module2(l.p)), QString());
}

TEST(RetornaEstatistica, PalavrasSemSingular) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    m.QuantQuadras(0) = 1;
    m.QuantQuinas(0) = 1;
    m.QuantQuadras(1) = 1;
    m.QuantSenas = 1;
    m.QuantQuinas(1) = 0;
    m.QuantQuadras(2) = 1;
    EXPECT_EQ(RetornaEstatistica(b.p, module2(b.p)),
              QStringLiteral("Acertando 4 dezenas pega 1 quadras.\r\n"
                             "Acertando 5 dezenas pega 1 quina(s), 1 quadras.\r\n"
                             "Acertando 6 dezenas pega 1 sena, 0 quina(s) e 1 quadras."));
}

TEST(FazEstatistica, VetResFicaComoEstava) {
    ProgramaTeste b;
    b.marcaFaixa(1, 8);
    CarregaNumeros(b.p);
    b.p.e.DezAposta = 6;
    IniciaProgresso(b.p, module2(b.p), 28);
    ASSERT_TRUE(CombinaVetor(b.p, module2(b.p), 8, 6, 28));
    QStringList antes;
    for (int r = 0; r <= 28; ++r)
        for (int c = 0; c <= 81; ++c)
            antes << b.p.e.VetRes.valor(c, r);
    FazEstatistica(b.p, module2(b.p), b.p.e.NomeLoteria, 28);
    QStringList depois;
    for (int r = 0; r <= 28; ++r)
        for (int c = 0; c <= 81; ++c)
            depois << b.p.e.VetRes.valor(c, r);
    EXPECT_EQ(antes, depois);
    EXPECT_EQ(b.p.e.VetRes.ultimaLinha(), 28);
}

TEST(JogoTemDezenas, MenosDeUmNumeroDaFalso) {
    ProgramaTeste b;
    geraEConta(b, 7, 6);
    LimpaContados(b.p, module2(b.p));
    EXPECT_FALSE(JogoTemDezenas(b.p, module2(b.p), 0, 0));
    EXPECT_EQ(module2(b.p).Contado(0), 0);
    EXPECT_FALSE(JogoTemDezenas(b.p, module2(b.p), 0, 4)) << "a linha 0 (02 a 07) não tem o 01";
    EXPECT_TRUE(JogoTemDezenas(b.p, module2(b.p), 6, 4));
    EXPECT_FALSE(JogoTemDezenas(b.p, module2(b.p), 6, 4)) << "linha já contada";
}

TEST(FazEstatistica, ContadorAlemDe16BitsEEstouro) {
    // 24 numbers taken 17: the rows holding four given numbers are
    // C(20, 13) = 77520, beyond the 16-bit counter.
    ProgramaTeste b;
    b.marcaFaixa(1, 24);
    CarregaNumeros(b.p);
    b.p.e.DezAposta = 17;
    const Int32 total = ArredondaApostas(RetQuantCombinacoes(24, 17));
    IniciaProgresso(b.p, module2(b.p), total);
    ASSERT_TRUE(CombinaVetor(b.p, module2(b.p), 24, 17, total));
    try {
        FazEstatistica(b.p, module2(b.p), b.p.e.NomeLoteria, total);
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::Estouro);
    }
}
