// Exact proof of a guarantee. The p-subsets of n positions (0 .. n-1) are
// ranked in colex order and held as one bit each; every row of a bank marks
// the p-subsets that it meets in t or more positions, and the unmarked bits
// are the p-subsets that the bank leaves uncovered. The proof neither
// samples nor trusts how the rows were made: it enumerates every subset.
// Plain C++, no Qt: the table tool and the report share it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sorvelo {

// A set of positions 0 .. 63 as a word.
using Mascara = uint64_t;

// Binomial coefficient C(n, r) for 0 <= n <= 64, saturated at UINT64_MAX.
uint64_t binomial(int n, int r);

// The colex rank of a set of p positions among all p-subsets.
uint64_t rankColex(Mascara s);

// The set whose colex rank is `rank` among the p-subsets of n positions.
Mascara desfazRankColex(uint64_t rank, int p, int n = 64);

// How many p-subsets of n positions meet a row of r positions in t or more.
uint64_t tamanhoVizinhanca(int n, int r, int p, int t);

class MapaCobertura {
public:
    // The largest map held: beyond it the check is refused.
    static constexpr uint64_t LimiteSubconjuntos = uint64_t(1) << 31;
    // n <= 64, 1 <= t <= p <= n, C(n, p) <= LimiteSubconjuntos.
    static bool parametrosValidos(int n, int p, int t);

    MapaCobertura(int n, int p, int t);

    // Marks every p-subset that meets the row in at least t positions.
    // Positions at or above n are ignored.
    void marcaLinha(Mascara linha);

    uint64_t total() const { return total_; }
    uint64_t cobertos() const;
    bool completo() const { return cobertos() == total_; }
    bool coberto(Mascara s) const;
    // The first `limite` uncovered p-subsets, in lexicographic order.
    std::vector<Mascara> descobertos(size_t limite) const;

private:
    int n_, p_, t_;
    uint64_t total_;
    std::vector<uint64_t> bits_;
};

// True when every p-subset of 0 .. v-1 meets some row in at least t
// positions.
bool provaGarantia(int v, int p, int t, const std::vector<Mascara>& linhas);

} // namespace sorvelo
