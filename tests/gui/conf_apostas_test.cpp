// The window "Conferência de apostas" on the real main window, offscreen.
#include "apoio/FormasTeste.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "forms/ConfApostas.h"
#include "forms/Controles.h"
#include "forms/Sorvelo.h"
#include "platform/qt/AreaRica.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

class Conferencia : public ::testing::Test, public teste::FormasTeste {
protected:
    void SetUp() override { abreJanela(); }
    void clicaNumero(int i) {
        QWidget* w = janela->findChild<QWidget*>(QStringLiteral("Num(%1)").arg(i));
        QMouseEvent aperta(QEvent::MouseButtonPress, QPointF(2, 2), w->mapToGlobal(QPointF(2, 2)),
                           Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(w, &aperta);
    }
    void aposta(std::initializer_list<int> celulas) {
        for (int c : celulas)
            ClicaNumero(p, Int16(int16_t(c)));
        InsereApostaMarcada(p);
        LimpaNumeros(p);
    }
    JanelaConfApostas* confere() {
        janela->findChild<QPushButton*>(QStringLiteral("BtnConferir"))->click();
        return janela->findChild<JanelaConfApostas*>(QStringLiteral("ConfApostas"));
    }
};

TEST_F(Conferencia, ListaAsApostasComPontosEConclui) {
    aposta({0, 1, 2, 3, 4, 5});
    aposta({0, 1, 2, 3, 10, 11});
    aposta({20, 21, 22, 23, 24, 25});
    for (int c : {0, 1, 2, 3, 4, 6})
        clicaNumero(c);
    JanelaConfApostas* conf = confere();
    ASSERT_NE(conf, nullptr);
    EXPECT_TRUE(conf->isVisible());
    EXPECT_FALSE(conf->isModal());
    EXPECT_EQ(conf->windowTitle(), QStringLiteral("Conferência de apostas"));
    EXPECT_EQ(conf->findChild<QLabel*>(QStringLiteral("LblTitulo"))->text(),
              QStringLiteral("Conferir banco de apostas - MEGA-SENA"));
    EXPECT_EQ(conf->findChild<QLineEdit*>(QStringLiteral("TxtPontos"))->text(), QStringLiteral("4"));
    conf->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
    const QString texto = conf->findChild<AreaRica*>(QStringLiteral("RTFConf"))->documento()->texto();
    EXPECT_EQ(texto, QStringLiteral("Conferência de apostas da MEGA-SENA\r\nBanco de apostas: \r\n\r\n"
                                    "Resultado: 01 02 03 04 05 07 \r\n\r\n"
                                    "00001)   01 02 03 04 05 06   5 pontos\r\n"
                                    "00002)   01 02 03 04 11 12   4 pontos\r\n"
                                    "\r\n"
                                    "Total de cartelas com 4 pontos: 1\r\n"
                                    "Total de cartelas com 5 pontos: 1\r\n"));
    EXPECT_EQ(conf->findChild<QLabel*>(QStringLiteral("LblMensagem"))->text(), QStringLiteral("Concluído."));
    ASSERT_FALSE(duplos.caixa.vistas().empty());
    EXPECT_EQ(duplos.caixa.vistas().back().texto, QStringLiteral("Conferência concluída!"));

    conf->findChild<QPushButton*>(QStringLiteral("BtnImprimir"))->click();
    ASSERT_EQ(duplos.impressora.registro.size(), 3u);
    EXPECT_EQ(duplos.impressora.registro[0], QStringLiteral("texto "));
    EXPECT_EQ(duplos.impressora.registro[1], QStringLiteral("texto ") + texto);
    EXPECT_EQ(duplos.impressora.registro[2], QStringLiteral("fim"));
}

TEST_F(Conferencia, AJanelaPrincipalContinuaUsavelEMarcasNovasSoValemNoProximoClique) {
    aposta({0, 1, 2, 3, 4, 5});
    for (int c : {0, 1, 2, 3})
        clicaNumero(c);
    JanelaConfApostas* conf = confere();
    ASSERT_NE(conf, nullptr);
    clicaNumero(4); // the main window still takes clicks
    EXPECT_EQ(p.tela.TxtEscolhidos.Text, QStringLiteral("05"));
    conf->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
    const DocumentoRico* doc = conf->findChild<AreaRica*>(QStringLiteral("RTFConf"))->documento();
    EXPECT_TRUE(doc->texto().contains(QStringLiteral("01 02 03 04 05 06   4 pontos")));
    auto* pontos = conf->findChild<QLineEdit*>(QStringLiteral("TxtPontos"));
    pontos->selectAll();
    QKeyEvent dois(QEvent::KeyPress, Qt::Key_2, Qt::NoModifier, QStringLiteral("2"));
    QApplication::sendEvent(pontos, &dois);
    p.tela.TxtBanco.defineVisivel(true);
    EXPECT_EQ(confere(), conf) << "a second press brings the same window back";
    EXPECT_EQ(conf->findChild<QLineEdit*>(QStringLiteral("TxtPontos"))->text(), QStringLiteral("2"))
        << "no new load: the threshold stays as typed";
}

TEST_F(Conferencia, SemResultadoAJanelaApareceAvisaEFecha) {
    QPointer<JanelaConfApostas> conf = confere();
    ASSERT_NE(conf, nullptr);
    EXPECT_TRUE(conf->isVisible());
    EXPECT_TRUE(duplos.caixa.vistas().empty()) << "the warning comes once the window stands";
    bool visivelNoAviso = false;
    duplos.caixa.aoMostrar = [&](const CaixaVista&) { visivelNoAviso = conf && conf->isVisible(); };
    QApplication::sendPostedEvents();
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].tipo, CaixaVista::Tipo::Aviso);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto,
              QStringLiteral("Informe o resultado na seção \"Escolha de números\""));
    EXPECT_TRUE(visivelNoAviso);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(conf.isNull()) << "the window closed";
}

