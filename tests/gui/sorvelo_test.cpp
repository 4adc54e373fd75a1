// The main window, offscreen, driven as a person would.
#include "apoio/FormasTeste.h"
#include "core/Estado.h"
#include "forms/Controles.h"
#include "forms/Protecao.h"
#include "forms/Sorvelo.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTimerEvent>
#include <QToolButton>

#include <gtest/gtest.h>

#include <optional>

using namespace sorvelo;

namespace {

class JanelaPrincipal : public ::testing::Test, public teste::FormasTeste {
protected:
    void SetUp() override {
        duplos.pasta.define(pasta.path());
        abreJanela();
    }
    void TearDown() override { defineTratadorFalha(nullptr); }

    template <typename T = QWidget> T* controle(const QString& nome) {
        T* w = janela->findChild<T*>(nome);
        EXPECT_NE(w, nullptr) << nome.toStdString();
        return w;
    }
    QAction* acao(const QString& nome) {
        for (QAction* a : janela->findChildren<QAction*>())
            if (a->objectName() == nome) return a;
        ADD_FAILURE() << "sem a ação " << nome.toStdString();
        return nullptr;
    }
    void clicaWidget(QWidget* w) {
        const QPointF c(w->width() / 2.0, w->height() / 2.0);
        QMouseEvent aperta(QEvent::MouseButtonPress, c, w->mapToGlobal(c), Qt::LeftButton, Qt::LeftButton,
                           Qt::NoModifier);
        QMouseEvent solta(QEvent::MouseButtonRelease, c, w->mapToGlobal(c), Qt::LeftButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(w, &aperta);
        QApplication::sendEvent(w, &solta);
    }
    void clicaNumero(int i) { clicaWidget(controle(QStringLiteral("Num(%1)").arg(i))); }
    void clicaBotao(const QString& nome) { controle<QAbstractButton>(nome)->click(); }
    void aciona(const QString& nome) { acao(nome)->trigger(); }
    void ticks(int n) {
        auto* t = controle<QTimer>(QStringLiteral("Timer1"));
        for (int i = 0; i < n; ++i)
            QMetaObject::invokeMethod(t, "timeout", Qt::DirectConnection);
    }
    QString texto(const QString& nome) { return controle<QLineEdit>(nome)->text(); }
    QColor fundo(int i) { return controle<CelulaNumero>(QStringLiteral("Num(%1)").arg(i))->fundo(); }

    QTemporaryDir pasta;
};

const QColor Azul(0, 0, 200), Vermelho(200, 0, 0), Livre(0, 64, 0);

TEST_F(JanelaPrincipal, AbreEmMegaSenaComOTituloSorVelo) {
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("Sor Velo"));
    EXPECT_EQ(texto(QStringLiteral("TxtLoteria")), QStringLiteral("Mega-Sena"));
    EXPECT_TRUE(acao(QStringLiteral("MenuMegaSena"))->isChecked());
    EXPECT_FALSE(acao(QStringLiteral("MenuQuina"))->isChecked());
    EXPECT_EQ(controle<CelulaNumero>(QStringLiteral("Num(0)"))->text(), QStringLiteral("01"));
    EXPECT_EQ(controle<CelulaNumero>(QStringLiteral("Num(59)"))->text(), QStringLiteral("60"));
    EXPECT_EQ(controle<CelulaNumero>(QStringLiteral("Num(60)"))->text(), QString());
    EXPECT_EQ(texto(QStringLiteral("TxtEscolhidos")), QStringLiteral("00"));
    EXPECT_EQ(texto(QStringLiteral("TxtValAp")), QStringLiteral("4,50"));
    EXPECT_EQ(texto(QStringLiteral("TxtDezAp")), QStringLiteral("06"));
}

TEST_F(JanelaPrincipal, TodosOsControlesTemSeuNomeComoObjectName) {
    const QStringList nomes{
        "BarraSup",      "TxtLoteria",     "BarraVert",       "BarraHoriz",      "PicLoteria",
        "Frame1",        "BtnSeta",        "FraBanco",        "Frame2",          "Frame5",
        "Frame3",        "PicSort1",       "TxtEscolhidos",   "ChkFixar",        "TxtValAp",
        "BtnLimpar",     "TxtBanco",       "TxtQuantApostas", "TxtValorApostas", "BtnLimparBanco",
        "BtnFiltrar",    "CommandButton2", "BtnConferir",     "TxtDezAp",        "SpbDezAp",
        "BtnIniciar",    "TxtDezAp2",      "SpbDezAp2",       "BtnReduz",        "CmbGarantia",
        "CmbAcertar",    "ChkReduzir",     "CommandButton1",  "BtnSortear",      "BtnDigitar",
        "CmbFecha",      "BtnFechar",      "BtnEliminar",     "Num(0)",          "Num(104)",
        "HelpRotina(0)", "HelpRotina(7)",  "BarraSup(1)",     "BarraSup(10)"};
    for (const QString& n : nomes)
        EXPECT_NE(janela->findChild<QObject*>(n), nullptr) << n.toStdString();
    for (const char* n :
         {"MenuArquivo",  "MenuNovo",      "MenuÄbrir",     "MenuSalvar",     "MenuSalvarComo",
          "MenuImprimir", "MenuSair",      "MenuLoterias",  "MenuMegaSena",   "MenuDuplaSena",
          "MenuQuina",    "MenuLotomania", "MenuLotoFacil", "MenuRelatorios", "MenuImpBanco",
          "MenuInternet", "MenuNovidades", "MenuAjuda",     "MenuTopicos",    "MenuSobre"})
        EXPECT_NE(acao(QString::fromUtf8(n)), nullptr);
}

TEST_F(JanelaPrincipal, OsQuadrosFicamNasPosicoesEmTwips) {
    auto geo = [&](const char* n) { return controle(QString::fromUtf8(n))->geometry(); };
    EXPECT_EQ(geo("PicLoteria").topLeft(), QPoint(0, janela->tw(600)));
    EXPECT_EQ(geo("Frame1").topLeft(), QPoint(janela->tw(120), janela->tw(120)));
    EXPECT_EQ(geo("Frame1").width(), janela->tw(5655));
    EXPECT_GE(geo("Frame1").height(), janela->tw(3855));
    EXPECT_EQ(geo("FraBanco").topLeft(), QPoint(janela->tw(6120), janela->tw(120)));
    EXPECT_EQ(geo("BtnSeta"), QRect(janela->tw(5760), janela->tw(1560), janela->tw(375), janela->tw(375)));
    // Inside a frame, measured from its inner top: moved down together, below
    // the frame's caption, keeping the layout's distances.
    EXPECT_EQ(geo("Num(16)").x(), janela->tw(120 + 360));
    EXPECT_EQ(geo("Num(16)").y() - geo("Num(1)").y(), janela->tw(360));
    EXPECT_GE(geo("Num(0)").y(), controle("Frame1")->contentsRect().top());
    EXPECT_EQ(geo("TxtBanco").x(), janela->tw(120));
    EXPECT_EQ(geo("TxtBanco").size(), QSize(janela->tw(5055), janela->tw(3255)));
    EXPECT_GE(geo("TxtBanco").y(), controle("FraBanco")->contentsRect().top());
    EXPECT_EQ(geo("TxtQuantApostas").y() - geo("TxtBanco").y(), janela->tw(3570) - janela->tw(240));
    EXPECT_EQ(janela->tw(1440), qRound(janela->screen()->logicalDotsPerInchX()));
}

TEST_F(JanelaPrincipal, CliquesMarcamAzulEFixamVermelho) {
    clicaNumero(0);
    clicaNumero(5);
    EXPECT_EQ(fundo(0), Azul);
    EXPECT_EQ(texto(QStringLiteral("TxtEscolhidos")), QStringLiteral("02"));
    controle<QCheckBox>(QStringLiteral("ChkFixar"))->click();
    clicaNumero(9);
    EXPECT_EQ(fundo(9), Vermelho);
    EXPECT_EQ(texto(QStringLiteral("TxtEscolhidos")), QStringLiteral("02")) << "fixed cells are not counted";
    clicaNumero(5);
    EXPECT_EQ(fundo(5), Livre);
    EXPECT_EQ(texto(QStringLiteral("TxtEscolhidos")), QStringLiteral("01"));
    clicaNumero(61); // past the last number of the game: nothing
    EXPECT_EQ(fundo(61), Livre);
}

TEST_F(JanelaPrincipal, SetaPoeOJogoMarcadoNoBancoEContadoresAparecem) {
    ticks(3);
    EXPECT_EQ(texto(QStringLiteral("TxtQuantApostas")), QStringLiteral(" 0"));
    EXPECT_EQ(texto(QStringLiteral("TxtValorApostas")), QStringLiteral("0,00"));
    for (int i : {0, 1, 2, 3, 4, 5})
        clicaNumero(i);
    clicaWidget(controle(QStringLiteral("BtnSeta")));
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 02 03 04 05 06 \r\n"));
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(texto(QStringLiteral("TxtQuantApostas")), QStringLiteral(" 0"))
        << "refreshed by the timer only";
    ticks(3);
    EXPECT_EQ(texto(QStringLiteral("TxtQuantApostas")), QStringLiteral(" 1"));
    EXPECT_EQ(texto(QStringLiteral("TxtValorApostas")), QStringLiteral("4,50"));
}

TEST_F(JanelaPrincipal, OsContadoresChegamNoTerceiroTiqueDoTimer) {
    auto* t = controle<QTimer>(QStringLiteral("Timer1"));
    EXPECT_TRUE(t->isActive());
    EXPECT_EQ(t->interval(), 500);
    // Each tick is delivered as the timer's own event: no real time passes.
    auto tique = [t] {
        QTimerEvent e(t->timerId());
        QApplication::sendEvent(t, &e);
    };
    tique();
    tique();
    EXPECT_TRUE(texto(QStringLiteral("TxtValorApostas")).isEmpty());
    tique();
    EXPECT_EQ(texto(QStringLiteral("TxtQuantApostas")), QStringLiteral(" 0"));
    EXPECT_EQ(texto(QStringLiteral("TxtValorApostas")), QStringLiteral("0,00"));
}

class TrocaDeJogo : public JanelaPrincipal {
protected:
    void bancoAlterado() {
        clicaNumero(2);
        clicaWidget(controle(QStringLiteral("BtnSeta")));
        clicaNumero(7);
    }
};

TEST_F(TrocaDeJogo, CancelarMantemJogoBancoEGrade) {
    bancoAlterado();
    p.e.NomeArquivo = QStringLiteral("/tmp/x.Apo");
    duplos.caixa.responde(Resposta::Cancelar);
    aciona(QStringLiteral("MenuQuina"));
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(duplos.caixa.vistas()[0].botoes, Botoes::SimNaoCancelar);
    EXPECT_EQ(texto(QStringLiteral("TxtLoteria")), QStringLiteral("Mega-Sena"));
    EXPECT_TRUE(acao(QStringLiteral("MenuMegaSena"))->isChecked());
    EXPECT_FALSE(acao(QStringLiteral("MenuQuina"))->isChecked());
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(fundo(7), Azul);
    EXPECT_EQ(p.e.NomeArquivo, QString());
}

TEST_F(TrocaDeJogo, NaoEsvaziaEMudaDeJogo) {
    bancoAlterado();
    duplos.caixa.responde(Resposta::Nao);
    aciona(QStringLiteral("MenuQuina"));
    EXPECT_EQ(texto(QStringLiteral("TxtLoteria")), QStringLiteral("Quina"));
    EXPECT_TRUE(acao(QStringLiteral("MenuQuina"))->isChecked());
    EXPECT_FALSE(acao(QStringLiteral("MenuMegaSena"))->isChecked());
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(fundo(7), Livre);
    EXPECT_EQ(texto(QStringLiteral("TxtValAp")), QStringLiteral("2,00"));
    EXPECT_EQ(controle<CelulaNumero>(QStringLiteral("Num(79)"))->text(), QStringLiteral("80"));
}

TEST_F(TrocaDeJogo, SimSalvaAntesDeMudar) {
    bancoAlterado();
    const QString arquivo = QDir(pasta.path()).filePath(QStringLiteral("salvo.Apo"));
    duplos.dialogo.enfileira(arquivo);
    duplos.caixa.responde(Resposta::Sim);
    clicaBotao(QStringLiteral("BarraSup(9)"));
    EXPECT_TRUE(QFile::exists(arquivo));
    EXPECT_EQ(texto(QStringLiteral("TxtLoteria")), QStringLiteral("Lotomania"));
    EXPECT_TRUE(acao(QStringLiteral("MenuLotomania"))->isChecked());
    EXPECT_EQ(controle<CelulaNumero>(QStringLiteral("Num(0)"))->text(), QStringLiteral("00"));
    EXPECT_FALSE(controle<QPushButton>(QStringLiteral("BtnFechar"))->isEnabled());
    EXPECT_FALSE(controle<QComboBox>(QStringLiteral("CmbFecha"))->isEnabled());
}

TEST_F(TrocaDeJogo, PelaBarraSemBancoAlteradoNaoPergunta) {
    clicaBotao(QStringLiteral("BarraSup(10)"));
    EXPECT_TRUE(duplos.caixa.vistas().empty());
    EXPECT_EQ(texto(QStringLiteral("TxtLoteria")), QStringLiteral("Lotofácil"));
    EXPECT_EQ(controle<QComboBox>(QStringLiteral("CmbGarantia"))->currentText(), QStringLiteral("13"));
    EXPECT_EQ(controle<QComboBox>(QStringLiteral("CmbAcertar"))->currentText(), QStringLiteral("13"));
    EXPECT_EQ(p.e.Historico, QStringLiteral("22/11/2026 14:05:09: Limpou banco de apostas\r\n"));
}

TEST_F(JanelaPrincipal, FecharComBancoAlteradoPerguntaSimNaoEApagaOArquivoTemporario) {
    QFile f(pasta.filePath(QStringLiteral("00001.txt")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    clicaWidget(controle(QStringLiteral("BtnSeta")));
    bool encerrou = false;
    QObject::connect(janela.get(), &Sorvelo::encerrado, [&] { encerrou = true; });
    duplos.caixa.responde(Resposta::Nao);
    janela->close();
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(duplos.caixa.vistas()[0].botoes, Botoes::SimNao);
    EXPECT_TRUE(encerrou);
    EXPECT_FALSE(QFile::exists(pasta.filePath(QStringLiteral("00001.txt"))));
}

TEST_F(JanelaPrincipal, FecharComBancoVazioNaoPergunta) {
    janela->close();
    EXPECT_TRUE(duplos.caixa.vistas().empty());
}

TEST_F(JanelaPrincipal, LimparPerguntaComPadraoNao) {
    clicaNumero(3);
    clicaBotao(QStringLiteral("BtnLimpar"));
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto,
              QStringLiteral("Tem certeza que deseja apagar todos os números escolhidos?"));
    EXPECT_EQ(duplos.caixa.vistas()[0].padrao, Resposta::Nao);
    EXPECT_EQ(fundo(3), Azul) << "the default answer is Não";
    duplos.caixa.responde(Resposta::Sim);
    clicaBotao(QStringLiteral("BtnLimpar"));
    EXPECT_EQ(fundo(3), Livre);
    EXPECT_EQ(texto(QStringLiteral("TxtEscolhidos")), QStringLiteral("00"));
}

TEST_F(JanelaPrincipal, LimparBancoPerguntaEEsvazia) {
    clicaBotao(QStringLiteral("BtnLimparBanco"));
    EXPECT_TRUE(duplos.caixa.vistas().empty()) << "an empty bank asks nothing";
    clicaWidget(controle(QStringLiteral("BtnSeta")));
    duplos.caixa.responde(Resposta::Sim); // limpar?
    duplos.caixa.responde(Resposta::Nao); // salvar?
    clicaBotao(QStringLiteral("BtnLimparBanco"));
    ASSERT_EQ(duplos.caixa.vistas().size(), 2u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto,
              QStringLiteral("Tem certeza que deseja limpar o banco de apostas?"));
    EXPECT_EQ(duplos.caixa.vistas()[1].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
}

TEST_F(JanelaPrincipal, BarrasDeRolagemMovemAAreaDeTrabalho) {
    auto* vert = controle<QScrollBar>(QStringLiteral("BarraVert"));
    auto* horiz = controle<QScrollBar>(QStringLiteral("BarraHoriz"));
    auto* area = controle(QStringLiteral("PicLoteria"));
    EXPECT_EQ(vert->minimum(), 1);
    EXPECT_EQ(vert->maximum(), 100);
    EXPECT_EQ(vert->pageStep(), 10);
    vert->setValue(5);
    EXPECT_EQ(area->y(), janela->tw(-500));
    vert->setValue(1);
    EXPECT_EQ(area->y(), janela->tw(600));
    vert->setValue(2);
    EXPECT_EQ(area->y(), janela->tw(-200)) << "value 2 jumps under the toolbar";
    horiz->setValue(3);
    EXPECT_EQ(area->x(), janela->tw(-300));
    horiz->setValue(1);
    EXPECT_EQ(area->x(), 0);
}

TEST_F(JanelaPrincipal, EnterEmValorDaApostaPassaOFocoSemEscrever) {
    auto* valor = controle<QLineEdit>(QStringLiteral("TxtValAp"));
    janela->activateWindow();
    valor->setFocus();
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), valor);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(valor, &enter);
    EXPECT_EQ(valor->text(), QStringLiteral("4,50"));
    EXPECT_NE(QApplication::focusWidget(), valor);
}

TEST_F(JanelaPrincipal, SetaComOitentaEDuasCelulasTerminaComAFalhaNove) {
    aciona(QStringLiteral("MenuLotomania"));
    for (int i = 0; i < 82; ++i)
        clicaNumero(i);
    std::optional<int> falha;
    defineTratadorFalha([&](const FalhaExecucao& f) { falha = f.numero(); });
    clicaWidget(controle(QStringLiteral("BtnSeta")));
    ASSERT_TRUE(falha.has_value());
    EXPECT_EQ(*falha, 9);
}

TEST_F(JanelaPrincipal, GiroEscreveOValorEPoeOFocoNoTexto) {
    janela->activateWindow();
    auto* giro = controle(QStringLiteral("SpbDezAp"));
    giro->findChild<QToolButton*>(QStringLiteral("cima"))->click();
    EXPECT_EQ(texto(QStringLiteral("TxtDezAp")), QStringLiteral("07"));
    EXPECT_EQ(p.tela.SpbDezAp.Value, 7);
    EXPECT_EQ(QApplication::focusWidget(), controle(QStringLiteral("TxtDezAp")));
}

TEST_F(JanelaPrincipal, ReduzirHabilitaAcertar) {
    auto* acertar = controle<QComboBox>(QStringLiteral("CmbAcertar"));
    EXPECT_FALSE(acertar->isEnabled());
    controle<QCheckBox>(QStringLiteral("ChkReduzir"))->click();
    EXPECT_TRUE(acertar->isEnabled());
    controle<QCheckBox>(QStringLiteral("ChkReduzir"))->click();
    EXPECT_FALSE(acertar->isEnabled());
    EXPECT_EQ(acertar->currentText(), QStringLiteral("5")) << "greyed, showing its text";
}

TEST_F(JanelaPrincipal, MarcasDeAjudaAparecemEDesaparecem) {
    auto* quadro = controle(QStringLiteral("Frame2"));
    QMouseEvent move(QEvent::MouseMove, QPointF(10, 10), quadro->mapToGlobal(QPointF(10, 10)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(quadro, &move);
    EXPECT_TRUE(controle(QStringLiteral("HelpRotina(0)"))->isVisible());
    ticks(10);
    EXPECT_TRUE(controle(QStringLiteral("HelpRotina(0)"))->isVisible());
    ticks(1);
    EXPECT_FALSE(controle(QStringLiteral("HelpRotina(0)"))->isVisible());
}

TEST_F(JanelaPrincipal, MoverSobreOBotaoEscondeSoASuaMarca) {
    auto* quadro = controle(QStringLiteral("Frame3"));
    QMouseEvent sobreQuadro(QEvent::MouseMove, QPointF(10, 10), quadro->mapToGlobal(QPointF(10, 10)),
                            Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(quadro, &sobreQuadro);
    ASSERT_TRUE(controle(QStringLiteral("HelpRotina(1)"))->isVisible());
    auto* botao = controle(QStringLiteral("BtnFechar"));
    QMouseEvent sobreBotao(QEvent::MouseMove, QPointF(5, 5), botao->mapToGlobal(QPointF(5, 5)), Qt::NoButton,
                           Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(botao, &sobreBotao);
    EXPECT_FALSE(controle(QStringLiteral("HelpRotina(1)"))->isVisible());
    EXPECT_TRUE(controle(QStringLiteral("HelpRotina(2)"))->isVisible());
}

TEST_F(JanelaPrincipal, FiguraDeSortearAfundaAoApertarEVoltaAoSoltar) {
    auto* figura = controle(QStringLiteral("PicSort1"));
    // In its frame, measured from the frame's inner top as the grid is.
    const QPoint repouso = figura->pos();
    EXPECT_EQ(repouso.x(), janela->tw(240));
    EXPECT_EQ(repouso.y() - controle(QStringLiteral("Num(0)"))->y(), janela->tw(3000) - janela->tw(360));
    QMouseEvent aperta(QEvent::MouseButtonPress, QPointF(3, 3), figura->mapToGlobal(QPointF(3, 3)),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(figura, &aperta);
    EXPECT_EQ(figura->pos(),
              repouso + QPoint(janela->tw(260) - janela->tw(240), janela->tw(3020) - janela->tw(3000)));
    // The release is a click: it opens the random choice of numbers, closed here.
    QString aberto;
    QTimer::singleShot(0, [&aberto] {
        if (QWidget* m = QApplication::activeModalWidget()) {
            aberto = m->windowTitle();
            m->close();
        }
    });
    QMouseEvent solta(QEvent::MouseButtonRelease, QPointF(3, 3), figura->mapToGlobal(QPointF(3, 3)),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(figura, &solta);
    EXPECT_EQ(figura->pos(), repouso);
    EXPECT_EQ(aberto, QStringLiteral("Sortear números para combinação"));
    QMouseEvent move(QEvent::MouseMove, QPointF(4, 4), figura->mapToGlobal(QPointF(4, 4)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(figura, &move);
    EXPECT_EQ(p.tela.PicSort1Imagem, 2) << "the picture of PicSort2 under the mouse";
}

TEST_F(JanelaPrincipal, CliqueNaAreaDeTrabalhoEscondeAsMarcasDeAjuda) {
    auto* quadro = controle(QStringLiteral("Frame3"));
    QMouseEvent move(QEvent::MouseMove, QPointF(10, 10), quadro->mapToGlobal(QPointF(10, 10)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(quadro, &move);
    EXPECT_TRUE(controle(QStringLiteral("HelpRotina(1)"))->isVisible());
    EXPECT_TRUE(controle(QStringLiteral("HelpRotina(2)"))->isVisible());
    EXPECT_FALSE(controle(QStringLiteral("HelpRotina(3)"))->isVisible());
    auto* area = controle(QStringLiteral("PicLoteria"));
    QMouseEvent clique(QEvent::MouseButtonPress, QPointF(5, 5), area->mapToGlobal(QPointF(5, 5)),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &clique);
    EXPECT_FALSE(controle(QStringLiteral("HelpRotina(1)"))->isVisible());
}

} // namespace
