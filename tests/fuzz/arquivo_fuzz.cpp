// libFuzzer target of the bet-file reader: the input becomes a file that a
// fresh program opens through the Abrir command. Reading must end normally
// or with the run-time failure, never with a crash, a sanitizer report, a
// hang or unbounded memory. A state that was read is written back too.
#include "apoio/Duplos.h"
#include "base/Semantica.h"
#include "core/ArquivoApostas.h"
#include "core/Principal.h"
#include "programa/Programa.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

using namespace sorvelo;

namespace {

QString pastaDeTrabalho() {
    // tmpfs where there is one: the input is rewritten at every run.
    static QTemporaryDir pasta(QDir(QStringLiteral("/dev/shm")).exists()
                                   ? QStringLiteral("/dev/shm/sorvelo-fuzz-XXXXXX")
                                   : QDir::temp().filePath(QStringLiteral("sorvelo-fuzz-XXXXXX")));
    return pasta.path();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // The reader's bound on one text is 256 MiB; a name field of that
    // length past the end of the file is read as that many blanks, which
    // would make every run allocate and fill that much. Lowered here to the
    // largest input the fuzzer makes (-max_len), so that the failure 7 path
    // is reached at once and runs stay fast.
    LimiteTextoArquivo = int64_t(1) << 20;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t tamanho) {
    const QDir pasta(pastaDeTrabalho());
    const QString entrada = pasta.filePath(QStringLiteral("entrada.Apo"));
    const QString saida = pasta.filePath(QStringLiteral("saida.Apo"));
    QFile::remove(entrada);
    {
        QFile f(entrada);
        if (!f.open(QIODevice::WriteOnly)) return 0;
        f.write(reinterpret_cast<const char*>(dados), qint64(tamanho));
    }
    ServicosDuplos d;
    Programa p(d.servicos(), d.dialogos);
    CarregaPrincipal(p);
    d.dialogo.enfileira(entrada);
    try {
        AbrirArquivo(p);
    } catch (const FalhaExecucao&) {
        return 0; // the program would show the failure and end
    }
    try {
        GravaArquivo(p, saida);
    } catch (const FalhaExecucao&) {
    }
    return 0;
}
