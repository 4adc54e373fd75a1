// The window "Estatística de acerto" (captioned as the verification window,
// on purpose): modal; a run has no yield and no cancel.
#pragma once

#include "forms/Formulario.h"
#include "relatorios/Estatisticas.h"

class QGroupBox;
class QLineEdit;

namespace sorvelo {

class AreaRica;

class JanelaEstatisticas : public Formulario {
    Q_OBJECT
public:
    explicit JanelaEstatisticas(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    Estatisticas c_;
    QLineEdit* txtPontos_;
    AreaRica* rtfConf_;
    QGroupBox* fraConf_;
};

// CommandButton2 on the main window: shows the window modal.
void mostraJanelaEstatisticas(Programa& p, QWidget* pai);

} // namespace sorvelo
