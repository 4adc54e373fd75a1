#include "forms/Help.h"

#include "forms/Janelas.h"

#include "forms/Controles.h"
#include "forms/Ilustracoes.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace sorvelo {

namespace {
QColor qcor(Cor c) {
    return QColor(vermelho(c), verde(c), azul(c));
}
} // namespace

JanelaHelp::JanelaHelp(Programa& p, QWidget* pai)
    : Formulario(p, "Help", QStringLiteral("Sorvelo"), pai), h_(p) {
    ligaLogica(h_);
    QPalette amarelo = palette();
    amarelo.setColor(QPalette::Window, qcor(CorFundoAjuda));
    amarelo.setColor(QPalette::Base, qcor(CorFundoAjuda));
    auto* pic = poe(new QWidget, this, "PicHelp", 0, 0, 7200, 5400);
    pic->setAutoFillBackground(true);
    pic->setPalette(amarelo);
    // Keys reach the form through the command box, out of sight.
    txtComando_ = poe(new QLineEdit, pic, "TxtComando", -2000, 0, 300, 285);
    txtComando_->setProperty("sorvelo_enter_proprio", true);
    QLabel* titulo = escala_.rotulo(pic, QString(), 240, 180, 6720, 375, "LblTitulo");
    QFont fonteTitulo(QString::fromLatin1(FonteAjuda));
    fonteTitulo.setPointSizeF(12);
    fonteTitulo.setBold(true);
    titulo->setFont(fonteTitulo);
    titulo->setAutoFillBackground(true);
    titulo->setPalette(amarelo);
    rtfHelp_ = poe(new QTextEdit, pic, "RTFHelp", 240, 660, 6720, 4500);
    QFont fonte(QString::fromLatin1(FonteAjuda));
    fonte.setPointSizeF(TamanhoFonteAjuda);
    fonte.setWeight(QFont::Normal);
    rtfHelp_->setFont(fonte);
    rtfHelp_->setPalette(amarelo);
    rtfHelp_->setFrameShape(QFrame::NoFrame);
    rtfHelp_->setReadOnly(true);
    rtfHelp_->setTextInteractionFlags(Qt::NoTextInteraction);
    rtfHelp_->setFocusPolicy(Qt::ClickFocus);
    rtfHelp_->installEventFilter(this);
    rtfHelp_->viewport()->installEventFilter(this);
    txtComando_->installEventFilter(this);
    tamanho(7200, 5400);
    sincroniza();
    txtComando_->setFocus();
}

void JanelaHelp::atualizaTela() {
    findChild<QLabel*>(QStringLiteral("LblTitulo"))->setText(h_.LblTitulo);
    // The page is plain text in the widget's own line ends.
    QString texto = h_.RTFHelp.texto();
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (rtfHelp_->toPlainText() != texto) rtfHelp_->setPlainText(texto);
}

bool JanelaHelp::eventFilter(QObject* alvo, QEvent* e) {
    if ((alvo == rtfHelp_->viewport() || alvo == rtfHelp_) && e->type() == QEvent::MouseButtonPress) {
        h_.ClicaTexto();
        sincroniza();
        return true;
    }
    // The page's text never keeps the focus.
    if (alvo == rtfHelp_ && e->type() == QEvent::FocusIn) {
        txtComando_->setFocus();
        return false;
    }
    if (alvo == txtComando_ && e->type() == QEvent::KeyPress) {
        const auto* k = static_cast<QKeyEvent*>(e);
        int codigo = 0;
        if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter)
            codigo = 13;
        else if (k->key() == Qt::Key_Escape)
            codigo = 27;
        else if (!k->text().isEmpty())
            codigo = k->text().at(0).unicode();
        const bool cai = h_.TeclaComando(codigo);
        sincroniza();
        // Every key stops here: the box shows nothing typed.
        return cai || true;
    }
    return Formulario::eventFilter(alvo, e);
}

void mostraJanelaHelp(Programa& p, QWidget* pai) {
    JanelaHelp(p, pai).mostraModal();
}

} // namespace sorvelo
