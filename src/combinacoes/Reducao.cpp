#include "combinacoes/Reducao.h"

#include <algorithm>
#include <bit>

namespace sorvelo {

namespace {
QStringList textosPadrao() {
    QStringList t{QString(), QStringLiteral("#")};
    for (int n = 0; n < 100; ++n)
        t << formata00(n);
    return t;
}

// Beyond this many subsets a bet is not enumerated but tested by its mask.
constexpr double LimiteEnumeracao = 4096;

double combinacoes(int n, int k) {
    if (k < 0 || k > n) return 0;
    double r = 1;
    for (int i = 1; i <= k; ++i)
        r = r * double(n - k + i) / double(i);
    return r;
}
} // namespace

Alfabeto::Alfabeto() : textos_(textosPadrao()) {}

Alfabeto::Alfabeto(const QStringList& outros) : textos_(textosPadrao()) {
    textos_ += outros;
    std::sort(textos_.begin(), textos_.end());
    textos_.erase(std::unique(textos_.begin(), textos_.end()), textos_.end());
    if (textos_.size() > 65536) throw FalhaExecucao(erro::MemoriaInsuficiente);
    fim_ = valor(QStringLiteral("#"));
}

uint16_t Alfabeto::valor(const QString& texto) const {
    const auto it = std::lower_bound(textos_.begin(), textos_.end(), texto);
    if (it == textos_.end() || *it != texto) throw FalhaExecucao(erro::ChamadaInvalida);
    return uint16_t(it - textos_.begin());
}

const QString& Alfabeto::texto(uint16_t valor) const {
    if (valor >= textos_.size()) foraDoIntervalo();
    return textos_[valor];
}

// The combinations of the common size, by their set of numbers: an open
// addressing table from mask to slot, a covered flag per slot, and the bets
// that are too large to enumerate.
struct Reducao::Indice {
    struct Entrada {
        Mascara m;
        int32_t slot = -1;
    };
    std::vector<Entrada> tabela;
    size_t mascaraTabela = 0;
    std::vector<uint8_t> coberto;
    std::vector<int32_t> slotDe; // per combination, -1 when not indexed
    std::vector<int32_t> grandes;
    std::vector<uint8_t> ehGrande; // per bet

