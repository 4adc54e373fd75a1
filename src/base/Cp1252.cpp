#include "base/Cp1252.h"

#include <algorithm>
#include <array>

namespace sorvelo::cp1252 {

namespace {

// The characters of the bytes 0x80 to 0x9F. The five bytes that the code
// page leaves undefined (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the C1
// control characters of the same number, so that every byte of a file
// comes back the same when the file is saved again. Every other byte is the
// character of the same number (Latin-1).
constexpr std::array<char16_t, 32> Superiores = {
    u'\u20AC', u'\u0081', u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\u008D', u'\u017D', u'\u008F',
    u'\u0090', u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\u009D', u'\u017E', u'\u0178'};

constexpr std::array<char16_t, 256> Caracteres = [] {
    std::array<char16_t, 256> t{};
    for (int b = 0; b < 256; ++b)
        t[size_t(b)] = b >= 0x80 && b < 0xA0 ? Superiores[size_t(b - 0x80)] : char16_t(b);
    return t;
}();

// The characters above 0xFF that have a byte, sorted, with their bytes.
struct Par {
    char16_t caractere;
    uint8_t byte;
};
constexpr auto Altos = [] {
    std::array<Par, 27> t{};
    size_t n = 0;
    for (int b = 0x80; b < 0xA0; ++b)
        if (Superiores[size_t(b - 0x80)] > 0xFF) t[n++] = {Superiores[size_t(b - 0x80)], uint8_t(b)};
    std::sort(t.begin(), t.end(), [](Par a, Par b) { return a.caractere < b.caractere; });
    return t;
}();

} // namespace

char16_t caractere(uint8_t b) {
    return Caracteres[b];
}

bool byteDe(char16_t c, uint8_t& b) {
    if (c < 0x80 || c >= 0xA0) {
        if (c <= 0xFF) {
            b = uint8_t(c);
            return true;
        }
        const auto it = std::lower_bound(Altos.begin(), Altos.end(), c,
                                         [](Par p, char16_t x) { return p.caractere < x; });
        if (it == Altos.end() || it->caractere != c) return false;
        b = it->byte;
        return true;
    }
    // The C1 range: only the five that stand for an undefined byte.
    if (Caracteres[c] != c) return false;
    b = uint8_t(c);
    return true;
}

QByteArray codifica(const QString& texto) {
    QByteArray r(texto.size(), Qt::Uninitialized);
    char* saida = r.data();
    for (QChar q : texto) {
        uint8_t b;
        *saida++ = byteDe(q.unicode(), b) ? char(b) : '?';
    }
    return r;
}

QString decodifica(const char* dados, int64_t tamanho) {
    QString r(tamanho, Qt::Uninitialized);
    QChar* saida = r.data();
    for (int64_t i = 0; i < tamanho; ++i)
        saida[i] = QChar(Caracteres[uint8_t(dados[i])]);
    return r;
}

} // namespace sorvelo::cp1252
