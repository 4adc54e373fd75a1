#include "forms/Montagem.h"

#include <QGuiApplication>
#include <QScreen>

namespace sorvelo {

Escala::Escala(const QWidget* referencia) {
    const QScreen* tela =
        referencia && referencia->screen() ? referencia->screen() : QGuiApplication::primaryScreen();
    if (tela) dpi_ = tela->logicalDotsPerInchX();
}

int Escala::tw(int twips) const {
    return qRound(twips * dpi_ / 1440.0);
}
int Escala::deTw(int pixels) const {
    return qRound(pixels * 1440.0 / dpi_);
}

QLabel* Escala::rotulo(QWidget* pai, const QString& texto, int x, int y, int l, int a,
                       const char* nome) const {
    auto* r = poe(new QLabel(texto), pai, nome, x, y, l, a);
    if (!nome) r->setAttribute(Qt::WA_TransparentForMouseEvents);
    return r;
}

} // namespace sorvelo
