// Timings of the combination flows, from the start button to the bank:
// 20 Mega-Sena numbers taken 6, the Mega-Sena closing of "Quina" and the
// closing of "Quadra" with "Auto-completar" (and, on request, the closing
// of "Sena", 50,063,860 bets). Prints time, yields, the time
// spent in the yields and the peak resident memory (VmHWM) of each run.
// A window with a progress bar and a counter label, shown offscreen, takes
// the place of the dialogs, so that the yields that go to the message loop
// pay for their painting as on the desktop.
#include "apoio/Duplos.h"
#include "combinacoes/Combinacao.h"
#include "combinacoes/InsereVetor.h"
#include "combinacoes/Module2.h"
#include "core/Grade.h"
#include "core/Principal.h"
#include "programa/Programa.h"

#include "platform/qt/ServicosQt.h"
#include "platform/qt/Vista.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

int64_t campoStatus(const char* nome) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray chave = QByteArray(nome) + ':';
    for (const QByteArray& linha : f.readAll().split('\n'))
        if (linha.startsWith(chave))
            return linha.mid(chave.size()).trimmed().split(' ').value(0).toLongLong();
    return -1;
}

// Resets the peak of resident memory to the present size, where the system
// allows it; false when the peak cannot be reset.
bool zeraPico() {
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (!f.open(QIODevice::WriteOnly)) return false;
    return f.write("5") == 1;
}

// The yield of the run: counts the calls, times them, and forwards them.
class CedenciaMedida : public Cedencia {
public:
    explicit CedenciaMedida(std::function<void()> trabalho, bool cronometra = true)
        : trabalho_(std::move(trabalho)), cronometra_(cronometra) {}
    void cede() override {
        ++quantas;
        if (!cronometra_) {
            trabalho_();
            return;
        }
        const auto t0 = Cronometro::now();
        trabalho_();
        gasto += Cronometro::now() - t0;
    }
    long long quantas = 0;
    Cronometro::duration gasto{};

private:
    std::function<void()> trabalho_;
    bool cronometra_;
};

struct Cedencias {
    const char* nome;
    std::function<void()> trabalho;
    // The program's own yield is not timed call by call: two clock reads a
    // call would cost more than the yield itself.
    bool cronometra = true;
};

// Processor time of the process, which the other loads of a shared machine
// do not inflate as they do the wall-clock time.
double segundosDeProcessador() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) * 1e-9;
}

volatile unsigned long long lixo = 0;

const Cedencias Barata{"barata", [] { lixo = lixo + 1; }};
const Cedencias Eventos{"processEvents", [] { QCoreApplication::processEvents(); }};
// The program's own yield: the message loop at most every 10 ms.
const Cedencias EventosEspacados{"CedenciaQt (laço a cada 10 ms)",
                                 [] {
                                     static CedenciaQt cedencia;
                                     cedencia.cede();
                                 },
                                 false};

struct Cenario {
    const char* nome;
    double meta; // seconds
    std::function<void(Programa&)> executa;
};

// The counter label follows its text when the yield brings the windows up
// to date, as the dialog's does.
struct Janela : Vista {
    QWidget janela;
    QProgressBar barra;
    QLabel contador;
    QString contagem;
    void sincroniza() override { contador.setText(contagem); }
    Janela() {
        auto* l = new QVBoxLayout(&janela);
        l->addWidget(&barra);
        l->addWidget(&contador);
        janela.show();
    }
};

