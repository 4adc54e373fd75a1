#include "forms/EntraTexto.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>

namespace sorvelo {

namespace {
// The whole text selected when the box takes the focus.
class CaixaSeleciona : public QLineEdit {
protected:
    void focusInEvent(QFocusEvent* e) override {
        QLineEdit::focusInEvent(e);
        selectAll();
    }
};
} // namespace

JanelaEntraTexto::JanelaEntraTexto(Programa& p, QWidget* pai)
    : Formulario(p, "EntraTexto", QStringLiteral("Sorvelo"), pai), c_(p) {
    ligaLogica(c_);
    tamanho(5280, 1920);
    lblMensagem_ = rotulo(c_.tela.LblMensagem, 240, 180, 4800, 255, "LblMensagem");
    txtTexto_ = poe(new CaixaSeleciona, this, "TxtTexto", 240, 540, 4800, 315);
    QPalette cores = txtTexto_->palette();
    cores.setColor(QPalette::Base, QColor(128, 128, 255));
    cores.setColor(QPalette::Text, Qt::white);
    txtTexto_->setPalette(cores);
    auto* ok = poe(new QPushButton(c_.tela.BtnOK), this, "BtnOK", 1440, 1140, 1215, 435);
    auto* cancelar = poe(new QPushButton(c_.tela.BtnCancelar), this, "BtnCancelar", 2760, 1140, 1215, 435);
    for (QPushButton* b : {ok, cancelar}) {
        b->setAutoDefault(false);
        b->setDefault(false);
    }
    c_.Carrega();
    txtTexto_->setFocus();
    liga(txtTexto_, &QLineEdit::textEdited, [this](const QString& t) { c_.tela.TxtTexto.Text = t; });
    liga(ok, &QPushButton::clicked, [this] { c_.BtnOK(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
}

void JanelaEntraTexto::atualizaTela() {
    lblMensagem_->setText(c_.tela.LblMensagem);
    if (txtTexto_->text() != c_.tela.TxtTexto.Text) txtTexto_->setText(c_.tela.TxtTexto.Text);
}

void mostraJanelaEntraTexto(Programa& p, QWidget* pai) {
    JanelaEntraTexto janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
