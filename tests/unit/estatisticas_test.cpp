#include "apoio/ProgramaTeste.h"
#include "relatorios/EntraTexto.h"
#include "relatorios/Estatisticas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <set>

using namespace sorvelo;
using sorvelo::teste::falhaDe;
using sorvelo::teste::ProgramaTeste;

namespace {

// The window with a prompt that answers `resposta` (or presses Cancelar, or
// is closed by its frame).
struct Janela : ProgramaTeste {
    enum class Modo { Ok, Cancela, Fecha };
    std::unique_ptr<Estatisticas> forma;
    QString resposta = QStringLiteral("100");
    Modo modo = Modo::Ok;
    QStringList perguntas;
    explicit Janela(const QString& jogo = QStringLiteral("Mega-Sena")) : ProgramaTeste(jogo) { abre(); }
    void abre() {
        forma = std::make_unique<Estatisticas>(p);
        forma->Carrega();
        d.dialogos.quando(Dialogo::EntraTexto, [this] {
            EntraTexto prompt(p);
            prompt.Carrega();
            perguntas << prompt.tela.LblMensagem + QStringLiteral(" | ") + prompt.tela.TxtTexto.Text;
            prompt.tela.TxtTexto.Text = resposta;
            if (modo == Modo::Ok) prompt.BtnOK();
            if (modo == Modo::Cancela) prompt.BtnCancelar();
        });
    }
    QString roda(const QString& r) {
        resposta = r;
        forma->BtnEstatistica();
        return texto();
    }
    QString texto() const { return forma->tela.RTFConf.texto(); }
    int testes() const { return int(texto().count(QStringLiteral("Teste nº"))); }
    // Cells given as numbers; an empty list is a row that is only "#".
    void apostas(int quant, std::initializer_list<int> numeros) {
        for (int i = 0; i < quant; ++i)
            aposta(numeros);
    }
};

QString fecho(int testes, int pontuados) {
    return QStringLiteral(
               "Total de testes: %1\r\nTotal de testes pontuados: %2\r\nTotal de testes não pontuados: "
               "%3\r\n\r\nTotal geral de pontos: \r\n")
        .arg(testes)
        .arg(pontuados)
        .arg(testes - pontuados);
}

// A Mega-Sena number as a value of Rnd that draws it.
float rndPara(int n, int numFim = 60) {
    return (float(n - 1) + 0.5f) / float(numFim);
}

// ---- The described run, by text comparison, with its own generator ----

QStringList sorteioReferencia(GeradorClassico& g, int numIni, int numFim, int dezMin) {
    QStringList d;
    while (d.size() < dezMin) {
        const int n = int(std::floor(float(numFim) * g.rnd())) + numIni;
        bool repetido = false;
        for (const QString& x : d)
            if (x.toInt() == n) repetido = true;
        if (!repetido) d << QString::number(n).rightJustified(2, u'0');
    }
    return d;
}

int pontosReferencia(const MatrizTexto& banco, int64_t linha, const QStringList& sorteio) {
    int pontos = 0;
    for (int j = 0; j <= 99; ++j) {
        const QString celula = banco.valor(j, linha);
        if (celula == u'#') break;
        for (const QString& x : sorteio)
            if (x == celula) ++pontos;
    }
    return pontos;
}

QString referencia(const Estado& e, int testes, const QString& limiarTexto) {
    GeradorClassico g;
    const double limiar = valorNumerico(limiarTexto);
    std::vector<int> geral(101, 0);
    int pontuados = 0;
    QString s;
    for (int t = 0; t < testes; ++t) {
        std::vector<int> cont(101, 0);
        const QStringList d = sorteioReferencia(g, e.NumIni.valor(), e.NumFim.valor(), e.DezMin.valor());
        for (int64_t i = 0; i < e.QuantBan.valor(); ++i) {
            const int sc = pontosReferencia(e.VetBan, i, d);
            if (limiar <= sc) ++cont[size_t(sc)];
        }
        s += QStringLiteral("Teste nº%1\r\n").arg(t + 1);
        bool achou = false;
        for (int p = 0; p <= 99; ++p) {
            if (cont[size_t(p)] > 0) {
                geral[size_t(p)] += cont[size_t(p)];
                s += QStringLiteral("Total de cartelas com %1 pontos: %2\r\n").arg(p).arg(cont[size_t(p)]);
                achou = true;
            }
        }
        if (achou)
            ++pontuados;
        else
            s += QStringLiteral("Nenhuma pontuação\r\n");
        s += QStringLiteral("\r\n");
    }
    s += fecho(testes, pontuados);
    for (int p = 0; p <= 99; ++p)
        if (geral[size_t(p)] > 0)
            s += QStringLiteral("Total de cartelas com %1 pontos: %2\r\n").arg(p).arg(geral[size_t(p)]);
    return s;
}

} // namespace

