// The reduced combination from "Iniciar Combinação reduzida" to the bank,
// with the dialogs driven as a user would and a fixed clock.
#include "ReducaoReferencia.h"
#include "apoio/Combinacao.h"
#include "combinacoes/CombinacaoReduzida.h"
#include "combinacoes/InsereVetorReduz.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

const QString Limpou = Agora + QStringLiteral(": Limpou banco de apostas\r\n");
const QString Reduzida = Agora + QStringLiteral(": Combinação reduzida\r\n");
QString garantia(const QString& g, const QString& a) {
    return Agora + QStringLiteral(": Garantia de no mínimo ") + g + QStringLiteral("  se acertar ") + a +
           QStringLiteral(" números dentro das dezenas escolhidas.\r\n");
}

struct RoteiroReducao {
    bool iniciar = true; // "Iniciar combinação" (else "Cancelar")
    int vezesCombinacoesReduz = 0, vezesInsere = 0, vezesSuper = 0;
    QString lblDezComb, lblDezApo, lblGarantia, lblAcertar;
    QStringList mensagens;                   // LblMensagem of InsereVetorReduz, in order
    QStringList contadores;                  // LblCont of InsereVetorReduz, in order
    InsereVetorReduz* insere = nullptr;      // while it is up
    CombinacoesReduz* combinacoes = nullptr; // while it is up
    bool insereAbertoNoFim = true;
};

// Gives the program's reduction dialogs this script.
void roteiriza(ProgramaTeste& b, RoteiroReducao& r) {
    Programa& p = b.p;
    b.d.dialogos.quando(Dialogo::CombinacoesReduz, [&r, &p] {
        ++r.vezesCombinacoesReduz;
        CombinacoesReduz dlg(p, p.module2);
        r.lblDezComb = dlg.LblDezComb;
        r.lblDezApo = dlg.LblDezApo;
        r.lblGarantia = dlg.LblGarantia;
        r.lblAcertar = dlg.LblAcertar;
        r.combinacoes = &dlg;
        if (r.iniciar)
            dlg.BtnIniciar();
        else
            dlg.BtnCancelar();
        r.combinacoes = nullptr;
    });
    b.d.dialogos.quando(Dialogo::InsereVetorReduz, [&r, &p] {
        ++r.vezesInsere;
        InsereVetorReduz dlg(p);
        Ligacao mensagem(dlg.aoMudarMensagem, [&r, &dlg] { r.mensagens << dlg.LblMensagem; });
        dlg.aoContar = [&r](const QString& t) { r.contadores << t; };
        r.insere = &dlg;
        dlg.ativa();
        r.insereAbertoNoFim = dlg.aberto();
        r.insere = nullptr;
    });
    b.d.dialogos.quando(Dialogo::CombSuperReduz, [&r] { ++r.vezesSuper; });
}

// "Iniciar Combinação reduzida" with the dialogs scripted.
void reduz(ProgramaTeste& b, RoteiroReducao& r) {
    roteiriza(b, r);
    BtnReduz(b.p);
}

void garantiaDe(ProgramaTeste& b, const QString& texto) {
    b.p.tela.CmbGarantia.Text = texto;
    CliqueGarantia(b.p);
}

QString caixaUnica(const ProgramaTeste& b) {
    return b.d.caixa.vistas().size() == 1 ? b.d.caixa.vistas()[0].texto : QStringLiteral("<várias>");
}

// A bank with one bet of the marked numbers 01..06, then the grid cleared.
void bancoComUmaAposta(ProgramaTeste& b) {
    b.marcaFaixa(1, 6);
    InsereApostaMarcada(b.p);
    LimpaNumeros(b.p);
    b.d.caixa.limpa();
}

} // namespace

