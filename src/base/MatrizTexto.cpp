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

void MatrizTexto::redimensiona(int64_t ultimaColuna, int64_t ultimaLinha) {
    if (ultimaColuna < 0 || ultimaLinha < 0) foraDoIntervalo();
    if (ultimaColuna >= ColunasMaximas || ultimaLinha > INT32_MAX)
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    try {
        // The memory of a large array goes back at once.
        std::vector<Linha>().swap(linhas_);
        std::vector<uint8_t>().swap(celulas_);
        outros_.clear();
        linhas_.resize(size_t(ultimaLinha) + 1);
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
    const size_t novo = size_t(ultimaLinha) + 1;
    if (novo < linhas_.size()) {
        for (auto it = outros_.begin(); it != outros_.end();) {
            if (it->first / 256u >= novo)
                it = outros_.erase(it);
            else
                ++it;
        }
    }
    try {
        linhas_.resize(novo);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

void MatrizTexto::apaga() {
    linhas_.clear();
    linhas_.shrink_to_fit();
    celulas_.clear();
    celulas_.shrink_to_fit();
    outros_.clear();
    temLimites_ = false;
    ultimaColuna_ = -1;
}

void MatrizTexto::verifica(int64_t coluna, int64_t linha) const {
    if (!temLimites_ || coluna < 0 || coluna > ultimaColuna_ || linha < 0 || linha >= int64_t(linhas_.size()))
        foraDoIntervalo();
}

uint8_t* MatrizTexto::reserva(Linha& l, int colunas, bool exata) {
    if (colunas <= l.capacidade) return celulas_.data() + l.inicio;
    const bool ultimaDoDeposito = l.capacidade > 0 && l.inicio + l.capacidade == celulas_.size();
    int nova = exata ? colunas : std::max<int>(colunas, l.capacidade == 0 ? 8 : l.capacidade * 2);
    nova = std::min(nova, ultimaColuna_ + 1);
    try {
        if (ultimaDoDeposito) {
            celulas_.resize(l.inicio + size_t(nova), Vazio);
        } else {
            const uint64_t inicio = celulas_.size();
            celulas_.resize(inicio + size_t(nova), Vazio);
            if (l.tamanho > 0) std::memcpy(celulas_.data() + inicio, celulas_.data() + l.inicio, l.tamanho);
            l.inicio = inicio;
        }
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    l.capacidade = uint8_t(nova);
    return celulas_.data() + l.inicio;
}

uint8_t MatrizTexto::codigo(int64_t coluna, int64_t linha) const {
    verifica(coluna, linha);
    const Linha& l = linhas_[size_t(linha)];
    return coluna < l.tamanho ? celulas_[l.inicio + uint64_t(coluna)] : Vazio;
}

QString MatrizTexto::valor(int64_t coluna, int64_t linha) const {
    const uint8_t c = codigo(coluna, linha);
    if (c != Outro) return textoDe(c);
    auto it = outros_.find(chave(coluna, linha));
    return it == outros_.end() ? QString() : it->second;
}

void MatrizTexto::defineCodigo(int64_t coluna, int64_t linha, uint8_t cod) {
    verifica(coluna, linha);
    Linha& l = linhas_[size_t(linha)];
    if (coluna >= l.tamanho) {
        if (cod == Vazio) return;
        uint8_t* p = reserva(l, int(coluna) + 1);
        std::memset(p + l.tamanho, Vazio, size_t(coluna - l.tamanho));
        l.tamanho = uint8_t(coluna + 1);
    }
    uint8_t& celula = celulas_[l.inicio + uint64_t(coluna)];
    if (celula == Outro && cod != Outro) outros_.erase(chave(coluna, linha));
    celula = cod;
}

void MatrizTexto::define(int64_t coluna, int64_t linha, const QString& texto) {
    const uint8_t c = codigoDe(texto);
    defineCodigo(coluna, linha, c);
    if (c == Outro) outros_[chave(coluna, linha)] = texto;
}

const uint8_t* MatrizTexto::celulas(int64_t linha, int& quant) const {
    if (!temLimites_ || linha < 0 || linha >= int64_t(linhas_.size())) foraDoIntervalo();
    const Linha& l = linhas_[size_t(linha)];
    const uint8_t* p = celulas_.data() + l.inicio;
    const void* fim = l.tamanho ? std::memchr(p, Fim, l.tamanho) : nullptr;
    quant = fim ? int(static_cast<const uint8_t*>(fim) - p) + 1 : l.tamanho;
    return p;
}

void MatrizTexto::defineCelulas(int64_t linha, const uint8_t* codigos, int quant) {
    if (quant <= 0) return;
    verifica(quant - 1, linha);
    Linha& l = linhas_[size_t(linha)];
    // A row written whole for the first time takes just its own width.
    uint8_t* p = reserva(l, quant, l.capacidade == 0);
    const int antigas = std::min<int>(quant, l.tamanho);
    for (int c = 0; c < antigas; ++c)
        if (p[c] == Outro) outros_.erase(chave(c, linha));
    std::memcpy(p, codigos, size_t(quant));
    if (quant > l.tamanho) l.tamanho = uint8_t(quant);
}

void MatrizTexto::reserva(int64_t linhas, size_t bytes) {
    try {
        if (linhas > 0) linhas_.reserve(size_t(linhas));
        celulas_.reserve(celulas_.size() + bytes);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    } catch (const std::length_error&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

size_t MatrizTexto::bytesUsados() const {
    return linhas_.capacity() * sizeof(Linha) + celulas_.capacity() + outros_.size() * 64;
}

} // namespace sorvelo
