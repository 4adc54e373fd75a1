#include "forms/Importar.h"

#include "forms/Janelas.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

namespace sorvelo {

JanelaImportar::JanelaImportar(Programa& p, const QString& caminho, QWidget* pai)
    : Formulario(p, "Importar", QStringLiteral("Importar apostas"), pai), i_(p, caminho) {
    ligaLogica(i_);
    tamanho(7200, 5400);
    lblArquivo_ = rotulo(i_.LblArquivo, 240, 240, 6720, 255, "LblArquivo");
    prgLeitura_ = poe(new QProgressBar, this, "PrgLeitura", 240, 600, 6720, 300);
    prgLeitura_->setRange(0, 100);
    prgLeitura_->setTextVisible(false);
    txtRelatorio_ = poe(new QPlainTextEdit, this, "TxtRelatorio", 240, 1020, 6720, 3120);
    txtRelatorio_->setReadOnly(true);
    txtRelatorio_->setLineWrapMode(QPlainTextEdit::NoWrap);
    lblResumo_ = rotulo(i_.LblResumo, 240, 4260, 6720, 255, "LblResumo");
    btnImportar_ =
        poe(new QPushButton(QStringLiteral("Importar")), this, "BtnImportar", 1320, 4740, 2100, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 3780, 4740, 2100, 435);
    for (QPushButton* b : {btnImportar_, cancelar}) {
        b->setAutoDefault(false);
        b->setDefault(false);
    }
    liga(btnImportar_, &QPushButton::clicked, [this] { i_.BtnImportar(); });
    liga(cancelar, &QPushButton::clicked, [this] { i_.BtnCancelar(); });
    i_.aoMudar = [this] { sincroniza(); };
    rodaAoAparecer([this] { i_.Le(); });
}

void JanelaImportar::atualizaTela() {
    lblArquivo_->setText(i_.LblArquivo);
    lblResumo_->setText(i_.LblResumo);
    prgLeitura_->setValue(i_.PrgLeitura);
    if (txtRelatorio_->toPlainText() != i_.TxtRelatorio) {
        QString texto = i_.TxtRelatorio;
        texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (texto.endsWith(u'\n')) texto.chop(1);
        if (txtRelatorio_->toPlainText() != texto) txtRelatorio_->setPlainText(texto);
    }
    btnImportar_->setEnabled(i_.BtnImportarEnabled);
}

void mostraJanelaImportar(Programa& p, QWidget* pai) {
    JanelaImportar janela(p, p.importar.caminho, pai);
    janela.mostraModal();
}

} // namespace sorvelo
