// The main window's logic: load, Timer1, the bank's counters, scrolling,
// resizing, the help marks and the close flow.
#pragma once

#include "Estado.h"

namespace sorvelo {

// Form load: FimLinha, colours, Mega-Sena, the menu check.
void CarregaPrincipal(Programa& p);
// The extra line end: empty only on the system named "WINDOWS XP".
QString FimLinhaDoSistema(const QString& nomeSistema);
// One tick of Timer1 (every 500 ms).
void TickTimer1(Programa& p);
// TxtQuantApostas and TxtValorApostas from QuantBan and ValorAposta.
void AtualizaContadores(Programa& p);
void MudaBarraHoriz(Programa& p, int valor);
void MudaBarraVert(Programa& p, int valor);
// Resize with the window's outer size in twips; failures skipped.
void Redimensiona(Programa& p, int largura, int altura);

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
void EscondeAjuda(Programa& p);
void MovimentoMouse(Programa& p, Regiao onde, int x, int y);

// The close flow: the save question (Sim/Não), then "00001.txt" deleted.
void FechaPrincipal(Programa& p);

} // namespace sorvelo
