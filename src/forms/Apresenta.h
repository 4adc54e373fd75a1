// The start box "Sorvelo": three pictures and "Entrar", which shows the
// main window and closes the box. Closed by its frame, it ends the program
// with no main window ever shown.
#pragma once

#include "Formulario.h"

#include <memory>

namespace sorvelo {

class Sorvelo;

class JanelaApresenta : public Formulario {
    Q_OBJECT
public:
    // `arquivo`: a bet file named on the command line, which the main window
    // opens after "Entrar" as Abrir does (empty: none).
    explicit JanelaApresenta(Programa& p, QString arquivo = QString());
    ~JanelaApresenta() override;

    // The main window, once "Entrar" has made it.
    Sorvelo* principal() const { return janela_; }
    // Hands the main window over to whoever keeps it from now on.
    std::unique_ptr<Sorvelo> tomaPrincipal() { return std::move(principal_); }
    // BtnEntrar.
    void entra();

signals:
    // The main window stands (the program ends when it does).
    void principalAberta(Sorvelo* janela);
    // The box was closed by its frame: the program ends.
    void encerrado();

protected:
    void closeEvent(QCloseEvent* e) override;
    // Esc does nothing: the box has no cancel.
    void reject() override {}

private:
    QString arquivo_;
    std::unique_ptr<Sorvelo> principal_;
    Sorvelo* janela_ = nullptr;
    bool entrou_ = false;
};

} // namespace sorvelo
