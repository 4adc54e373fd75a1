// The search of a block: a greedy start (each new row chosen among sampled
// rows through an uncovered p-subset, the one that covers most uncovered
// subsets), then simulated annealing on the count of uncovered p-subsets at
// a fixed count of rows; each time that count reaches zero the block is
// kept and the row whose removal uncovers least is taken out.
#pragma once

#include "Bloco.h"

#include <atomic>
#include <cstdint>
#include <vector>

namespace sorvelo::tabelas {

struct ConfigBusca {
    Parametros par;
    uint64_t semente = 1;
    double segundos = 10;        // time budget
    uint64_t maxMovimentos = 0;  // budget in moves of the annealing; 0: no limit
    uint64_t alvo = 1;           // stop when the block has this many rows or fewer
    size_t limiteLinhas = 10001; // give up a start that needs more rows
    const std::atomic<bool>* parar = nullptr;
};

struct ResultadoBusca {
    std::vector<Mascara> linhas; // the smallest cover found, sorted; empty when none
    uint64_t movimentos = 0;
    double segundos = 0;
};

// `inicial`, when it covers, is the starting block instead of the greedy one.
ResultadoBusca buscaBloco(const ConfigBusca& cfg, const std::vector<Mascara>& inicial);

} // namespace sorvelo::tabelas
