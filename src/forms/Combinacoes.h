// The dialogs of a full combination: "Combinações" (count, cost, the run of
// the generator with its progress bar) and the insertion into the bank.
#pragma once

#include "Formulario.h"
#include "combinacoes/Combinacao.h"
#include "combinacoes/InsereVetor.h"

class QCheckBox;
class QProgressBar;

namespace sorvelo {

class JanelaCombinacoes : public Formulario {
    Q_OBJECT
public:
    explicit JanelaCombinacoes(Programa& p, QWidget* pai = nullptr);
    ~JanelaCombinacoes() override;
    void sincroniza() override;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    Combinacoes c_;
    QLabel *lblDezComb_, *lblDezCart_, *lblTotAp_, *lblValAp_, *lblMensagem_;
    QCheckBox *chkEst_, *chkAuto_;
    QProgressBar* progresso_;
};

class JanelaInsereVetor : public Formulario {
    Q_OBJECT
public:
    explicit JanelaInsereVetor(Programa& p, QWidget* pai = nullptr);
    void sincroniza() override;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    InsereVetor v_;
    QLabel *lblCont_, *lblTotal_;
};

// The functions through which the main window shows the two dialogs.
JanelasCombinacao janelasCombinacao(QWidget* pai, std::function<void()> caretNoFim);

} // namespace sorvelo
