// The desktop implementations of the services.
#include "forms/Protecao.h"
#include "platform/Atividade.h"
#include "platform/qt/ServicosQt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

using namespace sorvelo;

namespace {

// Answers the next message box that comes up by pressing the button whose
// text is `botao`, and keeps what the box showed.
struct Respondedor {
    explicit Respondedor(QString b) : botao(std::move(b)) {}
    QString botao;
    QString titulo, texto, padrao;
    QStringList botoes;
    int modaisDurante = -1;
    void arma() {
        QTimer::singleShot(0, [this] {
            auto* caixa = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(caixa, nullptr);
            titulo = caixa->windowTitle();
            texto = caixa->text();
            modaisDurante = Atividade::modais;
            if (caixa->defaultButton()) padrao = caixa->defaultButton()->text();
            for (QAbstractButton* b : caixa->buttons())
                botoes << b->text();
            for (QAbstractButton* b : caixa->buttons())
                if (b->text() == botao) b->click();
        });
    }
};

TEST(ServicosQt, PerguntaEmPortuguesComOPadraoPedido) {
    instalaTraducao();
    CaixaMensagemQt caixa;
    Respondedor r(QStringLiteral("&Não"));
    r.arma();
    const Resposta resposta =
        caixa.pergunta(QStringLiteral("Tem certeza?"), Botoes::SimNaoCancelar, Resposta::Nao);
    EXPECT_EQ(resposta, Resposta::Nao);
    EXPECT_EQ(r.titulo, QStringLiteral("Sorvelo"));
    EXPECT_EQ(r.texto, QStringLiteral("Tem certeza?"));
    EXPECT_EQ(r.padrao, QStringLiteral("&Não"));
    EXPECT_TRUE(r.botoes.contains(QStringLiteral("&Sim")));
    EXPECT_TRUE(r.botoes.contains(QStringLiteral("Cancelar")));
    EXPECT_EQ(r.modaisDurante, 1) << "a box counts as a modal wait";
    EXPECT_EQ(Atividade::modais, 0);
}

TEST(ServicosQt, PerguntaSimNaoRespondeSim) {
    instalaTraducao();
    CaixaMensagemQt caixa;
    Respondedor r(QStringLiteral("&Sim"));
    r.arma();
    EXPECT_EQ(caixa.pergunta(QStringLiteral("Salvar?"), Botoes::SimNao, Resposta::Sim), Resposta::Sim);
    EXPECT_EQ(r.botoes.size(), 2);
}

TEST(ServicosQt, FiltroDoDialogoNaFormaDoDesktop) {
    EXPECT_EQ(DialogoArquivoQt::filtroQt(QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;")),
              QStringLiteral("Arquivo de apostas (*.Apo)"));
    EXPECT_EQ(DialogoArquivoQt::filtroQt(QStringLiteral("Textos|*.txt;*.doc|Todos|*.*")),
              QStringLiteral("Textos (*.txt *.doc);;Todos (*.*)"));
}

TEST(ServicosQt, RelogioEPastaDoPrograma) {
    RelogioSistema relogio;
    EXPECT_LE(qAbs(relogio.agora().secsTo(QDateTime::currentDateTime())), 2);
    PastaProgramaQt pasta;
    EXPECT_EQ(pasta.caminho(), QCoreApplication::applicationDirPath());
}

TEST(ServicosQt, CedenciaProcessaOsEventosPendentes) {
    bool rodou = false;
    QTimer::singleShot(0, [&] { rodou = true; });
    CedenciaQt cedencia;
    cedencia.cede();
    EXPECT_TRUE(rodou);
}

TEST(ServicosQt, CedenciasSeguidasSoRodamOLacoDepoisDoIntervalo) {
    int64_t agora = 1000;
    CedenciaQt cedencia(50, [&] { return agora; });
    cedencia.cede();
    int rodou = 0;
    QTimer::singleShot(0, [&] { ++rodou; });
    agora += 49;
    cedencia.cede();
    EXPECT_EQ(rodou, 0) << "a yield right after another is only a clock read";
    agora += 1;
    cedencia.cede();
    EXPECT_EQ(rodou, 1);
}

// A clock of the test's that counts how often it is read.
struct RelogioContado {
    int64_t agora = 0;
    long long leituras = 0;
    RelogioMs relogio() {
        return [this] {
            ++leituras;
            return agora;
        };
    }
};

// Notes the time of every pass of the message loop: an event waits in the
// queue before each yield, and a pass delivers it.
struct Passes {
    const int64_t& agora;
    std::vector<int64_t> tempos;
    bool pendente = false;
    explicit Passes(const int64_t& a) : agora(a) {}
    void arma() {
        if (pendente) return;
        pendente = true;
        QTimer::singleShot(0, [this] {
            pendente = false;
            tempos.push_back(agora);
        });
    }
    void cede(Cedencia& c) {
        arma();
        c.cede();
    }
    // The shortest time between two passes.
    int64_t menorDistancia() const {
        int64_t menor = INT64_MAX;
        for (size_t i = 1; i < tempos.size(); ++i)
            menor = std::min(menor, tempos[i] - tempos[i - 1]);
        return menor;
    }
    ~Passes() {
        // Delivers the event left in the queue before this goes away.
        QCoreApplication::processEvents();
    }
};

TEST(ServicosQt, PrimeiraCedenciaRodaOLacoDeImediato) {
    RelogioContado r;
    r.agora = 5;
    CedenciaQt cedencia(10, r.relogio());
    Passes p(r.agora);
    p.cede(cedencia);
    EXPECT_EQ(p.tempos, std::vector<int64_t>{5});
}

TEST(ServicosQt, CedenciasRapidasLeemORelogioPoucasVezes) {
    // A tenth of a microsecond a call: a million calls in 100 ms.
    RelogioContado r;
    CedenciaQt cedencia(10, r.relogio());
    Passes p(r.agora);
    const long long chamadas = 1'000'000;
    for (long long i = 0; i < chamadas; ++i) {
        r.agora = i / 10'000;
        p.cede(cedencia);
    }
    EXPECT_LT(r.leituras, chamadas / 1000) << "the clock is read on a few calls only";
    ASSERT_GE(p.tempos.size(), 9u) << "the loop still runs every interval or so";
    EXPECT_LE(p.tempos.size(), 11u);
    EXPECT_GE(p.menorDistancia(), 10);
    for (size_t i = 1; i < p.tempos.size(); ++i)
        EXPECT_LE(p.tempos[i] - p.tempos[i - 1], 11) << "pass " << i << " came late";
}

TEST(ServicosQt, CedenciasLentasRodamOLacoEmCadaUma) {
    for (int passoMs : {10, 25, 1000}) {
        RelogioContado r;
        CedenciaQt cedencia(10, r.relogio());
        Passes p(r.agora);
        for (int i = 0; i < 200; ++i) {
            p.cede(cedencia);
            r.agora += passoMs;
        }
        EXPECT_EQ(p.tempos.size(), 200u) << "a call every " << passoMs << " ms";
    }
}

TEST(ServicosQt, CedenciasQueFicamLentasVoltamARodarOLacoEmCadaUma) {
    RelogioContado r;
    CedenciaQt cedencia(10, r.relogio());
    Passes p(r.agora);
    for (long long i = 0; i < 1'000'000; ++i) {
        r.agora = i / 10'000;
        p.cede(cedencia);
    }
    // Then each call takes 10 ms: within one stride the clock is read, and
    // from then on every call runs the loop.
    for (int i = 0; i < 5000; ++i) {
        r.agora += 10;
        p.cede(cedencia);
    }
    const size_t antes = p.tempos.size();
    for (int i = 0; i < 100; ++i) {
        r.agora += 10;
        p.cede(cedencia);
    }
    EXPECT_EQ(p.tempos.size() - antes, 100u);
    EXPECT_GE(p.menorDistancia(), 10);
}

TEST(ServicosQt, OLacoNuncaRodaDuasVezesNoIntervalo) {
    // Calls of every pace, from bursts to long waits.
    RelogioContado r;
    CedenciaQt cedencia(10, r.relogio());
    Passes p(r.agora);
    uint32_t semente = 12345;
    const int64_t passos[] = {0, 0, 0, 0, 1, 2, 3, 7, 9, 11, 40};
    for (int i = 0; i < 20'000; ++i) {
        semente = semente * 1103515245u + 12345u;
        const int64_t passo = passos[(semente >> 16) % std::size(passos)];
        // Long runs at one pace, so that the stride grows and shrinks.
        for (int j = int((semente >> 8) & 63); j >= 0; --j) {
            r.agora += passo == 0 ? ((j & 7) == 0) : passo;
            p.cede(cedencia);
        }
    }
    ASSERT_GT(p.tempos.size(), 1000u);
    EXPECT_GE(p.menorDistancia(), 10);
}

TEST(ServicosQt, FalhaNoTopoChegaAoTratadorInstalado) {
    int numero = 0;
    defineTratadorFalha([&](const FalhaExecucao& f) { numero = f.numero(); });
    executaProtegido([] { throw FalhaExecucao(erro::SubscritoForaIntervalo); });
    EXPECT_EQ(numero, 9);
    EXPECT_EQ(Atividade::manipuladores, 0);
    executaProtegido([] { throw std::bad_alloc(); });
    EXPECT_EQ(numero, 7);
    defineTratadorFalha(nullptr);
}

TEST(ServicosQtMorte, OTratadorPadraoMostraAFalhaETerminaOPrograma) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            QTimer::singleShot(0, [] {
                auto* caixa = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (caixa) {
                    std::fprintf(
                        stderr, "[%s] %s\n", qPrintable(caixa->windowTitle()),
                        qPrintable(caixa->text().replace(QStringLiteral("\r\n"), QStringLiteral("|"))));
                    caixa->accept();
                }
            });
            tratadorPadrao(FalhaExecucao(erro::Estouro));
        },
        ::testing::ExitedWithCode(1), "\\[Sorvelo\\] Erro em tempo de execução '6':\\|\\|Estouro");
}

} // namespace