TEST(FluxoReducao, DezNumerosQuadraEmSeisDaVinteESeteApostas) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    garantiaDe(b, QStringLiteral("Quadra"));
    EXPECT_EQ(b.p.tela.CmbAcertar.Text, QStringLiteral("4"));
    EXPECT_EQ(b.p.tela.TxtDezAp2.Text, QStringLiteral("06"));
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_TRUE(b.d.caixa.vistas().empty());
    EXPECT_EQ(r.lblDezComb, QStringLiteral("10"));
    EXPECT_EQ(r.lblDezApo, QStringLiteral("06"));
    EXPECT_EQ(r.lblGarantia, QStringLiteral("Quadra "));
    EXPECT_EQ(r.lblAcertar, QStringLiteral("4"));
    const QString historico = Limpou + Reduzida + garantia(QStringLiteral("Quadra"), QStringLiteral("4"));
    EXPECT_EQ(b.p.e.Historico, historico);
    const QStringList linhas = b.linhasBanco();
    ASSERT_GE(linhas.size(), 6);
    EXPECT_EQ(linhas[0], QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 07 08 09 10 "));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().startsWith(
        QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 07 08 09 10 \r\n") + historico +
        QStringLiteral("\r\n00001)   01 02 03 04 05 06 \r\n")));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().endsWith(QStringLiteral(" \r\n\r\n")));
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 27);
    EXPECT_EQ(apostas[26].left(9), QStringLiteral("00027)   "));
    EXPECT_EQ(b.p.e.QuantBan, 27);
    EXPECT_EQ(b.p.e.TotalApostas, 210) << "TotalApostas keeps the count of subsets";
    EXPECT_EQ(b.linhaVetBan(0), QStringLiteral("01 02 03 04 05 06 "));
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
    EXPECT_FALSE(b.p.e.EmReducao);
    EXPECT_EQ(b.p.e.VetRes.ultimaLinha(), 1) << "VetRes shrunk at the close";
    for (int i = 0; i < 3; ++i)
        TickTimer1(b.p);
    EXPECT_EQ(b.p.tela.TxtQuantApostas.Text, QStringLiteral(" 27"));
    EXPECT_EQ(b.p.tela.TxtValorApostas.Text, QStringLiteral("121,50"));
}

TEST(FluxoReducao, CoresDasLinhasENegritoDoCabecalhoEDoFim) {
    ProgramaTeste b;
    b.marcaFaixa(1, 6);
    garantiaDe(b, QStringLiteral("Terno"));
    b.p.tela.TxtDezAp2.Text = QStringLiteral("4");
    RoteiroReducao r;
    reduz(b, r);
    const DocumentoRico& d = b.p.tela.TxtBanco;
    const QString t = d.texto();
    const qsizetype linha1 = t.indexOf(QStringLiteral("00001)"));
    ASSERT_GT(linha1, 0);
    EXPECT_EQ(d.formatoEm(0), (Formato{CorLog, true}));
    EXPECT_EQ(d.formatoEm(linha1), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(d.formatoEm(linha1 + 6), (Formato{CorAposta, false}));
    EXPECT_EQ(d.formatoEm(t.size() - 1), (Formato{CorLog, true}));
    EXPECT_EQ(b.apostasBanco(),
              (QStringList{QStringLiteral("00001)   01 02 03 04 "), QStringLiteral("00002)   01 02 05 06 "),
                           QStringLiteral("00003)   01 03 05 06 "), QStringLiteral("00004)   01 04 05 06 "),
                           QStringLiteral("00005)   02 03 05 06 "), QStringLiteral("00006)   02 04 05 06 "),
                           QStringLiteral("00007)   03 04 05 06 ")}));
}

TEST(FluxoReducao, FasesEContadorDoDialogo) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    garantiaDe(b, QStringLiteral("Quadra"));
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(r.mensagens, (QStringList{QStringLiteral("Combinando números..."),
                                        QStringLiteral("Aguarde alguns minutos..."),
                                        QStringLiteral("Reduzindo combinações..."),
                                        QStringLiteral("Inserindo jogos no banco de apostas...")}));
    ASSERT_FALSE(r.contadores.isEmpty());
    EXPECT_EQ(r.contadores[0], QStringLiteral("000000"));
    EXPECT_EQ(r.contadores[1], QStringLiteral("000013")) << "phase one every 13 subsets";
    EXPECT_TRUE(r.contadores.contains(QStringLiteral("000208")));
    EXPECT_EQ(r.contadores.count(QStringLiteral("000000")), 2) << "at the start and before the first subset";
    EXPECT_EQ(r.contadores.last(), QStringLiteral("000026")) << "phase three every 13 bets, 27 not shown";
    EXPECT_FALSE(r.insereAbertoNoFim);
}

