// libFuzzer target of the super-reduction reader: the input is the text of
// a table (it is complemented and written as the game's file into a
// temporary program folder), and the dialog runs on it as the reduced
// combination flow hands over: Mega-Sena, 05 10 15 20 25 30 35 40 marked, a
// fixed 07, "Quadra", "4", 6 numbers a bet. The first byte chooses how many
// of the marked numbers are kept (1 to 8), so that the key changes too.
// Reading must end with the bets in the bank, the box or the run-time
// failure, never with a crash, a sanitizer report, a hang or unbounded
// memory.
#include "apoio/Duplos.h"
#include "base/Semantica.h"
#include "combinacoes/SuperReducao.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Module1.h"
#include "core/Principal.h"
#include "programa/Programa.h"
#include "relatorios/Pontuacao.h"

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
                                   ? QStringLiteral("/dev/shm/sorvelo-fuzz-super-XXXXXX")
                                   : QDir::temp().filePath(QStringLiteral("sorvelo-fuzz-super-XXXXXX")));
    return pasta.path();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t tamanho) {
    const QDir pasta(pastaDeTrabalho());
    const int quantMarcadas = tamanho > 0 ? 1 + dados[0] % 8 : 8;
    QByteArray texto(reinterpret_cast<const char*>(dados), qsizetype(tamanho));
    {
        QFile f(pasta.filePath(QStringLiteral("Megasena.sv")));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
        f.write(InverteBytes(texto));
    }
    ServicosDuplos d;
    d.pasta.define(pasta.path());
    Programa p{d.servicos(), d.dialogos};
    CarregaPrincipal(p);
    for (int i = 0; i < quantMarcadas; ++i)
        ClicaNumero(p, Int16::de(int64_t(5 * (i + 1) - 1)));
    p.tela.ChkFixar.Value = true;
    ClicaNumero(p, 6);
    p.tela.ChkFixar.Value = false;
    LimpaBancoApostas(p);
    CarregaNumeros(p);
    CarregaVetDezEsc(p);
    p.e.DezAposta = 4;
    p.e.QuantEscolhidos = Int16::de(int64_t(quantMarcadas));
    p.e.DezFinal = 6;
    p.e.QuantAcertar = 4;
    SuperReducao dlg(p);
    try {
        dlg.ativa();
    } catch (const FalhaExecucao&) {
        return 0; // the program would show the failure and end
    }
    // What stands in the bank is what VetBan holds.
    if (p.e.QuantBan > 0 && p.tela.TxtBanco.texto().isEmpty()) __builtin_trap();
    return 0;
}
