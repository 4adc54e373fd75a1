// The window "Conferência jogo a jogo": not modal; the bet on view, its
// number, two arrows and "Sair".
#pragma once

#include "forms/Formulario.h"
#include "relatorios/JogoAJogo.h"

class QLineEdit;
class QPushButton;

namespace sorvelo {

class JanelaJogoAJogo : public Formulario {
    Q_OBJECT
public:
    JanelaJogoAJogo(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    JogoAJogo j_;
    QLineEdit* txtSeq_;
    QLineEdit* txtJogo_;
};

} // namespace sorvelo