void roda(const Cenario& c, const Cedencias& ced, Janela& tela) {
    auto d = std::make_unique<ServicosDuplos>();
    CedenciaMedida cedencia(ced.trabalho, ced.cronometra);
    Servicos servicos = d->servicos();
    servicos.cedencia = &cedencia;
    auto p = std::make_unique<Programa>(servicos, d->dialogos);
    CarregaPrincipal(*p);
    // Timer1 ticks inside the yields, as on the desktop.
    QTimer timer1;
    QObject::connect(&timer1, &QTimer::timeout, [&] { TickTimer1(*p); });
    timer1.start(500);

    Programa& prog = *p;
    d->dialogos.quando(Dialogo::Combinacoes, [&prog] {
        Combinacoes dlg(prog, prog.module2);
        if (prog.e.ModoFechamento && prog.tela.CmbFecha.Text == QStringLiteral("Quadra"))
            dlg.clicaAutoCompletar();
        dlg.BtnIniciar();
    });
    d->dialogos.quando(Dialogo::InsereVetor, [&prog, &tela] {
        InsereVetor dlg(prog, prog.module2);
        dlg.aoContar.liga([&tela](const QString& t) { tela.contagem = t; });
        dlg.ativa();
    });
    module2(*p).aoMudarProgresso.liga([&tela](const BarraProgresso& b) {
        tela.barra.setMaximum(int(b.Max));
        tela.barra.setValue(b.Value);
    });

    const bool picoZerado = zeraPico();
    const double cpu0 = segundosDeProcessador();
    const auto t0 = Cronometro::now();
    c.executa(*p);
    const double segundos = std::chrono::duration<double>(Cronometro::now() - t0).count();
    const double cpu = segundosDeProcessador() - cpu0;
    const int64_t picoKB = campoStatus("VmHWM");
    timer1.stop();

    const double emCedencias = std::chrono::duration<double>(cedencia.gasto).count();
    std::printf("%-44s | cedência %-26s | %7.3f s, processador %7.3f s (meta %4.1f s) | apostas %7d | "
                "cedências %7lld, %6.3f s (%6.1f ns cada) | pico %6.1f MB%s\n",
                c.nome, ced.nome, segundos, cpu, c.meta, p->e.QuantBan.valor(), cedencia.quantas, emCedencias,
                cedencia.quantas ? emCedencias * 1e9 / double(cedencia.quantas) : 0.0,
                double(picoKB) / 1024.0, picoZerado ? "" : " (pico do processo)");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Janela tela;

    const Cenario vinte{"20 números da Mega-Sena, 6 a 6 (38.760)", 0.5, [](Programa& p) {
                            for (int i = 0; i < 20; ++i)
                                ClicaNumero(p, Int16(int16_t(i)));
                            BtnIniciar(p);
                        }};
    const Cenario quina{"Fechamento Quina da Mega-Sena (5.461.512)", 15, [](Programa& p) {
                            p.tela.CmbFecha.Text = QStringLiteral("Quina");
                            BtnFechar(p);
                        }};
    const Cenario quadra{"Fechamento Quadra, Auto-completar (487.635)", 3, [](Programa& p) {
                             p.tela.CmbFecha.Text = QStringLiteral("Quadra");
                             BtnFechar(p);
                         }};

    const Cenario sena{"Fechamento Sena da Mega-Sena (50.063.860)", 20, [](Programa& p) {
                           p.tela.CmbFecha.Text = QStringLiteral("Sena");
                           BtnFechar(p);
                       }};

    // "combinacoes_bench quina": only the closing of "Quina" with the cheap
    // yield (for a profiler); "quina-programa" and "sena": one closing with
    // the program's own yield.
    if (argc > 1 && std::strcmp(argv[1], "quina") == 0) {
        roda(quina, Barata, tela);
        return 0;
    }
    if (argc > 1 && std::strcmp(argv[1], "quina-programa") == 0) {
        roda(quina, EventosEspacados, tela);
        return 0;
    }
    if (argc > 1 && std::strcmp(argv[1], "sena") == 0) {
        roda(sena, EventosEspacados, tela);
        return 0;
    }
    std::printf("memória da máquina considerada pelo gerador: %.1f GB; bytes por linha (5 números): %lld\n",
                double(Module2().limiteMemoria) / (1024.0 * 1024 * 1024) * 4 / 3,
                static_cast<long long>(BytesPorLinha(5)));
    for (const Cedencias* ced : {&Barata, &Eventos})
        roda(vinte, *ced, tela);
    for (const Cedencias* ced : {&Barata, &Eventos, &EventosEspacados})
        roda(quina, *ced, tela);
    for (const Cedencias* ced : {&Barata, &Eventos})
        roda(quadra, *ced, tela);

    // The bare cost of one yield, outside any run.
    for (const Cedencias* ced : {&Barata, &Eventos}) {
        CedenciaMedida c(ced->trabalho);
        const auto t0 = Cronometro::now();
        for (int i = 0; i < 1000000; ++i)
            c.cede();
        const double s = std::chrono::duration<double>(Cronometro::now() - t0).count();
        std::printf("1.000.000 cedências %-26s: %.3f s (%.1f ns cada)\n", ced->nome, s, s * 1e3);
    }
    return 0;
}
