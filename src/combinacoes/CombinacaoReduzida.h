// The reduced combination from the main window: "Iniciar Combinação
// reduzida" with its checks, the dialog "Combinações reduzidas" as logic
// (it runs the generator of all combinations of the guarantee size), and the
// choice between the packing by program and the super-reduction.
#pragma once

#include "Module2.h"

#include <functional>

namespace sorvelo {

class CombinacoesReduz {
public:
    // The dialog's load: its labels.
    explicit CombinacoesReduz(Programa& p);

    // "Iniciar combinação": the log line, the generator.
    void BtnIniciar();
    // "Cancelar": Cancelado and the close of the dialog.
    void BtnCancelar();
    bool aberto() const { return aberto_; }

    // Controls.
    QString LblDezComb, LblDezApo, LblGarantia, LblAcertar, LblMensagem;
    // Told when LblMensagem changes and when the dialog closes.
    std::function<void()> aoMudarMensagem;
    std::function<void()> aoFechar;

private:
    void mensagem(const QString& texto);
    void fecha();

    Programa& p_;
    bool aberto_ = true;
};

// What the main window shows modally for the reduced combination: each
// function shows its dialog and returns when it has closed.
struct JanelasReducao {
    std::function<void(Programa&)> mostraCombinacoesReduz;
    std::function<void(Programa&)> mostraInsereVetorReduz;
    std::function<void(Programa&)> mostraCombSuperReduz;
};

// "Iniciar Combinação reduzida" of the main window.
void BtnReduz(Programa& p, const JanelasReducao& janelas);

// The steps before a dialog: the bank emptied, the numbers read, the
// checks with their boxes, the counts and the log line. False when a check
// refused the run.
bool PreparaReducao(Programa& p);

// The guarantee as a number: the numeric value of the text, a word for its
// number ("Duque" 2 ... "Sena" 6).
Int16 DezenasDaGarantia(const QString& texto);

// A click on "Reduzir quant. de jogos ao mínimo possível": CmbAcertar is
// enabled only while the box is checked.
void CliqueReduzir(Programa& p, bool marcado);

} // namespace sorvelo
