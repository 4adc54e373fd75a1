#include "Importar.h"

#include "Protecao.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

namespace sorvelo {

JanelaImportar::JanelaImportar(Programa& p, const QString& caminho, QWidget* pai)
    : Formulario(p, "Importar", QStringLiteral("Importar apostas"), pai), i_(p, caminho) {
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
    i_.aoFechar = [this] { done(0); };
    rodaAoAparecer([this] { i_.Le(); });
}

void JanelaImportar::sincroniza() {
    sincronizando_ = true;
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
    sincronizando_ = false;
}

void JanelaImportar::closeEvent(QCloseEvent* e) {
    // Closing by the frame is a cancel.
    if (i_.aberto()) executaProtegido([this] { i_.BtnCancelar(); });
    e->accept();
}

void JanelaImportar::reject() {
    // Esc is a cancel too.
    if (i_.aberto())
        executaProtegido([this] { i_.BtnCancelar(); });
    else
        QDialog::reject();
}

void mostraImportar(Programa& p, QWidget* pai) {
    const QString caminho = EscolheArquivoImportar(p);
    if (caminho.isEmpty()) return;
    JanelaImportar janela(p, caminho, pai);
    janela.mostraModal();
}

} // namespace sorvelo
