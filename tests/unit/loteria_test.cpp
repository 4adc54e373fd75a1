#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
struct Loteria : ::testing::Test, ProgramaTeste {};

// One bet in the bank: BancoAlterado becomes true through the change event.
void umaAposta(Programa& p) {
    ClicaNumero(p, 0);
    InsereApostaMarcada(p);
}

int menusMarcados(const TelaPrincipal& t) {
    return int(t.MenuMegaSena) + int(t.MenuDuplaSena) + int(t.MenuQuina) + int(t.MenuLotomania) +
           int(t.MenuLotoFacil);
}
} // namespace

// ---- The start ----

TEST_F(Loteria, ACargaPoeAMegaSenaComOMenuMarcado) {
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.tela.TxtLoteria.Text, QStringLiteral("Mega-Sena"));
    EXPECT_TRUE(p.tela.MenuMegaSena);
    EXPECT_EQ(menusMarcados(p.tela), 1);
    EXPECT_EQ(p.e.ValorAposta, 4.5);
    EXPECT_EQ(p.e.FimLinha, QStringLiteral("\r\n"));
    EXPECT_EQ(p.e.CorFundoNum, rgb(0, 64, 0));
    EXPECT_EQ(p.e.CorTextoNum, rgb(0, 255, 0));
    EXPECT_EQ(p.e.CorMarcado, rgb(0, 0, 200));
    EXPECT_EQ(p.e.CorTextoMarcado, rgb(255, 255, 255));
    EXPECT_EQ(p.e.CorFixo, rgb(200, 0, 0));
    EXPECT_EQ(p.e.CorFundoNum, 16384u);
    EXPECT_EQ(p.e.CorTextoNum, 65280u);
    EXPECT_TRUE(d.caixa.vistas().empty());
}

// ---- The game table, game by game ----

struct Esperado {
    const char16_t* nome;
    const char16_t* maiusculo;
    int numIni, numFim, dezMin;
    const char16_t* dezAp;
    int spin;
    const char16_t* valAp;
    double valor;
    const char16_t* fecha; // after a switch from Mega-Sena
    const char16_t* garantia;
    const char16_t* acertar;
    bool fechar;
    int linhasCartela;
};

const Esperado tabela[] = {
    {u"Mega-Sena", u"MEGA-SENA", 1, 60, 6, u"06", 6, u"4,50", 4.5, u"Quina", u"Quina", u"5", true, 6},
    {u"Dupla Sena", u"DUPLA SENA", 1, 50, 6, u"06", 6, u"2,50", 2.5, u"Quina", u"Quina", u"5", true, 5},
    {u"Quina", u"QUINA", 1, 80, 5, u"05", 5, u"2,00", 2.0, u"Quadra", u"Quadra", u"4", true, 8},
    {u"Lotomania", u"LOTOMANIA", 0, 99, 20, u"50", 50, u"2,50", 2.5, u"Quina", u"Quina", u"5", false, 10},
    {u"Lotofácil", u"LOTOFÁCIL", 1, 25, 15, u"15", 15, u"2,50", 2.5, u"7", u"13", u"13", true, 0},
};

class TabelaDeJogos : public ::testing::TestWithParam<Esperado>, public ProgramaTeste {};

TEST_P(TabelaDeJogos, TrocaPoeTodosOsValoresDoJogo) {
    const Esperado& j = GetParam();
    const QString nome = QString::fromUtf16(j.nome);
    TrocaLoteria(p, nome);
    const auto& t = p.tela;
    EXPECT_EQ(p.e.NomeLoteria, QString::fromUtf16(j.maiusculo));
    EXPECT_EQ(p.e.NumIni, j.numIni);
    EXPECT_EQ(p.e.NumFim, j.numFim);
    EXPECT_EQ(p.e.DezMin, j.dezMin);
    EXPECT_EQ(t.TxtDezAp.Text, QString::fromUtf16(j.dezAp));
    EXPECT_EQ(t.TxtDezAp2.Text, QString::fromUtf16(j.dezAp));
    EXPECT_EQ(t.SpbDezAp.Value, j.spin);
    EXPECT_EQ(t.SpbDezAp2.Value, j.spin);
    EXPECT_EQ(t.TxtValAp.Text, QString::fromUtf16(j.valAp));
    EXPECT_EQ(p.e.ValorAposta, j.valor);
    EXPECT_EQ(t.CmbFecha.Text, QString::fromUtf16(j.fecha));
    EXPECT_EQ(t.CmbGarantia.Text, QString::fromUtf16(j.garantia));
    EXPECT_EQ(t.CmbAcertar.Text, QString::fromUtf16(j.acertar));
    EXPECT_EQ(t.BtnFecharEnabled, j.fechar);
    EXPECT_EQ(t.CmbFecha.Enabled, j.fechar);
    EXPECT_EQ(t.CmbGarantia.Enabled, j.fechar);
    EXPECT_EQ(t.TxtLoteria.Text, nome);
    EXPECT_EQ(t.TxtEscolhidos.Text, QStringLiteral("00"));
    // Cell i shows NumIni + i with two digits; the rest are blank.
    const int quant = j.numFim - j.numIni + 1;
    for (int i = 0; i < quant; ++i)
        EXPECT_EQ(t.Num(i).Text, formata00(j.numIni + i)) << i;
    for (int i = quant; i < TelaPrincipal::QuantCelulas; ++i)
        EXPECT_TRUE(t.Num(i).Text.isEmpty()) << i;
    // The table row itself.
    const Jogo* jogo = jogoPorNome(nome);
    ASSERT_NE(jogo, nullptr);
    EXPECT_EQ(jogo->linhasCartela, j.linhasCartela);
    EXPECT_EQ(jogo->nome, nome);
    EXPECT_EQ(jogoPorNome(QString::fromUtf16(j.maiusculo)), jogo);
}

