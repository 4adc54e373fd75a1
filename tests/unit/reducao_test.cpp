// The packing of the reduced combination: the results of the rule, its kept
// weaknesses, its failures, and the fast engine against the plain rule on
// random cases.
#include "ReducaoReferencia.h"
#include "base/MatrizTexto.h"
#include "combinacoes/Reducao.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <set>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

QStringList numeros(int de, int ate) {
    QStringList r;
    for (int n = de; n <= ate; ++n)
        r << formata00(n);
    return r;
}

// The k-subsets of `base` in lexicographic ascending order (the first
// `limite` of them).
std::vector<QStringList> subconjuntos(const QStringList& base, int k, size_t limite = SIZE_MAX) {
    std::vector<QStringList> r;
    const int n = int(base.size());
    if (k < 0 || k > n) return r;
    std::vector<int> pos(static_cast<size_t>(k));
    for (int i = 0; i < k; ++i)
        pos[size_t(i)] = i;
    for (;;) {
        QStringList s;
        for (int p : pos)
            s << base[p];
        r.push_back(s);
        if (r.size() >= limite) return r;
        int i = k - 1;
        while (i >= 0 && pos[size_t(i)] == n - k + i)
            --i;
        if (i < 0) return r;
        ++pos[size_t(i)];
        for (int j = i + 1; j < k; ++j)
            pos[size_t(j)] = pos[size_t(j - 1)] + 1;
    }
}

struct Linha {
    QStringList celulas;
    bool temFim = true;
};

QStringList outrosDe(const std::vector<Linha>& linhas) {
    const Alfabeto padrao;
    QStringList outros;
    for (const Linha& l : linhas)
        for (const QString& c : l.celulas) {
            const bool numero = c.size() == 2 && c[0].isDigit() && c[1].isDigit();
            if (!numero && !c.isEmpty() && c != QStringLiteral("#")) outros << c;
        }
    return outros;
}

// The engine on these rows, its bets as texts.
struct Execucao {
    Alfabeto alfabeto;
    std::unique_ptr<Reducao> red;
    std::vector<QStringList> apostas;

    Execucao(const std::vector<Linha>& linhas, int dezFinal, int tamanhoComum) : alfabeto(outrosDe(linhas)) {
        red = std::make_unique<Reducao>(alfabeto, Int16(int16_t(dezFinal)), tamanhoComum);
        for (const Linha& l : linhas) {
            std::vector<uint16_t> v;
            for (const QString& c : l.celulas)
                v.push_back(alfabeto.valor(c));
            red->acrescenta(v.data(), int(v.size()), l.temFim);
        }
    }
    void reduz() {
        red->reduz();
        for (int32_t r = 0; r < red->QuantFinal(); ++r) {
            QStringList a;
            for (uint16_t v : red->aposta(r))
                a << alfabeto.texto(v);
            apostas.push_back(a);
        }
    }
};

std::vector<Linha> linhasDe(const std::vector<QStringList>& subs) {
    std::vector<Linha> r;
    for (const QStringList& s : subs)
        r.push_back({s, true});
    return r;
}

std::vector<QStringList> reduzSubconjuntos(const QStringList& base, int k, int dezFinal) {
    Execucao ex(linhasDe(subconjuntos(base, k)), dezFinal, k);
    ex.reduz();
    return ex.apostas;
}

// How many of the subsets stand whole in some bet, and the first that doesn't.
int cobertos(const std::vector<QStringList>& subs, const std::vector<QStringList>& apostas,
             QStringList* primeiroFora = nullptr) {
    int n = 0;
    for (const QStringList& s : subs) {
        bool achou = false;
        for (const QStringList& a : apostas) {
            bool todos = true;
            for (const QString& x : s)
                todos = todos && a.contains(x);
            if (todos) {
                achou = true;
                break;
            }
        }
        if (achou)
            ++n;
        else if (primeiroFora && primeiroFora->isEmpty())
            *primeiroFora = s;
    }
    return n;
}

