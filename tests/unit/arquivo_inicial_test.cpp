#include "apoio/ProgramaTeste.h"
#include "core/ArquivoApostas.h"
#include "core/ArquivoInicial.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"

#include "apoio/ImprimeQt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

struct Sessao : ProgramaTeste {
    Sessao() = default;
    // What a person sees and what the bank holds.
    QStringList estado() const {
        return {p.tela.Caption,
                p.e.NomeArquivo,
                p.e.NomeLoteria,
                QString::number(p.e.QuantBan.valor()),
                p.tela.TxtBanco.texto(),
                TextoVetBan(p),
                TextoMarcados(p),
                TextoFixos(p),
                p.e.Historico,
                p.tela.TxtQuantApostas.Text,
                p.tela.TxtEscolhidos.Text,
                p.tela.TxtDezAp.Text,
                p.tela.CmbGarantia.Text};
    }
};

struct ArquivoInicial : ::testing::Test {
    QTemporaryDir pasta;
    QString caminho(const char* nome) const { return pasta.filePath(QString::fromLatin1(nome)); }

    // A Quina file with two bets, one of them typed.
    QString arquivoDeApostas() {
        Sessao s;
        TrocaLoteria(s.p, QStringLiteral("Quina"));
        for (int c : {0, 1, 2, 3, 4})
            ClicaNumero(s.p, c);
        InsereApostaMarcada(s.p);
        for (int c : {10, 20, 30, 40, 50, 60, 70})
            ClicaNumero(s.p, c);
        InsereApostaMarcada(s.p);
        const QString nome = caminho("quina.Apo");
        GravaArquivo(s.p, nome);
        return nome;
    }
};

} // namespace

TEST_F(ArquivoInicial, OArgumentoEOPrimeiroDepoisDoPrograma) {
    EXPECT_EQ(ArquivoDaLinhaDeComando({QStringLiteral("sorvelo")}), QString());
    EXPECT_EQ(ArquivoDaLinhaDeComando({}), QString());
    EXPECT_EQ(ArquivoDaLinhaDeComando({QStringLiteral("sorvelo"), QStringLiteral("/tmp/a b.Apo")}),
              QStringLiteral("/tmp/a b.Apo"));
    EXPECT_EQ(ArquivoDaLinhaDeComando(
                  {QStringLiteral("sorvelo"), QStringLiteral("x.Apo"), QStringLiteral("y.Apo")}),
              QStringLiteral("x.Apo"));
}

TEST_F(ArquivoInicial, AbreComoAbrirSemODialogo) {
    const QString nome = arquivoDeApostas();
    Sessao pelaLinha;
    AbreArquivoInicial(pelaLinha.p, nome);
    Sessao peloMenu;
    peloMenu.d.dialogo.enfileira(nome);
    AbrirArquivo(peloMenu.p);

    EXPECT_EQ(pelaLinha.estado(), peloMenu.estado());
    EXPECT_EQ(pelaLinha.p.e.QuantBan, 2);
    EXPECT_EQ(pelaLinha.p.e.NomeLoteria, QStringLiteral("QUINA"));
    EXPECT_EQ(pelaLinha.p.tela.Caption, QStringLiteral("Sorvelo - ") + nome);
    EXPECT_TRUE(pelaLinha.d.dialogo.pedidos().empty());
    EXPECT_TRUE(pelaLinha.d.caixa.vistas().empty());
}

TEST_F(ArquivoInicial, NomeRelativoFicaAbsoluto) {
    const QString nome = arquivoDeApostas();
    const QString antes = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(pasta.path()));
    Sessao s;
    AbreArquivoInicial(s.p, QStringLiteral("quina.Apo"));
    QDir::setCurrent(antes);
    EXPECT_EQ(s.p.e.NomeArquivo, QFileInfo(nome).absoluteFilePath());
    EXPECT_EQ(s.p.e.QuantBan, 2);
}

TEST_F(ArquivoInicial, NomeQueNaoExisteAvisaENaoCriaNada) {
    const QString nome = caminho("sumiu.Apo");
    Sessao s;
    const QStringList antes = s.estado();
    AbreArquivoInicial(s.p, nome);
    ASSERT_EQ(s.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(s.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Aviso);
    EXPECT_EQ(s.d.caixa.vistas()[0].texto,
              QStringLiteral("O arquivo \"") + nome + QStringLiteral("\" não foi encontrado."));
    EXPECT_FALSE(QFileInfo::exists(nome));
    EXPECT_TRUE(QDir(pasta.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).isEmpty());
    EXPECT_EQ(s.estado(), antes);
    EXPECT_EQ(s.p.tela.Caption, QStringLiteral("Sor Velo"));
    EXPECT_FALSE(s.p.e.BancoAlterado);
}

TEST_F(ArquivoInicial, PastaNoLugarDoArquivoAvisa) {
    Sessao s;
    const QStringList antes = s.estado();
    AbreArquivoInicial(s.p, pasta.path());
    ASSERT_EQ(s.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(s.d.caixa.vistas()[0].texto, AvisoArquivoInexistente(pasta.path()));
    EXPECT_EQ(s.estado(), antes);
}

TEST_F(ArquivoInicial, SemArgumentoNadaAcontece) {
    Sessao s;
    const QStringList antes = s.estado();
    AbreArquivoInicial(s.p, QString());
    EXPECT_TRUE(s.d.caixa.vistas().empty());
    EXPECT_EQ(s.estado(), antes);
}

TEST_F(ArquivoInicial, ArquivoQueNaoEDeApostasLeComoAbrirLe) {
    const std::vector<QByteArray> conteudos{
        QByteArray(), QByteArray("texto qualquer\n"), QByteArray("5         Quina3         01 02"),
        QByteArray("8         Mega-Sena"), QByteArray("\xff\xfe\x00\x01", 4)};
    for (const QByteArray& bytes : conteudos) {
        const QString nome = caminho("outro.txt");
        QFile f(nome);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
        f.close();

        Sessao pelaLinha;
        const int falhaLinha = falhaDe([&] { AbreArquivoInicial(pelaLinha.p, nome); });
        Sessao peloMenu;
        peloMenu.d.dialogo.enfileira(nome);
        const int falhaMenu = falhaDe([&] { AbrirArquivo(peloMenu.p); });
        EXPECT_EQ(falhaLinha, falhaMenu) << bytes.toStdString();
        if (falhaLinha == 0) {
            EXPECT_EQ(pelaLinha.estado(), peloMenu.estado()) << bytes.toStdString();
        }
    }
}
