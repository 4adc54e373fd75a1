// The writers of the rich-text document: appends, bet lines, another
// document, a person's edit and the rewrite of the whole text.
#include "platform/DocumentoRico.h"

#include "base/Semantica.h"
#include "platform/SegmentoDocumento.h"

#include <algorithm>
#include <cstdint>
#include <new>

namespace sorvelo {

using Segmento = DocumentoRico::Segmento;

namespace {
// A bet segment that stops growing gives back its spare room.
void fechaSegmento(std::vector<Segmento>& segmentos) {
    if (!segmentos.empty() && segmentos.back().apostas) segmentos.back().numeros.shrink_to_fit();
}

// Whether a line end can close the bet lines of a bet segment: one line end
// at its end (LF or CR LF) and no other.
bool fimDeLinhaCompacto(const QString& fim) {
    const qsizetype n = fim.size();
    if (n < 1 || n > 8 || fim[n - 1] != u'\n') return false;
    for (qsizetype i = 0; i + 1 < n; ++i)
        if ((fim[i] == u'\r' && i != n - 2) || fim[i] == u'\n') return false;
    return true;
}
} // namespace

void DocumentoRico::acrescentaTexto(QStringView pedaco, uint16_t formato) {
    const int64_t n = pedaco.size();
    int64_t i = 0;
    while (i < n) {
        Segmento* s = segmentos_.empty() || segmentos_.back().apostas ? nullptr : &segmentos_.back();
        const int64_t tamanho = s ? s->comprimento() : 0;
        // A LF after a CR at the end of the text joins its segment.
        const bool junta = s && tamanho > 0 && pedaco[i] == u'\n' && s->caractere(tamanho - 1) == u'\r';
        if (!s || (tamanho >= Segmento::LimiteTexto && !junta)) {
            fechaSegmento(segmentos_);
            Segmento novo;
            novo.inicio = comprimento_;
            novo.finsAntes = fins_;
            segmentos_.push_back(std::move(novo));
            s = &segmentos_.back();
        }
        int64_t parte =
            std::min(n - i, std::max<int64_t>(Segmento::LimiteTexto - s->comprimento(), junta ? 1 : 0));
        // A CR LF stays in one segment.
        if (i + parte < n && pedaco[i + parte - 1] == u'\r' && pedaco[i + parte] == u'\n') ++parte;
        fins_ += s->acrescenta(pedaco.mid(qsizetype(i), qsizetype(parte)), formato);
        comprimento_ += parte;
        i += parte;
    }
}

void DocumentoRico::defineTexto(const QString& texto) {
    esvazia();
    if (!texto.isEmpty()) {
        try {
            acrescentaTexto(texto, indiceFormato(formatoPadrao));
        } catch (const std::bad_alloc&) {
            esvazia();
            throw FalhaExecucao(erro::MemoriaInsuficiente);
        }
    }
    ++geracao_;
    mudou();
}

void DocumentoRico::acrescenta(QStringView pedaco, Formato formato) {
    if (!pedaco.isEmpty()) {
        try {
            acrescentaTexto(pedaco, indiceFormato(formato));
        } catch (const std::bad_alloc&) {
            throw FalhaExecucao(erro::MemoriaInsuficiente);
        }
    }
    mudou();
}

void DocumentoRico::acrescentaLinhaAposta(int64_t n, const uint8_t* numeros, int quant,
                                          const QString& fimLinha, Formato numero, Formato aposta) {
    bool compacta = n >= 0 && quant >= 0 && quant <= 255 && fimDeLinhaCompacto(fimLinha);
    for (int c = 0; c < quant && compacta; ++c)
        compacta = numeros[c] <= 99;
    if (!compacta) {
        QString linha = formata(n, 5) + QStringLiteral(")   ");
        for (int c = 0; c < quant; ++c)
            linha += formata00(numeros[c]) + u' ';
        linha += fimLinha;
        const QStringView v(linha);
        acrescenta(v.left(6), numero);
        acrescenta(v.mid(6), aposta);
        return;
    }
    try {
        Segmento* s = segmentos_.empty() ? nullptr : &segmentos_.back();
        // The formats of the bet segment being written are found without
        // looking them up.
        const bool mesmosFormatos =
            s && s->apostas && formatos_[s->formatoNumero] == numero && formatos_[s->formatoAposta] == aposta;
        const uint16_t fn = mesmosFormatos ? s->formatoNumero : indiceFormato(numero);
        const uint16_t fa = mesmosFormatos ? s->formatoAposta : indiceFormato(aposta);
        // The number keeps the width of the segment's numbers while it stays
        // below the next power of ten.
        const bool continua = mesmosFormatos && s->n0 + s->quant == n && n < s->limiteNumeros;
        const int digitos = continua ? s->digitos : digitosDoNumero(n);
        if (!s || !s->apostas || s->quant >= Segmento::LimiteLinhas || s->numerosPorLinha != quant ||
            s->digitos != digitos || s->formatoNumero != fn || s->formatoAposta != fa ||
            s->n0 + s->quant != n || s->fimLinha != fimLinha) {
            fechaSegmento(segmentos_);
            Segmento novo;
            novo.inicio = comprimento_;
            novo.finsAntes = fins_;
            novo.apostas = true;
            novo.n0 = n;
            novo.numerosPorLinha = quant;
            novo.digitos = digitos;
            novo.limiteNumeros = digitos >= 19 ? INT64_MAX : potenciaDeDez(digitos);
            novo.largura = digitos + 4 + 3 * quant + int32_t(fimLinha.size());
            novo.formatoNumero = fn;
            novo.formatoAposta = fa;
            novo.fimLinha = fimLinha;
            novo.numeros.reserve(size_t(quant) * 64);
            segmentos_.push_back(std::move(novo));
            s = &segmentos_.back();
        }
        s->numeros.insert(s->numeros.end(), numeros, numeros + quant);
        ++s->quant;
        comprimento_ += s->largura;
        ++fins_;
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    mudou();
}

void DocumentoRico::acrescenta(const DocumentoRico& outro) {
    if (outro.vazio()) {
        mudou();
        return;
    }
    // Appending a document to itself reads a copy of its segments.
    const std::vector<Segmento> copia = &outro == this ? segmentos_ : std::vector<Segmento>();
    const std::vector<Segmento>& origem = &outro == this ? copia : outro.segmentos_;
    const std::vector<Formato> formatos = outro.formatos_;
    try {
        for (const Segmento& s : origem) {
            if (s.apostas) {
                fechaSegmento(segmentos_);
                Segmento novo = s;
                novo.inicio = comprimento_;
                novo.finsAntes = fins_;
                novo.formatoNumero = indiceFormato(formatos[s.formatoNumero]);
                novo.formatoAposta = indiceFormato(formatos[s.formatoAposta]);
                comprimento_ += novo.comprimento();
                fins_ += novo.quantFins();
                segmentos_.push_back(std::move(novo));
                continue;
            }
            QString pedaco;
            s.corridasEntre(0, s.comprimento(), [&](int64_t a, int64_t b, uint16_t fi) {
                pedaco.clear();
                s.escreve(a, b, pedaco);
                acrescentaTexto(pedaco, indiceFormato(formatos[fi]));
            });
        }
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    mudou();
}

void DocumentoRico::acrescentaTomando(DocumentoRico& outro) {
    if (!vazio()) {
        acrescenta(outro);
        return;
    }
    segmentos_.swap(outro.segmentos_);
    formatos_.swap(outro.formatos_);
    indices_.swap(outro.indices_);
    std::swap(comprimento_, outro.comprimento_);
    std::swap(fins_, outro.fins_);
    outro.defineTexto(QString());
    mudou();
}

void DocumentoRico::substitui(int64_t inicio, int64_t fim, QStringView novo, Formato formato) {
    inicio = std::clamp<int64_t>(inicio, 0, comprimento_);
    fim = std::clamp<int64_t>(fim, inicio, comprimento_);
    // The segments from the one before the edit to the one after it are
    // rebuilt: the characters at both ends of them stay as they were, so no
    // CR LF is split between segments.
    size_t de = 0, ate = 0;
    if (comprimento_ > 0) {
        de = segmentoDa(std::max<int64_t>(inicio - 1, 0));
        ate = segmentoDa(std::min(fim, comprimento_ - 1)) + 1;
    }
    const int64_t base = de < segmentos_.size() ? segmentos_[de].inicio : 0;
    const int64_t fimLocal = ate > de ? segmentos_[ate - 1].inicio + segmentos_[ate - 1].comprimento() : 0;
    try {
        QString local = texto(base, fimLocal);
        std::vector<Formato> formatos(size_t(local.size()));
        percorreTrechos(base, fimLocal, [&](const Trecho& t) {
            std::fill(formatos.begin() + (t.inicio - base), formatos.begin() + (t.fim - base), t.formato);
        });
        local.replace(qsizetype(inicio - base), qsizetype(fim - inicio), novo.toString());
        formatos.erase(formatos.begin() + (inicio - base), formatos.begin() + (fim - base));
        formatos.insert(formatos.begin() + (inicio - base), size_t(novo.size()), formato);

        DocumentoRico novoTrecho;
        for (qsizetype i = 0; i < local.size();) {
            qsizetype j = i + 1;
            while (j < local.size() && formatos[size_t(j)] == formatos[size_t(i)])
                ++j;
            novoTrecho.acrescentaTexto(QStringView(local).mid(i, j - i),
                                       novoTrecho.indiceFormato(formatos[size_t(i)]));
            i = j;
        }
        for (Segmento& s : novoTrecho.segmentos_)
            for (Corrida& c : s.corridas)
                c.formato = indiceFormato(novoTrecho.formatos_[c.formato]);
        segmentos_.erase(segmentos_.begin() + ptrdiff_t(de), segmentos_.begin() + ptrdiff_t(ate));
        segmentos_.insert(segmentos_.begin() + ptrdiff_t(de),
                          std::make_move_iterator(novoTrecho.segmentos_.begin()),
                          std::make_move_iterator(novoTrecho.segmentos_.end()));
        reindexa(de);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    mudou();
}

} // namespace sorvelo
