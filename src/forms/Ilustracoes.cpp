#include "forms/Ilustracoes.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace sorvelo {

namespace {

QPixmap transparente(int largura, int altura) {
    QPixmap p(largura, altura);
    p.fill(Qt::transparent);
    return p;
}

void bola(QPainter& g, QPointF centro, qreal raio, QColor cor, const QString& numero) {
    QRadialGradient brilho(centro - QPointF(raio * 0.35, raio * 0.35), raio * 1.3);
    brilho.setColorAt(0, cor.lighter(190));
    brilho.setColorAt(0.5, cor);
    brilho.setColorAt(1, cor.darker(160));
    g.setPen(QPen(cor.darker(220), qMax<qreal>(1, raio / 18)));
    g.setBrush(brilho);
    g.drawEllipse(centro, raio, raio);
    g.setPen(Qt::NoPen);
    g.setBrush(QColor(255, 255, 255, 235));
    g.drawEllipse(centro, raio * 0.55, raio * 0.55);
    QFont f(QStringLiteral("Arial"));
    f.setBold(true);
    f.setPixelSize(qMax(6, int(raio * 0.62)));
    g.setFont(f);
    g.setPen(QColor(20, 40, 20));
    g.drawText(QRectF(centro.x() - raio, centro.y() - raio, 2 * raio, 2 * raio), Qt::AlignCenter, numero);
}

} // namespace

QPixmap desenhaEmblema(int lado) {
    QPixmap p = transparente(lado, lado);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    const qreal u = lado / 256.0;
    g.setPen(Qt::NoPen);
    g.setBrush(QColor(27, 122, 58));
    g.drawRoundedRect(QRectF(8 * u, 8 * u, 240 * u, 240 * u), 44 * u, 44 * u);
    g.setPen(QPen(QColor(11, 71, 32), 4 * u));
    g.setBrush(QColor(253, 253, 246));
    g.drawRoundedRect(QRectF(36 * u, 40 * u, 148 * u, 176 * u), 14 * u, 14 * u);
    const QColor azul(31, 79, 209), vermelho(216, 38, 43), vazio(154, 167, 160);
    const int marcas[3][3] = {{1, 0, 1}, {0, 1, 2}, {1, 0, 0}};
    for (int l = 0; l < 3; ++l) {
        for (int c = 0; c < 3; ++c) {
            const QRectF r((52 + 43 * c) * u, (60 + 45 * l) * u, 30 * u, 30 * u);
            const int m = marcas[l][c];
            g.setPen(m ? Qt::NoPen : QPen(vazio, 4 * u));
            g.setBrush(m == 1 ? azul : m == 2 ? vermelho : Qt::transparent);
            g.drawRoundedRect(r, 5 * u, 5 * u);
        }
    }
    bola(g, QPointF(186 * u, 178 * u), 50 * u, QColor(245, 197, 24), QStringLiteral("S"));
    return p;
}

QPixmap desenhaBolas(int largura, int altura) {
    QPixmap p = transparente(largura, altura);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    const qreal raio = qMin(largura / 6.4, altura / 2.4);
    const qreal y = altura / 2.0;
    const QColor cores[3] = {QColor(32, 150, 70), QColor(30, 90, 200), QColor(230, 160, 20)};
    const char* numeros[3] = {"07", "23", "41"};
    for (int i = 0; i < 3; ++i)
        bola(g, QPointF(largura / 2.0 + (i - 1) * raio * 2.05, y + (i == 1 ? -raio * 0.12 : raio * 0.08)),
             raio, cores[i], QString::fromLatin1(numeros[i]));
    return p;
}

QPixmap desenhaVolante(int largura, int altura) {
    QPixmap p = transparente(largura, altura);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    const QRectF folha(1, 1, largura - 2, altura - 2);
    g.setPen(QPen(QColor(120, 120, 110), 1));
    g.setBrush(QColor(255, 253, 240));
    g.drawRoundedRect(folha, 4, 4);
    // A band of each game's colour at the top.
    const QColor faixas[5] = {QColor(32, 150, 70), QColor(160, 30, 40), QColor(40, 50, 160),
                              QColor(240, 120, 20), QColor(150, 40, 150)};
    const qreal alturaFaixa = altura * 0.14;
    for (int i = 0; i < 5; ++i) {
        g.setPen(Qt::NoPen);
        g.setBrush(faixas[i]);
        g.drawRect(QRectF(folha.left() + 3 + i * (folha.width() - 6) / 5, folha.top() + 3,
                          (folha.width() - 6) / 5, alturaFaixa));
    }
    const int colunas = 6, linhas = 5;
    const qreal topo = folha.top() + alturaFaixa + 8;
    const qreal w = (folha.width() - 12) / colunas, h = (folha.bottom() - topo - 6) / linhas;
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(qMax(6, int(h * 0.45)));
    g.setFont(f);
    const int marcados[] = {3, 8, 14, 19, 27};
    for (int i = 0; i < colunas * linhas; ++i) {
        const QRectF r(folha.left() + 6 + (i % colunas) * w + 1, topo + (i / colunas) * h + 1, w - 2, h - 2);
        const bool marcado = std::find(std::begin(marcados), std::end(marcados), i) != std::end(marcados);
        g.setPen(QPen(QColor(200, 60, 60), 1));
        g.setBrush(marcado ? QColor(31, 79, 209) : Qt::transparent);
        g.drawRect(r);
        g.setPen(marcado ? Qt::white : QColor(200, 60, 60));
        g.drawText(r, Qt::AlignCenter, QStringLiteral("%1").arg(i + 1, 2, 10, QLatin1Char('0')));
    }
    return p;
}

QPixmap desenhaSetaVertical(bool paraCima, int lado) {
    QPixmap p = transparente(lado, lado);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    const qreal m = lado * 0.15, s = lado - 2 * m;
    QPainterPath seta;
    // Drawn pointing up; turned for down.
    seta.moveTo(m + s / 2, m);
    seta.lineTo(m + s, m + s * 0.55);
    seta.lineTo(m + s * 0.7, m + s * 0.55);
    seta.lineTo(m + s * 0.7, m + s);
    seta.lineTo(m + s * 0.3, m + s);
    seta.lineTo(m + s * 0.3, m + s * 0.55);
    seta.lineTo(m, m + s * 0.55);
    seta.closeSubpath();
    if (!paraCima) {
        g.translate(0, lado);
        g.scale(1, -1);
    }
    g.setPen(QPen(QColor(0, 90, 30), qMax<qreal>(1, lado / 16.0)));
    g.setBrush(QColor(40, 170, 70));
    g.drawPath(seta);
    return p;
}

QPixmap desenhaLivro(int lado) {
    QPixmap p = transparente(lado, lado);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    const qreal u = lado / 16.0;
    g.setPen(QPen(QColor(60, 30, 10), qMax<qreal>(1, u * 0.7)));
    g.setBrush(QColor(250, 245, 225));
    g.drawRect(QRectF(4 * u, 2.5 * u, 10 * u, 12 * u));
    g.setBrush(QColor(30, 90, 170));
    g.drawRect(QRectF(2.5 * u, 1.5 * u, 10 * u, 12 * u));
    g.setPen(QPen(QColor(250, 220, 90), qMax<qreal>(1, u * 0.8)));
    g.drawLine(QPointF(5 * u, 5 * u), QPointF(10 * u, 5 * u));
    g.drawLine(QPointF(5 * u, 7 * u), QPointF(10 * u, 7 * u));
    return p;
}

} // namespace sorvelo
