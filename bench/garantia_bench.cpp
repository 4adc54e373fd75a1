// Guarantee check of a bank: 25 marked numbers, 6 to hit, guarantee 5,
// against a bank of 10,000 random bets of 6 of them. Prints the best and the
// median of several runs; asserts nothing about time.
#include "relatorios/Garantia.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

using namespace sorvelo;

int main() {
    std::mt19937 rng(5);
    std::vector<int> marcados;
    for (int i = 1; i <= 25; ++i)
        marcados.push_back(i);
    std::vector<std::vector<int>> apostas(10000);
    for (auto& a : apostas) {
        std::vector<int> m = marcados;
        std::shuffle(m.begin(), m.end(), rng);
        a.assign(m.begin(), m.begin() + 6);
    }
    std::vector<double> tempos;
    uint64_t cobertos = 0;
    for (int i = 0; i < 7; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        cobertos = verificaGarantia(marcados, 6, 5, apostas).cobertos;
        tempos.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count());
    }
    std::sort(tempos.begin(), tempos.end());
    std::printf("garantia 25 números, acertar 6, garantia 5, 10000 apostas: %llu cobertos; "
                "melhor %.3f s, mediana %.3f s\n",
                (unsigned long long)cobertos, tempos.front(), tempos[tempos.size() / 2]);
}
