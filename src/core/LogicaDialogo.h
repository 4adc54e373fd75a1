// The life of a dialog as logic, the same for every dialog: it is open
// from its load until it closes (once); its cancel sets Cancelado where the
// dialog's cancel does so; its message label; Esc and the close button of
// the window's frame take one path, the dialog's cancel where it has one.
// The form (forms/Formulario.h) binds to it and closes its window when it
// closes; a test drives it without any window.
#pragma once

#include "base/Aviso.h"
#include "core/Estado.h"

namespace sorvelo {

class LogicaDialogo {
public:
    // What the dialog's cancel does.
    enum class Cancelar {
        MarcaCancelado, // Cancelado = true, then the close
        SoFecha,        // the close only
        Nenhum,         // the dialog has no cancel: the frame only closes it
    };

    LogicaDialogo(Nucleo& p, Cancelar cancelar);
    virtual ~LogicaDialogo() = default;
    LogicaDialogo(const LogicaDialogo&) = delete;
    LogicaDialogo& operator=(const LogicaDialogo&) = delete;

    bool aberto() const { return aberto_; }
    // The dialog's cancel button ("Cancelar"); a dialog whose cancel does
    // more than the kinds above overrides it.
    virtual void BtnCancelar();
    // Esc or the close button of the window's frame: the cancel where the
    // dialog has one, otherwise the close. A dialog whose frame does
    // otherwise overrides it.
    virtual void fechaPelaMoldura();
    // The close, by whichever way: fechando() each time, aoFechar once.
    void fecha();

    // The message label.
    QString LblMensagem;
    void mensagem(const QString& texto);

    Aviso<> aoMudarMensagem; // LblMensagem changed (the form shows it before a yield)
    Aviso<> aoFechar;        // the dialog closed (the form closes its window)

protected:
    // What the dialog does as it closes, by any way.
    virtual void fechando() {}

    Nucleo& p_;

private:
    Cancelar cancelar_;
    bool aberto_ = true;
};

} // namespace sorvelo
