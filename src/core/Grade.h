// The number grid: 105 cells whose back colour records free, marked or fixed.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

void MarcaNumero(Nucleo& p, Int16 Indice);
void DesmarcaNumero(Nucleo& p, Int16 Indice);
Int16 ContaNumeros(const Nucleo& p);
void AtualizaEscolhidos(Nucleo& p);
void LimpaNumeros(Nucleo& p);
void CarregaNumeros(Nucleo& p);
// A click on cell i of the grid.
void ClicaNumero(Nucleo& p, Int16 i);
// The button "Limpar": asks, then clears the grid.
void BtnLimpar(Nucleo& p);
// A change of a spin button: its value, formatted "00", into the text box.
void MudaSpin(const Spin& spin, CampoTexto& campo);

} // namespace sorvelo
