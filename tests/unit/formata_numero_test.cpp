#include "base/Semantica.h"
#include "core/Module1.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {
QString formataCopia(const QString& texto) {
    QString t = texto;
    return FormataNumero(t);
}
} // namespace

// ---- FormataNumero, the table of the Brazilian form ----

TEST(FormataNumero, InteiroComBrancoDoSinal) {
    EXPECT_EQ(formataCopia(QStringLiteral(" 54")), QStringLiteral("54,00"));
}

TEST(FormataNumero, UmaCasaDecimalGanhaOZero) {
    EXPECT_EQ(formataCopia(QStringLiteral(" 4.5")), QStringLiteral("4,50"));
}

TEST(FormataNumero, FracaoSemZeroAEsquerdaMostraZeroVirgula) {
    EXPECT_EQ(formataCopia(QStringLiteral(" .5")), QStringLiteral("0,50"));
}

TEST(FormataNumero, ZeroDaZeroVirgulaZeroZero) {
    EXPECT_EQ(formataCopia(QStringLiteral("0")), QStringLiteral("0,00"));
}

TEST(FormataNumero, PontosEntreMilharesEDecimaisAlemDeDuas) {
    EXPECT_EQ(formataCopia(QStringLiteral("1234567.891")), QStringLiteral("1.234.567,891"));
}

TEST(FormataNumero, NegativoGuardaOSinal) {
    EXPECT_EQ(formataCopia(QStringLiteral("-1234.5")), QStringLiteral("-1.234,50"));
}

TEST(FormataNumero, MaisEhDescartado) {
    EXPECT_EQ(formataCopia(QStringLiteral("+7")), QStringLiteral("7,00"));
}

TEST(FormataNumero, TrezeAlgarismosVoltamSemMudanca) {
    EXPECT_EQ(formataCopia(QStringLiteral("1000000000000")), QStringLiteral("1000000000000"));
}

TEST(FormataNumero, SeteDecimaisVoltamSemMudanca) {
    EXPECT_EQ(formataCopia(QStringLiteral("1.1234567")), QStringLiteral("1.1234567"));
}

TEST(FormataNumero, DozeAlgarismosESeisDecimaisCabem) {
    EXPECT_EQ(formataCopia(QStringLiteral("999999999999.123456")), QStringLiteral("999.999.999.999,123456"));
}

TEST(FormataNumero, ZerosFinaisDasDecimaisSaemAteDuas) {
    EXPECT_EQ(formataCopia(QStringLiteral("2.500")), QStringLiteral("2,50"));
    EXPECT_EQ(formataCopia(QStringLiteral("2.000")), QStringLiteral("2,00"));
    EXPECT_EQ(formataCopia(QStringLiteral("2.0010")), QStringLiteral("2,001"));
    EXPECT_EQ(formataCopia(QStringLiteral("1000")), QStringLiteral("1.000,00"));
}

TEST(FormataNumero, TextoEhMudadoPorReferencia) {
    QString t = QStringLiteral("-1234.5");
    FormataNumero(t);
    EXPECT_EQ(t, QStringLiteral("1234.5"));
    t = QStringLiteral(" 54 ");
    FormataNumero(t);
    EXPECT_EQ(t, QStringLiteral("54"));
    t = QStringLiteral("+7");
    FormataNumero(t);
    EXPECT_EQ(t, QStringLiteral("7"));
}

TEST(FormataNumero, NaFalhaDevolveOTextoSemSinalEAparado) {
    QString t = QStringLiteral("-1000000000000");
    EXPECT_EQ(FormataNumero(t), QStringLiteral("1000000000000"));
    EXPECT_EQ(t, QStringLiteral("1000000000000"));
    t = QStringLiteral("+1.1234567 ");
    EXPECT_EQ(FormataNumero(t), QStringLiteral("1.1234567"));
}

TEST(FormataNumero, FormaExponencialEntraNaMascaraComoAlgarismos) {
    // " 1E+15" pours its characters into the mask like digits.
    const QString r = formataCopia(QStringLiteral(" 1E+15"));
    EXPECT_EQ(r, QStringLiteral("1E.+15,00"));
}

TEST(FormataNumero, ConstanteNaoEhMudada) {
    const QString t = QStringLiteral(" 4.5");
    EXPECT_EQ(FormataNumero(t), QStringLiteral("4,50"));
    EXPECT_EQ(t, QStringLiteral(" 4.5"));
}

// ---- TextoInteiro ----

TEST(TextoInteiro, TruncaParaZeroSemBrancos) {
    EXPECT_EQ(TextoInteiro(3.9), QStringLiteral("3"));
    EXPECT_EQ(TextoInteiro(-3.9), QStringLiteral("-3"));
    EXPECT_EQ(TextoInteiro(0.5), QStringLiteral("0"));
    EXPECT_EQ(TextoInteiro(-0.5), QStringLiteral("0"));
    EXPECT_EQ(TextoInteiro(50063860.0), QStringLiteral("50063860"));
    EXPECT_EQ(TextoInteiro(2.5), QStringLiteral("2"));
}

TEST(TextoInteiro, ValoresGrandesSaemNaFormaDoTextoDeNumero) {
    EXPECT_EQ(TextoInteiro(999999999999999.0), QStringLiteral("999999999999999"));
    EXPECT_EQ(TextoInteiro(1e15), QStringLiteral("1E+15"));
}

// ---- ApagaArquivo ----

TEST(ApagaArquivo, ArquivoQueNaoExisteNaoFazNada) {
    QTemporaryDir pasta;
    ASSERT_TRUE(pasta.isValid());
    const QString nome = QDir(pasta.path()).filePath(QStringLiteral("nao_existe.txt"));
    EXPECT_NO_THROW(ApagaArquivo(nome));
    EXPECT_FALSE(QFile::exists(nome));
    EXPECT_NO_THROW(ApagaArquivo(QString()));
    EXPECT_NO_THROW(ApagaArquivo(QDir(pasta.path()).filePath(QStringLiteral("sem/pasta/x.txt"))));
}

TEST(ApagaArquivo, ApagaUmArquivoQueExiste) {
    QTemporaryDir pasta;
    ASSERT_TRUE(pasta.isValid());
    const QString nome = QDir(pasta.path()).filePath(QStringLiteral("00001.txt"));
    QFile f(nome);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("x");
    f.close();
    ASSERT_TRUE(QFile::exists(nome));
    ApagaArquivo(nome);
    EXPECT_FALSE(QFile::exists(nome));
}

// ---- apara ----

TEST(Apara, TiraSoOsBrancosDasPontas) {
    EXPECT_EQ(apara(QStringLiteral("  a b  ")), QStringLiteral("a b"));
    EXPECT_EQ(apara(QStringLiteral("\tx ")), QStringLiteral("\tx"));
    EXPECT_EQ(apara(QStringLiteral("   ")), QString());
    EXPECT_EQ(apara(QString()), QString());
}
