#include "base/Semantica.h"

#include "apoio/Falha.h"
#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using namespace sorvelo;

namespace {
// Runs f and returns the number of the run-time failure it raised (0: none).
using teste::falhaDe;
} // namespace

// ---- Conversion at the nearest whole number ----

TEST(Conversao, ArredondaMetadesParaOPar) {
    EXPECT_EQ(paraInt16(0.5), 0);
    EXPECT_EQ(paraInt16(1.5), 2);
    EXPECT_EQ(paraInt16(2.5), 2);
    EXPECT_EQ(paraInt16(3.5), 4);
    EXPECT_EQ(paraInt16(-0.5), 0);
    EXPECT_EQ(paraInt16(-1.5), -2);
    EXPECT_EQ(paraInt16(-2.5), -2);
    EXPECT_EQ(paraInt32(15890699.999999994), 15890700);
}

TEST(Conversao, ArredondaAoMaisProximoForaDasMetades) {
    EXPECT_EQ(paraInt16(2.4999), 2);
    EXPECT_EQ(paraInt16(2.5001), 3);
    EXPECT_EQ(paraInt16(-7.6), -8);
    EXPECT_EQ(paraInt32(1e9 + 0.3), 1000000000);
}

TEST(Conversao, LimitesDe16BitsNaoEstouram) {
    EXPECT_EQ(paraInt16(32767.0), 32767);
    EXPECT_EQ(paraInt16(-32768.0), -32768);
    EXPECT_EQ(paraInt16(32767.4), 32767);
    EXPECT_EQ(paraInt16(-32768.5), -32768);
    EXPECT_EQ(paraInt16(int64_t(-32768)), -32768);
}

TEST(Conversao, ForaDe16BitsEhEstouro) {
    EXPECT_EQ(falhaDe([] { paraInt16(32767.5); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt16(32768.0); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt16(-32768.6); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt16(int64_t(32768)); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt16(int64_t(-32769)); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt16(std::numeric_limits<double>::quiet_NaN()); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt16(std::numeric_limits<double>::infinity()); }), erro::Estouro);
}

