// The window "Digitação de apostas": not modal, beside the main window. The
// person types the numbers of a bet into a row of cells, adds the bet to a
// pending list, and moves the list into the bank in one step.
#pragma once

#include "edicao/Digitacao.h"
#include "forms/Formulario.h"

#include <array>

class QLineEdit;
class QListWidget;
class QPushButton;
class QTextEdit;

namespace sorvelo {

class JanelaDigitacao : public Formulario {
    Q_OBJECT
public:
    explicit JanelaDigitacao(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;
    Digitacao& logica() { return d_; }

protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    QWidget* widgetDe(Digitacao::Foco f) const;
    bool focoDe(QObject* w, Digitacao::Foco& f) const;
    int celulaDe(QObject* w) const;

    Digitacao d_;
    QLineEdit* txtQNum_;
    std::array<QLineEdit*, Digitacao::QuantCelulas> txtNum_{};
    QListWidget* lstApostas_;
    QTextEdit* rtfRascunho_;
    QPushButton *btnInserir_, *btnExcluir_, *btnInserirBanco_, *btnSair_;
};

} // namespace sorvelo