TEST(FluxoReducao, NadaMarcadoAvisaComOBancoJaLimpo) {
    ProgramaTeste b;
    bancoComUmaAposta(b);
    b.d.caixa.responde(Resposta::Nao);
    RoteiroReducao r;
    reduz(b, r);
    ASSERT_EQ(b.d.caixa.vistas().size(), 2u);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(b.d.caixa.vistas()[1].tipo, CaixaVista::Tipo::Informacao);
    EXPECT_EQ(b.d.caixa.vistas()[1].texto, QStringLiteral("Favor selecionar os números a combinar"));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(r.vezesCombinacoesReduz, 0);
}

TEST(FluxoReducao, QuinaComCincoNumerosRecusa) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    garantiaDe(b, QStringLiteral("Quina"));
    RoteiroReducao r;
    reduz(b, r);
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(caixaUnica(b), QStringLiteral("Não é possível fazer redução com os parâmetros informados!"));
    EXPECT_EQ(r.vezesCombinacoesReduz, 0);
    EXPECT_EQ(b.p.e.Historico, Limpou) << "no log line of a refused run";
}

TEST(FluxoReducao, QuinaComSeisNumerosDaSeisSubconjuntosEmUmaAposta) {
    ProgramaTeste b;
    b.marcaFaixa(1, 6);
    garantiaDe(b, QStringLiteral("Quina"));
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.p.e.TotalApostas, 6);
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   01 02 03 04 05 06 ")});
}

TEST(FluxoReducao, GarantiaAcimaDoAcertarComReduzirRecusa) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    CliqueReduzir(b.p, true);
    garantiaDe(b, QStringLiteral("Quina"));
    b.p.tela.CmbAcertar.Text = QStringLiteral("4");
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.d.caixa.vistas().at(0).tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(caixaUnica(b), QStringLiteral("A garantia deve ser menor ou igual à quant. a acertar!"));
    EXPECT_EQ(r.vezesSuper, 0);
}

TEST(FluxoReducao, ComReduzirVaiParaASuperReducao) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    CliqueReduzir(b.p, true);
    garantiaDe(b, QStringLiteral("Quadra"));
    b.p.tela.CmbAcertar.Text = QStringLiteral("6");
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_TRUE(b.d.caixa.vistas().empty());
    EXPECT_EQ(r.vezesSuper, 1);
    EXPECT_EQ(r.vezesCombinacoesReduz, 0);
    EXPECT_EQ(b.p.e.DezAposta, 4);
    EXPECT_EQ(b.p.e.QuantAcertar, 6);
    EXPECT_EQ(b.p.e.Historico, Limpou + Reduzida);
    EXPECT_EQ(b.p.e.VetDezenas(10), QStringLiteral("#")) << "the marked numbers are read for it";
}

TEST(FluxoReducao, CliquesDeGarantiaEReduzir) {
    ProgramaTeste b;
    EXPECT_FALSE(b.p.tela.CmbAcertar.Enabled);
    garantiaDe(b, QStringLiteral("20"));
    EXPECT_EQ(b.p.tela.CmbAcertar.Text, QStringLiteral("20"));
    garantiaDe(b, QStringLiteral("Duque"));
    EXPECT_EQ(b.p.tela.CmbAcertar.Text, QStringLiteral("2"));
    CliqueReduzir(b.p, true);
    EXPECT_TRUE(b.p.tela.CmbAcertar.Enabled);
    garantiaDe(b, QStringLiteral("9"));
    EXPECT_EQ(b.p.tela.CmbAcertar.Text, QStringLiteral("2")) << "a figure leaves it while checked";
    garantiaDe(b, QStringLiteral("Sena"));
    EXPECT_EQ(b.p.tela.CmbAcertar.Text, QStringLiteral("6"));
    CliqueReduzir(b.p, false);
    EXPECT_FALSE(b.p.tela.CmbAcertar.Enabled);
}

