#include "apoio/ProgramaTeste.h"
#include "relatorios/Pontuacao.h"
#include "relatorios/PontuacaoRapida.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace sorvelo;
using sorvelo::teste::ProgramaTeste;

namespace {

// The draw as it stands, up to and including the "#".
QStringList sorteio(const Vetor<QString>& v) {
    QStringList r;
    for (int64_t k = v.inferior(); k <= v.superior(); ++k) {
        r << v(k);
        if (v(k) == u'#') break;
    }
    return r;
}

void defineSorteio(Vetor<QString>& v, const QStringList& entradas) {
    v.preenche(QString());
    for (int k = 0; k < entradas.size(); ++k)
        v(k) = entradas[k];
}

int rapido(const Programa& p, int linha) {
    PontuadorBanco pb(p, PontuadorBanco::Sorteio::Resultado);
    return pb.pontos(linha).valor();
}

} // namespace

TEST(CarregaVetDezEsc, LeAsCelulasAzuisEmOrdemDaGradeComFimAtras) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({9, 2, 60, 33});
    CarregaVetDezEsc(a.p);
    EXPECT_EQ(sorteio(a.p.e.VetDezenas), (QStringList{"02", "09", "33", "60", "#"}));
}

TEST(CarregaVetDezEsc, NadaMarcadoDeixaSoOFimNaPrimeiraEntrada) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.p.e.VetDezenas(0) = QStringLiteral("07");
    CarregaVetDezEsc(a.p);
    EXPECT_EQ(a.p.e.VetDezenas(0), QStringLiteral("#"));
}

TEST(CarregaVetDezEsc, CelulaVermelhaNaoEntraNoResultado) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({1, 2});
    a.marca({3}, true);
    CarregaVetDezEsc(a.p);
    EXPECT_EQ(sorteio(a.p.e.VetDezenas), (QStringList{"01", "02", "#"}));
}

TEST(CarregaVetDezEsc, LotomaniaNaoLeAsCelulasDe80a99) {
    ProgramaTeste a(QStringLiteral("Lotomania"));
    a.marca({0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 79, 80, 85, 90, 95, 99});
    EXPECT_EQ(ContaNumeros(a.p), 20);
    CarregaVetDezEsc(a.p);
    const QStringList r = sorteio(a.p.e.VetDezenas);
    ASSERT_EQ(r.size(), 16);
    EXPECT_EQ(r[14], QStringLiteral("79"));
    EXPECT_EQ(r[15], QStringLiteral("#"));

    // A bet holding all twenty (and thirty more) scores no more than 15.
    QStringList aposta;
    for (int n = 50; n < 100; ++n)
        aposta << formata00(n);
    for (int n : {0, 5, 10, 15, 20, 25, 30, 35, 40, 45})
        aposta << formata00(n);
    a.aposta(aposta);
    EXPECT_EQ(RetPontos(a.p, 0), 15);
    EXPECT_EQ(rapido(a.p, 0), 15);
}

TEST(CarregaVetDezEsc, MarcaTodasAsCelulasSemOlharOTamanhoDoSorteio) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({1, 2, 3, 4, 5, 6, 7, 8, 9});
    CarregaVetDezEsc(a.p);
    EXPECT_EQ(sorteio(a.p.e.VetDezenas).size(), 10);
    a.aposta({1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(RetPontos(a.p, 0), 9);
    EXPECT_EQ(rapido(a.p, 0), 9);
}

TEST(CarregaVetDezEsc, CelulaEmBrancoMarcadaEntraComTextoVazio) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({5});
    ClicaNumero(a.p, 60); // the blank cell right after "60"
    CarregaVetDezEsc(a.p);
    EXPECT_EQ(sorteio(a.p.e.VetDezenas), (QStringList{"05", "", "#"}));
}

TEST(RetPontos, ContaOsAcertosQualquerQueSejaAOrdem) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({9, 1, 8, 2, 7, 3});
    CarregaVetDezEsc(a.p);
    a.aposta({1, 2, 3, 4, 5, 6});
    a.aposta({6, 5, 4, 3, 2, 1});
    a.aposta({4, 3, 6, 1, 5, 2});
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(RetPontos(a.p, i), 3);
        EXPECT_EQ(rapido(a.p, i), 3);
    }
    defineSorteio(a.p.e.VetDezenas, {"09", "03", "08", "02", "07", "01", "#"});
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(RetPontos(a.p, i), 3);
        EXPECT_EQ(rapido(a.p, i), 3);
    }
}

