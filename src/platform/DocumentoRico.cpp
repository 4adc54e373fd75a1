#include "platform/DocumentoRico.h"

#include "base/Semantica.h"
#include "platform/SegmentoDocumento.h"

#include <algorithm>
#include <new>

namespace sorvelo {

using Segmento = DocumentoRico::Segmento;

DocumentoRico::DocumentoRico() = default;
DocumentoRico::~DocumentoRico() = default;
DocumentoRico::DocumentoRico(const DocumentoRico&) = default;
DocumentoRico& DocumentoRico::operator=(const DocumentoRico&) = default;

uint16_t DocumentoRico::indiceFormato(Formato f) {
    if (!formatos_.empty() && formatos_.back() == f) return uint16_t(formatos_.size() - 1);
    const uint64_t chave = uint64_t(f.cor) | uint64_t(f.negrito) << 32;
    const auto it = indices_.find(chave);
    if (it != indices_.end()) return it->second;
    if (formatos_.size() >= 0xFFFF) throw FalhaExecucao(erro::MemoriaInsuficiente);
    formatos_.push_back(f);
    indices_.emplace(chave, uint16_t(formatos_.size() - 1));
    return uint16_t(formatos_.size() - 1);
}

void DocumentoRico::mudou() {
    ++versao_;
    aoMudar();
}

void DocumentoRico::esvazia() {
    // The memory of a large document goes back at once.
    std::vector<Segmento>().swap(segmentos_);
    comprimento_ = 0;
    fins_ = 0;
}

size_t DocumentoRico::segmentoDa(int64_t posicao) const {
    auto it = std::upper_bound(segmentos_.begin(), segmentos_.end(), posicao,
                               [](int64_t p, const Segmento& s) { return p < s.inicio; });
    return it == segmentos_.begin() ? 0 : size_t(it - segmentos_.begin()) - 1;
}

void DocumentoRico::reindexa(size_t desde) {
    int64_t inicio = 0, fins = 0;
    if (desde > 0 && desde <= segmentos_.size()) {
        const Segmento& s = segmentos_[desde - 1];
        inicio = s.inicio + s.comprimento();
        fins = s.finsAntes + s.quantFins();
    }
    for (size_t i = desde; i < segmentos_.size(); ++i) {
        segmentos_[i].inicio = inicio;
        segmentos_[i].finsAntes = fins;
        inicio += segmentos_[i].comprimento();
        fins += segmentos_[i].quantFins();
    }
    comprimento_ = inicio;
    fins_ = fins;
}

// ---------------------------------------------------------------- reading

QString DocumentoRico::texto() const {
    return texto(0, comprimento_);
}

QString DocumentoRico::texto(int64_t inicio, int64_t fim) const {
    inicio = std::clamp<int64_t>(inicio, 0, comprimento_);
    fim = std::clamp<int64_t>(fim, inicio, comprimento_);
    QString r;
    if (inicio == fim) return r;
    try {
        r.reserve(qsizetype(fim - inicio));
        for (size_t i = segmentoDa(inicio); i < segmentos_.size() && segmentos_[i].inicio < fim; ++i) {
            const Segmento& s = segmentos_[i];
            s.escreve(std::max(inicio, s.inicio) - s.inicio,
                      std::min(fim, s.inicio + s.comprimento()) - s.inicio, r);
        }
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    return r;
}

QChar DocumentoRico::caractere(int64_t posicao) const {
    if (posicao < 0 || posicao >= comprimento_) return QChar();
    const Segmento& s = segmentos_[segmentoDa(posicao)];
    return QChar(s.caractere(posicao - s.inicio));
}

void DocumentoRico::percorreTrechos(int64_t inicio, int64_t fim,
                                    const std::function<void(const Trecho&)>& f) const {
    inicio = std::max<int64_t>(inicio, 0);
    fim = std::min(fim, comprimento_);
    if (inicio >= fim) return;
    Trecho atual{0, 0, {}};
    bool tem = false;
    for (size_t i = segmentoDa(inicio); i < segmentos_.size() && segmentos_[i].inicio < fim; ++i) {
        const Segmento& s = segmentos_[i];
        s.corridasEntre(std::max(inicio, s.inicio) - s.inicio,
                        std::min(fim, s.inicio + s.comprimento()) - s.inicio,
                        [&](int64_t a, int64_t b, uint16_t fi) {
                            const Formato fo = formatos_[fi];
                            if (tem && atual.fim == s.inicio + a && atual.formato == fo) {
                                atual.fim = s.inicio + b;
                                return;
                            }
                            if (tem) f(atual);
                            atual = {s.inicio + a, s.inicio + b, fo};
                            tem = true;
                        });
    }
    if (tem) f(atual);
}

std::vector<Trecho> DocumentoRico::trechos(int64_t inicio, int64_t fim) const {
    std::vector<Trecho> r;
    percorreTrechos(inicio, fim, [&r](const Trecho& t) { r.push_back(t); });
    return r;
}

std::vector<Trecho> DocumentoRico::trechos() const {
    return trechos(0, comprimento_);
}

void DocumentoRico::percorreTexto(int64_t inicio, int64_t fim,
                                  const std::function<void(QStringView, Formato)>& f) const {
    inicio = std::max<int64_t>(inicio, 0);
    fim = std::min(fim, comprimento_);
    if (inicio >= fim) return;
    QString pedaco;
    char16_t linha[Segmento::MaiorLinha];
    int64_t linhaEscrita = -1;
    for (size_t i = segmentoDa(inicio); i < segmentos_.size() && segmentos_[i].inicio < fim; ++i) {
        const Segmento& s = segmentos_[i];
        linhaEscrita = -1;
        s.corridasEntre(std::max(inicio, s.inicio) - s.inicio,
                        std::min(fim, s.inicio + s.comprimento()) - s.inicio,
                        [&](int64_t a, int64_t b, uint16_t fi) {
                            if (s.apostas) {
                                const int64_t j = a / s.largura;
                                if (j != linhaEscrita) s.escreveLinha(j, linha);
                                linhaEscrita = j;
                                const int64_t ini = j * s.largura;
                                f(QStringView(linha + (a - ini), qsizetype(b - a)), formatos_[fi]);
                                return;
                            }
                            pedaco.clear();
                            s.escreve(a, b, pedaco);
                            f(pedaco, formatos_[fi]);
                        });
    }
}

Formato DocumentoRico::formatoEm(int64_t posicao) const {
    if (comprimento_ == 0) return formatoPadrao;
    posicao = std::clamp<int64_t>(posicao, 0, comprimento_ - 1);
    const Segmento& s = segmentos_[segmentoDa(posicao)];
    return formatos_[s.formatoEm(posicao - s.inicio)];
}

int64_t DocumentoRico::inicioLinha(int64_t linha) const {
    if (linha <= 0) return 0;
    if (linha > fins_) return comprimento_;
    // The segment of line end number `linha`: the last one with fewer
    // line ends before it.
    auto it = std::lower_bound(segmentos_.begin(), segmentos_.end(), linha,
                               [](const Segmento& s, int64_t l) { return s.finsAntes < l; });
    const Segmento& s = *(it - 1);
    return s.inicio + s.depoisDoFim(linha - s.finsAntes - 1);
}

int64_t DocumentoRico::comprimentoLinha(int64_t linha) const {
    const int64_t ini = inicioLinha(linha);
    int64_t fim = linha >= 0 && linha < fins_ ? inicioLinha(linha + 1) : comprimento_;
    if (fim > ini) {
        const QChar c = caractere(fim - 1);
        if (c == u'\n') {
            --fim;
            if (fim > ini && caractere(fim - 1) == u'\r') --fim;
        } else if (c == u'\r') {
            --fim;
        }
    }
    return fim - ini;
}

int64_t DocumentoRico::linhaDa(int64_t posicao) const {
    if (posicao >= comprimento_) return fins_;
    if (posicao < 0 || segmentos_.empty()) return 0;
    const Segmento& s = segmentos_[segmentoDa(posicao)];
    return s.finsAntes + s.finsAte(posicao - s.inicio);
}

std::pair<int64_t, int64_t> DocumentoRico::linhaMaisLonga(int64_t desde) const {
    std::pair<int64_t, int64_t> maior{-1, -1};
    const int64_t linhas = quantLinhas();
    for (int64_t l = std::max<int64_t>(desde, 0); l < linhas;) {
        const int64_t ini = inicioLinha(l);
        if (ini < comprimento_) {
            const Segmento& s = segmentos_[segmentoDa(ini)];
            const int64_t r = ini - s.inicio;
            if (s.apostas && r % s.largura == 0) {
                // Lines j to the last of a bet segment: all of one length.
                const int64_t fimLinha = s.fimLinha.endsWith(QStringLiteral("\r\n")) ? 2 : 1;
                const int64_t c = s.largura - fimLinha;
                if (c > maior.second) maior = {l, c};
                l += s.quant - r / s.largura;
                continue;
            }
        }
        const int64_t c = comprimentoLinha(l);
        if (c > maior.second) maior = {l, c};
        ++l;
    }
    return maior;
}

size_t DocumentoRico::bytesUsados() const {
    size_t b = segmentos_.capacity() * sizeof(Segmento) + formatos_.capacity() * sizeof(Formato);
    for (const Segmento& s : segmentos_)
        b += s.estreito.capacity() + s.largos.capacity() * 2 + s.fins.capacity() * 4 +
             s.corridas.capacity() * sizeof(Corrida) + s.numeros.capacity() +
             size_t(s.fimLinha.capacity()) * 2;
    return b;
}

void DocumentoRico::defineVisivel(bool v) {
    if (v == visivel_) return;
    visivel_ = v;
    ++versao_;
}

} // namespace sorvelo