TEST(Estatisticas, JanelaComALegendaDaConferenciaEOLimiarDoJogo) {
    const std::pair<const char*, const char*> casos[] = {
        {"Mega-Sena", "4"}, {"Dupla Sena", "4"}, {"Quina", "3"}, {"Lotomania", "0"}, {"Lotofácil", "11"}};
    for (const auto& [jogo, limiar] : casos) {
        Janela j(QString::fromUtf8(jogo));
        EXPECT_EQ(j.forma->tela.Caption, QStringLiteral("Conferência de apostas"));
        EXPECT_EQ(j.forma->tela.LblTitulo, QStringLiteral("Estatística de acerto"));
        EXPECT_EQ(j.forma->tela.BtnEstatistica, QStringLiteral("Iniciar estatística"));
        EXPECT_EQ(j.forma->tela.TxtPontos.Text, QString::fromUtf8(limiar)) << jogo;
        EXPECT_TRUE(j.d.caixa.vistas().empty()) << "no Dupla Sena reminder here";
    }
}

TEST(Estatisticas, PerguntaAQuantidadeComCemProposto) {
    Janela j;
    j.roda(QStringLiteral("1"));
    ASSERT_EQ(j.perguntas.size(), 1);
    EXPECT_EQ(j.perguntas[0], QStringLiteral("Informe a quantidade de conferências a efetuar: | 100"));
}

TEST(Estatisticas, RespostaPadraoCemTestesQueSomamCem) {
    Janela j;
    std::mt19937 g(7);
    for (int i = 0; i < 300; ++i) {
        std::set<int> s;
        while (s.size() < 6)
            s.insert(int(g() % 60) + 1);
        QStringList l;
        for (int n : s)
            l << formata00(n);
        j.aposta(l);
    }
    j.forma->tela.TxtPontos.Text = QStringLiteral("3");
    const QString t = j.roda(QStringLiteral("100"));
    EXPECT_EQ(j.testes(), 100);
    EXPECT_TRUE(t.contains(QStringLiteral("Total de testes: 100\r\n")));
    EXPECT_EQ(j.forma->QuantTestes, 100);
    EXPECT_EQ((j.forma->TestesPontuados + (j.forma->QuantTestes - j.forma->TestesPontuados)).valor(), 100);
    const auto numero = [&](const QString& rotulo) {
        const qsizetype i = t.indexOf(rotulo);
        return t.mid(i + rotulo.size(), t.indexOf(u'\r', i) - i - rotulo.size()).toInt();
    };
    const int pontuados = numero(QStringLiteral("Total de testes pontuados: "));
    const int nao = numero(QStringLiteral("Total de testes não pontuados: "));
    EXPECT_GT(pontuados, 0);
    EXPECT_GT(nao, 0);
    EXPECT_EQ(pontuados + nao, 100);
}

TEST(Estatisticas, ArredondamentoDaQuantidadeDeTestes) {
    const std::pair<const char*, int> casos[] = {
        {"2.6", 3}, {"2,6", 2}, {"2.5", 2}, {"3.5", 4}, {" 5 testes", 5}};
    for (const auto& [resposta, testes] : casos) {
        Janela j;
        j.roda(QString::fromUtf8(resposta));
        EXPECT_EQ(j.testes(), testes) << resposta;
        EXPECT_EQ(j.forma->QuantTestes, testes) << resposta;
    }
}

