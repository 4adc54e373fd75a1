// The full combination flow, from "Iniciar Combinação completa" to the bank,
// with the dialogs driven as a user would and a fixed clock.
#include "apoio/Combinacao.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
const QString LinhaSeteASeis = Agora + QStringLiteral(": Combinação de 07 números  de 06 em 06\r\n");
}

TEST(FluxoCombinacao, SemNumerosMarcadosAvisaENadaMais) {
    ProgramaTeste b;
    b.p.e.Cancelado = true;
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Informacao);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto, QStringLiteral("Favor selecionar os números a combinar"));
    EXPECT_EQ(r.vezesCombinacoes, 0);
    EXPECT_FALSE(b.p.e.Cancelado);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(FluxoCombinacao, SoFixosNaoBastam) {
    ProgramaTeste b;
    b.fixa({1, 2, 3});
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(r.vezesCombinacoes, 0);
    EXPECT_EQ(b.d.caixa.vistas().size(), 1u);
}

TEST(FluxoCombinacao, DaGradeAoBanco) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    b.dezenasPorAposta(6);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(r.lblTotAp, QStringLiteral(" 7"));
    EXPECT_EQ(r.lblValAp, QStringLiteral("31,50"));
    EXPECT_EQ(b.p.e.Historico, LinhaSeteASeis);
    const QString esperado = QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 07 \r\n") +
                             LinhaSeteASeis +
                             QStringLiteral("\r\n"
                                            "00001)   01 02 03 04 05 06 \r\n"
                                            "00002)   01 02 03 04 05 07 \r\n"
                                            "00003)   01 02 03 04 06 07 \r\n"
                                            "00004)   01 02 03 05 06 07 \r\n"
                                            "00005)   01 02 04 05 06 07 \r\n"
                                            "00006)   01 03 04 05 06 07 \r\n"
                                            "00007)   02 03 04 05 06 07 \r\n"
                                            "\r\n");
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), esperado);
    EXPECT_EQ(b.p.e.QuantBan, 7);
    EXPECT_TRUE(b.d.caixa.vistas().empty()) << "banco vazio: nada a perguntar";
    EXPECT_EQ(ContaNumeros(b.p), 7) << "a grade fica marcada";
    EXPECT_FALSE(r.caretNoFim);
    EXPECT_FALSE(b.p.e.ModoReduzido);
    // Timer1 shows the count and the price within three ticks.
    for (int i = 0; i < 3; ++i)
        TickTimer1(b.p);
    EXPECT_EQ(b.p.tela.TxtQuantApostas.Text, QStringLiteral(" 7"));
    EXPECT_EQ(b.p.tela.TxtValorApostas.Text, QStringLiteral("31,50"));
}

TEST(FluxoCombinacao, DialogoMostraEstatisticaForaDoFechamento) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    r.iniciar = false;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_TRUE(r.chkEstVisivel);
    EXPECT_FALSE(r.chkAutoVisivel);
    EXPECT_TRUE(r.chkEstHabilitado);
}

TEST(FluxoCombinacao, DezenasPorApostaAcimaDasEscolhidasDaCabecalhoSemAposta) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    b.dezenasPorAposta(6);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(r.lblTotAp, QStringLiteral(" 0"));
    EXPECT_EQ(r.lblValAp, QStringLiteral("0,00"));
    EXPECT_EQ(r.vezesInsere, 1);
    EXPECT_EQ(b.p.tela.TxtBanco.texto(),
              QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 \r\n") + Agora +
                  QStringLiteral(": Combinação de 05 números  de 06 em 06\r\n\r\n\r\n"));
    EXPECT_EQ(b.p.e.QuantBan, 0);
}

TEST(FluxoCombinacao, DezenasPorApostaIgualAsEscolhidasDaUmaAposta) {
    ProgramaTeste b;
    b.marca({4, 8, 15, 16, 23, 42});
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   04 08 15 16 23 42 ")});
}

TEST(FluxoCombinacao, ZeroDezenasPorApostaDaUmaApostaVazia) {
    ProgramaTeste b;
    b.marcaFaixa(1, 4);
    b.dezenasPorAposta(0);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(r.lblTotAp, QStringLiteral(" 1"));
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   ")});
    EXPECT_EQ(b.p.e.VetBan.valor(0, 0), QStringLiteral("#"));
    EXPECT_EQ(b.p.e.QuantBan, 1);
}

