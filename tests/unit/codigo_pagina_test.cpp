// The code page of the bet file: Windows-1252 by a fixed table, in which
// every byte survives a round trip.
#include "base/Cp1252.h"

#include <gtest/gtest.h>

using namespace sorvelo;

TEST(CodigoPagina, CadaByteVoltaIgualDepoisDeLidoEGravado) {
    QByteArray todos;
    for (int b = 0; b < 256; ++b)
        todos.append(char(b));
    EXPECT_EQ(cp1252::codifica(cp1252::decodifica(todos)), todos);
}

TEST(CodigoPagina, BytesIndefinidosSaoOsControlesC1DeMesmoNumero) {
    for (const int b : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(cp1252::caractere(uint8_t(b)), char16_t(b)) << b;
        uint8_t volta = 0;
        EXPECT_TRUE(cp1252::byteDe(char16_t(b), volta)) << b;
        EXPECT_EQ(volta, b);
    }
    EXPECT_EQ(cp1252::codifica(QString(QChar(u'\u0081')) + u'\u009D'), QByteArray("\x81\x9D"));
}

TEST(CodigoPagina, OsOutrosControlesC1NaoTemByte) {
    for (int c = 0x80; c < 0xA0; ++c) {
        if (c == 0x81 || c == 0x8D || c == 0x8F || c == 0x90 || c == 0x9D) continue;
        uint8_t b = 0;
        EXPECT_FALSE(cp1252::byteDe(char16_t(c), b)) << c;
        EXPECT_EQ(cp1252::codifica(QString(QChar(char16_t(c)))), QByteArray("?")) << c;
    }
}

TEST(CodigoPagina, MetadeSuperiorDoWindows1252) {
    // The published table of the bytes 0x80 to 0x9F (0 where it defines none).
    const char16_t tabela[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
    for (int b = 0; b < 256; ++b) {
        const char16_t esperado =
            b >= 0x80 && b < 0xA0 ? (tabela[b - 0x80] ? tabela[b - 0x80] : char16_t(b)) : char16_t(b);
        EXPECT_EQ(cp1252::caractere(uint8_t(b)), esperado) << b;
        uint8_t volta = 0;
        EXPECT_TRUE(cp1252::byteDe(esperado, volta)) << b;
        EXPECT_EQ(volta, b) << b;
    }
    // A character with no byte.
    uint8_t b = 0;
    EXPECT_FALSE(cp1252::byteDe(u'\u2713', b));
    EXPECT_FALSE(cp1252::byteDe(u'\u0100', b));
    EXPECT_FALSE(cp1252::byteDe(u'\uFFFD', b));
}
