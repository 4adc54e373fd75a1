// Time and peak memory of hostile inputs: bet files whose lengths promise
// more than they hold, rich text made of open groups, one huge line, many
// colour changes on one line; and the time of saving a large bank. The peak
// is the resident size above the start (Linux, /proc/self). Prints the best
// and the median of several runs.
#include "apoio/Duplos.h"
#include "core/ArquivoApostas.h"
#include "core/Principal.h"
#include "core/Rtf.h"
#include "programa/Programa.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

int64_t statusKb(const std::string& nome) {
    std::ifstream status("/proc/self/status");
    std::string linha;
    while (std::getline(status, linha))
        if (linha.rfind(nome + ":", 0) == 0) return std::stoll(linha.substr(nome.size() + 1));
    return -1;
}

struct Medida {
    double ms;
    double mb;
};

Medida mede(const std::function<void()>& f) {
    {
        std::ofstream limpa("/proc/self/clear_refs");
        limpa << "5";
    }
    const int64_t antes = statusKb("VmRSS");
    const auto inicio = Cronometro::now();
    f();
    const double ms = std::chrono::duration<double, std::milli>(Cronometro::now() - inicio).count();
    return {ms, double(statusKb("VmHWM") - antes) / 1024.0};
}

void relata(const char* nome, double bytesEntrada, const std::function<void()>& f, int vezes = 5) {
    std::vector<double> tempos, picos;
    for (int k = 0; k < vezes; ++k) {
        const Medida m = mede(f);
        tempos.push_back(m.ms);
        picos.push_back(m.mb);
    }
    std::sort(tempos.begin(), tempos.end());
    std::sort(picos.begin(), picos.end());
    std::printf("%-46s %10.1f ms (mediana %10.1f)  pico %8.1f MB (mediana %8.1f)", nome, tempos.front(),
                tempos[tempos.size() / 2], picos.front(), picos[picos.size() / 2]);
    if (bytesEntrada > 0) std::printf("  %.2f B/B", picos[picos.size() / 2] * 1048576.0 / bytesEntrada);
    std::printf("\n");
}

void grava(const QString& caminho, const QByteArray& bytes) {
    QFile f(caminho);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(bytes);
}

void abre(const QString& caminho) {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    CarregaPrincipal(p);
    d.dialogo.enfileira(caminho);
    try {
        AbrirArquivo(p);
    } catch (const FalhaExecucao&) {
    }
}

} // namespace

int main() {
    QTemporaryDir pasta;
    const QString nome = pasta.filePath(QStringLiteral("h.Apo"));

    grava(nome, "1e9       MEGA-SENA");
    relata("arquivo de 19 bytes, comprimento 1e9", 0, [&] { abre(nome); });
    grava(nome, "9         MEGA-SENA1000000000");
    relata("20 bytes, marcas azuis de 1 GB", 0, [&] { abre(nome); });
    grava(nome, "9         MEGA-SENA200000000 ");
    relata("20 bytes, marcas azuis de 200 MB", 0, [&] { abre(nome); });

    const QByteArray chaves = "{\\rtf1 " + QByteArray(100 << 20, '{');
    relata(
        "RTF: 100 MB de \"{\"", double(chaves.size()),
        [&] {
            DocumentoRico d;
            leRtf(chaves, d);
        },
        3);

    const QByteArray linha = "{\\rtf1 " + QByteArray(50 << 20, 'a') + "}";
    relata(
        "RTF: documento de uma linha de 50 MB", double(linha.size()),
        [&] {
            DocumentoRico d;
            leRtf(linha, d);
        },
        3);

    QByteArray cores = "{\\rtf1{\\colortbl;\\red150\\green0\\blue0;\\red0\\green0\\blue255;}";
    for (int k = 0; k < 2000000; ++k)
        cores += k % 2 ? "\\cf1 x" : "\\cf2 y";
    cores += '}';
    relata(
        "RTF: 2 milhões de mudanças de cor numa linha", double(cores.size()),
        [&] {
            DocumentoRico d;
            leRtf(cores, d);
        },
        3);

    QByteArray muitas = "{\\rtf1{\\colortbl;";
    for (int c = 0; c < 60000; ++c)
        muitas +=
            "\\red" + QByteArray::number(c % 256) + "\\green" + QByteArray::number(c / 256) + "\\blue1;";
    muitas += '}';
    for (int k = 0; k < 2000000; ++k)
        muitas += "\\cf" + QByteArray::number(1 + (int64_t(k) * 7919) % 60000) + " x";
    muitas += '}';
    relata(
        "RTF: 2 milhões de mudanças entre 60000 cores", double(muitas.size()),
        [&] {
            DocumentoRico d;
            leRtf(muitas, d);
        },
        3);

    // Saving a bank of 2,500 bets with a log of 8 MB: written beside the old
    // file, flushed to the disk, renamed over it.
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    CarregaPrincipal(p);
    p.e.Historico = QString(8 << 20, u'h');
    for (int r = 0; r < 2500; ++r) {
        p.e.VetBan.redimensionaPreservando(r + 1);
        for (int c = 0; c < 6; ++c)
            p.e.VetBan.define(c, r, QString::number(10 + c));
        p.e.VetBan.define(6, r, QStringLiteral("#"));
    }
    p.e.QuantBan = 2500;
    const QString salvo = pasta.filePath(QStringLiteral("salvo.Apo"));
    relata("salvar: banco de 2.500 apostas e log de 8 MB", 0, [&] { GravaArquivo(p, salvo); });
    return 0;
}
