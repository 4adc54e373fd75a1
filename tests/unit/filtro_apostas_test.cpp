// The filter: its eight criteria with their kept oddities, the private copy
// and its "@" marks, the rewrite of the bank and the dialog's defaults.
#include "ApoioEdicao.h"
#include "edicao/Filtrar.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

struct Filtro : ::testing::Test {
    BancoTeste b;
    // Runs the filter with the given boxes ticked; the limits as set.
    QStringList filtra(Filtrar& f) {
        f.BtnOK();
        return b.banco();
    }
};

QStringList sequencia(Filtrar& f, BancoTeste& b, const QString& limite, const QStringList& apostas) {
    b.apostas(apostas);
    f.ChkSeq.Value = true;
    f.TxtSeq.Text = limite;
    f.ExecutaFiltro();
    return b.banco();
}

} // namespace

// ---- The dialog at load ----

TEST_F(Filtro, CarregaComOsPadroes) {
    Filtrar f(b.p);
    EXPECT_EQ(f.NumLinhas, 6);
    const auto criterios = f.criterios();
    ASSERT_EQ(criterios.size(), 8u);
    for (const auto& c : criterios) {
        EXPECT_FALSE(c.chk->Value);
        EXPECT_TRUE(c.chk->Enabled);
        if (!c.txt) continue;
        EXPECT_EQ(c.txt->Text, QStringLiteral("03"));
        EXPECT_EQ(c.scr->Value, 3);
        EXPECT_EQ(c.scr->Min, 0);
        EXPECT_EQ(c.scr->Max, 32767);
    }
    EXPECT_EQ(criterios[0].legenda, QStringLiteral("Números em sequência"));
    EXPECT_EQ(criterios[7].legenda, QStringLiteral("Outros cartões com a mesma aposta"));
    EXPECT_EQ(criterios[7].txt, nullptr);
    EXPECT_EQ(f.LblContador, QString());
    EXPECT_EQ(f.LblObs,
              QStringLiteral("Observações:\r- As linhas e colunas são referentes aos cartões da CEF.\r"
                             "- Combinações não geram apostas iguais."));
}

TEST_F(Filtro, LinhasDoCartaoPorJogo) {
    const std::pair<const char*, int> jogos[] = {
        {"Mega-Sena", 6}, {"Dupla Sena", 5}, {"Quina", 8}, {"Lotomania", 10}, {"Lotofácil", 0}};
    for (const auto& [jogo, linhas] : jogos) {
        BancoTeste outro{QString::fromUtf8(jogo)};
        Filtrar f(outro.p);
        EXPECT_EQ(f.NumLinhas, linhas) << jogo;
    }
}

TEST_F(Filtro, LotofacilDesabilitaAsQuatroCaixasDeLinhaEColuna) {
    BancoTeste lf{QStringLiteral("Lotofácil")};
    Filtrar f(lf.p);
    EXPECT_EQ(f.NumLinhas, 0);
    EXPECT_FALSE(f.ChkLin.Enabled);
    EXPECT_FALSE(f.ChkCol.Enabled);
    EXPECT_FALSE(f.ChkLinVaz.Enabled);
    EXPECT_FALSE(f.ChkColVaz.Enabled);
    EXPECT_TRUE(f.ChkSeq.Enabled);
    EXPECT_TRUE(f.ChkPar.Enabled);
    EXPECT_TRUE(f.ChkIgual.Enabled);
}

TEST_F(Filtro, BarraEscreveOValorComDoisDigitosAoMenos) {
    Filtrar f(b.p);
    f.mudaBarra(1, 120);
    EXPECT_EQ(f.TxtLin.Text, QStringLiteral("120"));
    EXPECT_EQ(f.ScrLin.Value, 120);
    f.mudaBarra(1, 5);
    EXPECT_EQ(f.TxtLin.Text, QStringLiteral("05"));
    f.mudaBarra(6, 0);
    EXPECT_EQ(f.TxtImpar.Text, QStringLiteral("00"));
}

