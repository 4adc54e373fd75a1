#include "apoio/ProgramaTeste.h"
#include "relatorios/Ajuda.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

QString t(const char16_t* s) {
    return QString::fromUtf16(s);
}
const QString P = QStringLiteral("\r\n\r\n");
const QString L = QStringLiteral("\r\n");

// Page 0, paragraph by paragraph.
const char16_t* const Titulo0 = u"Iniciar Combinação";
const char16_t* const P0_0 =
    u"Esta opção fará uma combinação dos números informados na seção \"Escolha de números\" gerando um "
    u"determinado número de apostas de modo que se os números sorteados conferirem com qualquer dos números "
    u"escolhidos o acerto é garantido.";
const char16_t* const P0_1 =
    u"Fazer uma combinação de 10 números é o mesmo que você marcar uma só cartela com 10 números, mas a "
    u"combinação tem uma grande vantagem: como ela gera vários cartões, no caso de acerto o jogador receberá "
    u"um prêmio maior, pois várias cartelas poderão ser sorteadas, enquanto no outro caso o jogador terá "
    u"direito somente a um prêmio.";
const char16_t* const P0_2 =
    u"Por exemplo, se o jogador fizer uma combinação de 10 números na Mega-Sena, serão geradas 210 apostas, "
    u"e no caso de acerto as estatísticas são as seguintes:";
const char16_t* const P0_3 = u"* Acertando 4 dezenas pega 15 quadras.";
const char16_t* const P0_4 = u"* Acertando 5 dezenas pega 5 quinas e 50 quadras.";
const char16_t* const P0_5 = u"* Acertando 6 dezenas pega 1 sena, 24 quinas e 90 quadras.";

// Page 1, paragraph by paragraph.
const char16_t* const Titulo1 = u"Iniciar Fechamento";
const char16_t* const P1_0 =
    u"Esta opção fará o fechamento do jogo escolhido, por exemplo, se for escolhido o Terno, serão feitas "
    u"todas as combinações possíveis de 3 números, gerando um determinado número de apostas de modo que se "
    u"você registrar todas as cartelas geradas, com certeza absoluta você fará o terno em uma das cartelas.";
const char16_t* const P1_1 =
    u"Isso é interessante, pois dependendo do prêmio acumulado, compensa arriscar um fechamento, e até mesmo "
    u"fechando-se o duque você aumentará as probabilidades de acerto pois garantindo o acerto de 2 números, "
    u"ficarão apenas 4 números para concorrerem no concurso.";
const char16_t* const P1_2 =
    u"Como o programa gera uma quantidade menor de números por aposta, por exemplo, no caso do fechamento do "
    u"Duque para a Lotofácil serão geradas 300 cartelas com 2 números, então para cada cartela deve-se "
    u"preecher os 13 números restantes, e para isso basta selecionar a opção \"Auto-completar\" antes de "
    u"iniciar o fechamento, que o Sorvelo sorteará para você os números restantes.";

// Page 2, paragraph by paragraph.
const char16_t* const Titulo2 = u"Sortear apostas pelo computador";
const char16_t* const P2_0 =
    u"Esta opção gera um determinado número de apostas, que são sorteadas pelo Sorvelo aleatoriamente. Na "
    u"opção \"Informe a quantidade de dezenas por aposta\" deve-se informar a quantidade de números a jogar "
    u"por aposta, que no caso da Mega-Sena por exemplo, é no mínimo 6 jogos por cartela. Na opção \"Informe "
    u"a quantidade de apostas a sortear\" informe a quantidade de cartelas a jogar.";
const char16_t* const P2_1 =
    u"Você pode configurar o Sorvelo para sortear números dentro das dezenas de maior ou menor ocorrência em "
    u"uma determinada proporção, por exemplo, se for informado 50%, metade dos números sorteados estarão "
    u"dentro das dezenas de maior/menor ocorrência.";
const char16_t* const P2_2 =
    u"Pode-se também selecionar determinados números e garantir que eles constarão em todas as apostas, e "
    u"também garantir que determinados números não constem em nenhum jogo sorteado.";