TEST(FluxoCombinacao, FixosEntramEmTodasAsApostas) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    b.fixa({59, 60});
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 7);
    EXPECT_EQ(apostas[0], QStringLiteral("00001)   01 02 03 04 05 06 59 60 "));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().startsWith(
        QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 07 59 60 \r\n")));
}

TEST(FluxoCombinacao, EstatisticaSegueAsApostasECaretVaiAoFim) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    r.estatistica = true;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_TRUE(b.p.e.ComEstatistica);
    EXPECT_TRUE(r.caretNoFim);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().endsWith(
        QStringLiteral("00007)   02 03 04 05 06 07 \r\n\r\n"
                       "Acertando 4 dezenas pega 3 quadras.\r\n"
                       "Acertando 5 dezenas pega 2 quina(s), 5 quadras.\r\n"
                       "Acertando 6 dezenas pega 1 sena, 6 quina(s) e 0 quadras.\r\n\r\n\r\n\r\n")));
    // One yield before the generation, 7 rows, one before the count, 6 x 7.
    EXPECT_EQ(b.d.cedencia.quantas, 1 + 7 + 1 + 42);
}

TEST(FluxoCombinacao, MensagensDoDialogoDuranteAExecucao) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    QStringList mensagens;
    b.d.dialogos.quando(Dialogo::Combinacoes, [&] {
        Combinacoes dlg(b.p, b.p.module2);
        dlg.aoMudarMensagem.liga([&] { mensagens << dlg.LblMensagem; });
        dlg.clicaEstatistica();
        dlg.BtnIniciar();
        EXPECT_FALSE(dlg.aberto());
    });
    BtnIniciar(b.p);
    EXPECT_EQ(mensagens, (QStringList{QStringLiteral("Efetuando combinações..."),
                                      QStringLiteral("Fazendo estatística de acertos..."), QString()}));
}

TEST(FluxoCombinacao, BarraComSeisVezesOTotalNaEstatistica) {
    ProgramaTeste b;
    b.marcaFaixa(1, 20); // 38760 bets
    Roteiro r;
    r.estatistica = true;
    float maximoNaContagem = 0;
    b.d.cedencia.aoCeder = [&](long long) {
        if (b.p.e.ComEstatistica) maximoNaContagem = module2(b.p).Progresso.Max;
    };
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(maximoNaContagem, float(38760.0 * 6 / 100 + 1));
}

TEST(FluxoCombinacao, LotofacilNaoDeixaMarcarEstatistica) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.marcaFaixa(1, 16);
    b.dezenasPorAposta(15);
    Roteiro r;
    r.estatistica = true;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_FALSE(r.chkEstHabilitado);
    EXPECT_FALSE(b.p.e.ComEstatistica);
    EXPECT_FALSE(r.caretNoFim);
    EXPECT_EQ(b.apostasBanco().size(), 16);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().endsWith(QStringLiteral(" \r\n\r\n")));
}

TEST(FluxoCombinacao, LotomaniaTambemNao) {
    ProgramaTeste b(QStringLiteral("Lotomania"));
    b.marcaFaixa(0, 50);
    Roteiro r;
    r.estatistica = true;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_FALSE(r.chkEstHabilitado);
    EXPECT_FALSE(b.p.e.ComEstatistica);
    EXPECT_EQ(b.apostasBanco().size(), 51);
}

TEST(FluxoCombinacao, BancoComApostasPerguntaSeLimpa) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    roteiriza(b, r);
    BtnIniciar(b.p);
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    const CaixaVista& v = b.d.caixa.vistas()[0];
    EXPECT_EQ(v.texto, QStringLiteral("Limpar o banco de apostas para inserir os novos jogos?"));
    EXPECT_EQ(v.tipo, CaixaVista::Tipo::Pergunta);
    EXPECT_EQ(v.botoes, Botoes::SimNao);
    EXPECT_EQ(v.padrao, Resposta::Nao);
}

