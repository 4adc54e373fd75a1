// The entries of import and export in the menu Arquivo, and the dialog of
// the import on its real widgets, offscreen.
#include "apoio/Duplos.h"
#include "core/Estado.h"
#include "forms/Importar.h"
#include "forms/Janelas.h"
#include "forms/Protecao.h"
#include "forms/Sorvelo.h"
#include "platform/qt/ServicosQt.h"
#include "relatorios/Exportar.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace sorvelo;

TEST(MenuArquivo, ImportarEExportarVemDepoisDeSairEDeUmSeparador) {
    ServicosDuplos d;
    JanelasFormas janelas;
    Programa p{d.servicos(), janelas};
    Sorvelo janela(p, janelas);
    QMenu* arquivo = janela.findChild<QMenu*>(QStringLiteral("MenuArquivo"));
    ASSERT_NE(arquivo, nullptr);
    QStringList nomes;
    for (QAction* a : arquivo->actions())
        nomes << (a->isSeparator() ? QStringLiteral("-") : a->objectName() + u'=' + a->text());
    ASSERT_GE(nomes.size(), 4);
    EXPECT_EQ(nomes.mid(nomes.size() - 4),
              (QStringList{"MenuSair=Sair", "-", "MenuImportar=Importar apostas...",
                           "MenuExportar=Exportar banco..."}));
}

TEST(JanelaImportar, LeAoAparecerMostraORelatorioEImportaComOBotao) {
    QTemporaryDir pasta;
    const QString arquivo = QDir(pasta.path()).filePath(QStringLiteral("bolao.txt"));
    {
        QFile f(arquivo);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("01 02 03 04 05 06\n1 2 3 4 5 70\n");
    }
    ServicosDuplos d;
    JanelasFormas janelas;
    Programa p{d.servicos(), janelas};
    Sorvelo principal(p, janelas);
    JanelaImportar janela(p, arquivo, &principal);
    EXPECT_EQ(janela.objectName(), QStringLiteral("Importar"));
    EXPECT_EQ(janela.windowTitle(), QStringLiteral("Importar apostas"));
    auto* importar = janela.findChild<QPushButton*>(QStringLiteral("BtnImportar"));
    auto* cancelar = janela.findChild<QPushButton*>(QStringLiteral("BtnCancelar"));
    auto* relatorio = janela.findChild<QPlainTextEdit*>(QStringLiteral("TxtRelatorio"));
    auto* progresso = janela.findChild<QProgressBar*>(QStringLiteral("PrgLeitura"));
    auto* arquivoRotulo = janela.findChild<QLabel*>(QStringLiteral("LblArquivo"));
    auto* resumo = janela.findChild<QLabel*>(QStringLiteral("LblResumo"));
    ASSERT_TRUE(importar && cancelar && relatorio && progresso && arquivoRotulo && resumo);
    EXPECT_EQ(arquivoRotulo->text(), QStringLiteral("Arquivo: bolao.txt"));
    bool viuRelatorio = false;
    QTimer::singleShot(200, &janela, [&] {
        viuRelatorio =
            relatorio->toPlainText() == QStringLiteral("Apostas válidas: 1\nLinhas recusadas: 1\n\n"
                                                       "Linha 2: o número 70 está fora do jogo (01 a 60)");
        EXPECT_EQ(progresso->value(), 100);
        EXPECT_TRUE(importar->isEnabled());
        EXPECT_EQ(p.e.QuantBan, 0);
        importar->click();
    });
    janela.mostraModal();
    EXPECT_TRUE(viuRelatorio);
    EXPECT_EQ(p.e.QuantBan, 1);
}

TEST(ExportarPdf, AImpressoraDoDesktopEscreveOPdfNoArquivoPedidoSemAbriLo) {
    QTemporaryDir pasta;
    ServicosQt qt;
    AbridorRegistro abridor;
    qt.impressora.abridor = &abridor;
    ServicosDuplos d;
    JanelasFormas janelas;
    Programa p{d.servicos(nullptr, &qt.impressora), janelas};
    Sorvelo janela(p, janelas);
    p.e.VetBan.redimensionaPreservando(1);
    p.e.VetBan.define(0, 0, QStringLiteral("01"));
    p.e.VetBan.define(1, 0, QStringLiteral("#"));
    p.e.QuantBan = 1;
    const QString pdf = QDir(pasta.path()).filePath(QStringLiteral("banco.pdf"));
    EXPECT_EQ(ExportaBanco(p, pdf, FormatoExportacao::Pdf), QString());
    QFile f(pdf);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_TRUE(f.read(5) == "%PDF-");
    EXPECT_TRUE(abridor.abertos.isEmpty());
    EXPECT_TRUE(qt.impressora.ultimoPdf().isEmpty());
    EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"banco.pdf"});
}