TEST_F(Conferencia, DuplaSenaLembraDoSegundoSorteioAntesDoAviso) {
    janela->findChild<QAction*>(QStringLiteral("MenuDuplaSena"))->trigger();
    QPointer<JanelaConfApostas> conf = confere();
    ASSERT_NE(conf, nullptr);
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto,
              QStringLiteral("Lembrete: não se esqueça de conferir o segundo sorteio!"));
    QApplication::sendPostedEvents();
    ASSERT_EQ(duplos.caixa.vistas().size(), 2u);
    EXPECT_EQ(duplos.caixa.vistas()[1].tipo, CaixaVista::Tipo::Aviso);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(conf.isNull());
}

TEST_F(Conferencia, AMensagemDeEsperaApareceNaCedencia) {
    aposta({0, 1, 2, 3, 4, 5});
    clicaNumero(0);
    JanelaConfApostas* conf = confere();
    ASSERT_NE(conf, nullptr);
    auto* mensagem = conf->findChild<QLabel*>(QStringLiteral("LblMensagem"));
    QString naCedencia;
    duplos.cedencia.aoCeder = [&](long long) { naCedencia = mensagem->text(); };
    conf->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
    EXPECT_EQ(naCedencia, QStringLiteral("Aguarde, conferindo apostas..."));
    EXPECT_EQ(mensagem->text(), QStringLiteral("Concluído."));
}

TEST_F(Conferencia, FecharAJanelaDescartaALista) {
    aposta({0, 1, 2, 3, 4, 5});
    clicaNumero(0);
    JanelaConfApostas* conf = confere();
    ASSERT_NE(conf, nullptr);
    conf->findChild<QPushButton*>(QStringLiteral("BtnCancelar"))->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(janela->findChild<JanelaConfApostas*>(QStringLiteral("ConfApostas")), nullptr);
    JanelaConfApostas* nova = confere();
    ASSERT_NE(nova, nullptr);
    EXPECT_TRUE(nova->findChild<AreaRica*>(QStringLiteral("RTFConf"))->documento()->texto().isEmpty());
}

} // namespace
