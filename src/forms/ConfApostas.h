// The window "Conferência de apostas": not modal; it verifies the bank
// against the result marked on the grid when "Conferir banco" was pressed.
#pragma once

#include "forms/Formulario.h"
#include "relatorios/Conferencia.h"

#include <memory>

class QGroupBox;
class QLineEdit;

namespace sorvelo {

class AreaRica;

class JanelaConfApostas : public Formulario {
    Q_OBJECT
public:
    // The window owns its logic, loaded already (ConfApostas::Carrega).
    JanelaConfApostas(Programa& p, std::unique_ptr<ConfApostas> logica, QWidget* pai = nullptr);
    ConfApostas& logica() { return *c_; }
    // The next activation comes from the program, not from the person.
    void ignoraProximaAtivacao() { ignorarAtivacao_ = true; }

protected:
    void atualizaTela() override;
    bool event(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    std::unique_ptr<ConfApostas> c_;
    AreaRica* rtfConf_;
    QGroupBox* fraConf_;
    bool ignorarAtivacao_ = true;
    bool mostrada_ = false;
};

} // namespace sorvelo