TEST_P(TabelaDeJogos, MenuDoJogoNovoEhOUnicoMarcado) {
    const Esperado& j = GetParam();
    TrocaLoteria(p, QString::fromUtf16(j.nome));
    const auto& t = p.tela;
    EXPECT_EQ(menusMarcados(t), 1);
    const QString nome = QString::fromUtf16(j.nome);
    EXPECT_EQ(t.MenuMegaSena, nome == QStringLiteral("Mega-Sena"));
    EXPECT_EQ(t.MenuDuplaSena, nome == QStringLiteral("Dupla Sena"));
    EXPECT_EQ(t.MenuQuina, nome == QStringLiteral("Quina"));
    EXPECT_EQ(t.MenuLotomania, nome == QStringLiteral("Lotomania"));
    EXPECT_EQ(t.MenuLotoFacil, nome == QStringLiteral("Lotofácil"));
}

TEST_P(TabelaDeJogos, HistoricoDepoisDaTrocaTemSoALinhaDoEsvaziamento) {
    TrocaLoteria(p, QString::fromUtf16(GetParam().nome));
    EXPECT_EQ(p.e.Historico, linhaHistoricoLimpou());
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Jogos, TabelaDeJogos, ::testing::ValuesIn(tabela));

TEST_F(Loteria, TabelaTemOsCincoJogosNaOrdemDosMenus) {
    ASSERT_EQ(jogos().size(), 5u);
    EXPECT_EQ(jogos()[0].nome, QStringLiteral("Mega-Sena"));
    EXPECT_EQ(jogos()[1].nome, QStringLiteral("Dupla Sena"));
    EXPECT_EQ(jogos()[2].nome, QStringLiteral("Quina"));
    EXPECT_EQ(jogos()[3].nome, QStringLiteral("Lotomania"));
    EXPECT_EQ(jogos()[4].nome, QStringLiteral("Lotofácil"));
    EXPECT_EQ(jogoPorNome(QStringLiteral("Loteca")), nullptr);
}

// ---- Switching games ----

TEST_F(Loteria, QuinaParaLotofacilComBancoInalteradoNaoPergunta) {
    TrocaLoteria(p, QStringLiteral("Quina"));
    ASSERT_TRUE(p.e.NomeArquivo.isEmpty());
    TrocaLoteria(p, QStringLiteral("Lotofácil"));
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("LOTOFÁCIL"));
    EXPECT_EQ(p.tela.TxtDezAp.Text, QStringLiteral("15"));
    EXPECT_EQ(p.tela.CmbGarantia.Text, QStringLiteral("13"));
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("13"));
    EXPECT_EQ(p.tela.CmbFecha.Text, QStringLiteral("7"));
}

TEST_F(Loteria, LotomaniaDeixaOsCombosDoJogoAnteriorDesabilitados) {
    TrocaLoteria(p, QStringLiteral("Quina"));
    p.tela.CmbAcertar.Text = QStringLiteral("9");
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    EXPECT_EQ(p.tela.CmbFecha.Text, QStringLiteral("Quadra"));
    EXPECT_EQ(p.tela.CmbGarantia.Text, QStringLiteral("Quadra"));
    EXPECT_FALSE(p.tela.CmbFecha.Enabled);
    EXPECT_FALSE(p.tela.CmbGarantia.Enabled);
    EXPECT_FALSE(p.tela.BtnFecharEnabled);
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("4"));
}

