// The dialog "Importar apostas": the file being read with its progress, then
// what it holds (valid bets, refused lines and why), and the choice to
// append the valid bets to the bank or to cancel.
#pragma once

#include "edicao/Importar.h"
#include "forms/Formulario.h"

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace sorvelo {

class JanelaImportar : public Formulario {
    Q_OBJECT
public:
    JanelaImportar(Programa& p, const QString& caminho, QWidget* pai = nullptr);

protected:
    void atualizaTela() override;

private:
    Importar i_;
    QLabel *lblArquivo_, *lblResumo_;
    QProgressBar* prgLeitura_;
    QPlainTextEdit* txtRelatorio_;
    QPushButton* btnImportar_;
};

} // namespace sorvelo
