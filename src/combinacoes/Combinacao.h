// The full combination and the closing, from the main window's buttons to
// the bank: the dialog "Combinações" as logic (its labels and check boxes
// are fields that the form binds) and the two click handlers of the main
// window, which show the dialogs through the functions they are given.
#pragma once

#include "Module2.h"

#include <functional>

namespace sorvelo {

class Combinacoes {
public:
    // The dialog's load: labels, and which check box is shown and enabled.
    explicit Combinacoes(Programa& p);

    // "Iniciar combinação": the log, the generator, the statistics.
    void BtnIniciar();
    // "Cancelar": Cancelado and the close of the dialog.
    void BtnCancelar();
    // A click on a check box: only a shown and enabled box changes.
    void clicaEstatistica();
    void clicaAutoCompletar();
    bool aberto() const { return aberto_; }

    // Controls.
    QString LblDezComb, LblDezCart, LblTotAp, LblValAp, LblMensagem;
    CaixaMarcar ChkEst, ChkAuto;
    bool ChkEstVisible = true, ChkAutoVisible = false;
    // Told when LblMensagem changes and when the dialog closes. The bar is
    // module2(p).Progresso, told through module2(p).aoMudarProgresso, which
    // the form sets while the dialog is up and clears when it closes.
    std::function<void()> aoMudarMensagem;
    std::function<void()> aoFechar;

private:
    void mensagem(const QString& texto);
    void fecha();

    Programa& p_;
    bool aberto_ = true;
};

// What the main window does modally: each function shows its dialog and
// returns when it has closed. The form gives the real dialogs; a test gives
// functions that drive Combinacoes and InsereVetor directly.
struct JanelasCombinacao {
    std::function<void(Programa&)> mostraCombinacoes;
    std::function<void(Programa&)> mostraInsereVetor;
    // The caret of TxtBanco at the end of its text, the statistics in sight.
    std::function<void(Programa&)> caretNoFim;
};

// "Iniciar Combinação completa" of the main window.
void BtnIniciar(Programa& p, const JanelasCombinacao& janelas);
// "Iniciar fechamento" of the main window.
void BtnFechar(Programa& p, const JanelasCombinacao& janelas);

// The steps of the two handlers, for a form that wants them apart.
// Steps before the dialog; false when nothing is marked (after the box).
bool PreparaCombinacao(Programa& p);
void PreparaFechamento(Programa& p);
// After the dialog: the bank question and the insertion, unless cancelled.
void ConcluiCombinacao(Programa& p, const JanelasCombinacao& janelas);
// The size of a closing from the text of CmbFecha: "Duque" 2 ... "Sena" 6,
// a figure for itself.
Int16 DezenasDoFechamento(const QString& texto);

} // namespace sorvelo
