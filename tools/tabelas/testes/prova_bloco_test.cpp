#include "Bloco.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::tabelas;

namespace {

Mascara linha(std::initializer_list<int> posicoes) {
    Mascara m = 0;
    for (int p : posicoes)
        m |= Mascara(1) << (p - 1);
    return m;
}

Bloco bloco(Parametros par, std::vector<Mascara> linhas) {
    ordenaLinhas(linhas);
    return {par, linhas};
}

// The Fano plane: seven lines of three points, every pair of points on one
// line, so C(7,3,2) = 7.
Bloco fano() {
    return bloco({7, 3, 2, 2}, {linha({1, 2, 3}), linha({1, 4, 5}), linha({1, 6, 7}), linha({2, 4, 6}),
                                linha({2, 5, 7}), linha({3, 4, 7}), linha({3, 5, 6})});
}

// The planes of the affine space of dimension 3 over two elements: the 14
// sets {x : a.x = c} of the points 0..7, a nonzero. Every three points lie
// on exactly one plane, so C(8,4,3) = 14.
Bloco planosAfins() {
    std::vector<Mascara> l;
    for (int a = 1; a < 8; ++a)
        for (int c = 0; c < 2; ++c) {
            Mascara m = 0;
            for (int x = 0; x < 8; ++x)
                if (__builtin_parity(unsigned(a & x)) == c) m |= Mascara(1) << x;
            l.push_back(m);
        }
    return bloco({8, 4, 3, 3}, l);
}

} // namespace

TEST(ProvaBloco, AceitaOPlanoDeFano) {
    EXPECT_TRUE(provaBloco(fano()));
}

TEST(ProvaBloco, RecusaOPlanoDeFanoSemQualquerUmaDasLinhas) {
    const Bloco b = fano();
    for (size_t i = 0; i < b.linhas.size(); ++i) {
        Bloco menor = b;
        menor.linhas.erase(menor.linhas.begin() + long(i));
        EXPECT_FALSE(provaBloco(menor)) << i;
    }
}

TEST(ProvaBloco, AceitaOsPlanosAfinsERecusaSemUmDeles) {
    Bloco b = planosAfins();
    ASSERT_EQ(b.linhas.size(), 14u);
    EXPECT_TRUE(provaBloco(b));
    b.linhas.pop_back();
    EXPECT_FALSE(provaBloco(b));
}

TEST(ProvaBloco, UmaLinhaBastaQuandoQualquerAcertoAlcancaAGarantia) {
    // Of 7 numbers, 4 hit: any 4 of them meet the 6 first in 3 or more.
    EXPECT_TRUE(provaBloco(bloco({7, 6, 4, 3}, {linha({1, 2, 3, 4, 5, 6})})));
    // With the guarantee 4, the 4 hits 1 2 3 7 meet it in 3 only.
    EXPECT_FALSE(provaBloco(bloco({7, 6, 4, 4}, {linha({1, 2, 3, 4, 5, 6})})));
}

TEST(ProvaBloco, RecusaLinhaForaDaContagemOuComTamanhoErrado) {
    Bloco b = fano();
    b.par.v = 6; // the position 7 lies beyond the chosen numbers
    EXPECT_FALSE(provaBloco(b));
    Bloco curto = fano();
    curto.linhas[0] = linha({1, 2});
    EXPECT_FALSE(provaBloco(curto));
}

TEST(ProvaBloco, RecusaLinhaRepetidaOuForaDeOrdem) {
    Bloco b = fano();
    b.linhas.push_back(b.linhas.back());
    EXPECT_FALSE(provaBloco(b));
    Bloco c = fano();
    std::swap(c.linhas[0], c.linhas[1]);
    EXPECT_FALSE(provaBloco(c));
    EXPECT_FALSE(provaBloco(Bloco{{7, 3, 2, 2}, {}}));
}

TEST(ProvaBloco, ContaOsBlocosDeCadaJogo) {
    // Mega-Sena: v = 7..25 and the 15 pairs 2 <= t <= p <= 6.
    EXPECT_EQ(blocosDoJogo(jogos()[1]).size(), 19u * 15u);
    // Lotofácil: v = 16..25 and the 15 pairs 11 <= t <= p <= 15.
    EXPECT_EQ(blocosDoJogo(jogos()[0]).size(), 10u * 15u);
    // Quina: v = 6..25 and the 10 pairs 2 <= t <= p <= 5.
    EXPECT_EQ(blocosDoJogo(jogos()[3]).size(), 20u * 10u);
}
