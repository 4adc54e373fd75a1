// The 8-bit code page of the bet file (Windows-1252): one byte per
// character, by a fixed table of the 256 bytes. The five bytes the code page
// leaves undefined are the C1 control characters of the same number both
// ways, so every byte survives a round trip; a character that the code page
// cannot hold is written as "?", as the system's conversion to it does.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace sorvelo::cp1252 {

// The character of a byte.
char16_t caractere(uint8_t byte);
// The byte of a character; false when the code page has none.
bool byteDe(char16_t caractere, uint8_t& byte);

QByteArray codifica(const QString& texto);
QString decodifica(const char* dados, int64_t tamanho);
inline QString decodifica(const QByteArray& dados) {
    return decodifica(dados.constData(), dados.size());
}

} // namespace sorvelo::cp1252
