#include "CombSuperReduz.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QTimer>

namespace sorvelo {

JanelaCombSuperReduz::JanelaCombSuperReduz(Programa& p, QWidget* pai)
    : Formulario(p, "CombSuperReduz", SuperReducao::Caption, pai), s_(p) {
    tamanho(4800, 1800);
    lblMensagem_ = rotulo(s_.LblMensagem, 240, 240, 4320, 255, "LblMensagem");
    lblCont_ = rotulo(QString(), 240, 660, 1800, 255, "LblCont");
    lblTotal_ = rotulo(QString(), 2100, 660, 2400, 255, "LblTotal");
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 1500, 1140, 1800, 435);
    cancelar->setAutoDefault(false);
    liga(cancelar, &QPushButton::clicked, [this] { s_.BtnCancelar(); });
    s_.aoMudarMensagem = [this] { lblMensagem_->setText(s_.LblMensagem); };
    s_.aoContar = [this](const QString& t) { lblCont_->setText(t); };
    s_.aoFechar = [this] { done(0); };
    rodaAoAparecer([this] { s_.ativa(); });
}

void JanelaCombSuperReduz::sincroniza() {
    lblMensagem_->setText(s_.LblMensagem);
    lblCont_->setText(s_.LblCont);
    lblTotal_->setText(s_.LblTotal);
}

void JanelaCombSuperReduz::closeEvent(QCloseEvent* e) {
    // Closing by the frame is the cancel button.
    if (s_.aberto()) executaProtegido([this] { s_.BtnCancelar(); });
    e->accept();
}

} // namespace sorvelo
