#include "edicao/ApostasIguais.h"

#include "base/Semantica.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <new>
#include <utility>

namespace sorvelo {

namespace {
// The first cells of a row packed in order, one byte each, to sort by.
constexpr int CelulasNaChave = 8;

struct Item {
    uint64_t chave;
    uint32_t linha;
    uint8_t m;    // the column of the "#"
    bool exata;   // each byte of the key is the cell's own order
    bool simples; // ... and the key holds the whole bet
};
} // namespace

uint32_t ApostasIguais::token(int64_t linha, int coluna, uint8_t codigo) {
    if (codigo != MatrizTexto::Outro) return uint32_t(codigo) + 1;
    const QString texto = vet_.valor(coluna, linha);
    auto it = outros_.constFind(texto);
    if (it != outros_.constEnd()) return it.value();
    const uint32_t t = uint32_t(256 + outros_.size());
    outros_.insert(texto, t);
    return t;
}

int ApostasIguais::comprimento(int64_t linha) const {
    int q = 0;
    const uint8_t* cel = vet_.celulas(linha, q);
    if (q == 0 || cel[q - 1] != MatrizTexto::Fim) foraDoIntervalo();
    return q - 1;
}

bool ApostasIguais::comecaComArroba(int64_t linha) const {
    return vet_.codigo(0, linha) == MatrizTexto::Outro && vet_.valor(0, linha) == u'@';
}

// Orders two rows by their cells, the end of the shorter first; `comum` is
// the count of leading cells they share.
int ApostasIguais::compara(uint32_t a, uint32_t b, int& comum) {
    int qa = 0, qb = 0;
    const uint8_t* ca = vet_.celulas(a, qa);
    const uint8_t* cb = vet_.celulas(b, qb);
    const int ma = qa - 1, mb = qb - 1;
    for (int j = 0;; ++j) {
        const uint32_t ta = j < ma ? token(a, j, ca[j]) : 0;
        const uint32_t tb = j < mb ? token(b, j, cb[j]) : 0;
        if (ta != tb || ta == 0) {
            comum = j;
            return ta == tb ? 0 : (ta < tb ? -1 : 1);
        }
    }
}

ApostasIguais::ApostasIguais(const MatrizTexto& vetAux, int64_t quant) : vet_(vetAux), quant_(quant) {
    const size_t n = size_t(quant);
    std::vector<Item> itens;
    std::vector<int32_t> comum; // between sorted places j and j + 1
    try {
        itens.resize(n);
        comum.resize(n);
        lugar_.resize(n);
        desde_.resize(n);
        ate_.resize(n);
        arvore_.resize(n + 1);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    for (size_t r = 0; r < n; ++r) {
        int q = 0;
        const uint8_t* cel = vet_.celulas(int64_t(r), q);
        if (q == 0 || cel[q - 1] != MatrizTexto::Fim) foraDoIntervalo();
        const int m = q - 1;
        Item& it = itens[r];
        it = {0, uint32_t(r), uint8_t(m), true, false};
        for (int j = 0; j < CelulasNaChave; ++j) {
            uint32_t t = j < m ? token(int64_t(r), j, cel[j]) : 0;
            if (t > 255) {
                it.exata = false;
                t = 255;
            }
            it.chave = it.chave << 8 | t;
        }
        it.simples = it.exata && m <= CelulasNaChave;
        if (m > 0 && comecaComArroba(int64_t(r))) temArroba_ = true;
    }
    std::sort(itens.begin(), itens.end(), [this](const Item& a, const Item& b) {
        if (a.exata && b.exata && a.chave != b.chave) return a.chave < b.chave;
        if (!a.simples || !b.simples) {
            int c = 0;
            const int ordem = compara(a.linha, b.linha, c);
            if (ordem != 0) return ordem < 0;
        }
        return a.linha < b.linha;
    });
    for (size_t j = 0; j < n; ++j) {
        lugar_[itens[j].linha] = uint32_t(j);
        if (j + 1 == n) break;
        const Item &a = itens[j], &b = itens[j + 1];
        if (a.simples && b.simples) {
            const uint64_t x = a.chave ^ b.chave;
            comum[j] = x == 0 ? a.m : std::countl_zero(x) / 8;
        } else {
            compara(a.linha, b.linha, comum[j]);
        }
    }
    if (n > 0) comum[n - 1] = -1;
    // The rows equal to a place begin at the first of its run of equals.
    for (size_t j = 0; j < n; ++j) {
        const bool igualAnterior = j > 0 && comum[j - 1] == itens[j].m && itens[j - 1].m == itens[j].m;
        desde_[j] = igualAnterior ? desde_[j - 1] : uint32_t(j);
    }
    // The rows that begin with a place end at the first boundary whose
    // shared count falls below its length: a stack of boundaries whose
    // counts rise toward the nearest, searched by halves.
    std::vector<std::pair<int32_t, uint32_t>> pilha;
    for (size_t j = n; j-- > 0;) {
        while (!pilha.empty() && pilha.back().first >= comum[j])
            pilha.pop_back();
        pilha.emplace_back(comum[j], uint32_t(j));
        const int m = itens[j].m;
        auto acima = std::partition_point(pilha.begin(), pilha.end(),
                                          [m](const std::pair<int32_t, uint32_t>& e) { return e.first < m; });
        ate_[j] = std::prev(acima)->second;
    }
    // Every row present: the tree of a row of ones.
    for (size_t i = 1; i <= n; ++i)
        arvore_[i] = int32_t(i & (~i + 1));
}

int64_t ApostasIguais::soma(int64_t ate) const {
    int64_t s = 0;
    for (int64_t i = ate + 1; i > 0; i -= i & -i)
        s += arvore_[size_t(i)];
    return s;
}

bool ApostasIguais::igualAMarcada(int64_t linha, int m, int64_t marcada) const {
    for (int c = 0; c < m; ++c) {
        const uint8_t a = vet_.codigo(c, linha), b = vet_.codigo(c, marcada);
        if (a != b) return false;
        if (a == MatrizTexto::Outro && vet_.valor(c, linha) != vet_.valor(c, marcada)) return false;
    }
    return true;
}

bool ApostasIguais::temIgual(int64_t linha) const {
    const int m = comprimento(linha);
    if (m == 0) return quant_ >= 2; // no cell to compare: any other row equals it
    const uint32_t j = lugar_[size_t(linha)];
    int64_t presentes = soma(ate_[j]) - (desde_[j] > 0 ? soma(int64_t(desde_[j]) - 1) : 0);
    if (presentes >= 2) return true;
    // A bet that begins with "@" may equal rows marked since.
    if (temArroba_ && comecaComArroba(linha))
        for (uint32_t k : marcadas_)
            if (int64_t(k) != linha && igualAMarcada(linha, m, k) && ++presentes >= 2) return true;
    return false;
}

void ApostasIguais::marca(int64_t linha) {
    if (comprimento(linha) > 0 && comecaComArroba(linha)) return; // "@" over "@" changes nothing
    for (size_t i = size_t(lugar_[size_t(linha)]) + 1; i < arvore_.size(); i += i & (~i + 1))
        --arvore_[i];
    if (temArroba_) marcadas_.push_back(uint32_t(linha));
}

size_t ApostasIguais::bytesUsados() const {
    return (lugar_.capacity() + desde_.capacity() + ate_.capacity() + marcadas_.capacity()) * 4 +
           arvore_.capacity() * 4;
}

} // namespace sorvelo
