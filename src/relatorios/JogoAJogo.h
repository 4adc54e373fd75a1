// The bet-by-bet view "Conferência jogo a jogo": the number of the bet on
// view and its text, two arrows that stop at both ends. Not modal: the bank
// may change behind it, and QuantBan is read at each press.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

class JogoAJogo {
public:
    // Form load: the first bet when the bank has any; otherwise both boxes
    // stay empty.
    explicit JogoAJogo(Nucleo& p);

    // The next bet, unless the view stands on the last; then the row shown.
    void BtnDescer();
    // The previous bet, unless the view stands on the first; then the row.
    void BtnSubir();

    // The row of VetBan on view.
    Int32 ApostaAtual;
    QString TxtSeq;
    QString TxtJogo;

    // The width of TxtJogo for a form of the given width (twips).
    static int LarguraTxtJogo(int larguraForm) { return larguraForm - 1600; }

private:
    // TxtSeq first, then the bet: on a row with no "#" the reading fails
    // after TxtSeq has changed.
    void mostraLinha();

    Nucleo& p_;
};

} // namespace sorvelo