TEST_F(Loteria, LotomaniaDepoisDeLotofacilDerivaAcertarDoTreze) {
    TrocaLoteria(p, QStringLiteral("Lotofácil"));
    p.tela.CmbAcertar.Text = QStringLiteral("x");
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    EXPECT_EQ(p.tela.CmbFecha.Text, QStringLiteral("7"));
    EXPECT_EQ(p.tela.CmbGarantia.Text, QStringLiteral("13"));
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("13"));
}

TEST_F(Loteria, SaindoDaLotomaniaOsCombosVoltamHabilitados) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    TrocaLoteria(p, QStringLiteral("Dupla Sena"));
    EXPECT_TRUE(p.tela.CmbFecha.Enabled);
    EXPECT_TRUE(p.tela.CmbGarantia.Enabled);
    EXPECT_TRUE(p.tela.BtnFecharEnabled);
}

TEST_F(Loteria, DepoisDaTrocaCelulasAcimaDoUltimoNumeroFicamEmBrancoEDesmarcadas) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    for (int i = 0; i <= 99; ++i)
        ClicaNumero(p, i);
    TrocaLoteria(p, QStringLiteral("Lotofácil"));
    for (int i = 25; i < TelaPrincipal::QuantCelulas; ++i) {
        EXPECT_TRUE(p.tela.Num(i).Text.isEmpty()) << i;
        EXPECT_EQ(p.tela.Num(i).BackColor, p.e.CorFundoNum) << i;
        EXPECT_EQ(p.tela.Num(i).ForeColor, p.e.CorTextoNum) << i;
    }
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(p.tela.Num(i).BackColor, p.e.CorFundoNum) << i;
}

TEST_F(Loteria, TrocaLimpaGradeEBanco) {
    umaAposta(p);
    p.e.BancoAlterado = false; // as after a save
    ClicaNumero(p, 3);
    TrocaLoteria(p, QStringLiteral("Quina"));
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(ContaNumeros(p), 0);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("00"));
}

TEST_F(Loteria, TrocaParaOMesmoJogoFazOMesmo) {
    ClicaNumero(p, 3);
    TrocaLoteria(p, QStringLiteral("Mega-Sena"));
    EXPECT_EQ(ContaNumeros(p), 0);
    EXPECT_EQ(p.e.Historico, linhaHistoricoLimpou());
    EXPECT_TRUE(p.tela.MenuMegaSena);
}

TEST_F(Loteria, TrocaEsqueceONomeDoArquivo) {
    p.e.NomeArquivo = QStringLiteral("/tmp/apostas.Apo");
    TrocaLoteria(p, QStringLiteral("Quina"));
    EXPECT_TRUE(p.e.NomeArquivo.isEmpty());
}

TEST_F(Loteria, CancelarNaPerguntaDeSalvarMantemOJogoMasPerdeONomeDoArquivo) {
    ClicaNumero(p, 4);
    umaAposta(p);
    ASSERT_TRUE(p.e.BancoAlterado);
    const QString textoBanco = p.tela.TxtBanco.texto();
    const QString historico = p.e.Historico;
    p.e.NomeArquivo = QStringLiteral("/tmp/apostas.Apo");
    d.caixa.responde(Resposta::Cancelar);
    TrocaLoteria(p, QStringLiteral("Quina"));
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    EXPECT_EQ(d.caixa.vistas()[0].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(d.caixa.vistas()[0].botoes, Botoes::SimNaoCancelar);
    EXPECT_TRUE(p.e.NomeArquivo.isEmpty());
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.e.NumFim, 60);
    EXPECT_TRUE(p.tela.MenuMegaSena);
    EXPECT_FALSE(p.tela.MenuQuina);
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(p.tela.TxtBanco.texto(), textoBanco);
    EXPECT_EQ(p.e.Historico, historico);
    EXPECT_EQ(p.tela.Num(0).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.tela.Num(4).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("02"));
}

TEST_F(Loteria, SimNaPerguntaDeSalvarSalvaETroca) {
    umaAposta(p);
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Sim);
    TrocaLoteria(p, QStringLiteral("Quina"));
    EXPECT_EQ(salvamento.vezes(), 1);
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("QUINA"));
    EXPECT_EQ(p.e.QuantBan, 0);
}

TEST_F(Loteria, NaoNaPerguntaDeSalvarTrocaSemSalvar) {
    umaAposta(p);
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Nao);
    TrocaLoteria(p, QStringLiteral("Quina"));
    EXPECT_EQ(salvamento.vezes(), 0);
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("QUINA"));
    EXPECT_TRUE(p.tela.MenuQuina);
}

