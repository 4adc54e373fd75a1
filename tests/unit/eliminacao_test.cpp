// The random elimination of numbers: the strikes, the size of the first bet
// standing for all, the stale cells that a struck "#" pulls in, the refusal,
// the rewrite of the bank with its head, the counter and the yields.
#include "ApoioEdicao.h"
#include "edicao/Eliminar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

const QString LinhaEliminacao = Agora + QStringLiteral(": Eliminação de números\r\n");

// The elimination written plainly on the texts of the cells, for the
// comparison on random banks.
void eliminaReferencia(std::vector<std::vector<QString>>& vet, FonteAleatoria& rnd, int q) {
    int n = 0;
    while (vet[0][size_t(n)] != QStringLiteral("#"))
        ++n;
    for (auto& linha : vet) {
        int k = 0;
        while (k < q) {
            const float r = rnd.rnd();
            const int c = int(float(n) * r);
            const QString antes = linha[size_t(c)];
            linha[size_t(c)] = QStringLiteral("X");
            if (antes != QStringLiteral("X")) ++k;
        }
        int w = 0;
        for (int j = 0; j < n; ++j) {
            if (linha[size_t(j)] != QStringLiteral("X")) {
                linha[size_t(w)] = linha[size_t(j)];
                ++w;
            }
        }
        linha[size_t(w)] = QStringLiteral("#");
    }
}

std::vector<std::vector<QString>> celulas(const MatrizTexto& vet, int quant) {
    std::vector<std::vector<QString>> r(size_t(quant), std::vector<QString>(82));
    for (int l = 0; l < quant; ++l)
        for (int c = 0; c <= 81; ++c)
            r[size_t(l)][size_t(c)] = vet.valor(c, l);
    return r;
}

struct Eliminacao : ::testing::Test {
    BancoTeste b;
};

} // namespace

TEST_F(Eliminacao, DuasApostasDeSeisPerdemDoisNumerosCadaUmaEmOrdem) {
    b.apostas({"01 02 03 04 05 06", "10 20 30 40 50 60"});
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("2");
    d.BtnIniciar();
    const QStringList banco = b.banco();
    ASSERT_EQ(banco.size(), 2);
    const QStringList originais = {"01 02 03 04 05 06", "10 20 30 40 50 60"};
    for (int i = 0; i < 2; ++i) {
        const QStringList numeros = banco[i].split(u' ');
        EXPECT_EQ(numeros.size(), 4);
        QStringList ordenados = numeros;
        ordenados.sort();
        EXPECT_EQ(numeros, ordenados);
        for (const QString& n : numeros)
            EXPECT_TRUE(originais[i].split(u' ').contains(n)) << n.toStdString();
    }
    EXPECT_FALSE(d.aberto());
}

TEST_F(Eliminacao, UmSorteioIndependentePorApostaDepoisDoRandomize) {
    b.apostas({"01 02 03 04 05 06", "01 02 03 04 05 06", "01 02 03 04 05 06"});
    // Cell = integer part of 6 x r.
    for (float r : {0.0f, 0.5f, 0.99f})
        b.d.aleatorio.enfileira(r);
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("1");
    d.BtnIniciar();
    ASSERT_EQ(b.d.aleatorio.sementes.size(), 1u);
    EXPECT_EQ(b.banco()[0], QStringLiteral("02 03 04 05 06"));
    EXPECT_EQ(b.banco()[1], QStringLiteral("01 02 03 05 06"));
    EXPECT_EQ(b.banco()[2], QStringLiteral("01 02 03 04 05"));
}

TEST_F(Eliminacao, CelulaJaRiscadaSorteadaDeNovoNaoConta) {
    b.apostas({"01 02 03 04 05 06"});
    for (float r : {0.5f, 0.51f, 0.55f, 0.0f})
        b.d.aleatorio.enfileira(r); // cells 3, 3, 3, 0
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("2");
    d.BtnIniciar();
    EXPECT_EQ(b.banco(), QStringList{"02 03 05 06"});
    // Behind the new "#" the cells keep what they held: 05 06 #, with the
    // mark X where a struck cell stayed.
    EXPECT_EQ(b.p.e.VetBan.valor(4, 0), QStringLiteral("#"));
    EXPECT_EQ(b.p.e.VetBan.valor(5, 0), QStringLiteral("06"));
    EXPECT_EQ(b.p.e.VetBan.valor(6, 0), QStringLiteral("#"));
}

