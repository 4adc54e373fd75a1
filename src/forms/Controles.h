// Small controls of the forms: the grid cell, the spin button, a clickable
// picture, and the filter that makes Enter move the focus.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QObject>
#include <QWidget>

class QFocusEvent;
class QLineEdit;
class QToolButton;

namespace sorvelo {

// A label cell of the grid: centred text on a back colour.
class CelulaNumero : public QWidget {
    Q_OBJECT
public:
    explicit CelulaNumero(QWidget* pai = nullptr);
    void define(const QString& texto, QColor fundo, QColor frente);
    QString text() const { return texto_; }
    QColor fundo() const { return fundo_; }
    QColor frente() const { return frente_; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    QString texto_;
    QColor fundo_, frente_;
};

// Up and down arrows over a value from Min to Max.
class BotaoGiro : public QWidget {
    Q_OBJECT
public:
    explicit BotaoGiro(QWidget* pai = nullptr);
    int value() const { return valor_; }
    // Sets the value; valueChanged is raised when it changes.
    void setValue(int v);
    void setValueSilencioso(int v) { valor_ = v; }
    void setRange(int min, int max) {
        min_ = min;
        max_ = max;
    }

signals:
    void valueChanged(int);

private:
    QToolButton *cima_, *baixo_;
    int valor_ = 0, min_ = 0, max_ = 100;
};

// A picture that answers clicks and reports the mouse.
class Figura : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

signals:
    void clicked();
    void pressionado();
    void solto();
    void movido(int x, int y);

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
};

// SelecionaTexto on a box that gets the focus: all its text selected (after
// the press, when the mouse brought the focus).
void selecionaAoFocar(QLineEdit* caixa, const QFocusEvent* e);

// A combo box whose `escolhido` comes only from the choice of an item (in
// its list, by mouse or keys, or by the arrow keys on the box), the click of
// the box; QComboBox also reports as activated a typed text that names an
// item when the focus leaves the box, and that is no click.
class CaixaCombinacao : public QComboBox {
    Q_OBJECT
public:
    explicit CaixaCombinacao(QWidget* pai = nullptr);

signals:
    void escolhido(int indice);

protected:
    void focusOutEvent(QFocusEvent* e) override;

private:
    bool saindo_ = false;
};

// Enter, in a window of the program, is swallowed and a Tab takes its place.
class FiltroEnter : public QObject {
public:
    using QObject::QObject;
    static void instala();

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override;
};

} // namespace sorvelo
