#include "relatorios/Cobertura.h"

#include <array>
#include <bit>
#include <limits>
#include <type_traits>

namespace sorvelo {

namespace {

struct TabelaBinomial {
    std::array<std::array<uint64_t, 65>, 65> c{};
    TabelaBinomial() {
        const uint64_t satura = std::numeric_limits<uint64_t>::max();
        for (int n = 0; n <= 64; ++n) {
            c[n][0] = 1;
            for (int r = 1; r <= n; ++r) {
                const uint64_t a = c[n - 1][r - 1], b = c[n - 1][r];
                c[n][r] = (a > satura - b) ? satura : a + b;
            }
        }
    }
};

const TabelaBinomial& tabela() {
    static const TabelaBinomial t;
    return t;
}

// Calls f with every j-subset of the positions pos[0 .. m-1], as a mask, in
// lexicographic order of the positions; stops when f gives false.
template <class F> void paraCadaCombinacao(const int* pos, int m, int j, F&& f) {
    if (j < 0 || j > m) return;
    if (j == 0) {
        f(Mascara(0));
        return;
    }
    std::array<int, 64> idx{};
    for (int i = 0; i < j; ++i)
        idx[size_t(i)] = i;
    for (;;) {
        Mascara s = 0;
        for (int i = 0; i < j; ++i)
            s |= Mascara(1) << pos[idx[size_t(i)]];
        if constexpr (std::is_same_v<decltype(f(s)), bool>) {
            if (!f(s)) return;
        } else {
            f(s);
        }
        int i = j - 1;
        while (i >= 0 && idx[size_t(i)] == m - j + i)
            --i;
        if (i < 0) return;
        ++idx[size_t(i)];
        for (int q = i + 1; q < j; ++q)
            idx[size_t(q)] = idx[size_t(q - 1)] + 1;
    }
}

int posicoes(Mascara m, int* pos) {
    int c = 0;
    while (m) {
        pos[c++] = std::countr_zero(m);
        m &= m - 1;
    }
    return c;
}

Mascara todas(int n) {
    return n >= 64 ? ~Mascara(0) : (Mascara(1) << n) - 1;
}

} // namespace

uint64_t binomial(int n, int r) {
    if (n < 0 || r < 0 || r > n || n > 64) return 0;
    return tabela().c[size_t(n)][size_t(r)];
}

uint64_t rankColex(Mascara s) {
    const auto& c = tabela().c;
    uint64_t r = 0;
    int i = 1;
    while (s) {
        r += c[size_t(std::countr_zero(s))][size_t(i++)];
        s &= s - 1;
    }
    return r;
}

Mascara desfazRankColex(uint64_t rank, int p, int n) {
    Mascara s = 0;
    int e = n - 1;
    for (int i = p; i >= 1; --i) {
        while (binomial(e, i) > rank)
            --e;
        s |= Mascara(1) << e;
        rank -= binomial(e, i);
        --e;
    }
    return s;
}

uint64_t tamanhoVizinhanca(int n, int r, int p, int t) {
    uint64_t soma = 0;
    for (int j = t; j <= r && j <= p; ++j)
        soma += binomial(r, j) * binomial(n - r, p - j);
    return soma;
}

bool MapaCobertura::parametrosValidos(int n, int p, int t) {
    return n >= 1 && n <= 64 && t >= 1 && t <= p && p <= n && binomial(n, p) <= LimiteSubconjuntos;
}

MapaCobertura::MapaCobertura(int n, int p, int t)
    : n_(n), p_(p), t_(t), total_(binomial(n, p)), bits_(size_t((total_ + 63) / 64), 0) {}

void MapaCobertura::marcaLinha(Mascara linha) {
    linha &= todas(n_);
    std::array<int, 64> dentro{}, fora{};
    const int r = posicoes(linha, dentro.data());
    const int m = posicoes(todas(n_) & ~linha, fora.data());
    for (int j = t_; j <= r && j <= p_; ++j) {
        if (p_ - j > m) continue;
        paraCadaCombinacao(dentro.data(), r, j, [&](Mascara a) {
            paraCadaCombinacao(fora.data(), m, p_ - j, [&](Mascara b) {
                const uint64_t k = rankColex(a | b);
                bits_[size_t(k >> 6)] |= uint64_t(1) << (k & 63);
            });
        });
    }
}

uint64_t MapaCobertura::cobertos() const {
    uint64_t c = 0;
    for (uint64_t w : bits_)
        c += uint64_t(std::popcount(w));
    return c;
}

bool MapaCobertura::coberto(Mascara s) const {
    const uint64_t k = rankColex(s);
    return (bits_[size_t(k >> 6)] >> (k & 63)) & 1;
}

std::vector<Mascara> MapaCobertura::descobertos(size_t limite) const {
    std::vector<Mascara> r;
    if (limite == 0 || completo()) return r;
    std::array<int, 64> pos{};
    for (int i = 0; i < n_; ++i)
        pos[size_t(i)] = i;
    paraCadaCombinacao(pos.data(), n_, p_, [&](Mascara s) {
        if (!coberto(s)) r.push_back(s);
        return r.size() < limite;
    });
    return r;
}

bool provaGarantia(int v, int p, int t, const std::vector<Mascara>& linhas) {
    if (!MapaCobertura::parametrosValidos(v, p, t)) return false;
    MapaCobertura mapa(v, p, t);
    for (Mascara l : linhas)
        mapa.marcaLinha(l);
    return mapa.completo();
}

} // namespace sorvelo
