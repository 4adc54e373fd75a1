#include "base/MatrizTexto.h"

#include <QStringList>

#include "apoio/Falha.h"
#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

using namespace sorvelo;

namespace {
using teste::falhaDe;

MatrizTexto banco(int64_t ultimaLinha) {
    MatrizTexto m;
    m.redimensiona(81, ultimaLinha);
    return m;
}

std::vector<QString> linha(const MatrizTexto& m, int64_t l) {
    int quant = 0;
    const uint8_t* c = m.celulas(l, quant);
    std::vector<QString> r;
    for (int i = 0; i < quant; ++i)
        r.push_back(c[i] == MatrizTexto::Outro ? m.valor(i, l) : MatrizTexto::textoDe(c[i]));
    return r;
}
} // namespace

TEST(MatrizTexto, SemLimitesQualquerAcessoEhFalha9) {
    MatrizTexto m;
    EXPECT_FALSE(m.temLimites());
    EXPECT_EQ(falhaDe([&] { (void)m.valor(0, 0); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { m.define(0, 0, QStringLiteral("01")); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)m.codigo(0, 0); }), erro::SubscritoForaIntervalo);
    int quant = 0;
    EXPECT_EQ(falhaDe([&] { (void)m.celulas(0, quant); }), erro::SubscritoForaIntervalo);
}

TEST(MatrizTexto, RedimensionaDaOsLimitesPedidos) {
    MatrizTexto m = banco(1);
    EXPECT_TRUE(m.temLimites());
    EXPECT_EQ(m.ultimaColuna(), 81);
    EXPECT_EQ(m.ultimaLinha(), 1);
    EXPECT_EQ(m.quantLinhas(), 2);
    EXPECT_EQ(m.valor(81, 1), QString());
}

TEST(MatrizTexto, IndiceForaDosLimitesEhFalha9) {
    MatrizTexto m = banco(3);
    EXPECT_EQ(falhaDe([&] { (void)m.valor(-1, 0); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)m.valor(0, -1); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)m.valor(82, 0); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)m.valor(0, 4); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { m.define(82, 0, QStringLiteral("#")); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { m.define(0, 4, QStringLiteral("01")); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { m.defineCodigo(-1, 0, MatrizTexto::Fim); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)m.codigo(0, 1000000); }), erro::SubscritoForaIntervalo);
    int quant = 0;
    EXPECT_EQ(falhaDe([&] { (void)m.celulas(4, quant); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)m.celulas(-1, quant); }), erro::SubscritoForaIntervalo);
    // The last cell inside the bounds is fine.
    EXPECT_EQ(falhaDe([&] { m.define(81, 3, QStringLiteral("#")); }), 0);
    EXPECT_EQ(m.valor(81, 3), QStringLiteral("#"));
}

