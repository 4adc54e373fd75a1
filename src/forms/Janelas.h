// The forms' side of Dialogos: each dialog that the logic asks for, shown
// as its form over the main window. A new dialog is its case in
// Janelas.cpp calling the function of its form's unit.
#pragma once

#include "forms/ConfApostas.h"
#include "forms/Digitacao.h"
#include "forms/JanelaNaoModal.h"
#include "forms/JogoAJogo.h"
#include "platform/Dialogos.h"
#include "programa/Programa.h"

class QWidget;

namespace sorvelo {

// Each form's unit defines the function that shows its dialog (modal:
// returns when it has closed); they are all declared here, so that
// Janelas.cpp needs no include of a new form.
void mostraJanelaCombinacoes(Programa& p, QWidget* pai);
void mostraJanelaInsereVetor(Programa& p, QWidget* pai);
void mostraJanelaFiltrar(Programa& p, QWidget* pai);
void mostraJanelaEliminar(Programa& p, QWidget* pai);
void mostraJanelaSortear(Programa& p, QWidget* pai);
void mostraJanelaSortComb(Programa& p, QWidget* pai);
void mostraJanelaDigitacao(Programa& p, QWidget* pai);
void mostraJanelaEntraTexto(Programa& p, QWidget* pai);
void mostraJanelaEstatisticas(Programa& p, QWidget* pai);
void mostraJanelaRelBanco(Programa& p, QWidget* pai);
void mostraJanelaCombinacoesReduz(Programa& p, QWidget* pai);
void mostraJanelaInsereVetorReduz(Programa& p, QWidget* pai);
void mostraJanelaCombSuperReduz(Programa& p, QWidget* pai);
void mostraJanelaJogoAJogo(Programa& p, QWidget* pai);
void mostraJanelaHelp(Programa& p, QWidget* pai);
void mostraJanelaTopicos(Programa& p, QWidget* pai);
void mostraJanelaSobre(Programa& p, QWidget* pai);
void mostraJanelaVerificaGarantia(Programa& p, QWidget* pai);
void mostraJanelaImportar(Programa& p, QWidget* pai);

class JanelasFormas : public Dialogos {
public:
    JanelasFormas();
    ~JanelasFormas() override;
    // The program and the main window, once both stand (Sorvelo does it).
    void liga(Programa& p, QWidget* principal);
    void mostra(Dialogo d) override;

    // Every window that is not modal, closed at once (the main window's end).
    void apagaTodas();

    // The windows that are not modal.
    JanelaNaoModal<JanelaConfApostas> confApostas;
    JanelaNaoModal<JanelaDigitacao> digitacao;
    JanelaNaoModal<JanelaJogoAJogo> jogoAJogo;

private:
    void mostraConfApostas();
    void mostraDigitacao();
    void mostraJogoAJogo();

    Programa* p_ = nullptr;
    QWidget* principal_ = nullptr;
};

} // namespace sorvelo
