// Small shared routines: the Brazilian form of a number, the integer part as
// text, deleting a file.
#pragma once

#include <QString>

namespace sorvelo {

// Writes a number given as plain decimal text ("1234.5") in the Brazilian
// manner ("1.234,50"). Texto is changed as the routine goes: trimmed and
// without its sign. A number the mask cannot hold comes back as that text.
QString FormataNumero(QString& Texto);
inline QString FormataNumero(const QString& texto) {
    QString copia = texto;
    return FormataNumero(copia);
}

// The integer part of Valor, truncated toward zero, with no blanks.
QString TextoInteiro(double Valor);

// Deletes the file; every failure, a missing file too, is skipped.
void ApagaArquivo(const QString& Nome);

// Trim: blanks (spaces) only.
QString apara(const QString& s);

} // namespace sorvelo
