#include "forms/SortComb.h"

#include "forms/Controles.h"
#include "forms/Janelas.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

namespace sorvelo {

JanelaSortComb::JanelaSortComb(Programa& p, QWidget* pai)
    : Formulario(p, "SortComb", QStringLiteral("Sortear números para combinação"), pai), s_(p) {
    ligaLogica(s_);
    tamanho(5160, 1500);
    rotulo(QStringLiteral("Informe a quantidade de números a sortear:"), 240, 300, 3540, 255, "Label1");
    txtDez_ = poe(new QLineEdit, this, "TxtDez", 3900, 240, 555, 315);
    txtDez_->setMaxLength(3);
    txtDez_->setAlignment(Qt::AlignCenter);
    txtDez_->installEventFilter(this);
    scrDez_ = poe(new QScrollBar(Qt::Vertical), this, "ScrDez", 4455, 240, 255, 315);
    scrDez_->setRange(SortComb::ScrMin, SortComb::ScrMax);
    scrDez_->setValue(s_.ScrDez);
    auto* ok = poe(new QPushButton(QStringLiteral("OK")), this, "BtnOK", 960, 840, 1455, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 2700, 840, 1455, 435);
    for (QPushButton* b : {ok, cancelar}) {
        b->setAutoDefault(false);
        b->setDefault(false);
    }
    liga(txtDez_, &QLineEdit::textEdited, [this](const QString& t) { s_.mudaTxtDez(t); });
    liga(scrDez_, &QScrollBar::valueChanged, [this](int v) { s_.mudaScrDez(v); });
    liga(ok, &QPushButton::clicked, [this] { this->ok(); });
    liga(cancelar, &QPushButton::clicked, [this] {
        if (!sorteando_) s_.BtnCancelar();
    });
    // Each drawn cell is painted on the main window before the next pass.
    s_.aoMarcar = [this](Int16 c) {
        atualizaVistas();
        QWidget* principal = parentWidget();
        if (!principal) return;
        if (auto* celula = principal->findChild<QWidget*>(QStringLiteral("Num(%1)").arg(c.valor())))
            celula->repaint();
    };
}

void JanelaSortComb::ok() {
    // The draw cannot be stopped, nor started twice, once it runs.
    if (sorteando_) return;
    sorteando_ = true;
    struct Fim {
        bool& b;
        ~Fim() { b = false; }
    } fim{sorteando_};
    s_.BtnOK();
}

void JanelaSortComb::atualizaTela() {
    if (txtDez_->text() != s_.TxtDez) txtDez_->setText(s_.TxtDez);
    scrDez_->setValue(s_.ScrDez);
}

void JanelaSortComb::showEvent(QShowEvent* e) {
    Formulario::showEvent(e);
    if (ativado_) return;
    ativado_ = true;
    executaProtegido([this] { s_.ativa(); });
    sincroniza();
}

void JanelaSortComb::closeEvent(QCloseEvent* e) {
    // The frame cannot close the dialog while the draw runs.
    if (sorteando_) {
        e->ignore();
        return;
    }
    Formulario::closeEvent(e);
}

bool JanelaSortComb::eventFilter(QObject* alvo, QEvent* e) {
    // The box's text is selected whenever it gets the focus.
    if (alvo == txtDez_ && e->type() == QEvent::FocusIn)
        selecionaAoFocar(txtDez_, static_cast<QFocusEvent*>(e));
    return Formulario::eventFilter(alvo, e);
}

void mostraJanelaSortComb(Programa& p, QWidget* pai) {
    JanelaSortComb janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