TEST(Estatisticas, RespostaZeroSoOFecho) {
    Janela j;
    j.apostas(3, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(j.roda(QStringLiteral("0")), fecho(0, 0));
}

TEST(Estatisticas, RespostaQueNaoENumeroRodaZeroTestes) {
    for (const char* r : {"", "abc", "cancelar", ",5"}) {
        Janela j;
        EXPECT_EQ(j.roda(QString::fromUtf8(r)), fecho(0, 0)) << r;
    }
}

TEST(Estatisticas, RespostaNegativaDaAsLinhasComMenosCinco) {
    Janela j;
    EXPECT_EQ(j.roda(QStringLiteral("-5")),
              QStringLiteral("Total de testes: -5\r\nTotal de testes pontuados: 0\r\nTotal de testes não "
                             "pontuados: -5\r\n\r\nTotal geral de pontos: \r\n"));
}

TEST(Estatisticas, RespostaAcimaDe32767EFalhaDeEstouro) {
    Janela j;
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("32768")); }), erro::Estouro);
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("32767.5")); }), erro::Estouro) << "rounds to 32768";
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("-32768")); }), erro::Estouro) << "the last test, -32769";
}

TEST(Estatisticas, CancelarDigitadoOuPressionadoDeixaASaidaComoEstava) {
    Janela j;
    j.roda(QStringLiteral("2"));
    const QString antes = j.texto();
    ASSERT_FALSE(antes.isEmpty());
    j.modo = Janela::Modo::Cancela;
    EXPECT_EQ(j.roda(QStringLiteral("5")), antes);
    j.modo = Janela::Modo::Ok;
    EXPECT_EQ(j.roda(QStringLiteral("CANCELAR")), antes);
}

TEST(Estatisticas, PromptFechadoSemBotaoSegueComOValorProposto) {
    Janela j;
    j.modo = Janela::Modo::Fecha;
    j.roda(QStringLiteral("3"));
    EXPECT_EQ(j.testes(), 100);
}