TEST_F(Filtro, CancelarNaoMexeNoBanco) {
    b.apostas({"01 02 03", "04 05 06"});
    const QString texto = b.p.tela.TxtBanco.texto();
    Filtrar f(b.p);
    bool fechou = false;
    Ligacao vigiaFecho(f.aoFechar, [&] { fechou = true; });
    f.ChkSeq.Value = true;
    f.BtnCancelar();
    EXPECT_TRUE(fechou);
    EXPECT_FALSE(f.aberto());
    EXPECT_EQ(b.banco(), (QStringList{"01 02 03", "04 05 06"}));
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), texto);
}

// ---- The run ----

TEST_F(Filtro, BancoVazioTerminaEmAguardeETextoVazio) {
    InsereLinhaBanco(b.p, QStringLiteral("Dezenas escolhidas: \r\n"), true);
    Filtrar f(b.p);
    QStringList legendas;
    f.aoRepintarContador = [&](bool) { legendas << f.LblContador; };
    f.ChkIgual.Value = true;
    f.BtnOK();
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(f.LblContador, QStringLiteral(" Aguarde..."));
    EXPECT_EQ(legendas, QStringList{QStringLiteral(" Aguarde...")});
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QString());
    EXPECT_FALSE(f.aberto());
}

TEST_F(Filtro, SemCaixaMarcadaFicamTodasRenumeradasESemCabecalho) {
    InsereLinhaBanco(b.p, QStringLiteral("Dezenas escolhidas: 01 02\r\nlog\r\n"), true);
    b.apostas({"01 02 03 04 05 06", "07 08 09 10 11 12", "13 14 15 16 17 18"});
    InsereLinhaBanco(b.p, QStringLiteral("\r\n"), true);
    Filtrar f(b.p);
    f.BtnOK();
    EXPECT_EQ(b.p.e.QuantBan, 3);
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 02 03 04 05 06 \r\n"
                                                        "00002)   07 08 09 10 11 12 \r\n"
                                                        "00003)   13 14 15 16 17 18 \r\n"));
    EXPECT_EQ(b.p.tela.TxtBanco.formatoEm(0), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(b.p.tela.TxtBanco.formatoEm(6), (Formato{CorAposta, false}));
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
}

TEST_F(Filtro, TodasFalhandoDeixamVetBanComDuasLinhas) {
    b.apostas({"01 02 03 04 05 06", "07 08 09 10 11 12"});
    Filtrar f(b.p);
    f.ChkPar.Value = true;
    f.TxtPar.Text = QStringLiteral("0");
    f.BtnOK();
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(b.p.e.VetBan.ultimaLinha(), 1);
    EXPECT_EQ(b.p.e.VetBan.valor(0, 0), QString());
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QString());
}

TEST_F(Filtro, ContadorMostraAposta1_14_27ComDoisBrancosAntesDoTotal) {
    for (int i = 0; i < 30; ++i)
        b.aposta(QStringLiteral("01 02 03 04 05 06"));
    Filtrar f(b.p);
    QStringList legendas;
    QList<bool> sempre;
    f.aoRepintarContador = [&](bool s) {
        legendas << f.LblContador;
        sempre << s;
    };
    f.BtnOK();
    EXPECT_EQ(legendas, (QStringList{" 1 de  30", " 14 de  30", " 27 de  30", " Aguarde..."}));
    EXPECT_EQ(sempre, (QList<bool>{false, false, false, true}));
}

TEST_F(Filtro, AsApostasMantidasGuardamAOrdem) {
    b.apostas({"01 02 03", "02 04 06", "05 06 07", "10 20 30"});
    Filtrar f(b.p);
    f.ChkSeq.Value = true; // 3 or more in sequence: "01 02 03" ends exactly on its run and stays
    f.TxtSeq.Text = QStringLiteral("3");
    EXPECT_EQ(filtra(f), (QStringList{"01 02 03", "02 04 06", "05 06 07", "10 20 30"}));
}

