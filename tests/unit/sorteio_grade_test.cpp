#include "apoio/ImprimeQt.h"
#include "apoio/ProgramaTeste.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "edicao/SortComb.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
struct SorteioGrade : ::testing::Test, ProgramaTeste {
    // A value of Rnd that draws cell c among `celulas` cells.
    static float rPara(int c, int celulas) { return (float(c) + 0.5f) / float(celulas); }
    std::unique_ptr<SortComb> abre(const QString& quant) {
        auto s = std::make_unique<SortComb>(p);
        s->ativa();
        s->mudaTxtDez(quant);
        return s;
    }
    int marcadas() const {
        int n = 0;
        for (int i = 0; i <= 104; ++i)
            if (p.tela.Num(i).BackColor == p.e.CorMarcado) ++n;
        return n;
    }
    bool marcada(int i) const { return p.tela.Num(i).BackColor == p.e.CorMarcado; }
};
} // namespace

TEST_F(SorteioGrade, AoAtivarMostraOPadraoDoJogoComDoisDigitos) {
    const std::pair<const char*, const char*> casos[] = {
        {"Mega-Sena", "06"}, {"Dupla Sena", "06"}, {"Quina", "05"}, {"Lotomania", "50"}, {"Lotofácil", "15"}};
    for (const auto& [jogo, padrao] : casos) {
        ConfiguraLoteria(p, QString::fromUtf8(jogo));
        SortComb s(p);
        EXPECT_EQ(s.TxtDez, QStringLiteral("10"));
        s.ativa();
        EXPECT_EQ(s.TxtDez, QString::fromLatin1(padrao)) << jogo;
        EXPECT_EQ(s.ScrDez, QString::fromLatin1(padrao).toInt()) << jogo;
    }
}

TEST_F(SorteioGrade, CaixaEBarraSeAlimentam) {
    SortComb s(p);
    s.mudaTxtDez(QStringLiteral("7"));
    EXPECT_EQ(s.ScrDez, 7);
    EXPECT_EQ(s.TxtDez, QStringLiteral("07"));
    s.mudaScrDez(12);
    EXPECT_EQ(s.TxtDez, QStringLiteral("12"));
    // Letters read 0: the bar moves to 0 and the box shows "00".
    s.mudaTxtDez(QStringLiteral("ab"));
    EXPECT_EQ(s.ScrDez, 0);
    EXPECT_EQ(s.TxtDez, QStringLiteral("00"));
    // A value outside the bar's range leaves the bar; the box keeps the text.
    s.mudaTxtDez(QStringLiteral("-5"));
    EXPECT_EQ(s.ScrDez, 0);
    EXPECT_EQ(s.TxtDez, QStringLiteral("-5"));
}

TEST_F(SorteioGrade, LotomaniaCemMarcaTodasInclusiveOZero) {
    ConfiguraLoteria(p, QStringLiteral("Lotomania"));
    auto s = abre(QStringLiteral("100"));
    s->BtnOK();
    EXPECT_EQ(marcadas(), 100);
    EXPECT_TRUE(marcada(0));
    EXPECT_EQ(p.tela.Num(0).Text, QStringLiteral("00"));
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("100"));
    EXPECT_FALSE(s->aberto());
}

TEST_F(SorteioGrade, MegaSenaSessentaEUmQuantidadeInvalida) {
    auto s = abre(QStringLiteral("61"));
    s->BtnOK();
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    EXPECT_EQ(d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(d.caixa.vistas()[0].texto, QStringLiteral("Quantidade inválida!"));
    EXPECT_EQ(marcadas(), 0);
    EXPECT_TRUE(s->aberto());
}

TEST_F(SorteioGrade, MegaSenaSessentaMarcaTodasAsSessenta) {
    auto s = abre(QStringLiteral("60"));
    s->BtnOK();
    EXPECT_EQ(marcadas(), 60);
    for (int i = 0; i < 60; ++i)
        EXPECT_TRUE(marcada(i)) << i;
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("60"));
}

TEST_F(SorteioGrade, MarcasFicamComNaoENovasSeSomam) {
    ClicaNumero(p, 3);
    ClicaNumero(p, 10);
    d.caixa.responde(Resposta::Nao);
    // Cell 3 is drawn again: marked once more, so only 5 new ones.
    for (int c : {3, 20, 21, 22, 23, 24})
        d.aleatorio.enfileira(rPara(c, 60));
    abre(QStringLiteral("6"))->BtnOK();
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    EXPECT_EQ(d.caixa.vistas()[0].texto,
              QStringLiteral("Deseja apagar os números da grade de jogos escolhidos?"));
    EXPECT_EQ(d.caixa.vistas()[0].padrao, Resposta::Nao);
    EXPECT_EQ(d.caixa.vistas()[0].botoes, Botoes::SimNao);
    EXPECT_EQ(marcadas(), 7);
    for (int c : {3, 10, 20, 21, 22, 23, 24})
        EXPECT_TRUE(marcada(c)) << c;
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("07"));
}

