#include "apoio/Duplos.h"
#include "platform/Servicos.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

using namespace sorvelo;

namespace {
// The recurrence written out independently, in 64-bit arithmetic.
std::vector<uint64_t> estadosEsperados(uint64_t x, int quant) {
    std::vector<uint64_t> r;
    for (int i = 0; i < quant; ++i) {
        x = (x * 1140671485ull + 12820163ull) % (1ull << 24);
        r.push_back(x);
    }
    return r;
}
} // namespace

TEST(GeradorClassico, ComecaNoEstadoFixo) {
    GeradorClassico g;
    EXPECT_EQ(g.estado(), 327680u);
}

TEST(GeradorClassico, PrimeirosValoresSeguemARecorrencia) {
    GeradorClassico g;
    const auto esperados = estadosEsperados(327680, 1000);
    for (size_t i = 0; i < esperados.size(); ++i) {
        const float r = g.rnd();
        EXPECT_EQ(g.estado(), esperados[i]) << i;
        EXPECT_EQ(double(r), double(esperados[i]) / 16777216.0) << i;
    }
}

TEST(GeradorClassico, PrimeiroValorConhecidoDaPlataforma) {
    GeradorClassico g;
    EXPECT_NEAR(g.rnd(), 0.7055475, 1e-7);
    EXPECT_NEAR(g.rnd(), 0.533424, 1e-6);
    EXPECT_NEAR(g.rnd(), 0.5795186, 1e-7);
}

TEST(GeradorClassico, SempreEntreZeroEUmSemChegarAUm) {
    GeradorClassico g;
    // One whole period of the 24-bit state.
    float menor = 1, maior = 0;
    for (int i = 0; i < (1 << 24); ++i) {
        const float r = g.rnd();
        if (r < menor) menor = r;
        if (r > maior) maior = r;
    }
    EXPECT_GE(menor, 0.0f);
    EXPECT_LT(maior, 1.0f);
    EXPECT_EQ(menor, 0.0f);
    EXPECT_EQ(double(maior), 16777215.0 / 16777216.0);
    EXPECT_EQ(g.estado(), 327680u); // full period: back at the start
}

TEST(GeradorClassico, RandomizeMudaSoOsDezesseisBitsDoMeio) {
    const double sementes[] = {0.0, 1.0, 50709.0, 12345.678, -3.5, 86399.99};
    for (double s : sementes) {
        GeradorClassico g;
        g.rnd();
        g.rnd();
        const uint32_t antes = g.estado();
        g.randomize(s);
        EXPECT_EQ(g.estado() & 0xFF0000FFu, antes & 0xFF0000FFu) << s;
        EXPECT_LT(g.estado(), 1u << 24) << s;
    }
}

TEST(GeradorClassico, RandomizeMisturaOsBitsAltosDaSemente) {
    // The upper 32 bits of the double: its two halves xor-ed, put in the middle.
    const double s = 50709.0;
    uint64_t bits = 0;
    static_assert(sizeof bits == sizeof s);
    std::memcpy(&bits, &s, sizeof bits);
    const uint32_t alto = uint32_t(bits >> 32);
    const uint32_t meio = ((alto & 0xFFFFu) ^ (alto >> 16)) & 0xFFFFu;
    GeradorClassico g;
    g.randomize(s);
    EXPECT_EQ(g.estado(), (327680u & 0xFF0000FFu) | (meio << 8));
}

TEST(GeradorClassico, MesmaSementeMesmaSequencia) {
    GeradorClassico a, b;
    a.randomize(1234.5);
    b.randomize(1234.5);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(a.rnd(), b.rnd()) << i;
}

TEST(GeradorClassico, SementesDiferentesMudamASequencia) {
    GeradorClassico a, b;
    a.randomize(1.0);
    b.randomize(2.0);
    EXPECT_NE(a.estado(), b.estado());
}

TEST(GeradorClassico, RandomizeRelogioComRelogioFixoEhReprodutivel) {
    RelogioFixo relogio;
    GeradorClassico a, b;
    randomizeRelogio(a, relogio);
    randomizeRelogio(b, relogio);
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(a.rnd(), b.rnd()) << i;
}

TEST(GeradorClassico, RandomizeRelogioUsaOsSegundosDesdeAMeiaNoite) {
    RelogioFixo relogio;
    FonteRoteirizada fonte;
    randomizeRelogio(fonte, relogio);
    ASSERT_EQ(fonte.sementes.size(), 1u);
    EXPECT_EQ(fonte.sementes[0], 14 * 3600 + 5 * 60 + 9);
    relogio.momento = QDateTime(QDate(2026, 11, 22), QTime(0, 0, 1, 250));
    randomizeRelogio(fonte, relogio);
    EXPECT_EQ(fonte.sementes[1], 1.25);
    GeradorClassico g, h;
    randomizeRelogio(g, relogio);
    h.randomize(1.25);
    EXPECT_EQ(g.estado(), h.estado());
}

// ---- Date and time ----

TEST(DataHora, FormatosCurtosBrasileiros) {
    const QDateTime m(QDate(2026, 11, 22), QTime(14, 5, 9));
    EXPECT_EQ(textoData(m), QStringLiteral("22/11/2026"));
    EXPECT_EQ(textoHora(m), QStringLiteral("14:05:09"));
}

TEST(DataHora, ZerosAEsquerda) {
    const QDateTime m(QDate(2026, 1, 5), QTime(4, 3, 2));
    EXPECT_EQ(textoData(m), QStringLiteral("05/01/2026"));
    EXPECT_EQ(textoHora(m), QStringLiteral("04:03:02"));
    const QDateTime meiaNoite(QDate(2030, 12, 31), QTime(0, 0, 0));
    EXPECT_EQ(textoHora(meiaNoite), QStringLiteral("00:00:00"));
    EXPECT_EQ(textoData(meiaNoite), QStringLiteral("31/12/2030"));
}
