#include "platform/qt/AreaRica.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <climits>
#include <cmath>

namespace sorvelo {

namespace {
constexpr int64_t MaximoBarra = INT_MAX;

int paraInt(int64_t v) {
    return int(std::clamp<int64_t>(v, 0, MaximoBarra));
}

// A width in pixels as the scroll bar takes it.
int larguraInteira(qreal w) {
    return int(std::clamp<qreal>(std::ceil(w), 0, qreal(MaximoBarra / 2)));
}

bool ehDePalavra(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}
} // namespace

AreaRica::AreaRica(QWidget* pai) : QAbstractScrollArea(pai) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    QFont f = font();
    f.setFamily(QStringLiteral("Arial"));
    f.setStyleHint(QFont::SansSerif);
    f.setPointSize(9);
    setFont(f);
    medeFonte();
}

void AreaRica::medeFonte() {
    fonteNegrito_ = font();
    fonteNegrito_.setBold(true);
    metricas_ = QFontMetricsF(font());
    metricasNegrito_ = QFontMetricsF(fonteNegrito_);
    alturaLinha_ = std::ceil(std::max(metricas_.lineSpacing(), metricasNegrito_.lineSpacing()));
    if (alturaLinha_ < 1) alturaLinha_ = 1;
    ascendente_ = std::max(metricas_.ascent(), metricasNegrito_.ascent());
    larguraCaractere_ =
        std::max<qreal>(1, std::max(metricas_.averageCharWidth(), metricas_.horizontalAdvance(u'0')));
    larguraMedida_ = false;
    larguraConteudo_ = 0;
    if (doc_ && !nuncaVisto_ && linhaMaisLonga_ < quantLinhasDoc()) {
        larguraConteudo_ = larguraInteira(
            std::max(larguraLinha(linhaMaisLonga_), qreal(maiorComprimento_) * larguraCaractere_));
        larguraMedida_ = true;
    }
    ajustaBarras();
    viewport()->update();
}

void AreaRica::defineDocumento(DocumentoRico* doc) {
    doc_ = doc;
    nuncaVisto_ = true;
    escondidoVisto_ = false;
    ancora_ = posicao_ = 0;
    arrastando_ = false;
    linhasVarridas_ = maiorComprimento_ = linhaMaisLonga_ = 0;
    larguraConteudo_ = 0;
    larguraMedida_ = false;
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    atualiza();
    viewport()->update();
}

void AreaRica::atualiza() {
    if (!doc_) return;
    if (!nuncaVisto_ && doc_->versao() == versaoVista_) return;
    versaoVista_ = doc_->versao();
    if (!doc_->visivel()) {
        // Hidden during a batch: nothing is read or painted until shown.
        if (!escondidoVisto_) {
            escondidoVisto_ = true;
            viewport()->update();
        }
        return;
    }
    QScrollBar* vbar = verticalScrollBar();
    const bool reescrito =
        nuncaVisto_ || doc_->geracao() != geracaoVista_ || doc_->comprimento() < comprimentoVisto_;
    const bool noFim = vbar->value() >= vbar->maximum();
    const bool seguir = !arrastando_ && (noFim || reescrito || escondidoVisto_);
    if (reescrito) {
        linhasVarridas_ = maiorComprimento_ = linhaMaisLonga_ = 0;
        larguraConteudo_ = 0;
        larguraMedida_ = false;
        ancora_ = posicao_ = 0;
        horizontalScrollBar()->setValue(0);
    }
    const int64_t antes = maiorComprimento_;
    // The last line scanned may have grown since.
    varreLinhas(std::max<int64_t>(0, linhasVarridas_ - 1));
    if (!larguraMedida_ || maiorComprimento_ != antes) {
        const qreal medida = larguraLinha(linhaMaisLonga_);
        const qreal estimada = qreal(maiorComprimento_) * larguraCaractere_;
        larguraConteudo_ = std::max(larguraConteudo_, larguraInteira(std::max(medida, estimada)));
        larguraMedida_ = true;
    }
    geracaoVista_ = doc_->geracao();
    comprimentoVisto_ = doc_->comprimento();
    escondidoVisto_ = false;
    nuncaVisto_ = false;
    ajustaBarras();
    if (seguir) vbar->setValue(vbar->maximum());
    viewport()->update();
}

