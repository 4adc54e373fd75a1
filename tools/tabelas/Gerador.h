// The tables of all games held by parameters, their files, and the run that
// improves them: blocks are searched on worker threads, each result proven
// before it replaces the block in hand, and the files rewritten as it goes.
#pragma once

#include "Bloco.h"
#include "Referencias.h"

#include <iosfwd>
#include <map>
#include <string>
#include <tuple>

namespace sorvelo::tabelas {

using ChaveParametros = std::tuple<int, int, int, int>; // v, k, p, t
using Tabelas = std::map<ChaveParametros, Bloco>;

inline ChaveParametros chaveDe(const Parametros& q) {
    return {q.v, q.k, q.p, q.t};
}

// Reads the four files of the folder; keeps, for each parameters, the
// smallest block that passes the proof. Blocks that fail are reported.
Tabelas carregaTabelas(const std::string& pasta, std::ostream& log);

// Keeps, for each parameters, the smaller of the two blocks.
void juntaTabelas(Tabelas& destino, const Tabelas& outras);

// Writes the four files (Mega-Sena and Dupla Sena share the blocks of k = 6).
void gravaTabelas(const std::string& pasta, const Tabelas& tabelas);

// The complemented contents of a game's file.
std::string conteudoArquivo(const Jogo& jogo, const Tabelas& tabelas);

// Whether the block can be in a file: its lower bound fits 10001 rows.
bool cabeNoLimite(const Parametros& q);

struct OpcoesGeracao {
    std::string pasta = "dados";
    double segundos = 10;
    uint64_t maxMovimentos = 0;
    int trabalhadores = 2;
    uint64_t semente = 2026;
    std::string filtro; // only keys that contain one of these texts, by commas (e.g. "MSC,QNC07")
    size_t piores = 0;  // when set, only this many blocks, the farthest above their target
};

// Searches every block that fits and is above its target (the best known
// size, or the lower bound), starting from the block in hand; keeps the
// smaller.
void geraTabelas(const OpcoesGeracao& op, const Referencias& ref, Tabelas& tabelas, std::ostream& log);

} // namespace sorvelo::tabelas
