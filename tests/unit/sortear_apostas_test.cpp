#include "apoio/ImprimeQt.h"
#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Loteria.h"
#include "edicao/Sortear.h"
#include "edicao/SortearFormato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
struct SortearApostas : ::testing::Test, ProgramaTeste {
    // A value of Rnd that draws the number v among `tamanho` numbers.
    static float rPara(int v, int tamanho) { return (float(v) + 0.5f) / float(tamanho); }
    void enfileira(std::initializer_list<int> numeros) {
        const int tamanho = p.e.NumFim.valor() + 1;
        for (int v : numeros)
            d.aleatorio.enfileira(rPara(v, tamanho));
    }
    std::unique_ptr<Sortear> abre(const QString& quant, const QString& dez) {
        auto s = std::make_unique<Sortear>(p);
        s->TxtQuant = quant;
        s->TxtDez = dez;
        return s;
    }
    QStringList linha(int r) const {
        QStringList l;
        for (int c = 0;; ++c) {
            const QString v = p.e.VetBan.valor(c, r);
            if (v == u'#') break;
            l << v;
        }
        return l;
    }
    QStringList linhasTexto() const {
        QStringList l = p.tela.TxtBanco.texto().split(QStringLiteral("\r\n"));
        if (!l.isEmpty() && l.last().isEmpty()) l.removeLast();
        return l;
    }
};
} // namespace

// ---- Opening, load and the scroll bars ----

TEST_F(SortearApostas, BotaoDoPrincipalAnotaNoHistorico) {
    const QString antes = p.e.Historico;
    BtnSortear(p);
    EXPECT_EQ(p.e.Historico,
              antes +
                  QStringLiteral("22/11/2026 14:05:09: Foi feito sorteio de números pelo computador\r\n"));
}

TEST_F(SortearApostas, CarregaComDezBetsEDezenasDoPrincipal) {
    p.tela.TxtDezAp.Text = QStringLiteral("09");
    Sortear s(p);
    EXPECT_EQ(s.TxtQuant, QStringLiteral("10"));
    EXPECT_EQ(s.ScrQuant, 10);
    EXPECT_EQ(s.TxtDez, QStringLiteral("09"));
    EXPECT_EQ(s.ScrDez, 6);
    for (int i = 0; i < Sortear::QuantCaixas; ++i) {
        EXPECT_TRUE(s.Garantir[size_t(i)].isEmpty());
        EXPECT_TRUE(s.Excluir[size_t(i)].isEmpty());
    }
    EXPECT_FALSE(s.CheckBox1);
    EXPECT_FALSE(s.CheckBox2);
    EXPECT_EQ(s.TxtMaisOco, QStringLiteral("50"));
    EXPECT_EQ(s.TxtMenosOco, QStringLiteral("50"));
}

TEST_F(SortearApostas, BarrasEscrevemOValorComDoisDigitos) {
    Sortear s(p);
    s.mudaScrDez(7);
    EXPECT_EQ(s.TxtDez, QStringLiteral("07"));
    s.mudaScrQuant(120);
    EXPECT_EQ(s.TxtQuant, QStringLiteral("120"));
    s.mudaScrMaisOco(5);
    EXPECT_EQ(s.TxtMaisOco, QStringLiteral("05"));
    s.mudaScrMenosOco(80);
    EXPECT_EQ(s.TxtMenosOco, QStringLiteral("80"));
}

TEST_F(SortearApostas, OkSorteiaEFechaCancelarSoFecha) {
    auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
    int fechou = 0;
    Ligacao vigiaFecho(s->aoFechar, [&] { ++fechou; });
    s->BtnOK();
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_FALSE(s->aberto());
    EXPECT_EQ(fechou, 1);

    auto t = abre(QStringLiteral("2"), QStringLiteral("6"));
    t->BtnCancelar();
    EXPECT_FALSE(t->aberto());
    EXPECT_EQ(p.e.QuantBan, 2);
}

TEST_F(SortearApostas, SementeVemDoRelogio) {
    abre(QStringLiteral("0"), QStringLiteral("6"))->SorteiaApostas();
    ASSERT_EQ(d.aleatorio.sementes.size(), 1u);
    EXPECT_EQ(d.aleatorio.sementes[0], 14 * 3600 + 5 * 60 + 9);
}

// ---- The quantity ----

