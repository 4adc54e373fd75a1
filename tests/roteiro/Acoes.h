// What the runner does to a control, the way a person does it: clicks,
// keys, a pick in a list, a scroll, a mouse move. Each returns an empty
// text when done, or what made it impossible.
#pragma once

#include <QPoint>
#include <QString>

class QObject;
class QWidget;

namespace sorvelo::roteiro {

// A click into a window makes it the active one, before the click acts.
void ativa(QWidget* janela);
QString clica(QObject* controle);
// Focus on the control, all of its text selected, then one key event each character.
QString digita(QWidget* controle, const QString& texto);
// Enter, Tab, Esc, Esquerda, Direita, Cima, Baixo.
QString tecla(QWidget* controle, const QString& nome);
QString escolhe(QWidget* controle, const QString& item);
QString rola(QWidget* controle, int valor);
// A mouse move with no button, at a point of the control in pixels.
void move(QWidget* controle, QPoint ponto);

} // namespace sorvelo::roteiro
