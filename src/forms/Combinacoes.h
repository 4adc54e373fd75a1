// The dialog "Combinações" of a full combination and of a closing: count,
// cost, the run of the generator with its progress bar.
#pragma once

#include "combinacoes/Combinacao.h"
#include "forms/Formulario.h"

namespace sorvelo {

class JanelaCombinacoes : public Formulario {
    Q_OBJECT
public:
    explicit JanelaCombinacoes(Programa& p, QWidget* pai = nullptr);

protected:
    void atualizaTela() override;

private:
    Combinacoes c_;
    QLabel *lblTotAp_, *lblValAp_;
    QProgressBar* progresso_;
    Ligacao progressoMudou_;
};

// Shows the dialog modal over `pai`; returns when it has closed.
void mostraJanelaCombinacoes(Programa& p, QWidget* pai);

} // namespace sorvelo
