// The dialog "Filtrar banco de apostas": eight rows of a check box, a limit
// with its scroll bar and a label, the remarks, the counter of the run.
// All the work is the logic's (edicao/Filtrar.h); the form binds the
// controls and repaints the counter through the platform while the run,
// which gives the message loop no turn, goes on.
#pragma once

#include "edicao/Filtrar.h"
#include "forms/Formulario.h"
#include "platform/qt/RepinturaQt.h"

#include <array>

class QCheckBox;
class QLineEdit;
class QScrollBar;

namespace sorvelo {

class JanelaFiltrar : public Formulario {
    Q_OBJECT
public:
    explicit JanelaFiltrar(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

private:
    Filtrar f_;
    RepinturaQt repintura_;
    std::array<QCheckBox*, 8> chk_{};
    std::array<QLineEdit*, 7> txt_{};
    std::array<QScrollBar*, 7> scr_{};
    QLabel *lblContador_ = nullptr, *lblObs_ = nullptr;
};

} // namespace sorvelo
