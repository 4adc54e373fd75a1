#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
struct Principal : ::testing::Test, ProgramaTeste {
    void ticks(int n) {
        for (int i = 0; i < n; ++i)
            TickTimer1(p);
    }
    int marcasVisiveis() const {
        int n = 0;
        for (bool v : p.tela.HelpRotinaVisible)
            n += v;
        return n;
    }
    std::array<bool, 8> marcas(const std::vector<int>& visiveis) const {
        std::array<bool, 8> r{};
        for (int k : visiveis)
            r[size_t(k)] = true;
        return r;
    }
};

bool criaArquivo(const QString& nome) {
    QFile f(nome);
    if (!f.open(QIODevice::WriteOnly)) return false;
    f.write("x");
    return true;
}
} // namespace

// ---- Load ----

TEST_F(Principal, CargaDeixaOTituloEOsContadoresVazios) {
    EXPECT_EQ(p.tela.Caption, QStringLiteral("Sor Velo"));
    EXPECT_TRUE(p.tela.TxtQuantApostas.Text.isEmpty());
    EXPECT_TRUE(p.tela.TxtValorApostas.Text.isEmpty());
    EXPECT_EQ(p.tela.ContAjuda, 0);
    EXPECT_EQ(p.tela.ContCancela, 0);
    EXPECT_EQ(p.tela.PicLoteriaTop, 600);
    EXPECT_EQ(p.tela.PicLoteriaLeft, 0);
    EXPECT_EQ(marcasVisiveis(), 0);
}

TEST(FimLinha, VaziaSoNoWindowsXP) {
    EXPECT_EQ(FimLinhaDoSistema(QStringLiteral("Windows XP")), QString());
    EXPECT_EQ(FimLinhaDoSistema(QStringLiteral("windows xp")), QString());
    EXPECT_EQ(FimLinhaDoSistema(QStringLiteral("WINDOWS XP")), QString());
    EXPECT_EQ(FimLinhaDoSistema(QStringLiteral("Windows XP ")), QStringLiteral("\r\n"));
    EXPECT_EQ(FimLinhaDoSistema(QStringLiteral("Windows 7")), QStringLiteral("\r\n"));
    EXPECT_EQ(FimLinhaDoSistema(QStringLiteral("Linux")), QStringLiteral("\r\n"));
    EXPECT_EQ(FimLinhaDoSistema(QString()), QStringLiteral("\r\n"));
}

// ---- Timer1 and the counters ----

TEST_F(Principal, ContadoresAparecemNoTerceiroTique) {
    ticks(2);
    EXPECT_TRUE(p.tela.TxtQuantApostas.Text.isEmpty());
    EXPECT_TRUE(p.tela.TxtValorApostas.Text.isEmpty());
    ticks(1);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 0"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("0,00"));
}

TEST_F(Principal, ContadoresDepoisDeUmaAposta) {
    ClicaNumero(p, 0);
    InsereApostaMarcada(p);
    EXPECT_TRUE(p.tela.TxtQuantApostas.Text.isEmpty()); // never written at insertion
    ticks(3);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 1"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("4,50"));
}

TEST_F(Principal, ContadoresComDozeApostasNaQuina) {
    TrocaLoteria(p, QStringLiteral("Quina"));
    for (int i = 0; i < 12; ++i)
        InsereApostaMarcada(p);
    ticks(3);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 12"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("24,00"));
}

TEST_F(Principal, ContadoresDeMilhares) {
    for (int i = 0; i < 1000; ++i)
        InsereApostaMarcada(p);
    AtualizaContadores(p);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 1000"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("4.500,00"));
}

TEST_F(Principal, TotalUsaOUltimoPrecoTomado) {
    InsereApostaMarcada(p);
    p.tela.TxtValAp.Text = QStringLiteral("10,00");
    ticks(3);
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("4,50"));
}

TEST_F(Principal, LixoEmTxtValApDaTotalZero) {
    p.tela.TxtValAp.Text = QStringLiteral("abc");
    ConfiguraLoteria(p, QStringLiteral("MEGA-SENA"));
    InsereApostaMarcada(p);
    ticks(3);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 1"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("0,00"));
}

TEST_F(Principal, BancoEsvaziadoMostraZeroNoRefrescoSeguinte) {
    InsereApostaMarcada(p);
    ticks(3);
    LimpaBancoApostas(p);
    EXPECT_TRUE(p.tela.TxtQuantApostas.Text.isEmpty());
    ticks(3);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 0"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("0,00"));
}

TEST_F(Principal, RefrescoACadaTresTiques) {
    ticks(3);
    InsereApostaMarcada(p);
    ticks(2);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 0"));
    ticks(1);
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 1"));
}

TEST_F(Principal, MarcasDeAjudaSomemDepoisDeDezTiques) {
    MovimentoMouse(p, Regiao::Frame2, 0, 0);
    ASSERT_TRUE(p.tela.HelpRotinaVisible[0]);
    ticks(10);
    EXPECT_TRUE(p.tela.HelpRotinaVisible[0]);
    ticks(1);
    EXPECT_FALSE(p.tela.HelpRotinaVisible[0]);
}

