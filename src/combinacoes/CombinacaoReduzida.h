// The reduced combination from the main window: "Iniciar Combinação
// reduzida" with its checks, the dialog "Combinações reduzidas" as logic
// (it runs the generator of all combinations of the guarantee size), and the
// choice between the packing by program and the super-reduction.
#pragma once

#include "combinacoes/Module2.h"
#include "core/LogicaDialogo.h"

namespace sorvelo {

// "Cancelar" (and Esc or the frame): Cancelado and the close of the dialog.
class CombinacoesReduz : public LogicaDialogo {
public:
    // The dialog's load: its labels.
    CombinacoesReduz(Nucleo& p, Module2& m);

    // "Iniciar combinação": the log line, the generator.
    void BtnIniciar();

    // Controls (LblMensagem comes with the dialog's life).
    QString LblDezComb, LblDezApo, LblGarantia, LblAcertar;

protected:
    // Closed by any way during the run: the generator stops at its next yield.
    void fechando() override { m_.Interrompido = true; }

private:
    Module2& m_;
};

// "Iniciar Combinação reduzida" of the main window: the dialogs
// "CombinacoesReduz" and "InsereVetorReduz", or "CombSuperReduz", through
// p.dialogos.
void BtnReduz(Nucleo& p);

// The steps before a dialog: the bank emptied, the numbers read, the
// checks with their boxes, the counts and the log line. False when a check
// refused the run.
bool PreparaReducao(Nucleo& p);

// The guarantee as a number: the numeric value of the text, a word for its
// number ("Duque" 2 ... "Sena" 6).
Int16 DezenasDaGarantia(const QString& texto);

// A click on "Reduzir quant. de jogos ao mínimo possível": CmbAcertar is
// enabled only while the box is checked.
void CliqueReduzir(Nucleo& p, bool marcado);

} // namespace sorvelo
