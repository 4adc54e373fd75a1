// The insertion of a generated combination into the bank: VetBan and the
// coloured lines of TxtBanco, fixed numbers, auto-completion, the counter,
// the yields and the cancel.
#include "apoio/Combinacao.h"

#include <gtest/gtest.h>

#include <set>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
// Loads the grid and generates its numbers taken k, as the dialog does.
void gera(ProgramaTeste& b, int k, bool autoCompletar = false) {
    auto& e = b.p.e;
    CarregaNumeros(b.p);
    e.QuantEscolhidos = ContaNumeros(b.p);
    e.DezAposta = Int16(int16_t(k));
    e.TotalApostas = ArredondaApostas(RetQuantCombinacoes(e.QuantEscolhidos, e.DezAposta));
    module2(b.p).AutoCompletar = autoCompletar ? 1 : 0;
    IniciaProgresso(b.p, module2(b.p), e.TotalApostas);
    ASSERT_TRUE(CombinaVetor(b.p, module2(b.p), e.QuantEscolhidos, e.DezAposta, e.TotalApostas));
    b.d.cedencia.quantas = 0;
}

QStringList numeros(const QString& linhaAposta) {
    return linhaAposta.mid(9).split(u' ', Qt::SkipEmptyParts);
}
} // namespace

TEST(InsereVetor, ZeroApostasDaCabecalhoSemApostaEFim) {
    ProgramaTeste b;
    b.marcaFaixa(1, 3);
    gera(b, 6);
    ASSERT_EQ(b.p.e.TotalApostas, 0);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QStringLiteral("Dezenas escolhidas: 01 02 03 \r\n\r\n\r\n"));
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(dlg.LblTotal, QStringLiteral("de  0"));
    for (const Trecho& t : b.p.tela.TxtBanco.trechos()) {
        EXPECT_EQ(t.formato.cor, CorLog);
        EXPECT_TRUE(t.formato.negrito);
    }
}

TEST(InsereVetor, ApostasEmOrdemCrescenteNumeradasDeUm) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    gera(b, 3);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const QStringList esperadas = {"00001)   01 02 03 ", "00002)   01 02 04 ", "00003)   01 02 05 ",
                                   "00004)   01 03 04 ", "00005)   01 03 05 ", "00006)   01 04 05 ",
                                   "00007)   02 03 04 ", "00008)   02 03 05 ", "00009)   02 04 05 ",
                                   "00010)   03 04 05 "};
    EXPECT_EQ(b.apostasBanco(), esperadas);
    EXPECT_EQ(b.p.e.QuantBan, 10);
    for (int r = 0; r < 10; ++r)
        EXPECT_EQ(b.linhaVetBan(r), esperadas[r].mid(9));
    EXPECT_EQ(b.p.e.VetBan.valor(3, 0), QStringLiteral("#"));
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 \r\n\r\n") +
                                             esperadas.join(QStringLiteral("\r\n")) +
                                             QStringLiteral("\r\n\r\n"));
}

