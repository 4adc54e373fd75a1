#include "Referencias.h"

#include <array>
#include <bit>
#include <fstream>
#include <sstream>
#include <vector>

namespace sorvelo::tabelas {

namespace {
std::vector<uint64_t> campos(const std::string& linha) {
    std::vector<uint64_t> r;
    std::stringstream ss(linha);
    std::string c;
    while (std::getline(ss, c, ',')) {
        if (c.empty() || c.find_first_not_of("0123456789\r") != std::string::npos) return {};
        r.push_back(std::stoull(c));
    }
    return r;
}

template <class F> void paraCadaLinha(const std::string& caminho, F&& f) {
    std::ifstream in(caminho);
    std::string linha;
    while (std::getline(in, linha)) {
        if (linha.empty() || linha[0] == '#') continue;
        const auto c = campos(linha);
        if (!c.empty()) f(c);
    }
}

uint64_t divCima(uint64_t a, uint64_t b) {
    return (a + b - 1) / b;
}
} // namespace

void Referencias::carregaCoberturas(const std::string& caminho) {
    paraCadaLinha(caminho, [&](const std::vector<uint64_t>& c) {
        if (c.size() >= 4) coberturas_[{int(c[0]), int(c[1]), int(c[2])}] = c[3];
    });
}

void Referencias::carregaLoterias(const std::string& caminho) {
    paraCadaLinha(caminho, [&](const std::vector<uint64_t>& c) {
        if (c.size() >= 5) loterias_[{int(c[0]), int(c[1]), int(c[2]), int(c[3])}] = c[4];
    });
}

std::optional<uint64_t> Referencias::melhorConhecido(const Parametros& q) const {
    if (q.p == q.t && q.t == q.k) return binomial(q.v, q.k);
    if (q.p == q.t) {
        const auto i = coberturas_.find({q.v, q.k, q.t});
        if (i != coberturas_.end()) return i->second;
        return std::nullopt;
    }
    const auto i = loterias_.find({q.v, q.k, q.p, q.t});
    if (i != loterias_.end()) return i->second;
    return std::nullopt;
}

uint64_t limiteSchonheim(int v, int k, int t) {
    uint64_t b = 1;
    for (int i = t - 1; i >= 0; --i)
        b = divCima(uint64_t(v - i) * b, uint64_t(k - i));
    return b;
}

uint64_t limiteInferior(const Parametros& q) {
    if (q.p == q.t) return limiteSchonheim(q.v, q.k, q.t);
    return std::max<uint64_t>(1, divCima(binomial(q.v, q.p), tamanhoVizinhanca(q.v, q.k, q.p, q.t)));
}

std::vector<Mascara> empacotamento(int v, int k, int t) {
    // The covered t-subsets, marked as the bets grow; a bet never loses a
    // number, so a subset once covered stays covered.
    std::vector<uint64_t> coberto(size_t((binomial(v, t) + 63) / 64), 0);
    auto marca = [&](Mascara s) {
        const uint64_t r = rankColex(s);
        coberto[size_t(r >> 6)] |= uint64_t(1) << (r & 63);
    };
    auto marcado = [&](Mascara s) {
        const uint64_t r = rankColex(s);
        return (coberto[size_t(r >> 6)] >> (r & 63)) & 1;
    };
    // Marks the t-subsets of the bet that hold the new number n.
    auto marcaCom = [&](Mascara aposta, int n) {
        std::array<int, 64> pos{};
        int m = 0;
        for (Mascara x = aposta & ~(Mascara(1) << n); x; x &= x - 1)
            pos[size_t(m++)] = std::countr_zero(x);
        const int j = t - 1;
        if (j > m) return;
        std::array<int, 64> idx{};
        for (int i = 0; i < j; ++i)
            idx[size_t(i)] = i;
        for (;;) {
            Mascara s = Mascara(1) << n;
            for (int i = 0; i < j; ++i)
                s |= Mascara(1) << pos[size_t(idx[size_t(i)])];
            marca(s);
            int i = j - 1;
            while (i >= 0 && idx[size_t(i)] == m - j + i)
                --i;
            if (i < 0) return;
            ++idx[size_t(i)];
            for (int q = i + 1; q < j; ++q)
                idx[size_t(q)] = idx[size_t(q - 1)] + 1;
        }
    };
    std::vector<Mascara> apostas;
    std::array<int, 64> c{};
    for (int i = 0; i < t; ++i)
        c[size_t(i)] = i;
    for (;;) {
        Mascara s = 0;
        for (int i = 0; i < t; ++i)
            s |= Mascara(1) << c[size_t(i)];
        if (apostas.empty() || (!marcado(s) && std::popcount(apostas.back()) >= k)) {
            apostas.push_back(s);
            marca(s);
        } else if (!marcado(s)) {
            const int faltante = std::countr_zero(s & ~apostas.back());
            apostas.back() |= Mascara(1) << faltante;
            marcaCom(apostas.back(), faltante);
        }
        int i = t - 1;
        while (i >= 0 && c[size_t(i)] == v - t + i)
            --i;
        if (i < 0) break;
        ++c[size_t(i)];
        for (int q = i + 1; q < t; ++q)
            c[size_t(q)] = c[size_t(q - 1)] + 1;
    }
    // The last bet, when short, takes the first numbers of the bet before it
    // that it lacks, one per missing place.
    if (apostas.size() >= 2)
        for (int falta = k - std::popcount(apostas.back()); falta > 0; --falta) {
            const Mascara novos = apostas[apostas.size() - 2] & ~apostas.back();
            if (novos) apostas.back() |= novos & (~novos + 1);
        }
    return apostas;
}

uint64_t tamanhoEmpacotamento(int v, int k, int t) {
    return empacotamento(v, k, t).size();
}

} // namespace sorvelo::tabelas
