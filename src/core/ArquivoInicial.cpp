#include "core/ArquivoInicial.h"

#include "core/ArquivoApostas.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"

#include <QFileInfo>

namespace sorvelo {

QString ArquivoDaLinhaDeComando(const QStringList& argumentos) {
    return argumentos.size() > 1 ? argumentos.at(1) : QString();
}

QString AvisoArquivoInexistente(const QString& caminho) {
    return QStringLiteral("O arquivo \"%1\" não foi encontrado.").arg(caminho);
}

void AbreArquivoInicial(Nucleo& p, const QString& caminho) {
    if (caminho.isEmpty()) return;
    const QFileInfo info(caminho);
    // Abrir would create a name that is not there: here nothing is created.
    if (!info.isFile()) {
        p.s.caixa->aviso(AvisoArquivoInexistente(caminho));
        return;
    }
    if (!LimpaBancoApostas(p)) return;
    LimpaNumeros(p);
    LeArquivo(p, info.absoluteFilePath());
}

} // namespace sorvelo
