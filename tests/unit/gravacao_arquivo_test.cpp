// Saving never loses the old file: the new content replaces it only when
// complete, whatever fails on the way (a refused write at any field, a full
// disk, a kill in the middle of a large save).
#include "apoio/Duplos.h"
#include "core/ArquivoApostas.h"
#include "core/GravacaoAtomica.h"
#include "core/Principal.h"
#include "programa/Programa.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <iostream>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace sorvelo;

namespace {

QString u(const char* s) {
    return QString::fromUtf8(s);
}

struct Sessao {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    Sessao() { CarregaPrincipal(p); }
};

QByteArray conteudo(const QString& caminho) {
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return f.readAll();
}

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

// A whole working state read from a golden file of Mega-Sena.
void carregaDourado(Programa& p) {
    LeArquivo(p, QDir(QStringLiteral(SORVELO_DADOS_TESTE)).filePath(QStringLiteral("megasena.Apo")));
}

const QByteArray Antigo = QByteArray("4         QUINA0         ") + QByteArray(3000, 'x');

class GravacaoArquivo : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        carregaDourado(s.p);
        nome = dir.filePath(u("banco.Apo"));
        // What a save writes when nothing fails.
        GravaArquivo(s.p, dir.filePath(u("referencia.Apo")));
        esperado = conteudo(dir.filePath(u("referencia.Apo")));
        QFile::remove(dir.filePath(u("referencia.Apo")));
        ASSERT_GT(esperado.size(), 500);
        grava(nome, Antigo);
    }
    void TearDown() override { GravacaoAtomica::falhaInjetada = nullptr; }

    // The folder holds the old file alone, as it was.
    void soOAntigo() const {
        EXPECT_EQ(conteudo(nome), Antigo);
        EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList{u("banco.Apo")});
    }

    // The writes of one save, counted.
    int quantEscritas() {
        int n = 0;
        GravacaoAtomica::falhaInjetada = [&](EtapaGravacao e, int64_t, int64_t) {
            if (e == EtapaGravacao::Escrita) ++n;
            return 0;
        };
        GravaArquivo(s.p, dir.filePath(u("conta.Apo")));
        GravacaoAtomica::falhaInjetada = nullptr;
        QFile::remove(dir.filePath(u("conta.Apo")));
        return n;
    }

    QTemporaryDir dir;
    Sessao s;
    QString nome;
    QByteArray esperado;
};

} // namespace

TEST_F(GravacaoArquivo, SalvarSubstituiOArquivoAntigoPeloNovoCompleto) {
    GravaArquivo(s.p, nome);
    EXPECT_EQ(conteudo(nome), esperado);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u("banco.Apo")});
}

TEST_F(GravacaoArquivo, OArquivoNovoTemAsPermissoesDeUmArquivoCriado) {
    QFile::remove(nome);
    GravaArquivo(s.p, nome);
    const mode_t mascara = ::umask(0);
    ::umask(mascara);
    struct stat st {};
    ASSERT_EQ(::stat(QFile::encodeName(nome).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0666 & ~mascara);
}

TEST_F(GravacaoArquivo, EscritaRecusadaEmCadaCampoDeixaOAntigo) {
    const int escritas = quantEscritas();
    EXPECT_EQ(escritas, 32); // the length and the text of each field
    for (const int erroSistema : {ENOSPC, EIO}) {
        for (int k = 0; k < escritas; ++k) {
            SCOPED_TRACE(k);
            int n = 0;
            GravacaoAtomica::falhaInjetada = [&](EtapaGravacao e, int64_t, int64_t) {
                return e == EtapaGravacao::Escrita && n++ == k ? erroSistema : 0;
            };
            EXPECT_EQ(falhaDe([&] { GravaArquivo(s.p, nome); }),
                      erroSistema == ENOSPC ? erro::DiscoCheio : erro::ErroEntradaSaida);
            soOAntigo();
        }
    }
}

TEST_F(GravacaoArquivo, DiscoQueEncheEmQualquerByteDaDiscoCheioEDeixaOAntigo) {
    for (int64_t livre = 0; livre < esperado.size(); livre += livre < 300 ? 1 : 97) {
        SCOPED_TRACE(livre);
        GravacaoAtomica::falhaInjetada = [&](EtapaGravacao e, int64_t escritos, int64_t tamanho) {
            return e == EtapaGravacao::Escrita && escritos + tamanho > livre ? ENOSPC : 0;
        };
        EXPECT_EQ(falhaDe([&] { GravaArquivo(s.p, nome); }), erro::DiscoCheio);
        soOAntigo();
    }
}

TEST_F(GravacaoArquivo, FalhaAoCriarAoSincronizarOuAoTrocarDeixaOAntigo) {
    const struct {
        EtapaGravacao etapa;
        int erroSistema;
        int falha;
    } casos[] = {
        {EtapaGravacao::Criacao, EACCES, erro::AcessoCaminho},
        {EtapaGravacao::Criacao, ENOSPC, erro::DiscoCheio},
        {EtapaGravacao::Sincronizacao, EIO, erro::ErroEntradaSaida},
        {EtapaGravacao::Sincronizacao, ENOSPC, erro::DiscoCheio},
        {EtapaGravacao::Troca, EACCES, erro::AcessoCaminho},
        {EtapaGravacao::Troca, EBUSY, erro::AcessoCaminho},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(int(c.etapa));
        GravacaoAtomica::falhaInjetada = [&](EtapaGravacao e, int64_t, int64_t) {
            return e == c.etapa ? c.erroSistema : 0;
        };
        EXPECT_EQ(falhaDe([&] { GravaArquivo(s.p, nome); }), c.falha);
        soOAntigo();
    }
}

TEST_F(GravacaoArquivo, FalhaDoProgramaNoMeioDosCamposDeixaOAntigo) {
    auto& p = s.p;
    // A row with no "#" fails in field 6, after five fields were written.
    p.e.VetBan.redimensionaPreservando(1);
    for (int c = 0; c <= 81; ++c)
        p.e.VetBan.define(c, 0, QStringLiteral("01"));
    EXPECT_EQ(falhaDe([&] { GravaArquivo(p, nome); }), erro::SubscritoForaIntervalo);
    soOAntigo();
}

TEST_F(GravacaoArquivo, PastaSemEscritaNaoGravaSobreOArquivoAntigo) {
    if (::geteuid() == 0) GTEST_SKIP() << "as root every folder can be written";
    ASSERT_TRUE(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner));
    const int falha = falhaDe([&] { GravaArquivo(s.p, nome); });
    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(falha, erro::AcessoCaminho);
    soOAntigo();
}

