// The windows at the program's edge on their own, offscreen: the bet-by-bet
// view, the help page, the topics and the about box.
#include "apoio/Duplos.h"
#include "core/ArquivoApostas.h"
#include "core/ArquivoInicial.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Principal.h"
#include "forms/Apresenta.h"
#include "forms/Help.h"
#include "forms/Janelas.h"
#include "forms/JogoAJogo.h"
#include "forms/Sobre.h"
#include "forms/Sorvelo.h"
#include "forms/Topicos.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

struct Janelas : ::testing::Test {
    void SetUp() override { CarregaPrincipal(p); }
    void aposta(std::initializer_list<int> celulas) {
        for (int c : celulas)
            ClicaNumero(p, Int16(int16_t(c)));
        InsereApostaMarcada(p);
        LimpaNumeros(p);
    }
    static void tecla(QWidget* w, int codigo, const QString& texto = QString()) {
        QKeyEvent aperta(QEvent::KeyPress, codigo, Qt::NoModifier, texto);
        QApplication::sendEvent(w, &aperta);
    }
    template <typename W> static W* filho(QWidget* janela, const char* nome) {
        return janela->findChild<W*>(QString::fromUtf8(nome));
    }
    ServicosDuplos duplos;
    Programa p{duplos.servicos(), duplos.dialogos};
};

} // namespace

TEST_F(Janelas, JogoAJogoMostraEAndaPelasApostas) {
    aposta({0, 1, 2, 3, 4, 5});
    aposta({10, 11, 12, 13, 14, 15, 16});
    auto* j = new JanelaJogoAJogo(p);
    j->mostra();
    EXPECT_EQ(j->windowTitle(), QStringLiteral("Conferência jogo a jogo"));
    EXPECT_FALSE(j->isModal());
    auto* seq = filho<QLineEdit>(j, "TxtSeq");
    auto* jogo = filho<QLineEdit>(j, "TxtJogo");
    EXPECT_EQ(seq->text(), QStringLiteral("000001"));
    EXPECT_EQ(jogo->text(), QStringLiteral("01 02 03 04 05 06 "));
    filho<QPushButton>(j, "BtnDescer")->click();
    EXPECT_EQ(seq->text(), QStringLiteral("000002"));
    EXPECT_EQ(jogo->text(), QStringLiteral("11 12 13 14 15 16 17 "));
    filho<QPushButton>(j, "BtnSubir")->click();
    EXPECT_EQ(seq->text(), QStringLiteral("000001"));
    // Both arrows carry a picture.
    EXPECT_FALSE(filho<QPushButton>(j, "BtnSubir")->icon().isNull());
    EXPECT_FALSE(filho<QPushButton>(j, "BtnDescer")->icon().isNull());
    QPointer<JanelaJogoAJogo> vigia(j);
    filho<QPushButton>(j, "BtnSair")->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vigia.isNull());
}

TEST_F(Janelas, JanelaAlargadaAlargaTxtJogo) {
    aposta({0, 1, 2, 3, 4, 5});
    auto* j = new JanelaJogoAJogo(p);
    j->mostra();
    auto* jogo = filho<QLineEdit>(j, "TxtJogo");
    const int antes = jogo->width();
    j->resize(j->width() + 300, j->height());
    QApplication::processEvents();
    EXPECT_EQ(jogo->width(), antes + 300);
    j->resize(j->width() - 500, j->height());
    QApplication::processEvents();
    EXPECT_EQ(jogo->width(), antes - 200);
    delete j;
}

TEST_F(Janelas, PaginaDeAjudaAmarelaEmVerdana) {
    p.e.TopicoHelp = 7;
    JanelaHelp h(p);
    h.show();
    auto* rtf = filho<QTextEdit>(&h, "RTFHelp");
    EXPECT_EQ(filho<QLabel>(&h, "LblTitulo")->text(), QStringLiteral("Fixar números"));
    EXPECT_EQ(rtf->font().family(), QStringLiteral("Verdana"));
    EXPECT_DOUBLE_EQ(rtf->font().pointSizeF(), 9.75);
    EXPECT_EQ(rtf->palette().color(QPalette::Base), QColor(255, 255, 220));
    EXPECT_EQ(filho<QWidget>(&h, "PicHelp")->palette().color(QPalette::Window), QColor(255, 255, 220));
    EXPECT_EQ(rtf->toPlainText(), MontaPaginaHelp(7).texto());
}

