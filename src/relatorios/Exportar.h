// "Exportar banco...": the bank written to a file that other programs read:
// a CSV for spreadsheets, plain text with the bet lines, or a PDF of the
// listing of the bank. The file is written beside the target under another
// name and takes the target's place only when it is complete.
#pragma once

#include "core/Estado.h"

#include <QByteArray>

class QIODevice;

namespace sorvelo {

enum class FormatoExportacao { Csv, Texto, Pdf };

// The file dialog's title and filter of the command.
QString tituloExportar();
QString filtroExportar();
// The format a name asks for by its extension (".csv", ".txt", ".pdf", in
// any case); any other name is a CSV.
FormatoExportacao formatoExportacao(const QString& caminho);

// The CSV: UTF-8 with its byte-order mark, the head "Aposta;D1;D2;...", one
// line per bet: its number, then its numbers as two-digit texts, all
// separated by ";", lines ended by CR LF.
bool escreveCsv(const Nucleo& p, QIODevice& saida);
// The plain text: the bet lines as the bank shows them, numbered from 1
// ("00001)   01 02 03 04 05 06"), ended by CR LF.
bool escreveTexto(const Nucleo& p, QIODevice& saida);
// The same, whole in memory (small banks, tests).
QByteArray textoCsv(const Nucleo& p);
QByteArray textoPlano(const Nucleo& p);

// Writes the bank to `caminho` in the format; on a failure returns the
// message for the player and leaves any file of that name as it was.
QString ExportaBanco(Nucleo& p, const QString& caminho, FormatoExportacao formato);

// The main window's command: the file dialog, the question when the file
// exists, the writing, and a box that tells how it went.
void ExportarBanco(Nucleo& p);

} // namespace sorvelo
