#include "apoio/ProgramaTeste.h"
#include "core/Grade.h"
#include "core/Loteria.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
struct Grade : ::testing::Test, ProgramaTeste {
    void fixa(int i) {
        p.tela.ChkFixar.Value = true;
        ClicaNumero(p, i);
        p.tela.ChkFixar.Value = false;
    }
    bool livre(int i) const {
        return p.tela.Num(i).BackColor == p.e.CorFundoNum && p.tela.Num(i).ForeColor == p.e.CorTextoNum;
    }
};
} // namespace

TEST_F(Grade, CliqueMarcaDeAzulEOutroCliqueDesmarca) {
    ClicaNumero(p, 5);
    EXPECT_EQ(p.tela.Num(5).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.tela.Num(5).ForeColor, p.e.CorTextoMarcado);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("01"));
    ClicaNumero(p, 5);
    EXPECT_TRUE(livre(5));
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("00"));
}

TEST_F(Grade, ComFixarMarcadoOCliqueFixaDeVermelho) {
    p.tela.ChkFixar.Value = true;
    ClicaNumero(p, 7);
    EXPECT_EQ(p.tela.Num(7).BackColor, p.e.CorFixo);
    EXPECT_EQ(p.tela.Num(7).ForeColor, p.e.CorTextoMarcado);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("00"));
    ClicaNumero(p, 7);
    EXPECT_TRUE(livre(7));
}

TEST_F(Grade, TodasAsCemCelulasDaLotomaniaMarcadas) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    for (int i = 0; i <= 99; ++i)
        ClicaNumero(p, i);
    EXPECT_EQ(ContaNumeros(p), 100);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("100"));
}

TEST_F(Grade, NaQuinaCelula80EmBrancoMarcaECelula81NaoFazNada) {
    TrocaLoteria(p, QStringLiteral("Quina"));
    ASSERT_TRUE(p.tela.Num(80).Text.isEmpty());
    ClicaNumero(p, 80);
    EXPECT_EQ(p.tela.Num(80).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("01"));
    ClicaNumero(p, 81);
    EXPECT_TRUE(livre(81));
    EXPECT_EQ(ContaNumeros(p), 1);
}

TEST_F(Grade, CliqueAlemDasCemCelulasNaoFazNada) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    EXPECT_EQ(falhaDe([&] { ClicaNumero(p, 104); }), 0);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("00"));
}

TEST_F(Grade, FixaEMarcadaJuntasContamUmaEListamDuasEmOrdem) {
    fixa(1);           // "02"
    ClicaNumero(p, 3); // "04"
    fixa(10);          // "11"
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("01"));
    EXPECT_EQ(ContaNumeros(p), 1);
    CarregaNumeros(p);
    EXPECT_EQ(p.e.DezEscolhidas, QStringLiteral("02 04 11 "));
    EXPECT_EQ(p.e.VetNum(0), 4);
    EXPECT_EQ(p.e.VetNum(1), -1);
    EXPECT_EQ(p.e.VetFixos(0), QStringLiteral("02"));
    EXPECT_EQ(p.e.VetFixos(1), QStringLiteral("11"));
    EXPECT_EQ(p.e.VetFixos(2), QString());
}

TEST_F(Grade, CarregaNumerosPoeMenosUmEDepoisOsMarcados) {
    // Left-overs of an earlier load must go.
    for (int i = 0; i <= 100; ++i)
        p.e.VetNum(i) = 77;
    for (int i = 0; i <= 100; ++i)
        p.e.VetFixos(i) = QStringLiteral("zz");
    p.e.DezEscolhidas = QStringLiteral("velho");
    ClicaNumero(p, 59); // "60"
    ClicaNumero(p, 0);  // "01"
    fixa(20);           // "21"
    CarregaNumeros(p);
    EXPECT_EQ(p.e.VetNum(0), 1);
    EXPECT_EQ(p.e.VetNum(1), 60);
    for (int i = 2; i <= 99; ++i)
        EXPECT_EQ(p.e.VetNum(i), -1) << i;
    EXPECT_EQ(p.e.VetNum(100), 77); // entry 100 is not reset
    EXPECT_EQ(p.e.VetFixos(0), QStringLiteral("21"));
    for (int i = 1; i <= 99; ++i)
        EXPECT_EQ(p.e.VetFixos(i), QString()) << i;
    EXPECT_EQ(p.e.DezEscolhidas, QStringLiteral("01 21 60 "));
}

TEST_F(Grade, CarregaNumerosNaLotomaniaComecaEmZero) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    ClicaNumero(p, 0);
    ClicaNumero(p, 99);
    CarregaNumeros(p);
    EXPECT_EQ(p.e.VetNum(0), 0);
    EXPECT_EQ(p.e.VetNum(1), 99);
    EXPECT_EQ(p.e.DezEscolhidas, QStringLiteral("00 99 "));
}

TEST_F(Grade, CelulaEmBrancoDeIndiceNumFimMarcadaLeZero) {
    ASSERT_EQ(p.e.NumFim, 60);
    ClicaNumero(p, 60);
    EXPECT_EQ(p.tela.Num(60).BackColor, p.e.CorMarcado);
    EXPECT_EQ(ContaNumeros(p), 1);
    CarregaNumeros(p);
    EXPECT_EQ(p.e.VetNum(0), 0);
    EXPECT_EQ(p.e.DezEscolhidas, QStringLiteral("00 "));
    ClicaNumero(p, 61);
    EXPECT_EQ(ContaNumeros(p), 1);
}