// Page 3, paragraph by paragraph.
const char16_t* const Titulo3 = u"Digitar apostas";
const char16_t* const P3_0 =
    u"Utilize essa opção se você desejar inserir ou complementar o banco de apostas com jogos de seu próprio "
    u"palpite. Para isso basta informar a quantidade de jogos por cartela, e nas caixas de texto digitar os "
    u"números desejados, e em seguida pressionar \"Inserir\", que o jogo será inserido na caixa de listagem "
    u"abaixo. Ao terminar de digitar os números, pressione o botão \"Inserir no banco de apostas\" para que "
    u"todos os jogos da caixa de listagem sejam inseridos no banco de apostas.";

// Page 4, paragraph by paragraph.
const char16_t* const Titulo4 = u"Filtrar banco de apostas";
const char16_t* const P4_0 = u"No banco de apostas você pode inserir combinações, números sorteados, números "
                             u"digitados, etc. em um só local. Após ter concluído o lançamento de apostas no "
                             u"mesmo, você poderá fazer uma filtragem de acordo com vários critérios:";
const char16_t* const P4_1 =
    u"Números em sequência: se você selecionar esta caixa, serão excluídas as apostas que contiverem uma "
    u"quantidade de números em sequência maior ou igual à quantidade informada na caixa de seleção logo à "
    u"frente, onde o default é 3, ou seja, apostas que contiverem 3 ou mais números em sequência serão "
    u"eliminadas, por exemplo, 01, 05, 06, 07, 08, 20 (nesse caso temos 4 números em sequência).";
const char16_t* const P4_2 =
    u"Números na mesma linha ou coluna: se estas caixas forem selecionadas, serão eliminadas as apostas que "
    u"contiverem uma quantidade de números na mesma linha ou coluna, maior ou igual à quantidade informada "
    u"na caixa de seleção correspondente. As linhas (ou colunas) são as sequências horizontais ou verticais "
    u"de números na cartela da CEF, que no caso da Mega-Sena por exemplo, possuem 10 linhas por 6 colunas.";
const char16_t* const P4_3 =
    u"Linhas vazias, Colunas vazias: linhas ou colunas vazias são linhas ou colunas que não contém nenhum "
    u"número, e no caso destas caixas serem selecionadas, serão eliminadas as apostas que contiverem uma "
    u"quantidade de linhas ou colunas vazias maior ou igual à caixa de seleção correspondente.";
const char16_t* const P4_4 =
    u"Números pares, Números ímpares: se estas caixas forem selecionadas, serão eliminadas as apostas que "
    u"contiverem uma quantidade de números pares ou ímpares maior ou igual à quantidade informada na caixa "
    u"de seleção correspondente.";
const char16_t* const P4_5 =
    u"Outros cartões com a mesma aposta: Se esta caixa for selecionada, serão eliminadas apostas que "
    u"contiverem os mesmos números (jogos iguais), e será deixada somente uma aposta das apostas iguais.";

// Page 5, paragraph by paragraph.
const char16_t* const Titulo5 = u"Conferir banco de apostas";
const char16_t* const P5_0 =
    u"Essa opção permite o jogador conferir todos os jogos constantes no banco de apostas com o resultado "
    u"informado. Para isso deve-se informar primeiramente o resultado do concurso na seção \"Escolha de "
    u"números\" e em seguida pressionar o botão \"Conferir banco de apostas\". Altere o valor da caixa de "
    u"texto \"Mostrar somente jogos com quant. de pontos maior ou igual a X pontos\" para o valor desejado e "
    u"pressione o botão \"Iniciar conferência\". ";

// Page 6, paragraph by paragraph.
const char16_t* const Titulo6 = u"Combinações reduzidas";
const char16_t* const P6_0 =
    u"A combinação reduzida reduz a quantidade de apostas, com uma determinada garantia de acerto, desde que "
    u"os números sorteados estejam dentro dos números escolhidos. Por exemplo, vamos supor que na Mega-Sena "
    u"o jogador escolhe 11 números e deseja fazer uma combinação de 6 em 6, de modo que se o resultado da "
    u"Mega-Sena estiver contido dentro dos números escolhidos, a quina é garantida. Assim, serão geradas "
    u"apenas 121 apostas, contra 462 apostas, se o jogador tivesse feita uma combinação completa. A vantagem "
    u"deste tipo de combinação é que ela aumenta a probabilidade de acertos com uma quantidade de jogos "
    u"reduzida.";

