#include "forms/InsereVetorReduz.h"

#include "forms/Janelas.h"

#include <QPushButton>

namespace sorvelo {

JanelaInsereVetorReduz::JanelaInsereVetorReduz(Programa& p, QWidget* pai)
    : Formulario(p, "InsereVetorReduz", QStringLiteral("Sorvelo"), pai), v_(p) {
    ligaLogica(v_);
    tamanho(4800, 1800);
    QLabel* lblMensagem = rotulo(v_.LblMensagem, 240, 240, 4320, 255, "LblMensagem");
    lblCont_ = rotulo(QString(), 240, 660, 1800, 255, "LblCont");
    QLabel* lblTotal = rotulo(QString(), 2100, 660, 2400, 255, "LblTotal");
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 1500, 1140, 1800, 435);
    cancelar->setAutoDefault(false);
    liga(cancelar, &QPushButton::clicked, [this] { v_.BtnCancelar(); });
    vincula(lblMensagem, v_.LblMensagem);
    vincula(lblCont_, v_.LblCont);
    vincula(lblTotal, v_.LblTotal);
    v_.aoContar = [this](const QString& t) { lblCont_->setText(t); };
    rodaAoAparecer([this] { v_.ativa(); });
}

void mostraJanelaInsereVetorReduz(Programa& p, QWidget* pai) {
    JanelaInsereVetorReduz janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