TEST(InsereVetor, CoresDasLinhas) {
    ProgramaTeste b;
    b.marcaFaixa(1, 4);
    gera(b, 3);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const DocumentoRico& doc = b.p.tela.TxtBanco;
    const int64_t inicio = doc.texto().indexOf(QStringLiteral("00001)"));
    ASSERT_GT(inicio, 0);
    EXPECT_EQ(doc.formatoEm(0), (Formato{CorLog, true}));
    EXPECT_EQ(doc.formatoEm(inicio), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(doc.formatoEm(inicio + 5), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(doc.formatoEm(inicio + 6), (Formato{CorAposta, false}));
    EXPECT_EQ(doc.formatoEm(inicio + 19), (Formato{CorAposta, false})) << "a quebra de linha também é azul";
    EXPECT_EQ(doc.formatoEm(doc.comprimento() - 1), (Formato{CorLog, true}));
}

TEST(InsereVetor, TrezeApostasMudamOContadorUmaVez) {
    ProgramaTeste b;
    b.marcaFaixa(1, 13);
    gera(b, 12);
    InsereVetor dlg(b.p, b.p.module2);
    QStringList vistos;
    dlg.aoContar.liga([&](const QString& t) { vistos << t; });
    dlg.ativa();
    EXPECT_EQ(vistos, QStringList{QStringLiteral(" 13")});
    EXPECT_EQ(dlg.LblCont, QStringLiteral(" 13"));
    EXPECT_EQ(b.d.cedencia.quantas, 1);
}

TEST(InsereVetor, DozeApostasDeixamOContadorEmZero) {
    ProgramaTeste b;
    b.marcaFaixa(1, 12);
    gera(b, 11);
    InsereVetor dlg(b.p, b.p.module2);
    int vezes = 0;
    dlg.aoContar.liga([&](const QString&) { ++vezes; });
    dlg.ativa();
    EXPECT_EQ(dlg.LblCont, QStringLiteral("0"));
    EXPECT_EQ(vezes, 0);
    EXPECT_EQ(b.d.cedencia.quantas, 0);
    EXPECT_EQ(b.p.e.QuantBan, 12);
}

TEST(InsereVetor, RotulosProntosAntesDaPrimeiraAposta) {
    ProgramaTeste b;
    b.marcaFaixa(1, 8);
    gera(b, 6); // 28 bets
    InsereVetor dlg(b.p, b.p.module2);
    QStringList vistos;
    int apostasAntes = -1;
    dlg.aoMostrarRotulos.liga([&] {
        vistos << dlg.LblCont << dlg.LblTotal;
        apostasAntes = b.p.e.QuantBan.valor();
    });
    dlg.ativa();
    EXPECT_EQ(vistos, (QStringList{QStringLiteral("0"), QStringLiteral("de  28")}));
    EXPECT_EQ(apostasAntes, 0) << "the labels come before the run";
    EXPECT_EQ(b.p.e.QuantBan, 28);
}

TEST(InsereVetor, CedeACadaTrezeComOBancoEscondido) {
    ProgramaTeste b;
    b.marcaFaixa(1, 8);
    gera(b, 5); // 56 bets
    InsereVetor dlg(b.p, b.p.module2);
    std::vector<int> contagens;
    b.d.cedencia.aoCeder = [&](long long) {
        EXPECT_FALSE(b.p.tela.TxtBanco.visivel());
        contagens.push_back(b.p.e.QuantBan.valor());
    };
    dlg.ativa();
    EXPECT_EQ(contagens, (std::vector<int>{13, 26, 39, 52}));
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
    EXPECT_EQ(dlg.LblTotal, QStringLiteral("de  56"));
    EXPECT_EQ(dlg.LblCont, QStringLiteral(" 52"));
}

TEST(InsereVetor, FixosEntramEmCadaApostaEmOrdem) {
    ProgramaTeste b;
    b.marca({1, 2, 3, 4, 6, 7});
    b.fixa({5, 10});
    gera(b, 6);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   01 02 03 04 05 06 07 10 ")});
    EXPECT_EQ(b.linhaVetBan(0), QStringLiteral("01 02 03 04 05 06 07 10 "));
    EXPECT_EQ(b.p.e.VetBan.valor(8, 0), QStringLiteral("#"));
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().startsWith(
        QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 07 10 \r\n")));
}

TEST(InsereVetor, FixosSomamAoTamanhoDeCadaAposta) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    b.fixa({30, 60});
    gera(b, 6);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 7);
    for (const QString& a : apostas) {
        const QStringList n = numeros(a);
        EXPECT_EQ(n.size(), 8);
        EXPECT_EQ(n.mid(6), (QStringList{"30", "60"}));
    }
}

TEST(InsereVetor, AutoCompletarNaMegaAceitaOZeroComo00) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    gera(b, 5, true);
    b.d.aleatorio.enfileira(0.0f);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   00 01 02 03 04 05 ")});
    EXPECT_EQ(b.p.e.VetBan.valor(0, 0), QStringLiteral("00"));
    EXPECT_EQ(b.p.e.VetBan.valor(6, 0), QStringLiteral("#"));
}

TEST(InsereVetor, AutoCompletarSorteiaDeZeroAoMaiorSemRepetir) {
    ProgramaTeste b;
    b.marca({10, 20, 30, 40});
    gera(b, 4, true);
    // 61 * r: 0.5 gives 30 (already in the bet, drawn again), 0.99999 gives
    // 60, 0.2 gives 12.
    b.d.aleatorio.enfileira(0.5f);
    b.d.aleatorio.enfileira(0.99999f);
    b.d.aleatorio.enfileira(0.2f);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    EXPECT_EQ(b.apostasBanco(), QStringList{QStringLiteral("00001)   10 12 20 30 40 60 ")});
}

TEST(InsereVetor, SementeDoRelogioNaCarga) {
    ProgramaTeste b;
    InsereVetor dlg(b.p, b.p.module2);
    ASSERT_EQ(b.d.aleatorio.sementes.size(), 1u);
    EXPECT_EQ(b.d.aleatorio.sementes[0], 14 * 3600 + 5 * 60 + 9);
    EXPECT_EQ(dlg.TamanhoJogo, 6);
    EXPECT_EQ(dlg.MaiorNumero, 60);
}