// Page 7, paragraph by paragraph.
const char16_t* const Titulo7 = u"Fixar números";
const char16_t* const P7_0 =
    u"Essa opção permite fixar números, que serão inseridos em uma determinada combinação completa. Por "
    u"exemplo, vamos supor que na Mega-Sena você deseje uma combinação que gere apostas com 6 dezenas cada, "
    u"mas quer 3 números escolhidos por você sejam fixos em todas as apostas. Então, você fixa 3 números e "
    u"escolhe uma combinação de, por exemplo, 07 números de 3 em 3, que no total resultará em 35 apostas "
    u"baseadas em uma seleção de 10 números (07 combinados + 3 fixos).";

} // namespace
// ---- The pages' texts ----

TEST(PaginasAjuda, IniciarCombinacaoComAsLinhasDePremiosSeparadasPorUmaSoQuebra) {
    const PaginaMontada m = MontaPaginaHelp(0);
    EXPECT_EQ(m.titulo, t(Titulo0));
    EXPECT_EQ(m.texto(), t(P0_0) + P + t(P0_1) + P + t(P0_2) + P + t(P0_3) + L + t(P0_4) + L + t(P0_5) + P);
    EXPECT_EQ(m.titulo, QStringLiteral("Iniciar Combinação"));
    EXPECT_TRUE(
        m.texto().contains(QStringLiteral("seguintes:\r\n\r\n* Acertando 4 dezenas pega 15 quadras.\r\n"
                                          "* Acertando 5")));
}

TEST(PaginasAjuda, IniciarFechamento) {
    const PaginaMontada m = MontaPaginaHelp(1);
    EXPECT_EQ(m.titulo, t(Titulo1));
    EXPECT_EQ(m.texto(), t(P1_0) + P + t(P1_1) + P + t(P1_2) + P);
    // The words stand as written, "preecher" included.
    EXPECT_TRUE(m.texto().contains(QStringLiteral("deve-se preecher os 13 números")));
}

TEST(PaginasAjuda, SortearApostas) {
    const PaginaMontada m = MontaPaginaHelp(2);
    EXPECT_EQ(m.titulo, QStringLiteral("Sortear apostas pelo computador"));
    EXPECT_EQ(m.texto(), t(P2_0) + P + t(P2_1) + P + t(P2_2) + P);
}

TEST(PaginasAjuda, DigitarApostas) {
    const PaginaMontada m = MontaPaginaHelp(3);
    EXPECT_EQ(m.titulo, t(Titulo3));
    EXPECT_EQ(m.texto(), t(P3_0) + P);
}

TEST(PaginasAjuda, FiltrarBanco) {
    const PaginaMontada m = MontaPaginaHelp(4);
    EXPECT_EQ(m.titulo, t(Titulo4));
    EXPECT_EQ(m.texto(), t(P4_0) + P + t(P4_1) + P + t(P4_2) + P + t(P4_3) + P + t(P4_4) + P + t(P4_5) + P);
}

TEST(PaginasAjuda, ConferirBancoGuardaOsNomesComoOTextoOsCita) {
    const PaginaMontada m = MontaPaginaHelp(5);
    EXPECT_EQ(m.titulo, QStringLiteral("Conferir banco de apostas"));
    EXPECT_EQ(m.texto(), t(P5_0) + P);
    // Not the real captions "Conferir banco" and "Mostrar somente jogos com
    // quantidade de pontos maior ou igual a".
    EXPECT_TRUE(m.texto().contains(QStringLiteral("pressionar o botão \"Conferir banco de apostas\".")));
    EXPECT_TRUE(m.texto().contains(
        QStringLiteral("\"Mostrar somente jogos com quant. de pontos maior ou igual a X pontos\"")));
    // The blank behind the last quotation mark stays, before the line ends.
    EXPECT_TRUE(m.texto().endsWith(QStringLiteral("\"Iniciar conferência\". \r\n\r\n")));
}

