#include "forms/Desenhos.h"

#include <QPainter>
#include <QPainterPath>

namespace sorvelo {

namespace {
QPixmap tela(int w, int h, qreal escala) {
    QPixmap p(qRound(w * escala), qRound(h * escala));
    p.fill(Qt::transparent);
    return p;
}

void bola(QPainter& g, QColor cor, const QString& letras) {
    QRadialGradient grad(QPointF(8, 9), 12);
    grad.setColorAt(0, cor.lighter(160));
    grad.setColorAt(1, cor.darker(120));
    g.setBrush(grad);
    g.setPen(QPen(cor.darker(170), 1));
    g.drawEllipse(QRectF(1, 3, 19, 19));
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(letras.size() > 1 ? 8 : 10);
    f.setBold(true);
    g.setFont(f);
    g.setPen(Qt::white);
    g.drawText(QRectF(1, 3, 19, 19), Qt::AlignCenter, letras);
}
} // namespace

QPixmap desenhaImagem(Imagem qual, qreal escala) {
    QPixmap p = tela(21, 25, escala);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    g.scale(escala, escala);
    switch (qual) {
    case Imagem::Novo: {
        QPainterPath folha;
        folha.moveTo(4, 3);
        folha.lineTo(13, 3);
        folha.lineTo(17, 7);
        folha.lineTo(17, 22);
        folha.lineTo(4, 22);
        folha.closeSubpath();
        g.setBrush(Qt::white);
        g.setPen(QPen(QColor(60, 60, 60), 1));
        g.drawPath(folha);
        g.drawLine(QPointF(13, 3), QPointF(13, 7));
        g.drawLine(QPointF(13, 7), QPointF(17, 7));
        g.setPen(QPen(QColor(0, 150, 0), 1));
        for (int y = 11; y <= 19; y += 3)
            g.drawLine(QPointF(6.5, y), QPointF(14.5, y));
        break;
    }
    case Imagem::Abrir:
        g.setPen(QPen(QColor(120, 90, 20), 1));
        g.setBrush(QColor(240, 200, 90));
        g.drawRect(QRectF(2, 8, 15, 12));
        g.drawRect(QRectF(2, 6, 6, 3));
        g.setBrush(QColor(250, 220, 120));
        g.drawPolygon(QPolygonF({QPointF(5, 12), QPointF(20, 12), QPointF(17, 20), QPointF(2, 20)}));
        break;
    case Imagem::Salvar:
        g.setPen(QPen(QColor(20, 40, 90), 1));
        g.setBrush(QColor(50, 90, 170));
        g.drawRoundedRect(QRectF(2.5, 4.5, 16, 16), 1.5, 1.5);
        g.setBrush(Qt::white);
        g.drawRect(QRectF(5.5, 4.5, 10, 6));
        g.setBrush(QColor(200, 200, 210));
        g.drawRect(QRectF(6.5, 14.5, 8, 6));
        break;
    case Imagem::Imprimir:
        g.setPen(QPen(QColor(50, 50, 50), 1));
        g.setBrush(Qt::white);
        g.drawRect(QRectF(6, 3, 9, 7));
        g.setBrush(QColor(170, 170, 175));
        g.drawRoundedRect(QRectF(2, 9, 17, 8), 1.5, 1.5);
        g.setBrush(Qt::white);
        g.drawRect(QRectF(6, 14, 9, 8));
        g.setPen(QPen(QColor(0, 0, 255), 1));
        g.drawLine(QPointF(7.5, 17), QPointF(13.5, 17));
        g.drawLine(QPointF(7.5, 19.5), QPointF(13.5, 19.5));
        break;
    case Imagem::MegaSena:
        bola(g, QColor(0, 140, 60), QStringLiteral("M"));
        break;
    case Imagem::DuplaSena:
        bola(g, QColor(170, 30, 40), QStringLiteral("D"));
        break;
    case Imagem::Quina:
        bola(g, QColor(70, 40, 150), QStringLiteral("Q"));
        break;
    case Imagem::Lotomania:
        bola(g, QColor(230, 120, 0), QStringLiteral("LM"));
        break;
    case Imagem::LotoFacil:
        bola(g, QColor(150, 20, 130), QStringLiteral("LF"));
        break;
    }
    return p;
}

QPixmap desenhaSeta(int lado) {
    QPixmap p(lado, lado);
    p.fill(Qt::transparent);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    g.scale(lado / 25.0, lado / 25.0);
    QPainterPath seta;
    seta.moveTo(3, 9);
    seta.lineTo(13, 9);
    seta.lineTo(13, 4);
    seta.lineTo(22, 12.5);
    seta.lineTo(13, 21);
    seta.lineTo(13, 16);
    seta.lineTo(3, 16);
    seta.closeSubpath();
    QLinearGradient grad(0, 4, 0, 21);
    grad.setColorAt(0, QColor(90, 200, 90));
    grad.setColorAt(1, QColor(0, 110, 0));
    g.setBrush(grad);
    g.setPen(QPen(QColor(0, 70, 0), 1));
    g.drawPath(seta);
    return p;
}

QPixmap desenhaDados(int estado, int lado) {
    QPixmap p(lado, lado);
    p.fill(Qt::transparent);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    g.scale(lado / 25.0, lado / 25.0);
    const QColor face = estado == 2 ? QColor(255, 255, 200) : estado == 3 ? QColor(230, 240, 255) : Qt::white;
    auto dado = [&](QRectF r, std::initializer_list<QPointF> pontos) {
        g.setPen(QPen(QColor(60, 60, 60), 1));
        g.setBrush(face);
        g.drawRoundedRect(r, 2, 2);
        g.setBrush(QColor(200, 0, 0));
        g.setPen(Qt::NoPen);
        for (QPointF q : pontos)
            g.drawEllipse(QPointF(r.x() + q.x(), r.y() + q.y()), 1.3, 1.3);
    };
    dado(QRectF(1.5, 1.5, 12, 12), {{3, 3}, {6, 6}, {9, 9}});
    dado(QRectF(11.5, 11.5, 12, 12), {{3, 3}, {9, 3}, {3, 9}, {9, 9}});
    return p;
}

QPixmap desenhaAjuda(int lado) {
    QPixmap p(lado, lado);
    p.fill(Qt::transparent);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    g.setBrush(QColor(255, 230, 80));
    g.setPen(QPen(QColor(120, 90, 0), 1));
    g.drawEllipse(QRectF(0.5, 0.5, lado - 1, lado - 1));
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(qMax(8, lado - 5));
    f.setBold(true);
    g.setFont(f);
    g.setPen(QColor(0, 0, 120));
    g.drawText(QRectF(0, 0, lado, lado), Qt::AlignCenter, QStringLiteral("?"));
    return p;
}

QIcon iconePrograma() {
    QIcon i;
    for (int lado : {16, 32, 48})
        i.addPixmap(desenhaSeta(lado));
    return i;
}

} // namespace sorvelo