// ---- ConfiguraLoteria ----

TEST_F(Loteria, NomeForaDaTabelaDaZeroAZeroUmaCelulaEMantemDezMin) {
    TrocaLoteria(p, QStringLiteral("Quina"));
    ASSERT_EQ(p.e.DezMin, 5);
    ConfiguraLoteria(p, QStringLiteral("LOTECA"));
    EXPECT_EQ(p.e.NumIni, 0);
    EXPECT_EQ(p.e.NumFim, 0);
    EXPECT_EQ(p.e.DezMin, 5);
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("LOTECA"));
    EXPECT_EQ(p.tela.TxtLoteria.Text, QStringLiteral("LOTECA"));
    EXPECT_EQ(p.tela.Num(0).Text, QStringLiteral("00"));
    for (int i = 1; i < TelaPrincipal::QuantCelulas; ++i)
        EXPECT_TRUE(p.tela.Num(i).Text.isEmpty()) << i;
}

TEST_F(Loteria, NomeEmMaiusculasDeUmArquivoNaoMexeNosValoresDaTela) {
    TrocaLoteria(p, QStringLiteral("Quina"));
    ConfiguraLoteria(p, QStringLiteral("LOTOMANIA"));
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("LOTOMANIA"));
    EXPECT_EQ(p.e.NumIni, 0);
    EXPECT_EQ(p.e.NumFim, 99);
    EXPECT_EQ(p.e.DezMin, 20);
    EXPECT_EQ(p.tela.Num(0).Text, QStringLiteral("00"));
    EXPECT_EQ(p.tela.Num(99).Text, QStringLiteral("99"));
    EXPECT_EQ(p.tela.TxtLoteria.Text, QStringLiteral("LOTOMANIA"));
    // The values of the rows TxtDezAp to BtnFechar stay as Quina left them,
    // and the combos are enabled by the step before.
    EXPECT_EQ(p.tela.TxtDezAp.Text, QStringLiteral("05"));
    EXPECT_EQ(p.tela.TxtValAp.Text, QStringLiteral("2,00"));
    EXPECT_EQ(p.tela.CmbFecha.Text, QStringLiteral("Quadra"));
    EXPECT_TRUE(p.tela.CmbFecha.Enabled);
    EXPECT_TRUE(p.tela.CmbGarantia.Enabled);
    EXPECT_TRUE(p.tela.BtnFecharEnabled);
}

TEST_F(Loteria, NomeEmMaiusculasComAcentoCasaComLotofacil) {
    ConfiguraLoteria(p, QStringLiteral("LOTOFÁCIL"));
    EXPECT_EQ(p.e.NumFim, 25);
    EXPECT_EQ(p.e.DezMin, 15);
    ConfiguraLoteria(p, QStringLiteral("dupla sena"));
    EXPECT_EQ(p.e.NomeLoteria, QStringLiteral("DUPLA SENA"));
    EXPECT_EQ(p.e.NumFim, 50);
}

TEST_F(Loteria, ConfiguraLoteriaLimpaAGradeENaoOBanco) {
    ClicaNumero(p, 2);
    umaAposta(p);
    ConfiguraLoteria(p, QStringLiteral("Quina"));
    EXPECT_EQ(ContaNumeros(p), 0);
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_FALSE(p.tela.TxtBanco.texto().isEmpty());
}

// ---- The price and its text ----

