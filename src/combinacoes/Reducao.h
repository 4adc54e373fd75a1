// The packing of a reduced combination: the combinations (the k-subsets of
// the chosen numbers, in their order) are packed in one pass into bets of
// DezFinal numbers by a greedy rule that looks only at the last bet:
//
// - a combination already held by some bet is passed over;
// - otherwise, when the last bet is full (DezFinal numbers or more), the
//   combination starts a new bet (NovoJogo);
// - otherwise the last bet takes one number, the first number of the
//   combination that it lacks (InsereDezena), and the pass goes on without
//   testing this combination again;
// - at the end the last bet, if short, is completed from the bet before it
//   (CompletaUltimoJogo).
//
// A closed bet never takes a number again, and nothing checks afterwards that
// every combination stands in some bet: that is the rule, weaknesses and all.
//
// The bets are rows of 82 cells (columns 0..81) ended by "#", kept ascending;
// the insertion leaves a stale "#" two cells behind the old end, which nothing
// reads. Cells are values of an Alfabeto: their order is the order of the
// cells' texts, so that comparing values is comparing texts.
//
// Speed: whether a combination is held by some bet is answered without
// walking the bets. The combinations of the common size are indexed by their
// set of numbers (a bit mask); a bet marks the combinations that it holds when
// it is made and, as it grows by one number, those that hold the new number.
// Only the last bet ever grows, so each bet is enumerated once. A bet too
// large to enumerate is kept aside and tested by its mask.
#pragma once

#include "base/Semantica.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace sorvelo {

// The texts that the cells can hold, in text order. Value 0 is the empty
// text; the standard alphabet ("", "#", "00".."99") has the values of the
// compact cell codes of MatrizTexto.
class Alfabeto {
public:
    Alfabeto(); // the standard one
    // The standard texts and these others, all in text order.
    explicit Alfabeto(const QStringList& outros);

    uint16_t valor(const QString& texto) const; // a text outside: failure 5
    const QString& texto(uint16_t valor) const;
    uint16_t fim() const { return fim_; }
    uint16_t vazio() const { return 0; }
    int tamanho() const { return int(textos_.size()); }

private:
    QStringList textos_;
    uint16_t fim_ = 1;
};

class Reducao {
public:
    static constexpr int UltimaColuna = 81;
    static constexpr int Colunas = UltimaColuna + 1;

    // Told before each combination of the pass with the count of bets so far;
    // false stops the pass there (a cancel).
    using Avanco = std::function<bool(int32_t quantFinal)>;

    // dezFinal: numbers per final bet. tamanhoComum: the size of most
    // combinations (the guarantee); those of another size are tested
    // against the bets one by one.
    Reducao(const Alfabeto& alfabeto, Int16 dezFinal, int tamanhoComum);
    ~Reducao();
    Reducao(const Reducao&) = delete;
    Reducao& operator=(const Reducao&) = delete;

    // A combination: its cells up to its "#" (the "#" not included); a row
    // with no "#" in its 82 columns gives its 82 cells and temFim false.
    void acrescenta(const uint16_t* celulas, int quant, bool temFim);
    int32_t quantCombinacoes() const { return int32_t(inicio_.size()); }

    // The pass and the completion of the last bet. False when `avanco`
    // stopped it (the bets are then as the pass left them). A subscript
    // that the rule does not guard is failure 9 (FalhaExecucao).
    bool reduz(const Avanco& avanco = {});

    int32_t QuantFinal() const { return quantFinal_; }
    // Cell `coluna` of bet `linha` (the stale "#" included).
    uint16_t celula(int32_t linha, int coluna) const;
    // The numbers of a bet, up to its "#".
    std::vector<uint16_t> aposta(int32_t linha) const;
    // The index of the first "#" of a bet.
    Int16 TotalNum(int32_t linha) const;
    // The number that the last failed containment test found missing.
    uint16_t Faltante() const { return faltante_; }

private:
    struct Indice;
    struct Mascara {
        uint64_t lo = 0, hi = 0;
    };

    // The steps of the rule.
    void TestaCombinacao(int32_t c);
    bool coberta(int32_t c);
    bool TestaJogoContido(int32_t r, int32_t c);
    void NovoJogo(int32_t c);
    void InsereDezena(Int16 dezUltimo);
    void CompletaUltimoJogo(Int16 dezFinal, Int16 dezUltimo);

    uint16_t* linha(int32_t r) { return bets_.data() + size_t(r) * Colunas; }
    const uint16_t* linha(int32_t r) const { return bets_.data() + size_t(r) * Colunas; }
    const uint16_t* celulasComb(int32_t c, int& quant) const;
    Mascara mascaraDe(const uint16_t* cel, int quant) const;
    Mascara mascaraAposta(int32_t r) const;
    void preparaIndice();
    // After bet r was made (novaAposta) or grew from `antes`: the
    // combinations that it now holds are marked.
    void marcaAposta(int32_t r, Mascara antes, bool novaAposta);

    const Alfabeto& alfabeto_;
    Int16 dezFinal_;
    int tamanhoComum_;
    bool porMascara_; // every value fits a 128-bit mask

    // The combinations, flat.
    std::vector<uint16_t> celulas_;
    std::vector<uint32_t> inicio_;
    std::vector<uint8_t> quant_;
    std::vector<uint8_t> temFim_;

    // The bets: rows of 82 cells.
    std::vector<uint16_t> bets_;
    std::vector<Mascara> mascaras_;
    int32_t quantFinal_ = 0;
    uint16_t faltante_ = 0;
    std::unique_ptr<Indice> indice_;
};

} // namespace sorvelo
