// The main window's logic: load, Timer1, the bank's counters, scrolling,
// resizing, the help marks and the close flow.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

// Form load: FimLinha, colours, Mega-Sena, the menu check.
void CarregaPrincipal(Nucleo& p);
// The extra line end: empty only on the system named "WINDOWS XP".
QString FimLinhaDoSistema(const QString& nomeSistema);
// One tick of Timer1 (every 500 ms).
void TickTimer1(Nucleo& p);
// TxtQuantApostas and TxtValorApostas from QuantBan and ValorAposta.
void AtualizaContadores(Nucleo& p);
void MudaBarraHoriz(Nucleo& p, int valor);
void MudaBarraVert(Nucleo& p, int valor);
// Resize with the window's outer size in twips; failures skipped.
void Redimensiona(Nucleo& p, int largura, int altura);

// Where the mouse moves, for the help marks.
enum class Regiao {
    Frame1,
    Frame2,
    Frame3,
    Frame5,
    FraBanco,
    BtnIniciar,
    BtnFechar,
    BtnSortear,
    BtnDigitar,
    BtnReduz
};
void EscondeAjuda(Nucleo& p);
void MovimentoMouse(Nucleo& p, Regiao onde, int x, int y);

// The close flow: the save question (Sim/Não), then "00001.txt" deleted.
void FechaPrincipal(Nucleo& p);

} // namespace sorvelo
