#include "Bloco.h"

#include <algorithm>
#include <bit>

namespace sorvelo::tabelas {

const std::vector<Jogo>& jogos() {
    static const std::vector<Jogo> j = {
        {"Lotofácil", "Lotofacil.sv", "LFC", 15, 16, 25, 11},
        {"Mega-Sena", "Megasena.sv", "MSC", 6, 7, 25, 2},
        {"Dupla Sena", "Duplasena.sv", "DSC", 6, 7, 25, 2},
        {"Quina", "Quina.sv", "QNC", 5, 6, 25, 2},
    };
    return j;
}

namespace {
// Lexicographic order of the ascending position lists: the set whose lowest
// differing position is its own comes first.
bool antes(Mascara a, Mascara b) {
    if (a == b) return false;
    const Mascara d = a ^ b;
    return (a & d & (~d + 1)) != 0;
}
} // namespace

void ordenaLinhas(std::vector<Mascara>& linhas) {
    std::sort(linhas.begin(), linhas.end(), antes);
}

bool provaBloco(const Bloco& b) {
    const Parametros& q = b.par;
    if (b.linhas.empty() || !MapaCobertura::parametrosValidos(q.v, q.p, q.t)) return false;
    const Mascara fora = q.v >= 64 ? 0 : ~((Mascara(1) << q.v) - 1);
    for (size_t i = 0; i < b.linhas.size(); ++i) {
        const Mascara l = b.linhas[i];
        if (std::popcount(l) != q.k || (l & fora) != 0) return false;
        if (i > 0 && !antes(b.linhas[i - 1], l)) return false;
    }
    return provaGarantia(q.v, q.p, q.t, b.linhas);
}

std::vector<Parametros> blocosDoJogo(const Jogo& j) {
    std::vector<Parametros> r;
    for (int v = j.vMin; v <= j.vMax; ++v)
        for (int p = j.tMin; p <= j.k; ++p)
            for (int t = j.tMin; t <= p; ++t)
                r.push_back({v, j.k, p, t});
    return r;
}

} // namespace sorvelo::tabelas
