// The closing: all numbers of the game combined at the size of "Garantia
// de:", with the auto-completion of short bets.
#include "apoio/Combinacao.h"

#include <gtest/gtest.h>

#include <set>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
QStringList numeros(const QString& linhaAposta) {
    return linhaAposta.mid(9).split(u' ', Qt::SkipEmptyParts);
}

bool gradeLimpa(const ProgramaTeste& b) {
    for (int i = 0; i <= 99; ++i)
        if (b.p.tela.Num(i).BackColor != b.p.e.CorFundoNum) return false;
    return b.p.tela.TxtEscolhidos.Text == QStringLiteral("00");
}
} // namespace

TEST(DezenasDoFechamento, PalavrasEAlgarismos) {
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("Duque")), 2);
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("Terno")), 3);
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("Quadra")), 4);
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("Quina")), 5);
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("Sena")), 6);
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("7")), 7);
    EXPECT_EQ(DezenasDoFechamento(QStringLiteral("15")), 15);
}

TEST(Fechamento, QuinaDaMegaSenaContaDoMaiorNumero) {
    ProgramaTeste b;
    b.p.tela.TxtValAp.Text = QStringLiteral("4,50");
    Roteiro r;
    r.iniciar = false;
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_EQ(b.p.e.QuantEscolhidos, 60);
    EXPECT_EQ(b.p.e.DezAposta, 5);
    EXPECT_EQ(b.p.e.TotalApostas, 5461512);
    EXPECT_EQ(r.lblTotAp, QStringLiteral(" 5461512"));
    EXPECT_EQ(r.lblValAp, QStringLiteral("24.576.804,00"));
    EXPECT_FALSE(r.chkEstVisivel);
    EXPECT_TRUE(r.chkAutoVisivel);
}

TEST(Fechamento, DuqueDaMegaSenaTem1770ApostasDeDois) {
    ProgramaTeste b;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    roteiriza(b, r);
    BtnFechar(b.p);
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 1770);
    EXPECT_EQ(apostas.first(), QStringLiteral("00001)   01 02 "));
    EXPECT_EQ(apostas.last(), QStringLiteral("01770)   59 60 "));
    for (const QString& a : apostas)
        EXPECT_EQ(numeros(a).size(), 2);
    EXPECT_EQ(b.p.e.QuantBan, 1770);
}

TEST(Fechamento, CabecalhoTerminaEmQuarentaZeros) {
    ProgramaTeste b;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    roteiriza(b, r);
    BtnFechar(b.p);
    QString dezenas;
    for (int n = 1; n <= 60; ++n)
        dezenas += formata00(n) + u' ';
    dezenas += QStringLiteral("00 ").repeated(40);
    EXPECT_EQ(b.p.e.DezEscolhidas, dezenas);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().startsWith(QStringLiteral("Dezenas escolhidas: ") + dezenas +
                                                     QStringLiteral("\r\n")));
    EXPECT_EQ(b.p.e.VetNum(59), 60);
    EXPECT_EQ(b.p.e.VetNum(60), 0);
    EXPECT_EQ(b.p.e.VetNum(99), 0);
}

TEST(Fechamento, LinhasDoHistorico) {
    ProgramaTeste b;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    r.autoCompletar = true;
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_EQ(b.p.e.Historico, Agora + QStringLiteral(": Fechamento completo de Duque\r\n") + Agora +
                                   QStringLiteral(": Combinação de 60 números  de 02 em 02\r\n") + Agora +
                                   QStringLiteral(": Foi selecionada a opção Auto-Completar.\r\n"));
}

TEST(Fechamento, SemAutoCompletarNaoHaLinhaDeAutoCompletar) {
    ProgramaTeste b(QStringLiteral("Quina"));
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_EQ(b.p.e.Historico.count(QStringLiteral("Auto-Completar")), 0);
    EXPECT_TRUE(b.p.e.Historico.endsWith(Agora + QStringLiteral(": Fechamento completo de Duque\r\n") +
                                         Agora +
                                         QStringLiteral(": Combinação de 80 números  de 02 em 02\r\n")));
    EXPECT_EQ(b.p.e.QuantBan, 3160);
}

TEST(Fechamento, AutoCompletarLevaCadaDuqueASeisNumeros) {
    ProgramaTeste b;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    r.autoCompletar = true;
    roteiriza(b, r);
    BtnFechar(b.p);
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 1770);
    for (int i = 0; i < apostas.size(); ++i) {
        const QStringList n = numeros(apostas[i]);
        ASSERT_EQ(n.size(), 6) << apostas[i].toStdString();
        EXPECT_EQ(std::set<QString>(n.begin(), n.end()).size(), 6u);
        QStringList ordenados = n;
        ordenados.sort();
        EXPECT_EQ(n, ordenados);
        for (const QString& x : n)
            EXPECT_LE(x.toInt(), 60);
        EXPECT_EQ(b.linhaVetBan(i), apostas[i].mid(9));
    }
    EXPECT_EQ(module2(b.p).AutoCompletar, 1);
}

