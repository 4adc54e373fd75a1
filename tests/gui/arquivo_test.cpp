// Novo, Abrir, Salvar and Salvar Como on the real main window.
#include "apoio/FormasTeste.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "forms/Controles.h"
#include "forms/Sorvelo.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

class ArquivoDeApostas : public ::testing::Test, public teste::FormasTeste {
protected:
    void SetUp() override {
        abreJanela();
        caminho = pasta.filePath(QStringLiteral("jogos.Apo"));
    }
    void aciona(const char* nome) {
        for (QAction* a : janela->findChildren<QAction*>())
            if (a->objectName() == QString::fromUtf8(nome)) return a->trigger();
        FAIL() << nome;
    }
    void montaBanco() {
        for (int c : {0, 1, 2, 3, 4, 5})
            ClicaNumero(p, Int16(int16_t(c)));
        InsereApostaMarcada(p);
        LimpaNumeros(p);
        for (int c : {10, 11, 12, 13, 14, 15, 16})
            ClicaNumero(p, Int16(int16_t(c)));
        InsereApostaMarcada(p);
        LimpaNumeros(p);
        ClicaNumero(p, 20);
        p.tela.ChkFixar.Value = true;
        ClicaNumero(p, 30);
        p.tela.ChkFixar.Value = false;
        janela->sincroniza();
    }
    QString texto(const char* nome) { return janela->findChild<QLineEdit*>(QString::fromUtf8(nome))->text(); }

    QTemporaryDir pasta;
    QString caminho;
};

TEST_F(ArquivoDeApostas, SalvarNovoEAbrirDevolvemOEstado) {
    montaBanco();
    const QString bancoAntes = p.tela.TxtBanco.texto();
    duplos.dialogo.enfileira(caminho);
    aciona("MenuSalvar");
    ASSERT_TRUE(QFile::exists(caminho));
    ASSERT_EQ(duplos.dialogo.pedidos().size(), 1u);
    EXPECT_EQ(duplos.dialogo.pedidos()[0].titulo, QStringLiteral("Salvar arquivo de apostas"));
    EXPECT_EQ(duplos.dialogo.pedidos()[0].filtro, QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;"));
    EXPECT_FALSE(p.e.BancoAlterado);
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("Sor Velo")) << "saving leaves the title";

    aciona("MenuNovo");
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("Sorvelo"));
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.e.Historico.isEmpty());

    duplos.dialogo.enfileira(caminho);
    aciona("MenuÄbrir");
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("Sorvelo - ") + caminho);
    EXPECT_EQ(p.e.QuantBan, 2);
    EXPECT_EQ(p.tela.TxtBanco.texto(), bancoAntes);
    EXPECT_EQ(p.tela.TxtBanco.formatoEm(0).cor, CorNumeroLinha);
    EXPECT_EQ(p.e.VetBan.valor(6, 1), QStringLiteral("17"));
    EXPECT_EQ(p.e.VetBan.valor(7, 1), QStringLiteral("#"));
    EXPECT_EQ(texto("TxtLoteria"), QStringLiteral("MEGA-SENA"));
    EXPECT_EQ(texto("TxtEscolhidos"), QStringLiteral("01"));
    EXPECT_EQ(p.tela.Num(20).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.tela.Num(30).BackColor, p.e.CorFixo);
    EXPECT_TRUE(p.e.BancoAlterado) << "reading the text counts as a change";
}

TEST_F(ArquivoDeApostas, BarraSalvaPerguntaSobrescreverEAbre) {
    montaBanco();
    duplos.dialogo.enfileira(caminho);
    janela->findChild<QToolButton*>(QStringLiteral("BarraSup(3)"))->click();
    ASSERT_TRUE(QFile::exists(caminho));
    ClicaNumero(p, 40);
    InsereApostaMarcada(p);
    duplos.caixa.responde(Resposta::Nao);
    janela->findChild<QToolButton*>(QStringLiteral("BarraSup(3)"))->click();
    ASSERT_FALSE(duplos.caixa.vistas().empty());
    EXPECT_EQ(duplos.caixa.vistas().back().texto,
              QStringLiteral("Este nome de arquivo já existe! Deseja sobrescrever?"));
    EXPECT_EQ(duplos.caixa.vistas().back().padrao, Resposta::Nao);
    EXPECT_TRUE(p.e.BancoAlterado) << "Não leaves the flag as it was";
    duplos.caixa.responde(Resposta::Sim);
    janela->findChild<QToolButton*>(QStringLiteral("BarraSup(3)"))->click();
    EXPECT_FALSE(p.e.BancoAlterado);

    duplos.caixa.responde(Resposta::Nao); // salvar as atuais?
    duplos.dialogo.enfileira(caminho);
    janela->findChild<QToolButton*>(QStringLiteral("BarraSup(2)"))->click();
    EXPECT_EQ(p.e.QuantBan, 3);
    duplos.caixa.responde(Resposta::Nao);
    janela->findChild<QToolButton*>(QStringLiteral("BarraSup(1)"))->click();
    EXPECT_EQ(p.e.QuantBan, 0);
}

TEST_F(ArquivoDeApostas, CancelarNosDialogos) {
    montaBanco();
    duplos.dialogo.enfileira(QString()); // Salvar Como cancelled
    aciona("MenuSalvarComo");
    EXPECT_TRUE(p.e.NomeArquivo.isEmpty());
    EXPECT_TRUE(p.e.BancoAlterado);
    duplos.caixa.responde(Resposta::Nao);
    duplos.dialogo.enfileira(QString()); // Abrir cancelled
    aciona("MenuÄbrir");
    EXPECT_EQ(p.e.QuantBan, 0) << "the bank is gone before the dialog opens";
    EXPECT_EQ(janela->windowTitle(), QStringLiteral("Sor Velo"));
}

TEST_F(ArquivoDeApostas, SimNaPerguntaDeTrocaSalvaNoArquivo) {
    montaBanco();
    duplos.caixa.responde(Resposta::Sim);
    duplos.dialogo.enfileira(caminho);
    aciona("MenuQuina");
    EXPECT_TRUE(QFile::exists(caminho));
    EXPECT_EQ(texto("TxtLoteria"), QStringLiteral("Quina"));
}

} // namespace
