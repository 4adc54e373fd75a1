#include "Eliminar.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>

namespace sorvelo {

JanelaEliminar::JanelaEliminar(Programa& p, QWidget* pai)
    : Formulario(p, "Eliminar", Eliminar::Caption, pai), e_(p) {
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
    e_.aoFechar = [this] { done(0); };
    sincroniza();
}

void JanelaEliminar::sincroniza() {
    sincronizando_ = true;
    if (txtQuant_->text() != e_.TxtQuant.Text) txtQuant_->setText(e_.TxtQuant.Text);
    lblCont_->setText(e_.LblCont);
    sincronizando_ = false;
}

void JanelaEliminar::closeEvent(QCloseEvent* e) {
    // Closing by the frame unloads the dialog; a run in progress goes on to
    // its end.
    e_.fecha();
    e->accept();
}

std::function<void(Programa&)> mostraEliminar(QWidget* pai) {
    return [pai](Programa& p) {
        JanelaEliminar janela(p, pai);
        janela.mostraModal();
    };
}

} // namespace sorvelo