TEST(RetPontos, NadaMarcadoDaZeroATodasAsLinhas) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    CarregaVetDezEsc(a.p);
    a.aposta({1, 2, 3, 4, 5, 6});
    a.aposta({7, 8, 9, 10, 11, 12});
    EXPECT_EQ(RetPontos(a.p, 0), 0);
    EXPECT_EQ(RetPontos(a.p, 1), 0);
    EXPECT_EQ(rapido(a.p, 1), 0);
}

TEST(RetPontos, NumeroVermelhoDaApostaNaoPontua) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({1, 2});
    a.marca({3}, true);
    CarregaNumeros(a.p);
    CarregaVetDezEsc(a.p);
    EXPECT_EQ(a.p.e.DezEscolhidas, QStringLiteral("01 02 03 "));
    a.aposta({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(RetPontos(a.p, 0), 2);
    EXPECT_EQ(rapido(a.p, 0), 2);
}

TEST(RetPontos, LinhaSoComFimDaZero) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.marca({1, 2, 3});
    CarregaVetDezEsc(a.p);
    InsereApostaMarcada(a.p); // a row of the three numbers
    LimpaNumeros(a.p);
    InsereApostaMarcada(a.p); // nothing marked: a row that is only "#"
    EXPECT_EQ(a.p.e.VetBan.valor(0, 1), QStringLiteral("#"));
    EXPECT_EQ(RetPontos(a.p, 0), 3);
    EXPECT_EQ(RetPontos(a.p, 1), 0);
    EXPECT_EQ(rapido(a.p, 1), 0);
}

TEST(RetPontos, ComparaTextosENaoNumeros) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    defineSorteio(a.p.e.VetDezenas, {"05", "", "7", "#"});
    a.aposta(QStringList{"5", "07", "7"});
    a.aposta(QStringList{"05", ""});
    EXPECT_EQ(RetPontos(a.p, 0), 1); // only "7" against "7"
    EXPECT_EQ(RetPontos(a.p, 1), 2); // "05" and the empty text
    EXPECT_EQ(rapido(a.p, 0), 1);
    EXPECT_EQ(rapido(a.p, 1), 2);
}

TEST(RetPontos, NumeroRepetidoContaUmaVezPorPar) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    defineSorteio(a.p.e.VetDezenas, {"05", "06", "05", "#"});
    a.aposta(QStringList{"05", "05", "06"});
    a.aposta({5, 9});
    a.aposta({6, 9});
    EXPECT_EQ(RetPontos(a.p, 0), 5);
    EXPECT_EQ(RetPontos(a.p, 1), 2);
    EXPECT_EQ(RetPontos(a.p, 2), 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(rapido(a.p, i), RetPontos(a.p, i).valor());
}

TEST(RetPontos, SorteioSemFimLeAs80PrimeirasEntradas) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    for (int k = 0; k <= 81; ++k)
        a.p.e.VetDezenas(k) = formata00(k);
    a.aposta({0, 79, 80, 81});
    EXPECT_EQ(RetPontos(a.p, 0), 2);
    EXPECT_EQ(rapido(a.p, 0), 2);
}

TEST(RetPontos, LinhaSemFimSaiDaLinhaComFalha9) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    defineSorteio(a.p.e.VetDezenas, {"01", "#"});
    QStringList cheia;
    for (int c = 0; c <= 81; ++c)
        cheia << formata00(c % 100);
    a.aposta(cheia, false);
    try {
        RetPontos(a.p, 0);
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::SubscritoForaIntervalo);
    }
    PontuadorBanco pb(a.p, PontuadorBanco::Sorteio::Resultado);
    try {
        pb.pontos(0);
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::SubscritoForaIntervalo);
    }
}