TEST(InsereVetor, TamanhoDoJogoPorLoteria) {
    EXPECT_EQ(TamanhoJogoDe(QStringLiteral("MEGA-SENA")), 6);
    EXPECT_EQ(TamanhoJogoDe(QStringLiteral("DUPLA SENA")), 6);
    EXPECT_EQ(TamanhoJogoDe(QStringLiteral("QUINA")), 5);
    EXPECT_EQ(TamanhoJogoDe(QStringLiteral("LOTOMANIA")), 50);
    EXPECT_EQ(TamanhoJogoDe(QStringLiteral("LOTOFÁCIL")), 15);
}

TEST(InsereVetor, LotofacilRecusaOZero) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.marca({1, 2});
    gera(b, 2, true);
    b.d.aleatorio.enfileira(0.0f);
    InsereVetor dlg(b.p, b.p.module2);
    EXPECT_TRUE(dlg.ExisteNaLista(0));
    dlg.ativa();
    const QStringList n = numeros(b.apostasBanco().value(0));
    EXPECT_EQ(n.size(), 15);
    EXPECT_FALSE(n.contains(QStringLiteral("00")));
}

TEST(InsereVetor, CancelarDepoisDe26ApostasGuardaAsEscritas) {
    ProgramaTeste b;
    b.marcaFaixa(1, 8);
    gera(b, 5); // 56 bets
    b.p.e.ComEstatistica = true;
    InsereVetor dlg(b.p, b.p.module2);
    b.d.cedencia.aoCeder = [&](long long n) {
        if (n == 2) dlg.BtnCancelar();
    };
    dlg.ativa();
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 26);
    EXPECT_TRUE(apostas.first().startsWith(QStringLiteral("00001)")));
    EXPECT_TRUE(apostas.last().startsWith(QStringLiteral("00026)")));
    EXPECT_EQ(b.p.e.QuantBan, 26);
    EXPECT_EQ(b.linhaVetBan(25), apostas.last().mid(9));
    EXPECT_TRUE(b.p.e.Cancelado);
    EXPECT_FALSE(dlg.aberto());
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
    // The prize block and the end still follow.
    const QString texto = b.p.tela.TxtBanco.texto();
    EXPECT_TRUE(texto.endsWith(QStringLiteral("\r\n\r\n") + RetornaEstatistica(b.p, module2(b.p)) +
                               QStringLiteral("\r\n\r\n\r\n\r\n")));
}

TEST(InsereVetor, BlocoDeEstatisticaVerdeENegrito) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    gera(b, 6);
    IniciaProgresso(b.p, module2(b.p), b.p.e.TotalApostas * 6);
    FazEstatistica(b.p, module2(b.p), b.p.e.NomeLoteria, b.p.e.TotalApostas);
    b.p.e.ComEstatistica = true;
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const DocumentoRico& doc = b.p.tela.TxtBanco;
    const QString bloco =
        QStringLiteral("\r\nAcertando 4 dezenas pega 3 quadras.\r\n"
                       "Acertando 5 dezenas pega 2 quina(s), 5 quadras.\r\n"
                       "Acertando 6 dezenas pega 1 sena, 6 quina(s) e 0 quadras.\r\n\r\n\r\n");
    EXPECT_TRUE(doc.texto().endsWith(QStringLiteral("00007)   02 03 04 05 06 07 \r\n") + bloco +
                                     QStringLiteral("\r\n")));
    const int64_t ini = doc.texto().indexOf(QStringLiteral("Acertando"));
    EXPECT_EQ(doc.formatoEm(ini), (Formato{CorLog, true}));
    EXPECT_EQ(b.p.e.TextoEstatistica, bloco.mid(2, bloco.size() - 8));
}

TEST(InsereVetor, EstatisticaVaziaDaLotofacilDeixaSoAsLinhasEmBranco) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.marcaFaixa(1, 15);
    gera(b, 15);
    b.p.e.ComEstatistica = true;
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().endsWith(
        QStringLiteral("00001)   01 02 03 04 05 06 07 08 09 10 11 12 13 14 15 \r\n\r\n\r\n\r\n\r\n\r\n")));
}