QStringList l(const char* texto) {
    return QString::fromUtf8(texto).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(Reducao, SeisNumerosTernoEmQuatroDaOsSeteJogosNaOrdem) {
    const auto apostas = reduzSubconjuntos(numeros(1, 6), 3, 4);
    const std::vector<QStringList> esperado = {l("01 02 03 04"), l("01 02 05 06"), l("01 03 05 06"),
                                               l("01 04 05 06"), l("02 03 05 06"), l("02 04 05 06"),
                                               l("03 04 05 06")};
    EXPECT_EQ(apostas, esperado);
    EXPECT_EQ(cobertos(subconjuntos(numeros(1, 6), 3), apostas), 20);
}

TEST(Reducao, TabelaDeResultadosDaRegra) {
    struct Caso {
        int ate, k, dezFinal, apostas, cobertos, total;
    };
    const Caso casos[] = {{8, 3, 6, 4, 56, 56},
                          {10, 4, 6, 27, 206, 210},
                          {12, 3, 6, 21, 212, 220},
                          {15, 4, 6, 325, 1365, 1365}};
    for (const Caso& c : casos) {
        const auto subs = subconjuntos(numeros(1, c.ate), c.k);
        ASSERT_EQ(int(subs.size()), c.total);
        const auto apostas = reduzSubconjuntos(numeros(1, c.ate), c.k, c.dezFinal);
        EXPECT_EQ(int(apostas.size()), c.apostas) << "01.." << c.ate;
        EXPECT_EQ(cobertos(subs, apostas), c.cobertos) << "01.." << c.ate;
        for (const QStringList& a : apostas)
            EXPECT_EQ(a.size(), c.dezFinal) << "01.." << c.ate;
    }
}

TEST(Reducao, DezNumerosQuadraDeixaDeFora01020407) {
    const auto subs = subconjuntos(numeros(1, 10), 4);
    const auto apostas = reduzSubconjuntos(numeros(1, 10), 4, 6);
    QStringList fora;
    EXPECT_EQ(cobertos(subs, apostas, &fora), 206);
    EXPECT_EQ(fora, l("01 02 04 07"));
}

TEST(Reducao, QuatroNumerosTernoEmSeisDaUmJogoCurto) {
    EXPECT_EQ(reduzSubconjuntos(numeros(1, 4), 3, 6), std::vector<QStringList>{l("01 02 03 04")});
}

TEST(Reducao, UmNumeroPorCombinacaoSoOPrimeiroQueFalta) {
    // 01 04 05 lacks two numbers in the bet: 04 joins it, 05 never does.
    Execucao ex({{l("01 02 03")}, {l("01 04 05")}}, 5, 3);
    ex.reduz();
    EXPECT_EQ(ex.apostas, std::vector<QStringList>{l("01 02 03 04")});
    EXPECT_EQ(ex.alfabeto.texto(ex.red->Faltante()), QStringLiteral("04"));
}

TEST(Reducao, UltimoJogoCurtoCompletadoPeloAnteriorEmOrdem) {
    Execucao ex({{l("01 02 03")}, {l("04 05 06")}, {l("07 08 09")}}, 4, 3);
    ex.reduz();
    const std::vector<QStringList> esperado = {l("01 02 03 04"), l("01 07 08 09")};
    EXPECT_EQ(ex.apostas, esperado);
}

TEST(Reducao, UltimoJogoCurtoTomaVariosNumerosDoAnterior) {
    Execucao ex({{l("03 05 07 09 11")}, {l("20 30")}}, 5, 2);
    ex.reduz();
    const std::vector<QStringList> esperado = {l("03 05 07 09 11"), l("03 05 07 20 30")};
    EXPECT_EQ(ex.apostas, esperado);
}

TEST(Reducao, SoOUltimoJogoCresceUmJogoFechadoNaoMudaMais) {
    // 01 05 06 would need 05 and 06 in the first bet, which is closed: the
    // last bet takes 01.
    Execucao ex({{l("01 02 03")}, {l("01 02 04")}, {l("05 06 07")}, {l("01 05 06")}}, 4, 3);
    ex.reduz();
    const std::vector<QStringList> esperado = {l("01 02 03 04"), l("01 05 06 07")};
    EXPECT_EQ(ex.apostas, esperado);
}

TEST(Reducao, FimAntigoFicaDuasCelulasAtras) {
    Execucao ex({{l("01 02 03")}, {l("01 02 04")}}, 4, 3);
    ex.reduz();
    const Alfabeto& a = ex.alfabeto;
    EXPECT_EQ(a.texto(ex.red->celula(0, 3)), QStringLiteral("04"));
    EXPECT_EQ(a.texto(ex.red->celula(0, 4)), QStringLiteral("#"));
    EXPECT_EQ(a.texto(ex.red->celula(0, 5)), QStringLiteral("#")) << "the stale end mark";
    EXPECT_EQ(a.texto(ex.red->celula(0, 6)), QString());
    EXPECT_EQ(ex.red->TotalNum(0), 4);
}

TEST(Reducao, InsercaoNoInicioDoJogo) {
    Execucao ex({{l("05 06 07")}, {l("01 05 06")}}, 4, 3);
    ex.reduz();
    EXPECT_EQ(ex.apostas, std::vector<QStringList>{l("01 05 06 07")});
}

TEST(Reducao, DezFinalIgualAoTamanhoDaOsProprosSubconjuntos) {
    const auto subs = subconjuntos(numeros(1, 7), 3);
    EXPECT_EQ(reduzSubconjuntos(numeros(1, 7), 3, 3), subs);
}

TEST(Reducao, DezFinalAbaixoDoTamanhoDaOsProprosSubconjuntos) {
    const auto subs = subconjuntos(numeros(1, 7), 4);
    const auto apostas = reduzSubconjuntos(numeros(1, 7), 4, 2);
    EXPECT_EQ(apostas, subs);
    for (const QStringList& a : apostas)
        EXPECT_EQ(a.size(), 4);
}

TEST(Reducao, DezFinalZeroOuNegativoDaOsSubconjuntos) {
    EXPECT_EQ(reduzSubconjuntos(numeros(1, 6), 2, 0), subconjuntos(numeros(1, 6), 2));
    EXPECT_EQ(reduzSubconjuntos(numeros(1, 6), 2, -5), subconjuntos(numeros(1, 6), 2));
}

TEST(Reducao, SemCombinacaoAlgumaEhFalhaDeSubscrito) {
    Execucao ex({}, 6, 3);
    try {
        ex.reduz();
        FAIL() << "no failure";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::SubscritoForaIntervalo);
    }
}