TEST_F(SortearApostas, QuantidadeUmNaoAcrescentaNada) {
    InsereApostaMarcada(p);
    const QString texto = p.tela.TxtBanco.texto();
    enfileira({1, 2, 3, 4, 5, 6});
    auto s = abre(QStringLiteral("1"), QStringLiteral("6"));
    s->SorteiaApostas();
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(p.tela.TxtBanco.texto(), texto);
    // The bet was drawn into the hidden list only.
    EXPECT_EQ(s->LstSort, QStringList({"01", "02", "03", "04", "05", "06"}));
}

TEST_F(SortearApostas, QuantidadeZeroNaoSorteia) {
    auto s = abre(QStringLiteral("0"), QStringLiteral("6"));
    s->SorteiaApostas();
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(s->LstSort.isEmpty());
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
}

TEST_F(SortearApostas, QuantidadeComLetrasValeZero) {
    abre(QStringLiteral("ab"), QStringLiteral("6"))->SorteiaApostas();
    EXPECT_EQ(p.e.QuantBan, 0);
}

TEST_F(SortearApostas, QuantidadeForaDeDezesseisBitsEstoura) {
    EXPECT_EQ(falhaDe([&] { abre(QStringLiteral("40000"), QStringLiteral("6"))->SorteiaApostas(); }),
              erro::Estouro);
    EXPECT_EQ(falhaDe([&] { abre(QStringLiteral("2"), QStringLiteral("-40000"))->SorteiaApostas(); }),
              erro::Estouro);
    EXPECT_EQ(p.e.QuantBan, 0);
}

// ---- The bets ----

TEST_F(SortearApostas, DuasApostasMegaSenaCrescentesSemRepeticao) {
    enfileira({60, 1, 33, 1, 9, 17, 10, 60, 60, 2, 3, 4, 5, 6});
    abre(QStringLiteral("2"), QStringLiteral("6"))->SorteiaApostas();
    ASSERT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(linha(0), QStringList({"01", "09", "10", "17", "33", "60"}));
    EXPECT_EQ(linha(1), QStringList({"02", "03", "04", "05", "06", "60"}));
    EXPECT_EQ(linhasTexto(), QStringList({"00001)   01 09 10 17 33 60 ", "00002)   02 03 04 05 06 60 "}));
    // Many bets of the generator itself: each ascending, 01 to 60, no repeat.
    auto s = abre(QStringLiteral("500"), QStringLiteral("6"));
    s->SorteiaApostas();
    ASSERT_EQ(p.e.QuantBan, 502);
    for (int r = 2; r < 502; ++r) {
        const QStringList l = linha(r);
        ASSERT_EQ(l.size(), 6);
        for (int j = 0; j < 6; ++j) {
            const int v = l[j].toInt();
            EXPECT_GE(v, 1);
            EXPECT_LE(v, 60);
            if (j) {
                EXPECT_LT(l[j - 1], l[j]);
            }
        }
    }
}

TEST_F(SortearApostas, ApostasIguaisNumaMesmaRodadaSaoPermitidas) {
    enfileira({5, 4, 3, 2, 1, 6, 1, 2, 3, 4, 5, 6});
    abre(QStringLiteral("2"), QStringLiteral("6"))->SorteiaApostas();
    EXPECT_EQ(linha(0), linha(1));
}