TEST(FluxoReducao, FixosEntramSoNoFim) {
    ProgramaTeste b;
    b.marcaFaixa(1, 3);
    b.marca({4});
    b.fixa({9});
    garantiaDe(b, QStringLiteral("Terno"));
    b.p.tela.TxtDezAp2.Text = QStringLiteral("3");
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.p.e.QuantEscolhidos, 4) << "the fixed number is not chosen";
    EXPECT_EQ(
        b.apostasBanco(),
        (QStringList{QStringLiteral("00001)   01 02 03 09 "), QStringLiteral("00002)   01 02 04 09 "),
                     QStringLiteral("00003)   01 03 04 09 "), QStringLiteral("00004)   02 03 04 09 ")}));
    EXPECT_EQ(b.linhaVetBan(0), QStringLiteral("01 02 03 09 "));
    EXPECT_TRUE(
        b.p.tela.TxtBanco.texto().startsWith(QStringLiteral("Dezenas escolhidas: 01 02 03 04 09 \r\n")));
}

TEST(FluxoReducao, FixosNoMeioDaAposta) {
    ProgramaTeste b;
    b.marca({1, 2, 30, 40});
    b.fixa({5, 35});
    garantiaDe(b, QStringLiteral("Duque"));
    b.p.tela.TxtDezAp2.Text = QStringLiteral("4");
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   01 02 05 30 35 40 ")});
}

TEST(FluxoReducao, PerguntaDeSalvarSimSalvaELimpa) {
    ProgramaTeste b;
    bancoComUmaAposta(b);
    SalvamentoVigiado salvamento(b);
    b.marcaFaixa(1, 6);
    garantiaDe(b, QStringLiteral("Quina"));
    b.d.caixa.responde(Resposta::Sim);
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(salvamento.vezes(), 1);
    EXPECT_EQ(salvamento.apostasNoArquivo(), 1);
    EXPECT_EQ(b.p.e.Historico, Limpou + Reduzida + garantia(QStringLiteral("Quina"), QStringLiteral("5")));
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   01 02 03 04 05 06 ")});
}

TEST(FluxoReducao, PerguntaDeSalvarCancelarDeixaAsApostasAntigasEntrarNaReducao) {
    ProgramaTeste b;
    bancoComUmaAposta(b);
    b.p.e.Historico = QStringLiteral("antes\r\n");
    b.marcaFaixa(10, 15);
    garantiaDe(b, QStringLiteral("Quina"));
    b.d.caixa.responde(Resposta::Cancelar);
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.apostasBanco(), (QStringList{QStringLiteral("00001)   01 02 03 04 05 06 "),
                                             QStringLiteral("00002)   10 11 12 13 14 15 ")}));
    EXPECT_EQ(b.p.e.QuantBan, 2);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().startsWith(
        QStringLiteral("Dezenas escolhidas: 10 11 12 13 14 15 \r\nantes\r\n")))
        << "the old text is gone, the old log stays";
}

TEST(FluxoReducao, PerguntaDeSalvarNaoDeixaSoOsNovos) {
    ProgramaTeste b;
    bancoComUmaAposta(b);
    b.marcaFaixa(10, 15);
    garantiaDe(b, QStringLiteral("Quina"));
    b.d.caixa.responde(Resposta::Nao);
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   10 11 12 13 14 15 ")});
    EXPECT_FALSE(b.p.tela.TxtBanco.texto().contains(QStringLiteral("01 02 03 04 05 06")));
}