TEST(Reducao, JogoQueCresceAlemDaColuna81EhFalhaDeSubscrito) {
    const QStringList base = numeros(0, 94);
    for (int dezFinal : {81, 82, 90}) {
        Execucao ex(linhasDe(subconjuntos(base, 2)), dezFinal, 2);
        try {
            ex.reduz();
            FAIL() << "no failure with " << dezFinal;
        } catch (const FalhaExecucao& f) {
            EXPECT_EQ(f.numero(), erro::SubscritoForaIntervalo);
            EXPECT_EQ(ex.red->TotalNum(0), 80) << "the bet stops at 80 numbers";
        }
    }
    Execucao ex(linhasDe(subconjuntos(base, 2)), 80, 2);
    ex.reduz();
    EXPECT_EQ(ex.apostas.front(), numeros(0, 79));
}

TEST(Reducao, CombinacaoSemFimNaoPodeSerCopiada) {
    Execucao ex({{numeros(1, 82), false}}, 6, 82);
    EXPECT_THROW(ex.reduz(), FalhaExecucao);
}

TEST(Reducao, ApostaUnicaCurtaFicaComoEsta) {
    Execucao ex({{l("07 09")}}, 6, 2);
    ex.reduz();
    EXPECT_EQ(ex.apostas, std::vector<QStringList>{l("07 09")});
}

TEST(Reducao, CombinacaoVaziaCabeEmQualquerJogo) {
    Execucao ex({Linha{QStringList(), true}, Linha{QStringList(), true}}, 6, 0);
    ex.reduz();
    EXPECT_EQ(ex.apostas, std::vector<QStringList>(1));
}

TEST(Reducao, AlfabetoOrdenaComoTexto) {
    const Alfabeto a(QStringList{QStringLiteral("1x"), QStringLiteral("!"), QStringLiteral("100")});
    EXPECT_EQ(a.valor(QString()), 0);
    EXPECT_LT(a.valor(QStringLiteral("!")), a.fim());
    EXPECT_LT(a.valor(QStringLiteral("10")), a.valor(QStringLiteral("100")));
    EXPECT_LT(a.valor(QStringLiteral("100")), a.valor(QStringLiteral("11")));
    EXPECT_LT(a.valor(QStringLiteral("19")), a.valor(QStringLiteral("1x")));
    EXPECT_LT(a.valor(QStringLiteral("1x")), a.valor(QStringLiteral("20")));
    const Alfabeto padrao;
    EXPECT_EQ(padrao.valor(QStringLiteral("#")), MatrizTexto::Fim);
    EXPECT_EQ(padrao.valor(QStringLiteral("42")), MatrizTexto::codigoNumero(42));
}

// ---- The fast engine against the plain rule ----

namespace {

std::vector<QStringList> referencia(const std::vector<Linha>& linhas, int dezFinal) {
    ReducaoReferencia ref;
    ref.dezFinal = dezFinal;
    for (const Linha& l : linhas)
        ref.acrescenta(l.celulas, l.temFim);
    ref.reduz();
    return ref.apostas();
}

QStringList sorteiaNumeros(std::mt19937& g, int quant, int maior) {
    std::set<int> s;
    std::uniform_int_distribution<int> d(1, maior);
    while (int(s.size()) < quant)
        s.insert(d(g));
    QStringList r;
    for (int n : s)
        r << formata00(n);
    return r;
}

} // namespace

