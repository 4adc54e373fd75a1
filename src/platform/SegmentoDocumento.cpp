#include "platform/SegmentoDocumento.h"

#include "base/Cp1252.h"

#include <algorithm>

namespace sorvelo {

int digitosDoNumero(int64_t n) {
    int d = 1;
    for (uint64_t v = uint64_t(n); v >= 10; v /= 10)
        ++d;
    return std::max(d, 5);
}

int64_t potenciaDeDez(int d) {
    int64_t p = 1;
    for (int i = 0; i < d; ++i)
        p *= 10;
    return p;
}

int64_t DocumentoRico::Segmento::finsAte(int64_t r) const {
    if (apostas) return std::min<int64_t>(r / largura, quant);
    return int64_t(
        std::upper_bound(fins.begin(), fins.end(), r, [](int64_t p, uint32_t f) { return p < int64_t(f); }) -
        fins.begin());
}

void DocumentoRico::Segmento::escreveLinha(int64_t j, char16_t* linha) const {
    uint64_t n = uint64_t(n0 + j);
    for (int i = digitos - 1; i >= 0; --i) {
        linha[i] = char16_t(u'0' + n % 10);
        n /= 10;
    }
    char16_t* p = linha + digitos;
    *p++ = u')';
    *p++ = u' ';
    *p++ = u' ';
    *p++ = u' ';
    const uint8_t* num = numeros.data() + size_t(j) * size_t(numerosPorLinha);
    for (int c = 0; c < numerosPorLinha; ++c) {
        *p++ = char16_t(u'0' + num[c] / 10);
        *p++ = char16_t(u'0' + num[c] % 10);
        *p++ = u' ';
    }
    for (QChar c : fimLinha)
        *p++ = c.unicode();
}

char16_t DocumentoRico::Segmento::caractere(int64_t r) const {
    if (!apostas) return largo ? largos[size_t(r)] : cp1252::caractere(estreito[size_t(r)]);
    char16_t linha[MaiorLinha];
    escreveLinha(r / largura, linha);
    return linha[r % largura];
}

void DocumentoRico::Segmento::escreve(int64_t a, int64_t b, QString& destino) const {
    if (a >= b) return;
    if (!apostas) {
        if (largo) {
            destino.append(reinterpret_cast<const QChar*>(largos.data() + a), qsizetype(b - a));
            return;
        }
        const qsizetype base = destino.size();
        destino.resize(base + qsizetype(b - a));
        QChar* d = destino.data() + base;
        for (int64_t i = a; i < b; ++i)
            *d++ = QChar(cp1252::caractere(estreito[size_t(i)]));
        return;
    }
    char16_t linha[MaiorLinha];
    for (int64_t j = a / largura; j * largura < b; ++j) {
        escreveLinha(j, linha);
        const int64_t ini = j * largura;
        const int64_t x = std::max(a, ini) - ini, y = std::min(b, ini + largura) - ini;
        destino.append(reinterpret_cast<const QChar*>(linha + x), qsizetype(y - x));
    }
}

uint16_t DocumentoRico::Segmento::formatoEm(int64_t r) const {
    if (apostas) return r % largura < 6 ? formatoNumero : formatoAposta;
    auto it = std::upper_bound(corridas.begin(), corridas.end(), r,
                               [](int64_t p, const Corrida& c) { return p < int64_t(c.inicio); });
    return it == corridas.begin() ? corridas.front().formato : (it - 1)->formato;
}

int64_t DocumentoRico::Segmento::acrescenta(QStringView pedaco, uint16_t formato) {
    const int64_t base = comprimento();
    const int64_t n = pedaco.size();
    if (n == 0) return 0;
    if (corridas.empty() || corridas.back().formato != formato) corridas.push_back({uint32_t(base), formato});
    const char16_t anterior = base > 0 ? caractere(base - 1) : u'\0';

    if (!largo) {
        estreito.resize(size_t(base + n));
        uint8_t* d = estreito.data() + base;
        bool cabe = true;
        for (int64_t i = 0; i < n && cabe; ++i)
            cabe = cp1252::byteDe(pedaco[i].unicode(), d[i]);
        if (!cabe) {
            // A character out of the code page: the segment takes 16 bits.
            largos.resize(size_t(base));
            for (int64_t i = 0; i < base; ++i)
                largos[size_t(i)] = cp1252::caractere(estreito[size_t(i)]);
            std::vector<uint8_t>().swap(estreito);
            largo = true;
        }
    }
    if (largo) {
        const char16_t* p = reinterpret_cast<const char16_t*>(pedaco.data());
        largos.insert(largos.end(), p, p + n);
    }

    // A LF right after a CR at the end ends the same line.
    int64_t i = 0, novos = 0;
    if (anterior == u'\r' && pedaco[0] == u'\n') {
        fins.back() = uint32_t(base + 1);
        i = 1;
    }
    for (; i < n; ++i) {
        const char16_t c = pedaco[i].unicode();
        if (c == u'\r') {
            if (i + 1 < n && pedaco[i + 1] == u'\n') ++i;
            fins.push_back(uint32_t(base + i + 1));
            ++novos;
        } else if (c == u'\n') {
            fins.push_back(uint32_t(base + i + 1));
            ++novos;
        }
    }
    return novos;
}

} // namespace sorvelo
