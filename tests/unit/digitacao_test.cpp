#include "apoio/ImprimeQt.h"
#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Loteria.h"
#include "edicao/Digitacao.h"
#include "edicao/SortearFormato.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
using Alvo = Digitacao::Alvo;

struct DigitacaoApostas : ::testing::Test, ProgramaTeste {
    Digitacao dg{p};
    std::vector<Digitacao::Foco> movidos;
    DigitacaoApostas() {
        dg.aoMoverFoco = [this](Digitacao::Foco f) { movidos.push_back(f); };
        dg.ativa();
        dg.recebeFoco(Digitacao::controle(Alvo::TxtQNum));
    }
    // Typing into the cell that has the focus, then Enter.
    void digita(const QString& texto) {
        ASSERT_EQ(dg.foco.alvo, Alvo::TxtNum);
        dg.teclaTxtNum(dg.foco.celula);
        dg.mudaTxtNum(dg.foco.celula, texto);
        dg.enter();
    }
    // From TxtQNum, a whole bet typed cell by cell, Enter after each.
    void digitaAposta(std::initializer_list<const char*> numeros) {
        dg.recebeFoco(Digitacao::controle(Alvo::TxtQNum));
        dg.enter();
        for (const char* n : numeros)
            digita(QString::fromLatin1(n));
    }
    QStringList mensagens() const {
        QStringList l;
        for (const CaixaVista& v : d.caixa.vistas())
            l << v.texto;
        return l;
    }
    bool focoEm(Alvo a) const { return dg.foco == Digitacao::controle(a); }
    bool focoNaCelula(int i) const { return dg.foco == Digitacao::celula(i); }
};
} // namespace

// ---- The fresh window ----

TEST_F(DigitacaoApostas, JanelaNovaTemSeisCelulasVerdesENadaPendente) {
    EXPECT_EQ(dg.TxtQNum, QStringLiteral("6"));
    for (int i = 0; i < Digitacao::QuantCelulas; ++i) {
        EXPECT_EQ(dg.TxtNum(i).Enabled, i < 6) << i;
        EXPECT_EQ(dg.TxtNum(i).BackColor, i < 6 ? rgb(0, 64, 0) : rgb(128, 128, 128)) << i;
    }
    EXPECT_FALSE(dg.BtnInserirBanco.Enabled);
    EXPECT_TRUE(dg.LstApostas.isEmpty());
    EXPECT_EQ(dg.BtnExcluir.Caption, QStringLiteral("Excluir\rselecionado"));
    EXPECT_EQ(dg.BtnInserirBanco.Caption, QStringLiteral("Inserir no\rbanco de apostas"));
    EXPECT_EQ(dg.BtnInserir.Caption, QStringLiteral("Inserir"));
    EXPECT_EQ(dg.BtnSair.Caption, QStringLiteral("Sair"));
}

TEST_F(DigitacaoApostas, QuantidadeDeNumerosHabilitaAsCelulasSemApagarTexto) {
    dg.mudaTxtNum(8, QStringLiteral("44"));
    dg.mudaTxtQNum(QStringLiteral("9"));
    EXPECT_TRUE(dg.TxtNum(8).Enabled);
    EXPECT_FALSE(dg.TxtNum(9).Enabled);
    dg.mudaTxtQNum(QStringLiteral("2"));
    EXPECT_FALSE(dg.TxtNum(8).Enabled);
    EXPECT_EQ(dg.TxtNum(8).Text, QStringLiteral("44"));
    // A value with a fraction enables one cell more.
    dg.mudaTxtQNum(QStringLiteral("2.5"));
    EXPECT_TRUE(dg.TxtNum(2).Enabled);
    EXPECT_FALSE(dg.TxtNum(3).Enabled);
}

TEST_F(DigitacaoApostas, QuantidadeAcimaDeSessentaNaoTemCelula) {
    EXPECT_EQ(falhaDe([&] { dg.mudaTxtQNum(QStringLiteral("61")); }), erro::ElementoControle);
    EXPECT_EQ(falhaDe([&] { dg.mudaTxtQNum(QStringLiteral("60")); }), 0);
    EXPECT_TRUE(dg.TxtNum(59).Enabled);
}

// ---- Moving on ----

