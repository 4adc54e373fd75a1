// Time and memory of a bank of a million six-number bets: the batch written
// into VetBan and TxtBanco with the bank hidden, then shown in the view.
// Usage: banco_bench [bets]  (default 1000000)
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Principal.h"
#include "platform/qt/AreaRica.h"
#include "programa/Programa.h"

#include <QApplication>
#include <QFile>
#include <QImage>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace sorvelo;

namespace {

using Relogio = std::chrono::steady_clock;

double segundosDesde(Relogio::time_point inicio) {
    return std::chrono::duration<double>(Relogio::now() - inicio).count();
}

// CPU time of the process, in seconds (the machine may be shared).
double segundosCpu() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

// A memory field of the process (VmHWM, VmRSS), in MB.
double memoriaMB(const char* campo) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray chave = QByteArray(campo) + ':';
    for (const QByteArray& linha : f.readAll().split('\n'))
        if (linha.startsWith(chave))
            return linha.mid(chave.size()).trimmed().split(' ').first().toDouble() / 1024.0;
    return -1;
}
double picoMemoriaMB() {
    return memoriaMB("VmHWM");
}

// The next six-number combination of 1..60 in lexicographic order.
void proxima(std::array<int, 6>& c) {
    int i = 5;
    while (i >= 0 && c[size_t(i)] == 60 - (5 - i))
        --i;
    if (i < 0) {
        c = {1, 2, 3, 4, 5, 6};
        return;
    }
    ++c[size_t(i)];
    for (int j = i + 1; j < 6; ++j)
        c[size_t(j)] = c[size_t(j - 1)] + 1;
}

// One bet written as the bank writers do: the row grown, its cells, the "#",
// then its line in TxtBanco numbered n.
void insereAposta(Programa& p, const std::array<int, 6>& numeros, int64_t n) {
    auto& e = p.e;
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    QString aposta;
    aposta.reserve(18);
    for (int c = 0; c < 6; ++c) {
        const uint8_t codigo = MatrizTexto::codigoNumero(numeros[size_t(c)]);
        e.VetBan.defineCodigo(c, e.QuantBan.valor(), codigo);
        aposta += MatrizTexto::textoDe(codigo);
        aposta += u' ';
    }
    e.VetBan.defineCodigo(6, e.QuantBan.valor(), MatrizTexto::Fim);
    InsereApostaBanco(p, aposta, n);
    e.QuantBan += 1;
}

void lote(int64_t quant) {
    ServicosDuplos d;
    Programa p(d.servicos(), d.dialogos);
    const double residenteAntes = memoriaMB("VmRSS");
    const auto inicio = Relogio::now();
    const double cpuInicio = segundosCpu();
    CarregaPrincipal(p);
    p.tela.TxtBanco.defineVisivel(false);
    InsereLinhaBanco(p, CabecalhoLote(p), true);
    std::array<int, 6> numeros{1, 2, 3, 4, 5, 6};
    for (int64_t n = 1; n <= quant; ++n) {
        insereAposta(p, numeros, n);
        proxima(numeros);
    }
    InsereLinhaBanco(p, QStringLiteral("\r\n"), true);
    const double tLote = segundosDesde(inicio);
    const double residenteLote = memoriaMB("VmRSS") - residenteAntes;

    const auto inicioVista = Relogio::now();
    p.tela.TxtBanco.defineVisivel(true);
    AreaRica area;
    area.resize(520, 330);
    area.show();
    area.defineDocumento(&p.tela.TxtBanco);
    area.atualiza();
    area.rolaParaFim();
    const QImage imagem = area.grab().toImage();
    const double tVista = segundosDesde(inicioVista);
    const double total = segundosDesde(inicio);
    const double cpuTotal = segundosCpu() - cpuInicio;

    const auto inicioMeio = Relogio::now();
    area.rolaParaLinha(p.tela.TxtBanco.quantLinhas() / 2);
    const QImage meio = area.grab().toImage();
    const double tMeio = segundosDesde(inicioMeio);

    std::printf("apostas: %lld  linhas: %lld  caracteres: %lld\n",
                static_cast<long long>(p.e.QuantBan.valor()),
                static_cast<long long>(p.tela.TxtBanco.quantLinhas()),
                static_cast<long long>(p.tela.TxtBanco.comprimento()));
    std::printf("lote escondido (VetBan + TxtBanco): %.3f s\n", tLote);
    std::printf("mostrar + atualiza + rolar ao fim + grab: %.4f s  (imagem %dx%d)\n", tVista, imagem.width(),
                imagem.height());
    std::printf("total: %.3f s  (CPU %.3f s)\n", total, cpuTotal);
    std::printf("rolar ao meio + grab: %.4f s  (primeira linha %lld)\n", tMeio,
                static_cast<long long>(area.primeiraLinhaVisivel()));
    std::printf("VetBan: %.1f MB\n", double(p.e.VetBan.bytesUsados()) / (1024.0 * 1024.0));
    std::printf("pico de memoria (VmHWM): %.1f MB\n", picoMemoriaMB());
    std::printf(
        "memória do lote (VmRSS depois - antes): %.1f MB, %.1f bytes por aposta (VetBan + TxtBanco)\n",
        residenteLote, residenteLote * 1024.0 * 1024.0 / double(std::max<int64_t>(quant, 1)));
    (void)meio;
}

void soInsercao(int64_t quant) {
    ServicosDuplos d;
    Programa p(d.servicos(), d.dialogos);
    CarregaPrincipal(p);
    p.tela.TxtBanco.defineVisivel(false);
    const QString aposta = QStringLiteral("01 02 03 04 05 06 ");
    const auto inicio = Relogio::now();
    const double cpuInicio = segundosCpu();
    for (int64_t n = 1; n <= quant; ++n)
        InsereApostaBanco(p, aposta, n);
    std::printf("%lld InsereApostaBanco sozinhos: %.3f s  (CPU %.3f s)\n", static_cast<long long>(quant),
                segundosDesde(inicio), segundosCpu() - cpuInicio);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int64_t quant = argc > 1 ? std::atoll(argv[1]) : 1000000;
    lote(quant);
    std::fflush(stdout);
    soInsercao(quant);
    return 0;
}
