// Time and memory of the bank's thinning tools on large banks built inside
// the benchmark with the bank writers' own steps (VetBan grown row by row,
// the cells and the "#", the bet line appended to TxtBanco):
// - the filter of the bets of a full combination of 33 Mega-Sena numbers
//   (1,107,568) with 30 % of them repeated at random places, once with the
//   identical bets alone and once with all eight boxes at limits that keep
//   most bets; peak resident memory beside that of the bank alone;
// - the identical-bets rule compared with every other bet, on 20,000 bets,
//   beside the program's own;
// - the elimination of 2 numbers from every bet of the 1,107,568, rewrite
//   of the bank included.
// Usage: filtro_bench [igual|todos|janela|lotomania|quadratica|elimina]  (default: all)
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Principal.h"
#include "edicao/Eliminar.h"
#include "edicao/Filtrar.h"
#include "forms/Filtrar.h"
#include "platform/qt/ServicosQt.h"

#include "../tests/unit/ReferenciaFiltro.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;
using Aposta = std::array<uint8_t, 6>;

double segundosDeProcessador() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) * 1e-9;
}

double campoStatusMB(const char* nome) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray chave = QByteArray(nome) + ':';
    for (const QByteArray& linha : f.readAll().split('\n'))
        if (linha.startsWith(chave))
            return linha.mid(chave.size()).trimmed().split(' ').value(0).toDouble() / 1024.0;
    return -1;
}

bool zeraPico() {
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (!f.open(QIODevice::WriteOnly)) return false;
    return f.write("5") == 1;
}

// The bets of 33 numbers taken 6, in order; with `repetidas`, that share of
// them repeated at random places.
std::vector<Aposta> apostas(double repetidas, uint32_t semente = 2026) {
    std::vector<Aposta> base;
    base.reserve(1107568);
    Aposta a{1, 2, 3, 4, 5, 6};
    for (;;) {
        base.push_back(a);
        int i = 5;
        while (i >= 0 && a[size_t(i)] == 33 - (5 - i))
            --i;
        if (i < 0) break;
        ++a[size_t(i)];
        for (int j = i + 1; j < 6; ++j)
            a[size_t(j)] = uint8_t(a[size_t(j - 1)] + 1);
    }
    if (repetidas <= 0) return base;
    std::mt19937 rng(semente);
    const size_t quant = size_t(double(base.size()) * repetidas);
    std::uniform_int_distribution<size_t> qual(0, base.size() - 1);
    // Each copy goes in front of a place drawn at random.
    std::vector<std::pair<size_t, size_t>> copias(quant); // place, bet
    for (auto& c : copias)
        c = {qual(rng), qual(rng)};
    std::sort(copias.begin(), copias.end());
    std::vector<Aposta> r;
    r.reserve(base.size() + quant);
    size_t k = 0;
    for (size_t i = 0; i < base.size(); ++i) {
        for (; k < copias.size() && copias[k].first == i; ++k)
            r.push_back(base[copias[k].second]);
        r.push_back(base[i]);
    }
    return r;
}

// One bet written as the bank writers write it, numbered n.
void insereAposta(Programa& p, const Aposta& a, int64_t n) {
    auto& e = p.e;
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    uint8_t codigos[7];
    QString texto;
    texto.reserve(18);
    for (int c = 0; c < 6; ++c) {
        codigos[c] = MatrizTexto::codigoNumero(a[size_t(c)]);
        texto += MatrizTexto::textoDe(codigos[c]);
        texto += u' ';
    }
    codigos[6] = MatrizTexto::Fim;
    e.VetBan.defineCelulas(e.QuantBan.valor(), codigos, 7);
    InsereApostaBanco(p, texto, n);
    e.QuantBan += 1;
}

struct Bancada {
    ServicosDuplos d;
    CedenciaQt cedencia;
    Programa p{d.servicos(&cedencia), d.dialogos};
    double rssAntes = 0, rssBanco = 0;
    explicit Bancada(const std::vector<Aposta>& lista) {
        CarregaPrincipal(p);
        rssAntes = campoStatusMB("VmRSS");
        p.tela.TxtBanco.defineVisivel(false);
        InsereLinhaBanco(p, CabecalhoLote(p), true);
        for (size_t i = 0; i < lista.size(); ++i)
            insereAposta(p, lista[i], int64_t(i) + 1);
        InsereLinhaBanco(p, QStringLiteral("\r\n"), true);
        p.tela.TxtBanco.defineVisivel(true);
        rssBanco = campoStatusMB("VmRSS");
    }
};

struct Medida {
    double segundos, processador;
};
Medida mede(const std::function<void()>& f) {
    const double cpu0 = segundosDeProcessador();
    const auto t0 = Cronometro::now();
    f();
    return {std::chrono::duration<double>(Cronometro::now() - t0).count(), segundosDeProcessador() - cpu0};
}