TEST_F(DigitacaoApostas, EnterPassaDeCelulaEmCelulaEDaUltimaAtivaAoInserir) {
    dg.enter();
    EXPECT_TRUE(focoNaCelula(0));
    for (int i = 1; i < 6; ++i) {
        dg.enter();
        EXPECT_TRUE(focoNaCelula(i));
    }
    dg.enter();
    EXPECT_TRUE(focoEm(Alvo::BtnInserir));
    dg.enter();
    EXPECT_TRUE(focoEm(Alvo::BtnSair));
    dg.enter();
    EXPECT_TRUE(focoEm(Alvo::LstApostas));
    dg.enter();
    EXPECT_TRUE(focoEm(Alvo::BtnExcluir));
    // BtnInserirBanco is disabled: passed over.
    dg.enter();
    EXPECT_TRUE(focoEm(Alvo::RTFRascunho));
    dg.enter();
    EXPECT_TRUE(focoEm(Alvo::TxtQNum));
    EXPECT_EQ(movidos.size(), 12u);
}

TEST_F(DigitacaoApostas, SetaEsquerdaVoltaUmaCelula) {
    dg.recebeFoco(Digitacao::celula(3));
    dg.teclaAbaixoTxtNum(3, 37);
    EXPECT_TRUE(focoNaCelula(2));
    dg.teclaAbaixoTxtNum(2, 39);
    EXPECT_TRUE(focoNaCelula(2));
    dg.recebeFoco(Digitacao::celula(0));
    dg.teclaAbaixoTxtNum(0, 37);
    EXPECT_TRUE(focoNaCelula(0));
}

// ---- The repetition test ----

TEST_F(DigitacaoApostas, CincoEZeroCincoSaoRepetidosAoSairDaSegundaCelula) {
    dg.enter();
    digita(QStringLiteral("5"));
    digita(QStringLiteral("05"));
    EXPECT_EQ(mensagens(), QStringList({"Número Repetido!"}));
    EXPECT_EQ(d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Critico);
    EXPECT_TRUE(dg.TxtNum(1).Text.isEmpty());
    EXPECT_EQ(dg.TxtNum(0).Text, QStringLiteral("5"));
    EXPECT_TRUE(focoNaCelula(1));
    EXPECT_EQ(dg.SemTeste, -1);
}

TEST_F(DigitacaoApostas, CincoEZeroCincoSaoRepetidosAoChegarAoInserir) {
    dg.mudaTxtQNum(QStringLiteral("2"));
    dg.enter();
    digita(QStringLiteral("5"));
    digita(QStringLiteral("05"));
    EXPECT_EQ(mensagens(), QStringList({"Número Repetido!"}));
    EXPECT_TRUE(dg.TxtNum(1).Text.isEmpty());
    EXPECT_TRUE(focoNaCelula(1));
}

TEST_F(DigitacaoApostas, DepoisDaMensagemSairSemTeclaNaoTestaDeNovo) {
    dg.enter();
    digita(QStringLiteral("5"));
    digita(QStringLiteral("05"));
    ASSERT_TRUE(focoNaCelula(1));
    // Text that arrives with no key press (a paste by the mouse).
    dg.mudaTxtNum(1, QStringLiteral("5"));
    dg.enter();
    EXPECT_TRUE(focoNaCelula(2));
    EXPECT_EQ(mensagens().size(), 1);
    EXPECT_EQ(dg.TxtNum(1).Text, QStringLiteral("5"));
    // A key press turns the test on again.
    dg.teclaTxtNum(2);
    dg.recebeFoco(Digitacao::celula(3));
    EXPECT_EQ(mensagens().size(), 1); // cell 2 is empty: skipped
    dg.teclaTxtNum(3);
    dg.recebeFoco(Digitacao::celula(2));
    EXPECT_EQ(mensagens().size(), 2);
    EXPECT_TRUE(dg.TxtNum(1).Text.isEmpty());
}

TEST_F(DigitacaoApostas, OTesteTomaACelulaAntesDaQueRecebeOFoco) {
    dg.mudaTxtQNum(QStringLiteral("7"));
    dg.enter();
    for (const char* n : {"1", "2", "3", "4", "5"})
        digita(QString::fromLatin1(n));
    dg.teclaTxtNum(5);
    dg.mudaTxtNum(5, QStringLiteral("4"));
    // The mouse from cell 5 back to cell 2: cell 1 is tested, not cell 5.
    dg.recebeFoco(Digitacao::celula(2));
    EXPECT_TRUE(mensagens().isEmpty());
    EXPECT_EQ(dg.TxtNum(5).Text, QStringLiteral("4"));
    // Cell 5 is tested when the focus reaches cell 6.
    dg.teclaTxtNum(2);
    dg.recebeFoco(Digitacao::celula(6));
    EXPECT_EQ(mensagens(), QStringList({"Número Repetido!"}));
    EXPECT_TRUE(dg.TxtNum(5).Text.isEmpty());
    EXPECT_TRUE(focoNaCelula(5));
}

