// The tutorial Sorvelo.doc as the build writes it: readable by the program's
// own RTF reader, and with every picture of its source embedded whole.
#include "core/Rtf.h"
#include "platform/DocumentoRico.h"

#include "apoio/ImprimeQt.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

QByteArray le(const QString& caminho) {
    QFile f(caminho);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

const QString Pasta = QStringLiteral(SORVELO_TUTORIAL_FONTE);

QByteArray documento() {
    return le(QStringLiteral(SORVELO_TUTORIAL));
}

// The pictures that the source names, in order.
QStringList imagensDaFonte() {
    static const QRegularExpression imagem(QStringLiteral(R"(^!\[.*\]\((.+)\)\s*$)"),
                                           QRegularExpression::MultilineOption);
    QStringList r;
    auto it = imagem.globalMatch(QString::fromUtf8(le(QDir(Pasta).filePath(QStringLiteral("Sorvelo.txt")))));
    while (it.hasNext())
        r << it.next().captured(1);
    return r;
}

// The bytes of each {\pict ...} group, decoded from its hexadecimal text.
std::vector<QByteArray> imagensDoDocumento(const QByteArray& rtf) {
    std::vector<QByteArray> r;
    qsizetype pos = 0;
    while ((pos = rtf.indexOf("{\\pict", pos)) >= 0) {
        const qsizetype fim = rtf.indexOf('}', pos);
        if (fim < 0) break;
        QByteArray grupo = rtf.mid(pos, fim - pos);
        // After the control words, the hexadecimal data up to the brace.
        const qsizetype inicio = grupo.indexOf('\n');
        QByteArray hex = grupo.mid(inicio + 1);
        hex.replace('\n', QByteArray());
        r.push_back(QByteArray::fromHex(hex));
        pos = fim;
    }
    return r;
}

} // namespace

TEST(Tutorial, EUmDocumentoRtfQueOProgramaLe) {
    const QByteArray rtf = documento();
    ASSERT_FALSE(rtf.isEmpty());
    EXPECT_TRUE(rtf.startsWith("{\\rtf1"));
    EXPECT_TRUE(rtf.trimmed().endsWith('}'));
    // Groups balance.
    int nivel = 0;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
            continue;
        }
        if (rtf[i] == '{') ++nivel;
        if (rtf[i] == '}') --nivel;
        ASSERT_GE(nivel, 0) << i;
    }
    EXPECT_EQ(nivel, 0);

    DocumentoRico doc;
    leRtf(rtf, doc);
    const QString texto = doc.texto();
    EXPECT_TRUE(texto.startsWith(QStringLiteral("Tutorial do Sorvelo\r\n")));
    for (const char* trecho : {"Escolhendo o jogo", "Marcando e fixando números", "Combinação completa",
                               "Fechamento", "Combinação reduzida", "Enxugando o banco", "Conferindo o banco",
                               "Salvando, abrindo e imprimindo", "Lotofácil", "Fixar números", "210 apostas",
                               "Auto-completar", "Conferir banco", "Jogo a jogo", "Tópicos da ajuda"})
        EXPECT_TRUE(texto.contains(QString::fromUtf8(trecho))) << trecho;
    // The accents come back as written, and no markup is left in the text.
    EXPECT_FALSE(texto.contains(QStringLiteral("**")));
    EXPECT_FALSE(texto.contains(QStringLiteral("![")));
    EXPECT_FALSE(texto.contains(u'\\'));
}

TEST(Tutorial, CadaImagemDaFonteEstaEmbutidaInteira) {
    const QStringList nomes = imagensDaFonte();
    ASSERT_GE(nomes.size(), 8);
    const std::vector<QByteArray> embutidas = imagensDoDocumento(documento());
    ASSERT_EQ(embutidas.size(), size_t(nomes.size()));
    for (qsizetype i = 0; i < nomes.size(); ++i) {
        const QByteArray png = le(QDir(Pasta).filePath(nomes.at(i)));
        ASSERT_FALSE(png.isEmpty()) << nomes.at(i).toStdString();
        EXPECT_EQ(embutidas[size_t(i)], png) << nomes.at(i).toStdString();
        EXPECT_TRUE(png.startsWith("\x89PNG")) << nomes.at(i).toStdString();
    }
}

TEST(Tutorial, ImagensDeclaramPngESuasMedidas) {
    const QByteArray rtf = documento();
    static const QRegularExpression pict(
        QStringLiteral(R"(\{\\pict\\pngblip\\picw(\d+)\\pich(\d+)\\picwgoal(\d+)\\pichgoal(\d+))"));
    auto it = pict.globalMatch(QString::fromLatin1(rtf));
    int n = 0;
    while (it.hasNext()) {
        const auto m = it.next();
        EXPECT_GT(m.captured(1).toInt(), 0);
        EXPECT_GT(m.captured(2).toInt(), 0);
        // Never wider than the page's text.
        EXPECT_LE(m.captured(3).toInt(), 9638);
        ++n;
    }
    EXPECT_EQ(n, imagensDaFonte().size());
}
