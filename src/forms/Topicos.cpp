#include "forms/Topicos.h"

#include "forms/Controles.h"
#include "forms/Ilustracoes.h"
#include "forms/Janelas.h"
#include "relatorios/Ajuda.h"

#include <QPushButton>

namespace sorvelo {

JanelaTopicos::JanelaTopicos(Programa& p, QWidget* pai)
    : Formulario(p, "Topicos", QStringLiteral("Sorvelo - Tópicos da ajuda"), pai) {
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
            liga(f, &Figura::clicked, [this, i] { AbreTopico(p_, i); });
    }
    auto* fechar = poe(new QPushButton(QStringLiteral("Fechar")), this, "BtnFechar", 3480, 4080, 1215, 375);
    connect(fechar, &QPushButton::clicked, this, &QWidget::close);
    tamanho(4920, 4620);
}

void mostraJanelaTopicos(Programa& p, QWidget* pai) {
    JanelaTopicos(p, pai).mostraModal();
}

} // namespace sorvelo
