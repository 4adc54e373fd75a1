// A plain reference of the rich-text document: the whole text in one string,
// a run list and a line index, each change done the obvious way. The tests
// compare the compact document with it.
#pragma once

#include "platform/DocumentoRico.h"

#include <QString>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace sorvelo {

class DocumentoSimples {
public:
    // Text read: the plain text, one character per position.
    const QString& texto() const { return texto_; }
    int64_t comprimento() const { return texto_.size(); }

    // Text write: replaces the whole content, in the default format.
    void defineTexto(const QString& texto);
    void limpa() { defineTexto(QString()); }
    // Appends a piece at the end in the given format (the SelRTF of a
    // staged, coloured line dropped at the end of the document).
    void acrescenta(QStringView pedaco, Formato formato);
    void acrescenta(QStringView pedaco, Cor cor, bool negrito = false) { acrescenta(pedaco, {cor, negrito}); }
    // Appends another document at the end, keeping its runs.
    void acrescenta(const DocumentoSimples& outro);
    // The same, taking the other's content instead of copying it when this
    // one is empty (the other is left empty).
    void acrescentaTomando(DocumentoSimples& outro);
    // Replaces the characters inicio to fim - 1 by `novo` in the given
    // format (a person's edit): only the lines of the edit are read again.
    void substitui(int64_t inicio, int64_t fim, QStringView novo, Formato formato);

    // Runs of equal format, in order, covering the text.
    std::vector<Trecho> trechos() const;
    std::vector<Trecho> trechos(int64_t inicio, int64_t fim) const;
    Formato formatoEm(int64_t posicao) const;

    // Lines: CR LF, CR or LF ends a line. A text that ends with a line end
    // has an empty last line.
    int64_t quantLinhas() const { return int64_t(iniciosLinha_.size()); }
    int64_t inicioLinha(int64_t linha) const { return iniciosLinha_[size_t(linha)]; }
    // Length of the line without its line end.
    int64_t comprimentoLinha(int64_t linha) const;
    int64_t linhaDa(int64_t posicao) const;

    bool visivel() const { return visivel_; }
    void defineVisivel(bool v);

    // The caret put at the end of the text, the end brought into sight (the
    // view counts the requests it has followed).
    void caretNoFim() { ++pedidosCaretNoFim_; }
    uint64_t pedidosCaretNoFim() const { return pedidosCaretNoFim_; }
    // Grows with every change of the content or of the visibility.
    uint64_t versao() const { return versao_; }
    // Grows each time the whole content is replaced (defineTexto, limpa), so
    // that a view can tell a rewrite from an append.
    uint64_t geracao() const { return geracao_; }

    Formato formatoPadrao;

private:
    void indexaLinhas(int64_t desde);
    void mudou();
    uint16_t indiceFormato(Formato f);

    QString texto_;
    // Each run: start position << 16 | index in formatos_.
    std::vector<uint64_t> trechos_;
    std::vector<Formato> formatos_;
    std::unordered_map<uint64_t, uint16_t> indices_; // of formatos_, by format
    std::vector<int64_t> iniciosLinha_{0};
    bool visivel_ = true;
    uint64_t versao_ = 0;
    uint64_t geracao_ = 0;
    uint64_t pedidosCaretNoFim_ = 0;
};

} // namespace sorvelo
