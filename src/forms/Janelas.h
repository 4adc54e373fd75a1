// The forms' side of Dialogos: each dialog that the logic asks for, shown
// as its form over the main window. A new dialog is its case in
// Janelas.cpp calling the function of its form's unit.
#pragma once

#include "forms/ConfApostas.h"
#include "forms/JanelaNaoModal.h"
#include "platform/Dialogos.h"
#include "programa/Programa.h"

class QWidget;

namespace sorvelo {

class JanelasFormas : public Dialogos {
public:
    // The program and the main window, once both stand (Sorvelo does it).
    void liga(Programa& p, QWidget* principal);
    void mostra(Dialogo d) override;

    // The windows that are not modal.
    JanelaNaoModal<JanelaConfApostas> confApostas;

private:
    void mostraConfApostas();

    Programa* p_ = nullptr;
    QWidget* principal_ = nullptr;
};

} // namespace sorvelo