TEST_F(Grade, MudarFixarNaoAlteraCelulasJaPostas) {
    ClicaNumero(p, 2);
    fixa(3);
    p.tela.ChkFixar.Value = true;
    EXPECT_EQ(p.tela.Num(2).BackColor, p.e.CorMarcado);
    p.tela.ChkFixar.Value = false;
    EXPECT_EQ(p.tela.Num(3).BackColor, p.e.CorFixo);
    // A marked cell clicked with Fixar checked becomes free, not fixed.
    p.tela.ChkFixar.Value = true;
    ClicaNumero(p, 2);
    EXPECT_TRUE(livre(2));
    ClicaNumero(p, 2);
    EXPECT_EQ(p.tela.Num(2).BackColor, p.e.CorFixo);
}

TEST_F(Grade, BtnLimparPerguntaComPadraoNaoELimpaTambemAsFixas) {
    ClicaNumero(p, 1);
    fixa(2);
    d.caixa.responde(Resposta::Sim);
    BtnLimpar(p);
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    const CaixaVista& v = d.caixa.vistas()[0];
    EXPECT_EQ(v.tipo, CaixaVista::Tipo::Pergunta);
    EXPECT_EQ(v.texto, QStringLiteral("Tem certeza que deseja apagar todos os números escolhidos?"));
    EXPECT_EQ(v.botoes, Botoes::SimNao);
    EXPECT_EQ(v.padrao, Resposta::Nao);
    for (int i = 0; i <= 99; ++i)
        EXPECT_TRUE(livre(i)) << i;
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("00"));
}

TEST_F(Grade, BtnLimparRespondidoNaoNaoMudaNada) {
    ClicaNumero(p, 1);
    fixa(2);
    d.caixa.responde(Resposta::Nao);
    BtnLimpar(p);
    EXPECT_EQ(p.tela.Num(1).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.tela.Num(2).BackColor, p.e.CorFixo);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("01"));
}

TEST_F(Grade, LimpaNumerosNaoTocaAsCelulasDe100a104) {
    p.tela.Num(102).BackColor = p.e.CorMarcado;
    LimpaNumeros(p);
    EXPECT_EQ(p.tela.Num(102).BackColor, p.e.CorMarcado);
    EXPECT_TRUE(livre(99));
}

TEST_F(Grade, ContaNumerosSoContaAsCelulasDe0a99) {
    p.tela.Num(100).BackColor = p.e.CorMarcado;
    p.tela.Num(104).BackColor = p.e.CorMarcado;
    EXPECT_EQ(ContaNumeros(p), 0);
}

TEST_F(Grade, CelulaInexistenteEhFalha340) {
    EXPECT_EQ(falhaDe([&] { (void)p.tela.Num(105); }), erro::ElementoControle);
    EXPECT_EQ(falhaDe([&] { (void)p.tela.Num(-1); }), erro::ElementoControle);
    EXPECT_EQ(falhaDe([&] { MarcaNumero(p, 105); }), erro::ElementoControle);
    EXPECT_EQ(falhaDe([&] { DesmarcaNumero(p, -1); }), erro::ElementoControle);
    const Programa& cp = p;
    EXPECT_EQ(falhaDe([&] { (void)cp.tela.Num(105); }), erro::ElementoControle);
    EXPECT_EQ(falhaDe([&] { (void)p.tela.Num(104); }), 0);
}

TEST_F(Grade, CelulasDaCargaComecamLivres) {
    for (int i = 0; i < TelaPrincipal::QuantCelulas; ++i)
        EXPECT_TRUE(livre(i)) << i;
}

TEST_F(Grade, SpinEscreveSeuValorComDoisAlgarismos) {
    Spin s;
    CampoTexto campo;
    s.Value = 7;
    MudaSpin(s, campo);
    EXPECT_EQ(campo.Text, QStringLiteral("07"));
    s.Value = 100;
    MudaSpin(s, campo);
    EXPECT_EQ(campo.Text, QStringLiteral("100"));
    s.Value = 0;
    MudaSpin(s, campo);
    EXPECT_EQ(campo.Text, QStringLiteral("00"));
}

TEST_F(Grade, LixoEmTxtDezApSegueOValorNumerico) {
    // The tools read the numbers per bet through the numeric value of the text.
    p.tela.TxtDezAp.Text = QStringLiteral("7x");
    p.tela.TxtDezAp2.Text = QStringLiteral("abc");
    EXPECT_EQ(Int16::de(valorNumerico(p.tela.TxtDezAp.Text)), 7);
    EXPECT_EQ(Int16::de(valorNumerico(p.tela.TxtDezAp2.Text)), 0);
    p.tela.TxtDezAp.Text = QStringLiteral(" 1 5");
    EXPECT_EQ(Int16::de(valorNumerico(p.tela.TxtDezAp.Text)), 15);
    p.tela.TxtDezAp2.Text = QStringLiteral("99999");
    EXPECT_EQ(falhaDe([&] { (void)Int16::de(valorNumerico(p.tela.TxtDezAp2.Text)); }), erro::Estouro);
}