TEST_F(Principal, MovimentoSobreQuadroZeraContAjuda) {
    ticks(8);
    MovimentoMouse(p, Regiao::Frame5, 0, 0);
    EXPECT_EQ(p.tela.ContAjuda, 0);
    ticks(10);
    EXPECT_TRUE(p.tela.HelpRotinaVisible[6]);
    ticks(1);
    EXPECT_FALSE(p.tela.HelpRotinaVisible[6]);
}

TEST_F(Principal, CanceladoApagadoNoTrigesimoPrimeiroTique) {
    p.e.Cancelado = true;
    ticks(30);
    EXPECT_TRUE(p.e.Cancelado);
    EXPECT_EQ(p.tela.ContCancela, 30);
    ticks(1);
    EXPECT_FALSE(p.e.Cancelado);
    EXPECT_EQ(p.tela.ContCancela, 0);
    p.e.Cancelado = true;
    ticks(30);
    EXPECT_TRUE(p.e.Cancelado);
    ticks(1);
    EXPECT_FALSE(p.e.Cancelado);
}

TEST_F(Principal, ContAjudaEstouraDepoisDe32767TiquesSemPassarOMouse) {
    ticks(32767);
    EXPECT_EQ(p.tela.ContAjuda, 32767);
    EXPECT_EQ(falhaDe([&] { TickTimer1(p); }), erro::Estouro);
}

TEST_F(Principal, PassarOMouseEvitaOEstouro) {
    ticks(32000);
    MovimentoMouse(p, Regiao::Frame1, 0, 0);
    EXPECT_EQ(falhaDe([&] { ticks(1000); }), 0);
}

// ---- Scrolling and resizing ----

TEST_F(Principal, BarraVertCincoDepoisUmVoltaAoTopo600) {
    MudaBarraVert(p, 5);
    EXPECT_EQ(p.tela.PicLoteriaTop, -500);
    MudaBarraVert(p, 1);
    EXPECT_EQ(p.tela.PicLoteriaTop, 600);
    EXPECT_EQ(p.tela.BarraVert.Value, 1);
}

TEST_F(Principal, BarraVertValorDoisSaltaPara200Negativo) {
    MudaBarraVert(p, 2);
    EXPECT_EQ(p.tela.PicLoteriaTop, -200);
    MudaBarraVert(p, 100);
    EXPECT_EQ(p.tela.PicLoteriaTop, -10000);
}

TEST_F(Principal, BarraHorizCincoDepoisUmVoltaAZero) {
    MudaBarraHoriz(p, 5);
    EXPECT_EQ(p.tela.PicLoteriaLeft, -500);
    EXPECT_EQ(p.tela.BarraHoriz.Value, 5);
    MudaBarraHoriz(p, 1);
    EXPECT_EQ(p.tela.PicLoteriaLeft, 0);
    MudaBarraHoriz(p, 2);
    EXPECT_EQ(p.tela.PicLoteriaLeft, -200);
}

TEST_F(Principal, BarrasVaoDe1a100) {
    EXPECT_EQ(p.tela.BarraVert.Min, 1);
    EXPECT_EQ(p.tela.BarraVert.Max, 100);
    EXPECT_EQ(p.tela.BarraVert.Value, 1);
    EXPECT_EQ(p.tela.BarraHoriz.Min, 1);
    EXPECT_EQ(p.tela.BarraHoriz.Max, 100);
    EXPECT_EQ(p.tela.BarraHoriz.Value, 1);
}

TEST_F(Principal, RedimensionaMoveAsBarras) {
    Redimensiona(p, 12000, 9000);
    EXPECT_EQ(p.tela.BarraHoriz.Top, 7900);
    EXPECT_EQ(p.tela.BarraVert.Left, 11630);
    EXPECT_EQ(p.tela.BarraHoriz.Width, 11630);
    EXPECT_EQ(p.tela.BarraVert.Height, 7575);
    EXPECT_EQ(p.tela.PicLoteriaTop, 600); // the picture keeps its place
}

TEST_F(Principal, RedimensionaPequenoPulaOQueFalha) {
    Redimensiona(p, 12000, 9000);
    EXPECT_NO_THROW(Redimensiona(p, 300, 1000));
    EXPECT_EQ(p.tela.BarraHoriz.Top, -100);
    EXPECT_EQ(p.tela.BarraVert.Left, -70);
    EXPECT_EQ(p.tela.BarraHoriz.Width, 11630); // a negative width is refused
    EXPECT_EQ(p.tela.BarraVert.Height, 7575);
}

// ---- Help marks ----

TEST_F(Principal, TabelaDoMovimentoDoMouse) {
    struct Caso {
        Regiao onde;
        int x, y;
        std::vector<int> marcas;
    };
    const Caso casos[] = {
        {Regiao::Frame2, 10, 10, {0}},    {Regiao::Frame3, 10, 959, {1, 2}}, {Regiao::Frame3, 10, 960, {3}},
        {Regiao::FraBanco, 2799, 0, {4}}, {Regiao::FraBanco, 2800, 0, {5}},  {Regiao::Frame5, 0, 0, {6}},
        {Regiao::Frame1, 0, 0, {7}},
    };
    for (const Caso& c : casos) {
        p.tela.HelpRotinaVisible.fill(true);
        ticks(4);
        MovimentoMouse(p, c.onde, c.x, c.y);
        EXPECT_EQ(p.tela.HelpRotinaVisible, marcas(c.marcas)) << int(c.onde) << " " << c.x << " " << c.y;
        EXPECT_EQ(p.tela.ContAjuda, 0);
    }
}

