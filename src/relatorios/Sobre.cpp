#include "Sobre.h"

namespace sorvelo {

void ClicaLink(Programa& p) {
    p.s.abridor->abre(QString::fromUtf16(EnderecoProduto));
}

void ClicaEmail(Programa& p) {
    p.s.abridor->abre(QStringLiteral("mailto:") + QString::fromUtf16(EmailSuporte));
}

void MenuNovidades(Programa& p) {
    ClicaLink(p);
}

} // namespace sorvelo
