// The help's topics form `Topicos` (modal): a click on a topic opens the
// tutorial or the page form.
#pragma once

#include "forms/Formulario.h"

namespace sorvelo {

class JanelaTopicos : public Formulario {
    Q_OBJECT
public:
    // A topic shows the page form, modal, over this one (p.dialogos).
    explicit JanelaTopicos(Programa& p, QWidget* pai = nullptr);
};

} // namespace sorvelo