TEST(FluxoCombinacao, NaoAcrescentaSegundoBlocoNumeradoDeNovo) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    b.d.caixa.responde(Resposta::Nao);
    roteiriza(b, r);
    BtnIniciar(b.p);
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 14);
    EXPECT_TRUE(apostas[6].startsWith(QStringLiteral("00007)")));
    EXPECT_TRUE(apostas[7].startsWith(QStringLiteral("00001)")));
    EXPECT_EQ(b.p.e.QuantBan, 14);
    // The second head carries both log lines.
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().contains(
        QStringLiteral("\r\n\r\nDezenas escolhidas: 01 02 03 04 05 06 07 \r\n") + LinhaSeteASeis +
        LinhaSeteASeis + QStringLiteral("\r\n00001)")));
    for (int i = 0; i < 3; ++i)
        TickTimer1(b.p);
    EXPECT_EQ(b.p.tela.TxtQuantApostas.Text, QStringLiteral(" 14"));
    EXPECT_EQ(b.p.tela.TxtValorApostas.Text, QStringLiteral("63,00"));
}

TEST(FluxoCombinacao, SimEsvaziaOBancoAntes) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    b.d.caixa.responde(Resposta::Sim); // clear the bank
    b.d.caixa.responde(Resposta::Nao); // do not save
    roteiriza(b, r);
    BtnIniciar(b.p);
    ASSERT_EQ(b.d.caixa.vistas().size(), 2u);
    EXPECT_EQ(b.d.caixa.vistas()[1].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(b.p.e.QuantBan, 7);
    EXPECT_EQ(b.apostasBanco().size(), 7);
    // The emptying started the log anew, after the dialog had written to it.
    EXPECT_EQ(b.p.tela.TxtBanco.texto().section(QStringLiteral("\r\n"), 0, 1),
              QStringLiteral("Dezenas escolhidas: \r\n") + Agora +
                  QStringLiteral(": Limpou banco de apostas"));
}

TEST(FluxoCombinacao, CancelarAntesDeIniciarNaoTocaNoBanco) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    r.iniciar = false;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    EXPECT_TRUE(b.p.e.Historico.isEmpty());
    EXPECT_EQ(ContaNumeros(b.p), 7);
}

TEST(FluxoCombinacao, CancelarDuranteAGeracaoParaOGeradorNaCedenciaSeguinte) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10); // 210 rows
    Roteiro r;
    r.estatistica = true;
    // Yield 1 is the dialog's own, yield n + 2 follows row n.
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n == 50) r.combinacoes->BtnCancelar();
    };
    Module2& m = module2(b.p);
    m.QuantQuadras(0) = 1234;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(m.LinhaRes, 49) << "o gerador para logo depois da cedência do cancelamento";
    EXPECT_EQ(b.d.cedencia.quantas, 50) << "sem mais linhas nem contagem de acertos";
    EXPECT_EQ(m.QuantQuadras(0), 1234);
    EXPECT_TRUE(b.d.caixa.vistas().empty()) << "um cancelamento não é falta de memória";
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(b.p.e.Historico, Agora + QStringLiteral(": Combinação de 10 números  de 06 em 06\r\n"));
}

TEST(FluxoCombinacao, CancelarNaPrimeiraCedenciaNaoGeraNada) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    Roteiro r;
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n == 1) r.combinacoes->BtnCancelar();
    };
    Module2& m = b.p.module2;
    m.LinhaRes = 77;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(b.d.cedencia.quantas, 1);
    EXPECT_EQ(m.LinhaRes, 77) << "o gerador nem começa";
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
}

TEST(FluxoCombinacao, CancelarDuranteAContagemParaAContagemNaCedenciaSeguinte) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    Roteiro r;
    r.estatistica = true;
    // Yields 1 to 211 are the generation, 212 the dialog's before the count,
    // then one a row in each of the six passes.
    for (long long cancelaEm : {212LL, 213LL, 300LL, 212LL + 3 * 210, 212LL + 6 * 210 - 1, 212LL + 6 * 210}) {
        b.d.cedencia.quantas = 0;
        b.d.cedencia.aoCeder = [&](long long n) {
            if (n == cancelaEm) r.combinacoes->BtnCancelar();
        };
        roteiriza(b, r);
        BtnIniciar(b.p);
        EXPECT_EQ(b.d.cedencia.quantas, cancelaEm) << "a contagem para logo depois do cancelamento";
        EXPECT_TRUE(b.p.e.Cancelado);
        EXPECT_EQ(r.vezesInsere, 0);
        EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    }
}