TEST(FluxoReducao, CancelarNasCombinacoesReduzidasNaoInsere) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    RoteiroReducao r;
    r.iniciar = false;
    reduz(b, r);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(b.p.e.Historico, Limpou + Reduzida);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(FluxoReducao, CancelarDuranteAGeracaoParaOGeradorENaoInsere) {
    ProgramaTeste b;
    b.marcaFaixa(1, 20);
    garantiaDe(b, QStringLiteral("Quadra")); // 4845 combinations
    RoteiroReducao r;
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n != 100 || !r.combinacoes) return;
        r.combinacoes->BtnCancelar();
        // Timer1's 31st tick within the same yield clears Cancelado.
        for (int i = 0; i < 31; ++i)
            TickTimer1(b.p);
    };
    reduz(b, r);
    EXPECT_EQ(b.d.cedencia.quantas, 100);
    EXPECT_EQ(module2(b.p).LinhaRes, 99);
    EXPECT_TRUE(b.d.caixa.vistas().empty());
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(FluxoReducao, MemoriaInsuficienteAntesDoDialogoDeInsercao) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    module2(b.p).limiteMemoria = 1000;
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(caixaUnica(b), MensagemMemoriaInsuficiente());
    EXPECT_EQ(r.vezesInsere, 0);
}

namespace {
// Presses "Cancelar" of InsereVetorReduz at the n-th yield of a phase.
void cancelaNaFase(ProgramaTeste& b, RoteiroReducao& r, InsereVetorReduz::Fase fase, int n) {
    auto vistas = std::make_shared<int>(0);
    b.d.cedencia.aoCeder = [&r, fase, n, vistas](long long) {
        if (r.insere && r.insere->fase() == fase && ++*vistas == n) r.insere->BtnCancelar();
    };
}
} // namespace

TEST(FluxoReducao, CancelarNaFaseUmParaEDeixaOBancoVazio) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    RoteiroReducao r;
    cancelaNaFase(b, r, InsereVetorReduz::Fase::Combinando, 3);
    reduz(b, r);
    EXPECT_EQ(r.mensagens, QStringList{QStringLiteral("Combinando números...")});
    EXPECT_EQ(r.contadores.last(), QStringLiteral("000039"));
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
    EXPECT_FALSE(r.insereAbertoNoFim);
    EXPECT_FALSE(b.p.e.EmReducao);
}

TEST(FluxoReducao, CancelarNaFaseDoisParaEDeixaOBancoVazio) {
    ProgramaTeste b;
    b.marcaFaixa(1, 12);
    RoteiroReducao r;
    cancelaNaFase(b, r, InsereVetorReduz::Fase::Reduzindo, 100);
    reduz(b, r);
    EXPECT_EQ(r.mensagens.last(), QStringLiteral("Reduzindo combinações..."));
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(b.p.e.VetRes.ultimaLinha(), 1);
    EXPECT_FALSE(r.insereAbertoNoFim);
}

TEST(FluxoReducao, CancelarNaFaseDoisComMuitasApostasNaoChegaAFalha) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    garantiaDe(b, QStringLiteral("Quadra"));
    b.p.tela.TxtDezAp2.Text = QStringLiteral("4");
    RoteiroReducao r;
    cancelaNaFase(b, r, InsereVetorReduz::Fase::Reduzindo, 150);
    reduz(b, r);
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(FluxoReducao, CancelarNaFaseTresSoFechaOInsercaoVaiAoFim) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    RoteiroReducao r;
    garantiaDe(b, QStringLiteral("Quadra"));
    cancelaNaFase(b, r, InsereVetorReduz::Fase::Inserindo, 1);
    reduz(b, r);
    EXPECT_EQ(r.mensagens.last(), QStringLiteral("Inserindo jogos no banco de apostas..."));
    EXPECT_EQ(b.apostasBanco().size(), 27);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().endsWith(QStringLiteral("\r\n\r\n")));
    EXPECT_FALSE(r.insereAbertoNoFim);
}

TEST(FluxoReducao, DezFinalComLixoValeZeroEDaOsSubconjuntos) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    garantiaDe(b, QStringLiteral("Quadra"));
    b.p.tela.TxtDezAp2.Text = QStringLiteral("abc");
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.p.e.DezFinal, 0);
    EXPECT_EQ(b.apostasBanco().size(), 5);
    EXPECT_EQ(b.apostasBanco()[0], QStringLiteral("00001)   01 02 03 04 "));
}

