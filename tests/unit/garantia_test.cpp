#include "relatorios/Garantia.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

using namespace sorvelo;

namespace {

std::vector<int> de(int a, int b) {
    std::vector<int> r;
    for (int i = a; i <= b; ++i)
        r.push_back(i);
    return r;
}

// The 27 bets that the reduced combination's one pass gives for the numbers
// 01..10, Quadra, bets of 6 numbers.
const std::vector<std::vector<int>> ReduzidaDezQuadra = {
    {1, 2, 3, 4, 5, 6},  {1, 2, 3, 7, 8, 9},  {1, 2, 3, 4, 8, 10}, {1, 2, 4, 5, 8, 9},  {1, 2, 5, 6, 8, 10},
    {1, 2, 6, 7, 9, 10}, {1, 3, 4, 5, 7, 9},  {1, 3, 5, 6, 8, 10}, {1, 3, 6, 7, 9, 10}, {1, 4, 5, 6, 8, 10},
    {1, 4, 6, 7, 9, 10}, {1, 5, 6, 7, 8, 9},  {1, 5, 7, 8, 9, 10}, {2, 3, 4, 5, 7, 9},  {2, 3, 5, 6, 8, 10},
    {2, 3, 6, 7, 9, 10}, {2, 4, 5, 6, 8, 10}, {2, 4, 6, 7, 9, 10}, {2, 5, 6, 7, 8, 9},  {2, 5, 7, 8, 9, 10},
    {3, 4, 5, 6, 8, 10}, {3, 4, 6, 7, 9, 10}, {3, 4, 5, 6, 8, 9},  {3, 5, 7, 8, 9, 10}, {3, 4, 5, 6, 7, 8},
    {4, 5, 7, 8, 9, 10}, {5, 6, 7, 8, 9, 10}};

} // namespace

TEST(Garantia, ReduzidaDeDezNumerosCobre206De210Quadras) {
    const ResultadoGarantia r = verificaGarantia(de(1, 10), 4, 4, ReduzidaDezQuadra);
    EXPECT_EQ(r.situacao, ResultadoGarantia::Situacao::Verificada);
    EXPECT_EQ(r.total, 210u);
    EXPECT_EQ(r.cobertos, 206u);
    EXPECT_FALSE(r.cumpre());
    const std::vector<std::vector<int>> faltam = {{1, 2, 4, 7}, {1, 2, 5, 7}, {1, 4, 7, 8}, {2, 4, 7, 8}};
    EXPECT_EQ(r.descobertos, faltam);
    EXPECT_EQ(percentualCoberto(r), QStringLiteral("98,10%"));
}

TEST(Garantia, PlanoDeFanoSobreNumerosEspalhadosCobreTodosOsDuques) {
    // The seven lines of the Fano plane on the numbers 05 10 15 20 25 30 35.
    const std::vector<std::vector<int>> apostas = {{5, 10, 15},  {5, 20, 25},  {5, 30, 35}, {10, 20, 30},
                                                   {10, 25, 35}, {15, 20, 35}, {15, 25, 30}};
    const ResultadoGarantia r = verificaGarantia({35, 5, 10, 15, 20, 25, 30}, 2, 2, apostas);
    EXPECT_EQ(r.total, 21u);
    EXPECT_EQ(r.cobertos, 21u);
    EXPECT_TRUE(r.cumpre());
    EXPECT_TRUE(r.descobertos.empty());
    EXPECT_EQ(percentualCoberto(r), QStringLiteral("100,00%"));
    // Without one line its three pairs are uncovered.
    const auto sem = std::vector<std::vector<int>>(apostas.begin() + 1, apostas.end());
    const ResultadoGarantia s = verificaGarantia({5, 10, 15, 20, 25, 30, 35}, 2, 2, sem);
    EXPECT_EQ(s.cobertos, 18u);
    const std::vector<std::vector<int>> faltam = {{5, 10}, {5, 15}, {10, 15}};
    EXPECT_EQ(s.descobertos, faltam);
}

TEST(Garantia, NumerosForaDosMarcadosNaoContam) {
    // The bet 01 02 60 holds only the pair 01 02 of the marked numbers.
    const ResultadoGarantia r = verificaGarantia({1, 2, 3}, 2, 2, {{1, 2, 60}, {59, 60}});
    EXPECT_EQ(r.total, 3u);
    EXPECT_EQ(r.cobertos, 1u);
}

