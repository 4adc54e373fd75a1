// Timings of the reduced combination, from "Iniciar Combinação reduzida" to
// the bank shown: 01..20 with the guarantee 4 in bets of 6 (4.845 subsets),
// and 01..30 with the guarantee 5 in bets of 6 (142.506 subsets), with the
// peak resident memory (VmHWM); then the packing alone on the first case,
// by the engine and by the plain rule that tests every subset against every
// bet by comparing texts, as a ratio.
// The real windows run offscreen, and the yields go through the program's
// own yield service.
#include "../tests/unit/ReducaoReferencia.h"
#include "apoio/Duplos.h"
#include "combinacoes/Module2.h"
#include "combinacoes/Reducao.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "forms/Janelas.h"
#include "forms/Sorvelo.h"

#include "platform/qt/ServicosQt.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

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

bool zeraPico() {
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (!f.open(QIODevice::WriteOnly)) return false;
    return f.write("5") == 1;
}

double segundos(Cronometro::time_point t0) {
    return std::chrono::duration<double>(Cronometro::now() - t0).count();
}

struct Resultado {
    double segundos;
    int32_t apostas;
    double picoMB;
};

// The real main window, offscreen: the grid and the fields set, then a click
// on "Iniciar Combinação reduzida"; a timer presses "Iniciar combinação" in
// the dialog as soon as it is up. The time runs from the click to the bank
// shown, with every dialog, label and yield of the run.
Resultado rodaFluxo(int ate, const QString& garantia) {
    auto d = std::make_unique<ServicosDuplos>();
    CedenciaQt cedencia;
    Servicos servicos = d->servicos();
    servicos.cedencia = &cedencia;
    JanelasFormas janelas;
    auto p = std::make_unique<Programa>(servicos, janelas);
    Sorvelo janela(*p, janelas);
    janela.show();
    for (int n = 1; n <= ate; ++n)
        ClicaNumero(*p, Int16(int16_t(n - 1)));
    p->tela.CmbGarantia.Text = garantia;
    CliqueGarantia(*p);
    p->tela.TxtDezAp2.Text = QStringLiteral("6");
    janela.sincroniza();
    QApplication::processEvents();

    QTimer iniciar;
    QObject::connect(&iniciar, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal->objectName() != QStringLiteral("CombinacoesReduz")) return;
        iniciar.stop();
        modal->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
    });
    iniciar.start(0);
    auto* botao = janela.findChild<QPushButton*>(QStringLiteral("BtnReduz"));
    const bool zerado = zeraPico();
    const auto t0 = Cronometro::now();
    botao->click();
    const double s = segundos(t0);
    const int64_t picoKB = campoStatus("VmHWM");
    if (!zerado) std::printf("(pico do processo: o sistema não permite zerá-lo)\n");
    if (!p->tela.TxtBanco.visivel()) std::printf("(o banco não ficou visível)\n");
    return {s, p->e.QuantBan.valor(), double(picoKB) / 1024.0};
}

// The subsets of 01..n taken k, in ascending order.
std::vector<QStringList> subconjuntos(int n, int k) {
    std::vector<QStringList> r;
    std::vector<int> pos(static_cast<size_t>(k));
    for (int i = 0; i < k; ++i)
        pos[size_t(i)] = i;
    for (;;) {
        QStringList s;
        for (int x : pos)
            s << formata00(x + 1);
        r.push_back(s);
        int i = k - 1;
        while (i >= 0 && pos[size_t(i)] == n - k + i)
            --i;
        if (i < 0) return r;
        ++pos[size_t(i)];
        for (int j = i + 1; j < k; ++j)
            pos[size_t(j)] = pos[size_t(j - 1)] + 1;
    }
}

void comparaComARegra() {
    const auto subs = subconjuntos(20, 4);
    std::vector<double> nossos, regra;
    int32_t apostasNossas = 0, apostasRegra = 0;
    for (int vez = 0; vez < 5; ++vez) {
        const Alfabeto alf;
        Reducao red(alf, Int16(6), 4);
        for (const QStringList& s : subs) {
            uint16_t v[4];
            for (int i = 0; i < 4; ++i)
                v[i] = alf.valor(s[i]);
            red.acrescenta(v, 4, true);
        }
        auto t0 = Cronometro::now();
        red.reduz();
        nossos.push_back(segundos(t0));
        apostasNossas = red.QuantFinal();

        teste::ReducaoReferencia ref;
        ref.dezFinal = 6;
        for (const QStringList& s : subs)
            ref.acrescenta(s);
        t0 = Cronometro::now();
        ref.reduz();
        regra.push_back(segundos(t0));
        apostasRegra = ref.quantFinal;
    }
    std::sort(nossos.begin(), nossos.end());
    std::sort(regra.begin(), regra.end());
    std::printf("empacotamento de 01..20, garantia 4, apostas de 6: motor %.4f s (mediana %.4f), "
                "regra por textos %.3f s (mediana %.3f); razão das medianas %.0f×; apostas %d e %d\n",
                nossos.front(), nossos[2], regra.front(), regra[2], regra[2] / nossos[2], apostasNossas,
                apostasRegra);
}

void repete(const char* nome, double metaS, int ate, const QString& garantia) {
    std::vector<Resultado> r;
    for (int vez = 0; vez < 5; ++vez)
        r.push_back(rodaFluxo(ate, garantia));
    std::sort(r.begin(), r.end(),
              [](const Resultado& a, const Resultado& b) { return a.segundos < b.segundos; });
    std::printf("%-48s | melhor %.3f s, mediana %.3f s (meta %.1f s) | apostas %d | pico %.1f MB\n", nome,
                r.front().segundos, r[2].segundos, metaS, r.front().apostas, r[2].picoMB);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    repete("01..20, garantia 4, apostas de 6 (4.845)", 0.3, 20, QStringLiteral("Quadra"));
    repete("01..30, garantia 5, apostas de 6 (142.506)", 3, 30, QStringLiteral("Quina"));
    comparaComARegra();
    return 0;
}
