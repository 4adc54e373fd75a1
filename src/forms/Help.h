// The help's page form `Help` (modal, closed by a click in the text, Enter
// or Esc).
#pragma once

#include "forms/Formulario.h"
#include "relatorios/Ajuda.h"

class QLineEdit;
class QTextEdit;

namespace sorvelo {

class JanelaHelp : public Formulario {
    Q_OBJECT
public:
    JanelaHelp(Programa& p, QWidget* pai = nullptr);
    void atualizaTela() override;

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    Help h_;
    QLineEdit* txtComando_;
    QTextEdit* rtfHelp_;
};

} // namespace sorvelo
