#include "apoio/ProgramaTeste.h"
#include "relatorios/GarantiaBanco.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using sorvelo::teste::ProgramaTeste;

TEST(VerificaGarantia, GarantiaDoQuadroPorNomeOuNumero) {
    EXPECT_EQ(garantiaDoQuadro(QStringLiteral("Duque")), 2);
    EXPECT_EQ(garantiaDoQuadro(QStringLiteral("Quadra")), 4);
    EXPECT_EQ(garantiaDoQuadro(QStringLiteral("Sena")), 6);
    EXPECT_EQ(garantiaDoQuadro(QStringLiteral("13")), 13);
    EXPECT_EQ(garantiaDoQuadro(QString()), 0);
}

TEST(VerificaGarantia, LeGradeQuadroEBanco) {
    ProgramaTeste a(QStringLiteral("Quina"));
    a.marca({3, 7, 11, 15, 20});
    a.p.tela.CmbGarantia.Text = QStringLiteral("Terno");
    a.p.tela.CmbAcertar.Text = QStringLiteral("3");
    a.aposta({3, 7, 11, 40, 50});
    a.aposta({3, 15, 20, 41, 42});
    EXPECT_EQ(numerosMarcados(a.p), (std::vector<int>{3, 7, 11, 15, 20}));
    VerificaGarantia v(a.p);
    v.Carrega();
    EXPECT_EQ(v.resultado().total, 10u);
    EXPECT_EQ(v.resultado().cobertos, 2u);
    const QString texto = v.tela.RTFGarantia.texto();
    EXPECT_TRUE(texto.contains(QStringLiteral("Grupos de 3 números cobertos: 2 de 10 (20,00%)")))
        << texto.toStdString();
    EXPECT_TRUE(texto.contains(QStringLiteral("\r\n03 07 15\r\n")));
}

TEST(VerificaGarantia, AcertarAbaixoDaGarantiaContaComoAGarantia) {
    ProgramaTeste a(QStringLiteral("Quina"));
    a.marca({1, 2, 3, 4});
    a.p.tela.CmbGarantia.Text = QStringLiteral("Terno");
    a.p.tela.CmbAcertar.Text = QStringLiteral("2");
    a.aposta({1, 2, 3, 9, 10});
    VerificaGarantia v(a.p);
    v.Carrega();
    EXPECT_EQ(v.resultado().acertar, 3);
    EXPECT_EQ(v.resultado().cobertos, 1u);
}

TEST(VerificaGarantia, ImprimirMandaAListagemParaAImpressora) {
    ProgramaTeste a(QStringLiteral("Quina"));
    a.marca({1, 2, 3});
    a.p.tela.CmbGarantia.Text = QStringLiteral("Duque");
    a.p.tela.CmbAcertar.Text = QStringLiteral("2");
    a.aposta({1, 2, 3, 9, 10});
    VerificaGarantia v(a.p);
    v.Carrega();
    v.BtnImprimir();
    EXPECT_TRUE(a.d.impressora.registro.join(QString()).contains(QStringLiteral("A garantia se cumpre")));
}
