#include "Busca.h"
#include "Referencias.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::tabelas;

namespace {

Referencias referencias() {
    Referencias r;
    r.carregaCoberturas(std::string(SORVELO_REFERENCIAS) + "/coberturas-ljcr.csv");
    r.carregaLoterias(std::string(SORVELO_REFERENCIAS) + "/loteria-designs.csv");
    return r;
}

// Searches with a fixed seed and a budget in moves (so the run is the same
// on any machine), proves the result and gives its size.
size_t busca(const Parametros& q, uint64_t alvo, uint64_t movimentos = 400000) {
    ConfigBusca cfg;
    cfg.par = q;
    cfg.semente = 7;
    cfg.segundos = 1e9;
    cfg.maxMovimentos = movimentos;
    cfg.alvo = alvo;
    const ResultadoBusca r = buscaBloco(cfg, {});
    Bloco b{q, r.linhas};
    EXPECT_TRUE(provaBloco(b));
    return r.linhas.size();
}

} // namespace

TEST(BuscaBloco, AsTabelasDeReferenciaTemOsTamanhosPublicados) {
    const Referencias ref = referencias();
    EXPECT_EQ(ref.melhorConhecido({7, 3, 2, 2}), 7u);
    EXPECT_EQ(ref.melhorConhecido({25, 6, 5, 5}), 9321u);
    EXPECT_EQ(ref.melhorConhecido({8, 6, 5, 4}), 3u);
    EXPECT_EQ(ref.melhorConhecido({9, 6, 6, 6}), 84u);
    EXPECT_FALSE(ref.melhorConhecido({20, 15, 13, 11}));
}

TEST(BuscaBloco, AlcancaOMelhorConhecidoEmCoberturasPequenas) {
    const Referencias ref = referencias();
    for (const Parametros q : {Parametros{7, 3, 2, 2}, Parametros{9, 3, 2, 2}, Parametros{8, 4, 3, 3},
                               Parametros{10, 6, 4, 4}, Parametros{11, 5, 3, 3}, Parametros{12, 6, 3, 3}}) {
        const uint64_t melhor = *ref.melhorConhecido(q);
        EXPECT_EQ(busca(q, melhor), melhor) << q.v << " " << q.k << " " << q.t;
    }
}

TEST(BuscaBloco, AlcancaOMelhorConhecidoEmLoteriasPequenas) {
    const Referencias ref = referencias();
    for (const Parametros q : {Parametros{8, 6, 5, 4}, Parametros{10, 6, 4, 3}, Parametros{10, 5, 5, 4},
                               Parametros{12, 5, 4, 3}}) {
        const uint64_t melhor = *ref.melhorConhecido(q);
        EXPECT_EQ(busca(q, melhor), melhor) << q.v << " " << q.k << " " << q.p << " " << q.t;
    }
}

TEST(BuscaBloco, GulosoSemMovimentosJaCobre) {
    // No move of the annealing: the greedy start alone is a cover.
    const size_t n = busca({13, 5, 3, 3}, 1, 1);
    EXPECT_GE(n, size_t(limiteInferior({13, 5, 3, 3})));
}

TEST(BuscaBloco, BlocoInicialQueCobreEOPontoDePartida) {
    ConfigBusca cfg;
    cfg.par = {7, 6, 2, 2};
    cfg.maxMovimentos = 1000;
    cfg.alvo = 1;
    // Every 6-subset of 7: 7 rows; the search can only shrink it.
    std::vector<Mascara> todas;
    for (int fora = 0; fora < 7; ++fora)
        todas.push_back(Mascara(0x7f) & ~(Mascara(1) << fora));
    const ResultadoBusca r = buscaBloco(cfg, todas);
    EXPECT_LE(r.linhas.size(), 7u);
    EXPECT_TRUE(provaBloco(Bloco{cfg.par, r.linhas}));
}

TEST(BuscaBloco, MesmaSementeMesmoResultado) {
    ConfigBusca cfg;
    cfg.par = {14, 5, 4, 4};
    cfg.semente = 3;
    cfg.segundos = 1e9;
    cfg.maxMovimentos = 20000;
    const auto a = buscaBloco(cfg, {}).linhas;
    const auto b = buscaBloco(cfg, {}).linhas;
    EXPECT_EQ(a, b);
}
