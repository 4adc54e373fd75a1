#include "forms/Filtrar.h"

#include "forms/Janelas.h"
#include <QCheckBox>

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace sorvelo {

JanelaFiltrar::JanelaFiltrar(Programa& p, QWidget* pai)
    : Formulario(p, "Filtrar", Filtrar::Caption, pai), f_(p) {
    ligaLogica(f_);
    tamanho(6600, 5580);
    auto* frame = poe(new QGroupBox(Filtrar::CaptionFrame1), this, "Frame1", 120, 60, 6360, 4080);
    escala_.rotulo(frame, Filtrar::CaptionLabel8, 240, 300, 3000, 255, "Label8");
    auto criterios = f_.criterios();
    for (size_t i = 0; i < criterios.size(); ++i) {
        const Filtrar::Criterio& c = criterios[i];
        const int y = 660 + int(i) * 420;
        chk_[i] = poe(new QCheckBox(c.legenda), frame, c.nomeChk, 240, y, 2880, 300);
        liga(chk_[i], &QCheckBox::clicked, [c](bool marcada) { c.chk->Value = marcada; });
        if (!c.txt) {
            escala_.rotulo(frame, Filtrar::SoEliminadas, 3240, y + 30, 2880, 255, "Label9");
            continue;
        }
        txt_[i] = poe(new QLineEdit, frame, c.nomeTxt, 3240, y, 495, 300);
        txt_[i]->setStyleSheet(QStringLiteral("QLineEdit { color: rgb(255, 255, 255); "
                                              "background-color: rgb(128, 128, 255); }"));
        liga(txt_[i], &QLineEdit::textEdited, [c](const QString& t) { c.txt->Text = t; });
        // Vertical, minimum at the top: the upper arrow lowers the value.
        scr_[i] = poe(new QScrollBar(Qt::Vertical), frame, c.nomeScr, 3735, y, 255, 300);
        scr_[i]->setRange(c.scr->Min, c.scr->Max);
        scr_[i]->setSingleStep(1);
        scr_[i]->setPageStep(1);
        liga(scr_[i], &QScrollBar::valueChanged, [this, i](int v) { f_.mudaBarra(int(i), v); });
        escala_.rotulo(frame, Filtrar::Eliminadas, 4110, y + 30, 2160, 255,
                       QStringLiteral("Label%1").arg(i + 1).toUtf8().constData());
    }
    lblObs_ = rotulo(QString(), 120, 4200, 6360, 690, "LblObs");
    lblObs_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblContador_ = rotulo(QString(), 120, 5040, 2520, 255, "LblContador");
    auto* ok = poe(new QPushButton(QStringLiteral("OK")), this, "BtnOK", 3000, 4980, 1620, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 4800, 4980, 1620, 435);
    ok->setAutoDefault(false);
    cancelar->setAutoDefault(false);
    liga(ok, &QPushButton::clicked, [this] { f_.BtnOK(); });
    liga(cancelar, &QPushButton::clicked, [this] { f_.BtnCancelar(); });
    // The run gives the message loop no turn: the counter is repainted on
    // the spot, at most every few tens of milliseconds.
    f_.aoRepintarContador = [this](bool sempre) {
        repintura_.repinta(
            [this] {
                lblContador_->setText(f_.LblContador);
                lblContador_->repaint();
            },
            sempre);
    };
    sincroniza();
}

void JanelaFiltrar::atualizaTela() {
    auto criterios = f_.criterios();
    for (size_t i = 0; i < criterios.size(); ++i) {
        const Filtrar::Criterio& c = criterios[i];
        chk_[i]->setChecked(c.chk->Value);
        chk_[i]->setEnabled(c.chk->Enabled);
        if (!c.txt) continue;
        if (txt_[i]->text() != c.txt->Text) txt_[i]->setText(c.txt->Text);
        if (scr_[i]->value() != c.scr->Value) scr_[i]->setValue(c.scr->Value);
    }
    QString obs = f_.LblObs;
    lblObs_->setText(obs.replace(u'\r', u'\n'));
    lblContador_->setText(f_.LblContador);
}

void mostraJanelaFiltrar(Programa& p, QWidget* pai) {
    JanelaFiltrar janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