TEST_F(Eliminacao, QuantidadeZeroOuVaziaReescreveComCabecalhoNovo) {
    for (const char* texto : {"0", "", "ab"}) {
        BancoTeste c;
        c.p.e.DezEscolhidas = QStringLiteral("01 02 ");
        c.apostas({"01 02 03", "04 05 06"});
        const QString historico = c.p.e.Historico;
        Eliminar d(c.p);
        d.TxtQuant.Text = QString::fromUtf8(texto);
        d.BtnIniciar();
        EXPECT_EQ(c.banco(), (QStringList{"01 02 03", "04 05 06"})) << texto;
        EXPECT_EQ(c.p.e.Historico, historico + LinhaEliminacao);
        EXPECT_EQ(c.p.tela.TxtBanco.texto(), QStringLiteral("Dezenas escolhidas: 01 02 \r\n") + historico +
                                                 LinhaEliminacao +
                                                 QStringLiteral("\r\n00001)   01 02 03 \r\n"
                                                                "00002)   04 05 06 \r\n\r\n\r\n"));
        EXPECT_EQ(c.p.tela.TxtBanco.formatoEm(0), (Formato{CorLog, true}));
        const int64_t fim = c.p.tela.TxtBanco.comprimento() - 1;
        EXPECT_EQ(c.p.tela.TxtBanco.formatoEm(fim), (Formato{CorLog, true}));
        EXPECT_TRUE(c.p.tela.TxtBanco.visivel());
    }
}

TEST_F(Eliminacao, QuantidadeIgualAoTamanhoEsvaziaAsApostas) {
    b.apostas({"01 02 03", "04 05 06"});
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("3");
    d.BtnIniciar();
    EXPECT_EQ(b.banco(), (QStringList{"", ""}));
    EXPECT_EQ(b.p.e.VetBan.valor(0, 0), QStringLiteral("#"));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().contains(QStringLiteral("\r\n00001)   \r\n00002)   \r\n")));
}

TEST_F(Eliminacao, QuantidadeMaiorQueOTamanhoRecusaEGuardaALinhaDoLog) {
    b.apostas({"01 02 03", "04 05 06"});
    const QString texto = b.p.tela.TxtBanco.texto();
    const QString historico = b.p.e.Historico;
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("4");
    d.BtnIniciar();
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(
        b.d.caixa.vistas()[0].texto,
        QStringLiteral("Não é possível eliminar mais números\rdo que o total de números de cada aposta!"));
    EXPECT_EQ(b.p.e.Historico, historico + LinhaEliminacao);
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), texto);
    EXPECT_EQ(b.banco(), (QStringList{"01 02 03", "04 05 06"}));
    EXPECT_TRUE(d.aberto());
}

