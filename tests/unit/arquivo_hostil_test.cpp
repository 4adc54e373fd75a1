// Hostile bet files: a length above the limit fails at once, a text that
// runs past the end of the file costs only what its result needs, and a path
// that is no regular file ends like a folder does, without waiting.
#include "MemoriaPico.h"
#include "apoio/Duplos.h"
#include "core/ArquivoApostas.h"
#include "core/Principal.h"
#include "programa/Programa.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace sorvelo;
using sorvelo::teste::picoDeMemoria;

namespace {

QString u(const char* s) {
    return QString::fromUtf8(s);
}

struct Sessao {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    Sessao() { CarregaPrincipal(p); }
    void abre(const QString& caminho) {
        d.dialogo.enfileira(caminho);
        AbrirArquivo(p);
    }
};

void grava(const QString& caminho, const QByteArray& bytes) {
    QFile f(caminho);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

int falhaDe(const std::function<void()>& f) {
    try {
        f();
    } catch (const FalhaExecucao& falha) {
        return falha.numero();
    }
    return 0;
}

QByteArray campo(const QByteArray& texto) {
    return QByteArray::number(qlonglong(texto.size())).leftJustified(10, ' ') + texto;
}

// The fields before `texto`, then its length field claiming `comprimento`
// and the bytes of texto, with which the file ends.
QByteArray cortadoNoCampo(int numero, const QByteArray& texto, int64_t comprimento) {
    QByteArray r = campo("MEGA-SENA");
    for (int k = 2; k < numero; ++k)
        r += campo("");
    return r + QByteArray::number(qlonglong(comprimento)).leftJustified(10, ' ') + texto;
}

std::vector<int> celulasCom(const Programa& p, Cor fundo) {
    std::vector<int> r;
    for (int i = 0; i < TelaPrincipal::QuantCelulas; ++i)
        if (p.tela.Num(i).BackColor == fundo) r.push_back(i);
    return r;
}

class ArquivoHostil : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dir.isValid()); }
    void TearDown() override { LimiteTextoArquivo = LimiteTextoArquivoPadrao; }
    QString caminho(const QString& nome) const { return dir.filePath(nome); }
    // The peak memory of opening bytes as a file, in a program of its own.
    int64_t picoAoAbrir(const QByteArray& bytes, Sessao& s, int& falha) {
        const QString nome = caminho(u("hostil.Apo"));
        grava(nome, bytes);
        return picoDeMemoria([&] { falha = falhaDe([&] { s.abre(nome); }); });
    }
    QTemporaryDir dir;
};

constexpr int64_t MiB = 1 << 20;

} // namespace

TEST_F(ArquivoHostil, ComprimentoAcimaDe256MiBEFalhaDeMemoriaNaHora) {
    EXPECT_EQ(LimiteTextoArquivoPadrao, 256 * MiB);
    EXPECT_EQ(LimiteTextoArquivo, 256 * MiB);
    for (const QByteArray& comprimento : {QByteArray("1e9"), QByteArray("268435457"), QByteArray("3e8")}) {
        SCOPED_TRACE(comprimento.toStdString());
        Sessao s;
        int falha = 0;
        const int64_t pico = picoAoAbrir(comprimento.leftJustified(10, ' ') + "MEGA", s, falha);
        EXPECT_EQ(falha, erro::MemoriaInsuficiente);
        ASSERT_GE(pico, 0);
        EXPECT_LT(pico, 64 * MiB);
    }
}

TEST_F(ArquivoHostil, MarcasAzuisAlemDoFimNaoFabricamOsBrancos) {
    Sessao s;
    int falha = -1;
    const int64_t pico = picoAoAbrir(cortadoNoCampo(2, "0102", 200 * MiB), s, falha);
    EXPECT_EQ(falha, 0);
    EXPECT_EQ(celulasCom(s.p, s.p.e.CorMarcado), (std::vector<int>{0, 1}));
    ASSERT_GE(pico, 0);
    EXPECT_LT(pico, 64 * MiB);
}

TEST_F(ArquivoHostil, FixosAlemDoFimTerminamNoPrimeiroParDeBrancos) {
    Sessao s;
    int falha = -1;
    const int64_t pico = picoAoAbrir(cortadoNoCampo(11, "5", 200 * MiB), s, falha);
    EXPECT_EQ(falha, erro::ElementoControle);
    // "5 " is the number 5, before the blanks alone end the program
    EXPECT_EQ(celulasCom(s.p, s.p.e.CorFixo), (std::vector<int>{4}));
    ASSERT_GE(pico, 0);
    EXPECT_LT(pico, 64 * MiB);
}

