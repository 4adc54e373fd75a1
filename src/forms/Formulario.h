// The base of every form of the program.
//
// FormaBase (the main window's base too): the program's state, lengths in
// twips, placing a named control, wiring a signal to a handler that runs
// protected and then brings the form up to date, and binding a control to
// its model field in one line (vincula), both ways where the control is
// edited. While the form writes its own controls (sincroniza) nothing that
// they signal reaches the model: that guard lives here and nowhere else.
//
// Formulario: a dialog. Its logic is a LogicaDialogo (core/LogicaDialogo.h):
// when the logic closes, the window closes; Esc and the close button of the
// window's frame both go to the logic's fechaPelaMoldura(). A dialog is made
// anew at each opening, so its controls start from their defaults.
#pragma once

#include "core/LogicaDialogo.h"
#include "forms/Montagem.h"
#include "platform/qt/Vista.h"
#include "programa/Programa.h"

#include <QDialog>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QProgressBar;

namespace sorvelo {

class FormaBase : public Vista {
public:
    FormaBase(Programa& p, QWidget* janela);

    // The model onto the controls: the bindings, then atualizaTela().
    void sincroniza() final;
    Programa& programa() { return p_; }
    int tw(int twips) const { return escala_.tw(twips); }
    int deTw(int pixels) const { return escala_.deTw(pixels); }

protected:
    // What the form shows beyond its bindings (sizes, pictures, layout).
    virtual void atualizaTela() {}

    template <typename S, typename Sinal, typename F> void liga(S* emissor, Sinal sinal, F f) {
        ligaProtegido(
            janela_, emissor, sinal, &sincronizando_, [this] { sincroniza(); }, std::move(f));
    }
    template <typename W> W* poe(W* w, QWidget* pai, const char* nome, int x, int y, int l, int a) {
        return escala_.poe(w, pai, nome, x, y, l, a);
    }
    QLabel* rotulo(QWidget* pai, const QString& texto, int x, int y, int l, int a,
                   const char* nome = nullptr) {
        return escala_.rotulo(pai, texto, x, y, l, a, nome);
    }

    // The model's text on a label.
    void vincula(QLabel* w, const QString& texto);
    // A text box both ways: the model's text and state on it, what the
    // person types into the model (its caret left alone while it is equal).
    void vincula(QLineEdit* w, CampoTexto& campo);
    // An editable combo box both ways (its edit text).
    void vincula(QComboBox* w, Combo& campo);
    // A check box both ways: the model's value on it, a click into the model.
    void vincula(QCheckBox* w, CaixaMarcar& campo);
    // A check box whose click is the logic's handler: the model on it only.
    void vincula(QCheckBox* w, const CaixaMarcar& campo, const bool& visivel);
    // Anything else: f runs at each sincroniza.
    void vincula(std::function<void()> f) { vinculos_.push_back(std::move(f)); }

    // True while the form writes its own controls.
    bool sincronizando() const { return sincronizando_; }

    Programa& p_;
    Escala escala_;

private:
    QWidget* janela_;
    std::vector<std::function<void()>> vinculos_;
    bool sincronizando_ = false;
};

class Formulario : public QDialog, public FormaBase {
    Q_OBJECT
public:
    Formulario(Programa& p, const char* nome, const QString& titulo, QWidget* pai = nullptr);

    // Shows the dialog modal and returns when it closes.
    void mostraModal();
    // Shows it without a modal state; it is deleted when it closes.
    void mostra();

    // Esc: the same path as the frame's close button.
    void reject() override;

protected:
    // The dialog's logic (a member of the form, made before this call):
    // its close closes the window, its message is seen at once, Esc and
    // the frame go to its fechaPelaMoldura().
    void ligaLogica(LogicaDialogo& logica);
    void closeEvent(QCloseEvent* e) override;
    // Size of the client area in twips.
    void tamanho(int largura, int altura);
    // The dialog's whole work, run once (protected, then the form brought up
    // to date) when the dialog first comes to the front and its modal loop
    // is running.
    void rodaAoAparecer(std::function<void()> trabalho) { aoAparecer_ = std::move(trabalho); }
    void showEvent(QShowEvent* e) override;
    // Places a control in the dialog itself.
    QLabel* rotulo(const QString& texto, int x, int y, int l, int a, const char* nome = nullptr) {
        return FormaBase::rotulo(this, texto, x, y, l, a, nome);
    }
    using FormaBase::rotulo;

private:
    LogicaDialogo* logica_ = nullptr;
    Ligacao fechou_, mensagem_;
    std::function<void()> aoAparecer_;
    bool agendado_ = false;
};

} // namespace sorvelo