// ---- Sequence ----

TEST_F(Filtro, SequenciaSeguidaDeOutroNumeroFalha) {
    Filtrar f(b.p);
    EXPECT_EQ(sequencia(f, b, "3", {"01 02 03 20", "20 21 22 23", "05 20 21 22"}),
              QStringList{"05 20 21 22"});
}

TEST_F(Filtro, ContadorDaSequenciaNaoZeraDepoisDeAtingirOLimite) {
    Filtrar f(b.p);
    // The run 01 02 03 reaches 3 and the counter then counts 10 and 30 too.
    EXPECT_EQ(sequencia(f, b, "3", {"01 02 03 10 30", "01 02 10 11 30"}), QStringList{"01 02 10 11 30"});
}

TEST_F(Filtro, LimiteUmDaSequenciaFalhaApostasDeDoisNumeros) {
    Filtrar f(b.p);
    EXPECT_EQ(sequencia(f, b, "1", {"07", "07 30", "10 40 50"}), QStringList{"07"});
}

TEST_F(Filtro, LimiteZeroDaSequenciaFalhaQualquerApostaComNumero) {
    Filtrar f(b.p);
    EXPECT_EQ(sequencia(f, b, "0", {"07", "", "10 40"}), QStringList{""});
}

TEST_F(Filtro, SequenciaSoSeVeEmApostaCrescente) {
    Filtrar f(b.p);
    EXPECT_EQ(sequencia(f, b, "3", {"03 02 01 40", "01 02 03 40"}), QStringList{"03 02 01 40"});
}

// ---- Rows and columns, one Cont for all ----

TEST_F(Filtro, LimiteZeroEmLinhaColunaParImparFalhaTudo) {
    for (int criterio : {1, 2, 5, 6}) {
        BancoTeste outro;
        outro.apostas({"01 02 03 04 05 06", "11 22 33 44 55 60"});
        Filtrar f(outro.p);
        auto c = f.criterios()[size_t(criterio)];
        c.chk->Value = true;
        c.txt->Text = QStringLiteral("0");
        f.BtnOK();
        EXPECT_EQ(outro.p.e.QuantBan, 0) << criterio;
    }
}

TEST_F(Filtro, LinhaEColunaSomamNoMesmoCont) {
    b.apostas({"01 02 13 24 35 46"});
    Filtrar f(b.p);
    f.ChkLin.Value = true;
    f.TxtLin.Text = QStringLiteral("3");
    f.ExecutaFiltro();
    EXPECT_EQ(b.p.e.QuantBan, 1); // row 0 holds two numbers
    BancoTeste outro;
    outro.apostas({"01 02 13 24 35 46"});
    Filtrar g(outro.p);
    g.ChkLin.Value = true;
    g.TxtLin.Text = QStringLiteral("3");
    g.ChkCol.Value = true;
    g.TxtCol.Text = QStringLiteral("3");
    g.ExecutaFiltro();
    // Cont(0) is 2 from the rows plus 1 from column 0: no column holds three.
    EXPECT_EQ(outro.p.e.QuantBan, 0);
    EXPECT_EQ(g.Cont(0), 3);
}

TEST_F(Filtro, LinhasVaziasSomamAsColunasContadasAntes) {
    b.apostas({"01 02 03 04 05 06"});
    Filtrar f(b.p);
    f.ChkLinVaz.Value = true;
    f.TxtLinVaz.Text = QStringLiteral("3");
    f.ExecutaFiltro();
    EXPECT_EQ(b.p.e.QuantBan, 0); // rows 1 to 5 are empty

    BancoTeste outro;
    outro.apostas({"01 02 03 04 05 06"});
    Filtrar g(outro.p);
    g.ChkLinVaz.Value = true;
    g.TxtLinVaz.Text = QStringLiteral("3");
    g.ChkCol.Value = true;
    g.TxtCol.Text = QStringLiteral("99");
    g.ExecutaFiltro();
    EXPECT_EQ(outro.p.e.QuantBan, 1); // columns 1 to 5 filled Cont 1 to 5
}

