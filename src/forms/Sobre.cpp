#include "forms/Sobre.h"

#include "forms/Janelas.h"

#include "forms/Controles.h"
#include "forms/Ilustracoes.h"
#include "relatorios/Sobre.h"

#include <QPushButton>

namespace sorvelo {

JanelaSobre::JanelaSobre(Programa& p, QWidget* pai)
    : Formulario(p, "Sobre", QString::fromUtf16(TituloSobre), pai) {
    auto* image1 = poe(new QLabel, this, "Image1", 240, 240, 960, 960);
    image1->setPixmap(desenhaEmblema(tw(960)));
    auto* image2 = poe(new QLabel, this, "Image2", 1440, 360, 3600, 720);
    image2->setPixmap(desenhaBolas(tw(3600), tw(720)));

    QLabel* nome = rotulo(QStringLiteral("Sorvelo"), 1440, 1200, 3600, 420, "Label1");
    QFont grande(QStringLiteral("Arial"), 14);
    grande.setBold(true);
    nome->setFont(grande);
    rotulo(QString::fromUtf16(DescricaoSistema), 1440, 1680, 4200, 255, "Label2");
    rotulo(QString::fromUtf16(VersaoPrograma), 1440, 1980, 4200, 255, "Label3");

    auto link = [this](const char16_t* texto, const char* nome, int y) {
        auto* f = poe(new Figura(QString::fromUtf16(texto)), this, nome, 1440, y, 4200, 255);
        QFont sublinhado = f->font();
        sublinhado.setUnderline(true);
        f->setFont(sublinhado);
        f->setStyleSheet(QStringLiteral("color: rgb(0, 0, 255);"));
        f->setCursor(Qt::PointingHandCursor);
        return f;
    };
    liga(link(EnderecoProduto, "LblLink", 2400), &Figura::clicked, [this] { ClicaLink(p_); });
    liga(link(EmailSuporte, "LblEmail", 2700), &Figura::clicked, [this] { ClicaEmail(p_); });

    auto* ok = poe(new QPushButton(QStringLiteral("OK")), this, "BtnOK", 4440, 3180, 1215, 375);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    tamanho(5880, 3780);
}

void mostraJanelaSobre(Programa& p, QWidget* pai) {
    JanelaSobre(p, pai).mostraModal();
}

} // namespace sorvelo
