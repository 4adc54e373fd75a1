// The window "Conferência de apostas": not modal; it verifies the bank
// against the result marked on the grid when "Conferir banco" was pressed.
#pragma once

#include "Formulario.h"
#include "relatorios/Conferencia.h"

class QGroupBox;
class QLineEdit;

namespace sorvelo {

class AreaRica;

class JanelaConfApostas : public Formulario {
    Q_OBJECT
public:
    // `logica` is owned by the main window and outlives this window.
    JanelaConfApostas(Programa& p, ConfApostas& logica, QWidget* pai = nullptr);
    void sincroniza() override;
    // The next activation comes from the program, not from the person.
    void ignoraProximaAtivacao() { ignorarAtivacao_ = true; }

protected:
    bool event(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    ConfApostas& c_;
    QLabel* lblTitulo_;
    QLabel* lblMensagem_;
    QLineEdit* txtPontos_;
    AreaRica* rtfConf_;
    QGroupBox* fraConf_;
    bool ignorarAtivacao_ = true;
    bool mostrada_ = false;
};

} // namespace sorvelo
