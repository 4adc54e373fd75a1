// The dialogs Filtrar and Eliminar on their real widgets: the scroll bars'
// direction and their boxes, the disabled boxes of Lotofácil, the counter
// repainted a limited number of times, the quantity's two characters.
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "forms/Eliminar.h"
#include "forms/Filtrar.h"
#include "platform/qt/RepinturaQt.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <thread>

using namespace sorvelo;

namespace {

struct Janelas : ::testing::Test {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    void SetUp() override { CarregaPrincipal(p); }
    void aposta(const QString& texto) {
        auto& e = p.e;
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        int c = 0;
        for (const QString& v : texto.split(u' '))
            e.VetBan.define(c++, e.QuantBan.valor(), v);
        e.VetBan.define(c, e.QuantBan.valor(), QStringLiteral("#"));
        InsereApostaBanco(p, texto + u' ', (e.QuantBan + 1).valor());
        e.QuantBan += 1;
    }
};

void clicaEm(QWidget* w, QPoint ponto) {
    const QPointF local(ponto), global(w->mapToGlobal(ponto));
    QMouseEvent aperta(QEvent::MouseButtonPress, local, global, Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(w, &aperta);
    QMouseEvent solta(QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(w, &solta);
}

void tecla(QWidget* w, const QString& texto) {
    for (QChar c : texto) {
        QKeyEvent e(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &e);
    }
}

template <typename W> W* filho(QWidget& janela, const char* nome) {
    W* w = janela.findChild<W*>(QString::fromUtf8(nome));
    EXPECT_NE(w, nullptr) << nome;
    return w;
}

} // namespace

TEST_F(Janelas, SetaDeCimaDaBarraBaixaOValorEEscreveNaCaixa) {
    JanelaFiltrar j(p);
    j.show();
    auto* scr = filho<QScrollBar>(j, "ScrSeq");
    auto* txt = filho<QLineEdit>(j, "TxtSeq");
    EXPECT_EQ(scr->orientation(), Qt::Vertical);
    EXPECT_EQ(scr->minimum(), 0);
    EXPECT_EQ(scr->maximum(), 32767);
    EXPECT_EQ(scr->value(), 3);
    EXPECT_EQ(txt->text(), QStringLiteral("03"));
    // The upper arrow: a click near the top end of the bar.
    clicaEm(scr, QPoint(scr->width() / 2, 2));
    EXPECT_EQ(scr->value(), 2);
    EXPECT_EQ(txt->text(), QStringLiteral("02"));
    scr->setValue(120);
    EXPECT_EQ(txt->text(), QStringLiteral("120"));
    // A typed limit does not move the bar.
    txt->selectAll();
    tecla(txt, QStringLiteral("9"));
    EXPECT_EQ(scr->value(), 120);
}

TEST_F(Janelas, LotofacilNaoDeixaMarcarAsQuatroCaixas) {
    TrocaLoteria(p, QStringLiteral("Lotofácil"));
    JanelaFiltrar j(p);
    j.show();
    for (const char* nome : {"ChkLin", "ChkCol", "ChkLinVaz", "ChkColVaz"}) {
        auto* chk = filho<QCheckBox>(j, nome);
        EXPECT_FALSE(chk->isEnabled()) << nome;
        chk->click();
        EXPECT_FALSE(chk->isChecked()) << nome;
    }
    auto* par = filho<QCheckBox>(j, "ChkPar");
    par->click();
    EXPECT_TRUE(par->isChecked());
}

TEST_F(Janelas, ContadorTerminaEmAguardeDepoisDaExecucao) {
    for (int i = 0; i < 2000; ++i)
        aposta(QStringLiteral("01 02 03 04 05 06"));
    JanelaFiltrar j(p);
    j.show();
    filho<QPushButton>(j, "BtnOK")->click();
    EXPECT_EQ(p.e.QuantBan, 2000);
    EXPECT_EQ(filho<QLabel>(j, "LblContador")->text(), QStringLiteral(" Aguarde..."));
}

TEST(RepinturaQt, RepintaNoMaximoUmaVezPorIntervaloMasSempreQuandoForcada) {
    int64_t parado = 0;
    RepinturaQt r(1000, [&] { return parado; });
    int pinturas = 0;
    auto pinta = [&] { ++pinturas; };
    for (int i = 0; i < 100; ++i)
        r.repinta(pinta, false);
    EXPECT_EQ(pinturas, 1);
    r.repinta(pinta, true);
    EXPECT_EQ(pinturas, 2);
    int64_t agora = 0;
    RepinturaQt curta(5, [&] { return agora; });
    curta.repinta(pinta, false);
    agora += 4;
    curta.repinta(pinta, false);
    EXPECT_EQ(pinturas, 3);
    agora += 1;
    curta.repinta(pinta, false);
    EXPECT_EQ(pinturas, 4);
}

TEST_F(Janelas, QuantidadeDeDoisCaracteresNoMaximo) {
    JanelaEliminar j(p);
    j.show();
    auto* txt = filho<QLineEdit>(j, "TxtQuant");
    EXPECT_EQ(txt->maxLength(), 2);
    EXPECT_EQ(txt->text(), QString());
    EXPECT_EQ(j.windowTitle(), QStringLiteral("Eliminação aleatória de números"));
}

TEST_F(Janelas, EliminarRodaPeloBotaoEFecha) {
    aposta(QStringLiteral("01 02 03 04 05 06"));
    aposta(QStringLiteral("10 20 30 40 50 60"));
    JanelaEliminar j(p);
    j.show();
    auto* txt = filho<QLineEdit>(j, "TxtQuant");
    tecla(txt, QStringLiteral("2"));
    filho<QPushButton>(j, "BtnIniciar")->click();
    EXPECT_EQ(RetAposta(p, 0).size(), 12);
    EXPECT_EQ(RetAposta(p, 1).size(), 12);
    EXPECT_FALSE(j.isVisible());
}