void AreaRica::varreLinhas(int64_t desde) {
    const auto [linha, comprimento] = doc_->linhaMaisLonga(desde);
    if (comprimento > maiorComprimento_) {
        maiorComprimento_ = comprimento;
        linhaMaisLonga_ = linha;
    }
    linhasVarridas_ = doc_->quantLinhas();
}

void AreaRica::ajustaBarras() {
    const int vis = linhasVisiveis();
    QScrollBar* vbar = verticalScrollBar();
    vbar->setRange(0, paraInt(quantLinhasDoc() - vis));
    vbar->setPageStep(vis);
    vbar->setSingleStep(1);
    QScrollBar* hbar = horizontalScrollBar();
    const int largura = viewport()->width();
    hbar->setRange(0, std::max(0, larguraConteudo_ + 2 * Margem - largura));
    hbar->setPageStep(std::max(1, largura));
    hbar->setSingleStep(std::max(1, int(larguraCaractere_ * 2)));
}

int64_t AreaRica::inicioSelecao() const {
    return std::min(ancora_, posicao_);
}
int64_t AreaRica::fimSelecao() const {
    return std::max(ancora_, posicao_);
}

QString AreaRica::textoSelecionado() const {
    if (!doc_) return QString();
    const int64_t n = doc_->comprimento();
    const int64_t ini = std::min(inicioSelecao(), n), fim = std::min(fimSelecao(), n);
    return doc_->texto(ini, fim);
}

int64_t AreaRica::primeiraLinhaVisivel() const {
    return verticalScrollBar()->value();
}

int AreaRica::linhasVisiveis() const {
    return std::max(1, int(viewport()->height() / alturaLinha_));
}

void AreaRica::selecionaTudo() {
    ancora_ = 0;
    posicao_ = comprimentoDoc();
    viewport()->update();
    copiaParaSelecaoDoSistema();
}

void AreaRica::copia() {
    const QString t = textoSelecionado();
    if (!t.isEmpty()) QGuiApplication::clipboard()->setText(t);
}

void AreaRica::copiaParaSelecaoDoSistema() {
    QClipboard* c = QGuiApplication::clipboard();
    if (!c->supportsSelection()) return;
    const QString t = textoSelecionado();
    if (!t.isEmpty()) c->setText(t, QClipboard::Selection);
}

void AreaRica::rolaParaLinha(int64_t linha) {
    verticalScrollBar()->setValue(paraInt(linha));
}