TEST_F(ArquivoHostil, BancoEmRtfAlemDoFimNaoFabricaOsBrancos) {
    Sessao s;
    int falha = -1;
    const int64_t pico = picoAoAbrir(cortadoNoCampo(3, "{\\rtf1 abc}", 200 * MiB), s, falha);
    EXPECT_EQ(falha, 0);
    EXPECT_EQ(s.p.tela.TxtBanco.texto(), u("abc"));
    ASSERT_GE(pico, 0);
    EXPECT_LT(pico, 64 * MiB);
    // In a document left open the blanks are its text: of five, one ends
    // the \u, two are its fallback, two remain.
    Sessao b;
    grava(caminho(u("aberto.Apo")), cortadoNoCampo(3, "{\\rtf1\\uc2 abc\\u100", 19 + 5));
    b.abre(caminho(u("aberto.Apo")));
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), u("abcd  "));
}

TEST_F(ArquivoHostil, VetBanEQuantBanAlemDoFimNaoFabricamOsBrancos) {
    for (int numero : {6, 7}) {
        SCOPED_TRACE(numero);
        Sessao s;
        int falha = -1;
        const int64_t pico =
            picoAoAbrir(cortadoNoCampo(numero, numero == 6 ? "" : " 0", 200 * MiB), s, falha);
        EXPECT_EQ(falha, 0);
        EXPECT_EQ(s.p.e.QuantBan.valor(), 0);
        ASSERT_GE(pico, 0);
        EXPECT_LT(pico, 64 * MiB);
    }
}

// The marks read from a field cut by the end of the file are those of the
// same field with its blanks written out.
TEST_F(ArquivoHostil, MarcasCortadasLidasComoComOsBrancosEscritos) {
    std::mt19937 gerador(99);
    const char pedacos[] = "0123456789 -e";
    for (int caso = 0; caso < 300; ++caso) {
        QByteArray texto;
        const int n = int(gerador() % 9);
        for (int k = 0; k < n; ++k)
            texto += pedacos[gerador() % (sizeof pedacos - 1)];
        const int numero = caso % 2 ? 2 : 11;
        const int brancos = int(gerador() % 5);
        SCOPED_TRACE(texto.toStdString() + " + " + std::to_string(brancos) + " no campo " +
                     std::to_string(numero));
        Sessao cortado, escrito;
        grava(caminho(u("cortado.Apo")), cortadoNoCampo(numero, texto, texto.size() + brancos));
        grava(caminho(u("escrito.Apo")),
              cortadoNoCampo(numero, texto + QByteArray(brancos, ' '), texto.size() + brancos));
        EXPECT_EQ(falhaDe([&] { cortado.abre(caminho(u("cortado.Apo"))); }),
                  falhaDe([&] { escrito.abre(caminho(u("escrito.Apo"))); }));
        EXPECT_EQ(celulasCom(cortado.p, cortado.p.e.CorMarcado),
                  celulasCom(escrito.p, escrito.p.e.CorMarcado));
        EXPECT_EQ(celulasCom(cortado.p, cortado.p.e.CorFixo), celulasCom(escrito.p, escrito.p.e.CorFixo));
    }
}

// In a child process with an alarm, so that a wait shows as a failure.
TEST_F(ArquivoHostil, PipeOuDispositivoTerminaComoUmaPastaSemEsperar) {
    const QString fifo = caminho(u("fila.Apo"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    for (const QString& nome : {fifo, u("/dev/null"), u("/dev/zero"), dir.path()}) {
        SCOPED_TRACE(nome.toStdString());
        const pid_t filho = ::fork();
        ASSERT_GE(filho, 0);
        if (filho == 0) {
            ::alarm(20);
            Sessao s;
            ::_exit(falhaDe([&] { s.abre(nome); }));
        }
        int estado = 0;
        ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
        ASSERT_TRUE(WIFEXITED(estado)) << "preso esperando";
        EXPECT_EQ(WEXITSTATUS(estado), erro::AcessoCaminho);
    }
}

TEST_F(ArquivoHostil, AtalhoParaUmArquivoELidoComoOArquivo) {
    grava(caminho(u("real.Apo")), campo("QUINA"));
    ASSERT_TRUE(QFile::link(caminho(u("real.Apo")), caminho(u("atalho.Apo"))));
    Sessao s;
    s.abre(caminho(u("atalho.Apo")));
    EXPECT_EQ(s.p.e.NomeLoteria, u("QUINA"));
}