TEST_F(GravacaoArquivo, ArquivoAntigoSoDeLeituraESubstituido) {
    ASSERT_TRUE(QFile::setPermissions(nome, QFile::ReadOwner));
    GravaArquivo(s.p, nome);
    EXPECT_EQ(conteudo(nome), esperado);
}

TEST_F(GravacaoArquivo, NomeDeUmaPastaTerminaSemTocarNela) {
    ASSERT_TRUE(QDir(dir.path()).mkdir(u("pasta.Apo")));
    EXPECT_EQ(falhaDe([&] { GravaArquivo(s.p, dir.filePath(u("pasta.Apo"))); }), erro::AcessoCaminho);
    EXPECT_TRUE(QFileInfo(dir.filePath(u("pasta.Apo"))).isDir());
}

// In a child process: the save with a file-size limit of the system, which
// refuses the write that would pass it. The exit status is the failure.
TEST_F(GravacaoArquivo, LimiteDeTamanhoDoSistemaEmCadaCampoDaDiscoCheio) {
    // Each field boundary, one byte before and one past it.
    std::vector<int64_t> limites;
    for (int64_t pos = 0; pos < esperado.size();) {
        for (int64_t d : {-1, 0, 1, 5})
            if (pos + d >= 0 && pos + d < esperado.size()) limites.push_back(pos + d);
        pos += 10 + esperado.mid(pos, 10).trimmed().toLongLong();
    }
    for (const int64_t limite : limites) {
        SCOPED_TRACE(limite);
        const pid_t filho = ::fork();
        ASSERT_GE(filho, 0);
        if (filho == 0) {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit r{rlim_t(limite), rlim_t(limite)};
            ::setrlimit(RLIMIT_FSIZE, &r);
            ::_exit(falhaDe([&] { GravaArquivo(s.p, nome); }));
        }
        int estado = 0;
        ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
        ASSERT_TRUE(WIFEXITED(estado));
        EXPECT_EQ(WEXITSTATUS(estado), erro::DiscoCheio);
        soOAntigo();
    }
}

// A kill at each write of the save: the old file stays, nothing else appears.
TEST_F(GravacaoArquivo, MortoEmCadaEscritaDeixaSoOAntigo) {
    const int escritas = quantEscritas();
    for (int k = 0; k <= escritas + 1; ++k) {
        SCOPED_TRACE(k);
        const pid_t filho = ::fork();
        ASSERT_GE(filho, 0);
        if (filho == 0) {
            int n = 0;
            GravacaoAtomica::falhaInjetada = [&](EtapaGravacao e, int64_t, int64_t) {
                if ((e == EtapaGravacao::Escrita && n++ == k) ||
                    (k == escritas && e == EtapaGravacao::Sincronizacao) ||
                    (k == escritas + 1 && e == EtapaGravacao::Troca))
                    ::raise(SIGKILL);
                return 0;
            };
            GravaArquivo(s.p, nome);
            ::_exit(0);
        }
        int estado = 0;
        ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
        ASSERT_TRUE(WIFSIGNALED(estado));
        soOAntigo();
    }
}

// A kill from outside at some moment of a large save: the file is the old
// one or the whole new one, and no other file is left in the folder.
TEST_F(GravacaoArquivo, MortoDuranteUmSalvamentoGrandeNaoDeixaArquivoPelaMetade) {
    s.p.e.Historico = QString(8 << 20, u'h');
    GravaArquivo(s.p, dir.filePath(u("grande.Apo")));
    const QByteArray novo = conteudo(dir.filePath(u("grande.Apo")));
    QFile::remove(dir.filePath(u("grande.Apo")));
    int antigos = 0, novos = 0;
    for (int espera : {0, 1, 2, 3, 5, 8, 13, 21, 34, 55, 89, 144, 233, 377, 610, 987}) {
        SCOPED_TRACE(espera);
        grava(nome, Antigo);
        int canal[2];
        ASSERT_EQ(::pipe(canal), 0);
        const pid_t filho = ::fork();
        ASSERT_GE(filho, 0);
        if (filho == 0) {
            ::close(canal[0]);
            const char pronto = 'p';
            if (::write(canal[1], &pronto, 1) != 1) ::_exit(1);
            for (;;)
                GravaArquivo(s.p, nome);
        }
        ::close(canal[1]);
        char c = 0;
        ASSERT_EQ(::read(canal[0], &c, 1), 1);
        ::close(canal[0]);
        std::this_thread::sleep_for(std::chrono::milliseconds(espera));
        ::kill(filho, SIGKILL);
        int estado = 0;
        ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
        const QByteArray agora = conteudo(nome);
        EXPECT_TRUE(agora == Antigo || agora == novo) << agora.size();
        (agora == Antigo ? antigos : novos) += 1;
        EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList{u("banco.Apo")});
    }
    std::cout << "antigos " << antigos << ", novos " << novos << '\n';
}
