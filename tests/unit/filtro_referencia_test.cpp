// The program's filter against the rule written plainly (ReferenciaFiltro.h,
// where the identical-bets test compares every bet with every other one):
// the same survivors, the same "@" marks, the same Cont and the same
// failures, on thousands of random small banks that mix bet sizes, repeats
// and prefixes, with every combination of ticked boxes and limits 0 to 4.
#include "ApoioEdicao.h"
#include "ReferenciaFiltro.h"
#include "edicao/Filtrar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

const char* const Jogos[] = {"Mega-Sena", "Dupla Sena", "Quina", "Lotomania", "Lotofácil"};

struct Gerador {
    std::mt19937 rng;
    explicit Gerador(uint32_t semente) : rng(semente) {}
    int ate(int n) { return std::uniform_int_distribution<int>(0, n)(rng); }
    bool chance(int porCento) { return ate(99) < porCento; }

    // A bet of numbers drawn from a narrow band, so that runs and repeats
    // are frequent.
    int maiorTamanho = 7;
    QStringList nova(int menor, int maior) {
        const int tamanho = ate(maiorTamanho);
        QStringList numeros;
        const int base = menor + ate(std::max(0, maior - menor - 9));
        std::vector<int> escolhidos;
        for (int i = 0; i < tamanho; ++i) {
            const int n = std::min(maior, base + ate(9));
            if (std::find(escolhidos.begin(), escolhidos.end(), n) == escolhidos.end())
                escolhidos.push_back(n);
        }
        if (chance(85)) std::sort(escolhidos.begin(), escolhidos.end());
        for (int n : escolhidos)
            numeros << formata00(n);
        return numeros;
    }

    // Rows of a bank: new bets, copies, beginnings and longer forms of
    // earlier ones; with `estranhas`, now and then a cell that is no number.
    std::vector<QStringList> banco(int menor, int maior, int maxLinhas, bool estranhas) {
        std::vector<QStringList> linhas;
        const int quant = ate(maxLinhas);
        for (int i = 0; i < quant; ++i) {
            QStringList l;
            const int modo = linhas.empty() ? 0 : ate(9);
            if (modo <= 3) {
                l = nova(menor, maior);
            } else if (modo <= 6) {
                l = linhas[size_t(ate(int(linhas.size()) - 1))];
            } else if (modo == 7) {
                l = linhas[size_t(ate(int(linhas.size()) - 1))];
                l = l.mid(0, ate(int(l.size())));
            } else {
                l = linhas[size_t(ate(int(linhas.size()) - 1))];
                l += nova(menor, maior).mid(0, 1 + ate(2));
            }
            if (estranhas && chance(15)) {
                static const char* const Textos[] = {"@", "", "X", "ab", "100", "7", "-3"};
                const QString t = QString::fromUtf8(Textos[ate(6)]);
                if (l.isEmpty() || chance(30))
                    l.prepend(t);
                else
                    l[ate(int(l.size()) - 1)] = t;
            }
            linhas.push_back(l);
        }
        return linhas;
    }
};

void escreve(BancoTeste& b, const std::vector<QStringList>& linhas) {
    auto& e = b.p.e;
    for (const QStringList& l : linhas) {
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        int c = 0;
        for (const QString& v : l)
            e.VetBan.define(c++, e.QuantBan.valor(), v);
        e.VetBan.define(c, e.QuantBan.valor(), QStringLiteral("#"));
        e.QuantBan += 1;
    }
}

// Runs both on the same bank and compares everything the run leaves.
void compara(BancoTeste& b, const MatrizTexto& inicial, int32_t quant, const std::array<bool, 8>& marcadas,
             const std::array<QString, 7>& limites, const std::string& contexto) {
    ReferenciaFiltro ref;
    ref.marcadas = marcadas;
    ref.limites = limites;
    ref.numLinhas = ReferenciaFiltro::linhasDoJogo(b.p.e.NomeLoteria);
    ref.executa(inicial, quant);

    b.p.e.VetBan = inicial;
    b.p.e.QuantBan = quant;
    Filtrar f(b.p);
    auto criterios = f.criterios();
    for (size_t i = 0; i < 8; ++i) {
        criterios[i].chk->Value = marcadas[i];
        if (i < 7) criterios[i].txt->Text = limites[i];
    }
    const int falha = falhaDe([&] { f.ExecutaFiltro(); });
    ASSERT_EQ(falha, ref.falha) << contexto;
    if (falha) return;
    QStringList sobreviventes;
    for (int i = 0; i < b.p.e.QuantBan.valor(); ++i)
        sobreviventes << RetAposta(b.p, i);
    ASSERT_EQ(sobreviventes, ref.sobreviventes) << contexto;
    for (int32_t r = 0; r < quant; ++r)
        ASSERT_EQ(f.VetAux.valor(0, r), ref.aux[size_t(r)][0]) << contexto << " row " << r;
    for (int i = 0; i <= 10; ++i)
        ASSERT_EQ(f.Cont(i).valor(), ref.contFinal(i)) << contexto << " Cont " << i;
}

std::string descreve(const std::vector<QStringList>& linhas) {
    std::string s;
    for (const QStringList& l : linhas)
        s += "[" + l.join(u' ').toStdString() + "] ";
    return s;
}

} // namespace

