// The dialog "Combinações super reduzidas": it looks the reduced
// combination up in the game's table and rewrites the bank with it, as soon
// as it comes to the front. "Cancelar" closes it; the work goes on behind.
#pragma once

#include "combinacoes/SuperReducao.h"
#include "forms/Formulario.h"

namespace sorvelo {

class JanelaCombSuperReduz : public Formulario {
    Q_OBJECT
public:
    explicit JanelaCombSuperReduz(Programa& p, QWidget* pai = nullptr);

private:
    SuperReducao s_;
    QLabel* lblCont_;
};

} // namespace sorvelo
