// The super-reduction from "Iniciar Combinação reduzida" with "Reduzir
// quant. de jogos ao mínimo possível" checked, through the flow's own checks
// to the bank, with tables written into a temporary program folder.
#include "ApoioSuper.h"
#include "combinacoes/CombinacaoReduzida.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

const QByteArray Bloco =
    textoBloco("MSC08A04G04", {"01 02 03 04 05 08", "01 02 03 04 06 07", "03 04 05 06 07 08"});

// Mega-Sena with 05 10 15 20 25 30 35 40 marked and the box checked.
struct Fluxo : BancadaSuper {
    int vezesSuper = 0, vezesOutros = 0;
    QStringList mensagens;

    explicit Fluxo(const QString& jogo = QStringLiteral("Mega-Sena")) : BancadaSuper(jogo) {
        marca({5, 10, 15, 20, 25, 30, 35, 40});
        CliqueReduzir(p, true);
    }
    void garantia(const QString& texto, const QString& acertar) {
        p.tela.CmbGarantia.Text = texto;
        CliqueGarantia(p);
        p.tela.CmbAcertar.Text = acertar;
    }
    void iniciar() {
        d.dialogos.quando(Dialogo::CombinacoesReduz, [this] { ++vezesOutros; });
        d.dialogos.quando(Dialogo::InsereVetorReduz, [this] { ++vezesOutros; });
        d.dialogos.quando(Dialogo::CombSuperReduz, [this] {
            ++vezesSuper;
            SuperReducao dlg(p);
            Ligacao mensagem(dlg.aoMudarMensagem, [this, &dlg] { mensagens << dlg.LblMensagem; });
            Ligacao fechou(dlg.aoFechar, [this] { ++fechamentos; });
            dlg.ativa();
        });
        BtnReduz(p);
    }
};

} // namespace

TEST(FluxoSuperReducao, MegaSenaQuadraComQuatroEscreveOBlocoNoBanco) {
    Fluxo f;
    f.gravaTabela(QStringLiteral("Megasena.sv"), Bloco);
    f.garantia(QStringLiteral("Quadra"), QStringLiteral("4"));
    EXPECT_EQ(f.p.tela.CmbAcertar.Text, QStringLiteral("4"));
    f.iniciar();
    EXPECT_EQ(f.vezesSuper, 1);
    EXPECT_EQ(f.vezesOutros, 0);
    EXPECT_TRUE(f.d.caixa.vistas().empty());
    EXPECT_EQ(f.p.e.DezFinal, 6);
    EXPECT_EQ(f.p.e.QuantAcertar, 4);
    EXPECT_EQ(f.p.e.DezAposta, 4);
    EXPECT_EQ(f.p.e.QuantBan, 3);
    EXPECT_EQ(f.p.e.TotalApostas, 70) << "C(8, 4), que a super-redução não usa";
    EXPECT_EQ(f.mensagens, QStringList{QStringLiteral("Inserindo jogos no banco de apostas...")});
    EXPECT_EQ(f.fechamentos, 1);
    EXPECT_EQ(f.p.tela.TxtBanco.texto(), QStringLiteral("Dezenas escolhidas: 05 10 15 20 25 30 35 40 \r\n") +
                                             Agora + QStringLiteral(": Limpou banco de apostas\r\n") + Agora +
                                             QStringLiteral(": Combinação reduzida\r\n"
                                                            "\r\n"
                                                            "00001)   05 10 15 20 25 40 \r\n"
                                                            "00002)   05 10 15 20 30 35 \r\n"
                                                            "00003)   15 20 25 30 35 40 \r\n"
                                                            "\r\n"));
    // Timer1 shows the count within three ticks.
    for (int i = 0; i < 3; ++i)
        TickTimer1(f.p);
    EXPECT_EQ(f.p.tela.TxtQuantApostas.Text, QStringLiteral(" 3"));
}

TEST(FluxoSuperReducao, ONumeroAAcertarEntraNaChave) {
    Fluxo f;
    f.gravaTabela(QStringLiteral("Megasena.sv"),
                  Bloco + "\r\n" + textoBloco("MSC08A06G04", {"08 07 06 05 04 03"}));
    f.garantia(QStringLiteral("Quadra"), QStringLiteral("6"));
    f.iniciar();
    EXPECT_TRUE(f.d.caixa.vistas().empty());
    EXPECT_EQ(f.p.e.QuantBan, 1);
    EXPECT_EQ(f.linhaVetBan(0), QStringLiteral("40 35 30 25 20 15 "));
}

TEST(FluxoSuperReducao, FixosEntramEmCadaAposta) {
    Fluxo f;
    f.fixa({7});
    f.gravaTabela(QStringLiteral("Megasena.sv"), Bloco);
    f.garantia(QStringLiteral("Quadra"), QStringLiteral("4"));
    f.iniciar();
    EXPECT_EQ(f.p.e.QuantEscolhidos, 8) << "o fixo não conta entre os escolhidos";
    EXPECT_EQ(f.linhaVetBan(0), QStringLiteral("05 07 10 15 20 25 40 "));
    EXPECT_EQ(f.linhaVetBan(2), QStringLiteral("07 15 20 25 30 35 40 "));
}

TEST(FluxoSuperReducao, ArquivoAusenteMostraACaixa) {
    Fluxo f;
    f.garantia(QStringLiteral("Quadra"), QStringLiteral("4"));
    f.iniciar();
    EXPECT_EQ(f.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(f.p.e.QuantBan, 0);
    EXPECT_EQ(f.p.tela.TxtBanco.texto(), QString());
}

TEST(FluxoSuperReducao, ChaveAusenteMostraACaixa) {
    Fluxo f;
    f.gravaTabela(QStringLiteral("Megasena.sv"), Bloco);
    f.garantia(QStringLiteral("Terno"), QStringLiteral("4")); // MSC08A04G03
    f.iniciar();
    EXPECT_EQ(f.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(f.p.e.QuantBan, 0);
}

TEST(FluxoSuperReducao, DezenasPorApostaDiferenteMostraACaixa) {
    Fluxo f;
    f.gravaTabela(QStringLiteral("Megasena.sv"), Bloco);
    f.garantia(QStringLiteral("Quadra"), QStringLiteral("4"));
    f.p.tela.TxtDezAp2.Text = QStringLiteral("7");
    f.iniciar();
    EXPECT_EQ(f.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(f.p.e.QuantBan, 0);
}

TEST(FluxoSuperReducao, LotomaniaMostraACaixa) {
    Fluxo f(QStringLiteral("Lotomania"));
    f.p.tela.CmbAcertar.Text = QStringLiteral("4");
    f.p.tela.CmbGarantia.Text = QStringLiteral("4");
    f.iniciar();
    EXPECT_EQ(f.vezesSuper, 1);
    EXPECT_EQ(f.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(f.p.e.QuantBan, 0);
}

TEST(FluxoSuperReducao, UmaRecusaDoFluxoNaoAbreODialogo) {
    Fluxo f;
    f.gravaTabela(QStringLiteral("Megasena.sv"), Bloco);
    f.garantia(QStringLiteral("Quina"), QStringLiteral("4"));
    f.iniciar();
    EXPECT_EQ(f.vezesSuper, 0);
    EXPECT_EQ(f.caixasCriticas(),
              QStringList{QStringLiteral("A garantia deve ser menor ou igual à quant. a acertar!")});
}
