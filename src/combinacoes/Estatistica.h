// The prize statistics of a full combination: for a draw that holds 4, 5 or
// 6 (in Quina 3, 4 or 5) of the chosen numbers, how many bets of the
// combination in VetRes hit what, and the sentence that tells it.
#pragma once

#include "combinacoes/Module2.h"

namespace sorvelo {

// Six passes over the rows for Mega-Sena, Dupla Sena and Quina (jogo in any
// case); any other game makes none and leaves the counters as they are. An
// interrupted run (Module2::Interrompido) stops at the next yield.
void FazEstatistica(Nucleo& p, Module2& m, const QString& jogo, Int32 total);
void IniciaEstatistica(Nucleo& p, Module2& m, Int32 total);
// Whether the row holds the first c numbers of the draw (and was not
// counted yet; a row found is marked counted).
bool JogoTemDezenas(Nucleo& p, Module2& m, Int32 linha, Int16 c);
// The same with row j of TabSub in the place of the draw.
bool JogoTemSubconjunto(Nucleo& p, Module2& m, Int32 linha, Int32 j, Int16 c);
void LimpaContados(Nucleo& p, Module2& m);
// All subsets of k of the first n numbers of VetSubBase into TabSub; with
// two excluded positions the last subset stands twice.
void GeraSubconjuntos(Nucleo& p, Module2& m, Int16 k, Int16 n);
// The sentence of the counters for NomeLoteria, kept in TextoEstatistica.
QString RetornaEstatistica(Nucleo& p, Module2& m);

} // namespace sorvelo