TEST(PaginasAjuda, CombinacoesReduzidasTerminaNoUltimoCaractere) {
    const PaginaMontada m = MontaPaginaHelp(6);
    EXPECT_EQ(m.titulo, t(Titulo6));
    EXPECT_EQ(m.texto(), t(P6_0));
    EXPECT_TRUE(m.texto().endsWith(QStringLiteral("quantidade de jogos reduzida.")));
}

TEST(PaginasAjuda, FixarNumerosTerminaNoUltimoCaractere) {
    const PaginaMontada m = MontaPaginaHelp(7);
    EXPECT_EQ(m.titulo, QStringLiteral("Fixar números"));
    EXPECT_EQ(m.texto(), t(P7_0));
    EXPECT_TRUE(m.texto().endsWith(QStringLiteral("(07 combinados + 3 fixos).")));
}

TEST(PaginasAjuda, CadaParagrafoEUmaEscrita) {
    EXPECT_EQ(MontaPaginaHelp(0).escritas.size(), 6);
    EXPECT_EQ(MontaPaginaHelp(4).escritas.size(), 6);
    EXPECT_EQ(MontaPaginaHelp(7).escritas.size(), 1);
}

TEST(PaginasAjuda, TextoSimplesSemQuebraSolta) {
    for (int k = 0; k < QuantPaginasAjuda; ++k) {
        const QString texto = MontaPaginaHelp(k).texto();
        // Every line feed follows a carriage return and the other way round.
        EXPECT_EQ(texto.count(u'\r'), texto.count(u'\n')) << k;
        EXPECT_EQ(texto.count(u'\r'), texto.count(QStringLiteral("\r\n"))) << k;
        EXPECT_FALSE(texto.contains(u'\t')) << k;
    }
}

TEST(PaginasAjuda, TopicoForaDe0A7NaoPreencheNada) {
    for (int k : {-1, 8, 100, -32768}) {
        const PaginaMontada m = MontaPaginaHelp(k);
        EXPECT_TRUE(m.titulo.isEmpty());
        EXPECT_TRUE(m.escritas.isEmpty());
    }
}

// ---- Closing a page ----

TEST(PaginasAjuda, EscEEnterFechamAPaginaOutrasTeclasNao) {
    EXPECT_TRUE(TeclaFechaAjuda(13));
    EXPECT_TRUE(TeclaFechaAjuda(27));
    for (int tecla : {0, 8, 9, 10, 32, 65, 97, 112, 255})
        EXPECT_FALSE(TeclaFechaAjuda(tecla)) << tecla;
}

TEST(PaginasAjuda, PaginaAmarelaClaraEmVerdana) {
    EXPECT_EQ(CorFundoAjuda, rgb(255, 255, 220));
    EXPECT_STREQ(FonteAjuda, "Verdana");
    EXPECT_DOUBLE_EQ(TamanhoFonteAjuda, 9.75);
}

// ---- The topics ----

namespace {
struct Topicos : ::testing::Test, ProgramaTeste {
    int mostradas = 0;
    std::vector<int> paginas;
    Topicos() {
        d.dialogos.quando(Dialogo::Help, [this] {
            ++mostradas;
            paginas.push_back(
                MontaPaginaHelp(p.e.TopicoHelp.valor()).titulo.isEmpty() ? -1 : int(p.e.TopicoHelp.valor()));
        });
    }
};
} // namespace

TEST_F(Topicos, OsOitoTopicos) {
    const QStringList esperados{QStringLiteral("Tutorial do Sorvelo"),
                                QStringLiteral("Combinações"),
                                QStringLiteral("Fechamentos"),
                                QStringLiteral("Sorteio de apostas"),
                                QStringLiteral("Digitação de apostas"),
                                QStringLiteral("Filtragem de apostas"),
                                QStringLiteral("Conferência de apostas"),
                                QStringLiteral("Combinações reduzidas")};
    for (int i = 0; i < QuantTopicos; ++i)
        EXPECT_EQ(TextoTopico(i), esperados.at(i));
    EXPECT_EQ(falhaDe([] { TextoTopico(8); }), 340);
}

