// A covering table of one game: for v chosen numbers, p to hit and guarantee
// t, rows of k positions (0 .. v-1 as bits) such that every p-subset of the
// positions meets some row in t or more positions.
#pragma once

#include "relatorios/Cobertura.h"

#include <string>
#include <vector>

namespace sorvelo::tabelas {

struct Jogo {
    std::string nome;    // "Mega-Sena"
    std::string arquivo; // "Megasena.sv"
    std::string codigo;  // "MSC"
    int k;               // numbers of a full bet
    int vMin, vMax;      // counts of chosen numbers
    int tMin;            // smallest guarantee
};

// The four games that have tables.
const std::vector<Jogo>& jogos();

struct Parametros {
    int v = 0, k = 0, p = 0, t = 0;
    bool operator==(const Parametros&) const = default;
};

struct Bloco {
    Parametros par;
    std::vector<Mascara> linhas; // ascending, each with k positions
};

// The rows in ascending lexicographic order of their positions.
void ordenaLinhas(std::vector<Mascara>& linhas);

// The exact proof of a block: every row has k positions below v, no row
// twice, and every p-subset is met in t or more positions.
bool provaBloco(const Bloco& b);

// Every block of a game: v from vMin to vMax, tMin <= t <= p <= k.
std::vector<Parametros> blocosDoJogo(const Jogo& j);

} // namespace sorvelo::tabelas
