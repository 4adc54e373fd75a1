#include "base/Cp1252.h"
#include "core/BancoApostas.h"
#include "core/Rtf.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

#include <random>

using namespace sorvelo;

namespace {

struct TrechoSimples {
    int64_t inicio, fim;
    Cor cor;
    bool negrito;
    friend bool operator==(const TrechoSimples&, const TrechoSimples&) = default;
    friend std::ostream& operator<<(std::ostream& o, const TrechoSimples& t) {
        return o << "[" << t.inicio << "," << t.fim << ") cor " << std::hex << t.cor << std::dec
                 << (t.negrito ? " negrito" : "");
    }
};

std::vector<TrechoSimples> trechos(const DocumentoRico& d) {
    std::vector<TrechoSimples> r;
    for (const Trecho& t : d.trechos())
        r.push_back({t.inicio, t.fim, t.formato.cor, t.formato.negrito});
    return r;
}

DocumentoRico le(const QByteArray& rtf) {
    DocumentoRico d;
    leRtf(rtf, d);
    return d;
}

QString u(const char* s) {
    return QString::fromUtf8(s);
}

// A bank as the writers leave it: a green bold head, bet lines, an end.
DocumentoRico bancoExemplo() {
    DocumentoRico d;
    d.acrescenta(u("Dezenas escolhidas: 01 02 03 \r\n22/11/2026 14:05:09: Combinação reduzida\r\n\r\n"),
                 CorLog, true);
    InsereLinhaAposta(d, 1, u("01 02 03 04 05 06 "), u("\r\n"));
    InsereLinhaAposta(d, 2, u("07 08 09 10 11 12 13 "), u("\r\n"));
    d.acrescenta(u("\r\n"), CorLog, true);
    return d;
}

// Braces outside escapes, counted: the document must close every group.
int saldoChaves(const QByteArray& rtf) {
    int saldo = 0;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
            continue;
        }
        if (rtf[i] == '{') ++saldo;
        if (rtf[i] == '}') {
            --saldo;
            if (saldo == 0 && i + 1 < rtf.size()) {
                // only the line end may follow the closing brace
                EXPECT_EQ(rtf.mid(i + 1), QByteArray("\r\n"));
                return saldo;
            }
        }
    }
    return saldo;
}

} // namespace

TEST(CodigoPagina, LotofacilEmBytesDoWindows1252) {
    EXPECT_EQ(cp1252::codifica(u("LOTOFÁCIL")).toHex(' '), QByteArray("4c 4f 54 4f 46 c1 43 49 4c"));
    EXPECT_EQ(cp1252::codifica(u("ção€")).toHex(' '), QByteArray("e7 e3 6f 80"));
    EXPECT_EQ(cp1252::decodifica(QByteArray::fromHex("4c4f544f46c143494c")), u("LOTOFÁCIL"));
}

TEST(CodigoPagina, CaractereSemByteViraInterrogacao) {
    EXPECT_EQ(cp1252::codifica(u("a✓b")), QByteArray("a?b"));
}

TEST(CodigoPagina, ConcordaComOConversorDaPlataforma) {
    QStringEncoder plataforma("windows-1252");
    ASSERT_TRUE(plataforma.isValid());
    for (int b = 0; b < 256; ++b) {
        const QChar c(cp1252::caractere(uint8_t(b)));
        EXPECT_EQ(plataforma(QString(c)), QByteArray(1, char(b))) << b;
        EXPECT_EQ(cp1252::codifica(QString(c)), QByteArray(1, char(b))) << b;
    }
}

TEST(RtfEscrita, DocumentoVazioDaTextoVazio) {
    DocumentoRico d;
    EXPECT_TRUE(escreveRtf(d).isEmpty());
    DocumentoRico lido = le(QByteArray());
    EXPECT_EQ(lido.comprimento(), 0);
}

TEST(RtfEscrita, EstruturaDeUmDocumentoPadrao) {
    const QByteArray rtf = escreveRtf(bancoExemplo());
    EXPECT_TRUE(rtf.startsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}"));
    EXPECT_TRUE(rtf.contains(
        "{\\colortbl ;\\red0\\green150\\blue0;\\red150\\green0\\blue0;\\red0\\green0\\blue255;}"));
    EXPECT_TRUE(rtf.endsWith("}\r\n"));
    EXPECT_EQ(saldoChaves(rtf), 0);
    for (char c : rtf)
        EXPECT_LT(uint8_t(c), 0x80) << "byte fora do ASCII";
    // Head in green bold, the number in dark red, the bet in blue, plain.
    EXPECT_TRUE(rtf.contains("\\cf1\\b Dezenas escolhidas: 01 02 03 \\par\r\n"));
    EXPECT_TRUE(rtf.contains("Combina\\'e7\\'e3o reduzida\\par\r\n\\par\r\n"));
    EXPECT_TRUE(rtf.contains("\\cf2\\b0 00001)\\cf3    01 02 03 04 05 06 \\par\r\n"));
    EXPECT_TRUE(rtf.contains("\\cf2 00002)\\cf3    07 08 09 10 11 12 13 \\par\r\n"));
    EXPECT_TRUE(rtf.contains("\\cf1\\b \\par\r\n}"));
}

