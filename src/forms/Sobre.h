// The about box "Sobre o Sorvelo" (modal).
#pragma once

#include "forms/Formulario.h"

namespace sorvelo {

class JanelaSobre : public Formulario {
    Q_OBJECT
public:
    JanelaSobre(Programa& p, QWidget* pai = nullptr);
};

} // namespace sorvelo
