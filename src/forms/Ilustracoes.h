// The pictures of the boxes at the program's edge, drawn in code: the
// program's emblem, the drawn balls and the bet slip of the start box and
// the about box, the arrows of the bet-by-bet view and the book in front of
// each help topic.
#pragma once

#include <QPixmap>

namespace sorvelo {

// The emblem: a bet slip with marked numbers and the gold ball.
QPixmap desenhaEmblema(int lado);
// Three drawn balls with their numbers.
QPixmap desenhaBolas(int largura, int altura);
// A bet slip of the five games' colours, some numbers marked.
QPixmap desenhaVolante(int largura, int altura);
// An arrow up (previous bet) or down (next bet).
QPixmap desenhaSetaVertical(bool paraCima, int lado);
// A closed book.
QPixmap desenhaLivro(int lado);

} // namespace sorvelo