TEST_F(SorteioGrade, SimApagaAGradeAntesDoSorteio) {
    ClicaNumero(p, 3);
    p.tela.ChkFixar.Value = true;
    ClicaNumero(p, 4);
    p.tela.ChkFixar.Value = false;
    d.caixa.responde(Resposta::Sim);
    for (int c : {30, 31})
        d.aleatorio.enfileira(rPara(c, 60));
    abre(QStringLiteral("2"))->BtnOK();
    EXPECT_EQ(marcadas(), 2);
    EXPECT_TRUE(marcada(30));
    EXPECT_EQ(p.tela.Num(4).BackColor, p.e.CorFundoNum);
}

TEST_F(SorteioGrade, GradeSemMarcasNaoPergunta) {
    abre(QStringLiteral("6"))->BtnOK();
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_EQ(marcadas(), 6);
}

TEST_F(SorteioGrade, SoCelulasFixasNaoPerguntam) {
    // The question follows TxtEscolhidos, which counts the marked cells only.
    p.tela.ChkFixar.Value = true;
    ClicaNumero(p, 4);
    p.tela.ChkFixar.Value = false;
    abre(QStringLiteral("6"))->BtnOK();
    EXPECT_TRUE(d.caixa.vistas().empty());
}

TEST_F(SorteioGrade, QuantidadeInvalidaDepoisDeApagarAGrade) {
    ClicaNumero(p, 3);
    d.caixa.responde(Resposta::Sim);
    auto s = abre(QStringLiteral("70"));
    s->BtnOK();
    ASSERT_EQ(d.caixa.vistas().size(), 2u);
    EXPECT_EQ(d.caixa.vistas()[1].texto, QStringLiteral("Quantidade inválida!"));
    EXPECT_EQ(marcadas(), 0);
    EXPECT_TRUE(s->aberto());
}

TEST_F(SorteioGrade, CedeACadaPassoAcertandoOuNao) {
    for (int c : {5, 5, 5, 6})
        d.aleatorio.enfileira(rPara(c, 60));
    std::vector<int> marcadasNaCedencia;
    d.cedencia.aoCeder = [&](long long) { marcadasNaCedencia.push_back(marcadas()); };
    abre(QStringLiteral("2"))->BtnOK();
    // Four passes, each with its yield; the cell shows before the next pass.
    EXPECT_EQ(marcadasNaCedencia, std::vector<int>({1, 1, 1, 2}));
}

TEST_F(SorteioGrade, ZeroOuLetrasNaoMarcamNadaEFecham) {
    ClicaNumero(p, 3);
    d.caixa.responde(Resposta::Nao);
    auto s = abre(QStringLiteral("0"));
    p.tela.TxtEscolhidos.Text = QStringLiteral("xx"); // stale text: refreshed at the end
    s->BtnOK();
    EXPECT_EQ(marcadas(), 1);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("01"));
    EXPECT_FALSE(s->aberto());
    auto t = std::make_unique<SortComb>(p);
    t->TxtDez = QStringLiteral("abc");
    t->BtnOK();
    EXPECT_FALSE(t->aberto());
    EXPECT_EQ(marcadas(), 1);
}

TEST_F(SorteioGrade, CancelarNaoSorteia) {
    auto s = abre(QStringLiteral("6"));
    s->BtnCancelar();
    EXPECT_FALSE(s->aberto());
    EXPECT_EQ(marcadas(), 0);
}

TEST_F(SorteioGrade, SementeDoRelogio) {
    abre(QStringLiteral("1"))->BtnOK();
    ASSERT_EQ(d.aleatorio.sementes.size(), 1u);
    EXPECT_EQ(d.aleatorio.sementes[0], 14 * 3600 + 5 * 60 + 9);
}

TEST_F(SorteioGrade, ComFixarMarcadoAsSorteadasFicamFixas) {
    p.tela.ChkFixar.Value = true;
    d.aleatorio.enfileira(rPara(8, 60));
    abre(QStringLiteral("1"))->BtnOK();
    EXPECT_EQ(p.tela.Num(8).BackColor, p.e.CorFixo);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("00"));
}

TEST_F(SorteioGrade, QuantidadeForaDeDezesseisBitsEstoura) {
    SortComb s(p);
    s.TxtDez = QStringLiteral("9e9");
    EXPECT_EQ(falhaDe([&] { s.BtnOK(); }), erro::Estouro);
}

TEST_F(SorteioGrade, SorteadasRepetidasSaoTestadas) {
    SortComb s(p);
    EXPECT_FALSE(s.TestaRepeticao(0));
    s.Sorteados(0) = 4;
    EXPECT_FALSE(s.TestaRepeticao(4));
    s.QuantSorteados = 1;
    EXPECT_TRUE(s.TestaRepeticao(4));
    EXPECT_FALSE(s.TestaRepeticao(5));
}