void AreaRica::rolaParaFim() {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

qreal AreaRica::largura(int64_t inicio, int64_t fim, bool negrito) const {
    if (fim <= inicio) return 0;
    const QString pedaco = doc_->texto(inicio, fim);
    return (negrito ? metricasNegrito_ : metricas_).horizontalAdvance(pedaco);
}

qreal AreaRica::larguraLinha(int64_t linha) const {
    const int64_t ini = doc_->inicioLinha(linha);
    qreal w = 0;
    for (const Trecho& t : doc_->trechos(ini, ini + doc_->comprimentoLinha(linha)))
        w += largura(t.inicio, t.fim, t.formato.negrito);
    return w;
}

int64_t AreaRica::caractereNaLinha(int64_t linha, qreal x) const {
    const int64_t ini = doc_->inicioLinha(linha);
    const int64_t fim = ini + doc_->comprimentoLinha(linha);
    if (x <= 0) return ini;
    qreal acumulado = 0;
    for (const Trecho& t : doc_->trechos(ini, fim)) {
        const bool negrito = t.formato.negrito;
        const qreal w = largura(t.inicio, t.fim, negrito);
        if (x < acumulado + w) {
            // The widths of the prefixes grow with their length.
            const qreal xr = x - acumulado;
            int64_t lo = t.inicio, hi = t.fim;
            while (hi - lo > 1) {
                const int64_t meio = lo + (hi - lo) / 2;
                if (largura(t.inicio, meio, negrito) <= xr)
                    lo = meio;
                else
                    hi = meio;
            }
            const qreal wl = largura(t.inicio, lo, negrito), wh = largura(t.inicio, hi, negrito);
            int64_t k = (xr - wl <= wh - xr) ? lo : hi;
            if (k > ini && k < fim && doc_->caractere(k).isLowSurrogate()) --k;
            return k;
        }
        acumulado += w;
    }
    return fim;
}

int64_t AreaRica::posicaoEm(QPoint ponto) const {
    if (!doc_ || doc_->comprimento() == 0) return 0;
    const int64_t linha = primeiraLinhaVisivel() + int64_t(std::floor(qreal(ponto.y()) / alturaLinha_));
    if (linha < 0) return 0;
    if (linha >= doc_->quantLinhas()) return doc_->comprimento();
    return caractereNaLinha(linha, qreal(ponto.x() + horizontalScrollBar()->value() - Margem));
}

void AreaRica::paintEvent(QPaintEvent* e) {
    QPainter p(viewport());
    const QRect area = e->rect();
    if (!documentoVisivel()) {
        // Hidden: the place of the box shows the window behind it.
        p.fillRect(area, palette().color(QPalette::Window));
        return;
    }
    p.fillRect(area, Qt::white);
    const int64_t n = doc_->quantLinhas();
    const int64_t comprimento = doc_->comprimento();
    if (comprimento == 0) return;
    const int64_t selIni = std::min(inicioSelecao(), comprimento),
                  selFim = std::min(fimSelecao(), comprimento);
    const int64_t primeira = primeiraLinhaVisivel();
    const int64_t de = primeira + int64_t(std::floor(area.top() / alturaLinha_));
    const int64_t ate = primeira + int64_t(std::ceil((area.bottom() + 1) / alturaLinha_));
    qreal maisLarga = 0;
    for (int64_t l = std::max<int64_t>(0, de); l < std::min(n, ate + 1); ++l)
        maisLarga = std::max(maisLarga, pintaLinha(p, l, qreal(l - primeira) * alturaLinha_, selIni, selFim));
    if (editavel_ && hasFocus() && ancora_ == posicao_) {
        const int64_t l = doc_->linhaDa(std::min(posicao_, comprimento));
        const qreal x = Margem - horizontalScrollBar()->value() + xDaPosicao(std::min(posicao_, comprimento));
        const qreal y = qreal(l - primeira) * alturaLinha_;
        p.fillRect(QRectF(x, y, 1, alturaLinha_), palette().color(QPalette::Text));
    }
    // A line wider than the estimate widens the horizontal range, after
    // this paint (the bar may appear and resize the viewport).
    if (larguraInteira(maisLarga) > larguraConteudo_) {
        larguraConteudo_ = larguraInteira(maisLarga);
        QMetaObject::invokeMethod(this, &AreaRica::ajustaBarras, Qt::QueuedConnection);
    }
}

qreal AreaRica::pintaLinha(QPainter& p, int64_t linha, qreal y, int64_t selIni, int64_t selFim) {
    const int64_t ini = doc_->inicioLinha(linha);
    const int64_t fim = ini + doc_->comprimentoLinha(linha);
    const qreal limite = viewport()->width();
    const QColor realce = palette().color(QPalette::Highlight);
    const qreal x0 = Margem - horizontalScrollBar()->value();
    qreal x = x0;
    for (const Trecho& t : doc_->trechos(ini, fim)) {
        const bool negrito = t.formato.negrito;
        // The run cut at the ends of the selection.
        const int64_t cortes[4] = {t.inicio, std::clamp(selIni, t.inicio, t.fim),
                                   std::clamp(selFim, t.inicio, t.fim), t.fim};
        for (int i = 0; i < 3; ++i) {
            const int64_t a = cortes[i], b = cortes[i + 1];
            if (a >= b) continue;
            const QString pedaco = doc_->texto(a, b);
            const qreal w = (negrito ? metricasNegrito_ : metricas_).horizontalAdvance(pedaco);
            if (x + w >= 0 && x <= limite) {
                if (a >= selIni && b <= selFim) {
                    p.fillRect(QRectF(x, y, w, alturaLinha_), realce);
                    p.setPen(palette().color(QPalette::HighlightedText));
                } else {
                    const Cor c = t.formato.cor;
                    p.setPen(QColor(vermelho(c), verde(c), azul(c)));
                }
                p.setFont(negrito ? fonteNegrito_ : font());
                p.drawText(QPointF(x, y + ascendente_), pedaco);
            }
            x += w;
        }
    }
    // A selection that goes on past the line end shows the line end too.
    const bool temFimDeLinha = linha + 1 < doc_->quantLinhas();
    if (temFimDeLinha && selIni <= fim && selFim > fim && x <= limite)
        p.fillRect(QRectF(x, y, larguraCaractere_ / 2, alturaLinha_), realce);
    return x - x0;
}

void AreaRica::resizeEvent(QResizeEvent* e) {
    QScrollBar* vbar = verticalScrollBar();
    const bool noFim = vbar->value() >= vbar->maximum() && vbar->maximum() > 0;
    QAbstractScrollArea::resizeEvent(e);
    ajustaBarras();
    if (noFim) rolaParaFim();
}

void AreaRica::scrollContentsBy(int, int) {
    viewport()->update();
}

void AreaRica::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || !documentoVisivel()) {
        QAbstractScrollArea::mousePressEvent(e);
        return;
    }
    const int64_t pos = posicaoEm(e->position().toPoint());
    posicao_ = pos;
    if (!(e->modifiers() & Qt::ShiftModifier)) ancora_ = pos;
    arrastando_ = true;
    viewport()->update();
    e->accept();
}