TEST_F(Principal, Frame1TrocaAFiguraDePicSort1) {
    MovimentoMouse(p, Regiao::Frame1, 0, 0);
    EXPECT_EQ(p.tela.PicSort1Imagem, 3);
}

TEST_F(Principal, BotoesEscondemSoAlgumasMarcasSemZerarContAjuda) {
    struct Caso {
        Regiao onde;
        std::vector<int> escondidas;
    };
    const Caso casos[] = {{Regiao::BtnIniciar, {0}},
                          {Regiao::BtnFechar, {1}},
                          {Regiao::BtnSortear, {2, 3}},
                          {Regiao::BtnDigitar, {2, 3}},
                          {Regiao::BtnReduz, {6}}};
    for (const Caso& c : casos) {
        p.tela.HelpRotinaVisible.fill(true);
        p.tela.ContAjuda = 5;
        MovimentoMouse(p, c.onde, 0, 0);
        std::array<bool, 8> esperado;
        esperado.fill(true);
        for (int k : c.escondidas)
            esperado[size_t(k)] = false;
        EXPECT_EQ(p.tela.HelpRotinaVisible, esperado) << int(c.onde);
        EXPECT_EQ(p.tela.ContAjuda, 5);
    }
}

TEST_F(Principal, EscondeAjudaEscondeAsOito) {
    p.tela.HelpRotinaVisible.fill(true);
    EscondeAjuda(p);
    EXPECT_EQ(marcasVisiveis(), 0);
}

// ---- Closing ----

namespace {
struct Fechamento : Principal {
    QTemporaryDir pasta;
    QString arquivo;
    void SetUp() override {
        ASSERT_TRUE(pasta.isValid());
        d.pasta.define(pasta.path());
        arquivo = QDir(pasta.path()).filePath(QStringLiteral("00001.txt"));
    }
};
} // namespace

TEST_F(Fechamento, BancoAlteradoPerguntaSimNaoSemCancelar) {
    InsereApostaMarcada(p);
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Sim);
    FechaPrincipal(p);
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    const CaixaVista& v = d.caixa.vistas()[0];
    EXPECT_EQ(v.tipo, CaixaVista::Tipo::Pergunta);
    EXPECT_EQ(v.texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(v.botoes, Botoes::SimNao);
    EXPECT_EQ(v.padrao, Resposta::Sim);
    EXPECT_EQ(salvamento.vezes(), 1);
}

TEST_F(Fechamento, NaoFechaSemSalvar) {
    InsereApostaMarcada(p);
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Nao);
    FechaPrincipal(p);
    EXPECT_EQ(d.caixa.vistas().size(), 1u);
    EXPECT_EQ(salvamento.vezes(), 0);
}

TEST_F(Fechamento, BancoVazioNaoPergunta) {
    LimpaBancoApostas(p);
    ASSERT_TRUE(p.e.BancoAlterado);
    FechaPrincipal(p);
    EXPECT_TRUE(d.caixa.vistas().empty());
}

TEST_F(Fechamento, BancoSalvoNaoPergunta) {
    InsereApostaMarcada(p);
    p.e.BancoAlterado = false;
    FechaPrincipal(p);
    EXPECT_TRUE(d.caixa.vistas().empty());
}

TEST_F(Fechamento, DepoisDeAbrirUmArquivoPerguntaMesmoSemMudanca) {
    // Loading a file writes TxtBanco, which raises the change event.
    p.tela.TxtBanco.defineTexto(QStringLiteral("00001)   01 02 03 04 05 06 \r\n"));
    d.caixa.responde(Resposta::Nao);
    FechaPrincipal(p);
    EXPECT_EQ(d.caixa.vistas().size(), 1u);
}

TEST_F(Fechamento, ApagaO00001NaPastaDoPrograma) {
    ASSERT_TRUE(criaArquivo(arquivo));
    const QString outro = QDir(pasta.path()).filePath(QStringLiteral("00002.txt"));
    ASSERT_TRUE(criaArquivo(outro));
    FechaPrincipal(p);
    EXPECT_FALSE(QFile::exists(arquivo));
    EXPECT_TRUE(QFile::exists(outro));
}

TEST_F(Fechamento, SemO00001NaoFalha) {
    EXPECT_EQ(falhaDe([&] { FechaPrincipal(p); }), 0);
}

TEST_F(Fechamento, ApagaMesmoDepoisDaPergunta) {
    ASSERT_TRUE(criaArquivo(arquivo));
    InsereApostaMarcada(p);
    d.caixa.responde(Resposta::Nao);
    FechaPrincipal(p);
    EXPECT_FALSE(QFile::exists(arquivo));
}
