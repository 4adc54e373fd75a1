// The reduced combination through the real main window and dialogs.
#include "apoio/Duplos.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "forms/CombinacoesReduz.h"
#include "forms/Janelas.h"
#include "forms/Sorvelo.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace sorvelo;

namespace {

class FluxoReduzida : public ::testing::Test {
protected:
    void SetUp() override {
        janela = std::make_unique<Sorvelo>(p, janelas);
        janela->show();
    }
    // Runs `acao` on each modal dialog as it comes up, in order.
    void quandoAbrir(std::vector<std::function<void(QWidget*)>> acoes) {
        passos = std::move(acoes);
        vigia();
    }
    void vigia() {
        QTimer::singleShot(0, janela.get(), [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal && modal != ultimo && !passos.empty()) {
                ultimo = modal;
                auto acao = passos.front();
                passos.erase(passos.begin());
                vistos << modal->objectName();
                acao(modal);
            }
            if (!passos.empty() || QApplication::activeModalWidget()) vigia();
        });
    }
    void marcaFaixa(int de, int ate) {
        for (int n = de; n <= ate; ++n)
            ClicaNumero(p, Int16(int16_t(n - 1)));
        janela->sincroniza();
    }
    void clicaReduz() { janela->findChild<QPushButton*>(QStringLiteral("BtnReduz"))->click(); }

    ServicosDuplos duplos;

    JanelasFormas janelas;
    Programa p{duplos.servicos(), janelas};
    std::unique_ptr<Sorvelo> janela;
    std::vector<std::function<void(QWidget*)>> passos;
    QWidget* ultimo = nullptr;
    QStringList vistos;
};

TEST_F(FluxoReduzida, DezNumerosQuadraPeloBotaoDaJanela) {
    marcaFaixa(1, 10);
    p.tela.CmbGarantia.Text = QStringLiteral("Quadra");
    CliqueGarantia(p);
    janela->sincroniza();
    QString garantia, acertar;
    quandoAbrir({[&](QWidget* d) {
                     garantia = d->findChild<QLabel*>(QStringLiteral("LblGarantia"))->text();
                     acertar = d->findChild<QLabel*>(QStringLiteral("LblAcertar"))->text();
                     d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
                 },
                 [](QWidget*) {}});
    clicaReduz();
    EXPECT_EQ(vistos.value(0), QStringLiteral("CombinacoesReduz"));
    EXPECT_EQ(garantia, QStringLiteral("Quadra "));
    EXPECT_EQ(acertar, QStringLiteral("4"));
    EXPECT_EQ(p.e.QuantBan, 27);
    EXPECT_TRUE(p.tela.TxtBanco.visivel());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FluxoReduzida, FecharOsDialogosPelaMolduraEhCancelar) {
    marcaFaixa(1, 10);
    quandoAbrir({[](QWidget* d) { d->close(); }});
    clicaReduz();
    EXPECT_TRUE(p.e.Cancelado);
    EXPECT_EQ(vistos, QStringList{QStringLiteral("CombinacoesReduz")});

    // The insertion closed by its frame while it combines: the run stops and
    // the bank is left empty.
    vistos.clear();
    ultimo = nullptr;
    QWidget* insercao = nullptr;
    duplos.cedencia.aoCeder = [&](long long) {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal && modal->objectName() == QStringLiteral("InsereVetorReduz") && !insercao) {
            insercao = modal;
            modal->close();
        }
    };
    quandoAbrir({[](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click(); },
                 [](QWidget*) {}});
    clicaReduz();
    EXPECT_NE(insercao, nullptr);
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FluxoReduzida, ComReduzirASuperReducaoAvisaQueNaoHa) {
    marcaFaixa(1, 10);
    auto* acertar = janela->findChild<QComboBox*>(QStringLiteral("CmbAcertar"));
    EXPECT_FALSE(acertar->isEnabled());
    janela->findChild<QCheckBox*>(QStringLiteral("ChkReduzir"))->click();
    EXPECT_TRUE(acertar->isEnabled());
    EXPECT_TRUE(p.tela.ChkReduzir.Value);
    p.tela.CmbGarantia.Text = QStringLiteral("Quadra");
    p.tela.CmbAcertar.Text = QStringLiteral("6");
    janela->sincroniza();
    clicaReduz();
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto,
              QStringLiteral("Não há super-reduções para os parâmetros informados!"));
}

} // namespace
