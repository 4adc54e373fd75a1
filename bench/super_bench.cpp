// Times of the super-reduction: a table of 2 MB (many blocks, the wanted
// one last) read from the program's folder, complemented and searched for
// its key; then the whole run of the dialog on the same file, with a last
// block of 10,001 rows that goes to the bank. The yields go through the
// program's own yield service (it runs the message loop at most every
// 10 ms). Prints the best and the median of several runs.
#include "apoio/Duplos.h"
#include "combinacoes/LeituraSuper.h"
#include "combinacoes/SuperReducao.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Module1.h"
#include "core/Principal.h"
#include "platform/qt/ServicosQt.h"
#include "programa/Programa.h"
#include "relatorios/Pontuacao.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

double ms(Cronometro::time_point desde) {
    return std::chrono::duration<double, std::milli>(Cronometro::now() - desde).count();
}

QByteArray posicoes(int semente, int v) {
    QByteArray l;
    for (int c = 0; c < 6; ++c) {
        if (c) l += ' ';
        l += QByteArray::number(1 + (semente + c * 5) % v).rightJustified(2, '0');
    }
    return l;
}

QByteArray bloco(const QByteArray& chave, int linhas, int v) {
    QByteArray t = chave + "\r\n";
    for (int r = 0; r < linhas; ++r) {
        if (r) t += "\r\n";
        t += posicoes(r, v);
    }
    return t + " ##\r\n";
}

// About 2 MB of blocks of other keys, then the wanted block.
QByteArray tabela(int linhasDoBloco) {
    QByteArray t;
    t.reserve(2200000);
    for (int v = 7; t.size() < 2000000; v = v == 25 ? 7 : v + 1)
        for (int a = 2; a <= 6 && t.size() < 2000000; ++a)
            t += bloco("MSC" + QByteArray::number(v).rightJustified(2, '0') + "A0" + QByteArray::number(a) +
                           "G0" + QByteArray::number(a),
                       600, v);
    return t + bloco("MSC30A04G04", linhasDoBloco, 30);
}

void grava(const QString& nome, const QByteArray& texto) {
    QFile f(nome);
    if (!f.open(QIODevice::WriteOnly)) std::abort();
    f.write(InverteBytes(texto));
}

struct Medida {
    std::vector<double> tempos;
    void imprime(const char* nome, double alvo) {
        std::sort(tempos.begin(), tempos.end());
        std::printf("%s: melhor %.1f ms, mediana %.1f ms (%zu execuções", nome, tempos.front(),
                    tempos[tempos.size() / 2], tempos.size());
        if (alvo > 0) std::printf("; alvo <= %.0f ms", alvo);
        std::printf(")\n");
    }
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir pasta;
    if (!pasta.isValid()) return 1;
    const QString arquivo = QDir(pasta.path()).filePath(QStringLiteral("Megasena.sv"));
    const QByteArray texto = tabela(10001);
    grava(arquivo, texto);
    std::printf("tabela: %.2f MB, bloco procurado com 10.001 linhas no fim\n", double(texto.size()) / 1e6);

    const TabelaSuper& mega = *tabelaSuperDe(QStringLiteral("MEGA-SENA"));
    const QByteArray chave = ChaveSuper(mega, 30, 4, 4);
    Medida leitura;
    for (int i = 0; i < 15; ++i) {
        CedenciaQt cedencia;
        const auto t = Cronometro::now();
        const QByteArray lido = InverteBytes(LeArquivoSuper(arquivo), [&] { cedencia.cede(); });
        const auto pos = PosicaoBlocoSuper(lido, chave);
        leitura.tempos.push_back(ms(t));
        if (!pos) return 2;
    }
    leitura.imprime("leitura, complemento e busca de 2 MB", 50);

    Medida inteira;
    for (int i = 0; i < 7; ++i) {
        ServicosDuplos d;
        CedenciaQt cedencia;
        Programa p{d.servicos(&cedencia), d.dialogos};
        d.pasta.define(pasta.path());
        CarregaPrincipal(p);
        for (int n = 1; n <= 30; ++n)
            ClicaNumero(p, Int16::de(int64_t(n - 1)));
        LimpaBancoApostas(p);
        CarregaNumeros(p);
        CarregaVetDezEsc(p);
        p.e.DezAposta = 4;
        p.e.QuantEscolhidos = 30;
        p.e.DezFinal = 6;
        p.e.QuantAcertar = 4;
        SuperReducao dlg(p);
        const auto t = Cronometro::now();
        dlg.ativa();
        inteira.tempos.push_back(ms(t));
        if (p.e.QuantBan != 10001) return 3;
    }
    inteira.imprime("diálogo inteiro, 10.001 apostas no banco", 0);
    return 0;
}
