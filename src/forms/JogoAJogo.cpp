#include "forms/JogoAJogo.h"

#include "forms/Ilustracoes.h"

#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>

namespace sorvelo {

namespace {
constexpr int LarguraInicial = 7200, AlturaInicial = 1500, LarguraMinima = 2900;
}

JanelaJogoAJogo::JanelaJogoAJogo(Programa& p, QWidget* pai)
    : Formulario(p, "JogoAJogo", QStringLiteral("Conferência jogo a jogo"), pai), j_(p) {
    setWindowFlag(Qt::Window);
    QFont arial(QStringLiteral("Arial"), 10);
    txtSeq_ = poe(new QLineEdit, this, "TxtSeq", 120, 120, 1095, 375);
    txtJogo_ = poe(new QLineEdit, this, "TxtJogo", 1320, 120, JogoAJogo::LarguraTxtJogo(LarguraInicial), 375);
    for (QLineEdit* t : {txtSeq_, txtJogo_}) {
        t->setFont(arial);
        t->setReadOnly(true);
    }
    auto* subir = poe(new QPushButton, this, "BtnSubir", 120, 600, 495, 435);
    auto* descer = poe(new QPushButton, this, "BtnDescer", 720, 600, 495, 435);
    subir->setIcon(desenhaSetaVertical(true, tw(375)));
    descer->setIcon(desenhaSetaVertical(false, tw(375)));
    subir->setIconSize(QSize(tw(300), tw(300)));
    descer->setIconSize(QSize(tw(300), tw(300)));
    subir->setToolTip(QStringLiteral("Aposta anterior"));
    descer->setToolTip(QStringLiteral("Próxima aposta"));
    auto* sair = poe(new QPushButton(QStringLiteral("Sair")), this, "BtnSair", 1320, 600, 1215, 435);

    liga(subir, &QPushButton::clicked, [this] { j_.BtnSubir(); });
    liga(descer, &QPushButton::clicked, [this] { j_.BtnDescer(); });
    connect(sair, &QPushButton::clicked, this, &QWidget::close);
    // The outer size is the client's plus the frame (120 by 405 twips).
    resize(tw(LarguraInicial - 120), tw(AlturaInicial - 405));
    // Narrow enough to hide the bet, never so narrow that its box vanishes.
    setMinimumSize(tw(LarguraMinima - 120), tw(AlturaInicial - 405));
    setMaximumHeight(tw(AlturaInicial - 405));
}

void JanelaJogoAJogo::atualizaTela() {
    txtSeq_->setText(j_.TxtSeq);
    txtJogo_->setText(j_.TxtJogo);
    txtJogo_->setCursorPosition(0);
}

void JanelaJogoAJogo::resizeEvent(QResizeEvent* e) {
    Formulario::resizeEvent(e);
    // The window's outer width, as the form's arithmetic takes it.
    const int l = JogoAJogo::LarguraTxtJogo(escala_.deTw(width()) + 120);
    if (l > 0) txtJogo_->resize(tw(l), txtJogo_->height());
}

} // namespace sorvelo