TEST_F(Topicos, CadaTopicoAbreAPaginaAnterior) {
    for (int i = 1; i < QuantTopicos; ++i)
        AbreTopico(p, i);
    EXPECT_EQ(paginas, (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(d.abridor.abertos.isEmpty());
}

TEST_F(Topicos, APagina7NaoSeAlcancaPelosTopicos) {
    for (int i = 0; i < QuantTopicos; ++i)
        AbreTopico(p, i);
    EXPECT_EQ(std::count(paginas.begin(), paginas.end(), 7), 0);
    EXPECT_EQ(mostradas, 7);
    // Only its picture on the main window opens it.
    ClicaHelpRotina(p, 7);
    EXPECT_EQ(paginas.back(), 7);
    EXPECT_EQ(MontaPaginaHelp(7).titulo, QStringLiteral("Fixar números"));
}

TEST_F(Topicos, OsNomesDosTopicosDiferemDosTitulos) {
    AbreTopico(p, 3);
    EXPECT_EQ(TextoTopico(3), QStringLiteral("Sorteio de apostas"));
    EXPECT_EQ(MontaPaginaHelp(p.e.TopicoHelp.valor()).titulo,
              QStringLiteral("Sortear apostas pelo computador"));
}

TEST_F(Topicos, TutorialAbrePeloDesktopAoLadoDoPrograma) {
    d.pasta.define(QStringLiteral("/opt/sorvelo"));
    const int16_t antes = p.e.TopicoHelp.valor();
    AbreTopico(p, 0);
    EXPECT_EQ(d.abridor.abertos, QStringList{QStringLiteral("/opt/sorvelo/Sorvelo.doc")});
    EXPECT_EQ(mostradas, 0);
    EXPECT_EQ(p.e.TopicoHelp.valor(), antes);
}

TEST_F(Topicos, TutorialQueFaltaNaoDaMensagem) {
    d.pasta.define(QStringLiteral("/pasta/que/nao/existe"));
    AbreTopico(p, 0);
    EXPECT_EQ(d.abridor.abertos.size(), 1);
    EXPECT_TRUE(d.caixa.vistas().empty());
}

TEST_F(Topicos, HelpRotinaAbreSuaPagina) {
    for (int k = 0; k < 8; ++k)
        ClicaHelpRotina(p, k);
    EXPECT_EQ(paginas, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(falhaDe([&] { ClicaHelpRotina(p, 8); }), 340);
}

// ---- The page form ----

TEST_F(Topicos, APaginaLeTopicoHelpNaCarga) {
    p.e.TopicoHelp = 2;
    Help h(p);
    EXPECT_EQ(h.LblTitulo, QStringLiteral("Sortear apostas pelo computador"));
    EXPECT_EQ(h.RTFHelp.texto(), MontaPaginaHelp(2).texto());
    // Read only at the load.
    p.e.TopicoHelp = 5;
    EXPECT_EQ(h.LblTitulo, QStringLiteral("Sortear apostas pelo computador"));
}

TEST_F(Topicos, PaginaForaDoIntervaloFicaVazia) {
    p.e.TopicoHelp = 9;
    const Help h(p);
    EXPECT_TRUE(h.LblTitulo.isEmpty());
    EXPECT_TRUE(h.RTFHelp.texto().isEmpty());
}

TEST_F(Topicos, EscEEnterFechamEOutraTeclaNao) {
    Help h(p);
    EXPECT_FALSE(h.TeclaComando(65));
    EXPECT_FALSE(h.TeclaComando(32));
    EXPECT_FALSE(h.fechada());
    EXPECT_TRUE(h.TeclaComando(27));
    EXPECT_TRUE(h.fechada());
    Help h2(p);
    EXPECT_TRUE(h2.TeclaComando(13));
    EXPECT_TRUE(h2.fechada());
}

TEST_F(Topicos, CliqueNoTextoFechaAPagina) {
    Help h(p);
    h.ClicaTexto();
    EXPECT_TRUE(h.fechada());
}