TEST(Conversao, LimitesDe32Bits) {
    EXPECT_EQ(paraInt32(2147483647.0), 2147483647);
    EXPECT_EQ(paraInt32(-2147483648.0), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(paraInt32(-2147483648.5), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(paraInt32(int64_t(2147483647)), 2147483647);
    EXPECT_EQ(falhaDe([] { paraInt32(2147483647.5); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt32(2147483648.0); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt32(-2147483648.6); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt32(int64_t(2147483648)); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { paraInt32(int64_t(-2147483649)); }), erro::Estouro);
}

TEST(Conversao, DeDoubleNosInteirosVerificados) {
    EXPECT_EQ(Int16::de(2.5).valor(), 2);
    EXPECT_EQ(Int16::de(-0.5).valor(), 0);
    EXPECT_EQ(Int32::de(3.5).valor(), 4);
    EXPECT_EQ(falhaDe([] { Int16::de(32767.5); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { Int32::de(1e10); }), erro::Estouro);
}

// ---- Checked arithmetic ----

TEST(Int16Verificado, SomaNoLimiteEEstouroAcima) {
    Int16 a = 32766;
    EXPECT_EQ((a + 1).valor(), 32767);
    EXPECT_EQ(falhaDe([&] { (void)(a + 2); }), erro::Estouro);
    EXPECT_EQ(falhaDe([&] { (void)(a + Int16(2)); }), erro::Estouro);
}

TEST(Int16Verificado, SubtracaoEstouraAbaixoDoMinimo) {
    Int16 a = -32767;
    EXPECT_EQ((a - 1).valor(), -32768);
    EXPECT_EQ(falhaDe([&] { (void)(a - 2); }), erro::Estouro);
    Int16 m = -32768;
    EXPECT_EQ(falhaDe([&] { --m; }), erro::Estouro);
    EXPECT_EQ(m.valor(), -32768);
}

TEST(Int16Verificado, MultiplicacaoEstoura) {
    Int16 a = 181;
    EXPECT_EQ((a * 181).valor(), 32761);
    EXPECT_EQ(falhaDe([&] { (void)(a * 182); }), erro::Estouro);
    EXPECT_EQ(falhaDe([&] { (void)(Int16(-32768) * Int16(-1)); }), erro::Estouro);
}

TEST(Int16Verificado, IncrementoEstouraEMantemOValor) {
    Int16 a = 32767;
    EXPECT_EQ(falhaDe([&] { ++a; }), erro::Estouro);
    EXPECT_EQ(a.valor(), 32767);
    EXPECT_EQ(falhaDe([&] { a += 1; }), erro::Estouro);
    Int16 b = 0;
    ++b;
    ++b;
    EXPECT_EQ(b, 2);
}

TEST(Int32Verificado, AritmeticaNosLimites) {
    Int32 a = 2147483646;
    ++a;
    EXPECT_EQ(a.valor(), 2147483647);
    EXPECT_EQ(falhaDe([&] { ++a; }), erro::Estouro);
    EXPECT_EQ(falhaDe([&] { (void)(a + 1); }), erro::Estouro);
    Int32 m = std::numeric_limits<int32_t>::min();
    EXPECT_EQ(falhaDe([&] { (void)(m - 1); }), erro::Estouro);
    EXPECT_EQ(falhaDe([&] { (void)(Int32(65536) * 32768); }), erro::Estouro);
    EXPECT_EQ((Int32(65536) * 32767).valor(), 2147418112);
}

TEST(Int32Verificado, ComparacoesComInteirosEVerificados) {
    Int32 a = 5;
    EXPECT_TRUE(a == 5);
    EXPECT_TRUE(a < 6);
    EXPECT_TRUE(a > Int32(4));
    EXPECT_TRUE(a == Int32(5));
}

// ---- The failure ----

TEST(FalhaExecucao, GuardaNumeroETextoEmPortugues) {
    try {
        foraDoIntervalo();
        FAIL() << "nenhuma falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), 9);
        EXPECT_EQ(f.texto(), QStringLiteral("Subscrito fora do intervalo"));
        EXPECT_STREQ(f.what(), "9 Subscrito fora do intervalo");
    }
    try {
        estouro();
        FAIL() << "nenhuma falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), 6);
        EXPECT_EQ(f.texto(), QStringLiteral("Estouro"));
    }
}

TEST(FalhaExecucao, TextoDeCadaNumero) {
    EXPECT_EQ(textoErro(5), QStringLiteral("Chamada de procedimento ou argumento inválido"));
    EXPECT_EQ(textoErro(6), QStringLiteral("Estouro"));
    EXPECT_EQ(textoErro(7), QStringLiteral("Memória insuficiente"));
    EXPECT_EQ(textoErro(9), QStringLiteral("Subscrito fora do intervalo"));
    EXPECT_EQ(textoErro(11), QStringLiteral("Divisão por zero"));
    EXPECT_EQ(textoErro(13), QStringLiteral("Tipos incompatíveis"));
    EXPECT_EQ(textoErro(52), QStringLiteral("Nome ou número de arquivo inválido"));
    EXPECT_EQ(textoErro(53), QStringLiteral("Arquivo não encontrado"));
    EXPECT_EQ(textoErro(57), QStringLiteral("Erro de E/S de dispositivo"));
    EXPECT_EQ(textoErro(61), QStringLiteral("Disco cheio"));
    EXPECT_EQ(textoErro(70), QStringLiteral("Permissão negada"));
    EXPECT_EQ(textoErro(75), QStringLiteral("Erro de acesso a caminho/arquivo"));
    EXPECT_EQ(textoErro(76), QStringLiteral("Caminho não encontrado"));
    EXPECT_EQ(textoErro(482), QStringLiteral("Erro de impressora"));
    EXPECT_TRUE(textoErro(340).contains(QStringLiteral("matriz de controle")));
}

TEST(FalhaExecucao, NumeroSemTextoProprioTemTextoGenerico) {
    EXPECT_FALSE(textoErro(12345).isEmpty());
    EXPECT_EQ(FalhaExecucao(12345).texto(), textoErro(12345));
}

TEST(FalhaExecucao, ElementoDeMatrizDeControleTemNumero340EOIndice) {
    const FalhaExecucao f = falhaElementoControle(105);
    EXPECT_EQ(f.numero(), 340);
    EXPECT_TRUE(f.texto().contains(QStringLiteral("105")));
    EXPECT_TRUE(f.texto().contains(QStringLiteral("matriz de controle")));
}

TEST(FalhaExecucao, MensagemDoTopoDoPrograma) {
    const FalhaExecucao f(9);
    const QString m = mensagemFalha(f);
    const QString inicio = QStringLiteral("Erro em tempo de execução '9':");
    ASSERT_TRUE(m.startsWith(inicio)) << m.toStdString();
    ASSERT_TRUE(m.endsWith(f.texto())) << m.toStdString();
    const QString meio = m.mid(inicio.size(), m.size() - inicio.size() - f.texto().size());
    EXPECT_TRUE(meio.trimmed().isEmpty()) << meio.toStdString();
    EXPECT_FALSE(meio.isEmpty());
    EXPECT_TRUE(mensagemFalha(FalhaExecucao(6)).startsWith(QStringLiteral("Erro em tempo de execução '6':")));
    EXPECT_TRUE(mensagemFalha(FalhaExecucao(6)).endsWith(QStringLiteral("Estouro")));
}

// ---- Numeric value of a text ----

TEST(ValorNumerico, VirgulaEncerraONumero) {
    EXPECT_EQ(valorNumerico(QStringLiteral("3,5")), 3.0);
}

TEST(ValorNumerico, TextoVazioOuSemNumeroValeZero) {
    EXPECT_EQ(valorNumerico(QString()), 0.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("")), 0.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("abc")), 0.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("   ")), 0.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("-")), 0.0);
    EXPECT_EQ(valorNumerico(QStringLiteral(".")), 0.0);
}

