// Times of the bet file: saving a bank of 1,000,000 bets (the RTF of the
// bank included) and opening a file of 2,500 Mega-Sena bets.
#include "apoio/Duplos.h"
#include "core/ArquivoApostas.h"
#include "core/BancoApostas.h"
#include "core/Principal.h"
#include "core/Rtf.h"
#include "programa/Programa.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

double segundos(Cronometro::time_point desde) {
    return std::chrono::duration<double>(Cronometro::now() - desde).count();
}

long picoMemoriaKb() {
    std::ifstream status("/proc/self/status");
    std::string linha;
    while (std::getline(status, linha))
        if (linha.rfind("VmHWM:", 0) == 0) return std::stol(linha.substr(6));
    return -1;
}

struct Sessao {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    Sessao() { CarregaPrincipal(p); }
};

// A bank as a batch writer leaves it: head, bets numbered from 1, end.
void montaBanco(Programa& p, int quant) {
    auto& e = p.e;
    LimpaBancoApostas(p);
    InsereLinhaBanco(p, CabecalhoLote(p), true);
    e.VetBan.redimensionaPreservando(quant + 1);
    for (int n = 0; n < quant; ++n) {
        QString texto;
        for (int c = 0; c < 6; ++c) {
            const int numero = 1 + (n + c * 7) % 60;
            e.VetBan.defineCodigo(c, n, MatrizTexto::codigoNumero(numero));
            texto += formata00(numero) + u' ';
        }
        e.VetBan.defineCodigo(6, n, MatrizTexto::Fim);
        InsereApostaBanco(p, texto, n + 1);
        e.QuantBan += 1;
    }
    InsereLinhaBanco(p, QStringLiteral("\r\n"), true);
    AtualizaContadores(p);
}

} // namespace

int main() {
    QTemporaryDir pasta;
    if (!pasta.isValid()) return 1;

    {
        Sessao s;
        auto t = Cronometro::now();
        montaBanco(s.p, 1000000);
        std::printf("montagem do banco de 1.000.000 apostas: %.3f s (não faz parte da medida)\n",
                    segundos(t));
        t = Cronometro::now();
        const std::string rtf = escreveRtfTexto(s.p.tela.TxtBanco);
        std::printf("texto RTF do banco sozinho: %.3f s (%.1f MB)\n", segundos(t), double(rtf.size()) / 1e6);
        const QString nome = pasta.filePath(QStringLiteral("milhao.Apo"));
        s.d.dialogo.enfileira(nome);
        t = Cronometro::now();
        SalvarArquivoComo(s.p);
        const double gravar = segundos(t);
        std::printf("salvar 1.000.000 apostas (RTF incluído): %.3f s, arquivo de %.1f MB (meta: <= 2 s)\n",
                    gravar, double(QFileInfo(nome).size()) / 1e6);
        QFile::remove(nome);
    }

    const QString nome = pasta.filePath(QStringLiteral("2500.Apo"));
    {
        Sessao s;
        montaBanco(s.p, 2500);
        s.d.dialogo.enfileira(nome);
        SalvarArquivoComo(s.p);
    }
    std::vector<double> tempos;
    for (int vez = 0; vez < 30; ++vez) {
        Sessao s;
        s.d.dialogo.enfileira(nome);
        const auto t = Cronometro::now();
        AbrirArquivo(s.p);
        tempos.push_back(segundos(t));
        if (s.p.e.QuantBan.valor() != 2500) {
            std::printf("leitura errada: %d apostas\n", s.p.e.QuantBan.valor());
            return 1;
        }
    }
    std::sort(tempos.begin(), tempos.end());
    std::printf("abrir 2.500 apostas Mega-Sena (%.0f KB): mediana %.2f ms, máximo %.2f ms em 30 vezes "
                "(meta: <= 100 ms)\n",
                double(QFileInfo(nome).size()) / 1e3, tempos[tempos.size() / 2] * 1e3, tempos.back() * 1e3);
    std::printf("pico de memória (VmHWM): %.1f MB\n", double(picoMemoriaKb()) / 1024.0);
    return 0;
}
