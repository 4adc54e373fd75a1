// A text formatted by a mask of zeros ("00"), as the random and the typed
// bets format what the user typed: a text that reads wholly as a number is
// written with the mask ("7" gives "07", " 5 " gives "05"); any other text,
// the empty one too, formats to itself ("ab" stays "ab").
#pragma once

#include <QString>

namespace sorvelo {

// True when the whole text, blanks around it aside, is one number: a sign,
// digits with at most one decimal point, an exponent.
bool textoNumerico(const QString& texto);
QString formataTexto(const QString& texto, int digitos);
inline QString formataTexto00(const QString& texto) {
    return formataTexto(texto, 2);
}

} // namespace sorvelo