TEST(Fechamento, AutoCompletarNaMegaAceitaOZero) {
    ProgramaTeste b;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    b.d.aleatorio.enfileira(0.0f);
    Roteiro r;
    r.autoCompletar = true;
    roteiriza(b, r);
    BtnFechar(b.p);
    const QStringList primeira = numeros(b.apostasBanco().value(0));
    ASSERT_EQ(primeira.size(), 6);
    EXPECT_EQ(primeira.mid(0, 3), (QStringList{"00", "01", "02"}));
}

TEST(Fechamento, DuqueDaLotofacilComAutoCompletarNuncaTem00) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    for (int i = 0; i < 20; ++i)
        b.d.aleatorio.enfileira(0.0f);
    Roteiro r;
    r.autoCompletar = true;
    roteiriza(b, r);
    BtnFechar(b.p);
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 300);
    for (const QString& a : apostas) {
        const QStringList n = numeros(a);
        EXPECT_EQ(n.size(), 15);
        EXPECT_FALSE(n.contains(QStringLiteral("00"))) << a.toStdString();
        EXPECT_EQ(std::set<QString>(n.begin(), n.end()).size(), 15u);
    }
}

TEST(Fechamento, GradeFicaSemMarcas) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_TRUE(gradeLimpa(b));
    EXPECT_FALSE(b.p.e.ModoFechamento);
}

TEST(Fechamento, ModoFechamentoSoComODialogoAberto) {
    ProgramaTeste b;
    bool duranteODialogo = false;
    b.d.dialogos.quando(Dialogo::Combinacoes, [&] {
        duranteODialogo = b.p.e.ModoFechamento;
        Combinacoes dlg(b.p, b.p.module2);
        dlg.BtnCancelar();
    });
    BtnFechar(b.p);
    EXPECT_TRUE(duranteODialogo);
    EXPECT_FALSE(b.p.e.ModoFechamento);
}

TEST(Fechamento, CanceladoDeixaGradeSemMarcasEBancoComoEstava) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    Roteiro r;
    roteiriza(b, r);
    BtnIniciar(b.p);
    const QString banco = b.p.tela.TxtBanco.texto();
    b.marcaFaixa(20, 25);
    Roteiro cancela;
    cancela.iniciar = false;
    roteiriza(b, cancela);
    BtnFechar(b.p);
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_TRUE(gradeLimpa(b));
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), banco);
    EXPECT_EQ(b.p.e.QuantBan, 7);
    EXPECT_TRUE(b.d.caixa.vistas().empty());
    EXPECT_EQ(cancela.vezesInsere, 0);
    EXPECT_TRUE(b.p.e.Historico.endsWith(Agora + QStringLiteral(": Fechamento completo de Quina\r\n")));
}

TEST(Fechamento, FixosNaoEntram) {
    ProgramaTeste b;
    b.fixa({5, 10});
    b.p.tela.ChkFixar.Value = true;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_TRUE(b.p.e.VetFixos(0).isEmpty());
    for (const QString& a : b.apostasBanco())
        ASSERT_EQ(numeros(a).size(), 2);
    EXPECT_EQ(b.p.e.DezEscolhidas.count(QStringLiteral("05 ")), 1);
    EXPECT_TRUE(gradeLimpa(b));
}

TEST(Fechamento, FalhaDeMemoriaLimpaAGradeETerminaComoCancelamento) {
    ProgramaTeste b;
    module2(b.p).limiteMemoria = 100000;
    Roteiro r;
    roteiriza(b, r);
    BtnFechar(b.p);
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto, MensagemMemoriaInsuficiente());
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_EQ(r.vezesInsere, 0);
    EXPECT_TRUE(gradeLimpa(b));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
}

TEST(Fechamento, EstatisticaEscondidaNoFechamento) {
    ProgramaTeste b;
    b.p.tela.CmbFecha.Text = QStringLiteral("Duque");
    Roteiro r;
    r.estatistica = true; // the box is hidden: the click does nothing
    roteiriza(b, r);
    BtnFechar(b.p);
    EXPECT_FALSE(b.p.e.ComEstatistica);
    EXPECT_FALSE(r.caretNoFim);
}
