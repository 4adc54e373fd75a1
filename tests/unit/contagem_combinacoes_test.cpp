// The count and the cost of a combination.
#include "apoio/Combinacao.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

TEST(Fatorial, ZeroEUmValemUm) {
    EXPECT_EQ(Fatorial(0), 1.0);
    EXPECT_EQ(Fatorial(1), 1.0);
    EXPECT_EQ(Fatorial(2), 2.0);
    EXPECT_EQ(Fatorial(6), 720.0);
}

TEST(Fatorial, NegativoNaoERecusado) {
    EXPECT_EQ(Fatorial(-3), 12.0);
}

TEST(Fatorial, FatoresDoMaiorParaOMenor) {
    // The product taken from the highest factor down, in double precision.
    double r = 50;
    for (int x = 49; x >= 1; --x)
        r = x * r;
    EXPECT_EQ(Fatorial(50), r);
}

TEST(RetQuantCombinacoes, NaoEInteiroExato) {
    EXPECT_EQ(RetQuantCombinacoes(50, 6), 15890699.999999994);
    EXPECT_NE(RetQuantCombinacoes(50, 6), 15890700.0);
    EXPECT_EQ(RetQuantCombinacoes(60, 6), 50063860.00000002);
}

TEST(RetQuantCombinacoes, ArredondamentoReparaAsCaudas) {
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(50, 6)), 15890700);
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(60, 6)), 50063860);
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(60, 5)), 5461512);
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(60, 4)), 487635);
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(20, 6)), 38760);
}

TEST(RetQuantCombinacoes, NIgualAKDaUm) {
    EXPECT_EQ(RetQuantCombinacoes(6, 6), 1.0);
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(60, 60)), 1);
    EXPECT_EQ(ArredondaApostas(RetQuantCombinacoes(1, 1)), 1);
}

TEST(RetQuantCombinacoes, NAbaixoDeKDaZeroApostas) {
    const double q = RetQuantCombinacoes(3, 6);
    EXPECT_GT(q, 0.0);
    EXPECT_LT(q, 1.0);
    EXPECT_NEAR(q, 0.000694, 0.000001);
    EXPECT_EQ(ArredondaApostas(q), 0);
}

TEST(RetQuantCombinacoes, AcimaDe32BitsEEstouro) {
    try {
        ArredondaApostas(RetQuantCombinacoes(60, 30));
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::Estouro);
    }
}

TEST(CustoCombinacao, DuzentasEDezApostasAQuatroECinquenta) {
    EXPECT_EQ(TextoQuantApostas(210), QStringLiteral(" 210"));
    EXPECT_EQ(TextoValorApostas(210, 4.5), QStringLiteral("945,00"));
}

TEST(CustoCombinacao, ValoresGrandesNaFormaBrasileira) {
    EXPECT_EQ(TextoQuantApostas(5461512), QStringLiteral(" 5461512"));
    EXPECT_EQ(TextoValorApostas(5461512, 4.5), QStringLiteral("24.576.804,00"));
    EXPECT_EQ(TextoValorApostas(0, 4.5), QStringLiteral("0,00"));
}

TEST(CustoCombinacao, DialogoMostraContagemECusto) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    b.dezenasPorAposta(6);
    Roteiro r;
    r.iniciar = false;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(b.p.e.TotalApostas, 210);
    EXPECT_EQ(r.lblTotAp, QStringLiteral(" 210"));
    EXPECT_EQ(r.lblValAp, QStringLiteral("945,00"));
}

TEST(CustoCombinacao, PrecoLidoDoTextoNoInicio) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    b.p.tela.TxtValAp.Text = QStringLiteral("1.000,50");
    Roteiro r;
    r.iniciar = false;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(b.p.e.ValorAposta, 1000.5);
    EXPECT_EQ(r.lblValAp, QStringLiteral("7.003,50"));
}
