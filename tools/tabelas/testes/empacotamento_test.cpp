#include "Referencias.h"

#include <gtest/gtest.h>

#include <bit>

using namespace sorvelo;
using namespace sorvelo::tabelas;

namespace {

Mascara linha(std::initializer_list<int> posicoes) {
    Mascara m = 0;
    for (int p : posicoes)
        m |= Mascara(1) << (p - 1);
    return m;
}

uint64_t cobertos(int v, int t, const std::vector<Mascara>& apostas) {
    MapaCobertura mapa(v, t, t);
    for (Mascara a : apostas)
        mapa.marcaLinha(a);
    return mapa.cobertos();
}

} // namespace

TEST(Empacotamento, SeisNumerosTernoEmApostasDeQuatro) {
    const std::vector<Mascara> esperado = {linha({1, 2, 3, 4}), linha({1, 2, 5, 6}), linha({1, 3, 5, 6}),
                                           linha({1, 4, 5, 6}), linha({2, 3, 5, 6}), linha({2, 4, 5, 6}),
                                           linha({3, 4, 5, 6})};
    EXPECT_EQ(empacotamento(6, 4, 3), esperado);
}

TEST(Empacotamento, TamanhosECoberturaDaPassagemUnica) {
    EXPECT_EQ(tamanhoEmpacotamento(8, 6, 3), 4u);
    EXPECT_EQ(cobertos(8, 3, empacotamento(8, 6, 3)), 56u);
    EXPECT_EQ(tamanhoEmpacotamento(12, 6, 3), 21u);
    EXPECT_EQ(cobertos(12, 3, empacotamento(12, 6, 3)), 212u);
    EXPECT_EQ(tamanhoEmpacotamento(15, 6, 4), 325u);
    EXPECT_EQ(cobertos(15, 4, empacotamento(15, 6, 4)), 1365u);
}

TEST(Empacotamento, DezNumerosQuadraDeixaQuatroQuadrasDescobertas) {
    const auto apostas = empacotamento(10, 6, 4);
    EXPECT_EQ(apostas.size(), 27u);
    MapaCobertura mapa(10, 4, 4);
    for (Mascara a : apostas)
        mapa.marcaLinha(a);
    EXPECT_EQ(mapa.cobertos(), 206u);
    const auto faltam = mapa.descobertos(10);
    ASSERT_EQ(faltam.size(), 4u);
    EXPECT_EQ(faltam[0], linha({1, 2, 4, 7}));
}

TEST(Empacotamento, QuatroNumerosTernoFicaNumaApostaCurta) {
    EXPECT_EQ(empacotamento(4, 6, 3), std::vector<Mascara>{linha({1, 2, 3, 4})});
}

TEST(Empacotamento, ApostaDoTamanhoDaGarantiaEAListaDosSubconjuntos) {
    const auto a = empacotamento(6, 3, 3);
    EXPECT_EQ(a.size(), 20u);
    for (Mascara m : a)
        EXPECT_EQ(std::popcount(m), 3);
}

TEST(Empacotamento, UltimaApostaCurtaSeCompletaComADeAntes) {
    // 01..07 in bets of 6 with Duque: the last bet, short, is filled from
    // the one before it in that bet's ascending order.
    // The pass gives 01..06, then 01 02 03 04 05 07, then 06 07 alone.
    const std::vector<Mascara> esperado = {linha({1, 2, 3, 4, 5, 6}), linha({1, 2, 3, 4, 5, 7}),
                                           linha({1, 2, 3, 4, 6, 7})};
    EXPECT_EQ(empacotamento(7, 6, 2), esperado);
}

TEST(LimitesInferiores, SchonheimDeCoberturasConhecidas) {
    EXPECT_EQ(limiteSchonheim(7, 3, 2), 7u);
    EXPECT_EQ(limiteSchonheim(10, 5, 3), 14u);
    EXPECT_EQ(limiteSchonheim(8, 6, 5), 12u);
    // With p = t = k every k-subset is a row.
    EXPECT_EQ(limiteInferior({9, 6, 6, 6}), 84u);
}

TEST(LimitesInferiores, LoteriaPeloVolumeDaVizinhanca) {
    // 7 numbers, rows of 6, 5 hit, guarantee 4: a row meets 6 + 15 = 21 of
    // the 21 quinas, so one row may suffice.
    EXPECT_EQ(limiteInferior({7, 6, 5, 4}), 1u);
    // 10 numbers, rows of 5, 4 hit, guarantee 3: C(10,4) = 210, a row meets
    // C(5,3) C(5,1) + C(5,4) = 55 of them.
    EXPECT_EQ(limiteInferior({10, 5, 4, 3}), 4u);
}
