// The full combination and the closing, from the main window's buttons to
// the bank: the dialog "Combinações" as logic (its labels and check boxes
// are fields that the form binds) and the two click handlers of the main
// window, which ask for the dialogs through p.dialogos.
#pragma once

#include "combinacoes/Module2.h"
#include "core/LogicaDialogo.h"

namespace sorvelo {

class Combinacoes : public LogicaDialogo {
public:
    // The dialog's load: labels, and which check box is shown and enabled.
    Combinacoes(Nucleo& p, Module2& m);

    // "Iniciar combinação": the log, the generator, the statistics.
    void BtnIniciar();
    // A click on a check box: only a shown and enabled box changes.
    void clicaEstatistica();
    void clicaAutoCompletar();

    // Controls. The progress bar is m.Progresso, told through
    // m.aoMudarProgresso.
    QString LblDezComb, LblDezCart, LblTotAp, LblValAp;
    CaixaMarcar ChkEst, ChkAuto;
    bool ChkEstVisible = true, ChkAutoVisible = false;

protected:
    // Closed by any way during the run: the generator and the count stop at
    // their next yield.
    void fechando() override { m_.Interrompido = true; }

private:
    Module2& m_;
};

// "Iniciar Combinação completa" of the main window: the dialogs
// "Combinacoes" and "InsereVetor" through p.dialogos.
void BtnIniciar(Nucleo& p);
// "Iniciar fechamento" of the main window.
void BtnFechar(Nucleo& p);

// The steps of the two handlers, for a form that wants them apart.
// Steps before the dialog; false when nothing is marked (after the box).
bool PreparaCombinacao(Nucleo& p);
void PreparaFechamento(Nucleo& p);
// After the dialog: the bank question and the insertion, unless cancelled.
void ConcluiCombinacao(Nucleo& p);
// The size of a closing from the text of CmbFecha: "Duque" 2 ... "Sena" 6,
// a figure for itself.
Int16 DezenasDoFechamento(const QString& texto);

} // namespace sorvelo
