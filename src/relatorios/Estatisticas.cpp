#include "relatorios/Estatisticas.h"

#include "relatorios/Conferencia.h"
#include "relatorios/EntraTexto.h"
#include "relatorios/Pontuacao.h"
#include "relatorios/PontuacaoRapida.h"

#include <array>
#include <bit>
#include <cmath>

// The scoring loop gets a second copy for processors with a population count
// instruction, chosen when the program starts.
#if defined(__GNUC__) && defined(__x86_64__) && !defined(__clang__)
#define SORVELO_CONTAGEM_DE_BITS __attribute__((target_clones("popcnt", "default")))
#else
#define SORVELO_CONTAGEM_DE_BITS
#endif

namespace sorvelo {

void SorteiaResultado(Nucleo& p, Int16& ContDezenas) {
    Estado& e = p.e;
    ContDezenas = 0;
    while (ContDezenas < e.DezMin) {
        Int16 n;
        do {
            const float produto = float(e.NumFim.valor()) * p.s.aleatorio->rnd();
            n = Int16::de(int64_t(std::floor(produto)) + e.NumIni.valor());
        } while (TestaRepVAleat(p, ContDezenas, n));
        e.VetDezenas2(ContDezenas.valor()) = formata00(n.valor());
        ++ContDezenas;
    }
    e.VetDezenas2(ContDezenas.valor()) = QStringLiteral("#");
}

void Estatisticas::Carrega() {
    tela.TxtPontos.Text = pontosPadrao(p_.e.NomeLoteria);
}

void Estatisticas::BtnEstatistica() {
    Estado& e = p_.e;
    e.TextoPrompt = QStringLiteral("Informe a quantidade de conferências a efetuar:");
    e.TextoDigitado = QStringLiteral("100");
    p_.dialogos.mostraEntraTexto();
    if (respostaCancelada(e.TextoDigitado)) return;
    QuantTestes = Int16::de(valorNumerico(e.TextoDigitado));
    executa();
}

namespace {

// The draw as one set, when its entries are distinct two-digit numbers (as
// every test draw is); false otherwise.
bool conjuntoDoSorteio(const Vetor<QString>& sorteio, ConjuntoDezenas& d) {
    for (int k = 0; k <= 79; ++k) {
        const QString& entrada = sorteio(k);
        if (entrada == u'#') return true;
        const uint8_t codigo = MatrizTexto::codigoDe(entrada);
        if (codigo < MatrizTexto::PrimeiroNumero || codigo == MatrizTexto::Outro) return false;
        if (!d.insere(codigo - MatrizTexto::PrimeiroNumero)) return false;
    }
    return true;
}

// Bets of the bank per score against one draw, counted in the order of the
// rows, as 16-bit tallies: the row that would take a tally past 32767 is
// the overflow failure there. Irregular rows are scored by the text
// comparison at their turn.
SORVELO_CONTAGEM_DE_BITS
void contaApostas(const Nucleo& p, const IndiceApostas& indice, const ConjuntoDezenas d, int64_t quant,
                  int minimo, std::array<int32_t, 101>& cont) {
    const ConjuntoDezenas* c = &indice.conjunto(0);
    for (int64_t i = 0; i < quant; ++i) {
        const ConjuntoDezenas a = c[i];
        int s;
        if (a.irregular()) [[unlikely]]
            s = RetPontos2(p, int32_t(i)).valor();
        else
            s = std::popcount(a.baixo & d.baixo) + std::popcount(a.alto & d.alto);
        if (s < minimo) [[likely]]
            continue;
        if (s > 100) foraDoIntervalo();
        if (++cont[size_t(s)] > 32767) estouro();
    }
}

// The same with a draw that a single set can't hold.
void contaApostas(const Nucleo& p, const IndiceApostas& indice, const SorteioRapido& sorteio, int64_t quant,
                  int minimo, std::array<int32_t, 101>& cont) {
    for (int64_t i = 0; i < quant; ++i) {
        const ConjuntoDezenas& c = indice.conjunto(i);
        const int s = c.irregular() ? RetPontos2(p, int32_t(i)).valor() : sorteio.pontos(c);
        if (s < minimo) continue;
        if (s > 100) foraDoIntervalo();
        if (++cont[size_t(s)] > 32767) estouro();
    }
}

// The lowest score that reaches a threshold read as a number.
int menorPontuacao(double limiar) {
    if (limiar <= 0) return 0;
    if (limiar > 1000) return 1001;
    return int(std::ceil(limiar));
}

QString linhaTotal(int pontos, Int16 quant, const QString& FimLinha) {
    return QStringLiteral("Total de cartelas com ") + QString::number(pontos) + QStringLiteral(" pontos: ") +
           QString::number(quant.valor()) + FimLinha;
}

} // namespace

void Estatisticas::contaTeste(IndiceApostas& indice) {
    Estado& e = p_.e;
    for (int p = 0; p <= 99; ++p)
        VetPontos(p) = 0;
    SorteiaResultado(p_, ContDezenas);
    const int64_t quant = e.QuantBan.valor();
    if (quant <= 0) return;
    if (indice.fim() != quant) indice.constroi(e.VetBan, 0, quant);
    // The threshold's text is the same for every bet of the run (nothing is
    // handled in between); it is read when the first bet has been scored.
    std::array<int32_t, 101> cont{};
    if (indice.conjunto(0).irregular()) RetPontos2(p_, 0);
    const int minimo = menorPontuacao(valorNumerico(tela.TxtPontos.Text));
    cont[100] = VetPontos(100).valor(); // never cleared
    ConjuntoDezenas d;
    if (conjuntoDoSorteio(e.VetDezenas2, d))
        contaApostas(p_, indice, d, quant, minimo, cont);
    else
        contaApostas(p_, indice, SorteioRapido(e.VetDezenas2), quant, minimo, cont);
    for (int p = 0; p <= 100; ++p)
        VetPontos(p) = int16_t(cont[size_t(p)]);
}

void Estatisticas::executa() {
    const Estado& e = p_.e;
    DocumentoRico& rtf = tela.RTFConf;
    rtf.defineTexto(QString());
    for (int p = 0; p <= 99; ++p)
        VetPontosGeral(p) = 0;
    TestesPontuados = 0;
    IndiceApostas indice;
    const Int16 ultimo = QuantTestes - 1;
    for (Int16 t = 0; t <= ultimo; ++t) {
        contaTeste(indice);
        EscreveRTF(rtf, QStringLiteral("Teste nº") + QString::number((t + 1).valor()) + e.FimLinha, true);
        bool achou = false;
        for (int p = 0; p <= 99; ++p) {
            if (VetPontos(p) > 0) {
                VetPontosGeral(p) += VetPontos(p).valor();
                EscreveRTF(rtf, linhaTotal(p, VetPontos(p), e.FimLinha), true);
                achou = true;
            }
        }
        if (achou)
            ++TestesPontuados;
        else
            EscreveRTF(rtf, QStringLiteral("Nenhuma pontuação") + e.FimLinha, true);
        EscreveRTF(rtf, e.FimLinha, false);
        if (t == ultimo) break; // the counter's last step would not be taken
    }
    EscreveRTF(rtf, QStringLiteral("Total de testes: ") + QString::number(QuantTestes.valor()) + e.FimLinha,
               true);
    EscreveRTF(rtf,
               QStringLiteral("Total de testes pontuados: ") + QString::number(TestesPontuados.valor()) +
                   e.FimLinha,
               true);
    EscreveRTF(rtf,
               QStringLiteral("Total de testes não pontuados: ") +
                   QString::number((QuantTestes - TestesPontuados).valor()) + e.FimLinha,
               true);
    EscreveRTF(rtf, e.FimLinha, false);
    EscreveRTF(rtf, QStringLiteral("Total geral de pontos: ") + e.FimLinha, true);
    for (int p = 0; p <= 99; ++p)
        if (VetPontosGeral(p) > 0) EscreveRTF(rtf, linhaTotal(p, VetPontosGeral(p), e.FimLinha), true);
}

void Estatisticas::BtnImprimir() {
    Impressora& impressora = *p_.s.impressora;
    impressora.imprime(QString());
    impressora.imprime(tela.RTFConf.texto());
    impressora.fim();
}

void Estatisticas::Redimensiona(int largura, int altura) {
    tela.FraConfTop = altura - 2200;
    tela.RTFConfWidth = largura - 350;
    tela.RTFConfHeight = altura - 3000;
}

} // namespace sorvelo
