#include "forms/Molduras.h"

#include "forms/Montagem.h"

#include <QEvent>
#include <QGroupBox>
#include <QPointer>

#include <vector>

namespace sorvelo {

namespace {

// Kept by each frame: its controls and how far they were moved down.
class AjusteMoldura : public QObject {
public:
    AjusteMoldura(QGroupBox* moldura, int topoInterno)
        : QObject(moldura), moldura_(moldura), topo_(topoInterno) {
        setObjectName(QStringLiteral("AjusteMoldura"));
        moldura->installEventFilter(this);
    }

    void acrescenta(QWidget* filho) {
        filhos_.emplace_back(filho);
        filho->move(filho->x(), filho->y() + descida_);
        ajusta();
    }
    int descida() const { return descida_; }

    // The frame's inner top moved: its controls and its bottom follow.
    void ajusta() {
        const int nova = qMax(0, moldura_->contentsRect().top() - topo_);
        const int delta = nova - descida_;
        if (delta == 0) return;
        descida_ = nova;
        for (const QPointer<QWidget>& f : filhos_)
            if (f) f->move(f->x(), f->y() + delta);
        moldura_->resize(moldura_->width(), moldura_->height() + delta);
    }

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override {
        // The frame's caption, font or style sets its contents margins anew.
        if (alvo == moldura_ && e->type() == QEvent::ContentsRectChange) ajusta();
        return false;
    }

private:
    QGroupBox* moldura_;
    int topo_;
    int descida_ = 0;
    std::vector<QPointer<QWidget>> filhos_;
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