TEST(ValorNumerico, BrancosSaoSaltadosMesmoEntreAlgarismos) {
    EXPECT_EQ(valorNumerico(QStringLiteral(" 1 2")), 12.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("  7  ")), 7.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("- 4")), -4.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("1 . 5")), 1.5);
    EXPECT_EQ(valorNumerico(QStringLiteral("  1615 198th Street N.E.")), 1615198.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("\t2\n3")), 23.0);
}

TEST(ValorNumerico, PontoEhOSeparadorDecimal) {
    EXPECT_EQ(valorNumerico(QStringLiteral("3.5")), 3.5);
    EXPECT_EQ(valorNumerico(QStringLiteral(".5")), 0.5);
    EXPECT_EQ(valorNumerico(QStringLiteral("4.50")), 4.5);
    EXPECT_EQ(valorNumerico(QStringLiteral("1.2.3")), 1.2);
}

TEST(ValorNumerico, Sinais) {
    EXPECT_EQ(valorNumerico(QStringLiteral("-4")), -4.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("+4")), 4.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("--4")), 0.0);
}

TEST(ValorNumerico, Expoente) {
    EXPECT_EQ(valorNumerico(QStringLiteral("1e3")), 1000.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("1E+3")), 1000.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("25E-2")), 0.25);
    EXPECT_EQ(valorNumerico(QStringLiteral("2D2")), 200.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("1e")), 1.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("1e+x")), 1.0);
}

TEST(ValorNumerico, LeituraParaNoPrimeiroCaractereEstranho) {
    EXPECT_EQ(valorNumerico(QStringLiteral("12abc")), 12.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("4,5x")), 4.0);
    EXPECT_EQ(valorNumerico(QStringLiteral("07#")), 7.0);
}

