// The base of the program's dialogs: each with its form's name and
// caption, Enter moving the focus, modal or not. A dialog is made anew at
// each opening, so its controls start from their defaults each time.
#pragma once

#include "Montagem.h"
#include "core/Estado.h"

#include <QDialog>

#include <functional>

namespace sorvelo {

class Formulario : public QDialog {
    Q_OBJECT
public:
    Formulario(Programa& p, const char* nome, const QString& titulo, QWidget* pai = nullptr);

    // Shows the dialog modal and returns when it closes.
    void mostraModal();
    // Shows it without a modal state; it is deleted when it closes.
    void mostra();
    // The logic's model onto the controls.
    virtual void sincroniza() {}

    int tw(int twips) const { return escala_.tw(twips); }

protected:
    template <typename S, typename Sinal, typename F> void liga(S* emissor, Sinal sinal, F f) {
        ligaProtegido(
            this, emissor, sinal, &sincronizando_, [this] { sincroniza(); }, std::move(f));
    }
    template <typename W> W* poe(W* w, QWidget* pai, const char* nome, int x, int y, int l, int a) {
        return escala_.poe(w, pai, nome, x, y, l, a);
    }
    QLabel* rotulo(const QString& texto, int x, int y, int l, int a, const char* nome = nullptr) {
        return escala_.rotulo(this, texto, x, y, l, a, nome);
    }
    // Size of the client area in twips.
    void tamanho(int largura, int altura);
    // The dialog's whole work, run once (protected, then the form brought up
    // to date) when the dialog first comes to the front and its modal loop
    // is running.
    void rodaAoAparecer(std::function<void()> trabalho) { aoAparecer_ = std::move(trabalho); }
    void showEvent(QShowEvent* e) override;

    Programa& p_;
    Escala escala_;
    bool sincronizando_ = false;

private:
    std::function<void()> aoAparecer_;
    bool agendado_ = false;
};

} // namespace sorvelo