TEST(InsereVetor, SegundoBlocoSemLimparRecomecaEm00001) {
    ProgramaTeste b;
    b.marcaFaixa(1, 4);
    gera(b, 3);
    {
        InsereVetor dlg(b.p, b.p.module2);
        dlg.ativa();
    }
    gera(b, 2);
    {
        InsereVetor dlg(b.p, b.p.module2);
        dlg.ativa();
    }
    const QStringList apostas = b.apostasBanco();
    ASSERT_EQ(apostas.size(), 4 + 6);
    EXPECT_TRUE(apostas[3].startsWith(QStringLiteral("00004)   02 03 04 ")));
    EXPECT_EQ(apostas[4], QStringLiteral("00001)   01 02 "));
    EXPECT_EQ(b.p.e.QuantBan, 10);
    EXPECT_EQ(b.linhaVetBan(4), QStringLiteral("01 02 "));
}

TEST(InsereVetor, NumeracaoPassaDe99999EmSeisDigitos) {
    ProgramaTeste b;
    b.marcaFaixa(1, 25);
    gera(b, 6); // 177100 bets
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const DocumentoRico& doc = b.p.tela.TxtBanco;
    const int64_t i = doc.texto().indexOf(QStringLiteral("\r\n100000)   ")) + 2;
    ASSERT_GT(i, 2);
    EXPECT_EQ(doc.formatoEm(i + 5), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(doc.formatoEm(i + 6), (Formato{CorAposta, false}));
    EXPECT_EQ(b.p.e.QuantBan, 177100);
    EXPECT_TRUE(doc.texto().endsWith(QStringLiteral("177100)   20 21 22 23 24 25 \r\n\r\n")));
}

TEST(InsereVetor, TrabalhaUmaSoVezEEncolheVetRes) {
    ProgramaTeste b;
    b.marcaFaixa(1, 6);
    gera(b, 5);
    InsereVetor dlg(b.p, b.p.module2);
    int fechou = 0;
    dlg.aoFechar.liga([&] { ++fechou; });
    dlg.ativa();
    EXPECT_EQ(fechou, 1);
    EXPECT_EQ(b.p.e.VetRes.ultimaLinha(), 1);
    EXPECT_EQ(b.p.e.VetRes.ultimaColuna(), 81);
    EXPECT_EQ(b.p.e.VetRes.valor(0, 0), QString());
    EXPECT_LT(b.p.e.VetRes.bytesUsados(), 1024u);
    const QString antes = b.p.tela.TxtBanco.texto();
    dlg.ativa();
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), antes);
    EXPECT_EQ(dlg.LblCont, QStringLiteral("0"));
}

TEST(InsereVetor, ApostaAlemDe81NumerosPerdeOsDeTrasEAMarcaDeFim) {
    ProgramaTeste b(QStringLiteral("Lotomania"));
    b.marcaFaixa(0, 79);
    b.fixa({90, 91, 92, 93, 94});
    gera(b, 80);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const QStringList n = numeros(b.apostasBanco().value(0));
    EXPECT_EQ(n.size(), 85);
    EXPECT_EQ(b.p.e.VetBan.valor(81, 0), QStringLiteral("91"));
    for (int c = 0; c <= 81; ++c)
        EXPECT_NE(b.p.e.VetBan.valor(c, 0), QStringLiteral("#"));
    EXPECT_EQ(b.p.e.QuantBan, 1);
}

TEST(InsereVetor, CabecalhoTrazOHistorico) {
    ProgramaTeste b;
    b.marcaFaixa(1, 6);
    b.p.e.Historico = QStringLiteral("linha 1\r\nlinha 2\r\n");
    gera(b, 6);
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().startsWith(
        QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 \r\nlinha 1\r\nlinha 2\r\n\r\n00001)   ")));
}

TEST(InsereVetor, ApostasDeUmFechamentoLotofacilDuqueTemQuinzeSemZero) {
    ProgramaTeste b(QStringLiteral("Lotofácil"));
    b.marca({3, 17});
    gera(b, 2, true);
    for (int i = 0; i < 40; ++i)
        b.d.aleatorio.enfileira(0.0f); // all drawn again
    InsereVetor dlg(b.p, b.p.module2);
    dlg.ativa();
    const QStringList n = numeros(b.apostasBanco().value(0));
    EXPECT_EQ(n.size(), 15);
    EXPECT_EQ(std::set<QString>(n.begin(), n.end()).size(), 15u);
    EXPECT_TRUE(n.contains(QStringLiteral("03")));
    EXPECT_TRUE(n.contains(QStringLiteral("17")));
    QStringList ordenados = n;
    ordenados.sort();
    EXPECT_EQ(n, ordenados);
}
