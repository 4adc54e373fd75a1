#include "forms/InsereVetor.h"

#include <QPushButton>

namespace sorvelo {

JanelaInsereVetor::JanelaInsereVetor(Programa& p, QWidget* pai)
    : Formulario(p, "InsereVetor", QStringLiteral("Sorvelo"), pai), v_(p, p.module2) {
    ligaLogica(v_);
    tamanho(4800, 1800);
    rotulo(v_.Label1, 240, 240, 4320, 255, "Label1");
    lblCont_ = rotulo(QString(), 240, 660, 1800, 255, "LblCont");
    auto* lblTotal = rotulo(QString(), 2100, 660, 2400, 255, "LblTotal");
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 1500, 1140, 1800, 435);
    cancelar->setAutoDefault(false);
    vincula(lblCont_, v_.LblCont);
    vincula(lblTotal, v_.LblTotal);
    liga(cancelar, &QPushButton::clicked, [this] { v_.BtnCancelar(); });
    // LblCont reaches the label with the other bindings, when a yield brings
    // the windows up to date: a label set at every count would cost more than
    // the bets themselves.
    rotulos_ = Ligacao(v_.aoMostrarRotulos, [this] { sincroniza(); });
    rodaAoAparecer([this] { v_.ativa(); });
}

void mostraJanelaInsereVetor(Programa& p, QWidget* pai) {
    JanelaInsereVetor janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