TEST_F(Eliminacao, BancoVazioTerminaNaFalhaDeSubscrito) {
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("1");
    const QString historico = b.p.e.Historico;
    EXPECT_EQ(falhaDe([&] { d.BtnIniciar(); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(b.p.e.Historico, historico + LinhaEliminacao);
}

TEST_F(Eliminacao, OTamanhoDaPrimeiraApostaValeParaTodas) {
    b.apostas({"01 02 03", "10 20 30 40 50 60"});
    b.d.aleatorio.enfileira(0.0f); // first bet: cell 0
    b.d.aleatorio.enfileira(0.0f); // second bet: cell 0 of the first three
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("1");
    d.BtnIniciar();
    // The longer bet is cut at n - q = 2 numbers.
    EXPECT_EQ(b.banco(), (QStringList{"02 03", "20 30"}));
}

TEST_F(Eliminacao, RiscoNoFimDeApostaCurtaPuxaCelulasAntigas) {
    b.apostas({"01 02 03 04 05 06", "10 20 30 40 50 60", "07 08"});
    // Row 2 held a longer bet before: its stale cells stay behind the "#".
    b.p.e.VetBan.define(3, 2, QStringLiteral("33"));
    b.p.e.VetBan.define(4, 2, QStringLiteral("44"));
    for (float r : {0.9f, 0.9f}) // bets 0 and 1: cell 5
        b.d.aleatorio.enfileira(r);
    b.d.aleatorio.enfileira(0.34f); // bet 2: cell 2, its "#"
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("1");
    d.BtnIniciar();
    EXPECT_EQ(b.banco(), (QStringList{"01 02 03 04 05", "10 20 30 40 50", "07 08 33 44"}));
}

TEST_F(Eliminacao, RiscoAtrasDosNumerosNaoCustaNumero) {
    b.apostas({"01 02 03 04 05 06", "07 08"});
    b.d.aleatorio.enfileira(0.0f);  // bet 0: cell 0
    b.d.aleatorio.enfileira(0.85f); // bet 1: cell 5, an empty cell behind the "#"
    Eliminar d(b.p);
    d.TxtQuant.Text = QStringLiteral("1");
    d.BtnIniciar();
    EXPECT_EQ(b.banco(), (QStringList{"02 03 04 05 06", "07 08"}));
}

TEST_F(Eliminacao, ContadorACada13ApostasComCedencia) {
    for (int i = 0; i < 30; ++i)
        b.aposta(QStringLiteral("01 02 03 04 05 06"));
    Eliminar d(b.p);
    QStringList contagens;
    d.aoContar = [&] { contagens << d.LblCont; };
    bool fechou = false;
    Ligacao vigiaFecho(d.aoFechar, [&] { fechou = true; });
    d.TxtQuant.Text = QStringLiteral("1");
    d.BtnIniciar();
    // Two in the strikes, two in the rewrite.
    EXPECT_EQ(contagens, (QStringList{"000013", "000026", "000013", "000026"}));
    EXPECT_EQ(b.d.cedencia.quantas, 4);
    EXPECT_TRUE(fechou);
}

TEST_F(Eliminacao, SegundoCliqueNaCedenciaRodaTudoDeNovoSemQuebrar) {
    for (int i = 0; i < 30; ++i)
        b.aposta(QStringLiteral("01 02 03 04 05 06"));
    Eliminar d(b.p);
    int fechamentos = 0;
    Ligacao vigiaFecho(d.aoFechar, [&] { ++fechamentos; });
    d.TxtQuant.Text = QStringLiteral("1");
    bool clicou = false;
    b.d.cedencia.aoCeder = [&](long long) {
        if (clicou) return;
        clicou = true;
        d.BtnIniciar();
    };
    d.BtnIniciar();
    EXPECT_EQ(b.p.e.Historico.count(QStringLiteral(": Eliminação de números")), 2);
    EXPECT_EQ(fechamentos, 1);
    const QStringList banco = b.banco();
    ASSERT_EQ(banco.size(), 30);
    // The first 13 bets lost one number in the outer run and one in the
    // inner; the others lost one in the inner run (which cut them at the
    // first bet's 5) and then went through the outer run with its size 6.
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(banco[i].split(u' ').size(), 4) << i;
    for (int i = 13; i < 30; ++i) {
        const int quant = int(banco[i].split(u' ', Qt::SkipEmptyParts).size());
        EXPECT_GE(quant, 3) << i;
        EXPECT_LE(quant, 5) << i;
    }
    // The outer rewrite comes last: one head, 30 lines.
    EXPECT_EQ(b.p.tela.TxtBanco.texto().count(QStringLiteral("Dezenas escolhidas: ")), 1);
    EXPECT_EQ(b.p.tela.TxtBanco.texto().count(QStringLiteral(")   ")), 30);
}

TEST_F(Eliminacao, IgualAoRitoSimplesEmBancosAleatoriosComCelulasAntigas) {
    std::mt19937 rng(99);
    auto ate = [&](int n) { return std::uniform_int_distribution<int>(0, n)(rng); };
    for (int caso = 0; caso < 400; ++caso) {
        BancoTeste c;
        const int quant = 1 + ate(20);
        for (int l = 0; l < quant; ++l) {
            QStringList numeros;
            const int tamanho = ate(9);
            for (int i = 0; i < tamanho; ++i)
                numeros << formata00(1 + ate(59));
            c.aposta(numeros.join(u' '));
            // Stale cells behind the "#", some of them struck marks.
            for (int s = tamanho + 1; s < tamanho + 1 + ate(4); ++s)
                c.p.e.VetBan.define(s, l, ate(3) == 0 ? QStringLiteral("X") : formata00(ate(99)));
        }
        auto esperado = celulas(c.p.e.VetBan, quant);
        int n = 0;
        while (esperado[0][size_t(n)] != QStringLiteral("#"))
            ++n;
        // A stale mark within the first n cells can never be struck again:
        // a quantity above the cells left to strike would never end.
        int livres = n;
        for (const auto& linha : esperado)
            livres = std::min<int>(
                livres, n - int(std::count(linha.begin(), linha.begin() + n, QStringLiteral("X"))));
        const int q = ate(livres);
        GeradorClassico gerador;
        randomizeRelogio(gerador, c.d.relogio);
        eliminaReferencia(esperado, gerador, q);
        Eliminar d(c.p);
        d.TxtQuant.Text = QString::number(q);
        d.BtnIniciar();
        ASSERT_EQ(celulas(c.p.e.VetBan, quant), esperado) << "case " << caso;
    }
}

TEST_F(Eliminacao, BotaoDoPrincipalMostraODialogoSemTestarOBanco) {
    int vezes = 0;
    const QString historico = b.p.e.Historico;
    b.d.dialogos.quando(Dialogo::Eliminar, [&] { ++vezes; });
    BtnEliminar(b.p);
    EXPECT_EQ(vezes, 1);
    EXPECT_EQ(b.p.e.Historico, historico); // the line comes with "Iniciar"
}
