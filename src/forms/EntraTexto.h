// The text prompt: one line of text, OK or Cancelar.
#pragma once

#include "forms/Formulario.h"
#include "relatorios/EntraTexto.h"

class QLineEdit;

namespace sorvelo {

class JanelaEntraTexto : public Formulario {
    Q_OBJECT
public:
    explicit JanelaEntraTexto(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

private:
    EntraTexto c_;
    QLabel* lblMensagem_;
    QLineEdit* txtTexto_;
};

// Shows the prompt modal with TextoPrompt and TextoDigitado; returns when it
// closes, TextoDigitado holding the answer.
void mostraJanelaEntraTexto(Programa& p, QWidget* pai);

} // namespace sorvelo
