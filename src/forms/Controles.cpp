#include "forms/Controles.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace sorvelo {

CelulaNumero::CelulaNumero(QWidget* pai) : QWidget(pai) {
    QFont f(QStringLiteral("Arial"));
    f.setPointSize(9);
    f.setBold(true);
    setFont(f);
}

void CelulaNumero::define(const QString& texto, QColor fundo, QColor frente) {
    if (texto == texto_ && fundo == fundo_ && frente == frente_) return;
    texto_ = texto;
    fundo_ = fundo;
    frente_ = frente;
    update();
}

void CelulaNumero::paintEvent(QPaintEvent*) {
    QPainter g(this);
    g.fillRect(rect(), fundo_);
    g.setPen(frente_);
    g.drawText(rect(), Qt::AlignCenter, texto_);
}

void CelulaNumero::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) emit clicked();
}

BotaoGiro::BotaoGiro(QWidget* pai) : QWidget(pai) {
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(0);
    cima_ = new QToolButton(this);
    baixo_ = new QToolButton(this);
    cima_->setArrowType(Qt::UpArrow);
    baixo_->setArrowType(Qt::DownArrow);
    for (QToolButton* b : {cima_, baixo_}) {
        b->setAutoRepeat(true);
        b->setFocusPolicy(Qt::NoFocus);
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        l->addWidget(b);
    }
    cima_->setObjectName(QStringLiteral("cima"));
    baixo_->setObjectName(QStringLiteral("baixo"));
    connect(cima_, &QToolButton::clicked, this, [this] { setValue(valor_ + 1); });
    connect(baixo_, &QToolButton::clicked, this, [this] { setValue(valor_ - 1); });
}

void BotaoGiro::setValue(int v) {
    v = qBound(min_, v, max_);
    if (v == valor_) return;
    valor_ = v;
    emit valueChanged(v);
}

void Figura::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) emit pressionado();
}

void Figura::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    emit solto();
    if (rect().contains(e->position().toPoint())) emit clicked();
}

void Figura::mouseMoveEvent(QMouseEvent* e) {
    const QPoint p = e->position().toPoint();
    emit movido(p.x(), p.y());
}

void selecionaAoFocar(QLineEdit* caixa, const QFocusEvent* e) {
    if (e->reason() != Qt::MouseFocusReason) {
        caixa->selectAll();
        return;
    }
    QTimer::singleShot(0, caixa, [caixa] {
        if (caixa->hasFocus()) caixa->selectAll();
    });
}

CaixaCombinacao::CaixaCombinacao(QWidget* pai) : QComboBox(pai) {
    connect(this, &QComboBox::activated, this, [this](int i) {
        if (!saindo_) emit escolhido(i);
    });
}

void CaixaCombinacao::focusOutEvent(QFocusEvent* e) {
    saindo_ = true;
    QComboBox::focusOutEvent(e);
    saindo_ = false;
}

void FiltroEnter::instala() {
    static FiltroEnter* filtro = nullptr;
    if (filtro || !qApp) return;
    filtro = new FiltroEnter(qApp);
    qApp->installEventFilter(filtro);
}

bool FiltroEnter::eventFilter(QObject* alvo, QEvent* e) {
    if (e->type() != QEvent::KeyPress) return false;
    auto* k = static_cast<QKeyEvent*>(e);
    if (k->key() != Qt::Key_Return && k->key() != Qt::Key_Enter) return false;
    auto* w = qobject_cast<QWidget*>(alvo);
    if (!w || !w->window() || !w->window()->property("sorvelo_forma").toBool()) return false;
    // A box that takes Enter for itself (the help page's command box).
    if (w->property("sorvelo_enter_proprio").toBool()) return false;
    // Widgets that are not the focus see the event too (parents); act once.
    if (w != QApplication::focusWidget()) return false;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(w, &tab);
    return true;
}

} // namespace sorvelo
