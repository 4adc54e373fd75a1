// What every form needs to lay out and wire its controls: lengths in twips
// turned into pixels at the screen's resolution (15 twips a pixel at 96 DPI),
// placing a control with its name, and connecting a signal to a handler that
// runs protected and then refreshes the form.
#pragma once

#include "forms/Molduras.h"
#include "forms/Protecao.h"

#include <QLabel>
#include <QObject>
#include <QWidget>

#include <functional>
#include <type_traits>

namespace sorvelo {

class Escala {
public:
    explicit Escala(const QWidget* referencia = nullptr);
    int tw(int twips) const;
    int deTw(int pixels) const;
    double dpi() const { return dpi_; }
    // Places w in pai at x, y, with width l and height a (twips), named nome;
    // in a frame, measured from the frame's inner top (Molduras.h).
    template <typename W> W* poe(W* w, QWidget* pai, const char* nome, int x, int y, int l, int a) const {
        w->setParent(pai);
        if (nome) w->setObjectName(QString::fromUtf8(nome));
        w->setGeometry(tw(x), tw(y), tw(l), tw(a));
        registraNaMoldura(*this, pai, w);
        return w;
    }
    QLabel* rotulo(QWidget* pai, const QString& texto, int x, int y, int l, int a,
                   const char* nome = nullptr) const;

private:
    double dpi_ = 96;
};

// Connects a signal to a handler. The handler gets the signal's arguments
// when it takes them; it runs through executaProtegido, then `depois`
// (the form's refresh) runs. While `bloqueado` is true, nothing runs (the
// form is writing its own controls).
template <typename S, typename Sinal, typename F>
void ligaProtegido(QObject* contexto, S* emissor, Sinal sinal, const bool* bloqueado,
                   std::function<void()> depois, F f) {
    QObject::connect(emissor, sinal, contexto, [bloqueado, depois, f](auto... args) {
        if (bloqueado && *bloqueado) return;
        executaProtegido([&] {
            if constexpr (std::is_invocable_v<const F&, decltype(args)...>)
                f(args...);
            else
                f();
        });
        if (depois) depois();
    });
}

} // namespace sorvelo
