// Small shared routines: the Brazilian form of a number, the integer part as
// text, deleting a file, the complement of a data file's bytes.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

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

// Every byte replaced by its complement (255 minus the byte), from the first
// to the last; after each 100th byte, `cede` is called (the yield to the
// message loop). The routine is its own inverse: it reads and writes the
// super-reduction tables alike. The text is one byte a character.
QByteArray InverteBytes(QByteArray s, const std::function<void()>& cede = {});

// The program's Trim: blanks (spaces) only.
QString apara(const QString& s);

} // namespace sorvelo
