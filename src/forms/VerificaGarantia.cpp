#include "forms/VerificaGarantia.h"

#include "platform/qt/AreaRica.h"

#include <QPushButton>

namespace sorvelo {

JanelaVerificaGarantia::JanelaVerificaGarantia(Programa& p, VerificaGarantia& logica, QWidget* pai)
    : Formulario(p, "VerificaGarantia", logica.tela.Caption, pai), v_(logica) {
    ligaLogica(v_);
    QFont grande(QStringLiteral("Arial"), 12);
    grande.setBold(true);
    rotulo(v_.tela.LblTitulo, 120, 120, 9000, 400, "LblTitulo")->setFont(grande);
    rtf_ = poe(new AreaRica, this, "RTFGarantia", 120, 600, 9250, 4800);
    rtf_->defineDocumento(&v_.tela.RTFGarantia);
    auto* imprimir = poe(new QPushButton(v_.tela.BtnImprimir), this, "BtnImprimir", 5640, 5520, 1800, 435);
    auto* fechar = poe(new QPushButton(v_.tela.BtnFechar), this, "BtnFechar", 7560, 5520, 1800, 435);
    liga(imprimir, &QPushButton::clicked, [this] { v_.BtnImprimir(); });
    liga(fechar, &QPushButton::clicked, [this] { v_.BtnFechar(); });
    tamanho(9500, 6100);
}

void JanelaVerificaGarantia::atualizaTela() {
    rtf_->atualiza();
}

void mostraJanelaVerificaGarantia(Programa& p, QWidget* pai) {
    VerificaGarantia logica(p);
    logica.Carrega();
    JanelaVerificaGarantia janela(p, logica, pai);
    janela.mostraModal();
}

} // namespace sorvelo
