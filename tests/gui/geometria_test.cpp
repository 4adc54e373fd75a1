// The forms' geometry as it stands on the screen: every control placed in a
// frame stands inside the frame's contents, below its caption and border,
// and the main window's scroll bars stand where the layout puts them.
#include "apoio/Duplos.h"
#include "core/Estado.h"
#include "forms/ConfApostas.h"
#include "forms/Estatisticas.h"
#include "forms/Filtrar.h"
#include "forms/Janelas.h"
#include "forms/Montagem.h"
#include "forms/Sortear.h"
#include "forms/Sorvelo.h"
#include "relatorios/Conferencia.h"
#include "relatorios/Estatisticas.h"

#include <QApplication>
#include <QGroupBox>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <memory>

using namespace sorvelo;

namespace {

QString texto(const QRect& r) {
    return QStringLiteral("(%1, %2, %3 x %4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

// Every control of every frame of the window within the frame's contents,
// below its caption and its border; every frame within its window.
void confereMolduras(QWidget& janela) {
    const auto molduras = janela.findChildren<QGroupBox*>();
    ASSERT_FALSE(molduras.isEmpty());
    for (QGroupBox* g : molduras) {
        const QRect dentro = g->contentsRect();
        EXPECT_TRUE(g->parentWidget()->rect().contains(g->geometry()))
            << janela.objectName().toStdString() << "." << g->objectName().toStdString() << " "
            << texto(g->geometry()).toStdString() << " fora de "
            << texto(g->parentWidget()->rect()).toStdString();
        for (QWidget* filho : g->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (filho->isWindow()) continue;
            EXPECT_TRUE(dentro.contains(filho->geometry()))
                << janela.objectName().toStdString() << "." << g->objectName().toStdString() << ": "
                << filho->objectName().toStdString() << " " << texto(filho->geometry()).toStdString()
                << " fora de " << texto(dentro).toStdString();
        }
    }
}

struct Bancada {
    ServicosDuplos d;
    JanelasFormas janelas;
    Programa p{d.servicos(), janelas};
};

} // namespace

TEST(Geometria, ControlesDaJanelaPrincipalDentroDasMolduras) {
    Bancada b;
    Sorvelo janela(b.p, b.janelas);
    janela.show();
    QApplication::processEvents();
    confereMolduras(janela);
}

TEST(Geometria, ControlesDosDialogosDentroDasMolduras) {
    Bancada b;
    Sorvelo principal(b.p, b.janelas);
    {
        JanelaFiltrar f(b.p, &principal);
        f.show();
        confereMolduras(f);
    }
    {
        JanelaSortear s(b.p, &principal);
        s.show();
        confereMolduras(s);
    }
    {
        JanelaEstatisticas e(b.p, &principal);
        e.show();
        QApplication::processEvents();
        confereMolduras(e);
    }
}

TEST(Geometria, ConferenciaComAMolduraDeBaixoDentroDaJanela) {
    Bancada b;
    Sorvelo principal(b.p, b.janelas);
    JanelaConfApostas janela(b.p, std::make_unique<ConfApostas>(b.p), &principal);
    janela.show();
    QApplication::processEvents();
    confereMolduras(janela);
    // Taller and shorter, the frame follows the bottom and stays inside.
    for (int altura : {janela.height() + 150, janela.height() - 60}) {
        janela.resize(janela.width(), altura);
        QApplication::processEvents();
        confereMolduras(janela);
    }
}

TEST(Geometria, BarraHorizontalNoLugarDoDesenhoSemCobrirAsMolduras) {
    Bancada b;
    Sorvelo janela(b.p, b.janelas);
    janela.show();
    QApplication::processEvents();
    const Escala e(&janela);
    auto* area = janela.findChild<QWidget*>(QStringLiteral("AreaPrincipal"));
    auto* barra = janela.findChild<QScrollBar*>(QStringLiteral("BarraHoriz"));
    auto* vertical = janela.findChild<QScrollBar*>(QStringLiteral("BarraVert"));
    ASSERT_TRUE(area && barra && vertical);
    // At the size the window opens with, the bar stands at Top 7800 of the
    // work area, and below it the 140 twips that the layout leaves.
    EXPECT_EQ(barra->y(), e.tw(7800));
    EXPECT_EQ(barra->height(), e.tw(255));
    EXPECT_EQ(area->height(), e.tw(8900 - 705));
    EXPECT_EQ(vertical->geometry().bottom() + 1, e.tw(600) + e.tw(8900 - 1425));
    for (QGroupBox* g : janela.findChildren<QGroupBox*>()) {
        const QRect moldura(g->mapTo(area, QPoint(0, 0)), g->size());
        EXPECT_FALSE(moldura.intersects(barra->geometry()))
            << g->objectName().toStdString() << " " << texto(moldura).toStdString() << " sob a barra "
            << texto(barra->geometry()).toStdString();
    }
    // The frames on the picture do not run into one another.
    const auto molduras = janela.findChildren<QGroupBox*>();
    for (QGroupBox* a : molduras) {
        for (QGroupBox* c : molduras) {
            if (a == c || a->parentWidget() != c->parentWidget()) continue;
            EXPECT_FALSE(a->geometry().intersects(c->geometry()))
                << a->objectName().toStdString() << " e " << c->objectName().toStdString();
        }
    }
}
