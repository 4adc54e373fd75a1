// The dialog "Eliminação aleatória de números" as logic: from every bet of
// the bank it strikes the same quantity of numbers chosen at random, one
// independent draw per bet, then rewrites TxtBanco with a fresh head. The
// size of the first bet stands for every bet. The form binds TxtQuant and
// LblCont and forwards the click of BtnIniciar.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

#include <functional>

namespace sorvelo {

class Eliminar : public LogicaDialogo {
public:
    explicit Eliminar(Nucleo& p);

    // "Iniciar": the log line, Randomize, the check of the quantity, the
    // strikes in every bet, the rewrite of the bank and the close. The run
    // yields every 13 bets, and a click that arrives in a yield runs the
    // whole handler again, inside the first.
    void BtnIniciar();

    // The count of cells before the first "#" of row 0 of VetBan.
    Int16 CompVetBan() const;
    QString RetAposta(Int32 Linha) const;
    void EscreveBanco();

    static const QString Caption, CaptionLabel1, CaptionLabel2, CaptionBtnIniciar, MensagemQuantidade;

    // Controls.
    CampoTexto TxtQuant; // at most 2 characters
    QString LblCont;
    // Told when LblCont changes (every 13 bets, before the yield) and when
    // the dialog closes.
    std::function<void()> aoContar;

private:
    void eliminaDaAposta(int64_t linha, int n, int q);
    void contaECede(int64_t feitas);
};

// "Eliminação de números" of the main window: the dialog, shown modally by
// p.dialogos, with no test of the bank first.
void BtnEliminar(Nucleo& p);

} // namespace sorvelo
