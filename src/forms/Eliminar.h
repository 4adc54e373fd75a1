// The dialog "Eliminação aleatória de números": the quantity to strike from
// every bet, the counter and "Iniciar". The work is the logic's
// (edicao/Eliminar.h); the run yields every 13 bets, and the dialog can be
// clicked and closed meanwhile: the form stays alive until the run returns.
#pragma once

#include "edicao/Eliminar.h"
#include "forms/Formulario.h"

class QLineEdit;

namespace sorvelo {

class JanelaEliminar : public Formulario {
    Q_OBJECT
public:
    explicit JanelaEliminar(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

private:
    Eliminar e_;
    QLineEdit* txtQuant_ = nullptr;
    QLabel* lblCont_ = nullptr;
};

} // namespace sorvelo