void filtro(const char* nome, bool todas) {
    const std::vector<Aposta> lista = apostas(0.30);
    Bancada b(lista);
    const int32_t antes = b.p.e.QuantBan.valor();
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    if (todas) {
        const std::pair<CaixaMarcar*, CampoTexto*> criterios[] = {
            {&f.ChkSeq, &f.TxtSeq},       {&f.ChkLin, &f.TxtLin},       {&f.ChkCol, &f.TxtCol},
            {&f.ChkLinVaz, &f.TxtLinVaz}, {&f.ChkColVaz, &f.TxtColVaz}, {&f.ChkPar, &f.TxtPar},
            {&f.ChkImpar, &f.TxtImpar}};
        const char* limites[] = {"04", "05", "05", "06", "10", "06", "06"};
        for (size_t i = 0; i < 7; ++i) {
            criterios[i].first->Value = true;
            criterios[i].second->Text = QString::fromLatin1(limites[i]);
        }
    }
    long long repinturas = 0;
    f.aoRepintarContador = [&](bool) { ++repinturas; };
    const bool zerou = zeraPico();
    const Medida m = mede([&] { f.BtnOK(); });
    const double pico = campoStatusMB("VmHWM");
    const double banco = b.rssBanco - b.rssAntes;
    std::printf("%-34s | %7.3f s, processador %7.3f s (meta 2 s) | %d -> %d apostas | legendas %lld\n", nome,
                m.segundos, m.processador, antes, b.p.e.QuantBan.valor(), repinturas);
    std::printf("%-34s | memória: antes do banco %.1f MB, com o banco %.1f MB (banco %.1f MB), pico %.1f MB%s"
                " -> pico/banco %.2f (meta 2,5), pico do processo/RSS com o banco %.2f\n",
                "", b.rssAntes, b.rssBanco, banco, pico, zerou ? "" : " (pico do processo)",
                (pico - b.rssAntes) / banco, pico / b.rssBanco);
    std::fflush(stdout);
}

// Long bets: 300,000 Lotomania bets of 50 numbers drawn at random, 30 % of
// them repeated, with the identical bets alone: the index's memory does not
// grow with the length of the bets.
void lotomania() {
    ServicosDuplos d;
    CedenciaQt cedencia;
    Programa p{d.servicos(&cedencia), d.dialogos};
    CarregaPrincipal(p);
    const double rssAntes = campoStatusMB("VmRSS");
    std::mt19937 rng(11);
    std::vector<std::array<uint8_t, 50>> lista;
    for (int i = 0; i < 300000; ++i) {
        if (i > 0 && rng() % 10 < 3) {
            lista.push_back(lista[rng() % lista.size()]);
            continue;
        }
        std::array<uint8_t, 100> todos;
        for (int n = 0; n < 100; ++n)
            todos[size_t(n)] = uint8_t(n);
        std::shuffle(todos.begin(), todos.end(), rng);
        std::array<uint8_t, 50> a;
        std::copy(todos.begin(), todos.begin() + 50, a.begin());
        std::sort(a.begin(), a.end());
        lista.push_back(a);
    }
    p.tela.TxtBanco.defineVisivel(false);
    for (size_t i = 0; i < lista.size(); ++i) {
        auto& e = p.e;
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        uint8_t codigos[51];
        QString texto;
        for (int c = 0; c < 50; ++c) {
            codigos[c] = MatrizTexto::codigoNumero(lista[i][size_t(c)]);
            texto += MatrizTexto::textoDe(codigos[c]) + u' ';
        }
        codigos[50] = MatrizTexto::Fim;
        e.VetBan.defineCelulas(e.QuantBan.valor(), codigos, 51);
        InsereApostaBanco(p, texto, int64_t(i) + 1);
        e.QuantBan += 1;
    }
    p.tela.TxtBanco.defineVisivel(true);
    std::vector<std::array<uint8_t, 50>>().swap(lista);
    const double rssBanco = campoStatusMB("VmRSS");
    Filtrar f(p);
    f.ChkIgual.Value = true;
    const int32_t antes = p.e.QuantBan.valor();
    const bool zerou = zeraPico();
    const Medida m = mede([&] { f.BtnOK(); });
    const double pico = campoStatusMB("VmHWM");
    std::printf("%-34s | %7.3f s, processador %7.3f s | %d -> %d apostas | banco %.1f MB, pico %.1f MB%s -> "
                "pico/banco %.2f\n",
                "Lotomania, 50 números, só iguais", m.segundos, m.processador, antes, p.e.QuantBan.valor(),
                rssBanco - rssAntes, pico, zerou ? "" : " (pico do processo)",
                (pico - rssAntes) / (rssBanco - rssAntes));
    std::fflush(stdout);
}

