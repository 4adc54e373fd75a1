// The rich-text view of the bank: painting of the coloured runs, selection,
// copy, following the end, the hidden document, a million lines.
#include "platform/qt/AreaRica.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using namespace sorvelo;

namespace {

constexpr Cor Vermelho = rgb(255, 0, 0);
constexpr Cor Azul = rgb(0, 0, 255);
constexpr int Margem = 3; // the view's left margin

// A view of a fixed size, shown offscreen, with a known font.
struct Vista {
    AreaRica area;
    explicit Vista(DocumentoRico* doc, int largura = 400, int altura = 200, int pontos = 10) {
        QFont f(QStringLiteral("DejaVu Sans"));
        f.setPointSize(pontos);
        area.setFont(f);
        area.resize(largura, altura);
        area.show();
        area.defineDocumento(doc);
    }
    QImage imagem() { return area.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

int conta(const QImage& img, const std::function<bool(QRgb)>& teste, QRect* limites = nullptr) {
    int n = 0;
    QRect r;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (teste(img.pixel(x, y))) {
                ++n;
                r |= QRect(x, y, 1, 1);
            }
    if (limites) *limites = r;
    return n;
}

std::function<bool(QRgb)> exata(Cor c) {
    return [c](QRgb p) { return (p & 0xFFFFFF) == c; };
}

void mouse(QWidget* alvo, QEvent::Type tipo, QPointF ponto, Qt::KeyboardModifiers mods = Qt::NoModifier) {
    const Qt::MouseButtons botoes = tipo == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent ev(tipo, ponto, alvo->mapToGlobal(ponto), Qt::LeftButton, botoes, mods);
    QCoreApplication::sendEvent(alvo, &ev);
}

void tecla(QWidget* alvo, int k, Qt::KeyboardModifiers mods = Qt::NoModifier) {
    QKeyEvent ev(QEvent::KeyPress, k, mods);
    QCoreApplication::sendEvent(alvo, &ev);
}

void acrescentaLinhas(DocumentoRico& doc, int64_t de, int64_t ate) {
    for (int64_t n = de; n <= ate; ++n) {
        doc.acrescenta(QString::number(n).rightJustified(5, u'0') + QStringLiteral(")"), rgb(150, 0, 0));
        doc.acrescenta(QStringLiteral("   01 02 03 04 05 06 \r\n"), rgb(0, 0, 255));
    }
}

// x of the point between character k-1 and k of a plain line.
qreal xDoCaractere(const AreaRica& a, const QString& linha, int k) {
    return Margem + QFontMetricsF(a.font()).horizontalAdvance(linha.left(k));
}

} // namespace

TEST(AreaRica, PintaCadaTrechoNaSuaCor) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("MMMM"), Vermelho, true);
    doc.acrescenta(QStringLiteral("MMMM\r\n"), Azul, false);
    Vista v(&doc, 400, 200, 24);
    const QImage img = v.imagem();
    QRect r, b;
    EXPECT_GT(conta(img, exata(Vermelho), &r), 20);
    EXPECT_GT(conta(img, exata(Azul), &b), 20);
    // Red first, blue behind it, both on the first line, on white.
    EXPECT_LT(r.right(), b.left());
    EXPECT_GE(r.left(), Margem);
    EXPECT_LT(r.bottom(), QFontMetrics(v.area.font()).lineSpacing() + 4);
    EXPECT_EQ(img.pixel(img.width() - 2, img.height() - 2) & 0xFFFFFF, 0xFFFFFFu);
    // The bold run is wider than the same letters in the normal weight.
    EXPECT_GT(r.width(), b.width());
}

TEST(AreaRica, PintaSoAsLinhasEmVista) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("MMMM\r\n"), Vermelho);
    for (int i = 0; i < 30; ++i)
        doc.acrescenta(QStringLiteral("linha\r\n"), 0);
    doc.acrescenta(QStringLiteral("MMMM"), Azul);
    Vista v(&doc, 300, 120, 12);
    // Follows the end: the blue last line is in sight, the red first is not.
    QImage img = v.imagem();
    EXPECT_EQ(conta(img, exata(Vermelho)), 0);
    EXPECT_GT(conta(img, exata(Azul)), 5);
    v.area.rolaParaLinha(0);
    img = v.imagem();
    EXPECT_GT(conta(img, exata(Vermelho)), 5);
    EXPECT_EQ(conta(img, exata(Azul)), 0);
}

