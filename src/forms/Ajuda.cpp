#include "Ajuda.h"

#include "Controles.h"
#include "Ilustracoes.h"

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

void JanelaHelp::sincroniza() {
    findChild<QLabel*>(QStringLiteral("LblTitulo"))->setText(h_.LblTitulo);
    // The page is plain text in the widget's own line ends.
    QString texto = h_.RTFHelp.texto();
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (rtfHelp_->toPlainText() != texto) rtfHelp_->setPlainText(texto);
    if (h_.fechada() && isVisible()) close();
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

JanelaTopicos::JanelaTopicos(Programa& p, std::function<void()> mostraHelp, QWidget* pai)
    : Formulario(p, "Topicos", QStringLiteral("Sorvelo - Tópicos da ajuda"), pai),
      mostraHelp_(std::move(mostraHelp)) {
    QLabel* l1 = rotulo(QStringLiteral("Tópicos da ajuda"), 240, 180, 4800, 375, "Label1");
    QFont grande(QStringLiteral("Arial"), 12);
    grande.setBold(true);
    l1->setFont(grande);
    rotulo(QStringLiteral("Clique em um dos tópicos abaixo para obter ajuda:"), 240, 660, 4800, 255,
           "Label2");
    const QPixmap livro = desenhaLivro(tw(240));
    for (int i = 0; i < QuantTopicos; ++i) {
        const int y = 1080 + i * 360;
        const QByteArray nomeBook = "Book(" + QByteArray::number(i) + ")";
        const QByteArray nomeLbl = "LblHelp(" + QByteArray::number(i) + ")";
        auto* book = poe(new Figura, this, nomeBook.constData(), 360, y, 240, 240);
        book->setPixmap(livro);
        book->setCursor(Qt::PointingHandCursor);
        auto* lbl = poe(new Figura(TextoTopico(i)), this, nomeLbl.constData(), 720, y, 3960, 255);
        QFont sublinhado = lbl->font();
        sublinhado.setUnderline(true);
        lbl->setFont(sublinhado);
        lbl->setStyleSheet(QStringLiteral("color: rgb(0, 0, 160);"));
        lbl->setCursor(Qt::PointingHandCursor);
        for (Figura* f : {book, lbl})
            liga(f, &Figura::clicked, [this, i] { AbreTopico(p_, i, mostraHelp_); });
    }
    auto* fechar = poe(new QPushButton(QStringLiteral("Fechar")), this, "BtnFechar", 3480, 4080, 1215, 375);
    connect(fechar, &QPushButton::clicked, this, &QWidget::close);
    tamanho(4920, 4620);
}

} // namespace sorvelo
