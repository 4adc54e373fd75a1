// The number grid: 105 cells whose back colour records free, marked or fixed.
#pragma once

#include "Estado.h"

namespace sorvelo {

void MarcaNumero(Programa& p, Int16 Indice);
void DesmarcaNumero(Programa& p, Int16 Indice);
Int16 ContaNumeros(const Programa& p);
void AtualizaEscolhidos(Programa& p);
void LimpaNumeros(Programa& p);
void CarregaNumeros(Programa& p);
// A click on cell i of the grid.
void ClicaNumero(Programa& p, Int16 i);
// The button "Limpar": asks, then clears the grid.
void BtnLimpar(Programa& p);
// A change of a spin button: its value, formatted "00", into the text box.
void MudaSpin(const Spin& spin, CampoTexto& campo);

} // namespace sorvelo
