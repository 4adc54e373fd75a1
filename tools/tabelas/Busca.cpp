#include "Busca.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <random>

namespace sorvelo::tabelas {

namespace {

using Relogio = std::chrono::steady_clock;

// Calls f with every j-subset of the positions pos[0 .. m-1], as a mask.
template <class F> void combinacoes(const int* pos, int m, int j, F&& f) {
    if (j < 0 || j > m) return;
    std::array<int, 64> idx{};
    for (int i = 0; i < j; ++i)
        idx[size_t(i)] = i;
    for (;;) {
        Mascara s = 0;
        for (int i = 0; i < j; ++i)
            s |= Mascara(1) << pos[idx[size_t(i)]];
        f(s);
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
    for (; m; m &= m - 1)
        pos[c++] = std::countr_zero(m);
    return c;
}

// The i-th set position of m (0-based).
int enesimo(Mascara m, int i) {
    while (i-- > 0)
        m &= m - 1;
    return std::countr_zero(m);
}

class Estado {
public:
    Estado(const Parametros& par, uint64_t semente)
        : v_(par.v), k_(par.k), p_(par.p), t_(par.t), tudo_((Mascara(1) << par.v) - 1),
          cont_(size_t(binomial(par.v, par.p)), 0), lugar_(cont_.size()), descobertos_(cont_.size()),
          rng_(semente) {
        for (size_t i = 0; i < cont_.size(); ++i) {
            lugar_[i] = uint32_t(i);
            descobertos_[i] = uint32_t(i);
        }
        // Rows by their (t-1)-subsets, when a row has few of them: the rows
        // that meet an uncovered S in t - 1 positions are then found through
        // the (t-1)-subsets of S instead of a scan of all rows.
        if (t_ >= 2 && binomial(k_, t_ - 1) <= 56 && binomial(v_, t_ - 1) <= (uint64_t(1) << 21))
            indice_.resize(size_t(binomial(v_, t_ - 1)));
    }

    size_t custo() const { return descobertos_.size(); }
    const std::vector<Mascara>& linhas() const { return linhas_; }
    std::mt19937_64& rng() { return rng_; }
    int v() const { return v_; }

    // Calls f with the rank of every p-subset that the row meets in t or more.
    template <class F> void vizinhanca(Mascara linha, F&& f) const {
        std::array<int, 64> dentro{}, fora{};
        const int r = posicoes(linha, dentro.data());
        const int m = posicoes(tudo_ & ~linha, fora.data());
        for (int j = t_; j <= r && j <= p_; ++j)
            combinacoes(dentro.data(), r, j, [&](Mascara a) {
                combinacoes(fora.data(), m, p_ - j, [&](Mascara b) { f(uint32_t(rankColex(a | b))); });
            });
    }

    void insere(Mascara linha) {
        linhas_.push_back(linha);
        indexa(linhas_.size() - 1, true);
        vizinhanca(linha, [&](uint32_t s) { sobe(s); });
    }

    void retira(size_t i) {
        const Mascara linha = linhas_[i];
        const size_t ultima = linhas_.size() - 1;
        indexa(i, false);
        if (i != ultima) {
            indexa(ultima, false);
            linhas_[i] = linhas_[ultima];
            indexa(i, true);
        }
        linhas_.pop_back();
        vizinhanca(linha, [&](uint32_t s) { desce(s); });
    }

    // Calls f with the index of every row that meets s in t - 1 positions.
    template <class F> void encontraEmTMenosUm(Mascara s, F&& f) const {
        if (indice_.empty()) {
            for (size_t i = 0; i < linhas_.size(); ++i)
                if (std::popcount(linhas_[i] & s) == t_ - 1) f(i);
            return;
        }
        // A row that meets s in exactly t - 1 positions holds exactly one
        // (t-1)-subset of s, so no row comes twice.
        std::array<int, 64> pos{};
        const int m = posicoes(s, pos.data());
        combinacoes(pos.data(), m, t_ - 1, [&](Mascara a) {
            for (uint32_t i : indice_[size_t(rankColex(a))])
                if (std::popcount(linhas_[i] & s) == t_ - 1) f(size_t(i));
        });
    }

    // How many uncovered p-subsets the row would cover.
    uint64_t ganho(Mascara linha) const {
        uint64_t g = 0;
        vizinhanca(linha, [&](uint32_t s) { g += cont_[s] == 0; });
        return g;
    }

    // How many p-subsets would lose their only cover with the row removed.
    uint64_t perda(Mascara linha) const {
        uint64_t g = 0;
        vizinhanca(linha, [&](uint32_t s) { g += cont_[s] == 1; });
        return g;
    }

    // The p-subsets whose cover changes when position x of row B gives way
    // to y: {x} + A + C lose B, {y} + A + C gain it, for A among the
    // (t-1)-subsets of B - x and C among the (p-t)-subsets outside B + y.
    template <class F> void troca(Mascara b, int x, int y, F&& f) const {
        std::array<int, 64> dentro{}, fora{};
        const int r = posicoes(b & ~(Mascara(1) << x), dentro.data());
        const int m = posicoes(tudo_ & ~b & ~(Mascara(1) << y), fora.data());
        const Mascara mx = Mascara(1) << x, my = Mascara(1) << y;
        combinacoes(dentro.data(), r, t_ - 1, [&](Mascara a) {
            combinacoes(fora.data(), m, p_ - t_, [&](Mascara c) {
                f(uint32_t(rankColex(mx | a | c)), uint32_t(rankColex(my | a | c)));
            });
        });
    }

    int64_t delta(Mascara b, int x, int y) const {
        int64_t d = 0;
        troca(b, x, y,
              [&](uint32_t perde, uint32_t ganha) { d += (cont_[perde] == 1) - (cont_[ganha] == 0); });
        return d;
    }

    void aplica(size_t i, int x, int y) {
        const Mascara b = linhas_[i];
        troca(b, x, y, [&](uint32_t perde, uint32_t ganha) {
            desce(perde);
            sobe(ganha);
        });
        indexa(i, false);
        linhas_[i] = (b & ~(Mascara(1) << x)) | (Mascara(1) << y);
        indexa(i, true);
    }

    uint32_t descobertoAoAcaso() { return descobertos_[size_t(rng_() % descobertos_.size())]; }

private:
    void indexa(size_t i, bool poe) {
        if (indice_.empty()) return;
        std::array<int, 64> pos{};
        const int m = posicoes(linhas_[i], pos.data());
        combinacoes(pos.data(), m, t_ - 1, [&](Mascara a) {
            auto& l = indice_[size_t(rankColex(a))];
            if (poe) {
                l.push_back(uint32_t(i));
            } else {
                auto it = std::find(l.begin(), l.end(), uint32_t(i));
                *it = l.back();
                l.pop_back();
            }
        });
    }

    void sobe(uint32_t s) {
        if (cont_[s]++ == 0) {
            const uint32_t l = lugar_[s];
            const uint32_t ultimo = descobertos_.back();
            descobertos_[l] = ultimo;
            lugar_[ultimo] = l;
            descobertos_.pop_back();
        }
    }
    void desce(uint32_t s) {
        if (--cont_[s] == 0) {
            lugar_[s] = uint32_t(descobertos_.size());
            descobertos_.push_back(s);
        }
    }

    int v_, k_, p_, t_;
    Mascara tudo_;
    std::vector<uint16_t> cont_;
    std::vector<uint32_t> lugar_;
    std::vector<uint32_t> descobertos_;
    std::vector<Mascara> linhas_;
    std::vector<std::vector<uint32_t>> indice_;
    std::mt19937_64 rng_;
};

// A random set of `quantos` positions of `de`.
Mascara aoAcaso(Mascara de, int quantos, std::mt19937_64& rng) {
    Mascara r = 0;
    for (int n = std::popcount(de); quantos > 0 && n > 0; --quantos, --n) {
        const int e = enesimo(de, int(rng() % uint64_t(n)));
        r |= Mascara(1) << e;
        de &= ~(Mascara(1) << e);
    }
    return r;
}

bool guloso(Estado& e, const ConfigBusca& cfg) {
    const Parametros& q = cfg.par;
    const Mascara tudo = (Mascara(1) << q.v) - 1;
    const double viz = double(tamanhoVizinhanca(q.v, q.k, q.p, q.t));
    const double estimativa = double(binomial(q.v, q.p)) / viz * 1.5 + 1;
    const int amostras = int(std::clamp(6e7 / (viz * estimativa), 4.0, 48.0));
    while (e.custo() > 0) {
        if (e.linhas().size() >= cfg.limiteLinhas) return false;
        if (cfg.parar && cfg.parar->load()) return false;
        const Mascara s = desfazRankColex(e.descobertoAoAcaso(), q.p, q.v);
        Mascara melhor = 0;
        uint64_t melhorGanho = 0;
        for (int a = 0; a < amostras; ++a) {
            const Mascara base = aoAcaso(s, q.t, e.rng());
            const Mascara cand = base | aoAcaso(tudo & ~base, q.k - q.t, e.rng());
            const uint64_t g = e.ganho(cand);
            if (g > melhorGanho) {
                melhorGanho = g;
                melhor = cand;
            }
        }
        e.insere(melhor);
    }
    return true;
}

// Takes out the row whose removal uncovers least, among a sample when the
// rows are many.
void retiraMelhor(Estado& e, const Parametros& q) {
    const size_t n = e.linhas().size();
    const double viz = double(tamanhoVizinhanca(q.v, q.k, q.p, q.t));
    const size_t amostra = std::clamp<size_t>(size_t(4e6 / viz), 8, n);
    size_t melhor = 0;
    uint64_t menor = UINT64_MAX;
    for (size_t a = 0; a < amostra; ++a) {
        const size_t i = amostra == n ? a : size_t(e.rng()() % n);
        const uint64_t d = e.perda(e.linhas()[i]);
        if (d < menor) {
            menor = d;
            melhor = i;
        }
    }
    e.retira(melhor);
}

// Sorted, a repeated row (which covers nothing of its own) left out.
std::vector<Mascara> ordenadas(std::vector<Mascara> l) {
    ordenaLinhas(l);
    l.erase(std::unique(l.begin(), l.end()), l.end());
    return l;
}

} // namespace

ResultadoBusca buscaBloco(const ConfigBusca& cfg, const std::vector<Mascara>& inicial) {
    const auto inicio = Relogio::now();
    const Parametros& q = cfg.par;
    ResultadoBusca res;
    Estado e(q, cfg.semente);
    for (Mascara l : inicial)
        e.insere(l);
    if (inicial.empty() || e.custo() > 0) {
        e = Estado(q, cfg.semente);
        if (!guloso(e, cfg)) return res;
    }
    res.linhas = ordenadas(e.linhas());
    auto decorrido = [&] { return std::chrono::duration<double>(Relogio::now() - inicio).count(); };
    auto acabou = [&] {
        return decorrido() >= cfg.segundos || (cfg.maxMovimentos && res.movimentos >= cfg.maxMovimentos) ||
               (cfg.parar && cfg.parar->load());
    };
    std::uniform_real_distribution<double> u(0.0, 1.0);
    // Geometric cooling by epochs; below the floor the temperature goes back
    // up, in units of the mean rise of the cost seen so far.
    const double T0 = 0.4, TMIN = 0.05, ALFA = 0.9, EP = 20;
    double temperatura = T0, somaPositiva = 0;
    uint64_t positivos = 0, semSucesso = 0;
    const uint64_t epoca = std::clamp<uint64_t>(uint64_t(EP * double(res.linhas.size())), 2000, 20000);
    while (res.linhas.size() > cfg.alvo && res.linhas.size() > 1) {
        if (e.custo() == 0) {
            if (e.linhas().size() < res.linhas.size()) res.linhas = ordenadas(e.linhas());
            if (res.linhas.size() <= cfg.alvo) break;
            retiraMelhor(e, q);
            semSucesso = 0;
            continue;
        }
        if ((res.movimentos & 255) == 0 && acabou()) break;
        ++res.movimentos;
        ++semSucesso;
        // The move: a row that meets an uncovered subset S in t - 1
        // positions trades one of its other positions for one of S.
        const Mascara s = desfazRankColex(e.descobertoAoAcaso(), q.p, q.v);
        size_t escolhida = size_t(e.rng()() % e.linhas().size()), vistas = 0;
        e.encontraEmTMenosUm(s, [&](size_t i) {
            if (e.rng()() % ++vistas == 0) escolhida = i;
        });
        const Mascara b = e.linhas()[escolhida];
        const int x = enesimo(b & ~s, int(e.rng()() % uint64_t(std::popcount(b & ~s))));
        const int y = enesimo(s & ~b, int(e.rng()() % uint64_t(std::popcount(s & ~b))));
        const int64_t d = e.delta(b, x, y);
        if (d > 0) {
            somaPositiva += double(d);
            ++positivos;
        }
        if (d <= 0 || u(e.rng()) < std::exp(-double(d) / temperatura)) e.aplica(escolhida, x, y);
        if (semSucesso % epoca == 0) {
            const double escala = positivos ? somaPositiva / double(positivos) : 1.0;
            temperatura *= ALFA;
            if (temperatura < TMIN * escala) temperatura = T0 * escala;
        }
    }
    res.segundos = decorrido();
    return res;
}

} // namespace sorvelo::tabelas
