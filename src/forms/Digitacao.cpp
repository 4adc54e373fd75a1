#include "forms/Digitacao.h"

#include "forms/Controles.h"
#include "forms/Janelas.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>

namespace sorvelo {

namespace {
using Alvo = Digitacao::Alvo;

QColor cor(Cor c) {
    return QColor(vermelho(c), verde(c), azul(c));
}
void pinta(QWidget* w, QColor fundo, QColor frente) {
    QPalette pal = w->palette();
    for (QPalette::ColorGroup g : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        pal.setColor(g, QPalette::Base, fundo);
        pal.setColor(g, QPalette::Text, frente);
    }
    w->setPalette(pal);
}
// A caption's carriage return is a line break on the button.
QString legenda(const QString& caption) {
    QString s = caption;
    return s.replace(u'\r', u'\n');
}
} // namespace

JanelaDigitacao::JanelaDigitacao(Programa& p, QWidget* pai)
    : Formulario(p, "Digitacao", QStringLiteral("Digitação de apostas"), pai), d_(p) {
    ligaLogica(d_);
    tamanho(8040, 5040);
    rotulo(QStringLiteral("Quantidade de números por aposta:"), 120, 180, 2700, 255, "Label1");
    txtQNum_ = poe(new QLineEdit(d_.TxtQNum), this, "TxtQNum", 2880, 120, 435, 315);
    txtQNum_->setMaxLength(2);
    txtQNum_->setAlignment(Qt::AlignCenter);
    pinta(txtQNum_, QColor(128, 128, 255), Qt::white);
    for (int i = 0; i < Digitacao::QuantCelulas; ++i) {
        auto* t = new QLineEdit;
        poe(t, this, nullptr, 120 + 450 * (i % 10), 600 + 375 * (i / 10), 405, 315);
        t->setObjectName(QStringLiteral("TxtNum(%1)").arg(i));
        t->setMaxLength(2);
        t->setAlignment(Qt::AlignCenter);
        QFont f = t->font();
        f.setBold(true);
        t->setFont(f);
        t->installEventFilter(this);
        txtNum_[size_t(i)] = t;
        liga(t, &QLineEdit::textEdited, [this, i](const QString& texto) { d_.mudaTxtNum(i, texto); });
    }
    btnInserir_ = poe(new QPushButton(QStringLiteral("Inserir")), this, "BtnInserir", 120, 3000, 1455, 435);
    btnSair_ = poe(new QPushButton(QStringLiteral("Sair")), this, "BtnSair", 1740, 3000, 1455, 435);
    lstApostas_ = poe(new QListWidget, this, "LstApostas", 4800, 120, 3120, 2640);
    btnExcluir_ = poe(new QPushButton, this, "BtnExcluir", 4800, 2880, 1500, 555);
    btnInserirBanco_ = poe(new QPushButton, this, "BtnInserirBanco", 6420, 2880, 1500, 555);
    rotulo(QStringLiteral("Rascunho:"), 120, 3600, 1200, 255, "Label2");
    rtfRascunho_ = poe(new QTextEdit, this, "RTFRascunho", 120, 3900, 7800, 1020);
    rtfRascunho_->setTabChangesFocus(true);
    rtfRascunho_->setAcceptRichText(false);

    // The tab order; disabled controls are passed over.
    QWidget* anterior = txtQNum_;
    auto segue = [&anterior](QWidget* w) {
        QWidget::setTabOrder(anterior, w);
        anterior = w;
    };
    for (QLineEdit* t : txtNum_)
        segue(t);
    for (QWidget* w : std::initializer_list<QWidget*>{btnInserir_, btnSair_, lstApostas_, btnExcluir_,
                                                      btnInserirBanco_, rtfRascunho_})
        segue(w);
    for (QWidget* w : std::initializer_list<QWidget*>{txtQNum_, btnInserir_, btnSair_, lstApostas_,
                                                      btnExcluir_, btnInserirBanco_, rtfRascunho_})
        w->installEventFilter(this);
    for (QPushButton* b : {btnInserir_, btnSair_, btnExcluir_, btnInserirBanco_}) {
        b->setAutoDefault(false);
        b->setDefault(false);
    }

    liga(txtQNum_, &QLineEdit::textEdited, [this](const QString& t) { d_.mudaTxtQNum(t); });
    liga(lstApostas_, &QListWidget::currentRowChanged, [this](int linha) { d_.selecionaLista(linha); });
    // The button had the focus when the press began; a test that took the
    // focus away ends the press without a click.
    liga(btnInserir_, &QPushButton::clicked, [this] {
        if (d_.foco == Digitacao::controle(Alvo::BtnInserir)) d_.BtnInserirClick();
    });
    liga(btnExcluir_, &QPushButton::clicked, [this] { d_.BtnExcluirClick(); });
    // The bets go into the main window's bank: every window shows it.
    liga(btnInserirBanco_, &QPushButton::clicked, [this] {
        d_.BtnInserirBancoClick();
        atualizaVistas();
    });
    liga(btnSair_, &QPushButton::clicked, [this] {
        d_.BtnSairClick();
        atualizaVistas();
    });
    d_.aoMoverFoco = [this](Digitacao::Foco f) {
        if (QWidget* w = widgetDe(f)) {
            sincroniza();
            w->setFocus(Qt::OtherFocusReason);
        }
    };
}

QWidget* JanelaDigitacao::widgetDe(Digitacao::Foco f) const {
    switch (f.alvo) {
    case Alvo::TxtQNum:
        return txtQNum_;
    case Alvo::TxtNum:
        return f.celula >= 0 && f.celula < Digitacao::QuantCelulas ? txtNum_[size_t(f.celula)] : nullptr;
    case Alvo::BtnInserir:
        return btnInserir_;
    case Alvo::BtnSair:
        return btnSair_;
    case Alvo::LstApostas:
        return lstApostas_;
    case Alvo::BtnExcluir:
        return btnExcluir_;
    case Alvo::BtnInserirBanco:
        return btnInserirBanco_;
    case Alvo::RTFRascunho:
        return rtfRascunho_;
    }
    return nullptr;
}

int JanelaDigitacao::celulaDe(QObject* w) const {
    for (int i = 0; i < Digitacao::QuantCelulas; ++i)
        if (txtNum_[size_t(i)] == w) return i;
    return -1;
}

bool JanelaDigitacao::focoDe(QObject* w, Digitacao::Foco& f) const {
    if (const int i = celulaDe(w); i >= 0) {
        f = Digitacao::celula(i);
        return true;
    }
    for (Alvo a : {Alvo::TxtQNum, Alvo::BtnInserir, Alvo::BtnSair, Alvo::LstApostas, Alvo::BtnExcluir,
                   Alvo::BtnInserirBanco, Alvo::RTFRascunho}) {
        if (widgetDe(Digitacao::controle(a)) == w) {
            f = Digitacao::controle(a);
            return true;
        }
    }
    return false;
}

bool JanelaDigitacao::eventFilter(QObject* alvo, QEvent* e) {
    if (e->type() == QEvent::FocusIn) {
        Digitacao::Foco f;
        if (focoDe(alvo, f)) {
            if (auto* t = qobject_cast<QLineEdit*>(alvo)) selecionaAoFocar(t, static_cast<QFocusEvent*>(e));
            // The logic's own moves arrive here already known to it.
            if (!sincronizando() && f != d_.foco) {
                executaProtegido([&] { d_.recebeFoco(f); });
                sincroniza();
            }
        }
    } else if (e->type() == QEvent::KeyPress) {
        const int i = celulaDe(alvo);
        auto* k = static_cast<QKeyEvent*>(e);
        if (i >= 0 && !sincronizando()) {
            if (k->key() == Qt::Key_Left) {
                executaProtegido([&] { d_.teclaAbaixoTxtNum(i, 37); });
                sincroniza();
            } else if (!k->text().isEmpty() && k->key() != Qt::Key_Tab && k->key() != Qt::Key_Backtab) {
                d_.teclaTxtNum(i);
            }
        }
    }
    return Formulario::eventFilter(alvo, e);
}

bool JanelaDigitacao::event(QEvent* e) {
    if (e->type() == QEvent::WindowActivate) {
        executaProtegido([this] { d_.ativa(); });
        sincroniza();
    }
    return Formulario::event(e);
}

void JanelaDigitacao::atualizaTela() {
    if (txtQNum_->text() != d_.TxtQNum) txtQNum_->setText(d_.TxtQNum);
    for (int i = 0; i < Digitacao::QuantCelulas; ++i) {
        const auto& c = d_.celulas()[size_t(i)];
        QLineEdit* t = txtNum_[size_t(i)];
        if (t->text() != c.Text) t->setText(c.Text);
        t->setEnabled(c.Enabled);
        pinta(t, cor(c.BackColor), QColor(0, 255, 0));
    }
    if (lstApostas_->count() != d_.LstApostas.size() || [&] {
            for (int i = 0; i < lstApostas_->count(); ++i)
                if (lstApostas_->item(i)->text() != d_.LstApostas[i]) return true;
            return false;
        }()) {
        lstApostas_->clear();
        lstApostas_->addItems(d_.LstApostas);
    }
    if (lstApostas_->currentRow() != d_.ListIndex) lstApostas_->setCurrentRow(d_.ListIndex);
    btnInserir_->setEnabled(d_.BtnInserir.Enabled);
    btnExcluir_->setEnabled(d_.BtnExcluir.Enabled);
    btnInserirBanco_->setEnabled(d_.BtnInserirBanco.Enabled);
    btnSair_->setEnabled(d_.BtnSair.Enabled);
    btnExcluir_->setText(legenda(d_.BtnExcluir.Caption));
    btnInserirBanco_->setText(legenda(d_.BtnInserirBanco.Caption));
}

} // namespace sorvelo
