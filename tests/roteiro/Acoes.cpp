#include "roteiro/Acoes.h"

#include "forms/Controles.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextEdit>

namespace sorvelo::roteiro {

namespace {

void focaliza(QWidget* w, Qt::FocusReason razao) {
    ativa(w->window());
    w->setFocus(razao);
}

void mouse(QWidget* w, QEvent::Type tipo, QPoint ponto, Qt::MouseButton botao, Qt::MouseButtons botoes) {
    QMouseEvent e(tipo, QPointF(ponto), QPointF(w->mapToGlobal(ponto)), botao, botoes, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

void cliqueMouse(QWidget* w, QPoint ponto) {
    mouse(w, QEvent::MouseButtonPress, ponto, Qt::LeftButton, Qt::LeftButton);
    mouse(w, QEvent::MouseButtonRelease, ponto, Qt::LeftButton, Qt::NoButton);
}

// The key press and release go where the focus is, as a keyboard's do.
void teclaEvento(QWidget* w, int codigo, const QString& texto) {
    for (QEvent::Type tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWidget* alvo = QApplication::focusWidget() ? QApplication::focusWidget() : w;
        QKeyEvent e(tipo, codigo, Qt::NoModifier, texto);
        QApplication::sendEvent(alvo, &e);
    }
    QCoreApplication::sendPostedEvents();
}

int codigoDe(QChar c) {
    if (c == u'\r' || c == u'\n') return Qt::Key_Return;
    if (c == u'\t') return Qt::Key_Tab;
    if (c.isLetter() && c.unicode() < 128) return c.toUpper().unicode();
    if (c.unicode() >= 0x20 && c.unicode() < 0x7F) return c.unicode();
    if (c.unicode() >= 0xA0 && c.unicode() <= 0xFF) return c.toUpper().unicode();
    return Qt::Key_unknown;
}

void selecionaTudo(QWidget* w) {
    if (auto* e = qobject_cast<QLineEdit*>(w))
        e->selectAll();
    else if (auto* c = qobject_cast<QComboBox*>(w); c && c->lineEdit())
        c->lineEdit()->selectAll();
    else if (auto* s = qobject_cast<QAbstractSpinBox*>(w))
        s->selectAll();
    else if (auto* t = qobject_cast<QTextEdit*>(w))
        t->selectAll();
    else if (auto* p = qobject_cast<QPlainTextEdit*>(w))
        p->selectAll();
}

} // namespace

void ativa(QWidget* janela) {
    if (!janela || QApplication::activeWindow() == janela) return;
    janela->activateWindow();
    QApplication::setActiveWindow(janela);
}

QString clica(QObject* controle) {
    if (auto* a = qobject_cast<QAction*>(controle)) {
        if (!a->isVisible()) return QStringLiteral("a entrada está oculta");
        a->trigger();
        return QString();
    }
    auto* w = qobject_cast<QWidget*>(controle);
    if (!w) return QStringLiteral("não é um controle que se clique");
    if (!w->isVisible()) return QStringLiteral("o controle está oculto");
    if (w->isEnabled() && (w->focusPolicy() & Qt::ClickFocus)) focaliza(w, Qt::MouseFocusReason);
    if (auto* b = qobject_cast<QAbstractButton*>(w))
        b->click();
    else
        cliqueMouse(w, w->rect().center());
    return QString();
}

QString digita(QWidget* controle, const QString& texto) {
    if (!controle->isVisible()) return QStringLiteral("o controle está oculto");
    // A person can't type into a disabled box; the keys would go elsewhere.
    if (!controle->isEnabled()) return QStringLiteral("o controle está desabilitado");
    focaliza(controle, Qt::OtherFocusReason);
    selecionaTudo(controle);
    for (QChar c : texto)
        teclaEvento(controle, codigoDe(c), QString(c));
    return QString();
}

QString tecla(QWidget* controle, const QString& nome) {
    struct Tecla {
        const char16_t* nome;
        int codigo;
        const char16_t* texto;
    };
    static const Tecla teclas[] = {{u"Enter", Qt::Key_Return, u"\r"},
                                   {u"Tab", Qt::Key_Tab, u"\t"},
                                   {u"Esc", Qt::Key_Escape, u"\x1b"},
                                   {u"Esquerda", Qt::Key_Left, u""},
                                   {u"Direita", Qt::Key_Right, u""},
                                   {u"Cima", Qt::Key_Up, u""},
                                   {u"Baixo", Qt::Key_Down, u""},
                                   {u"Apagar", Qt::Key_Delete, u"\x7f"},
                                   {u"Retrocesso", Qt::Key_Backspace, u"\b"}};
    for (const Tecla& t : teclas) {
        if (nome != QStringView(t.nome)) continue;
        if (!controle->isVisible()) return QStringLiteral("o controle está oculto");
        if (!controle->isEnabled()) return QStringLiteral("o controle está desabilitado");
        focaliza(controle, Qt::OtherFocusReason);
        teclaEvento(controle, t.codigo, QString::fromUtf16(t.texto));
        return QString();
    }
    return QStringLiteral("tecla desconhecida: %1").arg(nome);
}

QString escolhe(QWidget* controle, const QString& item) {
    if (auto* c = qobject_cast<QComboBox*>(controle)) {
        const int i = c->findText(item, Qt::MatchExactly);
        if (i < 0) return QStringLiteral("a lista não tem o item");
        if (!c->isEnabled()) return QString();
        c->setCurrentIndex(i);
        emit c->activated(i);
        emit c->textActivated(c->itemText(i));
        return QString();
    }
    if (auto* v = qobject_cast<QAbstractItemView*>(controle)) {
        QAbstractItemModel* m = v->model();
        const QModelIndexList achados =
            m && m->rowCount() > 0 ? m->match(m->index(0, 0), Qt::DisplayRole, item, 1, Qt::MatchExactly)
                                   : QModelIndexList();
        if (achados.isEmpty()) return QStringLiteral("a lista não tem o item");
        v->scrollTo(achados.front());
        cliqueMouse(v->viewport(), v->visualRect(achados.front()).center());
        return QString();
    }
    return QStringLiteral("não é uma lista");
}

QString rola(QWidget* controle, int valor) {
    const bool habilitado = controle->isEnabled();
    // A disabled control does not move for a person.
    if (auto* s = qobject_cast<QAbstractSlider*>(controle)) {
        if (habilitado) s->setValue(valor);
    } else if (auto* g = qobject_cast<BotaoGiro*>(controle)) {
        if (habilitado) g->setValue(valor);
    } else if (auto* sp = qobject_cast<QSpinBox*>(controle)) {
        if (habilitado) sp->setValue(valor);
    } else
        return QStringLiteral("não é uma barra de rolagem nem um botão de giro");
    return QString();
}

void move(QWidget* controle, QPoint ponto) {
    mouse(controle, QEvent::MouseMove, ponto, Qt::NoButton, Qt::NoButton);
}

} // namespace sorvelo::roteiro
