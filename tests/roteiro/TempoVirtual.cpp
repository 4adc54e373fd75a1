#include "roteiro/TempoVirtual.h"

#include <QCoreApplication>
#include <QTimerEvent>
#include <QWidget>

namespace sorvelo::roteiro {

void TempoVirtual::adota(QWidget* forma) {
    for (QTimer* t : forma->findChildren<QTimer*>()) {
        if (t->objectName().isEmpty() || t->interval() <= 0) continue;
        bool conhecido = false;
        for (const Relogio& r : relogios_)
            conhecido = conhecido || r.timer == t;
        if (conhecido) continue;
        t->installEventFilter(this);
        relogios_.push_back({t, agora_ + t->interval(), t->isActive()});
    }
}

void TempoVirtual::observa() {
    for (Relogio& r : relogios_) {
        if (!r.timer) continue;
        const bool ativo = r.timer->isActive();
        if (ativo && !r.ativo) r.proximo = agora_ + r.timer->interval();
        r.ativo = ativo;
    }
}

void TempoVirtual::avanca(int64_t ms, const std::function<bool()>& entreTicks) {
    const int64_t alvo = agora_ + ms;
    for (;;) {
        observa();
        Relogio* proximo = nullptr;
        for (Relogio& r : relogios_)
            if (r.timer && r.ativo && r.proximo <= alvo && (!proximo || r.proximo < proximo->proximo))
                proximo = &r;
        if (!proximo) break;
        agora_ = proximo->proximo;
        proximo->proximo += std::max(1, proximo->timer->interval());
        QPointer<QTimer> t = proximo->timer;
        QTimerEvent tick(t->timerId());
        const QEvent* antes = entregando_;
        entregando_ = &tick;
        QCoreApplication::sendEvent(t, &tick);
        entregando_ = antes;
        if (entreTicks && !entreTicks()) return;
    }
    agora_ = alvo;
}

bool TempoVirtual::eventFilter(QObject* alvo, QEvent* e) {
    // The real ticks are held back; only the virtual one goes through.
    if (e->type() == QEvent::Timer && e != entregando_ && qobject_cast<QTimer*>(alvo)) return true;
    return QObject::eventFilter(alvo, e);
}

} // namespace sorvelo::roteiro