TEST(FluxoCombinacao, Timer1NaoDesfazOCancelamentoDaGeracao) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    Roteiro r;
    // The cancel comes at yield 40, and within the same yield the 31st tick
    // of Timer1 clears Cancelado: the run ends as cancelled all the same.
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n != 40 || !r.combinacoes) return;
        r.combinacoes->BtnCancelar();
        for (int i = 0; i < 31; ++i)
            TickTimer1(b.p);
        EXPECT_FALSE(b.p.e.Cancelado);
    };
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(FluxoCombinacao, Timer1NaoDesfazOCancelamentoDaContagem) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    Roteiro r;
    r.estatistica = true;
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n != 500 || !r.combinacoes) return;
        r.combinacoes->BtnCancelar();
        for (int i = 0; i < 31; ++i)
            TickTimer1(b.p);
    };
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_EQ(b.d.cedencia.quantas, 500);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
}

TEST(FluxoCombinacao, FechamentoCanceladoParaOGeradorEDeixaOBanco) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.marca({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
    b.p.tela.CmbFecha.Text = QStringLiteral("7"); // 480700 rows
    Roteiro r;
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n == 1000 && r.combinacoes) r.combinacoes->BtnCancelar();
    };
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_EQ(b.d.cedencia.quantas, 1000);
    EXPECT_EQ(module2(b.p).LinhaRes, 999);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(ContaNumeros(b.p), 0) << "a grade fica sem marcas";
}

TEST(FluxoCombinacao, NovaCombinacaoDepoisDeUmCancelamentoVaiAteOFim) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n == 3 && r.combinacoes) r.combinacoes->BtnCancelar();
    };
    roteiriza(b, r);
    BtnIniciar(b.p);
    ASSERT_TRUE(b.p.e.Cancelado);
    b.d.cedencia.aoCeder = nullptr;
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_FALSE(b.p.e.Cancelado);
    EXPECT_EQ(b.p.e.QuantBan, 7);
}

TEST(FluxoCombinacao, CancelamentoPertoDoFimSobrevive) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    Roteiro r;
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n == 200 && r.combinacoes) r.combinacoes->BtnCancelar();
        TickTimer1(b.p);
    };
    roteiriza(b, r);
    BtnIniciar(b.p);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_EQ(b.p.e.QuantBan, 0);
}

TEST(Timer1, ApagaCanceladoACada31Tiques) {
    ProgramaTeste b;
    b.p.e.Cancelado = true;
    for (int i = 0; i < 30; ++i)
        TickTimer1(b.p);
    EXPECT_TRUE(b.p.e.Cancelado);
    TickTimer1(b.p);
    EXPECT_FALSE(b.p.e.Cancelado);
    b.p.e.Cancelado = true;
    for (int i = 0; i < 30; ++i)
        TickTimer1(b.p);
    EXPECT_TRUE(b.p.e.Cancelado);
    TickTimer1(b.p);
    EXPECT_FALSE(b.p.e.Cancelado);
}

TEST(FluxoCombinacao, CancelarNaInsercaoDepoisDe26Apostas) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    Roteiro r;
    r.estatistica = true;
    b.d.cedencia.aoCeder = [&](long long) {
        if (r.insere && b.p.e.QuantBan == 26) r.insere->BtnCancelar();
    };
    roteiriza(b, r);
    BtnIniciar(b.p);
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 26);
    EXPECT_TRUE(apostas.last().startsWith(QStringLiteral("00026)")));
    EXPECT_EQ(b.p.e.QuantBan, 26);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().contains(QStringLiteral("Acertando 6 dezenas pega 1 sena")));
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
    EXPECT_EQ(b.p.e.VetRes.ultimaLinha(), 1);
}

TEST(FluxoCombinacao, FalhaDeMemoriaTerminaComoCancelamento) {
    ProgramaTeste b;
    b.marcaFaixa(1, 20);
    module2(b.p).limiteMemoria = 4096;
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto,
              QStringLiteral("A memória do computador é insuficiente para\ressa quantidade de combinações!"));
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(FluxoCombinacao, ContagemAlemDe32BitsParaOPrograma) {
    ProgramaTeste b(QStringLiteral("Lotomania"));
    b.marcaFaixa(0, 59);
    b.dezenasPorAposta(30);
    Roteiro r;
    try {
        roteiriza(b, r);
        BtnIniciar(b.p);
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::Estouro);
    }
    EXPECT_EQ(r.vezesCombinacoes, 0);
}
