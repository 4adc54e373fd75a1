// One segment of a rich-text document: a piece of text with its runs and
// line ends, or a run of numbered bet lines kept as their numbers. Positions
// here count from the segment's first character.
#pragma once

#include "platform/DocumentoRico.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace sorvelo {

// A change of format inside a piece of text, from `inicio` on.
struct Corrida {
    uint32_t inicio;
    uint16_t formato; // index of the document's formats
};

struct DocumentoRico::Segmento {
    // Text segments end at this size (a CR LF is never split, so one may
    // hold a character more); bet segments at this many lines.
    static constexpr int64_t LimiteTexto = 64 * 1024;
    static constexpr int32_t LimiteLinhas = 4096;
    // The longest bet line written compactly: 19 digits, ")   ", 255
    // numbers of three characters and a line end of up to 8 characters.
    static constexpr int MaiorLinha = 19 + 4 + 3 * 255 + 8;

    int64_t inicio = 0;    // position of its first character in the document
    int64_t finsAntes = 0; // line ends of the document before it
    bool apostas = false;

    // A piece of text, in 8-bit (Windows-1252) or 16-bit code units.
    bool largo = false;
    std::vector<uint8_t> estreito;
    std::vector<char16_t> largos;
    std::vector<uint32_t> fins; // the position just after each line end
    std::vector<Corrida> corridas;

    // Bet lines n0, n0 + 1, ...: `digitos` digits of the number, ")   ",
    // numerosPorLinha numbers of two digits and a blank each, fimLinha.
    int64_t n0 = 0;
    int32_t quant = 0;
    int32_t numerosPorLinha = 0;
    int32_t digitos = 0;
    int64_t limiteNumeros = 0; // the first number that needs more digits
    int32_t largura = 0;       // characters of a line, with its line end
    uint16_t formatoNumero = 0, formatoAposta = 0;
    QString fimLinha;
    std::vector<uint8_t> numeros;

    int64_t comprimento() const {
        return apostas ? int64_t(quant) * largura : int64_t(largo ? largos.size() : estreito.size());
    }
    int64_t quantFins() const { return apostas ? quant : int64_t(fins.size()); }
    // The position just after line end j (0-based).
    int64_t depoisDoFim(int64_t j) const { return apostas ? (j + 1) * largura : int64_t(fins[size_t(j)]); }
    // How many line ends end at or before position r.
    int64_t finsAte(int64_t r) const;

    char16_t caractere(int64_t r) const;
    // Appends the characters a to b - 1 to `destino`.
    void escreve(int64_t a, int64_t b, QString& destino) const;
    // Calls f(ra, rb, formato) for each run (of a line, for bet lines) that
    // meets a..b - 1, cut to it, in order.
    template <typename F> void corridasEntre(int64_t a, int64_t b, F&& f) const;
    uint16_t formatoEm(int64_t r) const;

    // Text segments: appends a piece in one format, widening the code
    // units when the piece needs it; gives the line ends added.
    int64_t acrescenta(QStringView pedaco, uint16_t formato);
    // Bet segments: writes line j into `linha` (MaiorLinha characters).
    void escreveLinha(int64_t j, char16_t* linha) const;
};

template <typename F> void DocumentoRico::Segmento::corridasEntre(int64_t a, int64_t b, F&& f) const {
    if (a >= b) return;
    if (apostas) {
        for (int64_t j = a / largura; j * largura < b; ++j) {
            const int64_t ini = j * largura, meio = ini + 6, fim = ini + largura;
            if (a < meio && ini < b) f(std::max(a, ini), std::min(b, meio), formatoNumero);
            if (a < fim && meio < b) f(std::max(a, meio), std::min(b, fim), formatoAposta);
        }
        return;
    }
    auto it = std::upper_bound(corridas.begin(), corridas.end(), a,
                               [](int64_t p, const Corrida& c) { return p < int64_t(c.inicio); });
    if (it != corridas.begin()) --it;
    const int64_t total = comprimento();
    for (; it != corridas.end() && int64_t(it->inicio) < b; ++it) {
        const int64_t proxima = it + 1 != corridas.end() ? int64_t((it + 1)->inicio) : total;
        const int64_t x = std::max(a, int64_t(it->inicio)), y = std::min(b, proxima);
        if (x < y) f(x, y, it->formato);
    }
}

// The digits of n (n >= 0), at least five.
int digitosDoNumero(int64_t n);
// 10 to the power d (0 <= d <= 18).
int64_t potenciaDeDez(int d);

} // namespace sorvelo
