// libFuzzer target of the reader of imported bets. The first byte picks the
// game; the rest is the file. It is read whole and again in pieces whose
// sizes come from the input: both readings must agree, every bet must be
// ascending, without repeats, within the game and at most 81 numbers, the
// reasons kept at most 100; then the bets go into a fresh program's bank,
// whose rows must read back as the bets. Never a crash, a sanitizer
// report, a hang or unbounded memory.
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "edicao/Importar.h"
#include "edicao/LeitorApostas.h"
#include "programa/Programa.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace sorvelo;

namespace {

void exige(bool condicao) {
    if (!condicao) std::abort();
}

const char* const Jogos[] = {"Mega-Sena", "Dupla Sena", "Quina", "Lotomania", "Lotofácil"};

void confere(const LeitorApostas& l, int ini, int fim) {
    exige(l.recusas().size() <= size_t(LeitorApostas::MaxRecusasGuardadas));
    exige(int64_t(l.recusas().size()) <= l.quantRecusadas());
    exige(l.quantApostas() <= LeitorApostas::MaxApostas);
    for (const Recusa& r : l.recusas())
        exige(r.linha >= 1 && r.linha <= l.linhasLidas() && !r.motivo.isEmpty());
    for (int64_t i = 0; i < l.quantApostas(); ++i) {
        int n = 0;
        const uint8_t* c = l.aposta(i, n);
        exige(n >= 1 && n <= LeitorApostas::MaxNumeros);
        for (int j = 0; j < n; ++j) {
            exige(c[j] >= ini && c[j] <= fim);
            if (j > 0) exige(c[j - 1] < c[j]);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t tamanho) {
    if (tamanho == 0) return 0;
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    CarregaPrincipal(p);
    TrocaLoteria(p, QString::fromUtf8(Jogos[dados[0] % 5]));
    const int ini = p.e.NumIni.valor(), fim = p.e.NumFim.valor();
    const char* texto = reinterpret_cast<const char*>(dados + 1);
    const size_t n = tamanho - 1;

    LeitorApostas inteiro(ini, fim);
    inteiro.le(texto, n);
    inteiro.termina();
    confere(inteiro, ini, fim);

    LeitorApostas pedacos(ini, fim);
    size_t passo = size_t(dados[0] / 5) % 17 + 1;
    for (size_t i = 0; i < n; i += passo)
        pedacos.le(texto + i, std::min(passo, n - i));
    pedacos.termina();
    exige(pedacos.quantApostas() == inteiro.quantApostas());
    exige(pedacos.quantRecusadas() == inteiro.quantRecusadas());
    exige(pedacos.linhasLidas() == inteiro.linhasLidas());
    exige(pedacos.erro() == inteiro.erro());

    if (!inteiro.erro().isEmpty()) return 0;
    (void)RelatorioImportacao(inteiro);
    AcrescentaImportadas(p, inteiro, QStringLiteral("entrada.txt"));
    exige(p.e.QuantBan.valor() == inteiro.quantApostas());
    for (int64_t i = 0; i < inteiro.quantApostas(); ++i) {
        int quant = 0;
        const uint8_t* c = inteiro.aposta(i, quant);
        QString esperado;
        for (int j = 0; j < quant; ++j)
            esperado += formata00(c[j]) + u' ';
        exige(RetAposta(p, Int32(int32_t(i))) == esperado);
    }
    return 0;
}
