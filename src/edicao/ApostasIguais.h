// The index behind the filter's identical-bets test. A bet has an equal when
// another row holds the same cells at the same places, from cell 0 up to the
// bet's own "#": so a bet equals any longer bet that begins with it. Rather
// than comparing each bet with every other one, the index keeps a tree of
// every prefix of every row (one node per distinct prefix) with the number
// of rows that currently begin with it. A bet has an equal when the node of
// its whole sequence is shared by at least two rows. Marking a row "@"
// changes its cell 0, so its old prefixes lose it; its new sequence matters
// only to rows that begin with "@" themselves, and is entered only when
// such rows exist.
#pragma once

#include "core/MatrizTexto.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <vector>

namespace sorvelo {

class ApostasIguais {
public:
    // Indexes rows 0..quant-1 of the matrix; every row holds its "#".
    ApostasIguais(const MatrizTexto& vetAux, int64_t quant);

    // True when another row holds the cells of this (unmarked) row, from
    // cell 0 up to its "#", at the same places.
    bool temIgual(int64_t linha) const;
    // The row's cell 0 has become "@".
    void marca(int64_t linha);

    // Nodes of the tree (for the memory figures).
    size_t quantNos() const { return pai_.size(); }
    size_t bytesUsados() const;

private:
    using Token = uint32_t;
    static constexpr uint32_t SemNo = 0xFFFFFFFFu;

    // The tokens of a row up to its first "#" (all its columns when it has
    // none); a text that is not a compact code gets an id of its own.
    int tokens(int64_t linha, Token* saida);
    Token token(const QString& texto);
    uint32_t filho(uint32_t no, Token t, bool cria);
    void cresceTabela();

    const MatrizTexto& vet_;
    int colunas_;
    std::vector<uint32_t> pai_;   // parent of each node; the root is node 0
    std::vector<uint32_t> conta_; // rows whose sequence begins with the node's prefix
    std::vector<uint32_t> fimLinha_;
    // Open addressing: key (node << 32 | token) + 1, 0 for a free slot. The
    // children of a node lie side by side, so that a walk down rows that
    // share a beginning stays in a few cache lines.
    struct Entrada {
        uint64_t chave = 0;
        uint32_t no = 0;
    };
    static size_t posicao(uint64_t chave, size_t mascara);
    std::vector<Entrada> tabela_;
    size_t ocupados_ = 0;
    QHash<QString, Token> outros_;
    Token arroba_;
    bool temArroba_ = false; // some row begins with "@"
};

} // namespace sorvelo
