// The dialog "InsereVetorReduz": the insertion that packs the subsets of a
// reduced combination into bets and writes them to the bank, as soon as it
// comes to the front.
#pragma once

#include "combinacoes/InsereVetorReduz.h"
#include "forms/Formulario.h"

namespace sorvelo {

class JanelaInsereVetorReduz : public Formulario {
    Q_OBJECT
public:
    explicit JanelaInsereVetorReduz(Programa& p, QWidget* pai = nullptr);

private:
    InsereVetorReduz v_;
    QLabel* lblCont_;
};

} // namespace sorvelo