void AreaRica::estendeSelecaoPara(QPoint ponto) {
    // Dragging past an edge scrolls that way.
    if (ponto.y() < 0)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (ponto.y() >= viewport()->height())
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    if (ponto.x() < 0)
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (ponto.x() >= viewport()->width())
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    posicao_ = posicaoEm(ponto);
    viewport()->update();
}

void AreaRica::mouseMoveEvent(QMouseEvent* e) {
    if (!arrastando_ || !(e->buttons() & Qt::LeftButton) || !documentoVisivel()) {
        QAbstractScrollArea::mouseMoveEvent(e);
        return;
    }
    estendeSelecaoPara(e->position().toPoint());
    e->accept();
}

void AreaRica::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || !arrastando_) {
        QAbstractScrollArea::mouseReleaseEvent(e);
        return;
    }
    arrastando_ = false;
    copiaParaSelecaoDoSistema();
    e->accept();
}

void AreaRica::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton || !documentoVisivel()) {
        QAbstractScrollArea::mouseDoubleClickEvent(e);
        return;
    }
    const DocumentoRico& d = *doc_;
    const int64_t n = d.comprimento();
    int64_t ini = posicaoEm(e->position().toPoint()), fim = ini;
    if (ini < n && !ehDePalavra(d.caractere(ini)) && ini > 0 && ehDePalavra(d.caractere(ini - 1)))
        --ini, --fim;
    while (ini > 0 && ehDePalavra(d.caractere(ini - 1)))
        --ini;
    while (fim < n && ehDePalavra(d.caractere(fim)))
        ++fim;
    ancora_ = ini;
    posicao_ = fim;
    arrastando_ = true;
    viewport()->update();
    e->accept();
}

void AreaRica::defineEditavel(bool editavel) {
    editavel_ = editavel;
    setAttribute(Qt::WA_InputMethodEnabled, editavel);
    viewport()->update();
}

void AreaRica::defineCursor(int64_t posicao, bool estender) {
    posicao_ = std::clamp<int64_t>(posicao, 0, comprimentoDoc());
    if (!estender) ancora_ = posicao_;
    garanteVisivel(posicao_);
    viewport()->update();
}

qreal AreaRica::xDaPosicao(int64_t posicao) const {
    const int64_t ini = doc_->inicioLinha(doc_->linhaDa(posicao));
    qreal x = 0;
    for (const Trecho& t : doc_->trechos(ini, posicao))
        x += largura(t.inicio, t.fim, t.formato.negrito);
    return x;
}