TEST_F(Loteria, LixoEmTxtValApSegueOValorNumerico) {
    p.tela.TxtValAp.Text = QStringLiteral("abc");
    ConfiguraLoteria(p, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.e.ValorAposta, 0.0);
    p.tela.TxtValAp.Text = QStringLiteral("4,5x");
    ConfiguraLoteria(p, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.e.ValorAposta, 4.5);
    p.tela.TxtValAp.Text = QStringLiteral("1.000,50");
    ConfiguraLoteria(p, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.e.ValorAposta, 1000.5);
    p.tela.TxtValAp.Text = QString();
    ConfiguraLoteria(p, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.e.ValorAposta, 0.0);
    p.tela.TxtValAp.Text = QStringLiteral(" 3 , 2 5");
    ConfiguraLoteria(p, QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(p.e.ValorAposta, 3.25);
}

TEST_F(Loteria, EdicaoDeTxtValApSoValeNaProximaConfiguracao) {
    p.tela.TxtValAp.Text = QStringLiteral("9,00");
    EXPECT_EQ(p.e.ValorAposta, 4.5);
    ConfiguraLoteria(p, QStringLiteral("Mega-Sena"));
    EXPECT_EQ(p.tela.TxtValAp.Text, QStringLiteral("4,50"));
    EXPECT_EQ(p.e.ValorAposta, 4.5);
}

TEST(RetValorNumerico, FormaBrasileiraLidaComoNumero) {
    EXPECT_EQ(RetValorNumerico(QStringLiteral("4,50"), false), QStringLiteral("4.50"));
    EXPECT_EQ(valorNumerico(RetValorNumerico(QStringLiteral("4,50"), false)), 4.5);
    EXPECT_EQ(RetValorNumerico(QStringLiteral("1.000,00"), false), QStringLiteral("1000.00"));
    EXPECT_EQ(valorNumerico(RetValorNumerico(QStringLiteral("1.000,00"), false)), 1000.0);
    EXPECT_EQ(RetValorNumerico(QStringLiteral("1.234,50"), false), QStringLiteral("1234.50"));
    EXPECT_EQ(RetValorNumerico(QString(), false), QString());
    EXPECT_EQ(valorNumerico(RetValorNumerico(QString(), false)), 0.0);
}

TEST(RetValorNumerico, SemAparaNaoTiraZeros) {
    EXPECT_EQ(RetValorNumerico(QStringLiteral("100"), false), QStringLiteral("100"));
    EXPECT_EQ(RetValorNumerico(QStringLiteral(" 4,00 "), false), QStringLiteral("4.00"));
}

TEST(RetValorNumerico, AparaTiraZerosFinaisEOPonto) {
    EXPECT_EQ(RetValorNumerico(QStringLiteral("4,50"), true), QStringLiteral("4.5"));
    EXPECT_EQ(RetValorNumerico(QStringLiteral("1.000,00"), true), QStringLiteral("1000"));
    EXPECT_EQ(RetValorNumerico(QStringLiteral("4,00"), true), QStringLiteral("4"));
}

TEST(RetValorNumerico, PontoDeMilharSaiAntesDeAparar) {
    // The point is dropped first, so an already converted "4.50" trims as "450".
    EXPECT_EQ(RetValorNumerico(QStringLiteral("4.50"), true), QStringLiteral("45"));
    EXPECT_EQ(RetValorNumerico(QStringLiteral("4.00"), true), QStringLiteral("4"));
}

TEST(RetValorNumerico, AparaComeOsZerosDoInteiroSemPonto) {
    EXPECT_EQ(RetValorNumerico(QStringLiteral("100"), true), QStringLiteral("1"));
    EXPECT_EQ(RetValorNumerico(QStringLiteral("0"), true), QString());
    EXPECT_EQ(RetValorNumerico(QStringLiteral("10,5"), true), QStringLiteral("10.5"));
}

// ---- The guarantee words ----

TEST_F(Loteria, PalavrasDeGarantiaViramNumeros) {
    EXPECT_EQ(valorGarantia(QStringLiteral("Duque")), 2);
    EXPECT_EQ(valorGarantia(QStringLiteral("Terno")), 3);
    EXPECT_EQ(valorGarantia(QStringLiteral("Quadra")), 4);
    EXPECT_EQ(valorGarantia(QStringLiteral("Quina")), 5);
    EXPECT_EQ(valorGarantia(QStringLiteral("Sena")), 6);
    EXPECT_EQ(valorGarantia(QStringLiteral("13")), 13);
    EXPECT_EQ(valorGarantia(QStringLiteral("7")), 7);
    EXPECT_EQ(valorGarantia(QStringLiteral("6")), 0);
}

TEST_F(Loteria, AcertarDerivadoDaGarantia) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {{u"Duque", u"2"},  {u"Terno", u"3"},
                                                                 {u"Quadra", u"4"}, {u"Quina", u"5"},
                                                                 {u"Sena", u"6"},   {u"14", u"14"}};
    for (const auto& [garantia, acertar] : casos) {
        p.tela.CmbAcertar.Text = QStringLiteral("?");
        p.tela.CmbGarantia.Text = QString::fromUtf16(garantia);
        DerivaAcertar(p);
        EXPECT_EQ(p.tela.CmbAcertar.Text, QString::fromUtf16(acertar));
    }
    // A text that is neither a word nor 7 or more leaves CmbAcertar alone.
    p.tela.CmbAcertar.Text = QStringLiteral("?");
    p.tela.CmbGarantia.Text = QStringLiteral("3");
    DerivaAcertar(p);
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("?"));
}

TEST_F(Loteria, DesmarcaMenusTiraTodasAsMarcas) {
    p.tela.MenuQuina = p.tela.MenuLotoFacil = true;
    DesmarcaMenus(p);
    EXPECT_EQ(menusMarcados(p.tela), 0);
}