TEST_F(DigitacaoApostas, CelulaVaziaPassaNoTesteMasNaoEntra) {
    dg.enter();
    digita(QStringLiteral("1"));
    dg.enter(); // cell 1 left empty
    for (const char* n : {"3", "4", "5", "6"})
        digita(QString::fromLatin1(n));
    EXPECT_TRUE(focoEm(Alvo::BtnInserir));
    EXPECT_TRUE(mensagens().isEmpty());
    dg.clicaBtnInserir();
    EXPECT_EQ(mensagens(), QStringList({"Não pode inserir, campo vazio!"}));
    EXPECT_EQ(d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Critico);
    EXPECT_TRUE(dg.LstApostas.isEmpty());
    // The focus goes back to the cell that last had it.
    EXPECT_TRUE(focoNaCelula(5));
}

TEST_F(DigitacaoApostas, QuantidadeVaziaOuZeroNenhumaCelulaEOInserirFalha) {
    for (const char* q : {"", "0"}) {
        Digitacao outra(p);
        outra.ativa();
        outra.mudaTxtQNum(QString::fromLatin1(q));
        for (int i = 0; i < Digitacao::QuantCelulas; ++i)
            EXPECT_FALSE(outra.TxtNum(i).Enabled);
        outra.recebeFoco(Digitacao::controle(Alvo::TxtQNum));
        EXPECT_EQ(falhaDe([&] { outra.enter(); }), erro::ElementoControle) << q;
    }
}

// ---- Inserting into the list ----

TEST_F(DigitacaoApostas, ChegarAoInserirCompletaComDoisDigitos) {
    digitaAposta({"7", "ab", "3", "10", "1", "9"});
    EXPECT_TRUE(focoEm(Alvo::BtnInserir));
    const char* esperado[] = {"07", "ab", "03", "10", "01", "09"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(dg.TxtNum(i).Text, QString::fromLatin1(esperado[i]));
    dg.clicaBtnInserir();
    EXPECT_EQ(dg.LstApostas, QStringList({"07 ab 03 10 01 09 "}));
    EXPECT_EQ(dg.ListIndex, 0);
    EXPECT_TRUE(dg.BtnInserirBanco.Enabled);
    for (int i = 0; i < Digitacao::QuantCelulas; ++i)
        EXPECT_TRUE(dg.TxtNum(i).Text.isEmpty());
    EXPECT_TRUE(focoNaCelula(0));
}

TEST_F(DigitacaoApostas, CliqueNoInserirComRepetidoNaoInsere) {
    dg.enter();
    for (const char* n : {"1", "2", "3", "4", "5"})
        digita(QString::fromLatin1(n));
    dg.teclaTxtNum(5);
    dg.mudaTxtNum(5, QStringLiteral("1"));
    dg.clicaBtnInserir();
    EXPECT_EQ(mensagens(), QStringList({"Número Repetido!"}));
    EXPECT_TRUE(dg.LstApostas.isEmpty());
    EXPECT_TRUE(focoNaCelula(5));
}

TEST_F(DigitacaoApostas, NumerosFicamNaOrdemDigitada) {
    dg.mudaTxtQNum(QStringLiteral("3"));
    digitaAposta({"50", "10", "07"});
    dg.clicaBtnInserir();
    dg.BtnInserirBancoClick();
    EXPECT_EQ(p.e.VetBan.valor(0, 0), QStringLiteral("50"));
    EXPECT_EQ(p.e.VetBan.valor(1, 0), QStringLiteral("10"));
    EXPECT_EQ(p.e.VetBan.valor(2, 0), QStringLiteral("07"));
    EXPECT_EQ(p.e.VetBan.valor(3, 0), QStringLiteral("#"));
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   50 10 07 \r\n"));
}

// ---- The pending list ----

TEST_F(DigitacaoApostas, ExcluirSelecionadoEDepoisSemSelecaoFalha) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    for (const char* n : {"7", "8", "9", "10", "11", "12"})
        digita(QString::fromLatin1(n));
    dg.clicaBtnInserir();
    dg.selecionaLista(0);
    dg.BtnExcluirClick();
    EXPECT_EQ(dg.LstApostas, QStringList({"07 08 09 10 11 12 "}));
    EXPECT_EQ(dg.ListIndex, -1);
    EXPECT_EQ(falhaDe([&] { dg.BtnExcluirClick(); }), erro::ChamadaInvalida);
    dg.selecionaLista(0);
    dg.BtnExcluirClick();
    EXPECT_TRUE(dg.LstApostas.isEmpty());
    EXPECT_TRUE(dg.BtnInserirBanco.Enabled);
}

