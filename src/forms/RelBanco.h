// The window "Listagem do banco de apostas": the listing in an editable
// rich-text view that paints only the lines in sight, a font and a size for
// the whole listing, and printing. Modal.
#pragma once

#include "forms/Formulario.h"
#include "relatorios/RelBanco.h"

class QComboBox;

namespace sorvelo {

class AreaRica;

class JanelaRelBanco : public Formulario {
    Q_OBJECT
public:
    explicit JanelaRelBanco(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;
    RelBanco& logica() { return c_; }

protected:
    void showEvent(QShowEvent* e) override;

private:
    void aplicaFonte();
    RelBanco c_;
    AreaRica* rtfRel_;
    QComboBox *cmbFonte_, *cmbTamanho_;
};

// MenuImpBanco and toolbar button 4: shows the window modal.
void mostraJanelaRelBanco(Programa& p, QWidget* pai);

} // namespace sorvelo
