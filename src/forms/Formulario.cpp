#include "forms/Formulario.h"

#include "forms/Controles.h"
#include "forms/Protecao.h"
#include "platform/Atividade.h"

#include <QTimer>

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>

namespace sorvelo {

FormaBase::FormaBase(Programa& p, QWidget* janela) : p_(p), escala_(janela), janela_(janela) {
    janela->setProperty("sorvelo_forma", true);
    QFont fonte(QStringLiteral("Arial"));
    fonte.setPointSize(8);
    janela->setFont(fonte);
    FiltroEnter::instala();
}

void Formulario::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (!aoAparecer_ || agendado_) return;
    agendado_ = true;
    QTimer::singleShot(0, this, [this] {
        executaProtegido(aoAparecer_);
        sincroniza();
    });
}

void FormaBase::sincroniza() {
    const bool antes = sincronizando_;
    sincronizando_ = true;
    for (const auto& v : vinculos_)
        v();
    atualizaTela();
    sincronizando_ = antes;
}

void FormaBase::vincula(QLabel* w, const QString& texto) {
    vinculos_.push_back([w, &texto] {
        if (w->text() != texto) w->setText(texto);
    });
}

void FormaBase::vincula(QLineEdit* w, CampoTexto& campo) {
    vinculos_.push_back([w, &campo] {
        if (w->text() != campo.Text) w->setText(campo.Text);
        w->setEnabled(campo.Enabled);
    });
    liga(w, &QLineEdit::textEdited, [&campo](const QString& t) { campo.Text = t; });
}

void FormaBase::vincula(QComboBox* w, Combo& campo) {
    vinculos_.push_back([w, &campo] {
        if (w->currentText() != campo.Text) w->setEditText(campo.Text);
        w->setEnabled(campo.Enabled);
    });
    liga(w, &QComboBox::editTextChanged, [&campo](const QString& t) { campo.Text = t; });
}

void FormaBase::vincula(QCheckBox* w, CaixaMarcar& campo) {
    vinculos_.push_back([w, &campo] {
        w->setChecked(campo.Value);
        w->setEnabled(campo.Enabled);
    });
    liga(w, &QCheckBox::clicked, [&campo](bool v) { campo.Value = v; });
}

void FormaBase::vincula(QCheckBox* w, const CaixaMarcar& campo, const bool& visivel) {
    vinculos_.push_back([w, &campo, &visivel] {
        w->setVisible(visivel);
        w->setEnabled(campo.Enabled);
        w->setChecked(campo.Value);
    });
}

Formulario::Formulario(Programa& p, const char* nome, const QString& titulo, QWidget* pai)
    : QDialog(pai), FormaBase(p, this) {
    setObjectName(QString::fromUtf8(nome));
    setWindowTitle(titulo);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Formulario::ligaLogica(LogicaDialogo& logica) {
    logica_ = &logica;
    // The logic closed: the window closes (a modal loop returns).
    fechou_ = Ligacao(logica.aoFechar, [this] {
        if (isModal())
            done(0);
        else
            close();
    });
    // A message set in the middle of a run is seen before its yield.
    mensagem_ = Ligacao(logica.aoMudarMensagem, [this] { sincroniza(); });
}

void Formulario::tamanho(int largura, int altura) {
    setFixedSize(tw(largura), tw(altura));
}

void Formulario::mostraModal() {
    // What the handler that opens the dialog has done so far is on screen.
    atualizaVistas();
    sincroniza();
    setModal(true);
    EmModal modal;
    exec();
}

void Formulario::mostra() {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    sincroniza();
    show();
}

void Formulario::reject() {
    close();
}

void Formulario::closeEvent(QCloseEvent* e) {
    if (logica_ && logica_->aberto()) {
        executaProtegido([this] { logica_->fechaPelaMoldura(); });
        sincroniza();
    }
    // A dialog whose logic stays open (its frame refuses) stays up.
    if (logica_ && logica_->aberto())
        e->ignore();
    else
        e->accept();
}

} // namespace sorvelo
