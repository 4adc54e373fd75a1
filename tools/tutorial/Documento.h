// The tutorial's source text turned into an RTF document with its pictures.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tutorial {

struct Resultado {
    QByteArray documento;
    QStringList imagens; // the pictures embedded, in order
    QString erro;        // a picture that could not be read
};

// `pastaImagens` holds the pictures that the source names.
Resultado geraRtf(const QString& fonte, const QString& pastaImagens);

// Width and height of a PNG from its header; false when it is no PNG.
bool medidasPng(const QByteArray& png, int& largura, int& altura);

} // namespace tutorial
