// The window "Listagem do banco de apostas" on the real widgets: the fonts of
// the system but the last, the font and the size of the whole listing in the
// view, a size that is no number, the editable view.
#include "apoio/Duplos.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "forms/RelBanco.h"
#include "platform/qt/AreaRica.h"

#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {
struct Janela {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    std::unique_ptr<JanelaRelBanco> janela;
    explicit Janela(const QString& jogo = QStringLiteral("Mega-Sena")) {
        CarregaPrincipal(p);
        TrocaLoteria(p, jogo);
        auto& e = p.e;
        e.VetBan.redimensiona(81, 3);
        for (int linha = 0; linha < 3; ++linha) {
            for (int k = 0; k < 6; ++k)
                e.VetBan.defineCodigo(k, linha, MatrizTexto::codigoNumero(k + 1 + linha));
            e.VetBan.defineCodigo(6, linha, MatrizTexto::Fim);
        }
        e.QuantBan = 3;
        janela = std::make_unique<JanelaRelBanco>(p);
        janela->show();
        for (int i = 0; i < 20 && !janela->logica().Preenchido; ++i)
            QApplication::processEvents();
    }
    AreaRica* area() const { return janela->findChild<AreaRica*>(QStringLiteral("RTFRel")); }
    QComboBox* combo(const char* nome) const {
        return janela->findChild<QComboBox*>(QString::fromUtf8(nome));
    }
};
} // namespace

TEST(JanelaRelBanco, ListagemMontadaAoAparecerNaAreaEditavel) {
    Janela j;
    ASSERT_TRUE(j.janela->logica().Preenchido);
    ASSERT_NE(j.area(), nullptr);
    EXPECT_TRUE(j.area()->editavel());
    EXPECT_TRUE(j.area()->documento()->texto().contains(QStringLiteral("00001)  01 02 03 04 05 06    ")));
    EXPECT_EQ(j.janela->windowTitle(), QStringLiteral("Listagem do banco de apostas"));
    EXPECT_TRUE(j.janela->logica().tela.RTFRel.visivel());
}

TEST(JanelaRelBanco, FontesDoSistemaMenosAUltima) {
    Janela j;
    const QStringList familias = QFontDatabase::families();
    QComboBox* fonte = j.combo("CmbFonte");
    ASSERT_NE(fonte, nullptr);
    EXPECT_EQ(fonte->count(), std::max<qsizetype>(0, familias.size() - 1));
    ASSERT_GT(familias.size(), 1) << "the project's fonts are installed";
    EXPECT_EQ(fonte->itemText(fonte->count() - 1), familias[familias.size() - 2]);
    EXPECT_EQ(fonte->findText(familias.last()), -1);
    EXPECT_EQ(fonte->currentText(), QStringLiteral("Arial"));
    QComboBox* tamanho = j.combo("CmbTamanho");
    EXPECT_EQ(tamanho->count(), 19);
    EXPECT_EQ(tamanho->itemText(0), QStringLiteral("6"));
    EXPECT_EQ(tamanho->itemText(18), QStringLiteral("24"));
    EXPECT_EQ(tamanho->currentText(), QStringLiteral("10"));
    EXPECT_DOUBLE_EQ(j.area()->font().pointSizeF(), 9.75);
}

TEST(JanelaRelBanco, TamanhoEFonteMudamAListagemInteira) {
    Janela j;
    QComboBox* tamanho = j.combo("CmbTamanho");
    j.area()->defineCursor(30);
    tamanho->setCurrentIndex(tamanho->findText(QStringLiteral("18")));
    emit tamanho->textActivated(QStringLiteral("18"));
    EXPECT_DOUBLE_EQ(j.area()->font().pointSizeF(), 18);
    EXPECT_EQ(j.area()->cursor(), 0) << "the caret ends at the start";
    QComboBox* fonte = j.combo("CmbFonte");
    emit fonte->textActivated(QStringLiteral("Liberation Mono"));
    EXPECT_EQ(j.area()->font().family(), QStringLiteral("Liberation Mono"));
    EXPECT_DOUBLE_EQ(j.area()->font().pointSizeF(), 18);
}

TEST(JanelaRelBanco, TamanhoQueNaoENumeroNaoQuebraAArea) {
    Janela j;
    QComboBox* tamanho = j.combo("CmbTamanho");
    emit tamanho->textActivated(QStringLiteral("14"));
    emit tamanho->textActivated(QStringLiteral("abc"));
    EXPECT_EQ(j.janela->logica().tela.FonteTamanho, 0);
    EXPECT_DOUBLE_EQ(j.area()->font().pointSizeF(), 14) << "the view keeps the size it had";
    j.area()->repaint();
    j.janela->logica().BtnImprimir();
    EXPECT_EQ(j.d.impressora.registro.value(1), QStringLiteral("fonte Arial 0"));
}

TEST(JanelaRelBanco, LotomaniaEmOitoPontos) {
    Janela j(QStringLiteral("Lotomania"));
    EXPECT_DOUBLE_EQ(j.area()->font().pointSizeF(), 8);
    EXPECT_EQ(j.combo("CmbTamanho")->currentText(), QStringLiteral("8"));
}

TEST(JanelaRelBanco, DigitarNaListagemChegaAImpressora) {
    Janela j;
    j.area()->defineCursor(0);
    QKeyEvent tecla(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("A"));
    QApplication::sendEvent(j.area(), &tecla);
    j.janela->logica().BtnImprimir();
    EXPECT_TRUE(j.d.impressora.registro.value(2).startsWith(QStringLiteral("texto AListagem de apostas")));
}
