// The RTF of the plain reference document, written the obvious way: the
// whole run list gathered, then the text read run by run.
#pragma once

#include "apoio/DocumentoSimples.h"

#include <QByteArray>

namespace sorvelo {

QByteArray escreveRtfSimples(const DocumentoSimples& documento);

} // namespace sorvelo