TEST(RtfEscrita, EscapaBarraEChaves) {
    DocumentoRico d;
    d.acrescenta(u("a\\b{c}d"), 0);
    EXPECT_TRUE(escreveRtf(d).contains("a\\\\b\\{c\\}d"));
    EXPECT_EQ(le(escreveRtf(d)).texto(), u("a\\b{c}d"));
}

TEST(RtfEscrita, CaracteresForaDoAsciiETabulacao) {
    DocumentoRico d;
    d.acrescenta(u("é€\t✓𝄞"), rgb(1, 2, 3));
    const QByteArray rtf = escreveRtf(d);
    EXPECT_TRUE(rtf.contains("\\'e9\\'80\\tab \\u10003?\\u-10188?\\u-8930?")) << rtf.toStdString();
    const DocumentoRico lido = le(rtf);
    EXPECT_EQ(lido.texto(), d.texto());
    EXPECT_EQ(trechos(lido), trechos(d));
}

TEST(RtfEscrita, CadaFimDeLinhaViraUmPar) {
    DocumentoRico d;
    d.acrescenta(u("a\r\nb\rc\nd"), 0);
    const QByteArray rtf = escreveRtf(d);
    EXPECT_EQ(rtf.count("\\par\r\n"), 3);
    EXPECT_EQ(le(rtf).texto(), u("a\r\nb\r\nc\r\nd"));
}

TEST(RtfEscrita, CrLfPartidoEntreDoisFormatosEUmaSoLinha) {
    DocumentoRico d;
    d.acrescenta(u("a\r"), rgb(200, 0, 0));
    d.acrescenta(u("\nb"), rgb(0, 0, 200), true);
    const QByteArray rtf = escreveRtf(d);
    EXPECT_EQ(rtf.count("\\par\r\n"), 1);
    const DocumentoRico lido = le(rtf);
    EXPECT_EQ(lido.texto(), u("a\r\nb"));
    EXPECT_EQ(lido.formatoEm(3), (Formato{rgb(0, 0, 200), true}));
}

TEST(RtfEscrita, CaracteresDeControleVoltamIguais) {
    DocumentoRico d;
    d.acrescenta(QString(QChar(1)) + QChar(0x7F) + QChar(0x81), 0);
    const DocumentoRico lido = le(escreveRtf(d));
    EXPECT_EQ(lido.texto(), d.texto());
}

TEST(RtfIdaEVolta, BancoVoltaComCoresENegrito) {
    const DocumentoRico d = bancoExemplo();
    const DocumentoRico lido = le(escreveRtf(d));
    EXPECT_EQ(lido.texto(), d.texto());
    EXPECT_EQ(trechos(lido), trechos(d));
    ASSERT_EQ(trechos(d).size(), 6u);
}

TEST(RtfIdaEVolta, PretoExplicitoEBrancoNoInicio) {
    DocumentoRico d;
    d.acrescenta(u(" comeca com branco"), 0, true);
    d.acrescenta(u("12 depois de palavra"), rgb(255, 255, 255));
    d.acrescenta(u("\r\n"), 0);
    const DocumentoRico lido = le(escreveRtf(d));
    EXPECT_EQ(lido.texto(), d.texto());
    EXPECT_EQ(trechos(lido), trechos(d));
}

TEST(RtfIdaEVolta, MuitasCoresEPesos) {
    DocumentoRico d;
    for (int i = 0; i < 300; ++i)
        d.acrescenta(QStringLiteral("linha %1\r\n").arg(i), rgb(i % 256, i / 2, 7), i % 3 == 0);
    const DocumentoRico lido = le(escreveRtf(d));
    EXPECT_EQ(lido.texto(), d.texto());
    EXPECT_EQ(trechos(lido), trechos(d));
}

TEST(RtfLeitura, DialetoDoControleDeTextoRico) {
    // As a Windows rich-text control writes a bank: final NUL included.
    QByteArray rtf(
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1046{\\fonttbl{\\f0\\fnil\\fcharset0 MS Sans Serif;}}\r\n"
        "{\\colortbl ;\\red0\\green150\\blue0;\\red150\\green0\\blue0;\\red0\\green0\\blue255;}\r\n"
        "\\viewkind4\\uc1\\pard\\cf1\\b\\f0\\fs17 Dezenas escolhidas: 01 02 \\par\r\n"
        "22/11/2026 14:05:09: Limpou banco de apostas\\par\r\n\\par\r\n"
        "\\cf2\\b0 00001)\\cf3    01 02 03 04 05 06 \\par\r\n"
        "}\r\n");
    rtf.append('\0');
    const DocumentoRico d = le(rtf);
    const QString cabeca =
        u("Dezenas escolhidas: 01 02 \r\n22/11/2026 14:05:09: Limpou banco de apostas\r\n\r\n");
    EXPECT_EQ(d.texto(), cabeca + u("00001)   01 02 03 04 05 06 \r\n"));
    const int64_t c = cabeca.size();
    EXPECT_EQ(trechos(d), (std::vector<TrechoSimples>{{0, c, CorLog, true},
                                                      {c, c + 6, CorNumeroLinha, false},
                                                      {c + 6, d.comprimento(), CorAposta, false}}));
}

