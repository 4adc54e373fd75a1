// The start box "Sorvelo": three pictures and "Entrar", which shows the
// main window and closes the box. Closed by its frame, it ends the program
// with no main window ever shown.
#pragma once

#include "forms/Formulario.h"

#include <memory>

namespace sorvelo {

class JanelaApresenta : public Formulario {
    Q_OBJECT
public:
    // Makes the main window (the program's, or a test's).
    using FazPrincipal = std::function<std::unique_ptr<QWidget>()>;

    // `arquivo`: a bet file named on the command line, which the main window
    // opens after "Entrar" as Abrir does (empty: none).
    JanelaApresenta(Programa& p, FazPrincipal fazPrincipal, QString arquivo = QString());
    ~JanelaApresenta() override;

    // The main window, once "Entrar" has made it.
    QWidget* principal() const { return janela_; }
    // Hands the main window over to whoever keeps it from now on.
    std::unique_ptr<QWidget> tomaPrincipal() { return std::move(principal_); }
    // BtnEntrar.
    void entra();

signals:
    // The main window stands (the program ends when it does).
    void principalAberta(QWidget* janela);
    // The box was closed by its frame: the program ends.
    void encerrado();

protected:
    void closeEvent(QCloseEvent* e) override;
    // Esc does nothing: the box has no cancel.
    void reject() override {}

private:
    FazPrincipal fazPrincipal_;
    QString arquivo_;
    std::unique_ptr<QWidget> principal_;
    QWidget* janela_ = nullptr;
    bool entrou_ = false;
};

} // namespace sorvelo
