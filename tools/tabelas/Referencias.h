// Sizes to compare with: the best known sizes published by the covering
// repositories (sizes only), the lower bounds, and the count of the
// program's own one-pass packing of the reduced combination.
#pragma once

#include "Bloco.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>

namespace sorvelo::tabelas {

class Referencias {
public:
    // Reads "v,k,t,best_known,..." (coverings) and "v,k,p,t,best_known"
    // (lotto designs); lines starting with "#" and the header are skipped.
    // A missing file leaves its part empty.
    void carregaCoberturas(const std::string& caminho);
    void carregaLoterias(const std::string& caminho);
    // The best known size: C(v,k) when p = t = k, the covering table when
    // p = t, the lotto table when p > t.
    std::optional<uint64_t> melhorConhecido(const Parametros& par) const;

private:
    std::map<std::tuple<int, int, int>, uint64_t> coberturas_;
    std::map<std::tuple<int, int, int, int>, uint64_t> loterias_;
};

// The Schönheim bound of a covering design C(v,k,t).
uint64_t limiteSchonheim(int v, int k, int t);

// A lower bound of the block: Schönheim when p = t, otherwise the count of
// p-subsets over the most that one row can meet in t or more positions.
uint64_t limiteInferior(const Parametros& par);

// The count of bets that the one-pass packing of the reduced combination
// gives for v chosen numbers, guarantee t and bets of k numbers.
uint64_t tamanhoEmpacotamento(int v, int k, int t);

// Its bets, in the order made, each as a set of positions.
std::vector<Mascara> empacotamento(int v, int k, int t);

} // namespace sorvelo::tabelas