TEST_F(Filtro, ColunasVaziasContamDezColunas) {
    b.apostas({"01 11 21 31 41 51", "01 02 03 04 05 06"});
    Filtrar f(b.p);
    f.ChkColVaz.Value = true;
    f.TxtColVaz.Text = QStringLiteral("9");
    EXPECT_EQ(filtra(f), QStringList{"01 02 03 04 05 06"});
}

TEST_F(Filtro, ContFicaComAsContagensDaUltimaAposta) {
    b.apostas({"10 20 30 40 50 60", "09 19 29 39 49 59"});
    Filtrar f(b.p);
    f.ChkLin.Value = f.ChkCol.Value = f.ChkLinVaz.Value = f.ChkColVaz.Value = true;
    for (CampoTexto* t : {&f.TxtLin, &f.TxtCol, &f.TxtLinVaz, &f.TxtColVaz})
        t->Text = QStringLiteral("99");
    f.ExecutaFiltro();
    EXPECT_EQ(b.p.e.QuantBan, 2);
    // Rows 0..5 counted twice, column 8 twelve times; column 9 of the first
    // bet was zeroed before the second.
    for (int r = 0; r <= 5; ++r)
        EXPECT_EQ(f.Cont(r), 2) << r;
    EXPECT_EQ(f.Cont(8), 12);
    EXPECT_EQ(f.Cont(9), 0);
    EXPECT_EQ(f.Cont(10), 0);
    EXPECT_EQ(falhaDe([&] { (void)f.Cont(11); }), erro::SubscritoForaIntervalo);
}

TEST_F(Filtro, IndiceDezDoContNuncaEZerado) {
    // A cell of three characters, "105", lies in row 10: Cont(10) takes it
    // and keeps it from bet to bet.
    b.apostas({"01 105", "02 105", "03 105"});
    Filtrar f(b.p);
    f.ChkLin.Value = true;
    f.TxtLin.Text = QStringLiteral("9");
    f.ExecutaFiltro();
    EXPECT_EQ(b.p.e.QuantBan, 3);
    EXPECT_EQ(f.Cont(10), 3);
    EXPECT_EQ(f.Cont(0), 1);
}

TEST_F(Filtro, LinhaEColunaDoCartao) {
    EXPECT_EQ(LinhaDoNumero(1), 0);
    EXPECT_EQ(LinhaDoNumero(10), 0);
    EXPECT_EQ(ColunaDoNumero(10), 9);
    EXPECT_EQ(LinhaDoNumero(60), 5);
    EXPECT_EQ(ColunaDoNumero(60), 9);
    EXPECT_EQ(ColunaDoNumero(21), 0);
    EXPECT_EQ(LinhaDoNumero(0), -1);
    EXPECT_EQ(ColunaDoNumero(0), -1);
    EXPECT_EQ(LinhaDoNumero(99), 9);
}

// ---- Lotomania's 00 ----

TEST_F(Filtro, Lotomania00ComTesteDeLinhaOuColunaFalhaNoSubscrito) {
    for (int criterio : {1, 2, 3, 4}) {
        BancoTeste lm{QStringLiteral("Lotomania")};
        lm.apostas({"00 05 17"});
        Filtrar f(lm.p);
        auto c = f.criterios()[size_t(criterio)];
        c.chk->Value = true;
        EXPECT_EQ(falhaDe([&] { f.BtnOK(); }), erro::SubscritoForaIntervalo) << criterio;
    }
}

