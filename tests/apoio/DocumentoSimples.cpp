#include "apoio/DocumentoSimples.h"

#include "base/Semantica.h"

#include <algorithm>
#include <new>

namespace sorvelo {

uint16_t DocumentoSimples::indiceFormato(Formato f) {
    if (!formatos_.empty() && formatos_.back() == f) return uint16_t(formatos_.size() - 1);
    const uint64_t chave = uint64_t(f.cor) | uint64_t(f.negrito) << 32;
    const auto it = indices_.find(chave);
    if (it != indices_.end()) return it->second;
    if (formatos_.size() >= 0xFFFF) throw FalhaExecucao(erro::MemoriaInsuficiente);
    formatos_.push_back(f);
    indices_.emplace(chave, uint16_t(formatos_.size() - 1));
    return uint16_t(formatos_.size() - 1);
}

void DocumentoSimples::mudou() {
    ++versao_;
}

void DocumentoSimples::defineTexto(const QString& texto) {
    texto_ = texto;
    // A rewrite gives back the memory of a large document.
    std::vector<uint64_t>().swap(trechos_);
    std::vector<int64_t>{0}.swap(iniciosLinha_);
    if (!texto_.isEmpty()) trechos_.push_back(uint64_t(indiceFormato(formatoPadrao)));
    indexaLinhas(0);
    ++geracao_;
    mudou();
}

void DocumentoSimples::acrescenta(QStringView pedaco, Formato formato) {
    if (pedaco.isEmpty()) {
        mudou();
        return;
    }
    const int64_t inicio = texto_.size();
    try {
        const uint16_t f = indiceFormato(formato);
        if (trechos_.empty() || (trechos_.back() & 0xFFFF) != f)
            trechos_.push_back(uint64_t(inicio) << 16 | f);
        texto_.append(pedaco);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    indexaLinhas(inicio);
    mudou();
}

void DocumentoSimples::acrescenta(const DocumentoSimples& outro) {
    const int64_t base = texto_.size();
    if (outro.texto_.isEmpty()) {
        mudou();
        return;
    }
    for (size_t i = 0; i < outro.trechos_.size(); ++i) {
        const uint16_t f = indiceFormato(outro.formatos_[outro.trechos_[i] & 0xFFFF]);
        const int64_t ini = base + int64_t(outro.trechos_[i] >> 16);
        if (trechos_.empty() || (trechos_.back() & 0xFFFF) != f) trechos_.push_back(uint64_t(ini) << 16 | f);
    }
    texto_.append(outro.texto_);
    indexaLinhas(base);
    mudou();
}

void DocumentoSimples::acrescentaTomando(DocumentoSimples& outro) {
    if (!texto_.isEmpty()) {
        acrescenta(outro);
        return;
    }
    // Nothing here refers to formatos_ while the text is empty.
    texto_.swap(outro.texto_);
    trechos_.swap(outro.trechos_);
    formatos_.swap(outro.formatos_);
    indices_.swap(outro.indices_);
    iniciosLinha_.swap(outro.iniciosLinha_);
    outro.defineTexto(QString());
    mudou();
}

void DocumentoSimples::substitui(int64_t inicio, int64_t fim, QStringView novo, Formato formato) {
    const int64_t n = texto_.size();
    inicio = std::clamp<int64_t>(inicio, 0, n);
    fim = std::clamp<int64_t>(fim, inicio, n);
    const int64_t delta = int64_t(novo.size()) - (fim - inicio);
    const int64_t fimNovo = inicio + int64_t(novo.size());
    try {
        const uint16_t f = indiceFormato(formato);
        const bool temResto = fim < n;
        const uint16_t fResto = temResto ? indiceFormato(formatoEm(fim)) : 0;
        // Runs: those before the edit, the new text, the rest shifted.
        std::vector<uint64_t> r;
        r.reserve(trechos_.size() + 2);
        const auto poe = [&r](int64_t ini, uint16_t fmt) {
            while (!r.empty() && int64_t(r.back() >> 16) >= ini)
                r.pop_back();
            if (r.empty() || (r.back() & 0xFFFF) != fmt) r.push_back(uint64_t(ini) << 16 | fmt);
        };
        for (uint64_t t : trechos_)
            if (int64_t(t >> 16) < inicio) poe(int64_t(t >> 16), uint16_t(t & 0xFFFF));
        if (!novo.isEmpty()) poe(inicio, f);
        if (temResto) poe(fimNovo, fResto);
        for (uint64_t t : trechos_)
            if (int64_t(t >> 16) > fim) poe(int64_t(t >> 16) + delta, uint16_t(t & 0xFFFF));

        // Lines: those before the edit stay, those after it move by delta,
        // the lines of the edit are read again.
        std::vector<int64_t> depois;
        for (auto it = std::upper_bound(iniciosLinha_.begin(), iniciosLinha_.end(), fim);
             it != iniciosLinha_.end(); ++it)
            depois.push_back(*it + delta);
        texto_.replace(qsizetype(inicio), qsizetype(fim - inicio), novo.toString());
        trechos_.swap(r);
        const int64_t k = linhaDa(std::max<int64_t>(0, inicio - 1));
        iniciosLinha_.resize(size_t(k + 1));
        const QChar* d = texto_.constData();
        const int64_t total = texto_.size();
        for (int64_t i = iniciosLinha_.back(); i < fimNovo; ++i) {
            const char16_t c = d[i].unicode();
            if (c == u'\r') {
                if (i + 1 < total && d[i + 1] == u'\n') continue; // the LF ends the line
                iniciosLinha_.push_back(i + 1);
            } else if (c == u'\n') {
                iniciosLinha_.push_back(i + 1);
            }
        }
        iniciosLinha_.insert(iniciosLinha_.end(), depois.begin(), depois.end());
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    mudou();
}

void DocumentoSimples::indexaLinhas(int64_t desde) {
    // A CR at the end of the previous text followed by a LF now: the line
    // start recorded after the CR moves past the LF.
    const QChar* d = texto_.constData();
    const int64_t n = texto_.size();
    int64_t i = desde;
    if (i > 0 && i < n && d[i - 1] == u'\r' && d[i] == u'\n') {
        iniciosLinha_.back() = i + 1;
        ++i;
    }
    for (; i < n; ++i) {
        const char16_t c = d[i].unicode();
        if (c == u'\r') {
            if (i + 1 < n && d[i + 1] == u'\n') ++i;
            iniciosLinha_.push_back(i + 1);
        } else if (c == u'\n') {
            iniciosLinha_.push_back(i + 1);
        }
    }
}

int64_t DocumentoSimples::comprimentoLinha(int64_t linha) const {
    const int64_t ini = iniciosLinha_[size_t(linha)];
    int64_t fim = linha + 1 < quantLinhas() ? iniciosLinha_[size_t(linha + 1)] : int64_t(texto_.size());
    while (fim > ini && (texto_[fim - 1] == u'\n' || texto_[fim - 1] == u'\r')) {
        const bool lf = texto_[fim - 1] == u'\n';
        --fim;
        if (lf && fim > ini && texto_[fim - 1] == u'\r') --fim;
        break;
    }
    return fim - ini;
}

int64_t DocumentoSimples::linhaDa(int64_t posicao) const {
    auto it = std::upper_bound(iniciosLinha_.begin(), iniciosLinha_.end(), posicao);
    return std::max<int64_t>(0, int64_t(it - iniciosLinha_.begin()) - 1);
}

Formato DocumentoSimples::formatoEm(int64_t posicao) const {
    if (trechos_.empty()) return formatoPadrao;
    auto it = std::upper_bound(trechos_.begin(), trechos_.end(), posicao,
                               [](int64_t p, uint64_t t) { return p < int64_t(t >> 16); });
    if (it == trechos_.begin()) return formatos_[trechos_.front() & 0xFFFF];
    return formatos_[*(it - 1) & 0xFFFF];
}

std::vector<Trecho> DocumentoSimples::trechos(int64_t inicio, int64_t fim) const {
    std::vector<Trecho> r;
    fim = std::min<int64_t>(fim, texto_.size());
    if (inicio >= fim || trechos_.empty()) return r;
    auto it = std::upper_bound(trechos_.begin(), trechos_.end(), inicio,
                               [](int64_t p, uint64_t t) { return p < int64_t(t >> 16); });
    if (it != trechos_.begin()) --it;
    for (; it != trechos_.end(); ++it) {
        const int64_t ini = int64_t(*it >> 16);
        if (ini >= fim) break;
        const int64_t proximo =
            (it + 1 != trechos_.end()) ? int64_t(*(it + 1) >> 16) : int64_t(texto_.size());
        const int64_t a = std::max(ini, inicio), b = std::min(proximo, fim);
        if (a < b) r.push_back({a, b, formatos_[*it & 0xFFFF]});
    }
    return r;
}

std::vector<Trecho> DocumentoSimples::trechos() const {
    return trechos(0, texto_.size());
}

void DocumentoSimples::defineVisivel(bool v) {
    if (v == visivel_) return;
    visivel_ = v;
    ++versao_;
}

} // namespace sorvelo
