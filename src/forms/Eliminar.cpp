#include "forms/Eliminar.h"

#include "forms/Janelas.h"

#include <QLineEdit>
#include <QPushButton>

namespace sorvelo {

JanelaEliminar::JanelaEliminar(Programa& p, QWidget* pai)
    : Formulario(p, "Eliminar", Eliminar::Caption, pai), e_(p) {
    ligaLogica(e_);
    tamanho(5400, 2460);
    QFont negrito = font();
    negrito.setBold(true);
    rotulo(Eliminar::CaptionLabel1, 960, 240, 4320, 255, "Label1")->setFont(negrito);
    rotulo(QString(), 240, 180, 555, 555, "Image1");
    rotulo(Eliminar::CaptionLabel2, 960, 720, 4320, 255, "Label2");
    txtQuant_ = poe(new QLineEdit, this, "TxtQuant", 960, 1080, 495, 315);
    txtQuant_->setMaxLength(2);
    lblCont_ = rotulo(QString(), 1620, 1110, 1500, 255, "LblCont");
    auto* iniciar =
        poe(new QPushButton(Eliminar::CaptionBtnIniciar), this, "BtnIniciar", 3480, 1800, 1680, 435);
    iniciar->setAutoDefault(false);
    liga(txtQuant_, &QLineEdit::textEdited, [this](const QString& t) { e_.TxtQuant.Text = t; });
    liga(iniciar, &QPushButton::clicked, [this] { e_.BtnIniciar(); });
    e_.aoContar = [this] { lblCont_->setText(e_.LblCont); };
    sincroniza();
}

void JanelaEliminar::atualizaTela() {
    if (txtQuant_->text() != e_.TxtQuant.Text) txtQuant_->setText(e_.TxtQuant.Text);
    lblCont_->setText(e_.LblCont);
}

// Closing by the frame unloads the dialog (the dialog has no cancel); a run
// in progress goes on to its end.
void mostraJanelaEliminar(Programa& p, QWidget* pai) {
    JanelaEliminar janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