TEST(RetPontos2, ContaContraOSorteioDeTeste) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    defineSorteio(a.p.e.VetDezenas, {"01", "#"});
    defineSorteio(a.p.e.VetDezenas2, {"04", "02", "03", "#"});
    a.aposta({1, 2, 3, 4});
    EXPECT_EQ(RetPontos(a.p, 0), 1);
    EXPECT_EQ(RetPontos2(a.p, 0), 3);
    PontuadorBanco pb(a.p, PontuadorBanco::Sorteio::Teste);
    EXPECT_EQ(pb.pontos(0), 3);
}

TEST(RetApostaVetBan, CadaNumeroSeguidoDeUmBrancoAteOFim) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.aposta({1, 2, 3, 4, 5, 6});
    a.aposta(QStringList{});
    EXPECT_EQ(RetApostaVetBan(a.p, 0), QStringLiteral("01 02 03 04 05 06 "));
    EXPECT_EQ(RetApostaVetBan(a.p, 1), QString());
}

TEST(TestaRepVAleat, ContadorZeroNaoOlhaOVetor) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    a.p.e.VetDezenas2(0) = QStringLiteral("07");
    EXPECT_FALSE(TestaRepVAleat(a.p, 0, 7));
    EXPECT_FALSE(TestaRepVAleat(a.p, -3, 7));
    EXPECT_TRUE(TestaRepVAleat(a.p, 1, 7));
}

TEST(TestaRepVAleat, ComparaComoNumeroEOlhaOContadorNaoOFim) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    defineSorteio(a.p.e.VetDezenas2, {"#", "9", "12"});
    EXPECT_TRUE(TestaRepVAleat(a.p, 2, 9));
    EXPECT_FALSE(TestaRepVAleat(a.p, 2, 12));
    EXPECT_TRUE(TestaRepVAleat(a.p, 3, 12));
}

TEST(PontuacaoRapida, ConjuntoDaLinhaMarcaLinhasIrregulares) {
    const uint8_t fim = MatrizTexto::Fim;
    const auto num = [](int n) { return MatrizTexto::codigoNumero(n); };
    const uint8_t regular[] = {num(0), num(63), num(64), num(99), fim};
    const ConjuntoDezenas c = conjuntoDaLinha(regular, 5);
    EXPECT_FALSE(c.irregular());
    EXPECT_EQ(c.baixo, (uint64_t(1) | uint64_t(1) << 63));
    EXPECT_EQ(c.alto, (uint64_t(1) | uint64_t(1) << 35));
    const uint8_t repetida[] = {num(5), num(5), fim};
    const uint8_t vazia[] = {num(5), MatrizTexto::Vazio, fim};
    const uint8_t outra[] = {MatrizTexto::Outro, fim};
    const uint8_t semFim[] = {num(5), num(6)};
    EXPECT_TRUE(conjuntoDaLinha(repetida, 3).irregular());
    EXPECT_TRUE(conjuntoDaLinha(vazia, 3).irregular());
    EXPECT_TRUE(conjuntoDaLinha(outra, 2).irregular());
    EXPECT_TRUE(conjuntoDaLinha(semFim, 2).irregular());
    EXPECT_TRUE(conjuntoDaLinha(semFim, 0).irregular());
    EXPECT_FALSE(conjuntoDaLinha(&fim, 1).irregular());
}

namespace {

QString textoAleatorio(std::mt19937& g) {
    static const QStringList estranhos{"", "7", "100", "abc", "0", "5 ", " 5", "-1", "1.0", "#x"};
    std::uniform_int_distribution<int> d(0, int(estranhos.size()) - 1);
    return estranhos[d(g)];
}

// A row: mostly distinct numbers; sometimes a repetition, an odd text, or
// cells in any order.
QStringList linhaAleatoria(std::mt19937& g, int maxNumero) {
    std::uniform_int_distribution<int> tamanho(0, 20), numero(0, maxNumero), pct(0, 99);
    const int n = tamanho(g);
    std::vector<int> todos(size_t(maxNumero) + 1);
    for (size_t i = 0; i < todos.size(); ++i)
        todos[i] = int(i);
    std::shuffle(todos.begin(), todos.end(), g);
    QStringList l;
    for (int i = 0; i < n && i < int(todos.size()); ++i)
        l << formata00(todos[size_t(i)]);
    const int tipo = pct(g);
    if (tipo < 8 && !l.isEmpty())
        l << l[numero(g) % l.size()]; // a number twice
    else if (tipo < 16)
        l.insert(l.isEmpty() ? 0 : numero(g) % l.size(), textoAleatorio(g));
    return l;
}

QStringList sorteioAleatorio(std::mt19937& g, int maxNumero) {
    std::uniform_int_distribution<int> tamanho(0, 25), numero(0, maxNumero), pct(0, 99);
    QStringList l = linhaAleatoria(g, maxNumero).mid(0, tamanho(g));
    const int tipo = pct(g);
    if (tipo < 15 && !l.isEmpty())
        l << l[numero(g) % l.size()] << l[0]; // repeated entries
    else if (tipo < 30)
        l << textoAleatorio(g);
    if (pct(g) < 5) {
        while (l.size() < 82)
            l << formata00(numero(g)); // no "#" in the first 80 entries
    } else {
        l << QStringLiteral("#") << formata00(numero(g)); // something behind the "#"
    }
    return l;
}

} // namespace