TEST_F(DigitacaoApostas, InserirNoBancoDesligaOsBotoesEMantemALista) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    for (const char* n : {"7", "8", "9", "10", "11", "12"})
        digita(QString::fromLatin1(n));
    dg.clicaBtnInserir();
    dg.BtnInserirBancoClick();
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(p.tela.TxtBanco.texto(),
              QStringLiteral("00001)   01 02 03 04 05 06 \r\n00002)   07 08 09 10 11 12 \r\n"));
    EXPECT_FALSE(dg.BtnInserir.Enabled);
    EXPECT_FALSE(dg.BtnExcluir.Enabled);
    EXPECT_FALSE(dg.BtnInserirBanco.Enabled);
    EXPECT_EQ(dg.LstApostas.size(), 2);
    const int64_t inicio = p.tela.TxtBanco.inicioLinha(1);
    EXPECT_EQ(p.tela.TxtBanco.formatoEm(inicio + 5).cor, CorNumeroLinha);
    EXPECT_EQ(p.tela.TxtBanco.formatoEm(inicio + 6).cor, CorAposta);
    // Only BtnSair is left, and it asks nothing.
    dg.BtnSairClick();
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_FALSE(dg.aberto());
}

TEST_F(DigitacaoApostas, LinhaCortadaPelaQuantidadeMostradaAgora) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    dg.mudaTxtQNum(QStringLiteral("5"));
    dg.BtnInserirBancoClick();
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 02 03 04 05 06 \r\n"));
    EXPECT_EQ(RetAposta(p, 0), QStringLiteral("01 02 03 04 05 "));
    EXPECT_EQ(p.e.VetBan.valor(5, 0), QStringLiteral("#"));
}

TEST_F(DigitacaoApostas, QuantidadeMaiorDeixaCelulaVaziaNaLinha) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    dg.mudaTxtQNum(QStringLiteral("7"));
    dg.BtnInserirBancoClick();
    EXPECT_EQ(p.e.VetBan.valor(5, 0), QStringLiteral("06"));
    EXPECT_EQ(p.e.VetBan.valor(6, 0), QString());
    EXPECT_EQ(p.e.VetBan.valor(7, 0), QStringLiteral("#"));
    EXPECT_EQ(RetAposta(p, 0), QStringLiteral("01 02 03 04 05 06  "));
}

TEST_F(DigitacaoApostas, LetrasSaoCortadasPorPosicao) {
    dg.mudaTxtQNum(QStringLiteral("3"));
    digitaAposta({"a", "12", "xy"});
    dg.clicaBtnInserir();
    ASSERT_EQ(dg.LstApostas, QStringList({"a 12 xy "}));
    dg.BtnInserirBancoClick();
    EXPECT_EQ(p.e.VetBan.valor(0, 0), QStringLiteral("a "));
    EXPECT_EQ(p.e.VetBan.valor(1, 0), QStringLiteral("2 "));
    EXPECT_EQ(p.e.VetBan.valor(2, 0), QStringLiteral("y "));
    EXPECT_EQ(p.e.VetBan.valor(3, 0), QStringLiteral("#"));
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   a 12 xy \r\n"));
}

TEST_F(DigitacaoApostas, ApostasVaoParaOBancoEOJogoAtuais) {
    InsereApostaMarcada(p);
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    // Meanwhile, on the main window: another game, another bank.
    ConfiguraLoteria(p, QStringLiteral("Quina"));
    InsereApostaMarcada(p);
    InsereApostaMarcada(p);
    dg.BtnInserirBancoClick();
    EXPECT_EQ(p.e.QuantBan, 4);
    EXPECT_TRUE(p.tela.TxtBanco.texto().endsWith(QStringLiteral("00004)   01 02 03 04 05 06 \r\n")));
    EXPECT_EQ(RetAposta(p, 3), QStringLiteral("01 02 03 04 05 06 "));
}