// The same run through the dialog itself, offscreen: the counter's label
// repainted on the spot through the platform, at most every 40 ms.
void janela() {
    const std::vector<Aposta> lista = apostas(0.30);
    Bancada b(lista);
    const int32_t antes = b.p.e.QuantBan.valor();
    JanelaFiltrar j(b.p);
    j.show();
    j.findChild<QCheckBox*>(QStringLiteral("ChkIgual"))->click();
    auto* ok = j.findChild<QPushButton*>(QStringLiteral("BtnOK"));
    const Medida m = mede([&] { ok->click(); });
    std::printf("%-34s | %7.3f s, processador %7.3f s (meta 2 s) | %d -> %d apostas\n",
                "filtro pela janela, só iguais", m.segundos, m.processador, antes, b.p.e.QuantBan.valor());
    std::fflush(stdout);
}

// The same rule, each bet against every other one, on the compact cell
// codes instead of texts: the fair measure of what the square costs.
int quadraticaEmCodigos(const MatrizTexto& vet, int32_t quant) {
    std::vector<std::vector<uint8_t>> linhas(size_t(quant), std::vector<uint8_t>(82, MatrizTexto::Vazio));
    for (int32_t r = 0; r < quant; ++r) {
        int n = 0;
        const uint8_t* c = vet.celulas(r, n);
        std::copy(c, c + n, linhas[size_t(r)].begin());
    }
    const uint8_t arroba = 254; // a code no number has
    int ficam = 0;
    for (size_t i = 0; i < linhas.size(); ++i) {
        std::vector<uint8_t>& a = linhas[i];
        const int m = int(std::find(a.begin(), a.end(), MatrizTexto::Fim) - a.begin());
        bool igual = false;
        for (size_t k = 0; k < linhas.size() && !igual; ++k)
            igual = k != i && std::equal(a.begin(), a.begin() + m, linhas[k].begin());
        if (igual)
            a[0] = arroba;
        else
            ++ficam;
    }
    return ficam;
}

void quadratica() {
    std::vector<Aposta> lista = apostas(0.30);
    // 20,000 bets spread over the bank, repeats among them.
    std::vector<Aposta> amostra;
    for (size_t i = 0; amostra.size() < 20000; i += lista.size() / 20000)
        amostra.push_back(lista[i]);
    std::mt19937 rng(5);
    for (size_t i = 0; i < 6000; ++i)
        amostra[std::uniform_int_distribution<size_t>(0, amostra.size() - 1)(rng)] =
            amostra[std::uniform_int_distribution<size_t>(0, amostra.size() - 1)(rng)];
    Bancada b(amostra);
    const MatrizTexto inicial = b.p.e.VetBan;
    const int32_t quant = b.p.e.QuantBan.valor();
    teste::ReferenciaFiltro ref;
    ref.marcadas[7] = true;
    const Medida mr = mede([&] { ref.executa(inicial, quant); });
    int ficamCodigos = 0;
    const Medida mc = mede([&] { ficamCodigos = quadraticaEmCodigos(inicial, quant); });
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    const Medida mp = mede([&] { f.BtnOK(); });
    std::printf("iguais em %d apostas: cada uma contra todas %.3f s (%d ficam), o programa %.4f s (%d ficam, "
                "texto reescrito incluído) -> %.0f vezes\n",
                quant, mr.segundos, int(ref.sobreviventes.size()), mp.segundos, b.p.e.QuantBan.valor(),
                mr.segundos / mp.segundos);
    std::printf(
        "iguais em %d apostas: cada uma contra todas nos códigos das células %.3f s (%d ficam) -> %.0f "
        "vezes o programa\n",
        quant, mc.segundos, ficamCodigos, mc.segundos / mp.segundos);
    std::fflush(stdout);
}

void elimina() {
    Bancada b(apostas(0));
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("2");
    long long contagens = 0;
    d.aoContar = [&] { ++contagens; };
    const Medida m = mede([&] { d.BtnIniciar(); });
    std::printf("eliminação de 2 em %d apostas       | %7.3f s, processador %7.3f s (meta 1,5 s) | "
                "LblCont %lld vezes, última %s | aposta 1: %s\n",
                b.p.e.QuantBan.valor(), m.segundos, m.processador, contagens, qPrintable(d.LblCont),
                qPrintable(RetAposta(b.p, 0)));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const char* modo = argc > 1 ? argv[1] : "";
    const bool tudo = !*modo;
    if (tudo || !std::strcmp(modo, "igual")) filtro("filtro, só apostas iguais", false);
    if (tudo || !std::strcmp(modo, "todos")) filtro("filtro, as oito caixas", true);
    if (tudo || !std::strcmp(modo, "janela")) janela();
    if (tudo || !std::strcmp(modo, "lotomania")) lotomania();
    if (tudo || !std::strcmp(modo, "quadratica")) quadratica();
    if (tudo || !std::strcmp(modo, "elimina")) elimina();
    return 0;
}