TEST(PontuacaoRapida, DaOMesmoQueAComparacaoDeTextosEmBancosAleatorios) {
    std::mt19937 g(20261122);
    int irregulares = 0, regulares = 0, comPontos = 0;
    for (int rodada = 0; rodada < 40; ++rodada) {
        ProgramaTeste a(QStringLiteral("Mega-Sena"));
        const int maxNumero = rodada % 2 ? 99 : 60;
        const int quant = 300 + rodada * 37;
        for (int i = 0; i < quant; ++i)
            a.aposta(linhaAleatoria(g, maxNumero));
        const QStringList s = sorteioAleatorio(g, maxNumero);
        defineSorteio(a.p.e.VetDezenas, s.mid(0, 82));
        defineSorteio(a.p.e.VetDezenas2, s.mid(0, 81));

        IndiceApostas indice;
        indice.constroi(a.p.e.VetBan, 0, quant);
        std::vector<int16_t> doIndice(static_cast<size_t>(quant));
        indice.pontua(SorteioRapido(a.p.e.VetDezenas), doIndice.data());
        PontuadorBanco pb(a.p, PontuadorBanco::Sorteio::Resultado);
        PontuadorBanco pb2(a.p, PontuadorBanco::Sorteio::Teste);
        for (int i = 0; i < quant; ++i) {
            const int esperado = RetPontos(a.p, i).valor();
            ASSERT_EQ(pb.pontos(i).valor(), esperado) << "rodada " << rodada << " linha " << i;
            ASSERT_EQ(pb2.pontos(i).valor(), RetPontos2(a.p, i).valor())
                << "rodada " << rodada << " linha " << i;
            if (doIndice[size_t(i)] < 0) {
                ++irregulares;
            } else {
                ++regulares;
                ASSERT_EQ(doIndice[size_t(i)], esperado);
            }
            if (esperado > 0) ++comPontos;
        }
    }
    // Both ways of scoring were exercised, on rows that do score.
    EXPECT_GT(irregulares, 1000);
    EXPECT_GT(regulares, 10000);
    EXPECT_GT(comPontos, 5000);
}

TEST(PontuacaoRapida, PontuadorSaltaParaQualquerLinhaEForaDoBanco) {
    ProgramaTeste a(QStringLiteral("Mega-Sena"));
    defineSorteio(a.p.e.VetDezenas, {"01", "02", "#"});
    for (int i = 0; i < 9000; ++i)
        a.aposta({1 + i % 3, 10});
    PontuadorBanco pb(a.p, PontuadorBanco::Sorteio::Resultado);
    EXPECT_EQ(pb.pontos(8999), 0);
    EXPECT_EQ(pb.pontos(4), 1);
    EXPECT_EQ(pb.pontos(4096), 1);
    EXPECT_EQ(pb.pontos(4097), 0);
    EXPECT_EQ(pb.pontos(8998), 1);
    // Rows past the array's bounds fail as the text comparison does.
    const int64_t alem = a.p.e.VetBan.quantLinhas();
    EXPECT_THROW(pb.pontos(int32_t(alem)), FalhaExecucao);
    EXPECT_THROW(pb.pontos(-1), FalhaExecucao);
}
