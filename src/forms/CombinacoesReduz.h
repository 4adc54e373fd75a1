// The dialogs of a reduced combination: "Combinações reduzidas" (the
// parameters and the run of the generator) and the insertion that packs the
// subsets into bets and writes them to the bank.
#pragma once

#include "Formulario.h"
#include "combinacoes/CombinacaoReduzida.h"
#include "combinacoes/InsereVetorReduz.h"

class QProgressBar;

namespace sorvelo {

class JanelaCombinacoesReduz : public Formulario {
    Q_OBJECT
public:
    explicit JanelaCombinacoesReduz(Programa& p, QWidget* pai = nullptr);
    ~JanelaCombinacoesReduz() override;
    void sincroniza() override;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    CombinacoesReduz c_;
    QLabel *lblDezComb_, *lblDezApo_, *lblGarantia_, *lblAcertar_, *lblMensagem_;
    QProgressBar* progresso_;
};

class JanelaInsereVetorReduz : public Formulario {
    Q_OBJECT
public:
    explicit JanelaInsereVetorReduz(Programa& p, QWidget* pai = nullptr);
    void sincroniza() override;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    InsereVetorReduz v_;
    QLabel *lblMensagem_, *lblCont_, *lblTotal_;
};

// The functions through which the main window shows the reduced
// combination's dialogs.
JanelasReducao janelasReducao(QWidget* pai);

} // namespace sorvelo