// ---- Leaving ----

TEST_F(DigitacaoApostas, SairComPendentesPerguntaComSimPadrao) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    dg.BtnSairClick();
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    const CaixaVista& v = d.caixa.vistas()[0];
    EXPECT_EQ(v.texto, QStringLiteral("As apostas digitadas não foram incluídas no banco de apostas!\r"
                                      "Deseja incluí-las agora?"));
    EXPECT_EQ(v.padrao, Resposta::Sim);
    EXPECT_EQ(v.botoes, Botoes::SimNao);
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_FALSE(dg.aberto());
}

TEST_F(DigitacaoApostas, SairComNaoPerdeAsPendentes) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    d.caixa.responde(Resposta::Nao);
    dg.BtnSairClick();
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_FALSE(dg.aberto());
}

TEST_F(DigitacaoApostas, SairSemPendentesNaoPergunta) {
    dg.BtnSairClick();
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_FALSE(dg.aberto());
}

TEST_F(DigitacaoApostas, SairComListaEsvaziadaAindaPergunta) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    dg.selecionaLista(0);
    dg.BtnExcluirClick();
    dg.BtnSairClick();
    EXPECT_EQ(d.caixa.vistas().size(), 1u);
    EXPECT_EQ(p.e.QuantBan, 0);
}

TEST_F(DigitacaoApostas, FecharPelaJanelaPerdeAsPendentesSemPerguntar) {
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    dg.fecha();
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_FALSE(dg.aberto());
}

TEST_F(DigitacaoApostas, NumeracaoSegueAContagemDoBanco) {
    InsereApostaMarcada(p);
    InsereApostaMarcada(p);
    InsereApostaMarcada(p);
    digitaAposta({"1", "2", "3", "4", "5", "6"});
    dg.clicaBtnInserir();
    dg.BtnInserirBancoClick();
    EXPECT_TRUE(p.tela.TxtBanco.texto().endsWith(QStringLiteral("00004)   01 02 03 04 05 06 \r\n")));
}

TEST_F(DigitacaoApostas, RepeticaoCompara7E07ComoTexto) {
    dg.mudaTxtNum(0, QStringLiteral("7"));
    dg.mudaTxtNum(1, QStringLiteral("07"));
    dg.mudaTxtNum(2, QStringLiteral("ab"));
    EXPECT_TRUE(dg.TestaRepeticao(QStringLiteral("07"), 0));
    EXPECT_TRUE(dg.TestaRepeticao(QStringLiteral("7"), 1));
    EXPECT_FALSE(dg.TestaRepeticao(QStringLiteral("ab"), 2));
    EXPECT_TRUE(dg.TestaRepeticao(QStringLiteral("ab"), 3));
    EXPECT_FALSE(dg.TestaRepeticao(QStringLiteral("8"), 0));
    // Cells beyond TxtQNum are not looked at.
    dg.mudaTxtNum(6, QStringLiteral("8"));
    EXPECT_FALSE(dg.TestaRepeticao(QStringLiteral("8"), 0));
}

TEST(FormatoDeTexto, NumeroGanhaDoisDigitosOutroTextoFicaComoEsta) {
    EXPECT_EQ(formataTexto00(QStringLiteral("7")), QStringLiteral("07"));
    EXPECT_EQ(formataTexto00(QStringLiteral("07")), QStringLiteral("07"));
    EXPECT_EQ(formataTexto00(QStringLiteral(" 5")), QStringLiteral("05"));
    EXPECT_EQ(formataTexto00(QStringLiteral("123")), QStringLiteral("123"));
    EXPECT_EQ(formataTexto00(QStringLiteral("-3")), QStringLiteral("-03"));
    EXPECT_EQ(formataTexto00(QStringLiteral("2.5")), QStringLiteral("03"));
    EXPECT_EQ(formataTexto00(QStringLiteral(".4")), QStringLiteral("00"));
    EXPECT_EQ(formataTexto00(QString()), QString());
    EXPECT_EQ(formataTexto00(QStringLiteral("ab")), QStringLiteral("ab"));
    EXPECT_EQ(formataTexto00(QStringLiteral("7a")), QStringLiteral("7a"));
    EXPECT_EQ(formataTexto00(QStringLiteral(" ")), QStringLiteral(" "));
    EXPECT_EQ(formataTexto00(QStringLiteral("-")), QStringLiteral("-"));
}
