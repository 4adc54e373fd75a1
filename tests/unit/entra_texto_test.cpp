#include "apoio/ProgramaTeste.h"
#include "relatorios/EntraTexto.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using sorvelo::teste::ProgramaTeste;

namespace {
struct Prompt : ProgramaTeste {
    Prompt() {
        p.e.TextoPrompt = QStringLiteral("Informe a quantidade de conferências a efetuar:");
        p.e.TextoDigitado = QStringLiteral("100");
    }
};
} // namespace

TEST(EntraTexto, MostraAPerguntaEOValorProposto) {
    Prompt a;
    EntraTexto f(a.p);
    EXPECT_EQ(f.tela.Caption, QStringLiteral("Sorvelo"));
    EXPECT_EQ(f.tela.LblMensagem, QStringLiteral("Informe o texto:"));
    EXPECT_EQ(f.tela.BtnOK, QStringLiteral("OK"));
    EXPECT_EQ(f.tela.BtnCancelar, QStringLiteral("Cancelar"));
    f.Carrega();
    EXPECT_EQ(f.tela.LblMensagem, QStringLiteral("Informe a quantidade de conferências a efetuar:"));
    EXPECT_EQ(f.tela.TxtTexto.Text, QStringLiteral("100"));
}

TEST(EntraTexto, OkDevolveOTextoDigitado) {
    Prompt a;
    EntraTexto f(a.p);
    f.Carrega();
    f.tela.TxtTexto.Text = QStringLiteral("2,6");
    f.BtnOK();
    EXPECT_TRUE(f.fechada());
    EXPECT_EQ(a.p.e.TextoDigitado, QStringLiteral("2,6"));
    EXPECT_FALSE(respostaCancelada(a.p.e.TextoDigitado));
}

TEST(EntraTexto, CancelarDigitadoComOkEIgualAoBotaoCancelar) {
    Prompt digitado;
    EntraTexto f1(digitado.p);
    f1.Carrega();
    f1.tela.TxtTexto.Text = QStringLiteral("CANCELAR");
    f1.BtnOK();

    Prompt botao;
    EntraTexto f2(botao.p);
    f2.Carrega();
    f2.tela.TxtTexto.Text = QStringLiteral("7");
    f2.BtnCancelar();

    EXPECT_EQ(digitado.p.e.TextoDigitado, QStringLiteral("CANCELAR"));
    EXPECT_EQ(botao.p.e.TextoDigitado, digitado.p.e.TextoDigitado);
    EXPECT_TRUE(respostaCancelada(digitado.p.e.TextoDigitado));
    EXPECT_TRUE(respostaCancelada(botao.p.e.TextoDigitado));
}

TEST(EntraTexto, CancelarEmMinusculasEUmTextoComoOutro) {
    EXPECT_FALSE(respostaCancelada(QStringLiteral("cancelar")));
    EXPECT_FALSE(respostaCancelada(QStringLiteral(" CANCELAR")));
}

TEST(EntraTexto, FecharDeOutroModoDeixaOValorProposto) {
    Prompt a;
    {
        EntraTexto f(a.p);
        f.Carrega();
        f.tela.TxtTexto.Text = QStringLiteral("55");
        // Closed by the window's frame: neither button ran.
    }
    EXPECT_EQ(a.p.e.TextoDigitado, QStringLiteral("100"));
}