TEST(Reducao, MotorRapidoIgualARegraEmCasosAleatorios) {
    // Every size of the small cases (5 to 16 numbers, k from 2 to 5,
    // DezFinal from k to 8), each with numbers drawn at random.
    std::mt19937 g(20261123);
    int casos = 0;
    for (int n = 5; n <= 16; ++n)
        for (int k = 2; k <= std::min(5, n - 1); ++k)
            for (int dezFinal = k; dezFinal <= 8; ++dezFinal) {
                // Bets of k numbers are the subsets themselves (a test of its
                // own); the largest of these would only make the plain rule slow.
                if (dezFinal == k && subconjuntos(numeros(1, n), k, 2001).size() > 2000) continue;
                const QStringList base = sorteiaNumeros(g, n, 60);
                const std::vector<Linha> linhas = linhasDe(subconjuntos(base, k));
                Execucao ex(linhas, dezFinal, k);
                ex.reduz();
                ASSERT_EQ(ex.apostas, referencia(linhas, dezFinal))
                    << base.join(u' ').toStdString() << " k=" << k << " final=" << dezFinal;
                ++casos;
            }
    EXPECT_GE(casos, 200);
}

TEST(Reducao, MotorRapidoIgualARegraComApostasAntigasNaFrente) {
    // A bank whose save question was cancelled keeps its bets, and they are
    // packed as if they were combinations, before the subsets.
    std::mt19937 g(7);
    for (int caso = 0; caso < 200; ++caso) {
        const int n = std::uniform_int_distribution<int>(5, 12)(g);
        const int k = std::uniform_int_distribution<int>(2, std::min(5, n - 1))(g);
        const int dezFinal = std::uniform_int_distribution<int>(k - 1, 8)(g);
        std::vector<Linha> linhas;
        const int antigas = std::uniform_int_distribution<int>(1, 4)(g);
        for (int a = 0; a < antigas; ++a) {
            QStringList aposta = sorteiaNumeros(g, std::uniform_int_distribution<int>(1, 10)(g), 20);
            if (caso % 3 == 0) std::shuffle(aposta.begin(), aposta.end(), g);
            linhas.push_back({aposta, true});
        }
        for (const QStringList& s : subconjuntos(sorteiaNumeros(g, n, 20), k))
            linhas.push_back({s, true});
        Execucao ex(linhas, dezFinal, k);
        ex.reduz();
        ASSERT_EQ(ex.apostas, referencia(linhas, dezFinal)) << "caso " << caso;
    }
}

TEST(Reducao, MotorRapidoIgualARegraComTextosQueNaoSaoNumeros) {
    std::mt19937 g(99);
    const QStringList estranhos = {QStringLiteral("1x"), QStringLiteral("a"), QStringLiteral("!!"),
                                   QStringLiteral("100")};
    for (int caso = 0; caso < 60; ++caso) {
        QStringList base = sorteiaNumeros(g, 7, 30);
        base[std::uniform_int_distribution<int>(0, 6)(g)] = estranhos[caso % 4];
        // With many texts the masks cannot hold them: each bet is tested in turn.
        const bool muitos = caso % 4 == 3;
        if (muitos)
            for (int i = 0; i < 30; ++i)
                base << QStringLiteral("z%1").arg(i);
        const int k = muitos ? 2 : 3;
        std::vector<Linha> linhas = linhasDe(subconjuntos(base, k));
        // 37 numbers and texts of the board, beyond the 128 that a mask holds.
        if (muitos)
            for (int i = 0; i < 100; ++i)
                linhas.push_back({QStringList{QStringLiteral("y%1").arg(i), QStringLiteral("01")}, true});
        const int dezFinal = std::uniform_int_distribution<int>(k, 8)(g);
        Execucao ex(linhas, dezFinal, k);
        ex.reduz();
        ASSERT_EQ(ex.apostas, referencia(linhas, dezFinal)) << "caso " << caso;
    }
}

TEST(Reducao, MotorRapidoIgualARegraComApostasGrandesDemaisParaEnumerar) {
    // Bets of 40 numbers hold too many 5-subsets to enumerate: they are
    // tested by their masks.
    const QStringList base = numeros(1, 45);
    const std::vector<QStringList> subs = subconjuntos(base, 5, 3000);
    const std::vector<Linha> linhas = linhasDe(subs);
    Execucao ex(linhas, 40, 5);
    ex.reduz();
    EXPECT_EQ(ex.apostas, referencia(linhas, 40));
}
