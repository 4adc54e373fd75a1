// An editable rich-text area: typing, deletion and paste at the caret, in
// the format of the text before it; a read-only area ignores them.
#include "platform/qt/AreaRica.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {
void tecla(QWidget* w, int key, const QString& texto = QString(), Qt::KeyboardModifiers m = Qt::NoModifier) {
    QKeyEvent e(QEvent::KeyPress, key, m, texto);
    QApplication::sendEvent(w, &e);
}

struct Area {
    DocumentoRico doc;
    AreaRica area;
    Area() {
        doc.acrescenta(QStringLiteral("00001)  "), rgb(150, 0, 0));
        doc.acrescenta(QStringLiteral("01 02\r\nfim"), rgb(0, 0, 255));
        area.resize(400, 200);
        area.defineDocumento(&doc);
        area.defineEditavel(true);
        area.show();
    }
};
} // namespace

TEST(AreaRicaEdicao, DigitarNoCursorComOFormatoDoTextoAntes) {
    Area a;
    a.area.defineCursor(8);
    tecla(&a.area, Qt::Key_X, QStringLiteral("x"));
    tecla(&a.area, Qt::Key_Y, QStringLiteral("y"));
    EXPECT_EQ(a.doc.texto(), QStringLiteral("00001)  xy01 02\r\nfim"));
    EXPECT_EQ(a.doc.formatoEm(8).cor, rgb(150, 0, 0));
    EXPECT_EQ(a.doc.formatoEm(10).cor, rgb(0, 0, 255));
    EXPECT_EQ(a.area.cursor(), 10);
}

TEST(AreaRicaEdicao, ApagarParaTrasEParaFrenteComOFimDeLinhaInteiro) {
    Area a;
    a.area.defineCursor(13);
    tecla(&a.area, Qt::Key_Delete);
    EXPECT_EQ(a.doc.texto(), QStringLiteral("00001)  01 02fim"));
    EXPECT_EQ(a.doc.quantLinhas(), 1);
    tecla(&a.area, Qt::Key_Backspace);
    tecla(&a.area, Qt::Key_Backspace);
    EXPECT_EQ(a.doc.texto(), QStringLiteral("00001)  01 fim"));
    EXPECT_EQ(a.area.cursor(), 11);
}

TEST(AreaRicaEdicao, SelecaoSubstituidaPeloTextoEColarComFimDeLinhaDoSistema) {
    Area a;
    a.area.defineCursor(0);
    a.area.defineCursor(5, true);
    tecla(&a.area, Qt::Key_A, QStringLiteral("A"));
    EXPECT_EQ(a.doc.texto(), QStringLiteral("A)  01 02\r\nfim"));
    QGuiApplication::clipboard()->setText(QStringLiteral("p\nq"));
    a.area.cola();
    EXPECT_EQ(a.doc.texto(), QStringLiteral("Ap\r\nq)  01 02\r\nfim"));
    EXPECT_EQ(a.doc.quantLinhas(), 3);
}

TEST(AreaRicaEdicao, SetasMovemOCursor) {
    Area a;
    a.area.defineCursor(0);
    tecla(&a.area, Qt::Key_End);
    EXPECT_EQ(a.area.cursor(), 13);
    tecla(&a.area, Qt::Key_Down);
    EXPECT_EQ(a.area.cursor(), 18);
    tecla(&a.area, Qt::Key_Home);
    EXPECT_EQ(a.area.cursor(), 15);
    tecla(&a.area, Qt::Key_Left);
    EXPECT_EQ(a.area.cursor(), 14);
    tecla(&a.area, Qt::Key_Home, QString(), Qt::ControlModifier);
    EXPECT_EQ(a.area.cursor(), 0);
}

TEST(AreaRicaEdicao, AreaSomenteLeituraIgnoraADigitacao) {
    Area a;
    a.area.defineEditavel(false);
    const QString antes = a.doc.texto();
    tecla(&a.area, Qt::Key_X, QStringLiteral("x"));
    tecla(&a.area, Qt::Key_Backspace);
    a.area.cola();
    EXPECT_EQ(a.doc.texto(), antes);
}

TEST(AreaRicaEdicao, EdicaoNaoVoltaAoFimNemPerdeOCursor) {
    DocumentoRico doc;
    QString t;
    for (int i = 0; i < 2000; ++i)
        t += QStringLiteral("linha %1\r\n").arg(i);
    doc.defineTexto(t);
    AreaRica area;
    area.resize(300, 200);
    area.defineDocumento(&doc);
    area.defineEditavel(true);
    area.show();
    area.rolaParaLinha(0);
    area.defineCursor(3);
    tecla(&area, Qt::Key_Backspace);
    EXPECT_EQ(area.primeiraLinhaVisivel(), 0);
    EXPECT_EQ(area.cursor(), 2);
    EXPECT_TRUE(doc.texto().startsWith(QStringLiteral("liha 0\r\n")));
}