TEST(ValorNumerico, ValorAlemDoDoubleEhEstouro) {
    EXPECT_EQ(falhaDe([] { valorNumerico(QStringLiteral("1e999")); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { valorNumerico(QStringLiteral("-1e999")); }), erro::Estouro);
    EXPECT_EQ(falhaDe([] { valorNumerico(QStringLiteral("1e-999")); }), 0);
}

// ---- Masks ----

TEST(Mascara, PreencheComZerosAEsquerda) {
    EXPECT_EQ(formata00(7), QStringLiteral("07"));
    EXPECT_EQ(formata00(0), QStringLiteral("00"));
    EXPECT_EQ(formata(1, 5), QStringLiteral("00001"));
    EXPECT_EQ(formata(42, 6), QStringLiteral("000042"));
}

TEST(Mascara, NuncaCorta) {
    EXPECT_EQ(formata00(100), QStringLiteral("100"));
    EXPECT_EQ(formata(123456, 5), QStringLiteral("123456"));
    EXPECT_EQ(formata(1234567, 6), QStringLiteral("1234567"));
}

TEST(Mascara, NegativosLevamOSinalAntesDosZeros) {
    EXPECT_EQ(formata00(-3), QStringLiteral("-03"));
    EXPECT_EQ(formata(-123, 2), QStringLiteral("-123"));
    EXPECT_EQ(formata(std::numeric_limits<int64_t>::min(), 2), QStringLiteral("-9223372036854775808"));
}

// ---- Number to text ----

TEST(TextoNumero, InteirosComOBrancoDoSinal) {
    EXPECT_EQ(textoNumero(int64_t(12)), QStringLiteral(" 12"));
    EXPECT_EQ(textoNumero(int64_t(0)), QStringLiteral(" 0"));
    EXPECT_EQ(textoNumero(int64_t(-3)), QStringLiteral("-3"));
}

TEST(TextoNumero, FracoesSemZeroAEsquerda) {
    EXPECT_EQ(textoNumero(4.5), QStringLiteral(" 4.5"));
    EXPECT_EQ(textoNumero(0.5), QStringLiteral(" .5"));
    EXPECT_EQ(textoNumero(-0.5), QStringLiteral("-.5"));
    EXPECT_EQ(textoNumero(0.0), QStringLiteral(" 0"));
    EXPECT_EQ(textoNumero(-0.0), QStringLiteral(" 0"));
    EXPECT_EQ(textoNumero(12.0), QStringLiteral(" 12"));
    EXPECT_EQ(textoNumero(-1234.5), QStringLiteral("-1234.5"));
}

TEST(TextoNumero, QuinzeAlgarismosSignificativos) {
    EXPECT_EQ(textoNumero(0.1 + 0.2), QStringLiteral(" .3"));
    EXPECT_EQ(textoNumero(3 * 2.1), QStringLiteral(" 6.3"));
    EXPECT_EQ(textoNumero(123456789012345.0), QStringLiteral(" 123456789012345"));
}

TEST(TextoNumero, FormaExponencialNosExtremos) {
    EXPECT_EQ(textoNumero(1e15), QStringLiteral(" 1E+15"));
    EXPECT_EQ(textoNumero(-2.5e20), QStringLiteral("-2.5E+20"));
    EXPECT_EQ(textoNumero(0.0001), QStringLiteral(" .0001"));
    EXPECT_EQ(textoNumero(0.00001), QStringLiteral(" 1E-05"));
}

TEST(TextoNumero, PrecisaoSimplesComSeteAlgarismos) {
    EXPECT_EQ(textoNumeroSimples(0.7055475f), QStringLiteral(" .7055475"));
    EXPECT_EQ(textoNumeroSimples(0.5f), QStringLiteral(" .5"));
    EXPECT_EQ(textoNumeroSimples(1.0f / 3.0f), QStringLiteral(" .3333333"));
}