TEST(Estatisticas, LimiarAcimaDoSorteioNenhumaPontuacaoENadaNoTotalGeral) {
    Janela j;
    j.apostas(5, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    j.forma->tela.TxtPontos.Text = QStringLiteral("7");
    const QString t = j.roda(QStringLiteral("20"));
    EXPECT_EQ(t.count(QStringLiteral("Nenhuma pontuação\r\n")), 20);
    EXPECT_TRUE(t.endsWith(fecho(20, 0)));
}

TEST(Estatisticas, BancoVazioNenhumaPontuacaoEmCadaTeste) {
    Janela j;
    const QString t = j.roda(QStringLiteral("3"));
    EXPECT_EQ(t, QStringLiteral("Teste nº1\r\nNenhuma pontuação\r\n\r\nTeste nº2\r\nNenhuma pontuação\r\n\r\n"
                                "Teste nº3\r\nNenhuma pontuação\r\n\r\n") +
                     fecho(3, 0));
}

TEST(Estatisticas, TextoVerdeEmNegritoSalvoAsLinhasEmBranco) {
    Janela j;
    j.aposta({1, 2, 3, 4, 5, 6});
    j.forma->tela.TxtPontos.Text = QStringLiteral("0");
    const QString t = j.roda(QStringLiteral("1"));
    const DocumentoRico& d = j.forma->tela.RTFConf;
    for (const Trecho& tr : d.trechos()) {
        EXPECT_EQ(tr.formato.cor, rgb(0, 150, 0));
        const QString pedaco = t.mid(tr.inicio, tr.fim - tr.inicio);
        if (tr.formato.negrito) {
            EXPECT_NE(pedaco.trimmed(), QString());
        }
    }
    EXPECT_TRUE(d.formatoEm(0).negrito);
    EXPECT_TRUE(t.startsWith(QStringLiteral("Teste nº1\r\nTotal de cartelas com ")));
}

TEST(Estatisticas, LotomaniaNuncaSorteia99) {
    Janela j(QStringLiteral("Lotomania"));
    std::set<QString> vistos;
    Int16 cont;
    for (int t = 0; t < 3000; ++t) {
        SorteiaResultado(j.p, cont);
        ASSERT_EQ(cont, 20);
        std::set<QString> este;
        for (int k = 0; k < 20; ++k) {
            const QString n = j.p.e.VetDezenas2(k);
            ASSERT_EQ(n.size(), 2);
            ASSERT_GE(n, QStringLiteral("00"));
            ASSERT_LE(n, QStringLiteral("98"));
            este.insert(n);
        }
        EXPECT_EQ(este.size(), 20u) << "distinct numbers";
        EXPECT_EQ(j.p.e.VetDezenas2(20), QStringLiteral("#"));
        vistos.insert(este.begin(), este.end());
    }
    EXPECT_EQ(vistos.size(), 99u) << "00 to 98 all drawn";
    EXPECT_EQ(vistos.count(QStringLiteral("99")), 0u);
}

TEST(Estatisticas, Lotomania99NaApostaNuncaPontua) {
    Janela j(QStringLiteral("Lotomania"));
    j.aposta({99});
    j.forma->tela.TxtPontos.Text = QStringLiteral("1");
    const QString t = j.roda(QStringLiteral("500"));
    EXPECT_EQ(t.count(QStringLiteral("Nenhuma pontuação")), 500);
}

TEST(Estatisticas, LotomaniaLimiarZeroPontuaTodoTesteComZeroAcertos) {
    Janela j(QStringLiteral("Lotomania"));
    j.aposta({99});
    const QString t = j.roda(QStringLiteral("4"));
    EXPECT_EQ(t.count(QStringLiteral("Total de cartelas com 0 pontos: 1\r\n")), 4);
    EXPECT_TRUE(t.contains(fecho(4, 4) + QStringLiteral("Total de cartelas com 0 pontos: 4\r\n")));
}

TEST(Estatisticas, SorteioNaOrdemESemRepeticao) {
    Janela j;
    for (int n : {10, 3, 10, 45, 3, 60, 1, 22})
        j.d.aleatorio.enfileira(rndPara(n));
    Int16 cont;
    SorteiaResultado(j.p, cont);
    QStringList d;
    for (int k = 0; k <= 6; ++k)
        d << j.p.e.VetDezenas2(k);
    EXPECT_EQ(d, QStringList({"10", "03", "45", "60", "01", "22", "#"}));
}

TEST(Estatisticas, DoisTestesCom3E5ApostasDe4PontosSomam8) {
    Janela j;
    j.apostas(3, {1, 2, 3, 4, 30, 31});
    j.apostas(5, {11, 12, 13, 14, 40, 41});
    for (int n : {1, 2, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16})
        j.d.aleatorio.enfileira(rndPara(n));
    const QString t = j.roda(QStringLiteral("2"));
    EXPECT_EQ(t, QStringLiteral("Teste nº1\r\nTotal de cartelas com 4 pontos: 3\r\n\r\n"
                                "Teste nº2\r\nTotal de cartelas com 4 pontos: 5\r\n\r\n") +
                     fecho(2, 2) + QStringLiteral("Total de cartelas com 4 pontos: 8\r\n"));
}

TEST(Estatisticas, OGeradorNuncaESemeadoEUmProcessoNovoRepeteOsSorteios) {
    QString primeiro;
    for (int vez = 0; vez < 2; ++vez) {
        Janela j;
        j.apostas(1, {1, 2, 3, 4, 5, 6});
        j.forma->tela.TxtPontos.Text = QStringLiteral("1");
        const QString t = j.roda(QStringLiteral("30"));
        EXPECT_TRUE(j.d.aleatorio.sementes.empty());
        if (vez == 0) {
            primeiro = t;
        } else {
            EXPECT_EQ(t, primeiro);
        }
    }
    // The generator goes on: a second press draws other results.
    Janela j;
    j.apostas(1, {1, 2, 3, 4, 5, 6});
    j.forma->tela.TxtPontos.Text = QStringLiteral("1");
    j.roda(QStringLiteral("30"));
    EXPECT_NE(j.roda(QStringLiteral("30")), primeiro);
}

TEST(Estatisticas, NovaExecucaoRecomecaASaidaEOTotalGeral) {
    Janela j;
    j.apostas(2, {1, 2, 3, 4, 5, 6});
    j.forma->tela.TxtPontos.Text = QStringLiteral("0");
    j.roda(QStringLiteral("5"));
    const QString t = j.roda(QStringLiteral("5"));
    EXPECT_EQ(j.testes(), 5);
    EXPECT_TRUE(t.startsWith(QStringLiteral("Teste nº1\r\n")));
    int soma = 0;
    for (int p = 0; p <= 99; ++p)
        soma += j.forma->VetPontosGeral(p).valor();
    EXPECT_EQ(soma, 10);
}

TEST(Estatisticas, LimiarVazioOuTextoEZero) {
    for (const char* limiar : {"", "x"}) {
        Janela j;
        j.aposta({1, 2, 3, 4, 5, 6});
        j.forma->tela.TxtPontos.Text = QString::fromUtf8(limiar);
        j.roda(QStringLiteral("3"));
        EXPECT_EQ(j.forma->TestesPontuados, 3) << limiar;
    }
}

TEST(Estatisticas, TotalGeralAlemDe32767EFalhaDeEstouro) {
    Janela j;
    j.apostas(20000, {}); // rows that are only "#": 0 points each
    j.forma->tela.TxtPontos.Text = QStringLiteral("0");
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("1")); }), 0);
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("2")); }), erro::Estouro);
}