TEST(AreaRica, ArrastoDoMouseSelecionaCaracteres) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("abc def\r\nghi jkl"), 0);
    Vista v(&doc);
    const qreal h = QFontMetricsF(v.area.font()).lineSpacing();
    QWidget* vp = v.area.viewport();
    // From between "a" and "b" of line 0 to between "h" and "i" of line 1.
    mouse(vp, QEvent::MouseButtonPress, {xDoCaractere(v.area, "abc def", 1) + 1, h / 2});
    mouse(vp, QEvent::MouseMove, {xDoCaractere(v.area, "ghi jkl", 2) - 1, h * 1.5});
    mouse(vp, QEvent::MouseButtonRelease, {xDoCaractere(v.area, "ghi jkl", 2) - 1, h * 1.5});
    EXPECT_EQ(v.area.inicioSelecao(), 1);
    EXPECT_EQ(v.area.fimSelecao(), 11);
    EXPECT_EQ(v.area.textoSelecionado(), QStringLiteral("bc def\r\ngh"));

    // Shift-click moves the free end, the anchor stays.
    mouse(vp, QEvent::MouseButtonPress, {xDoCaractere(v.area, "abc def", 5), h / 2}, Qt::ShiftModifier);
    mouse(vp, QEvent::MouseButtonRelease, {xDoCaractere(v.area, "abc def", 5), h / 2}, Qt::ShiftModifier);
    EXPECT_EQ(v.area.textoSelecionado(), QStringLiteral("bc d"));

    // Dragging backwards selects the same way; past the line end stops there.
    mouse(vp, QEvent::MouseButtonPress, {300, h / 2});
    mouse(vp, QEvent::MouseMove, {xDoCaractere(v.area, "abc def", 4), h / 2});
    EXPECT_EQ(v.area.inicioSelecao(), 4);
    EXPECT_EQ(v.area.fimSelecao(), 7);
    mouse(vp, QEvent::MouseButtonRelease, {xDoCaractere(v.area, "abc def", 4), h / 2});

    // A click alone leaves nothing selected.
    mouse(vp, QEvent::MouseButtonPress, {xDoCaractere(v.area, "abc def", 2), h / 2});
    mouse(vp, QEvent::MouseButtonRelease, {xDoCaractere(v.area, "abc def", 2), h / 2});
    EXPECT_EQ(v.area.inicioSelecao(), v.area.fimSelecao());
    EXPECT_TRUE(v.area.textoSelecionado().isEmpty());
}

TEST(AreaRica, CliqueDuploSelecionaPalavra) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("abc defgh ij"), 0);
    Vista v(&doc);
    const qreal h = QFontMetricsF(v.area.font()).lineSpacing();
    const QPointF ponto(xDoCaractere(v.area, "abc defgh ij", 6) + 1, h / 2);
    mouse(v.area.viewport(), QEvent::MouseButtonPress, ponto);
    mouse(v.area.viewport(), QEvent::MouseButtonRelease, ponto);
    mouse(v.area.viewport(), QEvent::MouseButtonDblClick, ponto);
    mouse(v.area.viewport(), QEvent::MouseButtonRelease, ponto);
    EXPECT_EQ(v.area.textoSelecionado(), QStringLiteral("defgh"));
}

TEST(AreaRica, SelecaoPintadaComORealce) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("MMMMMMMM"), Vermelho);
    Vista v(&doc, 400, 100, 20);
    const QColor realce = v.area.palette().color(QPalette::Highlight);
    const auto ehRealce = exata(Cor(realce.rgb() & 0xFFFFFF));
    EXPECT_EQ(conta(v.imagem(), ehRealce), 0);
    const int vermelhoAntes = conta(v.imagem(), exata(Vermelho));
    const qreal h = QFontMetricsF(v.area.font()).lineSpacing();
    mouse(v.area.viewport(), QEvent::MouseButtonPress, {xDoCaractere(v.area, "MMMMMMMM", 0), h / 2});
    mouse(v.area.viewport(), QEvent::MouseMove, {xDoCaractere(v.area, "MMMMMMMM", 4), h / 2});
    mouse(v.area.viewport(), QEvent::MouseButtonRelease, {xDoCaractere(v.area, "MMMMMMMM", 4), h / 2});
    ASSERT_EQ(v.area.textoSelecionado(), QStringLiteral("MMMM"));
    QRect r;
    const QImage img = v.imagem();
    EXPECT_GT(conta(img, ehRealce, &r), 50);
    EXPECT_LE(r.right(), int(xDoCaractere(v.area, "MMMMMMMM", 4)) + 1);
    // The selected half is drawn in the highlight's text colour.
    const int vermelhoDepois = conta(img, exata(Vermelho));
    EXPECT_GT(vermelhoDepois, 0);
    EXPECT_LT(vermelhoDepois, vermelhoAntes * 3 / 4);
}

