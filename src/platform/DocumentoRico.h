// The content of a rich-text area: text with runs of colour and weight,
// stored compactly so that a bank of tens of millions of coloured lines fits.
// The text is held in segments: pieces of text of at most 64 Ki characters,
// in one byte a character where the Windows-1252 code page holds them all;
// and runs of numbered bet lines, kept as their numbers (one byte each) and
// written out only when a view, a save or a reader asks for them.
// The Qt view (platform/qt/AreaRica) paints it; the logic writes it.
#pragma once

#include "base/Aviso.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace sorvelo {

using Cor = uint32_t; // 0xRRGGBB
constexpr Cor rgb(int r, int g, int b) {
    return Cor((r << 16) | (g << 8) | b);
}
constexpr int vermelho(Cor c) {
    return int((c >> 16) & 0xFF);
}
constexpr int verde(Cor c) {
    return int((c >> 8) & 0xFF);
}
constexpr int azul(Cor c) {
    return int(c & 0xFF);
}

struct Formato {
    Cor cor = 0;
    bool negrito = false;
    friend bool operator==(const Formato&, const Formato&) = default;
};

struct Trecho {
    int64_t inicio;
    int64_t fim; // one past the last character
    Formato formato;
};

class DocumentoRico {
public:
    DocumentoRico();
    ~DocumentoRico();
    DocumentoRico(const DocumentoRico&);
    DocumentoRico& operator=(const DocumentoRico&);

    // Text read: the whole plain text, or the characters inicio to fim - 1
    // (clamped to the text), made on request.
    QString texto() const;
    QString texto(int64_t inicio, int64_t fim) const;
    // The character at a position inside the text.
    QChar caractere(int64_t posicao) const;
    int64_t comprimento() const { return comprimento_; }
    bool vazio() const { return comprimento_ == 0; }

    // Text write: replaces the whole content, in the default format.
    void defineTexto(const QString& texto);
    void limpa() { defineTexto(QString()); }
    // Appends a piece at the end in the given format (the SelRTF of a
    // staged, coloured line dropped at the end of the document).
    void acrescenta(QStringView pedaco, Formato formato);
    void acrescenta(QStringView pedaco, Cor cor, bool negrito = false) { acrescenta(pedaco, {cor, negrito}); }
    // Appends the bet line numbered n: n in at least five digits, ")   ",
    // each of the `quant` numbers (0 to 99) in two digits and a blank, then
    // fimLinha; its first six characters in `numero`, the rest in `aposta`.
    void acrescentaLinhaAposta(int64_t n, const uint8_t* numeros, int quant, const QString& fimLinha,
                               Formato numero, Formato aposta);
    // Appends another document at the end, keeping its runs.
    void acrescenta(const DocumentoRico& outro);
    // The same, taking the other's content instead of copying it when this
    // one is empty (the other is left empty).
    void acrescentaTomando(DocumentoRico& outro);
    // Replaces the characters inicio to fim - 1 by `novo` in the given
    // format (a person's edit): only the segments of the edit are rebuilt.
    void substitui(int64_t inicio, int64_t fim, QStringView novo, Formato formato);

    // Runs of equal format, in order, covering the text (or the part of it
    // from inicio to fim); two runs in a row never share a format.
    std::vector<Trecho> trechos() const;
    std::vector<Trecho> trechos(int64_t inicio, int64_t fim) const;
    // The same runs, one at a time, without gathering them.
    void percorreTrechos(int64_t inicio, int64_t fim, const std::function<void(const Trecho&)>& f) const;
    // The text from inicio to fim in order, in pieces that each lie inside
    // one run (a run may come in several pieces).
    void percorreTexto(int64_t inicio, int64_t fim, const std::function<void(QStringView, Formato)>& f) const;
    Formato formatoEm(int64_t posicao) const;

    // Lines: CR LF, CR or LF ends a line. A text that ends with a line end
    // has an empty last line.
    int64_t quantLinhas() const { return 1 + fins_; }
    int64_t inicioLinha(int64_t linha) const;
    // Length of the line without its line end.
    int64_t comprimentoLinha(int64_t linha) const;
    int64_t linhaDa(int64_t posicao) const;
    // The longest line from line `desde` on (the first of equal ones), as
    // {line, length}; {-1, -1} when there is none. Runs of bet lines of one
    // length are passed over at once.
    std::pair<int64_t, int64_t> linhaMaisLonga(int64_t desde) const;

    bool visivel() const { return visivel_; }
    void defineVisivel(bool v);

    // Raised on every change of the content.
    Aviso<> aoMudar;
    // The caret put at the end of the text, the end brought into sight (the
    // view counts the requests it has followed).
    void caretNoFim() { ++pedidosCaretNoFim_; }
    uint64_t pedidosCaretNoFim() const { return pedidosCaretNoFim_; }
    // Grows with every change of the content or of the visibility.
    uint64_t versao() const { return versao_; }
    // Grows each time the whole content is replaced (defineTexto, limpa), so
    // that a view can tell a rewrite from an append.
    uint64_t geracao() const { return geracao_; }

    // Bytes held by the content (for the memory budget).
    size_t bytesUsados() const;

    Formato formatoPadrao;

    struct Segmento;

private:
    void mudou();
    uint16_t indiceFormato(Formato f);
    void acrescentaTexto(QStringView pedaco, uint16_t formato);
    void esvazia();
    void reindexa(size_t desde);
    size_t segmentoDa(int64_t posicao) const;

    std::vector<Segmento> segmentos_;
    std::vector<Formato> formatos_;
    std::unordered_map<uint64_t, uint16_t> indices_; // of formatos_, by format
    int64_t comprimento_ = 0;
    int64_t fins_ = 0; // line ends in the text
    bool visivel_ = true;
    uint64_t versao_ = 0;
    uint64_t geracao_ = 0;
    uint64_t pedidosCaretNoFim_ = 0;
};

} // namespace sorvelo