TEST_F(SortearApostas, LinhasColoridasNumeradasPelaContagemDoBanco) {
    InsereApostaMarcada(p);
    InsereApostaMarcada(p);
    enfileira({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    abre(QStringLiteral("2"), QStringLiteral("6"))->SorteiaApostas();
    EXPECT_EQ(p.e.QuantBan, 4);
    const QStringList l = linhasTexto();
    ASSERT_EQ(l.size(), 4);
    EXPECT_EQ(l[2], QStringLiteral("00003)   01 02 03 04 05 06 "));
    EXPECT_EQ(l[3], QStringLiteral("00004)   07 08 09 10 11 12 "));
    const int64_t inicio = p.tela.TxtBanco.inicioLinha(2);
    EXPECT_EQ(p.tela.TxtBanco.formatoEm(inicio).cor, CorNumeroLinha);
    EXPECT_EQ(p.tela.TxtBanco.formatoEm(inicio + 5).cor, CorNumeroLinha);
    EXPECT_EQ(p.tela.TxtBanco.formatoEm(inicio + 6).cor, CorAposta);
    EXPECT_FALSE(p.tela.TxtBanco.formatoEm(inicio + 6).negrito);
}

TEST_F(SortearApostas, GarantidoNaPrimeiraCaixaEstaEmTodasAsApostas) {
    auto s = abre(QStringLiteral("50"), QStringLiteral("6"));
    s->Garantir[0] = QStringLiteral("7");
    s->SorteiaApostas();
    for (int r = 0; r < 50; ++r)
        EXPECT_TRUE(linha(r).contains(QStringLiteral("07"))) << r;
}

TEST_F(SortearApostas, CaixaVaziaAntesEncerraOsGarantidos) {
    enfileira({1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13});
    auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
    s->Garantir[1] = QStringLiteral("7");
    s->SorteiaApostas();
    EXPECT_EQ(linha(0), QStringList({"01", "02", "03", "04", "05", "06"}));
    EXPECT_EQ(linha(1), QStringList({"08", "09", "10", "11", "12", "13"}));
}

TEST_F(SortearApostas, ExcluidoNaoEntraEmNenhumaAposta) {
    enfileira({7, 1, 2, 3, 4, 5, 6});
    auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
    s->Excluir[0] = QStringLiteral("7");
    s->SorteiaApostas();
    EXPECT_EQ(linha(0), QStringList({"01", "02", "03", "04", "05", "06"}));
    auto t = abre(QStringLiteral("300"), QStringLiteral("6"));
    t->Excluir[0] = QStringLiteral("7");
    t->SorteiaApostas();
    for (int r = 0; r < p.e.QuantBan.valor(); ++r)
        EXPECT_FALSE(linha(r).contains(QStringLiteral("07"))) << r;
}

TEST_F(SortearApostas, ExcluidoQueTambemEGarantidoEntra) {
    auto s = abre(QStringLiteral("5"), QStringLiteral("6"));
    s->Garantir[0] = QStringLiteral("7");
    s->Excluir[0] = QStringLiteral("7");
    s->SorteiaApostas();
    for (int r = 0; r < 5; ++r)
        EXPECT_EQ(linha(r).count(QStringLiteral("07")), 1) << r;
}

TEST_F(SortearApostas, GarantidoComLetrasFicaComoTextoNaAposta) {
    enfileira({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
    s->Garantir[0] = QStringLiteral("ab");
    s->SorteiaApostas();
    EXPECT_EQ(linha(0), QStringList({"01", "02", "03", "04", "05", "ab"}));
    EXPECT_EQ(linhasTexto()[0], QStringLiteral("00001)   01 02 03 04 05 ab "));
}

TEST_F(SortearApostas, GarantidosNaoSaoTestadosContraFaixaNemEntreSi) {
    enfileira({1, 2, 3, 4, 1, 2, 3, 4});
    auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
    s->Garantir[0] = QStringLiteral("99");
    s->Garantir[1] = QStringLiteral("07");
    s->Garantir[2] = QStringLiteral("7");
    s->SorteiaApostas();
    EXPECT_EQ(linha(0), QStringList({"01", "02", "03", "07", "07", "99"}));
}

TEST_F(SortearApostas, GarantidosDeSobraCaem) {
    auto s = abre(QStringLiteral("2"), QStringLiteral("3"));
    const char* numeros[] = {"50", "10", "40", "20", "30"};
    for (int i = 0; i < 5; ++i)
        s->Garantir[size_t(i)] = QString::fromLatin1(numeros[i]);
    s->SorteiaApostas();
    EXPECT_EQ(linha(0), QStringList({"10", "20", "30"}));
    EXPECT_EQ(p.e.VetBan.valor(3, 0), QStringLiteral("#"));
    EXPECT_EQ(linhasTexto()[1], QStringLiteral("00002)   10 20 30 "));
    EXPECT_EQ(s->LstSort.size(), 5);
}

TEST_F(SortearApostas, ZeroBarradoPorCaixaExcluirVaziaOuZero) {
    // r = 0 draws 0 in every game; an empty Excluir box reads 0.
    d.aleatorio.enfileira(0.0f);
    enfileira({1, 2, 3, 4, 5, 6});
    auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
    s->SorteiaApostas();
    EXPECT_FALSE(linha(0).contains(QStringLiteral("00")));

    auto t = abre(QStringLiteral("2"), QStringLiteral("6"));
    for (int i = 0; i < 10; ++i)
        t->Excluir[size_t(i)] = QString::number(50 + i);
    t->Excluir[9] = QStringLiteral("0");
    d.aleatorio.enfileira(0.0f);
    t->SorteiaApostas();
    EXPECT_FALSE(linha(2).contains(QStringLiteral("00")));
}

TEST_F(SortearApostas, ComTodasAsCaixasExcluirPreenchidasOZeroSai) {
    for (const char* jogo : {"Mega-Sena", "Dupla Sena", "Quina", "Lotomania"}) {
        ConfiguraLoteria(p, QString::fromUtf8(jogo));
        const int antes = p.e.QuantBan.valor();
        auto s = abre(QStringLiteral("2"), QStringLiteral("6"));
        for (int i = 0; i < 10; ++i)
            s->Excluir[size_t(i)] = QString::number(i + 1);
        d.aleatorio.enfileira(0.0f);
        s->SorteiaApostas();
        EXPECT_EQ(linha(antes).first(), QStringLiteral("00")) << jogo;
    }
}

TEST_F(SortearApostas, LotofacilNuncaSorteiaZero) {
    ConfiguraLoteria(p, QStringLiteral("Lotofácil"));
    auto s = abre(QStringLiteral("2"), QStringLiteral("15"));
    for (int i = 0; i < 10; ++i)
        s->Excluir[size_t(i)] = QString::number(i + 1);
    d.aleatorio.enfileira(0.0f);
    s->SorteiaApostas();
    // 1 to 10 barred and 0 refused: the bet is 11 to 25.
    QStringList esperado;
    for (int v = 11; v <= 25; ++v)
        esperado << formata00(v);
    EXPECT_EQ(linha(0), esperado);
    EXPECT_EQ(linha(1), esperado);
}

TEST_F(SortearApostas, ZeroDezenasDaApostaVazia) {
    abre(QStringLiteral("2"), QStringLiteral("0"))->SorteiaApostas();
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(p.e.VetBan.valor(0, 0), QStringLiteral("#"));
    EXPECT_EQ(p.e.VetBan.valor(0, 1), QStringLiteral("#"));
    EXPECT_EQ(linhasTexto(), QStringList({"00001)   ", "00002)   "}));
}

TEST_F(SortearApostas, OpcoesDeFrequenciaNaoMudamOSorteio) {
    // Two programs in the same state, the clock at the same second: the
    // same bets, whatever the two options say.
    abre(QStringLiteral("10"), QStringLiteral("8"))->SorteiaApostas();
    ProgramaTeste outro;
    Sortear s(outro.p);
    s.TxtQuant = QStringLiteral("10");
    s.TxtDez = QStringLiteral("8");
    s.CheckBox1 = s.CheckBox2 = true;
    s.mudaScrMaisOco(90);
    s.mudaScrMenosOco(10);
    s.SorteiaApostas();
    EXPECT_EQ(outro.p.tela.TxtBanco.texto(), p.tela.TxtBanco.texto());
    EXPECT_EQ(outro.p.e.QuantBan, 10);
}

// ---- Where the draw cannot go on ----

TEST_F(SortearApostas, DezenasAlemDosNumerosLivresFalhaSemGravar) {
    // 60 numbers: 60 fill a bet, 61 could never be drawn.
    abre(QStringLiteral("2"), QStringLiteral("60"))->SorteiaApostas();
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(linha(1).size(), 60);
    const QString texto = p.tela.TxtBanco.texto();
    EXPECT_EQ(falhaDe([&] { abre(QStringLiteral("2"), QStringLiteral("61"))->SorteiaApostas(); }),
              erro::ChamadaInvalida);
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(p.tela.TxtBanco.texto(), texto);
    // The barred and the forced numbers shrink the pool.
    auto s = abre(QStringLiteral("1"), QStringLiteral("56"));
    s->Excluir[0] = QStringLiteral("1");
    s->Excluir[1] = QStringLiteral("2");
    s->Excluir[2] = QStringLiteral("3");
    s->Excluir[3] = QStringLiteral("4");
    s->Excluir[4] = QStringLiteral("5");
    EXPECT_EQ(falhaDe([&] { s->SorteiaApostas(); }), erro::ChamadaInvalida);
    s->Garantir[0] = QStringLiteral("1");
    EXPECT_EQ(falhaDe([&] { s->SorteiaApostas(); }), 0);
}

TEST_F(SortearApostas, DezenasAcimaDeOitentaEUmSaemDaMatriz) {
    ConfiguraLoteria(p, QStringLiteral("Lotomania"));
    EXPECT_EQ(falhaDe([&] { abre(QStringLiteral("2"), QStringLiteral("81"))->SorteiaApostas(); }), 0);
    EXPECT_EQ(p.e.VetBan.valor(81, 1), QStringLiteral("#"));
    EXPECT_EQ(falhaDe([&] { abre(QStringLiteral("2"), QStringLiteral("82"))->SorteiaApostas(); }),
              erro::SubscritoForaIntervalo);
    // A quantity of 1 stores nothing, so it does not reach the columns.
    EXPECT_EQ(falhaDe([&] { abre(QStringLiteral("1"), QStringLiteral("95"))->SorteiaApostas(); }), 0);
}

// ---- The same bets as the rule told step by step ----

namespace {
struct Pedido {
    QString jogo;
    int quant, dez;
    std::array<QString, 10> garantir, excluir;
};

// The draw as the dialog tells it: a list kept sorted as text, each number
// tested against the barred boxes and by a walk over the list.
std::vector<QStringList> sorteioDeReferencia(const Pedido& ped, const QString& nomeLoteria, int numFim,
                                             std::deque<float>& valores) {
    std::vector<QStringList> apostas;
    auto insere = [](QStringList& l, const QString& item) {
        auto antes = [](const QString& a, const QString& b) {
            return QString::compare(a, b, Qt::CaseInsensitive) < 0;
        };
        l.insert(std::upper_bound(l.begin(), l.end(), item, antes), item);
    };
    for (int pos = 0; pos < ped.quant; ++pos) {
        QStringList lista;
        int i = 0;
        while (i < 10 && !ped.garantir[size_t(i)].isEmpty()) {
            insere(lista, formataTexto00(ped.garantir[size_t(i)]));
            ++i;
        }
        while (i < ped.dez) {
            const float r = valores.front();
            valores.pop_front();
            const int v = int(std::floor(float(numFim + 1) * r));
            bool usado = nomeLoteria == QStringLiteral("LOTOFÁCIL") && v == 0;
            for (const QString& x : ped.excluir)
                usado = usado || valorNumerico(x) == v;
            for (const QString& item : lista)
                usado = usado || item == formata00(v);
            if (!usado) {
                insere(lista, formata00(v));
                ++i;
            }
        }
        if (ped.quant > 1) apostas.push_back(lista.mid(0, ped.dez));
    }
    return apostas;
}
} // namespace

TEST_F(SortearApostas, MesmasApostasQueARegraPassoAPasso) {
    std::mt19937 g(2026);
    const char* nomes[] = {"Mega-Sena", "Dupla Sena", "Quina", "Lotomania", "Lotofácil"};
    for (int caso = 0; caso < 300; ++caso) {
        ConfiguraLoteria(p, QString::fromUtf8(nomes[g() % 5]));
        Pedido ped;
        ped.quant = int(g() % 6);
        const int livres = p.e.NumFim.valor() - 11;
        ped.dez = int(g() % std::min(livres, 20));
        const int garantidos = int(g() % 5);
        for (int i = 0; i < garantidos; ++i)
            ped.garantir[size_t(i)] = g() % 7 ? QString::number(g() % 100) : QStringLiteral("x");
        for (int i = 0; i < 10; ++i)
            if (g() % 3 == 0) ped.excluir[size_t(i)] = QString::number(g() % 100);
        std::deque<float> valores;
        for (int i = 0; i < 4000; ++i)
            valores.push_back(float(g() % (1u << 24)) / float(1u << 24));
        for (float v : valores)
            d.aleatorio.enfileira(v);
        const int antes = p.e.QuantBan.valor();
        auto s = abre(QString::number(ped.quant), QString::number(ped.dez));
        s->Garantir = ped.garantir;
        s->Excluir = ped.excluir;
        s->SorteiaApostas();
        const auto esperado = sorteioDeReferencia(ped, p.e.NomeLoteria, p.e.NumFim.valor(), valores);
        ASSERT_EQ(p.e.QuantBan.valor() - antes, int(esperado.size())) << caso;
        for (size_t k = 0; k < esperado.size(); ++k) {
            ASSERT_EQ(linha(antes + int(k)), esperado[k]) << caso;
            ASSERT_EQ(RetAposta(p, antes + int(k)),
                      esperado[k].join(u' ') + (esperado[k].isEmpty() ? "" : " "));
        }
        // Drain what the draw left of the scripted values.
        while (!valores.empty()) {
            (void)d.aleatorio.rnd();
            valores.pop_front();
        }
    }
}
