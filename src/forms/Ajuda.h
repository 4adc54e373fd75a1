// The help windows: the page form `Help` (modal, closed by a click in the
// text, Enter or Esc) and the topics form `Topicos` (modal).
#pragma once

#include "Formulario.h"
#include "relatorios/Ajuda.h"

#include <functional>

class QLineEdit;
class QTextEdit;

namespace sorvelo {

class JanelaHelp : public Formulario {
    Q_OBJECT
public:
    JanelaHelp(Programa& p, QWidget* pai = nullptr);
    void sincroniza() override;

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    Help h_;
    QLineEdit* txtComando_;
    QTextEdit* rtfHelp_;
};

class JanelaTopicos : public Formulario {
    Q_OBJECT
public:
    // `mostraHelp` shows the page form, modal, over this one.
    JanelaTopicos(Programa& p, std::function<void()> mostraHelp, QWidget* pai = nullptr);

private:
    std::function<void()> mostraHelp_;
};

} // namespace sorvelo
