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