TEST(Estatisticas, ContagemDeUmTesteAlemDe32767EFalhaDeEstouro) {
    Janela j;
    j.apostas(32767, {});
    j.forma->tela.TxtPontos.Text = QStringLiteral("0");
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("1")); }), 0);
    j.aposta(QStringList{});
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("1")); }), erro::Estouro);
}

TEST(Estatisticas, LinhaSemFimEFalhaDeSubscrito) {
    Janela j;
    j.aposta({1, 2, 3});
    j.aposta(QStringList{"01", "02"}, false);
    for (int c = 2; c <= 81; ++c)
        j.p.e.VetBan.define(c, 1, QStringLiteral("05"));
    EXPECT_EQ(falhaDe([&] { j.roda(QStringLiteral("1")); }), erro::SubscritoForaIntervalo);
}

TEST(Estatisticas, SemCedenciaDuranteAExecucao) {
    Janela j;
    j.apostas(50, {1, 2, 3, 4, 5, 6});
    j.roda(QStringLiteral("200"));
    EXPECT_EQ(j.d.cedencia.quantas, 0);
}

TEST(Estatisticas, ImprimirMandaUmaLinhaEmBrancoEOTexto) {
    Janela j;
    j.forma->BtnImprimir();
    EXPECT_EQ(j.d.impressora.registro, QStringList({"texto ", "texto ", "fim"}));
    j.d.impressora.registro.clear();
    j.roda(QStringLiteral("1"));
    j.forma->BtnImprimir();
    EXPECT_EQ(j.d.impressora.registro, QStringList({"texto ", "texto " + j.texto(), "fim"}));
}

TEST(Estatisticas, RedimensionarMoveOQuadroEASaida) {
    Janela j;
    j.forma->Redimensiona(9600, 7000);
    EXPECT_EQ(j.forma->tela.FraConfTop, 4800);
    EXPECT_EQ(j.forma->tela.RTFConfWidth, 9250);
    EXPECT_EQ(j.forma->tela.RTFConfHeight, 4000);
}

// The scoring by sets gives the text of the described scoring by text
// comparison, on random banks of every game (irregular rows included).
TEST(Estatisticas, MesmoTextoQueAContagemPorComparacaoDeTextos) {
    std::mt19937 g(2026);
    const char* jogosTeste[] = {"Mega-Sena", "Dupla Sena", "Quina", "Lotomania", "Lotofácil"};
    const char* limiares[] = {"", "0", "1", "2", "2.5", "3", "4", "5", "11", "12", "abc", "-1", "20"};
    int casos = 0;
    for (const char* jogo : jogosTeste) {
        for (int caso = 0; caso < 40; ++caso) {
            Janela j(QString::fromUtf8(jogo));
            const Estado& e = j.p.e;
            const int quant = int(g() % 80);
            for (int b = 0; b < quant; ++b) {
                const int tamanho = e.DezMin.valor() + int(g() % 4);
                std::vector<int> numeros;
                for (int n = e.NumIni.valor(); n <= e.NumFim.valor(); ++n)
                    numeros.push_back(n);
                std::shuffle(numeros.begin(), numeros.end(), g);
                QStringList l;
                for (int k = 0; k < tamanho; ++k)
                    l << formata00(numeros[size_t(k)]);
                const int estranho = int(g() % 25);
                if (estranho == 0 && !l.isEmpty()) l[0] = l[1]; // a number twice
                if (estranho == 1) l << QStringLiteral("7");    // not two digits
                if (estranho == 2) l.clear();                   // only "#"
                j.aposta(l);
            }
            j.forma->tela.TxtPontos.Text = QString::fromUtf8(limiares[g() % std::size(limiares)]);
            const int testes = int(g() % 12);
            const QString t = j.roda(QString::number(testes));
            ASSERT_EQ(t, referencia(e, testes, j.forma->tela.TxtPontos.Text))
                << jogo << " caso " << caso << " limiar " << j.forma->tela.TxtPontos.Text.toStdString();
            ++casos;
        }
    }
    EXPECT_EQ(casos, 200);
}
