#include "platform/DocumentoRico.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {
constexpr Formato fVermelho{rgb(150, 0, 0), false};
constexpr Formato fAzul{rgb(0, 0, 255), false};
constexpr Formato fVerde{rgb(0, 150, 0), true};

QString pedaco(const DocumentoRico& d, const Trecho& t) {
    return d.texto().mid(qsizetype(t.inicio), qsizetype(t.fim - t.inicio));
}
} // namespace

TEST(Cor, ComponentesDaCor) {
    constexpr Cor c = rgb(12, 34, 56);
    EXPECT_EQ(vermelho(c), 12);
    EXPECT_EQ(verde(c), 34);
    EXPECT_EQ(azul(c), 56);
    EXPECT_EQ(rgb(0, 64, 0), 0x004000u);
}

TEST(DocumentoRico, ComecaVazioVisivelESemTrechos) {
    DocumentoRico d;
    EXPECT_TRUE(d.texto().isEmpty());
    EXPECT_EQ(d.comprimento(), 0);
    EXPECT_TRUE(d.visivel());
    EXPECT_TRUE(d.trechos().empty());
    EXPECT_EQ(d.quantLinhas(), 1);
}

TEST(DocumentoRico, AcrescentaGuardaTextoECores) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("00001)"), fVermelho);
    d.acrescenta(QStringLiteral("   01 02 \r\n"), fAzul);
    EXPECT_EQ(d.texto(), QStringLiteral("00001)   01 02 \r\n"));
    EXPECT_EQ(d.comprimento(), 17);
    const auto t = d.trechos();
    ASSERT_EQ(t.size(), 2u);
    EXPECT_EQ(pedaco(d, t[0]), QStringLiteral("00001)"));
    EXPECT_EQ(t[0].formato, fVermelho);
    EXPECT_EQ(pedaco(d, t[1]), QStringLiteral("   01 02 \r\n"));
    EXPECT_EQ(t[1].formato, fAzul);
}

TEST(DocumentoRico, TrechosIguaisSeguidosSeJuntam) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("a"), fAzul);
    d.acrescenta(QStringLiteral("b"), fAzul);
    d.acrescenta(QStringLiteral("c"), fVermelho);
    d.acrescenta(QStringLiteral("d"), fAzul);
    const auto t = d.trechos();
    ASSERT_EQ(t.size(), 3u);
    EXPECT_EQ(pedaco(d, t[0]), QStringLiteral("ab"));
    EXPECT_EQ(pedaco(d, t[1]), QStringLiteral("c"));
    EXPECT_EQ(pedaco(d, t[2]), QStringLiteral("d"));
}

TEST(DocumentoRico, NegritoDistingueOFormato) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("x"), rgb(0, 150, 0), true);
    d.acrescenta(QStringLiteral("y"), rgb(0, 150, 0), false);
    const auto t = d.trechos();
    ASSERT_EQ(t.size(), 2u);
    EXPECT_TRUE(t[0].formato.negrito);
    EXPECT_FALSE(t[1].formato.negrito);
}

TEST(DocumentoRico, TrechosDeUmIntervalo) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("aaaa"), fVermelho);
    d.acrescenta(QStringLiteral("bbbb"), fAzul);
    d.acrescenta(QStringLiteral("cccc"), fVerde);
    const auto t = d.trechos(2, 9);
    ASSERT_EQ(t.size(), 3u);
    EXPECT_EQ(t[0].inicio, 2);
    EXPECT_EQ(t[0].fim, 4);
    EXPECT_EQ(t[1].inicio, 4);
    EXPECT_EQ(t[1].fim, 8);
    EXPECT_EQ(t[2].inicio, 8);
    EXPECT_EQ(t[2].fim, 9);
    EXPECT_EQ(t[2].formato, fVerde);
    EXPECT_TRUE(d.trechos(5, 5).empty());
    EXPECT_EQ(d.trechos(10, 100).back().fim, 12); // stops at the end
}

TEST(DocumentoRico, FormatoEmCadaPosicao) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("123456"), fVermelho);
    d.acrescenta(QStringLiteral("xyz"), fAzul);
    EXPECT_EQ(d.formatoEm(0), fVermelho);
    EXPECT_EQ(d.formatoEm(5), fVermelho);
    EXPECT_EQ(d.formatoEm(6), fAzul);
    EXPECT_EQ(d.formatoEm(8), fAzul);
}

TEST(DocumentoRico, DefineTextoTrocaTudoNoFormatoPadrao) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("velho"), fVermelho);
    d.defineTexto(QStringLiteral("novo\r\ntexto"));
    EXPECT_EQ(d.texto(), QStringLiteral("novo\r\ntexto"));
    const auto t = d.trechos();
    ASSERT_EQ(t.size(), 1u);
    EXPECT_EQ(t[0].formato, d.formatoPadrao);
    EXPECT_EQ(d.quantLinhas(), 2);
    d.limpa();
    EXPECT_TRUE(d.texto().isEmpty());
    EXPECT_TRUE(d.trechos().empty());
    EXPECT_EQ(d.quantLinhas(), 1);
}

