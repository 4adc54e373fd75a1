// The one optional argument of the command line: a bet file that the
// program opens after "Entrar" as Abrir opens it, without the dialog.
#pragma once

#include "core/Estado.h"

#include <QStringList>

namespace sorvelo {

// The file named on the command line (the arguments after the program's
// own name); empty when there is none.
QString ArquivoDaLinhaDeComando(const QStringList& argumentos);
// The warning for a name that is no file, naming it.
QString AvisoArquivoInexistente(const QString& caminho);
// Opens the file as Abrir does, with its name made absolute. A name that
// is no file gives the warning and changes nothing, on disk or in the
// program; an empty name does nothing.
void AbreArquivoInicial(Nucleo& p, const QString& caminho);

} // namespace sorvelo
