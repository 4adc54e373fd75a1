// The window "Verificar garantia": the listing of the guarantee check of
// the bank, with "Imprimir" and "Fechar". Modal; the logic is made by the
// main window at each opening.
#pragma once

#include "forms/Formulario.h"
#include "relatorios/GarantiaBanco.h"

namespace sorvelo {

class AreaRica;

class JanelaVerificaGarantia : public Formulario {
    Q_OBJECT
public:
    JanelaVerificaGarantia(Programa& p, VerificaGarantia& logica, QWidget* pai = nullptr);
    void atualizaTela() override;

private:
    VerificaGarantia& v_;
    AreaRica* rtf_;
};

// "Verificar garantia" on the menu Relatórios: counts, then shows the window.
void mostraJanelaVerificaGarantia(Programa& p, QWidget* pai);

} // namespace sorvelo
