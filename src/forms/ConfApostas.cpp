#include "forms/ConfApostas.h"

#include "platform/qt/AreaRica.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>

namespace sorvelo {

JanelaConfApostas::JanelaConfApostas(Programa& p, std::unique_ptr<ConfApostas> logica, QWidget* pai)
    : Formulario(p, "ConfApostas", logica->tela.Caption, pai), c_(std::move(logica)) {
    ligaLogica(*c_);
    setWindowFlag(Qt::Window);
    QFont grande(QStringLiteral("Arial"), 12);
    grande.setBold(true);
    auto* lblTitulo = rotulo(c_->tela.LblTitulo, 120, 120, 9000, 400, "LblTitulo");
    lblTitulo->setFont(grande);
    rtfConf_ = poe(new AreaRica, this, "RTFConf", 120, 600, 9250, 4000);
    rtfConf_->defineDocumento(&c_->tela.RTFConf);
    fraConf_ = poe(new QGroupBox, this, "FraConf", 120, 4800, 9250, 1680);
    rotulo(fraConf_, c_->tela.Label4, 120, 240, 5400, 255, "Label4");
    auto* txtPontos = poe(new QLineEdit, fraConf_, "TxtPontos", 5520, 180, 615, 315);
    rotulo(fraConf_, c_->tela.Label5, 6240, 240, 700, 255, "Label5");
    auto* lblMensagem = rotulo(fraConf_, QString(), 120, 720, 6000, 255, "LblMensagem");
    auto* iniciar = poe(new QPushButton(c_->tela.BtnIniciar), fraConf_, "BtnIniciar", 120, 1140, 2400, 435);
    auto* imprimir =
        poe(new QPushButton(c_->tela.BtnImprimir), fraConf_, "BtnImprimir", 2640, 1140, 1800, 435);
    auto* cancelar =
        poe(new QPushButton(c_->tela.BtnCancelar), fraConf_, "BtnCancelar", 4560, 1140, 1800, 435);

    vincula(lblTitulo, c_->tela.LblTitulo);
    vincula(lblMensagem, c_->LblMensagem);
    vincula(txtPontos, c_->tela.TxtPontos);
    liga(iniciar, &QPushButton::clicked, [this] { c_->BtnIniciar(); });
    liga(imprimir, &QPushButton::clicked, [this] { c_->BtnImprimir(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_->BtnCancelar(); });
    resize(tw(9600), tw(7000));
}

void JanelaConfApostas::atualizaTela() {
    rtfConf_->setVisible(c_->tela.RTFConf.visivel());
    rtfConf_->atualiza();
}

bool JanelaConfApostas::event(QEvent* e) {
    if (e->type() == QEvent::WindowActivate) {
        if (ignorarAtivacao_)
            ignorarAtivacao_ = false;
        else {
            executaProtegido([this] { c_->Ativa(); });
            sincroniza();
        }
    }
    return Formulario::event(e);
}

void JanelaConfApostas::showEvent(QShowEvent* e) {
    Formulario::showEvent(e);
    if (mostrada_) return;
    mostrada_ = true;
    // The first activation, once the window stands on the screen: an empty
    // result warns over it and closes it.
    QMetaObject::invokeMethod(
        this,
        [this] {
            executaProtegido([this] { c_->Ativa(); });
            sincroniza();
        },
        Qt::QueuedConnection);
}

void JanelaConfApostas::resizeEvent(QResizeEvent* e) {
    Formulario::resizeEvent(e);
    // The window's outer size, as the program measures it.
    const int largura = escala_.deTw(width()) + 120;
    const int altura = escala_.deTw(height()) + 405;
    executaProtegido([&] { c_->Redimensiona(largura, altura); });
    // A size the controls refuse (too small a window) is skipped.
    if (c_->tela.RTFConfWidth > 0 && c_->tela.RTFConfHeight > 0)
        rtfConf_->resize(tw(c_->tela.RTFConfWidth), tw(c_->tela.RTFConfHeight));
    if (c_->tela.FraConfTop > 0) {
        fraConf_->move(fraConf_->x(), tw(c_->tela.FraConfTop));
        fraConf_->resize(qMax(fraConf_->width(), tw(c_->tela.RTFConfWidth)), fraConf_->height());
    }
}

} // namespace sorvelo