void AreaRica::garanteVisivel(int64_t posicao) {
    if (!documentoVisivel()) return;
    const int64_t linha = doc_->linhaDa(std::min(posicao, comprimentoDoc()));
    const int64_t primeira = primeiraLinhaVisivel();
    const int vis = linhasVisiveis();
    if (linha < primeira)
        rolaParaLinha(linha);
    else if (linha >= primeira + vis)
        rolaParaLinha(linha - vis + 1);
    const qreal x = xDaPosicao(std::min(posicao, comprimentoDoc()));
    QScrollBar* hbar = horizontalScrollBar();
    const int largura = viewport()->width();
    if (x + Margem > hbar->value() + largura - 2 * Margem) {
        if (larguraInteira(x) + 2 * Margem > larguraConteudo_) {
            larguraConteudo_ = larguraInteira(x) + 2 * Margem;
            ajustaBarras();
        }
        hbar->setValue(int(x) + 3 * Margem - largura);
    } else if (x < hbar->value()) {
        hbar->setValue(std::max(0, int(x) - Margem));
    }
}

void AreaRica::aposEdicao(int64_t posicao) {
    versaoVista_ = doc_->versao();
    geracaoVista_ = doc_->geracao();
    comprimentoVisto_ = doc_->comprimento();
    escondidoVisto_ = false;
    nuncaVisto_ = false;
    varreLinhas(std::min(linhasVarridas_, doc_->linhaDa(posicao)));
    ancora_ = posicao_ = posicao;
    ajustaBarras();
    garanteVisivel(posicao);
    viewport()->update();
}

void AreaRica::insereTexto(const QString& texto) {
    if (!editavel_ || !documentoVisivel()) return;
    const int64_t n = comprimentoDoc();
    const int64_t ini = std::min(inicioSelecao(), n), fim = std::min(fimSelecao(), n);
    const Formato f = ini > 0 ? doc_->formatoEm(ini - 1) : (n > 0 ? doc_->formatoEm(0) : doc_->formatoPadrao);
    doc_->substitui(ini, fim, texto, f);
    aposEdicao(ini + texto.size());
}

void AreaRica::apaga(bool paraTras) {
    if (!editavel_ || !documentoVisivel()) return;
    const int64_t n = comprimentoDoc();
    int64_t ini = std::min(inicioSelecao(), n), fim = std::min(fimSelecao(), n);
    if (ini == fim) {
        const DocumentoRico& t = *doc_;
        if (paraTras) {
            if (ini == 0) return;
            --ini;
            if (ini > 0 && ((t.caractere(ini) == u'\n' && t.caractere(ini - 1) == u'\r') ||
                            t.caractere(ini).isLowSurrogate()))
                --ini;
        } else {
            if (fim >= n) return;
            ++fim;
            if (fim < n && ((t.caractere(fim - 1) == u'\r' && t.caractere(fim) == u'\n') ||
                            t.caractere(fim).isLowSurrogate()))
                ++fim;
        }
    }
    doc_->substitui(ini, fim, QString(), doc_->formatoPadrao);
    aposEdicao(ini);
}

void AreaRica::recorta() {
    if (!editavel_ || ancora_ == posicao_) return;
    copia();
    apaga(true);
}

void AreaRica::cola() {
    if (!editavel_) return;
    QString t = QGuiApplication::clipboard()->text();
    t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    t.replace(u'\r', u'\n');
    t.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    if (!t.isEmpty()) insereTexto(t);
}

bool AreaRica::teclaDeEdicao(QKeyEvent* e) {
    if (!editavel_ || !documentoVisivel()) return false;
    const bool estender = e->modifiers() & Qt::ShiftModifier;
    const int64_t n = comprimentoDoc();
    const int64_t linha = doc_->linhaDa(std::min(posicao_, n));
    if (e == QKeySequence::Paste) {
        cola();
    } else if (e == QKeySequence::Cut) {
        recorta();
    } else {
        switch (e->key()) {
        case Qt::Key_Backspace:
            apaga(true);
            break;
        case Qt::Key_Delete:
            apaga(false);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            insereTexto(QStringLiteral("\r\n"));
            break;
        case Qt::Key_Left:
            defineCursor(ancora_ != posicao_ && !estender ? inicioSelecao()
                                                          : std::max<int64_t>(0, posicao_ - 1),
                         estender);
            break;
        case Qt::Key_Right:
            defineCursor(ancora_ != posicao_ && !estender ? fimSelecao() : std::min(n, posicao_ + 1),
                         estender);
            break;
        case Qt::Key_Up:
        case Qt::Key_Down: {
            const int64_t outra = linha + (e->key() == Qt::Key_Up ? -1 : 1);
            if (outra >= 0 && outra < doc_->quantLinhas())
                defineCursor(caractereNaLinha(outra, xDaPosicao(std::min(posicao_, n))), estender);
            break;
        }
        case Qt::Key_Home:
            defineCursor(e->modifiers() & Qt::ControlModifier ? 0 : doc_->inicioLinha(linha), estender);
            break;
        case Qt::Key_End:
            defineCursor(e->modifiers() & Qt::ControlModifier
                             ? n
                             : doc_->inicioLinha(linha) + doc_->comprimentoLinha(linha),
                         estender);
            break;
        default: {
            const QString t = e->text();
            if (t.isEmpty() || !t[0].isPrint() || (e->modifiers() & Qt::ControlModifier)) return false;
            insereTexto(t);
        }
        }
    }
    e->accept();
    return true;
}

