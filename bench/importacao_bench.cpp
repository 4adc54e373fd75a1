// Time of the export and the import of bets: a bank of 1,000,000 six-number
// Mega-Sena bets written as CSV (and as plain text), then a file of
// 1,000,000 lines read and appended to an empty bank, as the import does it
// (reading, checking, both forms of the bank). Each measure is repeated; the
// best and the median are given.
// Usage: importacao_bench [bets] [repetitions]  (default 1000000 5)
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Principal.h"
#include "edicao/Importar.h"
#include "edicao/LeitorApostas.h"
#include "programa/Programa.h"
#include "relatorios/Exportar.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

double segundosDesde(Cronometro::time_point inicio) {
    return std::chrono::duration<double>(Cronometro::now() - inicio).count();
}

// A bank of `quant` six-number bets, written as the bank writers do.
void encheBanco(Programa& p, int64_t quant) {
    auto& e = p.e;
    e.VetBan.reserva(quant + 2, size_t(quant) * 7);
    std::array<uint8_t, 7> codigos{};
    for (int64_t n = 0; n < quant; ++n) {
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        QString aposta;
        for (int c = 0; c < 6; ++c) {
            const int numero = 1 + c * 10 + int((n * 7 + c * 3) % 10);
            codigos[size_t(c)] = MatrizTexto::codigoNumero(numero);
            aposta += MatrizTexto::textoDe(codigos[size_t(c)]);
            aposta += u' ';
        }
        codigos[6] = MatrizTexto::Fim;
        e.VetBan.defineCelulas(e.QuantBan.valor(), codigos.data(), 7);
        InsereApostaBanco(p, aposta, n + 1);
        e.QuantBan += 1;
    }
}

struct Medidas {
    std::vector<double> t;
    void mostra(const char* nome, const char* meta) {
        std::sort(t.begin(), t.end());
        std::printf("%-44s melhor %.3f s  mediana %.3f s  (meta %s)\n", nome, t.front(), t[t.size() / 2],
                    meta);
    }
};

} // namespace

int main(int argc, char** argv) {
    const int64_t quant = argc > 1 ? std::atoll(argv[1]) : 1000000;
    const int vezes = argc > 2 ? std::max(1, std::atoi(argv[2])) : 5;
    QTemporaryDir pasta;
    const QString csv = QDir(pasta.path()).filePath(QStringLiteral("banco.csv"));
    const QString txt = QDir(pasta.path()).filePath(QStringLiteral("banco.txt"));

    ServicosDuplos d;

    Programa p{d.servicos(), d.dialogos};
    CarregaPrincipal(p);
    encheBanco(p, quant);

    Medidas exportaCsv, exportaTxt, importaCsv, importaTxt;
    for (int v = 0; v < vezes; ++v) {
        auto inicio = Cronometro::now();
        if (!ExportaBanco(p, csv, FormatoExportacao::Csv).isEmpty()) return 1;
        exportaCsv.t.push_back(segundosDesde(inicio));
        inicio = Cronometro::now();
        if (!ExportaBanco(p, txt, FormatoExportacao::Texto).isEmpty()) return 1;
        exportaTxt.t.push_back(segundosDesde(inicio));
    }
    std::printf("%lld apostas; CSV de %lld bytes, texto de %lld bytes\n", static_cast<long long>(quant),
                static_cast<long long>(QFileInfo(csv).size()), static_cast<long long>(QFileInfo(txt).size()));

    for (int v = 0; v < vezes; ++v) {
        for (auto [arquivo, medidas] : {std::pair{csv, &importaCsv}, std::pair{txt, &importaTxt}}) {
            ServicosDuplos d2;
            Programa vazio{d2.servicos(), d2.dialogos};
            CarregaPrincipal(vazio);
            const auto inicio = Cronometro::now();
            LeitorApostas leitor(vazio.e.NumIni.valor(), vazio.e.NumFim.valor());
            if (!LeArquivoApostas(arquivo, leitor, vazio.s.cedencia).isEmpty()) return 1;
            AcrescentaImportadas(vazio, leitor, QFileInfo(arquivo).fileName());
            medidas->t.push_back(segundosDesde(inicio));
            if (vazio.e.QuantBan.valor() != quant || leitor.quantRecusadas() != 0) {
                std::printf("importação errada: %d apostas\n", vazio.e.QuantBan.valor());
                return 1;
            }
        }
    }
    exportaCsv.mostra("exportar como CSV", "<= 1 s por 1.000.000");
    exportaTxt.mostra("exportar como texto", "-");
    importaCsv.mostra("importar o CSV (ler, conferir, banco)", "<= 2 s por 1.000.000");
    importaTxt.mostra("importar o texto (ler, conferir, banco)", "<= 2 s por 1.000.000");
    return 0;
}
