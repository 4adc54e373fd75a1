#include "relatorios/PontuacaoRapida.h"

#include "relatorios/Pontuacao.h"

#include <algorithm>
#include <array>

// The hot loops get a second copy for processors with a population count
// instruction, chosen when the program starts.
#if defined(__GNUC__) && defined(__x86_64__) && !defined(__clang__)
#define SORVELO_CONTAGEM_DE_BITS __attribute__((target_clones("popcnt", "default")))
#else
#define SORVELO_CONTAGEM_DE_BITS
#endif

namespace sorvelo {

namespace {

// The set of one cell code: one bit for a number, the irregular mark for
// anything else.
const std::array<ConjuntoDezenas, 256>& conjuntosDosCodigos() {
    static const std::array<ConjuntoDezenas, 256> t = [] {
        std::array<ConjuntoDezenas, 256> a{};
        for (int codigo = 0; codigo < 256; ++codigo) {
            const int n = codigo - MatrizTexto::PrimeiroNumero;
            if (n >= 0 && n <= 99)
                a[size_t(codigo)].insere(n);
            else
                a[size_t(codigo)].alto = ConjuntoDezenas::Irregular;
        }
        return a;
    }();
    return t;
}

// The cells up to the first "#"; a row with no "#" among its cells is
// irregular.
inline ConjuntoDezenas montaConjunto(const std::array<ConjuntoDezenas, 256>& tabela, const uint8_t* celulas,
                                     int quant) {
    ConjuntoDezenas c;
    uint64_t repetidos = 0;
    for (int j = 0; j < quant; ++j) {
        if (celulas[j] == MatrizTexto::Fim) {
            if (repetidos != 0 || c.irregular()) break;
            return c;
        }
        const ConjuntoDezenas& t = tabela[celulas[j]];
        repetidos |= (c.baixo & t.baixo) | (c.alto & t.alto);
        c.baixo |= t.baixo;
        c.alto |= t.alto;
    }
    return {0, ConjuntoDezenas::Irregular};
}

} // namespace

ConjuntoDezenas conjuntoDaLinha(const uint8_t* celulas, int quant) {
    return montaConjunto(conjuntosDosCodigos(), celulas, quant);
}

SorteioRapido::SorteioRapido(const Vetor<QString>& sorteio) {
    std::array<int, 100> vezes{};
    for (int k = 0; k <= 79; ++k) {
        const QString& entrada = sorteio(k);
        if (entrada == u'#') break;
        const uint8_t codigo = MatrizTexto::codigoDe(entrada);
        // Entries that aren't numbers match only cells that aren't numbers,
        // and only irregular rows hold those.
        if (codigo < MatrizTexto::PrimeiroNumero || codigo == MatrizTexto::Outro) continue;
        const int n = codigo - MatrizTexto::PrimeiroNumero;
        const int vez = vezes[size_t(n)]++;
        if (vez == 0) {
            primeira_.insere(n);
        } else {
            if (size_t(vez) > repetidas_.size()) repetidas_.resize(size_t(vez));
            repetidas_[size_t(vez - 1)].insere(n);
        }
    }
}

void IndiceApostas::constroi(const MatrizTexto& banco, int64_t inicio, int64_t fim) {
    const auto& tabela = conjuntosDosCodigos();
    inicio_ = inicio;
    conjuntos_.resize(size_t(std::max<int64_t>(0, fim - inicio)));
    const int64_t ultima = banco.temLimites() ? std::min<int64_t>(fim, banco.quantLinhas()) : inicio;
    int64_t linha = inicio;
    for (; linha < ultima; ++linha) {
        int quant = 0;
        const uint8_t* celulas = banco.celulasGuardadas(linha, quant);
        conjuntos_[size_t(linha - inicio)] = montaConjunto(tabela, celulas, quant);
    }
    for (; linha < fim; ++linha)
        conjuntos_[size_t(linha - inicio)] = {0, ConjuntoDezenas::Irregular};
}

SORVELO_CONTAGEM_DE_BITS
void IndiceApostas::pontua(const SorteioRapido& sorteio, int16_t* pontos) const {
    for (size_t i = 0; i < conjuntos_.size(); ++i) {
        const ConjuntoDezenas c = conjuntos_[i];
        pontos[i] = c.irregular() ? int16_t(-1) : int16_t(sorteio.pontos(c));
    }
}

PontuadorBanco::PontuadorBanco(const Nucleo& p, Sorteio qual)
    : p_(p), qual_(qual), sorteio_(qual == Sorteio::Resultado ? p.e.VetDezenas : p.e.VetDezenas2) {}

void PontuadorBanco::preparaBloco(int64_t inicio) {
    indice_.constroi(p_.e.VetBan, inicio, inicio + Bloco);
    pontos_.resize(size_t(Bloco));
    indice_.pontua(sorteio_, pontos_.data());
}

Int16 PontuadorBanco::pontosDevagar(Int32 Index) {
    const int64_t i = Index.valor();
    if (i >= 0 && (i < indice_.inicio() || i >= indice_.fim())) {
        preparaBloco(i);
        const int16_t r = pontos_[size_t(i - indice_.inicio())];
        if (r >= 0) return r;
    }
    return qual_ == Sorteio::Resultado ? RetPontos(p_, Index) : RetPontos2(p_, Index);
}

} // namespace sorvelo
