// Hit scoring: the result marked on the grid, and how many numbers of a bet
// occur in a draw, counted by comparing the texts.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

// The marked (blue) cells 0 to 79 into VetDezenas, in grid order, with "#"
// after the last. Fixed (red) cells and Lotomania's cells 80 to 99 are no
// part of the result.
void CarregaVetDezEsc(Nucleo& p);

// The hits of a row of a bank against a draw: for each cell up to the row's
// "#", one point for every entry of the draw (up to its "#", at most the
// entries 0 to 79) with the same text. A row with no "#" in its columns runs
// off the row (failure 9).
Int16 contaAcertos(const MatrizTexto& banco, Int32 Index, const Vetor<QString>& sorteio);

// Row Index of VetBan against the marked result (VetDezenas).
Int16 RetPontos(const Nucleo& p, Int32 Index);
// Row Index of VetBan against the test draw (VetDezenas2).
Int16 RetPontos2(const Nucleo& p, Int32 Index);

// The text of row Index of VetBan: each cell and a blank, up to the "#",
// looking at no more than 100 columns.
QString RetApostaVetBan(const Nucleo& p, Int32 Index);

// True when Num is, as a number, among the first ContDezenas entries of
// VetDezenas2.
bool TestaRepVAleat(const Nucleo& p, Int16 ContDezenas, Int16 Num);

} // namespace sorvelo
