#include "relatorios/Sobre.h"

namespace sorvelo {

void ClicaLink(Nucleo& p) {
    p.s.abridor->abre(QString::fromUtf16(EnderecoProduto));
}

void ClicaEmail(Nucleo& p) {
    p.s.abridor->abre(QStringLiteral("mailto:") + QString::fromUtf16(EmailSuporte));
}

void MenuNovidades(Nucleo& p) {
    ClicaLink(p);
}

} // namespace sorvelo
