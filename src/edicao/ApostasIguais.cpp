#include "ApostasIguais.h"

#include "core/Semantica.h"

#include <algorithm>
#include <array>
#include <memory>
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
        tabela_.assign(tamanho, Entrada{});
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    // Consecutive rows often share a beginning (a combination comes in
    // order): the paths of the last two rows are kept, and the row takes
    // from the one that agrees with it longer as far as it agrees (the
    // second covers a row that breaks a run of ordered rows).
    struct Caminho {
        Token tokens[MaxColunas];
        uint32_t nos[MaxColunas + 1];
        int quant = 0;
        int comum(const Token* t, int m) const {
            int j = 0;
            while (j < m && j < quant && t[j] == tokens[j])
                ++j;
            return j;
        }
    };
    auto caminhos = std::make_unique<std::array<Caminho, 3>>();
    Caminho* ultimo = &(*caminhos)[0];
    Caminho* penultimo = &(*caminhos)[1];
    Caminho* atual = &(*caminhos)[2];
    ultimo->nos[0] = penultimo->nos[0] = atual->nos[0] = 0;
    for (int64_t r = 0; r < quant; ++r) {
        const int m = tokens(r, atual->tokens);
        atual->quant = m;
        int j = ultimo->comum(atual->tokens, m);
        const Caminho* base = ultimo;
        if (j < m) {
            const int j2 = penultimo->comum(atual->tokens, m);
            if (j2 > j) {
                j = j2;
                base = penultimo;
            }
        }
        std::copy(base->nos + 1, base->nos + j + 1, atual->nos + 1);
        for (int k = j; k < m; ++k)
            atual->nos[k + 1] = filho(atual->nos[k], atual->tokens[k], true);
        for (int k = 1; k <= m; ++k)
            ++conta_[atual->nos[k]];
        fimLinha_[size_t(r)] = atual->nos[m];
        if (m > 0 && atual->tokens[0] == arroba_) temArroba_ = true;
        // The row becomes the last, the last the one before.
        Caminho* livre = penultimo;
        penultimo = ultimo;
        ultimo = atual;
        atual = livre;
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

size_t ApostasIguais::posicao(uint64_t chave, size_t mascara) {
    const uint64_t no = (chave - 1) >> 32, token = (chave - 1) & 0xFFFFFFFFu;
    return size_t(espalha(no) + token) & mascara;
}

uint32_t ApostasIguais::filho(uint32_t no, Token t, bool cria) {
    const uint64_t chave = ((uint64_t(no) << 32) | t) + 1;
    const size_t mascara = tabela_.size() - 1;
    size_t i = posicao(chave, mascara);
    while (tabela_[i].chave != 0) {
        if (tabela_[i].chave == chave) return tabela_[i].no;
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
    tabela_[i] = {chave, novo};
    if (++ocupados_ * 2 > tabela_.size()) cresceTabela();
    return novo;
}

void ApostasIguais::cresceTabela() {
    std::vector<Entrada> nova;
    try {
        nova.assign(tabela_.size() * 2, Entrada{});
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    const size_t mascara = nova.size() - 1;
    for (const Entrada& e : tabela_) {
        if (e.chave == 0) continue;
        size_t i = posicao(e.chave, mascara);
        while (nova[i].chave != 0)
            i = (i + 1) & mascara;
        nova[i] = e;
    }
    tabela_.swap(nova);
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
    return pai_.capacity() * 4 + conta_.capacity() * 4 + fimLinha_.capacity() * 4 +
           tabela_.capacity() * sizeof(Entrada);
}

} // namespace sorvelo