TEST(AreaRica, CtrlACtrlCCopiaOTextoTodo) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("Dezenas escolhidas: \r\n"), rgb(0, 150, 0), true);
    acrescentaLinhas(doc, 1, 3);
    doc.acrescenta(QStringLiteral("\r\n"), rgb(0, 150, 0), true);
    Vista v(&doc);
    QGuiApplication::clipboard()->setText(QStringLiteral("antes"));
    tecla(&v.area, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(v.area.inicioSelecao(), 0);
    EXPECT_EQ(v.area.fimSelecao(), doc.comprimento());
    tecla(&v.area, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), doc.texto());
    EXPECT_TRUE(
        QGuiApplication::clipboard()->text().contains(QStringLiteral("00002)   01 02 03 04 05 06 \r\n")));
}

TEST(AreaRica, CopiarComAtalhoTemPrecedencia) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("x"), 0);
    Vista v(&doc);
    QKeyEvent ev(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    ev.ignore();
    QCoreApplication::sendEvent(&v.area, &ev);
    EXPECT_TRUE(ev.isAccepted());
}

TEST(AreaRica, SegueOFimAoAcrescentar) {
    DocumentoRico doc;
    acrescentaLinhas(doc, 1, 100);
    Vista v(&doc);
    const int vis = v.area.linhasVisiveis();
    ASSERT_GT(vis, 2);
    ASSERT_LT(vis, 50);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), doc.quantLinhas() - vis);

    acrescentaLinhas(doc, 101, 150);
    v.area.atualiza();
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), doc.quantLinhas() - vis);

    // Scrolled up by the user: the place is kept.
    v.area.rolaParaLinha(10);
    acrescentaLinhas(doc, 151, 160);
    v.area.atualiza();
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 10);
    // No change: atualiza keeps everything.
    v.area.atualiza();
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 10);

    // A batch that empties and hides the bank ends at its end anyway.
    doc.limpa();
    doc.defineVisivel(false);
    v.area.atualiza();
    acrescentaLinhas(doc, 1, 80);
    v.area.atualiza();
    doc.defineVisivel(true);
    v.area.atualiza();
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), doc.quantLinhas() - vis);
    EXPECT_EQ(v.area.verticalScrollBar()->maximum(), doc.quantLinhas() - vis);

    // A line wider than the view brings the horizontal bar, which takes
    // height from the view: the end stays in sight.
    doc.acrescenta(QString(300, u'9') + QStringLiteral("\r\n"), 0);
    v.area.atualiza();
    QCoreApplication::processEvents();
    ASSERT_TRUE(v.area.horizontalScrollBar()->isVisible());
    const qreal altura = std::ceil(QFontMetricsF(v.area.font()).lineSpacing());
    EXPECT_EQ(v.area.linhasVisiveis(), int(v.area.viewport()->height() / altura));
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), doc.quantLinhas() - v.area.linhasVisiveis());
}

TEST(AreaRica, ReescritaLimpaASelecao) {
    DocumentoRico doc;
    acrescentaLinhas(doc, 1, 5);
    Vista v(&doc);
    v.area.selecionaTudo();
    ASSERT_GT(v.area.fimSelecao(), 0);
    doc.defineTexto(QStringLiteral("ab"));
    v.area.atualiza();
    EXPECT_EQ(v.area.inicioSelecao(), 0);
    EXPECT_EQ(v.area.fimSelecao(), 0);
    // Appending keeps a selection.
    v.area.selecionaTudo();
    doc.acrescenta(QStringLiteral("cd"), 0);
    v.area.atualiza();
    EXPECT_EQ(v.area.textoSelecionado(), QStringLiteral("ab"));
}

TEST(AreaRica, DocumentoEscondidoNaoEPintado) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("MMMM\r\n"), Vermelho);
    Vista v(&doc, 300, 120, 16);
    ASSERT_GT(conta(v.imagem(), exata(Vermelho)), 5);

    doc.defineVisivel(false);
    v.area.atualiza();
    for (int i = 0; i < 200; ++i)
        doc.acrescenta(QStringLiteral("MMMM\r\n"), Azul);
    v.area.atualiza();
    QImage img = v.imagem();
    EXPECT_EQ(conta(img, exata(Vermelho)), 0);
    EXPECT_EQ(conta(img, exata(Azul)), 0);
    EXPECT_EQ(conta(img, exata(0xFFFFFF)), 0);
    // The hidden batch is not taken in yet.
    EXPECT_EQ(v.area.verticalScrollBar()->maximum(), 0);

    doc.defineVisivel(true);
    v.area.atualiza();
    img = v.imagem();
    EXPECT_GT(conta(img, exata(Azul)), 5);
    EXPECT_EQ(v.area.verticalScrollBar()->maximum(), doc.quantLinhas() - v.area.linhasVisiveis());
}

