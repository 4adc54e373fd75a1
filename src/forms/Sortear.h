// The dialog "Sortear apostas": how many bets, how many numbers each, the
// numbers to guarantee and to bar, and the two options of frequency that
// stay on the dialog without effect.
#pragma once

#include "edicao/Sortear.h"
#include "forms/Formulario.h"

#include <array>

class QCheckBox;
class QLineEdit;
class QScrollBar;

namespace sorvelo {

class JanelaSortear : public Formulario {
    Q_OBJECT
public:
    explicit JanelaSortear(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

private:
    QScrollBar* barra(QWidget* pai, const char* nome, int x, int y, int valor);

    Sortear s_;
    QLineEdit *txtQuant_, *txtDez_, *txtMaisOco_, *txtMenosOco_;
    QScrollBar *scrQuant_, *scrDez_, *scrMaisOco_, *scrMenosOco_;
    std::array<QLineEdit*, Sortear::QuantCaixas> garantir_{}, excluir_{};
    QCheckBox *checkBox1_, *checkBox2_;
};

} // namespace sorvelo