TEST(DocumentoRico, LinhasComCRLFCRELF) {
    DocumentoRico d;
    d.defineTexto(QStringLiteral("um\r\ndois\rtres\nquatro"));
    ASSERT_EQ(d.quantLinhas(), 4);
    EXPECT_EQ(d.inicioLinha(0), 0);
    EXPECT_EQ(d.inicioLinha(1), 4);
    EXPECT_EQ(d.inicioLinha(2), 9);
    EXPECT_EQ(d.inicioLinha(3), 14);
    EXPECT_EQ(d.comprimentoLinha(0), 2);
    EXPECT_EQ(d.comprimentoLinha(1), 4);
    EXPECT_EQ(d.comprimentoLinha(2), 4);
    EXPECT_EQ(d.comprimentoLinha(3), 6);
    EXPECT_EQ(d.linhaDa(0), 0);
    EXPECT_EQ(d.linhaDa(3), 0);
    EXPECT_EQ(d.linhaDa(4), 1);
    EXPECT_EQ(d.linhaDa(13), 2);
    EXPECT_EQ(d.linhaDa(19), 3);
}

TEST(DocumentoRico, TextoQueTerminaComFimDeLinhaTemUltimaLinhaVazia) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("00001)   01 \r\n"), fAzul);
    EXPECT_EQ(d.quantLinhas(), 2);
    EXPECT_EQ(d.comprimentoLinha(1), 0);
    EXPECT_EQ(d.comprimentoLinha(0), 12);
}

TEST(DocumentoRico, CRNoFimELFNoPedacoSeguinteSaoUmFimDeLinha) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("a\r"), fAzul);
    EXPECT_EQ(d.quantLinhas(), 2);
    d.acrescenta(QStringLiteral("\nb"), fAzul);
    ASSERT_EQ(d.quantLinhas(), 2);
    EXPECT_EQ(d.inicioLinha(1), 3);
    EXPECT_EQ(d.comprimentoLinha(0), 1);
    EXPECT_EQ(d.comprimentoLinha(1), 1);
}

TEST(DocumentoRico, LinhasDeApostasAcrescentadas) {
    DocumentoRico d;
    for (int i = 1; i <= 1000; ++i) {
        const QString n = QStringLiteral("%1)   ").arg(i, 5, 10, QChar(u'0'));
        d.acrescenta(n.left(6), fVermelho);
        d.acrescenta(n.mid(6) + QStringLiteral("01 02 03 04 05 06 \r\n"), fAzul);
    }
    EXPECT_EQ(d.quantLinhas(), 1001);
    EXPECT_EQ(d.texto().mid(qsizetype(d.inicioLinha(999)), 6), QStringLiteral("01000)"));
    EXPECT_EQ(d.trechos().size(), 2000u);
    EXPECT_EQ(d.formatoEm(d.inicioLinha(500) + 5), fVermelho);
    EXPECT_EQ(d.formatoEm(d.inicioLinha(500) + 6), fAzul);
}

TEST(DocumentoRico, AcrescentaOutroDocumentoMantemSeusTrechos) {
    DocumentoRico linha;
    linha.acrescenta(QStringLiteral("00002)"), fVermelho);
    linha.acrescenta(QStringLiteral("   07 \r\n"), fAzul);
    DocumentoRico d;
    d.acrescenta(QStringLiteral("cabeça\r\n"), fVerde);
    d.acrescenta(linha);
    EXPECT_EQ(d.texto(), QStringLiteral("cabeça\r\n00002)   07 \r\n"));
    const auto t = d.trechos();
    ASSERT_EQ(t.size(), 3u);
    EXPECT_EQ(pedaco(d, t[1]), QStringLiteral("00002)"));
    EXPECT_EQ(t[1].formato, fVermelho);
    EXPECT_EQ(t[2].formato, fAzul);
    EXPECT_EQ(d.quantLinhas(), 3);
    EXPECT_EQ(d.inicioLinha(1), 8);
}

TEST(DocumentoRico, AcrescentaOutroDocumentoDeMesmoFormatoJunta) {
    DocumentoRico a, b;
    a.acrescenta(QStringLiteral("x"), fAzul);
    b.acrescenta(QStringLiteral("y"), fAzul);
    a.acrescenta(b);
    ASSERT_EQ(a.trechos().size(), 1u);
    EXPECT_EQ(pedaco(a, a.trechos()[0]), QStringLiteral("xy"));
}

TEST(DocumentoRico, EventoDeMudancaEmCadaEscrita) {
    DocumentoRico d;
    int mudancas = 0;
    d.aoMudar.liga([&] { ++mudancas; });
    d.acrescenta(QStringLiteral("a"), fAzul);
    EXPECT_EQ(mudancas, 1);
    d.defineTexto(QStringLiteral("b"));
    EXPECT_EQ(mudancas, 2);
    d.limpa();
    EXPECT_EQ(mudancas, 3);
    DocumentoRico outro;
    outro.acrescenta(QStringLiteral("c"), fVermelho);
    d.acrescenta(outro);
    EXPECT_EQ(mudancas, 4);
    d.defineTexto(QString()); // emptying an already cleared text is a write too
    d.defineTexto(QString());
    EXPECT_EQ(mudancas, 6);
}

TEST(DocumentoRico, VisibilidadeNaoEhMudancaDoConteudo) {
    DocumentoRico d;
    int mudancas = 0;
    d.aoMudar.liga([&] { ++mudancas; });
    const uint64_t v0 = d.versao();
    d.defineVisivel(false);
    EXPECT_FALSE(d.visivel());
    EXPECT_EQ(mudancas, 0);
    EXPECT_GT(d.versao(), v0);
    const uint64_t v1 = d.versao();
    d.defineVisivel(false);
    EXPECT_EQ(d.versao(), v1);
    d.defineVisivel(true);
    EXPECT_TRUE(d.visivel());
}

TEST(DocumentoRico, VersaoCresceComOConteudo) {
    DocumentoRico d;
    const uint64_t v0 = d.versao();
    d.acrescenta(QStringLiteral("a"), fAzul);
    EXPECT_GT(d.versao(), v0);
}
