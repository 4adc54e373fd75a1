// Verification of the bank against a marked result: time from the press of
// "Iniciar conferência" to "Concluído.", the raw scoring rate on one core,
// and a long listing. Prints the figures; asserts nothing about time.
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "programa/Programa.h"
#include "relatorios/Conferencia.h"
#include "relatorios/Pontuacao.h"
#include "relatorios/PontuacaoRapida.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

double segundos(Cronometro::time_point a, Cronometro::time_point b) {
    return std::chrono::duration<double>(b - a).count();
}

std::string picoMemoria() {
    std::ifstream f("/proc/self/status");
    std::string linha;
    while (std::getline(f, linha))
        if (linha.rfind("VmHWM:", 0) == 0) return linha.substr(6);
    return "?";
}

struct Ambiente {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    std::unique_ptr<ConfApostas> forma;
    Ambiente() {
        CarregaPrincipal(p);
        TrocaLoteria(p, QStringLiteral("Mega-Sena"));
        // The window, loaded when it isn't open.
        d.dialogos.quando(Dialogo::ConfApostas, [this] {
            if (forma && forma->aberto()) return;
            forma = std::make_unique<ConfApostas>(p);
            forma->Carrega();
        });
    }
    // Random Mega-Sena bets, six distinct numbers in ascending order.
    void enche(int quant, std::mt19937& g) {
        auto& e = p.e;
        e.VetBan.redimensiona(81, int64_t(quant) + 1);
        std::vector<int> numeros(60);
        for (int i = 0; i < 60; ++i)
            numeros[size_t(i)] = i + 1;
        for (int linha = 0; linha < quant; ++linha) {
            for (int k = 0; k < 6; ++k) {
                std::uniform_int_distribution<int> d(k, 59);
                std::swap(numeros[size_t(k)], numeros[size_t(d(g))]);
            }
            std::sort(numeros.begin(), numeros.begin() + 6);
            for (int k = 0; k < 6; ++k)
                e.VetBan.defineCodigo(k, linha, MatrizTexto::codigoNumero(numeros[size_t(k)]));
            e.VetBan.defineCodigo(6, linha, MatrizTexto::Fim);
        }
        e.QuantBan = quant;
    }
    void resultado(std::initializer_list<int> numeros) {
        LimpaNumeros(p);
        for (int n : numeros)
            ClicaNumero(p, int16_t(n - 1));
        BtnConferir(p);
    }
    int64_t linhasListadas() const {
        int64_t n = 0;
        for (int i = 0; i <= 99; ++i)
            n += forma->VetPontos(i).valor();
        return n;
    }
};

} // namespace

int main() {
    std::mt19937 g(12345);

    // 1. A bank of 1,000,000 Mega-Sena bets checked at threshold 4.
    {
        Ambiente a;
        auto t0 = Cronometro::now();
        a.enche(1000000, g);
        auto t1 = Cronometro::now();
        a.resultado({4, 15, 23, 38, 42, 59});
        a.forma->tela.TxtPontos.Text = QStringLiteral("4");
        std::printf("Banco de 1.000.000 apostas da Mega-Sena montado em %.3f s\n", segundos(t0, t1));
        std::vector<double> tempos;
        for (int r = 0; r < 5; ++r) {
            auto i0 = Cronometro::now();
            a.forma->BtnIniciar();
            auto i1 = Cronometro::now();
            tempos.push_back(segundos(i0, i1));
        }
        std::sort(tempos.begin(), tempos.end());
        std::printf(
            "Conferência de 1.000.000 apostas, limiar 4 (do botão a \"%s\"): melhor %.3f s, mediana %.3f s, "
            "pior %.3f s; %lld linhas listadas\n",
            a.forma->LblMensagem.toUtf8().constData(), tempos.front(), tempos[2], tempos.back(),
            (long long)a.linhasListadas());

        // 2. Raw scoring rate on one core.
        const int64_t quant = a.p.e.QuantBan.valor();
        double melhor = 1e9;
        long long soma = 0;
        for (int r = 0; r < 5; ++r) {
            auto i0 = Cronometro::now();
            PontuadorBanco pb(a.p, PontuadorBanco::Sorteio::Resultado);
            for (int64_t i = 0; i < quant; ++i)
                soma += pb.pontos(int32_t(i)).valor();
            melhor = std::min(melhor, segundos(i0, Cronometro::now()));
        }
        std::printf(
            "Pontuação pelo banco (conjunto de cada linha + contagem de bits): %.1f milhões de apostas/s "
            "(%.3f s por 1.000.000; soma %lld)\n",
            double(quant) / melhor / 1e6, melhor, soma / 5);

        IndiceApostas indice;
        auto c0 = Cronometro::now();
        indice.constroi(a.p.e.VetBan, 0, quant);
        auto c1 = Cronometro::now();
        std::vector<int16_t> pontos(static_cast<size_t>(quant));
        const SorteioRapido sorteio(a.p.e.VetDezenas);
        double melhorIndice = 1e9;
        for (int r = 0; r < 20; ++r) {
            auto i0 = Cronometro::now();
            indice.pontua(sorteio, pontos.data());
            melhorIndice = std::min(melhorIndice, segundos(i0, Cronometro::now()));
        }
        long long somaIndice = 0;
        for (int16_t v : pontos)
            somaIndice += v;
        std::printf("Índice de conjuntos: montado a %.1f milhões de linhas/s; pontuação sobre o índice "
                    "%.1f milhões de apostas/s (soma %lld)\n",
                    double(quant) / segundos(c0, c1) / 1e6, double(quant) / melhorIndice / 1e6, somaIndice);

        const int64_t amostra = 200000;
        auto i0 = Cronometro::now();
        long long somaTexto = 0;
        for (int64_t i = 0; i < amostra; ++i)
            somaTexto += RetPontos(a.p, int32_t(i)).valor();
        const double tTexto = segundos(i0, Cronometro::now());
        std::printf(
            "Comparação de textos, para comparar: %.2f milhões de apostas/s (soma em %lld linhas: %lld)\n",
            double(amostra) / tTexto / 1e6, (long long)amostra, somaTexto);
    }

    // 3. 30,000 bets listed at threshold 0.
    {
        Ambiente a;
        a.enche(30000, g);
        a.resultado({1, 2, 3, 4, 5, 6});
        a.forma->tela.TxtPontos.Text = QStringLiteral("0");
        std::vector<double> tempos;
        for (int r = 0; r < 5; ++r) {
            auto i0 = Cronometro::now();
            a.forma->BtnIniciar();
            tempos.push_back(segundos(i0, Cronometro::now()));
        }
        std::sort(tempos.begin(), tempos.end());
        std::printf("Listagem de 30.000 apostas, limiar 0: melhor %.3f s, mediana %.3f s, pior %.3f s; "
                    "%lld linhas listadas, %lld caracteres, %lld linhas no texto\n",
                    tempos.front(), tempos[2], tempos.back(), (long long)a.linhasListadas(),
                    (long long)a.forma->tela.RTFConf.comprimento(),
                    (long long)a.forma->tela.RTFConf.quantLinhas());
    }

    std::printf("Pico de memória (VmHWM):%s\n", picoMemoria().c_str());
    return 0;
}