TEST(Garantia, AcertarMaisQueAGarantia) {
    // Of 7 numbers, any 4 hits meet 01..06 in 3 or more; in 4 only when
    // the hits lie inside it.
    EXPECT_TRUE(verificaGarantia(de(1, 7), 4, 3, {de(1, 6)}).cumpre());
    const ResultadoGarantia r = verificaGarantia(de(1, 7), 4, 4, {de(1, 6)});
    EXPECT_EQ(r.total, 35u);
    EXPECT_EQ(r.cobertos, 15u);
}

TEST(Garantia, ListaNoMaximoCemGruposEmOrdem) {
    const ResultadoGarantia r = verificaGarantia(de(1, 20), 3, 3, {{1, 2, 3}});
    EXPECT_EQ(r.total, 1140u);
    EXPECT_EQ(r.cobertos, 1u);
    ASSERT_EQ(r.descobertos.size(), 100u);
    EXPECT_EQ(r.descobertos[0], (std::vector<int>{1, 2, 4}));
    EXPECT_EQ(r.descobertos[1], (std::vector<int>{1, 2, 5}));
    for (size_t i = 1; i < r.descobertos.size(); ++i)
        EXPECT_LT(r.descobertos[i - 1], r.descobertos[i]);
}

TEST(Garantia, SituacoesSemContagem) {
    EXPECT_EQ(verificaGarantia({1, 2, 3}, 4, 4, {{1, 2, 3}}).situacao,
              ResultadoGarantia::Situacao::PoucosNumeros);
    EXPECT_EQ(verificaGarantia(de(1, 10), 4, 4, {}).situacao, ResultadoGarantia::Situacao::SemApostas);
    EXPECT_EQ(verificaGarantia(de(1, 80), 20, 5, {{1}}).situacao, ResultadoGarantia::Situacao::GrandeDemais);
}

TEST(Garantia, ApostasDoBancoAteOFim) {
    MatrizTexto banco;
    banco.redimensiona(81, 2);
    const QStringList a = {QStringLiteral("01"), QStringLiteral("07"), QStringLiteral("#"),
                           QStringLiteral("09")};
    for (int j = 0; j < a.size(); ++j)
        banco.define(j, 0, a[j]);
    banco.define(0, 1, QStringLiteral("12"));
    banco.define(1, 1, QStringLiteral("#"));
    const auto r = apostasDoBanco(banco, 2);
    ASSERT_EQ(r.size(), 2u);
    EXPECT_EQ(r[0], (std::vector<int>{1, 7}));
    EXPECT_EQ(r[1], (std::vector<int>{12}));
}

TEST(Garantia, TextoDaJanela) {
    const QStringList l = textoGarantia(verificaGarantia(de(1, 10), 4, 4, ReduzidaDezQuadra));
    EXPECT_EQ(l[0], QStringLiteral("Números escolhidos: 01 02 03 04 05 06 07 08 09 10"));
    EXPECT_EQ(l[1], QStringLiteral("Garantia de Quadra se acertar 4 números dentro dos números escolhidos."));
    EXPECT_EQ(l[2], QStringLiteral("Apostas no banco: 27"));
    EXPECT_TRUE(l.contains(QStringLiteral("Grupos de 4 números cobertos: 206 de 210 (98,10%)")));
    EXPECT_TRUE(l.contains(QStringLiteral("A garantia não se cumpre para 4 grupos.")));
    EXPECT_EQ(l.back(), QStringLiteral("02 04 07 08"));
}

// The count against a brute-force check on random banks: a group is covered
// when some bet holds t of its numbers.
TEST(Garantia, ContagemIgualAVerificacaoDireta) {
    std::mt19937 rng(11);
    for (int caso = 0; caso < 40; ++caso) {
        const int n = 6 + int(rng() % 6), p = 2 + int(rng() % 3), t = 1 + int(rng() % uint32_t(p));
        std::vector<std::vector<int>> apostas(1 + rng() % 8);
        for (auto& a : apostas)
            for (int x = 1; x <= n + 2; ++x)
                if (rng() % 2) a.push_back(x);
        const ResultadoGarantia r = verificaGarantia(de(1, n), p, t, apostas);
        uint64_t esperado = 0;
        for (uint32_t s = 0; s < (1u << n); ++s) {
            if (std::popcount(s) != p) continue;
            bool coberto = false;
            for (const auto& a : apostas) {
                int comuns = 0;
                for (int x : a)
                    comuns += x <= n && ((s >> (x - 1)) & 1);
                coberto = coberto || comuns >= t;
            }
            esperado += coberto;
        }
        EXPECT_EQ(r.cobertos, esperado) << caso;
    }
}
