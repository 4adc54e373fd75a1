// The view of a rich-text document (the bet bank, the listings): paints only
// the lines in sight, straight from the compact model, so that a bank of
// millions of coloured lines opens and scrolls at once. Read-only for the
// user by default, with a mouse selection, copy and select-all; an editable
// area takes typing, deletion, cut and paste at a caret, in the format of
// the text before it.
#pragma once

#include "platform/DocumentoRico.h"

#include <QAbstractScrollArea>
#include <QFont>
#include <QFontMetricsF>

#include <cstdint>

namespace sorvelo {

class AreaRica : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit AreaRica(QWidget* pai = nullptr);

    // The document shown (not owned); nullptr shows nothing.
    void defineDocumento(DocumentoRico* doc);
    DocumentoRico* documento() const { return doc_; }
    // Takes in the changes of the document since the last call; cheap when
    // there are none. A hidden document is neither read nor painted.
    void atualiza();

    int64_t inicioSelecao() const;
    int64_t fimSelecao() const;
    QString textoSelecionado() const;
    int64_t primeiraLinhaVisivel() const;
    // Lines that fit whole in the view.
    int linhasVisiveis() const;
    // The estimated width of the widest line, in pixels.
    int larguraConteudo() const { return larguraConteudo_; }
    // Text position under a point of the viewport.
    int64_t posicaoEm(QPoint ponto) const;

    void selecionaTudo();
    void copia();

    void defineEditavel(bool editavel);
    bool editavel() const { return editavel_; }
    // The caret (the moving end of the selection).
    int64_t cursor() const { return posicao_; }
    // Puts the caret at a position; `estender` keeps the other end.
    void defineCursor(int64_t posicao, bool estender = false);
    // Replaces the selection by `texto` (an editable area only).
    void insereTexto(const QString& texto);
    void recorta();
    void cola();
    // Shows line `linha` at the top of the view (as far as the end allows).
    void rolaParaLinha(int64_t linha);
    void rolaParaFim();

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void contextMenuEvent(QContextMenuEvent* e) override;
    void changeEvent(QEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    bool event(QEvent* e) override;

private:
    void medeFonte();
    void ajustaBarras();
    void varreLinhas(int64_t desde);
    bool documentoVisivel() const { return doc_ && doc_->visivel(); }
    int64_t comprimentoDoc() const { return doc_ ? doc_->comprimento() : 0; }
    int64_t quantLinhasDoc() const { return doc_ ? doc_->quantLinhas() : 0; }
    // Width in pixels of a piece of the text in the given weight.
    qreal largura(int64_t inicio, int64_t fim, bool negrito) const;
    qreal larguraLinha(int64_t linha) const;
    int64_t caractereNaLinha(int64_t linha, qreal x) const;
    // Paints one line; returns its width.
    qreal pintaLinha(QPainter& p, int64_t linha, qreal y, int64_t selIni, int64_t selFim);
    void estendeSelecaoPara(QPoint ponto);
    void copiaParaSelecaoDoSistema();
    // Editing keys; false when the key isn't one.
    bool teclaDeEdicao(QKeyEvent* e);
    void apaga(bool paraTras);
    // After an edit of the document: the view takes it in without a rewrite.
    void aposEdicao(int64_t posicao);
    qreal xDaPosicao(int64_t posicao) const;
    void garanteVisivel(int64_t posicao);

    DocumentoRico* doc_ = nullptr;
    QFont fonteNegrito_;
    QFontMetricsF metricas_{QFont()}, metricasNegrito_{QFont()};
    qreal alturaLinha_ = 1, ascendente_ = 0, larguraCaractere_ = 1;
    static constexpr int Margem = 3;

    // What atualiza() has seen of the document.
    uint64_t versaoVista_ = 0, geracaoVista_ = 0;
    int64_t comprimentoVisto_ = 0;
    bool escondidoVisto_ = false;
    bool nuncaVisto_ = true;

    // The longest line in characters, over the lines already scanned.
    int64_t linhasVarridas_ = 0;
    int64_t maiorComprimento_ = 0, linhaMaisLonga_ = 0;
    int larguraConteudo_ = 0;
    bool larguraMedida_ = false;

    // Selection: the fixed end and the moving end, as text positions.
    int64_t ancora_ = 0, posicao_ = 0;
    bool arrastando_ = false;
    bool editavel_ = false;
};

} // namespace sorvelo
