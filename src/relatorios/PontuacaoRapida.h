// Fast hit scoring: a bet and a draw as sets of the numbers 00 to 99 (100
// bits in two words), the hits as a population count. It gives exactly the
// count of the text comparison (Pontuacao.h): a row that a set cannot hold
// as it stands (a cell that isn't a two-digit number, a number twice, no
// "#") is marked irregular and is scored by the text comparison; a draw
// that holds a number more than once is held in layers, one per repetition.
#pragma once

#include "core/Estado.h"

#include <bit>
#include <cstdint>
#include <vector>

namespace sorvelo {

struct ConjuntoDezenas {
    uint64_t baixo = 0; // numbers 0 to 63
    uint64_t alto = 0;  // numbers 64 to 99 in bits 0 to 35; bit 63 marks an irregular row
    static constexpr uint64_t Irregular = uint64_t(1) << 63;
    bool irregular() const { return (alto & Irregular) != 0; }
    // Adds a number; false when it was already there.
    bool insere(int n) {
        uint64_t& palavra = n < 64 ? baixo : alto;
        const uint64_t bit = uint64_t(1) << (n & 63);
        const bool novo = (palavra & bit) == 0;
        palavra |= bit;
        return novo;
    }
};

// The set of a bank row from its cell codes, read up to the first "#".
ConjuntoDezenas conjuntoDaLinha(const uint8_t* celulas, int quant);

// A draw (VetDezenas, VetDezenas2): its entries 0 to 79 up to the "#".
class SorteioRapido {
public:
    explicit SorteioRapido(const Vetor<QString>& sorteio);
    // The hits of a regular row.
    int pontos(ConjuntoDezenas aposta) const {
        int n = std::popcount(aposta.baixo & primeira_.baixo) + std::popcount(aposta.alto & primeira_.alto);
        for (const ConjuntoDezenas& c : repetidas_)
            n += std::popcount(aposta.baixo & c.baixo) + std::popcount(aposta.alto & c.alto);
        return n;
    }

private:
    ConjuntoDezenas primeira_;               // every number of the draw
    std::vector<ConjuntoDezenas> repetidas_; // layer k: numbers drawn more than k + 1 times
};

// The sets of a range of rows of a bank, built once and scored against any
// number of draws.
class IndiceApostas {
public:
    // Rows inicio to fim - 1 (rows outside the bank's bounds are irregular).
    void constroi(const MatrizTexto& banco, int64_t inicio, int64_t fim);
    int64_t inicio() const { return inicio_; }
    int64_t fim() const { return inicio_ + int64_t(conjuntos_.size()); }
    const ConjuntoDezenas& conjunto(int64_t linha) const { return conjuntos_[size_t(linha - inicio_)]; }
    // Scores of the rows into `pontos` (one per row); -1 for an irregular row.
    void pontua(const SorteioRapido& sorteio, int16_t* pontos) const;

private:
    int64_t inicio_ = 0;
    std::vector<ConjuntoDezenas> conjuntos_;
};

// RetPontos (or RetPontos2) over the rows of VetBan in ascending order, by
// blocks of sets; an irregular row is handed to the text comparison at its
// turn, so a failure comes at the row where the text comparison has it.
class PontuadorBanco {
public:
    enum class Sorteio { Resultado, Teste }; // VetDezenas, VetDezenas2
    // Neither the bank nor the draw may change while it is in use: a block
    // of scores is computed ahead.
    PontuadorBanco(const Nucleo& p, Sorteio qual);
    Int16 pontos(Int32 Index) {
        const int64_t i = Index.valor();
        if (i >= indice_.inicio() && i < indice_.fim()) {
            const int16_t r = pontos_[size_t(i - indice_.inicio())];
            if (r >= 0) return r;
        }
        return pontosDevagar(Index);
    }

private:
    static constexpr int64_t Bloco = 4096;
    void preparaBloco(int64_t inicio);
    Int16 pontosDevagar(Int32 Index);

    const Nucleo& p_;
    Sorteio qual_;
    SorteioRapido sorteio_;
    IndiceApostas indice_;
    std::vector<int16_t> pontos_;
};

} // namespace sorvelo
