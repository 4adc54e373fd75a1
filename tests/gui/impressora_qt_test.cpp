// The desktop printer: with no printer on the system the job becomes a PDF
// in the documents folder, opened through the desktop; read back with
// pdftotext and pdffonts to prove the text, the font and the page breaks.
#include "apoio/Duplos.h"
#include "base/Semantica.h"
#include "platform/qt/ServicosQt.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

QString roda(const QString& programa, const QStringList& argumentos) {
    QProcess p;
    p.start(programa, argumentos);
    if (!p.waitForFinished(30000) || p.exitCode() != 0) {
        ADD_FAILURE() << programa.toStdString()
                      << " failed (poppler-utils is installed by the project's script)";
        return QString();
    }
    return QString::fromUtf8(p.readAllStandardOutput());
}

struct SemImpressora {
    QTemporaryDir pasta;
    AbridorRegistro abridor;
    ImpressoraQt impressora;
    SemImpressora() {
        impressora.impressoraPadrao = [] { return QString(); };
        impressora.pastaDocumentos = [this] { return pasta.filePath(QStringLiteral("Documentos")); };
        impressora.abridor = &abridor;
    }
};

int falhaDe(const std::function<void()>& f) {
    try {
        f();
    } catch (const FalhaExecucao& e) {
        return e.numero();
    }
    return 0;
}

} // namespace

TEST(ImpressoraQt, SemImpressoraOTrabalhoViraPdfNosDocumentosEAbre) {
    SemImpressora s;
    QDialog janela;
    janela.setWindowTitle(QStringLiteral("Listagem do banco de apostas"));
    janela.show();
    janela.activateWindow();
    QApplication::processEvents();

    QString texto;
    for (int i = 1; i <= 150; ++i)
        texto += QStringLiteral("%1)  01 02 03 04 05 06    linha %2\r\n").arg(i, 5, 10, QChar(u'0')).arg(i);
    s.impressora.imprime(QString());
    s.impressora.defineFonte(QStringLiteral("Liberation Mono"), 12);
    s.impressora.imprime(texto);
    s.impressora.fim();

    const QString pdf = s.impressora.ultimoPdf();
    ASSERT_FALSE(pdf.isEmpty());
    EXPECT_TRUE(QFileInfo::exists(pdf));
    EXPECT_EQ(QFileInfo(pdf).absolutePath(),
              QDir(s.pasta.filePath(QStringLiteral("Documentos"))).absolutePath());
    EXPECT_TRUE(QFileInfo(pdf).fileName().startsWith(QStringLiteral("Listagem do banco de apostas 20")))
        << pdf.toStdString();
    EXPECT_TRUE(pdf.endsWith(QStringLiteral(".pdf")));
    EXPECT_EQ(s.abridor.abertos, QStringList({pdf}));

    // The layout mode keeps lines and pages; runs of blanks are read back
    // as the page places the words, so they are compared as one blank.
    QString lido = roda(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    lido.replace(QRegularExpression(QStringLiteral(" +")), QStringLiteral(" "));
    const QStringList paginas = lido.split(u'\f', Qt::SkipEmptyParts);
    EXPECT_GE(paginas.size(), 3) << "150 lines at 12 points run over pages by themselves";
    EXPECT_EQ(paginas.size(), s.impressora.paginas());
    EXPECT_TRUE(lido.trimmed().startsWith(QStringLiteral("00001) 01 02 03 04 05 06 linha 1\n")))
        << lido.left(400).toStdString();
    EXPECT_TRUE(lido.contains(QStringLiteral("00150) 01 02 03 04 05 06 linha 150")));
    // Every line once, in order, across the page breaks.
    qsizetype desde = 0;
    for (int i = 1; i <= 150; ++i) {
        const qsizetype em = lido.indexOf(QStringLiteral("linha %1\n").arg(i), desde);
        ASSERT_GE(em, desde) << "line " << i;
        desde = em;
    }
    // A page holds as many lines as fit: the first page is full.
    const QString primeira = paginas[0];
    const int linhasPrimeira = int(primeira.count(QStringLiteral("linha ")));
    EXPECT_GT(linhasPrimeira, 30);
    EXPECT_TRUE(
        paginas[1].trimmed().startsWith(QStringLiteral("%1)").arg(linhasPrimeira + 1, 5, 10, QChar(u'0'))));

    // The words stand at the size asked for: 12 points high, give or take
    // the font's ascent and descent.
    const QString caixas =
        roda(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    const QRegularExpression palavra(QStringLiteral(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">00001\\)"));
    const QRegularExpressionMatch caixa = palavra.match(caixas);
    ASSERT_TRUE(caixa.hasMatch()) << caixas.left(600).toStdString();
    const double altura = caixa.captured(4).toDouble() - caixa.captured(2).toDouble();
    const double largura = caixa.captured(3).toDouble() - caixa.captured(1).toDouble();
    EXPECT_GT(altura, 10.0);
    EXPECT_LT(altura, 16.0);
    EXPECT_NEAR(largura, 6 * 12 * 0.6, 2.0) << "six characters of a monospaced font at 12 points";

    const QString fontes = roda(QStringLiteral("pdffonts"), {pdf});
    EXPECT_TRUE(fontes.contains(QStringLiteral("LiberationMono"))) << fontes.toStdString();
}

TEST(ImpressoraQt, TamanhoZeroMantemOTamanhoEmUso) {
    SemImpressora s;
    s.impressora.defineFonte(QStringLiteral("Liberation Sans"), 0);
    s.impressora.imprime(QStringLiteral("texto em tamanho zero"));
    s.impressora.fim();
    const QString lido = roda(QStringLiteral("pdftotext"), {s.impressora.ultimoPdf(), QStringLiteral("-")});
    EXPECT_TRUE(lido.contains(QStringLiteral("texto em tamanho zero")));
}

TEST(ImpressoraQt, DoisTrabalhosNoMesmoSegundoNaoSeSobrescrevem) {
    SemImpressora s;
    s.impressora.imprime(QStringLiteral("um"));
    s.impressora.fim();
    s.impressora.imprime(QStringLiteral("dois"));
    s.impressora.fim();
    ASSERT_EQ(s.abridor.abertos.size(), 2);
    EXPECT_NE(s.abridor.abertos[0], s.abridor.abertos[1]);
    EXPECT_TRUE(QFileInfo::exists(s.abridor.abertos[0]));
}

TEST(ImpressoraQt, ImpressoraQueRecusaOTrabalhoEFalha482) {
    SemImpressora s;
    s.impressora.pastaDocumentos = [] { return QStringLiteral("/proc/sorvelo-sem-permissao"); };
    EXPECT_EQ(falhaDe([&] { s.impressora.imprime(QStringLiteral("x")); }), erro::Impressora);
    EXPECT_TRUE(s.abridor.abertos.isEmpty());

    ImpressoraQt inexistente;
    inexistente.impressoraPadrao = [] { return QStringLiteral("Sorvelo-impressora-que-nao-existe"); };
    EXPECT_EQ(falhaDe([&] { inexistente.imprime(QStringLiteral("x")); }), erro::Impressora);
    EXPECT_EQ(textoErro(erro::Impressora), QStringLiteral("Erro de impressora"));
}
