#include "ApostasIguais.h"

#include "core/Semantica.h"

#include <algorithm>
#include <new>

namespace sorvelo {

namespace {
constexpr int MaxColunas = 256;

uint64_t espalha(uint64_t chave) {
    chave ^= chave >> 29;
    chave *= 0xBF58476D1CE4E5B9ull;
    chave ^= chave >> 32;
    return chave;
}
} // namespace

ApostasIguais::ApostasIguais(const MatrizTexto& vetAux, int64_t quant)
    : vet_(vetAux), colunas_(vetAux.ultimaColuna() + 1) {
    arroba_ = token(QStringLiteral("@"));
    try {
        pai_.reserve(size_t(quant) + 1);
        conta_.reserve(size_t(quant) + 1);
        fimLinha_.resize(size_t(quant));
        pai_.push_back(SemNo);
        conta_.push_back(uint32_t(quant));
        size_t tamanho = 1024;
        while (tamanho < size_t(quant) * 2)
            tamanho *= 2;
        chaves_.assign(tamanho, 0);
        valores_.assign(tamanho, 0);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    // Consecutive rows often share a beginning (a combination comes in
    // order): the path of the previous row is reused as far as it agrees.
    Token anterior[MaxColunas], atual[MaxColunas];
    uint32_t caminho[MaxColunas + 1];
    caminho[0] = 0;
    int quantAnterior = 0;
    for (int64_t r = 0; r < quant; ++r) {
        const int m = tokens(r, atual);
        int j = 0;
        while (j < m && j < quantAnterior && atual[j] == anterior[j])
            ++j;
        for (int k = j; k < m; ++k)
            caminho[k + 1] = filho(caminho[k], atual[k], true);
        for (int k = 1; k <= m; ++k)
            ++conta_[caminho[k]];
        fimLinha_[size_t(r)] = caminho[m];
        if (m > 0 && atual[0] == arroba_) temArroba_ = true;
        std::copy(atual, atual + m, anterior);
        quantAnterior = m;
    }
}

ApostasIguais::Token ApostasIguais::token(const QString& texto) {
    const uint8_t c = MatrizTexto::codigoDe(texto);
    if (c != MatrizTexto::Outro) return c;
    auto it = outros_.constFind(texto);
    if (it != outros_.constEnd()) return it.value();
    const Token t = Token(256 + outros_.size());
    outros_.insert(texto, t);
    return t;
}

int ApostasIguais::tokens(int64_t linha, Token* saida) {
    int quant = 0;
    const uint8_t* cel = vet_.celulas(linha, quant);
    if (quant > 0 && cel[quant - 1] == MatrizTexto::Fim) {
        --quant;
    } else {
        // No "#": every column of the row, those not stored being empty.
        for (int c = quant; c < colunas_; ++c)
            saida[c] = MatrizTexto::Vazio;
        for (int c = 0; c < quant; ++c)
            saida[c] = cel[c] == MatrizTexto::Outro ? token(vet_.valor(c, linha)) : Token(cel[c]);
        return colunas_;
    }
    for (int c = 0; c < quant; ++c)
        saida[c] = cel[c] == MatrizTexto::Outro ? token(vet_.valor(c, linha)) : Token(cel[c]);
    return quant;
}

uint32_t ApostasIguais::filho(uint32_t no, Token t, bool cria) {
    const uint64_t chave = ((uint64_t(no) << 32) | t) + 1;
    size_t mascara = chaves_.size() - 1;
    size_t i = size_t(espalha(chave)) & mascara;
    while (chaves_[i] != 0) {
        if (chaves_[i] == chave) return valores_[i];
        i = (i + 1) & mascara;
    }
    if (!cria) return SemNo;
    const uint32_t novo = uint32_t(pai_.size());
    try {
        pai_.push_back(no);
        conta_.push_back(0);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    chaves_[i] = chave;
    valores_[i] = novo;
    if (++ocupados_ * 10 > chaves_.size() * 7) cresceTabela();
    return novo;
}

void ApostasIguais::cresceTabela() {
    std::vector<uint64_t> chaves;
    std::vector<uint32_t> valores;
    try {
        chaves.assign(chaves_.size() * 2, 0);
        valores.assign(chaves_.size() * 2, 0);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    const size_t mascara = chaves.size() - 1;
    for (size_t j = 0; j < chaves_.size(); ++j) {
        if (chaves_[j] == 0) continue;
        size_t i = size_t(espalha(chaves_[j])) & mascara;
        while (chaves[i] != 0)
            i = (i + 1) & mascara;
        chaves[i] = chaves_[j];
        valores[i] = valores_[j];
    }
    chaves_.swap(chaves);
    valores_.swap(valores);
}

bool ApostasIguais::temIgual(int64_t linha) const {
    return conta_[fimLinha_[size_t(linha)]] >= 2;
}

void ApostasIguais::marca(int64_t linha) {
    Token seq[MaxColunas];
    const int m = tokens(linha, seq);
    if (m > 0 && seq[0] == arroba_) return; // "@" over "@" changes nothing
    // The row leaves every prefix it had (the empty one excepted: the row
    // still exists).
    for (uint32_t no = fimLinha_[size_t(linha)]; no != 0; no = pai_[no])
        --conta_[no];
    if (!temArroba_) return; // no row begins with "@": nobody can equal it now
    // Its new sequence: "@" in cell 0; when the "@" covered the "#" the row
    // has no end any more and runs on over its empty columns.
    int n = m;
    if (m == 0) {
        n = colunas_;
        std::fill(seq, seq + n, Token(MatrizTexto::Vazio));
    }
    seq[0] = arroba_;
    uint32_t no = 0;
    for (int k = 0; k < n; ++k) {
        no = filho(no, seq[k], true);
        ++conta_[no];
    }
    fimLinha_[size_t(linha)] = no;
}

size_t ApostasIguais::bytesUsados() const {
    return pai_.capacity() * 4 + conta_.capacity() * 4 + fimLinha_.capacity() * 4 + chaves_.capacity() * 8 +
           valores_.capacity() * 4;
}

} // namespace sorvelo
