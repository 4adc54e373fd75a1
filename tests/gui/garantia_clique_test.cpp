// Only a choice of an item in CmbGarantia derives CmbAcertar: passing
// through the box with Tab doesn't, nor does the window's destruction with
// the focus in it.
#include "apoio/Duplos.h"
#include "core/Estado.h"
#include "forms/Janelas.h"
#include "forms/Protecao.h"
#include "forms/Sorvelo.h"
#include "programa/Programa.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

class CliqueGarantia : public ::testing::Test {
protected:
    void SetUp() override {
        duplos.pasta.define(pasta.path());
        janela = std::make_unique<Sorvelo>(p, janelas);
        janela->show();
        janela->activateWindow();
        QApplication::setActiveWindow(janela.get());
        QApplication::processEvents();
        garantia = janela->findChild<QComboBox*>(QStringLiteral("CmbGarantia"));
        acertar = janela->findChild<QComboBox*>(QStringLiteral("CmbAcertar"));
        ASSERT_NE(garantia, nullptr);
        ASSERT_NE(acertar, nullptr);
    }
    void TearDown() override { defineTratadorFalha(nullptr); }

    void tecla(QWidget* w, int codigo, const QString& texto = QString()) {
        QWidget* alvo = QApplication::focusWidget() ? QApplication::focusWidget() : w;
        QKeyEvent aperta(QEvent::KeyPress, codigo, Qt::NoModifier, texto);
        QKeyEvent solta(QEvent::KeyRelease, codigo, Qt::NoModifier, texto);
        QApplication::sendEvent(alvo, &aperta);
        QApplication::sendEvent(alvo, &solta);
        QApplication::processEvents();
    }
    // CmbAcertar enabled by ChkReduzir, then "9" typed into it.
    void digitaNoveEmAcertar() {
        janela->findChild<QCheckBox*>(QStringLiteral("ChkReduzir"))->click();
        QApplication::processEvents();
        ASSERT_TRUE(acertar->isEnabled());
        acertar->setFocus(Qt::TabFocusReason);
        acertar->lineEdit()->selectAll();
        tecla(acertar, Qt::Key_9, QStringLiteral("9"));
        ASSERT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("9"));
    }

    QTemporaryDir pasta;
    ServicosDuplos duplos;
    JanelasFormas janelas;
    Programa p{duplos.servicos(), janelas};
    std::unique_ptr<Sorvelo> janela;
    QComboBox* garantia = nullptr;
    QComboBox* acertar = nullptr;
};

} // namespace

TEST_F(CliqueGarantia, TabPorCmbGarantiaMantemOCmbAcertarDigitado) {
    digitaNoveEmAcertar();
    ASSERT_EQ(garantia->currentText(), QStringLiteral("Quina"));
    garantia->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    tecla(garantia, Qt::Key_Tab, QStringLiteral("\t"));
    EXPECT_NE(QApplication::focusWidget(), garantia);
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("9"));
    EXPECT_EQ(acertar->currentText(), QStringLiteral("9"));
}

TEST_F(CliqueGarantia, EscolherUmItemDerivaOCmbAcertar) {
    digitaNoveEmAcertar();
    garantia->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    // The arrow key chooses the next item of the list: a click for the box.
    const int atual = garantia->findText(garantia->currentText());
    garantia->setCurrentIndex(atual);
    tecla(garantia, Qt::Key_Down);
    EXPECT_EQ(garantia->currentText(), QStringLiteral("Sena"));
    EXPECT_EQ(p.tela.CmbGarantia.Text, QStringLiteral("Sena"));
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("6"));
}

TEST_F(CliqueGarantia, DestruirAJanelaComOFocoNoCmbGarantia) {
    digitaNoveEmAcertar();
    garantia->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), garantia);
    janela.reset();
    QApplication::processEvents();
    EXPECT_EQ(p.tela.CmbAcertar.Text, QStringLiteral("9"));
}
