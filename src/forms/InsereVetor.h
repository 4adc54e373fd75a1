// The dialog "InsereVetor": the insertion of a combination into the bank,
// its count going up while the whole work runs; it starts when the dialog
// first comes to the front.
#pragma once

#include "combinacoes/InsereVetor.h"
#include "forms/Formulario.h"

namespace sorvelo {

class JanelaInsereVetor : public Formulario {
    Q_OBJECT
public:
    explicit JanelaInsereVetor(Programa& p, QWidget* pai = nullptr);

private:
    InsereVetor v_;
    QLabel* lblCont_;
    Ligacao rotulos_;
};

// Shows the dialog modal over `pai`; returns when it has closed.
void mostraJanelaInsereVetor(Programa& p, QWidget* pai);

} // namespace sorvelo