TEST(RtfLeitura, ToleraGruposDestinosEPalavrasDesconhecidas) {
    const QByteArray rtf(
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\froman Times;}{\\f1 Arial;}}"
        "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green128\\blue0;}"
        "{\\stylesheet{\\s0 Normal;}}{\\info{\\title T\\'edtulo}{\\author Eu}}"
        "{\\*\\generator Algum Programa 1.0;}{\\*\\qualquercoisa {com grupos} dentro}"
        "{\\pict\\pngblip 89504e470d0a}"
        "\\pard\\plain\\widowctrl\\naoexiste123 Ol\\'e1 {\\cf1\\b vermelho {\\cf2 verde} de novo}\\b0  fim"
        "\\line x\\tab y\\~z \\{\\}\\\\ \\u233\\'3f\\uc2\\u8364 ab c\\uc0\\u8364 d"
        "\\cf9 foraDaTabela\\cf0 auto}depois do fim");
    const DocumentoRico d = le(rtf);
    EXPECT_EQ(d.texto(), u("Olá vermelho verde de novo fim\r\nx\ty\u00A0z {}\\ é€ c€dforaDaTabelaauto"));
    const auto t = trechos(d);
    ASSERT_EQ(t.size(), 5u);
    EXPECT_EQ(t[0], (TrechoSimples{0, 4, 0, false}));
    EXPECT_EQ(d.formatoEm(4), (Formato{rgb(255, 0, 0), true}));
    EXPECT_EQ(d.formatoEm(13), (Formato{rgb(0, 128, 0), true}));
    EXPECT_EQ(d.formatoEm(19), (Formato{rgb(255, 0, 0), true}));
    EXPECT_EQ(d.formatoEm(27), (Formato{0, false}));
    EXPECT_EQ(d.formatoEm(d.comprimento() - 1), (Formato{0, false}));
}

TEST(RtfLeitura, DocumentoSemFechamentoELido) {
    const DocumentoRico d = le("{\\rtf1{\\colortbl;\\red1\\green2\\blue3;}\\cf1 sem fim\\par");
    EXPECT_EQ(d.texto(), u("sem fim\r\n"));
    EXPECT_EQ(d.formatoEm(0).cor, rgb(1, 2, 3));
}

TEST(RtfLeitura, BinarioEPulado) {
    const DocumentoRico d = le(QByteArray("{\\rtf1 a{\\*\\blob\\bin4 }{\\}b}c}"));
    EXPECT_EQ(d.texto(), u("ac"));
}

TEST(RtfLeitura, TextoQueNaoERtfEntraComoTextoSimples) {
    const DocumentoRico d = le(QByteArray("linha 1\r\nol\xe1"));
    EXPECT_EQ(d.texto(), u("linha 1\r\nolá"));
}

TEST(RtfLeitura, ALeituraEUmaSoMudancaDoConteudo) {
    DocumentoRico d;
    d.acrescenta(u("antigo"), 5);
    int mudancas = 0;
    d.aoMudar.liga([&] { ++mudancas; });
    leRtf(escreveRtf(bancoExemplo()), d);
    EXPECT_EQ(d.texto(), bancoExemplo().texto());
    EXPECT_GE(mudancas, 1);
}

TEST(RtfLeitura, BytesAleatoriosNaoDerrubam) {
    std::mt19937 gerador(12345);
    const char* pedacos[] = {"{",   "}",     "\\",   "\\'",       "\\u",        "-",    "9",     "\\uc",
                             "\\*", "\\bin", "\\cf", "\\b",       "\\colortbl", ";",    "\\red", "\\par",
                             "a",   " ",     "\r\n", "\\fonttbl", "e1",         "\\'e", "\x90"};
    for (int caso = 0; caso < 3000; ++caso) {
        QByteArray rtf = caso % 4 ? QByteArray("{\\rtf1") : QByteArray();
        const int n = int(gerador() % 60);
        for (int k = 0; k < n; ++k) {
            if (gerador() % 3 == 0)
                rtf.append(char(gerador() % 256));
            else
                rtf.append(pedacos[gerador() % std::size(pedacos)]);
        }
        DocumentoRico d;
        leRtf(rtf, d);
        EXPECT_LE(d.comprimento(), 2 * rtf.size() + 2);
        // what was read writes and reads back the same, line ends aside
        const auto normaliza = [](QString s) {
            return s.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
        };
        const DocumentoRico deNovo = le(escreveRtf(d));
        EXPECT_EQ(normaliza(deNovo.texto()), normaliza(d.texto()));
    }
}
