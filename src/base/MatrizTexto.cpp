#include "base/MatrizTexto.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <stdexcept>

namespace sorvelo {

namespace {
constexpr int ColunasMaximas = 255; // the cell key packs the column in a byte

const std::array<QString, 102>& textos() {
    static const std::array<QString, 102> t = [] {
        std::array<QString, 102> a;
        a[MatrizTexto::Vazio] = QString();
        a[MatrizTexto::Fim] = QStringLiteral("#");
        for (int n = 0; n < 100; ++n)
            a[size_t(MatrizTexto::PrimeiroNumero + n)] = formata00(n);
        return a;
    }();
    return t;
}
} // namespace

uint8_t MatrizTexto::codigoDe(const QString& texto) {
    if (texto.isEmpty()) return Vazio;
    if (texto.size() == 1 && texto[0] == u'#') return Fim;
    if (texto.size() == 2 && texto[0] >= u'0' && texto[0] <= u'9' && texto[1] >= u'0' && texto[1] <= u'9')
        return codigoNumero((texto[0].unicode() - u'0') * 10 + (texto[1].unicode() - u'0'));
    return Outro;
}

QString MatrizTexto::textoDe(uint8_t codigo) {
    return codigo < textos().size() ? textos()[codigo] : QString();
}

void MatrizTexto::defineQuantLinhas(int64_t quant) {
    // One more row, in a block with room: the common step of a bank that grows.
    if (quant == quantLinhas_ + 1 && quantLinhas_ % BlocoLinhas != 0) {
        blocos_.back().push_back(0);
        quantLinhas_ = quant;
        return;
    }
    // Blocks beyond the rows go; the last block keeps just its rows, and
    // the rows it gains start empty.
    const size_t blocos = size_t((quant + BlocoLinhas - 1) >> BitsBloco);
    blocos_.resize(blocos);
    if (blocos > 0) {
        for (size_t b = size_t(quantLinhas_ >> BitsBloco); b + 1 < blocos; ++b)
            blocos_[b].resize(size_t(BlocoLinhas), 0);
        blocos_.back().resize(size_t(quant - int64_t(blocos - 1) * BlocoLinhas), 0);
    }
    quantLinhas_ = quant;
}

void MatrizTexto::redimensiona(int64_t ultimaColuna, int64_t ultimaLinha) {
    if (ultimaColuna < 0 || ultimaLinha < 0) foraDoIntervalo();
    if (ultimaColuna >= ColunasMaximas || ultimaLinha > INT32_MAX)
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    try {
        // The memory of a large array goes back at once.
        std::vector<std::vector<Linha>>().swap(blocos_);
        std::vector<std::vector<uint8_t>>().swap(paginas_);
        outros_.clear();
        quantLinhas_ = 0;
        defineQuantLinhas(ultimaLinha + 1);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    ultimaColuna_ = int32_t(ultimaColuna);
    temLimites_ = true;
}

void MatrizTexto::redimensionaPreservando(int64_t ultimaLinha) {
    if (!temLimites_) {
        // A dynamic array with no bounds yet takes them from the call.
        redimensiona(81, ultimaLinha);
        return;
    }
    if (ultimaLinha < 0) foraDoIntervalo();
    if (ultimaLinha > INT32_MAX) throw FalhaExecucao(erro::MemoriaInsuficiente);
    const int64_t novo = ultimaLinha + 1;
    if (novo == quantLinhas_) return;
    if (novo < quantLinhas_) {
        for (auto it = outros_.begin(); it != outros_.end();) {
            if (int64_t(it->first / 256u) >= novo)
                it = outros_.erase(it);
            else
                ++it;
        }
    }
    try {
        defineQuantLinhas(novo);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

void MatrizTexto::apaga() {
    std::vector<std::vector<Linha>>().swap(blocos_);
    std::vector<std::vector<uint8_t>>().swap(paginas_);
    outros_.clear();
    quantLinhas_ = 0;
    temLimites_ = false;
    ultimaColuna_ = -1;
}

void MatrizTexto::verifica(int64_t coluna, int64_t linha) const {
    if (!temLimites_ || coluna < 0 || coluna > ultimaColuna_ || linha < 0 || linha >= quantLinhas_)
        foraDoIntervalo();
}

uint64_t MatrizTexto::aloca(int bytes) {
    // Cells go at the end of the last page, or on a new one.
    if (paginas_.empty() || paginas_.back().size() + size_t(bytes) > Pagina) {
        paginas_.emplace_back();
        paginas_.back().reserve(std::min<size_t>(Pagina, 256));
    }
    std::vector<uint8_t>& pagina = paginas_.back();
    const uint64_t inicio = uint64_t(paginas_.size() - 1) << BitsPagina | uint64_t(pagina.size());
    if (pagina.size() + size_t(bytes) > pagina.capacity())
        pagina.reserve(
            std::min<size_t>(Pagina, std::max(pagina.capacity() * 2, pagina.size() + size_t(bytes))));
    pagina.resize(pagina.size() + size_t(bytes), Vazio);
    return inicio;
}

uint8_t* MatrizTexto::reserva(Linha& l, int colunas, bool exata) {
    const int capacidade = capacidadeDe(l);
    if (colunas <= capacidade) return celula(inicioDe(l));
    int nova = exata ? colunas : std::max<int>(colunas, capacidade == 0 ? 8 : capacidade * 2);
    nova = std::min(nova, ultimaColuna_ + 1);
    try {
        const uint64_t inicio = inicioDe(l);
        std::vector<uint8_t>* pagina = capacidade > 0 ? &paginas_[size_t(inicio >> BitsPagina)] : nullptr;
        const uint64_t deslocamento = inicio & (Pagina - 1);
        if (pagina && pagina == &paginas_.back() && deslocamento + uint64_t(capacidade) == pagina->size() &&
            deslocamento + uint64_t(nova) <= Pagina) {
            // The last cells of the last page grow where they are.
            pagina->resize(size_t(deslocamento) + size_t(nova), Vazio);
        } else {
            const uint64_t novoInicio = aloca(nova);
            if (tamanhoDe(l) > 0) std::memcpy(celula(novoInicio), celula(inicio), size_t(tamanhoDe(l)));
            l = fazLinha(novoInicio, capacidade, tamanhoDe(l));
        }
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    l = fazLinha(inicioDe(l), nova, tamanhoDe(l));
    return celula(inicioDe(l));
}

uint8_t MatrizTexto::codigo(int64_t coluna, int64_t linha) const {
    verifica(coluna, linha);
    const Linha l = linhaEm(linha);
    return coluna < tamanhoDe(l) ? celula(inicioDe(l))[coluna] : Vazio;
}

QString MatrizTexto::valor(int64_t coluna, int64_t linha) const {
    const uint8_t c = codigo(coluna, linha);
    if (c != Outro) return textoDe(c);
    auto it = outros_.find(chave(coluna, linha));
    return it == outros_.end() ? QString() : it->second;
}

void MatrizTexto::defineCodigo(int64_t coluna, int64_t linha, uint8_t cod) {
    verifica(coluna, linha);
    Linha& l = linhaEm(linha);
    const int tamanho = tamanhoDe(l);
    if (coluna >= tamanho) {
        if (cod == Vazio) return;
        uint8_t* p = reserva(l, int(coluna) + 1);
        std::memset(p + tamanho, Vazio, size_t(coluna - tamanho));
        l = fazLinha(inicioDe(l), capacidadeDe(l), int(coluna) + 1);
    }
    uint8_t& celulaAtual = celula(inicioDe(l))[coluna];
    if (celulaAtual == Outro && cod != Outro) outros_.erase(chave(coluna, linha));
    celulaAtual = cod;
}

void MatrizTexto::define(int64_t coluna, int64_t linha, const QString& texto) {
    const uint8_t c = codigoDe(texto);
    defineCodigo(coluna, linha, c);
    if (c == Outro) outros_[chave(coluna, linha)] = texto;
}

const uint8_t* MatrizTexto::celulas(int64_t linha, int& quant) const {
    if (!temLimites_ || linha < 0 || linha >= quantLinhas_) foraDoIntervalo();
    const Linha l = linhaEm(linha);
    const int tamanho = tamanhoDe(l);
    const uint8_t* p = celula(inicioDe(l));
    const void* fim = tamanho ? std::memchr(p, Fim, size_t(tamanho)) : nullptr;
    quant = fim ? int(static_cast<const uint8_t*>(fim) - p) + 1 : tamanho;
    return p;
}

void MatrizTexto::defineCelulas(int64_t linha, const uint8_t* codigos, int quant) {
    if (quant <= 0) return;
    verifica(quant - 1, linha);
    Linha& l = linhaEm(linha);
    // A row written whole for the first time takes just its own width.
    uint8_t* p = reserva(l, quant, capacidadeDe(l) == 0);
    const int antigas = std::min<int>(quant, tamanhoDe(l));
    for (int c = 0; c < antigas; ++c)
        if (p[c] == Outro) outros_.erase(chave(c, linha));
    std::memcpy(p, codigos, size_t(quant));
    if (quant > tamanhoDe(l)) l = fazLinha(inicioDe(l), capacidadeDe(l), quant);
}

void MatrizTexto::reserva(int64_t linhas, size_t bytes) {
    try {
        if (linhas > 0) blocos_.reserve(size_t((linhas + BlocoLinhas - 1) >> BitsBloco));
        paginas_.reserve(paginas_.size() + bytes / Pagina + 1);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    } catch (const std::length_error&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

size_t MatrizTexto::bytesUsados() const {
    size_t b = blocos_.capacity() * sizeof(std::vector<Linha>) +
               paginas_.capacity() * sizeof(std::vector<uint8_t>) + outros_.size() * 64;
    for (const auto& bloco : blocos_)
        b += bloco.capacity() * sizeof(Linha);
    for (const auto& pagina : paginas_)
        b += pagina.capacity();
    return b;
}

} // namespace sorvelo