TEST_F(Janelas, PaginaFechaComEscEnterOuCliqueEOutraTeclaNao) {
    for (int modo = 0; modo < 3; ++modo) {
        p.e.TopicoHelp = 1;
        JanelaHelp h(p);
        h.show();
        auto* comando = filho<QLineEdit>(&h, "TxtComando");
        tecla(comando, Qt::Key_A, QStringLiteral("a"));
        EXPECT_TRUE(h.isVisible());
        EXPECT_TRUE(comando->text().isEmpty());
        if (modo == 0) tecla(comando, Qt::Key_Escape);
        if (modo == 1) tecla(comando, Qt::Key_Return, QStringLiteral("\r"));
        if (modo == 2) {
            QWidget* v = filho<QTextEdit>(&h, "RTFHelp")->viewport();
            QMouseEvent e(QEvent::MouseButtonPress, QPointF(5, 5), v->mapToGlobal(QPointF(5, 5)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(v, &e);
        }
        EXPECT_FALSE(h.isVisible()) << modo;
    }
}

TEST_F(Janelas, TopicosAbremPaginasEOTutorial) {
    duplos.pasta.define(QStringLiteral("/opt/sorvelo"));
    std::vector<int> paginas;
    duplos.dialogos.quando(Dialogo::Help, [&] { paginas.push_back(p.e.TopicoHelp.valor()); });
    JanelaTopicos t(p);
    t.show();
    EXPECT_EQ(t.windowTitle(), QStringLiteral("Sorvelo - Tópicos da ajuda"));
    for (int i = 0; i < 8; ++i) {
        auto* lbl = t.findChild<QLabel*>(QStringLiteral("LblHelp(%1)").arg(i));
        ASSERT_NE(lbl, nullptr);
        EXPECT_EQ(lbl->text(), TextoTopico(i));
        EXPECT_NE(t.findChild<QLabel*>(QStringLiteral("Book(%1)").arg(i)), nullptr);
    }
    auto clique = [](QWidget* w) {
        for (auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent e(tipo, QPointF(2, 2), w->mapToGlobal(QPointF(2, 2)), Qt::LeftButton,
                          tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(w, &e);
        }
    };
    clique(t.findChild<QLabel*>(QStringLiteral("LblHelp(3)")));
    clique(t.findChild<QLabel*>(QStringLiteral("Book(7)")));
    clique(t.findChild<QLabel*>(QStringLiteral("LblHelp(0)")));
    EXPECT_EQ(paginas, (std::vector<int>{2, 6}));
    EXPECT_EQ(duplos.abridor.abertos, QStringList{QStringLiteral("/opt/sorvelo/Sorvelo.doc")});
    EXPECT_TRUE(t.isVisible());
}

TEST_F(Janelas, SobreMostraSeusTextosEAbreOsEnderecos) {
    JanelaSobre s(p);
    s.show();
    EXPECT_EQ(s.windowTitle(), QStringLiteral("Sobre o Sorvelo"));
    EXPECT_EQ(filho<QLabel>(&s, "Label2")->text(),
              QStringLiteral("Sistema de administração de jogos para loterias"));
    EXPECT_EQ(filho<QLabel>(&s, "Label3")->text(), QStringLiteral("Versão 1.8"));
    EXPECT_FALSE(filho<QLabel>(&s, "Image1")->pixmap().isNull());
    EXPECT_FALSE(filho<QLabel>(&s, "Image2")->pixmap().isNull());
    for (const char* nome : {"LblLink", "LblEmail"}) {
        QWidget* w = filho<QLabel>(&s, nome);
        for (auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent e(tipo, QPointF(2, 2), w->mapToGlobal(QPointF(2, 2)), Qt::LeftButton,
                          tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(w, &e);
        }
    }
    EXPECT_EQ(duplos.abridor.abertos, (QStringList{QStringLiteral("https://www.sorvelo.com.br"),
                                                   QStringLiteral("mailto:suporte@sorvelo.com.br")}));
    EXPECT_TRUE(s.isVisible());
    filho<QPushButton>(&s, "BtnOK")->click();
    EXPECT_FALSE(s.isVisible());
}

namespace {
// A program before its main window: the start box's state.
struct Inicio : ::testing::Test {
    ServicosDuplos duplos;
    JanelasFormas janelas;
    Programa p{duplos.servicos(), janelas};
    // The program's own main window, after "Entrar".
    JanelaApresenta::FazPrincipal faz = [this] { return std::make_unique<Sorvelo>(p, janelas); };
};
} // namespace

TEST_F(Inicio, ApresentaEntrarAbreAPrincipalEFecha) {
    JanelaApresenta a(p, faz);
    a.show();
    EXPECT_EQ(a.windowTitle(), QStringLiteral("Sorvelo"));
    for (const char* nome : {"Image1", "Image2", "Image3"})
        EXPECT_FALSE(a.findChild<QLabel*>(QString::fromLatin1(nome))->pixmap().isNull()) << nome;
    int encerrado = 0, aberta = 0;
    QObject::connect(&a, &JanelaApresenta::encerrado, [&] { ++encerrado; });
    QObject::connect(&a, &JanelaApresenta::principalAberta, [&] { ++aberta; });
    EXPECT_EQ(a.principal(), nullptr);
    a.findChild<QPushButton*>(QStringLiteral("BtnEntrar"))->click();
    ASSERT_NE(a.principal(), nullptr);
    EXPECT_TRUE(a.principal()->isVisible());
    EXPECT_FALSE(a.isVisible());
    EXPECT_EQ(aberta, 1);
    EXPECT_EQ(encerrado, 0);
    // The main window's load ran.
    EXPECT_EQ(p.e.FimLinha, QStringLiteral("\r\n"));
    EXPECT_EQ(p.tela.TxtLoteria.Text, QStringLiteral("Mega-Sena"));
    EXPECT_TRUE(duplos.caixa.vistas().empty());
}

TEST_F(Inicio, ApresentaFechadaPelaMolduraEncerraSemPrincipal) {
    JanelaApresenta a(p, faz);
    a.show();
    int encerrado = 0;
    QObject::connect(&a, &JanelaApresenta::encerrado, [&] { ++encerrado; });
    // Esc does nothing: the box has no cancel.
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&a, &esc);
    EXPECT_TRUE(a.isVisible());
    a.close();
    EXPECT_EQ(encerrado, 1);
    EXPECT_EQ(a.principal(), nullptr);
}

TEST_F(Inicio, ArquivoDaLinhaDeComandoAbreDepoisDeEntrar) {
    QTemporaryDir pasta;
    const QString nome = pasta.filePath(QStringLiteral("jogos.Apo"));
    {
        ServicosDuplos d;
        Programa q{d.servicos(), d.dialogos};
        CarregaPrincipal(q);
        for (int c : {0, 1, 2, 3, 4, 5})
            ClicaNumero(q, Int16(int16_t(c)));
        InsereApostaMarcada(q);
        GravaArquivo(q, nome);
    }
    JanelaApresenta a(p, faz, nome);
    a.show();
    EXPECT_EQ(p.e.QuantBan, 0);
    a.entra();
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(a.principal()->windowTitle(), QStringLiteral("Sorvelo - ") + nome);
    EXPECT_TRUE(duplos.dialogo.pedidos().empty());
}

TEST_F(Inicio, ArquivoQueNaoExisteAvisaDepoisDeEntrar) {
    QTemporaryDir pasta;
    const QString nome = pasta.filePath(QStringLiteral("sumiu.Apo"));
    JanelaApresenta a(p, faz, nome);
    a.show();
    a.entra();
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto, AvisoArquivoInexistente(nome));
    EXPECT_FALSE(QFileInfo::exists(nome));
    EXPECT_EQ(a.principal()->windowTitle(), QStringLiteral("Sor Velo"));
    EXPECT_TRUE(a.principal()->isVisible());
}