TEST(FluxoReducao, DezFinalQueEstouraDezesseisBitsEhFalha) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    b.p.tela.TxtDezAp2.Text = QStringLiteral("40000");
    RoteiroReducao r;
    try {
        reduz(b, r);
        FAIL() << "no failure";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::Estouro);
    }
}

TEST(FluxoReducao, GarantiaSemNumeroDaUmaApostaVazia) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    garantiaDe(b, QStringLiteral("xyz"));
    RoteiroReducao r;
    reduz(b, r);
    EXPECT_EQ(b.p.e.DezAposta, 0);
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   ")});
}

TEST(FluxoReducao, GarantiaNegativaTerminaEmFalhaDeSubscrito) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    garantiaDe(b, QStringLiteral("-3"));
    RoteiroReducao r;
    try {
        reduz(b, r);
        FAIL() << "no failure";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::SubscritoForaIntervalo);
    }
}

TEST(FluxoReducao, LotomaniaComDezFinalAcimaDe81TerminaEmFalha) {
    // Lotomania's list is disabled and keeps the guarantee of the game before.
    ProgramaTeste b;
    garantiaDe(b, QStringLiteral("Duque"));
    TrocaLoteria(b.p, QStringLiteral("Lotomania"));
    EXPECT_FALSE(b.p.tela.CmbGarantia.Enabled);
    b.marcaFaixa(0, 94);
    b.p.tela.TxtDezAp2.Text = QStringLiteral("90");
    RoteiroReducao r;
    EXPECT_THROW(reduz(b, r), FalhaExecucao);
}

// ---- From the grid to the bank against the plain rule ----

TEST(FluxoReducao, FluxoIgualARegraEmCasosAleatoriosComESemFixos) {
    std::mt19937 g(31);
    for (int caso = 0; caso < 40; ++caso) {
        ProgramaTeste b;
        const int n = std::uniform_int_distribution<int>(5, 11)(g);
        const int k = std::uniform_int_distribution<int>(2, std::min(4, n - 1))(g);
        const int dezFinal = std::uniform_int_distribution<int>(k, 8)(g);
        std::set<int> escolhidos, fixos;
        while (int(escolhidos.size()) < n)
            escolhidos.insert(std::uniform_int_distribution<int>(1, 60)(g));
        const int quantFixos = caso % 2 ? std::uniform_int_distribution<int>(1, 3)(g) : 0;
        while (int(fixos.size()) < quantFixos) {
            const int f = std::uniform_int_distribution<int>(1, 60)(g);
            if (!escolhidos.count(f)) fixos.insert(f);
        }
        for (int x : escolhidos)
            b.marca({x});
        for (int f : fixos)
            b.fixa({f});
        b.p.tela.CmbGarantia.Text = QString::number(k);
        b.p.tela.TxtDezAp2.Text = QString::number(dezFinal);
        RoteiroReducao r;
        reduz(b, r);

        // The plain rule on the subsets in ascending order, then the fixed
        // numbers joined and sorted.
        QStringList base;
        for (int x : escolhidos)
            base << formata00(x);
        ReducaoReferencia ref;
        ref.dezFinal = dezFinal;
        std::vector<int> pos(static_cast<size_t>(k));
        for (int i = 0; i < k; ++i)
            pos[size_t(i)] = i;
        for (;;) {
            QStringList s;
            for (int p : pos)
                s << base[p];
            ref.acrescenta(s);
            int i = k - 1;
            while (i >= 0 && pos[size_t(i)] == n - k + i)
                --i;
            if (i < 0) break;
            ++pos[size_t(i)];
            for (int j = i + 1; j < k; ++j)
                pos[size_t(j)] = pos[size_t(j - 1)] + 1;
        }
        ref.reduz();
        QStringList esperado;
        int num = 0;
        for (QStringList a : ref.apostas()) {
            for (int f : fixos)
                a << formata00(f);
            a.sort();
            esperado << formata(++num, 5) + QStringLiteral(")   ") + a.join(u' ') + u' ';
        }
        ASSERT_EQ(b.apostasBanco(), esperado) << "caso " << caso;
        ASSERT_EQ(b.p.e.QuantBan, int(esperado.size()));
    }
}
