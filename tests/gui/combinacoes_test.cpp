// The full combination and the closing through the real dialogs.
#include "apoio/FormasTeste.h"
#include "core/Grade.h"
#include "forms/Combinacoes.h"
#include "forms/Controles.h"
#include "forms/Sorvelo.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace sorvelo;

namespace {

class FluxoCombinacao : public ::testing::Test, public teste::FormasTeste {
protected:
    void SetUp() override { abreJanela(); }
    void TearDown() override { confereRoteiro(); }
};

TEST_F(FluxoCombinacao, SeteNumerosSeisAUmaVirandoSeteApostasEmOrdem) {
    for (int c : {0, 1, 2, 3, 4, 5, 6})
        ClicaNumero(p, Int16(int16_t(c)));
    QString total, valor;
    bool estVisivel = false, autoVisivel = true;
    quandoAbrir({[&](QWidget* d) {
                     total = d->findChild<QLabel*>(QStringLiteral("LblTotAp"))->text();
                     valor = d->findChild<QLabel*>(QStringLiteral("LblValAp"))->text();
                     estVisivel = d->findChild<QCheckBox*>(QStringLiteral("ChkEst"))->isVisible();
                     autoVisivel = d->findChild<QCheckBox*>(QStringLiteral("ChkAuto"))->isVisible();
                     d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
                 },
                 [](QWidget*) {}});
    clica("BtnIniciar");
    EXPECT_EQ(vistos, QStringList({QStringLiteral("Combinacoes"), QStringLiteral("InsereVetor")}));
    EXPECT_EQ(total, TextoQuantApostas(7));
    EXPECT_EQ(valor, QStringLiteral("31,50"));
    EXPECT_TRUE(estVisivel);
    EXPECT_FALSE(autoVisivel);
    EXPECT_EQ(p.e.QuantBan, 7);
    const QString texto = p.tela.TxtBanco.texto();
    EXPECT_TRUE(texto.startsWith(QStringLiteral("Dezenas escolhidas: 01 02 03 04 05 06 07 \r\n")));
    EXPECT_TRUE(
        texto.contains(QStringLiteral("00001)   01 02 03 04 05 06 \r\n00002)   01 02 03 04 05 07 \r\n")));
    EXPECT_TRUE(texto.contains(QStringLiteral("00007)   02 03 04 05 06 07 \r\n")));
    EXPECT_TRUE(p.tela.TxtBanco.visivel());
}

TEST_F(FluxoCombinacao, CancelarNoDialogoNaoTocaOBanco) {
    for (int c : {0, 1, 2, 3, 4, 5, 6})
        ClicaNumero(p, Int16(int16_t(c)));
    quandoAbrir({[](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnCancelar"))->click(); }});
    clica("BtnIniciar");
    EXPECT_EQ(vistos, QStringList({QStringLiteral("Combinacoes")}));
    EXPECT_TRUE(p.e.Cancelado);
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
}

TEST_F(FluxoCombinacao, SemNumerosAvisaENaoAbreODialogo) {
    clica("BtnIniciar");
    ASSERT_EQ(duplos.caixa.vistas().size(), 1u);
    EXPECT_EQ(duplos.caixa.vistas()[0].texto, QStringLiteral("Favor selecionar os números a combinar"));
    EXPECT_TRUE(vistos.isEmpty());
}

TEST_F(FluxoCombinacao, FechamentoDeDuqueComAutoCompletarDaApostasDeSeis) {
    janela->findChild<QComboBox*>(QStringLiteral("CmbFecha"))->setEditText(QStringLiteral("Duque"));
    bool autoVisivel = false;
    quandoAbrir({[&](QWidget* d) {
                     auto* chk = d->findChild<QCheckBox*>(QStringLiteral("ChkAuto"));
                     autoVisivel = chk->isVisible();
                     chk->click();
                     d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
                 },
                 [](QWidget*) {}});
    clica("BtnFechar");
    EXPECT_TRUE(autoVisivel);
    EXPECT_EQ(p.e.QuantBan, 1770);
    for (int r : {0, 500, 1769}) {
        int quant = 0;
        p.e.VetBan.celulas(r, quant);
        EXPECT_EQ(quant, 7) << "six numbers and the end mark, row " << r;
    }
    EXPECT_EQ(ContaNumeros(p), 0) << "the grid is cleared after a closing";
    EXPECT_TRUE(p.e.Historico.contains(QStringLiteral(": Fechamento completo de Duque\r\n")));
    EXPECT_TRUE(p.e.Historico.contains(QStringLiteral(": Foi selecionada a opção Auto-Completar.\r\n")));
}

TEST_F(FluxoCombinacao, FechamentoMostraTodasAsCelulasMarcadasAtrasDoDialogo) {
    janela->findChild<QComboBox*>(QStringLiteral("CmbFecha"))->setEditText(QStringLiteral("Duque"));
    std::vector<QColor> fundos;
    quandoAbrir({[&](QWidget* d) {
        for (const char* nome : {"Num(0)", "Num(59)", "Num(99)"})
            fundos.push_back(janela->findChild<CelulaNumero*>(QString::fromUtf8(nome))->fundo());
        d->findChild<QPushButton*>(QStringLiteral("BtnCancelar"))->click();
    }});
    clica("BtnFechar");
    const QColor marcado(vermelho(p.e.CorMarcado), verde(p.e.CorMarcado), azul(p.e.CorMarcado));
    ASSERT_EQ(fundos.size(), 3u);
    for (const QColor& c : fundos)
        EXPECT_EQ(c, marcado);
    EXPECT_NE(janela->findChild<CelulaNumero*>(QStringLiteral("Num(0)"))->fundo(), marcado)
        << "the grid is cleared after the closing";
}

TEST_F(FluxoCombinacao, SegundoLoteSemLimparRecomecaEm00001) {
    for (int c : {0, 1, 2, 3, 4, 5})
        ClicaNumero(p, Int16(int16_t(c)));
    quandoAbrir({[](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click(); },
                 [](QWidget*) {}});
    clica("BtnIniciar");
    duplos.caixa.responde(Resposta::Nao);
    quandoAbrir({[](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click(); },
                 [](QWidget*) {}});
    clica("BtnIniciar");
    ASSERT_FALSE(duplos.caixa.vistas().empty());
    EXPECT_EQ(duplos.caixa.vistas().back().texto,
              QStringLiteral("Limpar o banco de apostas para inserir os novos jogos?"));
    EXPECT_EQ(duplos.caixa.vistas().back().padrao, Resposta::Nao);
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(p.tela.TxtBanco.texto().count(QStringLiteral("00001)   01 02 03 04 05 06 ")), 2);
}

} // namespace
