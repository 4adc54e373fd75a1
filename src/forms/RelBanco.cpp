#include "forms/RelBanco.h"

#include "platform/qt/AreaRica.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace sorvelo {

JanelaRelBanco::JanelaRelBanco(Programa& p, QWidget* pai)
    : Formulario(p, "RelBanco", QStringLiteral("Listagem do banco de apostas"), pai), c_(p) {
    ligaLogica(c_);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    QFont titulo(QStringLiteral("Arial"), 12);
    titulo.setBold(true);
    rotulo(c_.tela.Label1, 120, 60, 6000, 330, "Label1")->setFont(titulo);
    rotulo(c_.tela.Label2, 6240, 120, 6000, 255, "Label2");
    rtfRel_ = poe(new AreaRica, this, "RTFRel", 120, 480, 9000, 5000);
    rtfRel_->defineEditavel(true);
    rtfRel_->defineDocumento(&c_.tela.RTFRel);
    cmbFonte_ = poe(new QComboBox, this, "CmbFonte", 120, 0, 3000, 315);
    cmbTamanho_ = poe(new QComboBox, this, "CmbTamanho", 3240, 0, 900, 315);
    for (QComboBox* c : {cmbFonte_, cmbTamanho_}) {
        c->setEditable(true);
        c->setInsertPolicy(QComboBox::NoInsert);
    }
    auto* imprimir = poe(new QPushButton(c_.tela.BtnImprimir), this, "BtnImprimir", 4320, 0, 1500, 375);
    auto* cancelar = poe(new QPushButton(c_.tela.BtnCancelar), this, "BtnCancelar", 5940, 0, 1500, 375);
    for (QPushButton* b : {imprimir, cancelar})
        b->setAutoDefault(false);

    // Form load: the fonts of the screen and its size in twips.
    const QScreen* tela = screen() ? screen() : QGuiApplication::primaryScreen();
    const QRect area = tela ? tela->geometry() : QRect(0, 0, 1024, 768);
    c_.Carrega(QFontDatabase::families(), escala_.deTw(area.width()), escala_.deTw(area.height()));
    cmbFonte_->addItems(c_.tela.CmbFonte.itens);
    cmbTamanho_->addItems(c_.tela.CmbTamanho.itens);
    cmbFonte_->setEditText(c_.tela.CmbFonte.Text);
    cmbTamanho_->setEditText(c_.tela.CmbTamanho.Text);
    move(tw(c_.tela.Left), tw(c_.tela.Top));
    resize(tw(c_.tela.Width), tw(c_.tela.Height));
    const int baixo = c_.tela.Height - 1100 + 480 + 120;
    rtfRel_->resize(tw(c_.tela.RTFRelWidth), tw(c_.tela.RTFRelHeight));
    for (QWidget* w : std::initializer_list<QWidget*>{cmbFonte_, cmbTamanho_, imprimir, cancelar})
        w->move(w->x(), tw(baixo));
    aplicaFonte();

    liga(cmbFonte_->lineEdit(), &QLineEdit::textEdited,
         [this](const QString& t) { c_.tela.CmbFonte.Text = t; });
    liga(cmbTamanho_->lineEdit(), &QLineEdit::textEdited,
         [this](const QString& t) { c_.tela.CmbTamanho.Text = t; });
    liga(cmbFonte_, &QComboBox::textActivated, [this](const QString& t) {
        c_.tela.CmbFonte.Text = t;
        c_.CmbFonteClick();
        rtfRel_->defineCursor(c_.tela.SelStart);
    });
    liga(cmbTamanho_, &QComboBox::textActivated, [this](const QString& t) {
        c_.tela.CmbTamanho.Text = t;
        c_.CmbTamanhoClick();
        rtfRel_->defineCursor(c_.tela.SelStart);
    });
    liga(imprimir, &QPushButton::clicked, [this] { c_.BtnImprimir(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
}

void JanelaRelBanco::aplicaFonte() {
    QFont f = rtfRel_->font();
    f.setFamily(c_.tela.FonteNome);
    // A size that is no size leaves the view at the size it has.
    if (c_.tela.FonteTamanho > 0) f.setPointSizeF(c_.tela.FonteTamanho);
    if (f != rtfRel_->font()) rtfRel_->setFont(f);
}

void JanelaRelBanco::atualizaTela() {
    if (cmbFonte_->currentText() != c_.tela.CmbFonte.Text) cmbFonte_->setEditText(c_.tela.CmbFonte.Text);
    if (cmbTamanho_->currentText() != c_.tela.CmbTamanho.Text)
        cmbTamanho_->setEditText(c_.tela.CmbTamanho.Text);
    aplicaFonte();
    rtfRel_->atualiza();
}

void JanelaRelBanco::showEvent(QShowEvent* e) {
    Formulario::showEvent(e);
    if (c_.Preenchido) return;
    // The first activation, once the window stands: the listing is built.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (c_.Preenchido) return;
            executaProtegido([this] { c_.Ativa(); });
            rtfRel_->atualiza();
            rtfRel_->rolaParaLinha(0);
            rtfRel_->defineCursor(0);
            sincroniza();
        },
        Qt::QueuedConnection);
}

void mostraJanelaRelBanco(Programa& p, QWidget* pai) {
    JanelaRelBanco janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
