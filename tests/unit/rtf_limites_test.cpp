// Reading hostile rich text stays within a few bytes of memory per byte
// read, and blanks that a text brings at its end are read as if they were
// there without being made where they change nothing.
#include "MemoriaPico.h"
#include "core/Rtf.h"

#include <gtest/gtest.h>

#include <random>

using namespace sorvelo;
using sorvelo::teste::picoDeMemoria;

namespace {

QString u(const char* s) {
    return QString::fromUtf8(s);
}

struct TrechoSimples {
    int64_t inicio, fim;
    Cor cor;
    bool negrito;
    friend bool operator==(const TrechoSimples&, const TrechoSimples&) = default;
};

std::vector<TrechoSimples> trechos(const DocumentoRico& d) {
    std::vector<TrechoSimples> r;
    for (const Trecho& t : d.trechos())
        r.push_back({t.inicio, t.fim, t.formato.cor, t.formato.negrito});
    return r;
}

// The peak memory of reading rtf, per byte of it.
double bytesPorByte(const QByteArray& rtf, DocumentoRico& d) {
    const int64_t pico = picoDeMemoria([&] { leRtf(rtf, d); });
    return double(pico) / double(rtf.size());
}

} // namespace

TEST(RtfLimites, MilhoesDeGruposAbertosCustamPoucosBytesPorByte) {
    QByteArray rtf = "{\\rtf1\\cf0 ";
    rtf += QByteArray(4 << 20, '{');
    rtf += "fim";
    DocumentoRico d;
    const double custo = bytesPorByte(rtf, d);
    EXPECT_EQ(d.texto(), u("fim"));
    ASSERT_GE(custo, 0);
    EXPECT_LT(custo, 4.0);
}

TEST(RtfLimites, GruposQueMudamOFormatoCustamPoucosBytesPorByte) {
    QByteArray rtf = "{\\rtf1{\\colortbl;\\red200\\green0\\blue0;}";
    const int grupos = 1 << 18;
    for (int k = 0; k < grupos; ++k)
        rtf += k % 2 ? "{\\b0" : "{\\b ";
    rtf += "x";
    for (int k = 0; k < grupos - 1; ++k)
        rtf += '}';
    rtf += "y}z";
    DocumentoRico d;
    const double custo = bytesPorByte(rtf, d);
    // x in the innermost group (not bold), y in the outermost opened (bold),
    // z outside the groups again, after which the document's group closed.
    EXPECT_EQ(d.texto(), u("xyz"));
    EXPECT_EQ(trechos(d), (std::vector<TrechoSimples>{{0, 1, 0, false}, {1, 2, 0, true}, {2, 3, 0, false}}));
    ASSERT_GE(custo, 0);
    EXPECT_LT(custo, 4.0);
}

TEST(RtfLimites, TabelaDeCoresEnormeCustaPoucoENumeraCadaEntrada) {
    QByteArray rtf = "{\\rtf1{\\colortbl";
    const int entradas = 4 << 20;
    rtf += QByteArray(entradas, ';');
    rtf += "\\red7\\green8\\blue9;";
    for (int k = 0; k < 1000; ++k)
        rtf += "\\red1;";
    rtf += "}\\cf" + QByteArray::number(entradas) + " a\\cf" + QByteArray::number(entradas - 1) + " b\\cf" +
           QByteArray::number(entradas + 1000) + " c\\cf" + QByteArray::number(entradas + 1001) + " d}";
    DocumentoRico d;
    const double custo = bytesPorByte(rtf, d);
    EXPECT_EQ(d.texto(), u("abcd"));
    EXPECT_EQ(
        trechos(d),
        (std::vector<TrechoSimples>{
            {0, 1, rgb(7, 8, 9), false}, {1, 2, 0, false}, {2, 3, rgb(1, 0, 0), false}, {3, 4, 0, false}}));
    ASSERT_GE(custo, 0);
    EXPECT_LT(custo, 4.0);
}

TEST(RtfLimites, LinhaUnicaGrandeCustaOTextoDoDocumento) {
    QByteArray rtf = "{\\rtf1 ";
    rtf += QByteArray(4 << 20, 'a');
    rtf += '}';
    DocumentoRico d;
    const double custo = bytesPorByte(rtf, d);
    EXPECT_EQ(d.comprimento(), 4 << 20);
    EXPECT_EQ(d.quantLinhas(), 1);
    // Two bytes a character for the document itself, and its growth (under
    // the sanitizers the buffers it outgrew stay resident for a while).
    ASSERT_GE(custo, 0);
    EXPECT_LT(custo, 8.0);
}

TEST(RtfLimites, BrancosNoFimLidosComoSeEstivessemLa) {
    std::mt19937 gerador(4242);
    const char* pedacos[] = {"{",     "}",    "\\",    "\\'",        "\\u",  "-",    "9",
                             "\\uc",  "\\*",  "\\bin", "\\cf",       "\\b",  ";",    "\\red",
                             "\\par", "a",    " ",     "\\colortbl", "\\pa", "\\u2", "\\bin3",
                             "\\uc3", "\\'e", "\\cf1", "\\fonttbl"};
    for (int caso = 0; caso < 4000; ++caso) {
        QByteArray rtf = caso % 5 ? QByteArray("{\\rtf1") : QByteArray();
        if (caso % 3 == 0) rtf += "{\\colortbl;\\red1\\green2\\blue3;}";
        const int n = int(gerador() % 30);
        for (int k = 0; k < n; ++k)
            rtf.append(pedacos[gerador() % std::size(pedacos)]);
        for (const int brancos : {0, 1, 2, 3, 4, 9}) {
            SCOPED_TRACE(rtf.toStdString() + " + " + std::to_string(brancos));
            DocumentoRico virtual_, real;
            leRtf(rtf, virtual_, brancos);
            leRtf(rtf + QByteArray(brancos, ' '), real);
            EXPECT_EQ(virtual_.texto(), real.texto());
            EXPECT_EQ(trechos(virtual_), trechos(real));
        }
    }
}

TEST(RtfLimites, BrancosDepoisDoDocumentoFechadoNaoCustamNada) {
    DocumentoRico d;
    const int64_t pico = picoDeMemoria([&] { leRtf("{\\rtf1 abc}", d, int64_t(1) << 40); });
    EXPECT_EQ(d.texto(), u("abc"));
    ASSERT_GE(pico, 0);
    EXPECT_LT(pico, 16 << 20);
    // skipped as the fallback of a \u
    leRtf("{\\rtf1\\uc1000000000 a\\u98", d, 999999999);
    EXPECT_EQ(d.texto(), u("ab"));
}

TEST(RtfLimites, MuitasMudancasDeCorNumaLinhaFicamNosSeusTrechos) {
    QByteArray rtf = "{\\rtf1{\\colortbl;";
    for (int c = 0; c < 3000; ++c)
        rtf += "\\red" + QByteArray::number(c % 256) + "\\green" + QByteArray::number(c / 256) + "\\blue1;";
    rtf += '}';
    const int mudancas = 200000;
    for (int k = 0; k < mudancas; ++k)
        rtf += "\\cf" + QByteArray::number(1 + (k * 7919) % 3000) + " x";
    rtf += '}';
    DocumentoRico d;
    leRtf(rtf, d);
    const auto t = d.trechos();
    ASSERT_EQ(t.size(), size_t(mudancas));
    for (int k = 0; k < mudancas; k += 997) {
        const int c = (k * 7919) % 3000;
        EXPECT_EQ(t[size_t(k)].formato.cor, rgb(c % 256, c / 256, 1)) << k;
    }
}
