#include "core/Cp1252.h"

#include <QStringDecoder>

#include <array>
#include <stdexcept>

namespace sorvelo::cp1252 {

namespace {
struct Tabelas {
    std::array<char16_t, 256> caractere{};
    std::array<uint8_t, 65536> byte{}; // 0: none (the character 0 is byte 0)
    Tabelas() {
        QStringDecoder decodificador("windows-1252");
        if (!decodificador.isValid()) throw std::runtime_error("windows-1252 indisponível");
        for (int b = 0; b < 256; ++b) {
            const char c = char(b);
            const QString s = decodificador(QByteArray(&c, 1));
            char16_t u = s.size() == 1 ? s[0].unicode() : u'\uFFFD';
            caractere[size_t(b)] = u;
            if (u != u'\uFFFD' && b != 0) byte[u] = uint8_t(b);
        }
    }
};

const Tabelas& tabelas() {
    static const Tabelas t;
    return t;
}
} // namespace

char16_t caractere(uint8_t b) {
    return tabelas().caractere[b];
}

bool byteDe(char16_t c, uint8_t& b) {
    if (c < 0x80) {
        b = uint8_t(c);
        return true;
    }
    b = tabelas().byte[c];
    return b != 0;
}

QByteArray codifica(const QString& texto) {
    QByteArray r(texto.size(), Qt::Uninitialized);
    char* saida = r.data();
    const auto& t = tabelas().byte;
    for (QChar q : texto) {
        const char16_t c = q.unicode();
        if (c < 0x80) {
            *saida++ = char(c);
        } else {
            const uint8_t b = t[c];
            *saida++ = b ? char(b) : '?';
        }
    }
    return r;
}

QString decodifica(const char* dados, int64_t tamanho) {
    QString r(tamanho, Qt::Uninitialized);
    QChar* saida = r.data();
    const auto& t = tabelas().caractere;
    for (int64_t i = 0; i < tamanho; ++i)
        saida[i] = QChar(t[uint8_t(dados[i])]);
    return r;
}

} // namespace sorvelo::cp1252
