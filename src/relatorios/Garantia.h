// What guarantee does a bank keep? Among the numbers marked on the grid,
// every group of p numbers (the number to hit) is checked against the bets:
// it is covered when some bet holds t or more of its numbers (the
// guarantee). The count is exact (the proof of Cobertura.h), so it tells
// the player whether "Garantia de t se acertar p" holds for this bank.
#pragma once

#include "base/MatrizTexto.h"
#include "relatorios/Cobertura.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace sorvelo {

struct ResultadoGarantia {
    enum class Situacao {
        Verificada,    // the count below is the answer
        PoucosNumeros, // fewer numbers marked than the number to hit
        GrandeDemais,  // too many groups to count (more than 64 numbers or 2^31 groups)
        SemApostas,    // the bank is empty
        SemGarantia,   // no guarantee chosen (below 1)
    };
    static constexpr size_t MaxDescobertos = 100;

    Situacao situacao = Situacao::Verificada;
    std::vector<int> marcados; // the numbers, ascending
    int acertar = 0, garantia = 0;
    int64_t apostas = 0;
    uint64_t total = 0, cobertos = 0;
    // The first uncovered groups (at most 100), in ascending order, each
    // its numbers ascending.
    std::vector<std::vector<int>> descobertos;

    bool cumpre() const { return situacao == Situacao::Verificada && cobertos == total; }
};

// The bets as lists of numbers (0 .. 99); numbers not marked play no part.
ResultadoGarantia verificaGarantia(std::vector<int> marcados, int acertar, int garantia,
                                   const std::vector<std::vector<int>>& apostas);

// The bets of the bank: rows 0 .. quantBan - 1, each up to its "#"; cells
// that are not two-digit numbers are left out.
std::vector<std::vector<int>> apostasDoBanco(const MatrizTexto& banco, int64_t quantBan);

// "98,10%": the share of covered groups with two decimals.
QString percentualCoberto(const ResultadoGarantia& r);

// The lines of the report window.
QStringList textoGarantia(const ResultadoGarantia& r);

} // namespace sorvelo