TEST_F(Filtro, Lotomania00TestadoNormalmenteNaSequenciaParidadeEIguais) {
    BancoTeste lm{QStringLiteral("Lotomania")};
    lm.apostas({"00 01 02 50", "00 01 02 50", "00 33 55 77", "00 02 04 06"});
    Filtrar f(lm.p);
    f.ChkSeq.Value = true; // 00 01 02 is a run of three: its successor text is "01"
    f.ChkPar.Value = true; // 00 counts as even: 00 02 04 06 has four
    f.TxtPar.Text = QStringLiteral("4");
    f.ChkIgual.Value = true;
    f.BtnOK();
    EXPECT_EQ(lm.banco(), QStringList{"00 33 55 77"});

    BancoTeste lm2{QStringLiteral("Lotomania")};
    lm2.apostas({"00 33", "00 33", "10 20"});
    Filtrar g(lm2.p);
    g.ChkIgual.Value = true;
    g.BtnOK();
    EXPECT_EQ(lm2.banco(), (QStringList{"00 33", "10 20"}));
}

// ---- Even and odd ----

TEST_F(Filtro, ParesEImparesContamAteOFim) {
    b.apostas({"02 04 06 01", "02 04 01 03", "01 03 05 02"});
    Filtrar f(b.p);
    f.ChkPar.Value = true;
    f.ChkImpar.Value = true;
    EXPECT_EQ(filtra(f), QStringList{"02 04 01 03"});
}

// ---- Identical bets ----

TEST_F(Filtro, DeTresIguaisFicaAUltima) {
    for (int i = 0; i < 10; ++i)
        b.aposta(i == 2 || i == 5 || i == 9
                     ? QStringLiteral("05 10 15 20 25 30")
                     : QStringLiteral("%1 41 42 43 44 45").arg(i + 1, 2, 10, QChar(u'0')));
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    f.BtnOK();
    EXPECT_EQ(b.p.e.QuantBan, 8);
    EXPECT_EQ(f.VetAux.valor(0, 2), QStringLiteral("@"));
    EXPECT_EQ(f.VetAux.valor(0, 5), QStringLiteral("@"));
    EXPECT_EQ(f.VetAux.valor(0, 9), QStringLiteral("05"));
    EXPECT_EQ(b.banco().count(QStringLiteral("05 10 15 20 25 30")), 1);
    EXPECT_EQ(b.banco().last(), QStringLiteral("05 10 15 20 25 30"));
}

TEST_F(Filtro, ApostaQueIniciaUmaMaiorEEliminadaEAMaiorFica) {
    b.apostas({"01 02 03", "01 02 03 04"});
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    EXPECT_EQ(filtra(f), QStringList{"01 02 03 04"});
    EXPECT_EQ(f.VetAux.valor(0, 0), QStringLiteral("@"));
}

TEST_F(Filtro, ApostaMaiorNaoPrecisaSobreviverParaEliminarAMenor) {
    b.apostas({"01 02 03", "01 02 03 04"});
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    f.ChkSeq.Value = true; // drops the longer bet first
    EXPECT_EQ(filtra(f), QStringList());
    EXPECT_EQ(f.VetAux.valor(0, 0), QStringLiteral("@"));
    EXPECT_EQ(f.VetAux.valor(0, 1), QStringLiteral("01"));
}

TEST_F(Filtro, LinhaEliminadaPorOutroCriterioAindaConta) {
    b.apostas({"10 20 30", "10 20 30 31 32 33"});
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    f.ChkSeq.Value = true;
    EXPECT_EQ(filtra(f), QStringList());
}

TEST_F(Filtro, ApostaVaziaIgualaQualquerOutra) {
    b.apostas({"", "07 08", ""});
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    EXPECT_EQ(filtra(f), QStringList{"07 08"});
    EXPECT_EQ(f.VetAux.valor(0, 0), QStringLiteral("@"));
    EXPECT_EQ(f.VetAux.valor(0, 2), QStringLiteral("@"));
}

TEST_F(Filtro, UmaSoApostaVaziaFica) {
    b.apostas({""});
    Filtrar f(b.p);
    f.ChkIgual.Value = true;
    EXPECT_EQ(filtra(f), QStringList{""});
}

// ---- Limits ----

