// The dialog "Combinações super reduzidas" as a window: its controls, its
// caption, and the run when it comes to the front.
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Principal.h"
#include "forms/CombSuperReduz.h"
#include "relatorios/Pontuacao.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

struct Preparado {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    QTemporaryDir pasta;

    explicit Preparado(const QByteArray& tabela) {
        d.pasta.define(pasta.path());
        CarregaPrincipal(p);
        for (int n : {5, 10, 15, 20, 25, 30, 35, 40})
            ClicaNumero(p, Int16::de(int64_t(n - 1)));
        QFile f(QDir(pasta.path()).filePath(QStringLiteral("Megasena.sv")));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        QByteArray b = tabela;
        for (char& c : b)
            c = char(255 - static_cast<unsigned char>(c));
        f.write(b);
        f.close();
        LimpaBancoApostas(p);
        CarregaNumeros(p);
        CarregaVetDezEsc(p);
        p.e.QuantEscolhidos = 8;
        p.e.DezAposta = 4;
        p.e.QuantAcertar = 4;
        p.e.DezFinal = 6;
    }
};

} // namespace

TEST(CombSuperReduz, ControlesComSeusNomes) {
    Preparado t("");
    JanelaCombSuperReduz janela(t.p);
    EXPECT_EQ(janela.objectName(), QStringLiteral("CombSuperReduz"));
    EXPECT_EQ(janela.windowTitle(), QStringLiteral("Combinações super reduzidas"));
    auto* mensagem = janela.findChild<QLabel*>(QStringLiteral("LblMensagem"));
    ASSERT_NE(mensagem, nullptr);
    EXPECT_EQ(mensagem->text(), QStringLiteral("Efetuando reduções, aguarde..."));
    ASSERT_NE(janela.findChild<QLabel*>(QStringLiteral("LblCont")), nullptr);
    ASSERT_NE(janela.findChild<QLabel*>(QStringLiteral("LblTotal")), nullptr);
    auto* cancelar = janela.findChild<QPushButton*>(QStringLiteral("BtnCancelar"));
    ASSERT_NE(cancelar, nullptr);
    EXPECT_EQ(cancelar->text(), QStringLiteral("Cancelar"));
}

TEST(CombSuperReduz, AoAparecerEscreveOBlocoNoBancoEFecha) {
    Preparado t("MSC08A04G04\r\n01 02 03 04 05 08\r\n03 04 05 06 07 08 ##");
    JanelaCombSuperReduz janela(t.p);
    janela.mostraModal();
    EXPECT_FALSE(janela.isVisible());
    EXPECT_EQ(t.p.e.QuantBan, 2);
    EXPECT_EQ(RetAposta(t.p, 1), QStringLiteral("15 20 25 30 35 40 "));
    EXPECT_TRUE(t.p.tela.TxtBanco.visivel());
    EXPECT_TRUE(t.d.caixa.vistas().empty());
}

TEST(CombSuperReduz, SemTabelaMostraACaixaEFecha) {
    Preparado t("");
    JanelaCombSuperReduz janela(t.p);
    janela.mostraModal();
    EXPECT_FALSE(janela.isVisible());
    ASSERT_EQ(t.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(t.d.caixa.vistas()[0].texto,
              QStringLiteral("Não há super-reduções para os parâmetros informados!"));
    EXPECT_EQ(t.p.e.QuantBan, 0);
}
