#include "forms/Molduras.h"

#include "forms/Montagem.h"

#include <QEvent>
#include <QGroupBox>
#include <QPointer>

#include <climits>
#include <vector>

namespace sorvelo {

namespace {

// Kept by each frame: its controls and how far they were moved down.
class AjusteMoldura : public QObject {
public:
    AjusteMoldura(QGroupBox* moldura, int topoInterno)
        : QObject(moldura), moldura_(moldura), topo_(topoInterno), alturaDesenho_(moldura->height()) {
        setObjectName(QStringLiteral("AjusteMoldura"));
        moldura->installEventFilter(this);
    }

    void acrescenta(QWidget* filho) {
        filhos_.push_back({filho, filho->geometry()});
        ajusta();
    }
    int descida() const { return descida_; }

    // Places the controls anew from their places in the layout: as far below
    // the inner top as the layout puts them, where the frame has the room;
    // never above the frame's contents, the frame growing when they would
    // otherwise run past its bottom.
    void ajusta() {
        const QRect dentro = moldura_->contentsRect();
        int topo = INT_MAX, fundo = 0;
        for (const Filho& f : filhos_) {
            if (!f.w) continue;
            topo = qMin(topo, f.desenho.top());
            fundo = qMax(fundo, f.desenho.bottom() + 1);
        }
        if (topo == INT_MAX) return;
        const int desejada = qMax(0, dentro.top() - topo_);
        const int minima = qMax(0, dentro.top() - topo);
        const int espaco = qMax(0, dentro.bottom() + 1 - fundo);
        descida_ = qMax(minima, qMin(desejada, espaco));
        for (const Filho& f : filhos_)
            if (f.w) f.w->move(f.w->x(), f.desenho.y() + descida_);
        const int altura = alturaDesenho_ + qMax(0, descida_ - espaco);
        if (altura != moldura_->height()) moldura_->resize(moldura_->width(), altura);
    }

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override {
        // The frame's caption, font or style sets its contents margins anew.
        if (alvo == moldura_ && e->type() == QEvent::ContentsRectChange) ajusta();
        return false;
    }

private:
    QGroupBox* moldura_;
    // A control and its place in the layout, in pixels from the frame's
    // outer top.
    struct Filho {
        QPointer<QWidget> w;
        QRect desenho;
    };
    int topo_;
    int alturaDesenho_;
    int descida_ = 0;
    std::vector<Filho> filhos_;
};

AjusteMoldura* ajusteDe(const QWidget* moldura) {
    return moldura ? moldura->findChild<AjusteMoldura*>(QStringLiteral("AjusteMoldura"),
                                                        Qt::FindDirectChildrenOnly)
                   : nullptr;
}

} // namespace

void registraNaMoldura(const Escala& escala, QWidget* pai, QWidget* filho) {
    auto* moldura = qobject_cast<QGroupBox*>(pai);
    if (!moldura || !filho) return;
    AjusteMoldura* ajuste = ajusteDe(moldura);
    if (!ajuste) ajuste = new AjusteMoldura(moldura, escala.tw(TopoInternoMoldura));
    ajuste->acrescenta(filho);
}

int descidaNaMoldura(const QWidget* moldura) {
    const AjusteMoldura* ajuste = ajusteDe(moldura);
    return ajuste ? ajuste->descida() : 0;
}

} // namespace sorvelo
