// Two-dimensional arrays of text with the program's bounds semantics
// (ReDim clears, ReDim Preserve grows the last dimension keeping contents,
// an index outside the bounds is failure 9), stored compactly: a cell that is
// empty, "#" or a two-digit number takes one byte.
#pragma once

#include "base/Semantica.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace sorvelo {

class MatrizTexto {
public:
    // Cell codes of the compact store.
    static constexpr uint8_t Vazio = 0;
    static constexpr uint8_t Fim = 1;            // "#"
    static constexpr uint8_t PrimeiroNumero = 2; // "00" is 2, "99" is 101
    static constexpr uint8_t Outro = 255;        // any other text, kept aside

    static uint8_t codigoDe(const QString& texto);
    static QString textoDe(uint8_t codigo); // not for Outro
    static constexpr uint8_t codigoNumero(int n) { return uint8_t(PrimeiroNumero + n); }

    // ReDim: columns 0..ultimaColuna, rows 0..ultimaLinha, all cells emptied.
    void redimensiona(int64_t ultimaColuna, int64_t ultimaLinha);
    // ReDim Preserve: the last row becomes ultimaLinha, the contents stay.
    void redimensionaPreservando(int64_t ultimaLinha);
    // Erase: no bounds any more.
    void apaga();

    bool temLimites() const { return temLimites_; }
    int32_t ultimaColuna() const { return ultimaColuna_; }
    int32_t ultimaLinha() const { return int32_t(quantLinhas_ - 1); }
    int64_t quantLinhas() const { return quantLinhas_; }

    QString valor(int64_t coluna, int64_t linha) const;
    void define(int64_t coluna, int64_t linha, const QString& texto);
    uint8_t codigo(int64_t coluna, int64_t linha) const;
    void defineCodigo(int64_t coluna, int64_t linha, uint8_t codigo);

    // The row's cells from column 0 up to and including the first "#"
    // (the whole stored row when it has none), as codes; Outro cells are
    // read with valor().
    const uint8_t* celulas(int64_t linha, int& quant) const;
    // All stored cells of the row, without looking for the "#" (the cells
    // from `quant` to the last column are empty), for scans that stop at
    // the "#" themselves.
    const uint8_t* celulasGuardadas(int64_t linha, int& quant) const {
        if (!temLimites_ || linha < 0 || linha >= quantLinhas_) foraDoIntervalo();
        const Linha l = linhaEm(linha);
        quant = tamanhoDe(l);
        return celula(inicioDe(l));
    }

    // Bulk writing for the generators and the batch writers. The cells
    // 0..quant-1 of a row take the given codes (numbers, "#" or empty; never
    // Outro); the cells behind them stay as they are. A column outside the
    // bounds is failure 9, and then nothing is written.
    void defineCelulas(int64_t linha, const uint8_t* codigos, int quant);
    // Room ahead of a bulk fill: for `linhas` rows in all and `bytes` more
    // cell bytes. The store grows by blocks of rows and pages of cells, never
    // copying what it holds, so this only makes room for the lists of
    // blocks. Changes no bound and no content.
    void reserva(int64_t linhas, size_t bytes);

    // Bytes held by the store (for the memory budget).
    size_t bytesUsados() const;

private:
    // A row: where its cells start (in the pages), how many it holds and
    // how many fit there. Rows live in blocks of BlocoLinhas, cells in pages
    // of Pagina bytes; a row's cells never cross a page.
    using Linha = uint64_t; // inicio << 16 | capacidade << 8 | tamanho
    static constexpr int BitsBloco = 12;
    static constexpr int64_t BlocoLinhas = int64_t(1) << BitsBloco;
    static constexpr int BitsPagina = 16;
    static constexpr uint64_t Pagina = uint64_t(1) << BitsPagina;
    static uint64_t inicioDe(Linha l) { return l >> 16; }
    static int capacidadeDe(Linha l) { return int((l >> 8) & 0xFF); }
    static int tamanhoDe(Linha l) { return int(l & 0xFF); }
    static Linha fazLinha(uint64_t inicio, int capacidade, int tamanho) {
        return inicio << 16 | uint64_t(capacidade) << 8 | uint64_t(tamanho);
    }
    Linha linhaEm(int64_t i) const { return blocos_[size_t(i >> BitsBloco)][size_t(i & (BlocoLinhas - 1))]; }
    Linha& linhaEm(int64_t i) { return blocos_[size_t(i >> BitsBloco)][size_t(i & (BlocoLinhas - 1))]; }
    const uint8_t* celula(uint64_t inicio) const {
        return paginas_.empty() ? nullptr
                                : paginas_[size_t(inicio >> BitsPagina)].data() + (inicio & (Pagina - 1));
    }
    uint8_t* celula(uint64_t inicio) {
        return paginas_[size_t(inicio >> BitsPagina)].data() + (inicio & (Pagina - 1));
    }

    void verifica(int64_t coluna, int64_t linha) const;
    void defineQuantLinhas(int64_t quant);
    uint8_t* reserva(Linha& l, int colunas, bool exata = false);
    uint64_t aloca(int bytes);
    uint64_t chave(int64_t coluna, int64_t linha) const { return uint64_t(linha) * 256u + uint64_t(coluna); }

    bool temLimites_ = false;
    int32_t ultimaColuna_ = -1;
    int64_t quantLinhas_ = 0;
    std::vector<std::vector<Linha>> blocos_;
    std::vector<std::vector<uint8_t>> paginas_;
    std::unordered_map<uint64_t, QString> outros_;
};

// One-dimensional array with fixed bounds; an index outside is failure 9.
template <typename T> class Vetor {
public:
    Vetor(int64_t inferior, int64_t superior)
        : inferior_(inferior), dados_(size_t(superior - inferior + 1)) {}
    T& operator()(int64_t i) {
        verifica(i);
        return dados_[size_t(i - inferior_)];
    }
    const T& operator()(int64_t i) const {
        verifica(i);
        return dados_[size_t(i - inferior_)];
    }
    int64_t inferior() const { return inferior_; }
    int64_t superior() const { return inferior_ + int64_t(dados_.size()) - 1; }
    void preenche(const T& v) { std::fill(dados_.begin(), dados_.end(), v); }

private:
    void verifica(int64_t i) const {
        if (i < inferior_ || i > superior()) foraDoIntervalo();
    }
    int64_t inferior_;
    std::vector<T> dados_;
};

} // namespace sorvelo
