// The dialog "Sortear números para combinação" as logic: it marks a given
// quantity of cells of the main window's grid at random, one by one, with
// a yield after every pass so that the grid paints as it fills.
#pragma once

#include "base/MatrizTexto.h"
#include "core/Estado.h"
#include "core/LogicaDialogo.h"

#include <functional>

namespace sorvelo {

class SortComb : public LogicaDialogo {
public:
    explicit SortComb(Nucleo& p);

    // The dialog comes to the front: TxtDez takes the game's default.
    void ativa();
    // Changes of the box and of the scroll bar, which feed each other.
    void mudaTxtDez(const QString& texto);
    void mudaScrDez(int valor);

    // "OK": the question, the draw on the grid, the close (or the message
    // "Quantidade inválida!" with the dialog left open).
    void BtnOK();
    // Told after each cell is marked, before the yield, so that the grid
    // can show it.
    std::function<void(Int16)> aoMarcar;

    // True when cell c was drawn already in this run.
    bool TestaRepeticao(Int16 c) const;

    // The scroll bar's range.
    static constexpr int ScrMin = 0, ScrMax = 32767;

    // Controls.
    QString TxtDez = QStringLiteral("10");
    int ScrDez = 10;

    // Fields of the dialog.
    Vetor<Int16> Sorteados{0, 100};
    Int16 QuantSorteados;

private:
};

// The quantity that the dialog proposes for a game: "6", "5", "50", "15".
QString QuantidadePadraoSortComb(const QString& nomeLoteria);

} // namespace sorvelo
