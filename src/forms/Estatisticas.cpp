#include "forms/Estatisticas.h"

#include "forms/EntraTexto.h"
#include "platform/qt/AreaRica.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>

namespace sorvelo {

JanelaEstatisticas::JanelaEstatisticas(Programa& p, QWidget* pai)
    : Formulario(p, "Estatisticas", QStringLiteral("Conferência de apostas"), pai), c_(p) {
    ligaLogica(c_);
    QFont grande(QStringLiteral("Arial"), 12);
    grande.setBold(true);
    QLabel* titulo = rotulo(c_.tela.LblTitulo, 120, 120, 9000, 400, "LblTitulo");
    titulo->setFont(grande);
    rtfConf_ = poe(new AreaRica, this, "RTFConf", 120, 600, 9250, 4000);
    rtfConf_->defineDocumento(&c_.tela.RTFConf);
    fraConf_ = poe(new QGroupBox, this, "FraConf", 120, 4800, 9250, 1680);
    escala_.rotulo(fraConf_, c_.tela.Label4, 120, 240, 5400, 255, "Label4");
    txtPontos_ = poe(new QLineEdit, fraConf_, "TxtPontos", 5520, 180, 615, 315);
    escala_.rotulo(fraConf_, c_.tela.Label5, 6240, 240, 700, 255, "Label5");
    escala_.rotulo(fraConf_, c_.tela.LblMensagem, 120, 720, 6000, 255, "LblMensagem");
    auto* estatistica =
        poe(new QPushButton(c_.tela.BtnEstatistica), fraConf_, "BtnEstatistica", 120, 1140, 2400, 435);
    auto* imprimir =
        poe(new QPushButton(c_.tela.BtnImprimir), fraConf_, "BtnImprimir", 2640, 1140, 1800, 435);
    auto* cancelar =
        poe(new QPushButton(c_.tela.BtnCancelar), fraConf_, "BtnCancelar", 4560, 1140, 1800, 435);
    for (QPushButton* b : {estatistica, imprimir, cancelar})
        b->setAutoDefault(false);

    c_.Carrega();
    liga(txtPontos_, &QLineEdit::textEdited, [this](const QString& t) { c_.tela.TxtPontos.Text = t; });
    liga(estatistica, &QPushButton::clicked, [this] { c_.BtnEstatistica(); });
    liga(imprimir, &QPushButton::clicked, [this] { c_.BtnImprimir(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
    resize(tw(9600), tw(7000));
}

void JanelaEstatisticas::atualizaTela() {
    if (txtPontos_->text() != c_.tela.TxtPontos.Text) txtPontos_->setText(c_.tela.TxtPontos.Text);
    rtfConf_->setVisible(c_.tela.RTFConf.visivel());
    rtfConf_->atualiza();
}

void JanelaEstatisticas::resizeEvent(QResizeEvent* e) {
    Formulario::resizeEvent(e);
    // The window's outer size, as the twips of the layout measure it.
    const int largura = escala_.deTw(width()) + 120;
    const int altura = escala_.deTw(height()) + 405;
    executaProtegido([&] { c_.Redimensiona(largura, altura); });
    // A size the controls refuse (too small a window) is skipped.
    if (c_.tela.RTFConfWidth > 0 && c_.tela.RTFConfHeight > 0)
        rtfConf_->resize(tw(c_.tela.RTFConfWidth), tw(c_.tela.RTFConfHeight));
    if (c_.tela.FraConfTop > 0) {
        fraConf_->move(fraConf_->x(), tw(c_.tela.FraConfTop));
        fraConf_->resize(qMax(fraConf_->width(), tw(c_.tela.RTFConfWidth)), fraConf_->height());
    }
}

void mostraJanelaEstatisticas(Programa& p, QWidget* pai) {
    JanelaEstatisticas janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
