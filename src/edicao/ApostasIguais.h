// The index behind the filter's identical-bets test. A bet has an equal when
// another row holds the same cells at the same places, from cell 0 up to the
// bet's own "#": so a bet equals any longer bet that begins with it. Rather
// than comparing each bet with every other one, the index sorts the rows by
// their cells once; the rows that begin with a given bet then stand side by
// side, from the first row equal to it to the last row that still begins
// with it. A tree of counts over the sorted places (one for each row not
// marked) tells in a logarithmic time how many rows of that stretch are
// still there. Marking a row "@" changes its cell 0, so it leaves every
// stretch; a marked row can still equal only a bet that itself begins with
// "@", and those rare bets are compared with the marked rows one by one.
// The memory is a few words a row, whatever the length of the bets.
#pragma once

#include "base/MatrizTexto.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <vector>

namespace sorvelo {

class ApostasIguais {
public:
    // Indexes rows 0..quant-1 of the matrix; every row holds its "#".
    ApostasIguais(const MatrizTexto& vetAux, int64_t quant);

    // True when another row holds the cells of this (unmarked) row, from
    // cell 0 up to its "#", at the same places.
    bool temIgual(int64_t linha) const;
    // The row is about to be marked "@" in its cell 0 (call it before the
    // mark is written).
    void marca(int64_t linha);

    size_t bytesUsados() const;

private:
    // A cell as an order: the end of the bet first, then the compact codes,
    // then the other texts in the order first seen.
    uint32_t token(int64_t linha, int coluna, uint8_t codigo);
    int comprimento(int64_t linha) const; // the column of the "#"
    bool comecaComArroba(int64_t linha) const;
    int compara(uint32_t a, uint32_t b, int& comum);
    int64_t soma(int64_t ate) const; // rows present at sorted places 0..ate
    bool igualAMarcada(int64_t linha, int m, int64_t marcada) const;

    const MatrizTexto& vet_;
    int64_t quant_;
    std::vector<uint32_t> lugar_; // sorted place of each row
    std::vector<uint32_t> desde_; // per place: first place of the rows equal to it
    std::vector<uint32_t> ate_;   // per place: last place of the rows that begin with it
    std::vector<int32_t> arvore_; // counts of the rows present, by place (Fenwick)
    std::vector<uint32_t> marcadas_;
    QHash<QString, uint32_t> outros_;
    bool temArroba_ = false; // some row begins with "@"
};

} // namespace sorvelo