    static size_t hash(Mascara m) {
        uint64_t h = m.lo * 0x9E3779B97F4A7C15ull ^ (m.hi + 0x632BE59BD9B4E019ull) * 0xC2B2AE3D27D4EB4Full;
        return size_t(h ^ (h >> 29));
    }
    void dimensiona(size_t n) {
        size_t cap = 16;
        while (cap < 2 * n)
            cap *= 2;
        tabela.assign(cap, Entrada{});
        mascaraTabela = cap - 1;
    }
    int32_t procura(Mascara m) const {
        for (size_t i = hash(m) & mascaraTabela;; i = (i + 1) & mascaraTabela) {
            const Entrada& e = tabela[i];
            if (e.slot < 0) return -1;
            if (e.m.lo == m.lo && e.m.hi == m.hi) return e.slot;
        }
    }
    int32_t insere(Mascara m) {
        for (size_t i = hash(m) & mascaraTabela;; i = (i + 1) & mascaraTabela) {
            Entrada& e = tabela[i];
            if (e.slot < 0) {
                e.m = m;
                e.slot = int32_t(coberto.size());
                coberto.push_back(0);
                return e.slot;
            }
            if (e.m.lo == m.lo && e.m.hi == m.hi) return e.slot;
        }
    }
    void marca(Mascara m) {
        const int32_t s = procura(m);
        if (s >= 0) coberto[size_t(s)] = 1;
    }
    // Marks every subset of `membros` of `t` elements, joined to `base`.
    void marcaSubconjuntos(const std::vector<int>& membros, int t, Mascara base) {
        const int n = int(membros.size());
        if (t < 0 || t > n) return;
        std::vector<int> pos(static_cast<size_t>(t));
        for (int i = 0; i < t; ++i)
            pos[size_t(i)] = i;
        for (;;) {
            Mascara m = base;
            for (int i = 0; i < t; ++i) {
                const int b = membros[size_t(pos[size_t(i)])];
                (b < 64 ? m.lo : m.hi) |= uint64_t(1) << (b & 63);
            }
            marca(m);
            int i = t - 1;
            while (i >= 0 && pos[size_t(i)] == n - t + i)
                --i;
            if (i < 0) return;
            ++pos[size_t(i)];
            for (int j = i + 1; j < t; ++j)
                pos[size_t(j)] = pos[size_t(j - 1)] + 1;
        }
    }
};

Reducao::Reducao(const Alfabeto& alfabeto, Int16 dezFinal, int tamanhoComum)
    : alfabeto_(alfabeto), dezFinal_(dezFinal), tamanhoComum_(tamanhoComum),
      porMascara_(alfabeto.tamanho() <= 128) {}

Reducao::~Reducao() = default;

void Reducao::acrescenta(const uint16_t* celulas, int quant, bool temFim) {
    quant = std::clamp(quant, 0, int(Colunas));
    inicio_.push_back(uint32_t(celulas_.size()));
    celulas_.insert(celulas_.end(), celulas, celulas + quant);
    quant_.push_back(uint8_t(quant));
    temFim_.push_back(temFim ? 1 : 0);
}

const uint16_t* Reducao::celulasComb(int32_t c, int& quant) const {
    quant = quant_[size_t(c)];
    return celulas_.data() + inicio_[size_t(c)];
}

Reducao::Mascara Reducao::mascaraDe(const uint16_t* cel, int quant) const {
    Mascara m;
    for (int i = 0; i < quant; ++i)
        (cel[i] < 64 ? m.lo : m.hi) |= uint64_t(1) << (cel[i] & 63);
    return m;
}

Reducao::Mascara Reducao::mascaraAposta(int32_t r) const {
    const uint16_t* l = linha(r);
    int n = 0;
    while (n < Colunas && l[n] != alfabeto_.fim())
        ++n;
    return mascaraDe(l, n);
}

uint16_t Reducao::celula(int32_t r, int coluna) const {
    if (r < 0 || r >= quantFinal_ || coluna < 0 || coluna > UltimaColuna) foraDoIntervalo();
    return linha(r)[coluna];
}

std::vector<uint16_t> Reducao::aposta(int32_t r) const {
    const Int16 n = TotalNum(r);
    return std::vector<uint16_t>(linha(r), linha(r) + n.valor());
}

Int16 Reducao::TotalNum(int32_t r) const {
    if (r < 0 || r >= quantFinal_) foraDoIntervalo();
    const uint16_t* l = linha(r);
    for (int i = 0; i < Colunas; ++i)
        if (l[i] == alfabeto_.fim()) return Int16(int16_t(i));
    foraDoIntervalo(); // the search reads past column 81
}

void Reducao::preparaIndice() {
    indice_.reset();
    if (!porMascara_) return;
    auto ind = std::make_unique<Indice>();
    const int32_t n = quantCombinacoes();
    ind->dimensiona(size_t(n));
    ind->slotDe.assign(size_t(n), -1);
    for (int32_t c = 0; c < n; ++c) {
        if (!temFim_[size_t(c)]) continue;
        int q = 0;
        const uint16_t* cel = celulasComb(c, q);
        const Mascara m = mascaraDe(cel, q);
        if (std::popcount(m.lo) + std::popcount(m.hi) == tamanhoComum_)
            ind->slotDe[size_t(c)] = ind->insere(m);
    }
    indice_ = std::move(ind);
}

void Reducao::marcaAposta(int32_t r, Mascara antes, bool novaAposta) {
    const Mascara nova = mascaraAposta(r);
    if (size_t(r) >= mascaras_.size()) mascaras_.resize(size_t(r) + 1);
    mascaras_[size_t(r)] = nova;
    if (!indice_) return;
    Indice& ind = *indice_;
    if (size_t(r) >= ind.ehGrande.size()) ind.ehGrande.resize(size_t(r) + 1, 0);
    if (ind.ehGrande[size_t(r)] || tamanhoComum_ < 0) return;
    const Mascara novos{nova.lo & ~antes.lo, nova.hi & ~antes.hi};
    const int quantNovos = std::popcount(novos.lo) + std::popcount(novos.hi);
    if (quantNovos == 0 && !novaAposta) return;
    const int tamanho = std::popcount(nova.lo) + std::popcount(nova.hi);
    if (combinacoes(tamanho, tamanhoComum_) > LimiteEnumeracao) {
        ind.ehGrande[size_t(r)] = 1;
        ind.grandes.push_back(r);
        return;
    }
    std::vector<int> membros;
    int novo = -1;
    for (int b = 0; b < 128; ++b) {
        const bool tem = (b < 64 ? nova.lo : nova.hi) >> (b & 63) & 1;
        const bool ehNovo = (b < 64 ? novos.lo : novos.hi) >> (b & 63) & 1;
        if (ehNovo && quantNovos == 1 && !novaAposta)
            novo = b;
        else if (tem)
            membros.push_back(b);
    }
    if (novo < 0) {
        ind.marcaSubconjuntos(membros, tamanhoComum_, Mascara{});
    } else {
        Mascara base;
        (novo < 64 ? base.lo : base.hi) |= uint64_t(1) << (novo & 63);
        ind.marcaSubconjuntos(membros, tamanhoComum_ - 1, base);
    }
}

bool Reducao::reduz(const Avanco& avanco) {
    quantFinal_ = 0;
    bets_.clear();
    mascaras_.clear();
    preparaIndice();
    const int32_t n = quantCombinacoes();
    for (int32_t c = 0; c < n; ++c) {
        if (avanco && !avanco(quantFinal_)) return false;
        TestaCombinacao(c);
    }
    Int16 dezUltimo = TotalNum(quantFinal_ - 1);
    while (dezUltimo < dezFinal_) {
        CompletaUltimoJogo(dezFinal_, dezUltimo);
        dezUltimo += 1;
    }
    return true;
}

void Reducao::TestaCombinacao(int32_t c) {
    if (c == 0) {
        NovoJogo(0);
        return;
    }
    if (coberta(c)) return;
    const Int16 dezUltimo = TotalNum(quantFinal_ - 1);
    if (dezUltimo >= dezFinal_) {
        NovoJogo(c);
        return;
    }
    const int32_t ultimo = quantFinal_ - 1;
    const Mascara antes = mascaras_[size_t(ultimo)];
    InsereDezena(dezUltimo);
    marcaAposta(ultimo, antes, false);
}

bool Reducao::coberta(int32_t c) {
    if (!indice_ || !temFim_[size_t(c)]) {
        // Tested against each bet in turn, as the rule reads.
        for (int32_t r = 0; r < quantFinal_; ++r)
            if (TestaJogoContido(r, c)) return true;
        return false;
    }
    const Indice& ind = *indice_;
    int q = 0;
    const uint16_t* cel = celulasComb(c, q);
    const Mascara m = mascaraDe(cel, q);
    auto contem = [&](int32_t r) {
        const Mascara& b = mascaras_[size_t(r)];
        return (m.lo & ~b.lo) == 0 && (m.hi & ~b.hi) == 0;
    };
    const int32_t slot = ind.slotDe[size_t(c)];
    if (slot >= 0) {
        if (ind.coberto[size_t(slot)]) return true;
        for (int32_t r : ind.grandes)
            if (contem(r)) return true;
    } else {
        for (int32_t r = 0; r < quantFinal_; ++r)
            if (contem(r)) return true;
    }
    // Not held: the last bet, tested last, leaves its first missing number.
    const Mascara& ult = mascaras_[size_t(quantFinal_ - 1)];
    for (int i = 0; i < q; ++i) {
        const uint64_t palavra = cel[i] < 64 ? ult.lo : ult.hi;
        if (!(palavra >> (cel[i] & 63) & 1)) {
            faltante_ = cel[i];
            break;
        }
    }
    return false;
}

bool Reducao::TestaJogoContido(int32_t r, int32_t c) {
    int q = 0;
    const uint16_t* cel = celulasComb(c, q);
    const uint16_t* l = linha(r);
    for (int i = 0; i < q; ++i) {
        int j = 0;
        while (j < Colunas && l[j] != alfabeto_.fim() && l[j] != cel[i])
            ++j;
        if (j == Colunas) return false; // the search read past column 81
        if (l[j] != cel[i]) {
            faltante_ = cel[i];
            return false;
        }
    }
    return temFim_[size_t(c)] != 0; // a row with no "#" fails at column 82
}

void Reducao::NovoJogo(int32_t c) {
    int q = 0;
    const uint16_t* cel = celulasComb(c, q);
    const int32_t r = quantFinal_;
    bets_.resize(size_t(r + 1) * Colunas, alfabeto_.vazio());
    uint16_t* l = linha(r);
    std::copy(cel, cel + q, l);
    if (!temFim_[size_t(c)]) foraDoIntervalo(); // copying up to a "#" that is not there
    l[q] = alfabeto_.fim();
    quantFinal_ = r + 1;
    marcaAposta(r, Mascara{}, true);
}

void Reducao::InsereDezena(Int16 dezUltimo) {
    uint16_t* l = linha(quantFinal_ - 1);
    auto cel = [l](int i) -> uint16_t& {
        if (i < 0 || i > UltimaColuna) foraDoIntervalo();
        return l[i];
    };
    const uint16_t f = faltante_;
    const int d = dezUltimo.valor();
    int i = d - 1;
    while (i > 0) {
        if (f > cel(i)) break;
        --i;
    }
    if (i != 0) {
        cel(d + 2) = alfabeto_.fim();
        for (int j = d; j >= i + 1; --j)
            cel(j + 1) = cel(j);
        cel(i + 1) = f;
    } else {
        if (f > cel(0)) i = 1;
        cel(d + 2) = alfabeto_.fim();
        for (int j = d; j >= i; --j)
            cel(j + 1) = cel(j);
        cel(i) = f;
    }
}

void Reducao::CompletaUltimoJogo(Int16 dezFinal, Int16 dezUltimo) {
    // With a single bet there is no bet before it: every number counts as
    // found, and the bet stays as short as it is.
    if (quantFinal_ < 2) return;
    const uint16_t* anterior = linha(quantFinal_ - 2);
    const uint16_t* ultima = linha(quantFinal_ - 1);
    const int n = std::min<int>(dezFinal.valor(), Colunas);
    for (int i = 0; i < n; ++i) {
        bool achou = dezFinal.valor() > Colunas; // a search past column 81 fails: found
        for (int j = 0; j < n && !achou; ++j)
            achou = ultima[j] == anterior[i];
        if (!achou) {
            faltante_ = anterior[i];
            const int32_t r = quantFinal_ - 1;
            const Mascara antes = mascaras_[size_t(r)];
            try {
                InsereDezena(dezUltimo);
            } catch (const FalhaExecucao&) {
                // skipped: the bet stays as it is
            }
            marcaAposta(r, antes, false);
            return;
        }
    }
}

} // namespace sorvelo
