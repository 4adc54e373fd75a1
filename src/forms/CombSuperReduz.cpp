#include "forms/CombSuperReduz.h"

#include "forms/Janelas.h"

#include <QPushButton>

namespace sorvelo {

JanelaCombSuperReduz::JanelaCombSuperReduz(Programa& p, QWidget* pai)
    : Formulario(p, "CombSuperReduz", SuperReducao::Caption, pai), s_(p) {
    ligaLogica(s_);
    tamanho(4800, 1800);
    QLabel* lblMensagem = rotulo(s_.LblMensagem, 240, 240, 4320, 255, "LblMensagem");
    lblCont_ = rotulo(QString(), 240, 660, 1800, 255, "LblCont");
    QLabel* lblTotal = rotulo(QString(), 2100, 660, 2400, 255, "LblTotal");
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 1500, 1140, 1800, 435);
    cancelar->setAutoDefault(false);
    liga(cancelar, &QPushButton::clicked, [this] { s_.BtnCancelar(); });
    vincula(lblMensagem, s_.LblMensagem);
    vincula(lblCont_, s_.LblCont);
    vincula(lblTotal, s_.LblTotal);
    s_.aoContar = [this](const QString& t) { lblCont_->setText(t); };
    rodaAoAparecer([this] { s_.ativa(); });
}

void mostraJanelaCombSuperReduz(Programa& p, QWidget* pai) {
    JanelaCombSuperReduz janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
