// The bet file (.Apo): sixteen length-prefixed texts holding the whole
// working state, and the commands Novo, Abrir, Salvar and Salvar Como.
//
// A field is its length as decimal digits, left-aligned and filled with
// blanks to 10 bytes, then the text, one byte per character in Windows-1252.
// In order: game name, blue marks, the bank as RTF, shown count, shown
// total, VetBan as text, QuantBan, prize sentence, chosen numbers, log, red
// marks, price, numbers per bet (full and reduced), guarantee, hit
// requirement. No magic number, no version, no end mark.
//
// Reading never allocates more than LimiteTextoArquivo bytes for one text:
// a longer length is the memory failure (7) at once.
#pragma once

#include "core/Estado.h"

#include <QByteArray>

namespace sorvelo {

// The largest text the reader will take for one field: 256 MiB. A text past
// the end of the file costs only what its result needs: the blanks that
// stand for the missing bytes are not made where they change nothing.
constexpr int64_t LimiteTextoArquivoPadrao = int64_t(256) << 20;
// The bound in force (tests and the fuzzing harness lower it).
extern int64_t LimiteTextoArquivo;

// Novo: forgets the file name, empties the bank (which may ask to save),
// clears the grid and the log.
void NovoArquivo(Nucleo& p);
// Salvar: asks for a name when there is none, asks before overwriting.
void SalvarArquivo(Nucleo& p);
// Salvar Como: the name forgotten, then Salvar.
void SalvarArquivoComo(Nucleo& p);
// Writes the file: the old one is replaced only by a complete new one.
void GravaArquivo(Nucleo& p, const QString& Nome);
// Abrir: empties the bank, asks for a name, reads the sixteen fields.
void AbrirArquivo(Nucleo& p);
// What Abrir does once it has the name: the caption, then the sixteen fields.
void LeArquivo(Nucleo& p, const QString& nome);

QString TextoMarcados(const Nucleo& p);
QString TextoFixos(const Nucleo& p);
QString TextoVetBan(const Nucleo& p);
void CarregaMarcados(Nucleo& p, const QString& Texto);
void CarregaFixos(Nucleo& p, const QString& Texto);
void CarregaVetBan(Nucleo& p, const QString& Texto);

} // namespace sorvelo