TEST(MatrizTexto, RedimensionaComLimiteNegativoEhFalha9) {
    MatrizTexto m;
    EXPECT_EQ(falhaDe([&] { m.redimensiona(81, -1); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { m.redimensiona(-1, 0); }), erro::SubscritoForaIntervalo);
}

TEST(MatrizTexto, RedimensionaLimpaOConteudo) {
    MatrizTexto m = banco(1);
    m.define(0, 0, QStringLiteral("01"));
    m.define(1, 1, QStringLiteral("abc"));
    m.redimensiona(81, 1);
    EXPECT_EQ(m.valor(0, 0), QString());
    EXPECT_EQ(m.valor(1, 1), QString());
    m.redimensiona(81, 5);
    EXPECT_EQ(m.valor(1, 1), QString());
    EXPECT_EQ(m.ultimaLinha(), 5);
}

TEST(MatrizTexto, PreservandoCresceLinhasEMantemConteudo) {
    MatrizTexto m = banco(1);
    m.define(0, 0, QStringLiteral("07"));
    m.define(1, 0, QStringLiteral("#"));
    m.define(0, 1, QStringLiteral("xyz"));
    m.redimensionaPreservando(10);
    EXPECT_EQ(m.ultimaLinha(), 10);
    EXPECT_EQ(m.ultimaColuna(), 81);
    EXPECT_EQ(m.valor(0, 0), QStringLiteral("07"));
    EXPECT_EQ(m.valor(1, 0), QStringLiteral("#"));
    EXPECT_EQ(m.valor(0, 1), QStringLiteral("xyz"));
    EXPECT_EQ(m.valor(0, 10), QString());
}

TEST(MatrizTexto, PreservandoEncolheLinhasEPerdeAsCortadas) {
    MatrizTexto m = banco(5);
    m.define(0, 0, QStringLiteral("01"));
    m.define(0, 4, QStringLiteral("outra"));
    m.define(1, 5, QStringLiteral("02"));
    m.redimensionaPreservando(2);
    EXPECT_EQ(m.ultimaLinha(), 2);
    EXPECT_EQ(m.valor(0, 0), QStringLiteral("01"));
    EXPECT_EQ(falhaDe([&] { (void)m.valor(0, 4); }), erro::SubscritoForaIntervalo);
    m.redimensionaPreservando(5);
    EXPECT_EQ(m.valor(0, 4), QString());
    EXPECT_EQ(m.valor(1, 5), QString());
    EXPECT_EQ(m.valor(0, 0), QStringLiteral("01"));
}

TEST(MatrizTexto, PreservandoSemLimitesCriaAsColunasDoBanco) {
    MatrizTexto m;
    m.redimensionaPreservando(1);
    EXPECT_TRUE(m.temLimites());
    EXPECT_EQ(m.ultimaColuna(), 81);
    EXPECT_EQ(m.ultimaLinha(), 1);
}

TEST(MatrizTexto, ApagaTiraOsLimites) {
    MatrizTexto m = banco(2);
    m.define(0, 0, QStringLiteral("01"));
    m.apaga();
    EXPECT_FALSE(m.temLimites());
    EXPECT_EQ(falhaDe([&] { (void)m.valor(0, 0); }), erro::SubscritoForaIntervalo);
}

TEST(MatrizTexto, CelulasDepoisDoFimSaoGuardadas) {
    MatrizTexto m = banco(0);
    m.define(0, 0, QStringLiteral("01"));
    m.define(1, 0, QStringLiteral("#"));
    m.define(2, 0, QStringLiteral("33"));
    m.define(5, 0, QStringLiteral("resto"));
    EXPECT_EQ(m.valor(2, 0), QStringLiteral("33"));
    EXPECT_EQ(m.valor(5, 0), QStringLiteral("resto"));
    EXPECT_EQ(m.valor(3, 0), QString());
    // Rewriting the end mark earlier keeps what lay behind it.
    m.define(0, 0, QStringLiteral("#"));
    EXPECT_EQ(m.valor(1, 0), QStringLiteral("#"));
    EXPECT_EQ(m.valor(2, 0), QStringLiteral("33"));
}

TEST(MatrizTexto, TextosEstranhosVoltamExatamente) {
    MatrizTexto m = banco(1);
    const QStringList textos = {QStringLiteral("7"),  QStringLiteral("abc"), QStringLiteral("100"),
                                QStringLiteral(" 1"), QStringLiteral("1 "),  QStringLiteral("##"),
                                QStringLiteral("é5"), QStringLiteral("-1"),  QStringLiteral("0")};
    for (int i = 0; i < textos.size(); ++i)
        m.define(i, 1, textos[i]);
    for (int i = 0; i < textos.size(); ++i) {
        EXPECT_EQ(m.valor(i, 1), textos[i]) << i;
        EXPECT_EQ(m.codigo(i, 1), MatrizTexto::Outro) << i;
    }
}

TEST(MatrizTexto, CodigosCompactos) {
    EXPECT_EQ(MatrizTexto::codigoDe(QString()), MatrizTexto::Vazio);
    EXPECT_EQ(MatrizTexto::codigoDe(QStringLiteral("#")), MatrizTexto::Fim);
    EXPECT_EQ(MatrizTexto::codigoDe(QStringLiteral("00")), MatrizTexto::PrimeiroNumero);
    EXPECT_EQ(MatrizTexto::codigoDe(QStringLiteral("99")), MatrizTexto::codigoNumero(99));
    EXPECT_EQ(MatrizTexto::codigoDe(QStringLiteral("7")), MatrizTexto::Outro);
    EXPECT_EQ(MatrizTexto::textoDe(MatrizTexto::codigoNumero(7)), QStringLiteral("07"));
    EXPECT_EQ(MatrizTexto::textoDe(MatrizTexto::Fim), QStringLiteral("#"));
    MatrizTexto m = banco(0);
    m.defineCodigo(0, 0, MatrizTexto::codigoNumero(42));
    EXPECT_EQ(m.valor(0, 0), QStringLiteral("42"));
    m.define(1, 0, QStringLiteral("05"));
    EXPECT_EQ(m.codigo(1, 0), MatrizTexto::codigoNumero(5));
}

TEST(MatrizTexto, CelulaEstranhaReescritaComNumero) {
    MatrizTexto m = banco(0);
    m.define(3, 0, QStringLiteral("abc"));
    m.define(3, 0, QStringLiteral("12"));
    EXPECT_EQ(m.valor(3, 0), QStringLiteral("12"));
    EXPECT_EQ(m.codigo(3, 0), MatrizTexto::codigoNumero(12));
    // and back to an odd text, then emptied
    m.define(3, 0, QStringLiteral("xx"));
    EXPECT_EQ(m.valor(3, 0), QStringLiteral("xx"));
    m.define(3, 0, QString());
    EXPECT_EQ(m.valor(3, 0), QString());
    // an odd cell rewritten with an odd code and read again keeps no stale text
    m.define(3, 0, QStringLiteral("yy"));
    m.defineCodigo(3, 0, MatrizTexto::Fim);
    EXPECT_EQ(m.valor(3, 0), QStringLiteral("#"));
}

TEST(MatrizTexto, CelulasParamDepoisDoPrimeiroFim) {
    MatrizTexto m = banco(0);
    m.define(0, 0, QStringLiteral("01"));
    m.define(1, 0, QStringLiteral("abc"));
    m.define(2, 0, QStringLiteral("#"));
    m.define(3, 0, QStringLiteral("09"));
    m.define(4, 0, QStringLiteral("#"));
    const std::vector<QString> esperado = {QStringLiteral("01"), QStringLiteral("abc"), QStringLiteral("#")};
    EXPECT_EQ(linha(m, 0), esperado);
}

TEST(MatrizTexto, CelulasDeLinhaSemFimDaoALinhaGuardada) {
    MatrizTexto m = banco(1);
    m.define(0, 1, QStringLiteral("01"));
    m.define(1, 1, QStringLiteral("02"));
    const std::vector<QString> esperado = {QStringLiteral("01"), QStringLiteral("02")};
    EXPECT_EQ(linha(m, 1), esperado);
    EXPECT_TRUE(linha(m, 0).empty());
}

TEST(MatrizTexto, LinhaComOitentaEDuasColunas) {
    MatrizTexto m = banco(0);
    for (int c = 0; c <= 81; ++c)
        m.define(c, 0, formata00(c));
    for (int c = 0; c <= 81; ++c)
        EXPECT_EQ(m.valor(c, 0), formata00(c));
    EXPECT_EQ(linha(m, 0).size(), 82u);
}

TEST(MatrizTexto, LinhasIndependentesAoCrescerEmQualquerOrdem) {
    MatrizTexto m = banco(3);
    // Rows grow interleaved, so their storage moves; contents must not mix.
    for (int c = 0; c < 40; ++c)
        for (int l = 0; l <= 3; ++l)
            m.define(c, l, formata00((c + l * 7) % 100));
    for (int c = 0; c < 40; ++c)
        for (int l = 0; l <= 3; ++l)
            EXPECT_EQ(m.valor(c, l), formata00((c + l * 7) % 100));
}

TEST(MatrizTexto, UmMilhaoDeApostasDeSeisNumerosCabemEmCemMegabytes) {
    MatrizTexto m;
    const int64_t linhas = 1000000;
    for (int64_t l = 0; l < linhas; ++l) {
        m.redimensionaPreservando(l + 1);
        for (int c = 0; c < 6; ++c)
            m.defineCodigo(c, l, MatrizTexto::codigoNumero(int((l + c) % 60 + 1)));
        m.defineCodigo(6, l, MatrizTexto::Fim);
    }
    EXPECT_LT(m.bytesUsados(), size_t(100) * 1000 * 1000);
    EXPECT_EQ(m.valor(0, 999999), formata00((999999 % 60) + 1));
    EXPECT_EQ(m.valor(6, 999999), QStringLiteral("#"));
    EXPECT_EQ(m.ultimaLinha(), 1000000);
}

// ---- Vetor ----

TEST(Vetor, LimitesEFalha9) {
    Vetor<int> v(0, 100);
    EXPECT_EQ(v.inferior(), 0);
    EXPECT_EQ(v.superior(), 100);
    v(0) = 1;
    v(100) = 2;
    EXPECT_EQ(v(0), 1);
    EXPECT_EQ(v(100), 2);
    EXPECT_EQ(v(50), 0);
    EXPECT_EQ(falhaDe([&] { v(101) = 3; }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)v(-1); }), erro::SubscritoForaIntervalo);
    const Vetor<int>& cv = v;
    EXPECT_EQ(falhaDe([&] { (void)cv(101); }), erro::SubscritoForaIntervalo);
}

TEST(Vetor, LimiteInferiorDiferenteDeZero) {
    Vetor<QString> v(1, 3);
    v(1) = QStringLiteral("a");
    v(3) = QStringLiteral("c");
    EXPECT_EQ(falhaDe([&] { (void)v(0); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)v(4); }), erro::SubscritoForaIntervalo);
    v.preenche(QStringLiteral("z"));
    EXPECT_EQ(v(1), QStringLiteral("z"));
    EXPECT_EQ(v(3), QStringLiteral("z"));
}