TEST_F(Filtro, LimiteQueNaoENumeroValeZero) {
    b.apostas({"01 02 03", "10"});
    Filtrar f(b.p);
    f.ChkSeq.Value = true;
    f.TxtSeq.Text = QStringLiteral("abc");
    EXPECT_EQ(filtra(f), QStringList());
}

TEST_F(Filtro, LimiteDecimalVaiAoInteiroMaisProximoPar) {
    b.apostas({"01 02 03 40", "01 02 40"});
    Filtrar f(b.p);
    f.ChkSeq.Value = true;
    f.TxtSeq.Text = QStringLiteral("2.5"); // 2
    EXPECT_EQ(filtra(f), QStringList());
}

TEST_F(Filtro, LimiteForaDos16BitsEEstouro) {
    b.apostas({"01 02 03"});
    Filtrar f(b.p);
    f.ChkCol.Value = true;
    f.TxtCol.Text = QStringLiteral("40000");
    EXPECT_EQ(falhaDe([&] { f.BtnOK(); }), erro::Estouro);
}

TEST_F(Filtro, LimiteForaDos16BitsNaoLidoNaoFalha) {
    b.apostas({"01 02 03"});
    Filtrar f(b.p);
    f.ChkSeq.Value = true;
    f.TxtSeq.Text = QStringLiteral("0"); // every bet fails first
    f.ChkCol.Value = true;
    f.TxtCol.Text = QStringLiteral("40000");
    EXPECT_EQ(falhaDe([&] { f.BtnOK(); }), 0);
    EXPECT_EQ(b.p.e.QuantBan, 0);

    BancoTeste vazio;
    Filtrar g(vazio.p);
    g.ChkPar.Value = true;
    g.TxtPar.Text = QStringLiteral("-99999");
    EXPECT_EQ(falhaDe([&] { g.BtnOK(); }), 0);
}

TEST_F(Filtro, FaltaDeFimNaLinhaEFalhaDeSubscrito) {
    b.apostas({"01 02"});
    b.p.e.VetBan.define(2, 0, QStringLiteral("03"));
    for (int c = 3; c <= 81; ++c)
        b.p.e.VetBan.define(c, 0, QStringLiteral("04"));
    Filtrar f(b.p);
    EXPECT_EQ(falhaDe([&] { f.BtnOK(); }), erro::SubscritoForaIntervalo);
}

// ---- The main window's button ----

TEST_F(Filtro, BotaoDoPrincipalRegistraNoHistoricoMesmoCancelando) {
    b.apostas({"01 02 03", "04 05 06"});
    const QString historico = b.p.e.Historico;
    const QString texto = b.p.tela.TxtBanco.texto();
    int vezes = 0;
    b.d.dialogos.quando(Dialogo::Filtrar, [&] {
        Programa& p = b.p;
        ++vezes;
        EXPECT_EQ(p.e.Historico, historico + Agora + QStringLiteral(": Filtragem de apostas\r\n"));
        Filtrar f(p);
        f.ChkIgual.Value = true;
        f.BtnCancelar();
    });
    BtnFiltrar(b.p);
    EXPECT_EQ(vezes, 1);
    EXPECT_EQ(b.p.e.Historico, historico + Agora + QStringLiteral(": Filtragem de apostas\r\n"));
    EXPECT_EQ(b.banco(), (QStringList{"01 02 03", "04 05 06"}));
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), texto);
}

TEST_F(Filtro, OkSemNadaMarcadoReescreveOTexto) {
    b.p.e.DezEscolhidas = QStringLiteral("01 02 03 ");
    InsereLinhaBanco(b.p, CabecalhoLote(b.p), true);
    b.apostas({"01 02 03"});
    b.d.dialogos.quando(Dialogo::Filtrar, [&] {
        Filtrar f(b.p);
        f.BtnOK();
    });
    BtnFiltrar(b.p);
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 02 03 \r\n"));
    EXPECT_TRUE(b.p.e.Historico.endsWith(QStringLiteral(": Filtragem de apostas\r\n")));
}
