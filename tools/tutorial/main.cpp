// sorvelo-tutorial FONTE.txt PASTA_DAS_IMAGENS SAIDA.doc
//
// Writes the tutorial as an RTF document (which word processors open under
// the name Sorvelo.doc) from its source text, embedding every picture as PNG.
// The source, line by line:
//   # Título                    the document's title
//   ## Seção                    a section heading
//   - texto                     an item of a list
//   ![Legenda](arquivo.png)     a picture of the folder, centred, with its caption
//   any other line              text; a blank line ends a paragraph
// Inside text, **assim** is bold.
#include "Documento.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 4) {
        std::fputs("uso: sorvelo-tutorial FONTE.txt PASTA_DAS_IMAGENS SAIDA.doc\n", stderr);
        return 2;
    }
    QFile fonte(args.at(1));
    if (!fonte.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "sorvelo-tutorial: não abriu %s\n", qPrintable(args.at(1)));
        return 1;
    }
    const auto rtf = tutorial::geraRtf(QString::fromUtf8(fonte.readAll()), args.at(2));
    if (!rtf.erro.isEmpty()) {
        std::fprintf(stderr, "sorvelo-tutorial: %s\n", qPrintable(rtf.erro));
        return 1;
    }
    QFile saida(args.at(3));
    if (!saida.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        saida.write(rtf.documento) != rtf.documento.size()) {
        std::fprintf(stderr, "sorvelo-tutorial: não gravou %s\n", qPrintable(args.at(3)));
        return 1;
    }
    return 0;
}