TEST(FiltroReferencia, TodasAsCombinacoesDeCaixasELimitesDeZeroAQuatro) {
    Gerador g(20261122);
    for (int banco = 0; banco < 120; ++banco) {
        const QString jogo = QString::fromUtf8(Jogos[banco % 5]);
        BancoTeste b{jogo};
        const int menor = b.p.e.NumIni.valor(), maior = b.p.e.NumFim.valor();
        escreve(b, g.banco(menor, maior, 14, banco % 7 == 6));
        const MatrizTexto inicial = b.p.e.VetBan;
        const int32_t quant = b.p.e.QuantBan.valor();
        for (int mascara = 0; mascara < 256; ++mascara) {
            std::array<bool, 8> marcadas{};
            for (int i = 0; i < 8; ++i)
                marcadas[size_t(i)] = (mascara >> i) & 1;
            std::array<QString, 7> limites;
            for (QString& l : limites)
                l = QString::number(g.ate(4));
            compara(b, inicial, quant, marcadas, limites,
                    jogo.toStdString() + " mask " + std::to_string(mascara));
            if (HasFatalFailure()) return;
        }
    }
}

TEST(FiltroReferencia, CadaLimiteDeZeroAQuatroEmTodasAsCaixas) {
    Gerador g(7);
    for (int banco = 0; banco < 30; ++banco) {
        BancoTeste b{QString::fromUtf8(Jogos[banco % 4])};
        escreve(b, g.banco(b.p.e.NumIni.valor(), b.p.e.NumFim.valor(), 20, false));
        const MatrizTexto inicial = b.p.e.VetBan;
        for (int limite = 0; limite <= 4; ++limite) {
            for (int mascara = 0; mascara < 256; ++mascara) {
                std::array<bool, 8> marcadas{};
                for (int i = 0; i < 8; ++i)
                    marcadas[size_t(i)] = (mascara >> i) & 1;
                std::array<QString, 7> limites;
                limites.fill(QString::number(limite));
                compara(b, inicial, b.p.e.QuantBan.valor(), marcadas, limites,
                        "limit " + std::to_string(limite) + " mask " + std::to_string(mascara));
                if (HasFatalFailure()) return;
            }
        }
    }
}

TEST(FiltroReferencia, ApostasIguaisComoNaRegraDeCadaUmaContraTodas) {
    Gerador g(42);
    for (int banco = 0; banco < 2000; ++banco) {
        BancoTeste b;
        const auto linhas = g.banco(1, 12, 40, banco % 3 == 0);
        escreve(b, linhas);
        std::array<bool, 8> marcadas{};
        marcadas[7] = true;
        // Now and then another box too, so that rows dropped before the test
        // take part.
        if (banco % 4 == 1) marcadas[0] = true;
        if (banco % 4 == 2) marcadas[5] = true;
        std::array<QString, 7> limites;
        limites.fill(QString::number(g.ate(4)));
        compara(b, b.p.e.VetBan, b.p.e.QuantBan.valor(), marcadas, limites, descreve(linhas));
        if (HasFatalFailure()) return;
    }
}

TEST(FiltroReferencia, ArrobaNosDadosIgualaAsLinhasMarcadas) {
    // A row that begins with the text "@" equals the rows already marked.
    BancoTeste b;
    escreve(b, {{"05", "06"}, {"05", "06"}, {"@", "06"}, {}, {"@"}});
    std::array<bool, 8> marcadas{};
    marcadas[7] = true;
    std::array<QString, 7> limites;
    compara(b, b.p.e.VetBan, b.p.e.QuantBan.valor(), marcadas, limites, "arroba");
    ReferenciaFiltro ref;
    ref.marcadas = marcadas;
    BancoTeste c;
    escreve(c, {{"05", "06"}, {"05", "06"}, {"@", "06"}, {}, {"@"}});
    ref.executa(c.p.e.VetBan, c.p.e.QuantBan.valor());
    // Row 0 is marked by row 1; then "@ 06" equals the marked row 0, the
    // empty bet equals anything, and the lone "@" equals the marked rows.
    EXPECT_EQ(ref.sobreviventes, QStringList{QStringLiteral("05 06 ")});
}

TEST(FiltroReferencia, ApostasLongasQueDividemOsPrimeirosNumeros) {
    // Bets of up to 16 numbers from a band of 20, sorted: they share long
    // beginnings, past the cells that the index packs in its sort key.
    Gerador g(1234);
    g.maiorTamanho = 16;
    for (int banco = 0; banco < 600; ++banco) {
        BancoTeste b{QStringLiteral("Lotomania")};
        const auto linhas = g.banco(0, 19, 30, banco % 5 == 0);
        escreve(b, linhas);
        std::array<bool, 8> marcadas{};
        marcadas[7] = true;
        if (banco % 3 == 1) marcadas[5] = true;
        std::array<QString, 7> limites;
        limites.fill(QString::number(2 + g.ate(6)));
        compara(b, b.p.e.VetBan, b.p.e.QuantBan.valor(), marcadas, limites, descreve(linhas));
        if (HasFatalFailure()) return;
    }
}