TEST(AreaRica, LarguraAcompanhaALinhaMaisLonga) {
    DocumentoRico doc;
    doc.acrescenta(QStringLiteral("curta\r\n"), 0);
    Vista v(&doc, 200, 100);
    EXPECT_EQ(v.area.horizontalScrollBar()->maximum(), 0);
    // The last line grows in pieces.
    const QString longa(200, u'9');
    doc.acrescenta(longa.left(100), 0);
    v.area.atualiza();
    doc.acrescenta(longa.mid(100), 0);
    v.area.atualiza();
    const int medida = int(QFontMetricsF(v.area.font()).horizontalAdvance(longa));
    EXPECT_GE(v.area.larguraConteudo(), medida);
    EXPECT_GT(v.area.horizontalScrollBar()->maximum(), medida - 200);
    // Rewritten shorter: the range shrinks.
    doc.defineTexto(QStringLiteral("curta"));
    v.area.atualiza();
    EXPECT_LT(v.area.larguraConteudo(), 100);
    EXPECT_EQ(v.area.horizontalScrollBar()->maximum(), 0);
}

TEST(AreaRica, MilhaoDeLinhasRolaAoMeio) {
    DocumentoRico doc;
    doc.defineVisivel(false);
    acrescentaLinhas(doc, 1, 1000000);
    doc.defineVisivel(true);
    Vista v(&doc);
    ASSERT_EQ(doc.quantLinhas(), 1000001);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 1000001 - v.area.linhasVisiveis());

    v.area.rolaParaLinha(500000);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 500000);
    const int64_t pos = v.area.posicaoEm({Margem + 1, 2});
    EXPECT_EQ(doc.linhaDa(pos), 500000);
    EXPECT_EQ(doc.texto().mid(doc.inicioLinha(500000), 6), QStringLiteral("500001"));
    QRect b;
    EXPECT_GT(conta(v.imagem(), exata(Azul), &b), 20);

    // Keyboard and wheel.
    tecla(&v.area, Qt::Key_PageDown);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 500000 + v.area.linhasVisiveis());
    tecla(&v.area, Qt::Key_Up);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 500000 + v.area.linhasVisiveis() - 1);
    tecla(&v.area, Qt::Key_PageUp);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 499999);
    tecla(&v.area, Qt::Key_Down);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 500000);
    QWheelEvent roda(QPointF(10, 10), v.area.viewport()->mapToGlobal(QPointF(10, 10)), QPoint(),
                     QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(v.area.viewport(), &roda);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 500000 + QApplication::wheelScrollLines());
    tecla(&v.area, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 0);
    tecla(&v.area, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 1000001 - v.area.linhasVisiveis());
}

TEST(AreaRica, DocumentoVazio) {
    DocumentoRico doc;
    Vista v(&doc);
    QGuiApplication::clipboard()->setText(QStringLiteral("antes"));
    v.area.selecionaTudo();
    v.area.copia();
    EXPECT_EQ(v.area.inicioSelecao(), 0);
    EXPECT_EQ(v.area.fimSelecao(), 0);
    EXPECT_TRUE(v.area.textoSelecionado().isEmpty());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("antes"));
    EXPECT_EQ(v.area.primeiraLinhaVisivel(), 0);
    EXPECT_EQ(v.area.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(v.area.posicaoEm({50, 50}), 0);
    mouse(v.area.viewport(), QEvent::MouseButtonPress, {50, 50});
    mouse(v.area.viewport(), QEvent::MouseButtonRelease, {50, 50});
    const QImage img = v.imagem();
    EXPECT_EQ(conta(img, exata(0xFFFFFF)), img.width() * img.height());

    // No document at all.
    AreaRica sem;
    sem.resize(100, 50);
    sem.atualiza();
    EXPECT_TRUE(sem.textoSelecionado().isEmpty());
    EXPECT_EQ(sem.posicaoEm({10, 10}), 0);
    EXPECT_FALSE(sem.grab().isNull());
}
