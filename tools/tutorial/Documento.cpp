#include "Documento.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace tutorial {

namespace {

// A4 with margins of 2 cm: the text is 9638 twips wide.
constexpr int LarguraTexto = 9638;
constexpr int TwipsPorPixel = 15;

QByteArray escapa(const QString& texto) {
    QByteArray r;
    for (QChar c : texto) {
        const char16_t u = c.unicode();
        if (u == u'\\' || u == u'{' || u == u'}') {
            r += '\\';
            r += char(u);
        } else if (u < 0x80) {
            r += char(u);
        } else if (u >= 0xA0 && u <= 0xFF) {
            r += "\\'" + QByteArray::number(int(u), 16).rightJustified(2, '0');
        } else {
            r += "\\u" + QByteArray::number(int(int16_t(u))) + '?';
        }
    }
    return r;
}

// Text with **bold** runs.
QByteArray texto(const QString& linha) {
    QByteArray r;
    const QStringList partes = linha.split(QStringLiteral("**"));
    for (qsizetype i = 0; i < partes.size(); ++i) {
        if (i > 0) r += (i % 2) ? "\\b " : "\\b0 ";
        r += escapa(partes.at(i));
    }
    if (partes.size() % 2 == 0) r += "\\b0 ";
    return r;
}

QByteArray hexEmLinhas(const QByteArray& dados) {
    const QByteArray hex = dados.toHex();
    QByteArray r;
    for (qsizetype i = 0; i < hex.size(); i += 128)
        r += hex.mid(i, 128) + '\n';
    return r;
}

QByteArray cabecalho(const QString& titulo) {
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n"
           "{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f1\\fswiss\\fcharset0 Verdana;}}\n"
           "{\\colortbl;\\red0\\green0\\blue0;\\red27\\green122\\blue58;\\red90\\green90\\blue90;}\n"
           "{\\info{\\title " +
           escapa(titulo) +
           "}{\\author Sorvelo}}\n"
           "\\paperw11906\\paperh16838\\margl1134\\margr1134\\margt1134\\margb1134\n"
           "\\f0\\fs22\n";
}

} // namespace

bool medidasPng(const QByteArray& png, int& largura, int& altura) {
    static const QByteArray assinatura("\x89PNG\r\n\x1a\n", 8);
    if (png.size() < 24 || !png.startsWith(assinatura) || png.mid(12, 4) != "IHDR") return false;
    auto be32 = [&](int i) {
        return (int(uchar(png[i])) << 24) | (int(uchar(png[i + 1])) << 16) | (int(uchar(png[i + 2])) << 8) |
               int(uchar(png[i + 3]));
    };
    largura = be32(16);
    altura = be32(20);
    return largura > 0 && altura > 0;
}

Resultado geraRtf(const QString& fonte, const QString& pastaImagens) {
    Resultado r;
    static const QRegularExpression imagem(QStringLiteral(R"(^!\[(.*)\]\((.+)\)$)"));
    QByteArray corpo;
    QString titulo;
    QString paragrafo;
    auto fechaParagrafo = [&] {
        if (paragrafo.isEmpty()) return;
        corpo += "\\pard\\sa160\\sl300\\slmult1\\fs22 " + texto(paragrafo) + "\\par\n";
        paragrafo.clear();
    };
    const QStringList linhas = fonte.split(u'\n');
    for (QString linha : linhas) {
        linha = linha.trimmed();
        if (linha.isEmpty()) {
            fechaParagrafo();
        } else if (linha.startsWith(QStringLiteral("## "))) {
            fechaParagrafo();
            corpo += "\\pard\\keepn\\sb360\\sa120\\cf2\\b\\fs30 " + escapa(linha.mid(3)) + "\\b0\\cf0\\par\n";
        } else if (linha.startsWith(QStringLiteral("# "))) {
            fechaParagrafo();
            titulo = linha.mid(2);
            corpo += "\\pard\\qc\\sa360\\cf2\\b\\fs44 " + escapa(titulo) + "\\b0\\cf0\\par\n";
        } else if (linha.startsWith(QStringLiteral("- "))) {
            fechaParagrafo();
            corpo += "\\pard\\fi-284\\li568\\sa80\\fs22 \\'95\\tab " + texto(linha.mid(2)) + "\\par\n";
        } else if (const auto m = imagem.match(linha); m.hasMatch()) {
            fechaParagrafo();
            const QString arquivo = m.captured(2);
            QFile f(QDir(pastaImagens).filePath(arquivo));
            int largura = 0, altura = 0;
            const QByteArray png = f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
            if (!medidasPng(png, largura, altura)) {
                r.erro = QStringLiteral("a imagem %1 falta ou não é PNG").arg(arquivo);
                return r;
            }
            int larguraTw = largura * TwipsPorPixel, alturaTw = altura * TwipsPorPixel;
            if (larguraTw > LarguraTexto) {
                alturaTw = int(int64_t(alturaTw) * LarguraTexto / larguraTw);
                larguraTw = LarguraTexto;
            }
            corpo += "\\pard\\qc\\keepn\\sb120\\sa60{\\pict\\pngblip\\picw" + QByteArray::number(largura) +
                     "\\pich" + QByteArray::number(altura) + "\\picwgoal" + QByteArray::number(larguraTw) +
                     "\\pichgoal" + QByteArray::number(alturaTw) + "\n" + hexEmLinhas(png) + "}\\par\n";
            corpo += "\\pard\\qc\\sa240\\cf3\\i\\fs18 " + escapa(m.captured(1)) + "\\i0\\cf0\\fs22\\par\n";
            r.imagens << arquivo;
        } else {
            if (!paragrafo.isEmpty()) paragrafo += u' ';
            paragrafo += linha;
        }
    }
    fechaParagrafo();
    r.documento = cabecalho(titulo) + corpo + "}\n";
    return r;
}

} // namespace tutorial