void AreaRica::keyPressEvent(QKeyEvent* e) {
    if (teclaDeEdicao(e)) return;
    QScrollBar* vbar = verticalScrollBar();
    QScrollBar* hbar = horizontalScrollBar();
    if (e == QKeySequence::SelectAll)
        selecionaTudo();
    else if (e == QKeySequence::Copy)
        copia();
    else {
        switch (e->key()) {
        case Qt::Key_Up:
            vbar->triggerAction(QAbstractSlider::SliderSingleStepSub);
            break;
        case Qt::Key_Down:
            vbar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            break;
        case Qt::Key_PageUp:
            vbar->triggerAction(QAbstractSlider::SliderPageStepSub);
            break;
        case Qt::Key_PageDown:
            vbar->triggerAction(QAbstractSlider::SliderPageStepAdd);
            break;
        case Qt::Key_Left:
            hbar->triggerAction(QAbstractSlider::SliderSingleStepSub);
            break;
        case Qt::Key_Right:
            hbar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            break;
        case Qt::Key_Home:
            vbar->triggerAction(QAbstractSlider::SliderToMinimum);
            hbar->triggerAction(QAbstractSlider::SliderToMinimum);
            break;
        case Qt::Key_End:
            vbar->triggerAction(QAbstractSlider::SliderToMaximum);
            break;
        default:
            QAbstractScrollArea::keyPressEvent(e);
            return;
        }
    }
    e->accept();
}

bool AreaRica::event(QEvent* e) {
    if (e->type() == QEvent::ShortcutOverride) {
        auto* k = static_cast<QKeyEvent*>(e);
        if (k == QKeySequence::Copy || k == QKeySequence::SelectAll ||
            (editavel_ && (k == QKeySequence::Paste || k == QKeySequence::Cut))) {
            e->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(e);
}

void AreaRica::contextMenuEvent(QContextMenuEvent* e) {
    QMenu menu(this);
    QAction* copiar = menu.addAction(QStringLiteral("Copiar"), this, &AreaRica::copia);
    copiar->setEnabled(documentoVisivel() && !textoSelecionado().isEmpty());
    if (editavel_) {
        QAction* recortar = menu.addAction(QStringLiteral("Recortar"), this, &AreaRica::recorta);
        recortar->setEnabled(documentoVisivel() && !textoSelecionado().isEmpty());
        QAction* colar = menu.addAction(QStringLiteral("Colar"), this, &AreaRica::cola);
        colar->setEnabled(documentoVisivel() && !QGuiApplication::clipboard()->text().isEmpty());
    }
    QAction* tudo = menu.addAction(QStringLiteral("Selecionar tudo"), this, &AreaRica::selecionaTudo);
    tudo->setEnabled(documentoVisivel() && comprimentoDoc() > 0);
    menu.exec(e->globalPos());
}

// The caret of an editable area shows only with the focus.
void AreaRica::focusInEvent(QFocusEvent* e) {
    QAbstractScrollArea::focusInEvent(e);
    if (editavel_) viewport()->update();
}
void AreaRica::focusOutEvent(QFocusEvent* e) {
    QAbstractScrollArea::focusOutEvent(e);
    if (editavel_) viewport()->update();
}

void AreaRica::changeEvent(QEvent* e) {
    QAbstractScrollArea::changeEvent(e);
    if (e->type() == QEvent::FontChange)
        medeFonte();
    else if (e->type() == QEvent::PaletteChange)
        viewport()->update();
}

} // namespace sorvelo
