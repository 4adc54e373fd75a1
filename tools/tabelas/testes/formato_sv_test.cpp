#include "FormatoSv.h"

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

std::vector<std::vector<std::string>> celulas(std::initializer_list<std::vector<std::string>> l) {
    return l;
}

} // namespace

TEST(FormatoSv, ChaveTemOnzeCaracteres) {
    EXPECT_EQ(chave("MSC", {8, 6, 4, 4}), "MSC08A04G04");
    EXPECT_EQ(chave("LFC", {25, 15, 14, 11}), "LFC25A14G11");
}

TEST(FormatoSv, ComplementoTrocaCadaByteEDesfazASiMesmo) {
    const std::string s("A\r\n\0\xff", 5);
    const std::string c = complementa(s);
    ASSERT_EQ(c.size(), 5u);
    EXPECT_EQ((unsigned char)c[0], 255 - 'A');
    EXPECT_EQ((unsigned char)c[1], 255 - 13);
    EXPECT_EQ((unsigned char)c[3], 255);
    EXPECT_EQ((unsigned char)c[4], 0);
    EXPECT_EQ(complementa(c), s);
}

TEST(FormatoSv, TextoDoBlocoTerminaUmEspacoDepoisDaUltimaCelula) {
    const Bloco b{{8, 6, 4, 4}, {linha({1, 2, 3, 4, 5, 6}), linha({1, 2, 3, 4, 7, 8})}};
    EXPECT_EQ(textoDoArquivo("MSC", {b}), "MSC08A04G04\r\n01 02 03 04 05 06\r\n01 02 03 04 07 08 ##\r\n");
}

TEST(FormatoSv, IdaEVoltaDeVariosBlocos) {
    const std::vector<Bloco> blocos = {
        {{7, 6, 2, 2}, {linha({1, 2, 3, 4, 5, 6}), linha({1, 2, 3, 4, 5, 7}), linha({2, 3, 4, 5, 6, 7})}},
        {{7, 6, 4, 3}, {linha({1, 2, 3, 4, 5, 6})}},
        {{25, 6, 5, 5}, {linha({1, 9, 10, 17, 24, 25}), linha({2, 3, 4, 5, 6, 7})}},
    };
    const std::string arquivo = complementa(textoDoArquivo("DSC", blocos));
    const std::vector<Bloco> lidos = leBlocos(complementa(arquivo), "DSC", 6);
    ASSERT_EQ(lidos.size(), blocos.size());
    for (size_t i = 0; i < blocos.size(); ++i) {
        EXPECT_EQ(lidos[i].par, blocos[i].par);
        EXPECT_EQ(lidos[i].linhas, blocos[i].linhas);
    }
    EXPECT_TRUE(leBlocos(complementa(arquivo), "MSC", 6).empty());
}

TEST(FormatoSv, LeitorDaExatamenteAsLinhasDeUmBlocoDeUmaLinha) {
    const auto r = leBlocoComoPrograma("QNC06A02G02\r\n01 02 03 04 05 ##\r\n", "QNC06A02G02");
    ASSERT_TRUE(r);
    EXPECT_EQ(*r, celulas({{"01", "02", "03", "04", "05"}}));
}

TEST(FormatoSv, FimNumaLinhaPropriaDaUmaLinhaVaziaAMais) {
    const auto r = leBlocoComoPrograma("QNC06A02G02\r\n01 02 03 04 05\r\n##\r\n", "QNC06A02G02");
    ASSERT_TRUE(r);
    EXPECT_EQ(*r, celulas({{"01", "02", "03", "04", "05"}, {}}));
}

TEST(FormatoSv, LeitorIgnoraOQueVemAntesDaChaveELeAPrimeiraOcorrencia) {
    const std::string t = "lixo QNC06A02G02\r\n01 02 03 04 05 ##\r\nQNC06A02G02\r\n01 02 03 04 06 ##";
    const auto r = leBlocoComoPrograma(t, "QNC06A02G02");
    ASSERT_TRUE(r);
    EXPECT_EQ(*r, celulas({{"01", "02", "03", "04", "05"}}));
}

TEST(FormatoSv, BlocoSemFimOuChaveAusenteNaoELido) {
    EXPECT_FALSE(leBlocoComoPrograma("QNC06A02G02\r\n01 02 03 04 05\r\n", "QNC06A02G02"));
    EXPECT_FALSE(leBlocoComoPrograma("QNC06A02G02\r\n01 02 ##", "QNC07A02G02"));
    // The key is compared exactly, case included.
    EXPECT_FALSE(leBlocoComoPrograma("qnc06A02G02\r\n01 02 ##", "QNC06A02G02"));
}

TEST(FormatoSv, BlocoAcimaDoLimiteDeLinhasNaoELido) {
    std::string t = "QNC06A02G02\r\n";
    for (int i = 0; i < MaxLinhasBloco; ++i)
        t += "01 02 03 04 05\r\n";
    t += "01 02 03 04 05 ##";
    EXPECT_FALSE(leBlocoComoPrograma(t, "QNC06A02G02"));
}

TEST(FormatoSv, CelulaQueNaoEPosicaoDaContagemRecusaOBloco) {
    EXPECT_FALSE(linhasComoMascaras(celulas({{"01", "08"}}), 7));
    EXPECT_FALSE(linhasComoMascaras(celulas({{"00", "02"}}), 7));
    EXPECT_FALSE(linhasComoMascaras(celulas({{"0a"}}), 7));
    const auto m = linhasComoMascaras(celulas({{"01", "07"}}), 7);
    ASSERT_TRUE(m);
    EXPECT_EQ(*m, std::vector<Mascara>{linha({1, 7})});
}
