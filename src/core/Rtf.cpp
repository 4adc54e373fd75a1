#include "core/Rtf.h"

#include "base/Cp1252.h"
#include "base/Semantica.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <new>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace sorvelo {

// ---------------------------------------------------------------- writing

namespace {

void numero(std::string& s, int64_t n) {
    char buf[24];
    const auto r = std::to_chars(buf, buf + sizeof buf, n);
    s.append(buf, r.ptr);
}

void hexa(std::string& s, uint8_t b) {
    static const char digitos[] = "0123456789abcdef";
    s += "\\'";
    s += digitos[b >> 4];
    s += digitos[b & 15];
}

} // namespace

namespace {

// The characters of the text, run after run, with a change of colour or
// weight written before the first character that needs it.
class EscritorRtf {
public:
    EscritorRtf(std::string& s, const std::unordered_map<Cor, int>& indices) : s_(s), indices_(indices) {}

    void pedaco(QStringView texto, Formato f) {
        qsizetype i = 0;
        const qsizetype n = texto.size();
        // A CR LF is one line end, even when a change of format falls
        // between the two.
        if (depoisDeCr_ && n > 0 && texto[0] == u'\n') ++i;
        if (n > 0) depoisDeCr_ = false;
        if (i >= n) return;
        formato(f);
        while (i < n) {
            // A stretch of plain characters is copied at once.
            qsizetype j = i;
            while (j < n && simples(texto[j].unicode()))
                ++j;
            if (j > i) {
                const size_t base = s_.size();
                s_.resize(base + size_t(j - i));
                char* d = s_.data() + base;
                for (; i < j; ++i)
                    *d++ = char(texto[i].unicode());
                continue;
            }
            const char16_t c = texto[i].unicode();
            if (c == u'\r' && i + 1 < n && texto[i + 1] == u'\n') ++i;
            caractere(c);
            ++i;
        }
        depoisDeCr_ = texto[n - 1] == u'\r';
    }

private:
    static bool simples(char16_t c) { return c >= 0x20 && c < 0x7F && c != u'\\' && c != u'{' && c != u'}'; }

    void formato(Formato f) {
        const int cor = indices_.at(f.cor);
        bool mudou = false;
        if (cor != corAtual_) {
            s_ += "\\cf";
            numero(s_, cor);
            corAtual_ = cor;
            mudou = true;
        }
        if (f.negrito != negritoAtual_) {
            s_ += f.negrito ? "\\b" : "\\b0";
            negritoAtual_ = f.negrito;
            mudou = true;
        }
        if (mudou) s_ += ' ';
    }

    void caractere(char16_t c) {
        if (c >= 0x20 && c < 0x7F) {
            if (c == u'\\' || c == u'{' || c == u'}') s_ += '\\';
            s_ += char(c);
        } else if (c == u'\r' || c == u'\n') {
            s_ += "\\par\r\n";
        } else if (c == u'\t') {
            s_ += "\\tab ";
        } else if (c < 0x20 || c == 0x7F) {
            hexa(s_, uint8_t(c));
        } else if (uint8_t b; cp1252::byteDe(c, b)) {
            hexa(s_, b);
        } else {
            s_ += "\\u";
            numero(s_, int16_t(c));
            s_ += '?';
        }
    }

    std::string& s_;
    const std::unordered_map<Cor, int>& indices_;
    int corAtual_ = -1;
    bool negritoAtual_ = false;
    bool depoisDeCr_ = false;
};

} // namespace

QByteArray escreveRtf(const DocumentoRico& documento) {
    const std::string s = escreveRtfTexto(documento);
    return QByteArray(s.data(), qsizetype(s.size()));
}

std::string escreveRtfTexto(const DocumentoRico& documento) {
    if (documento.comprimento() == 0) return {};

    // Colour table in the order of first use; entry 0 stays "auto".
    std::vector<Cor> cores;
    std::unordered_map<Cor, int> indices;
    int64_t trechos = 0;
    documento.percorreTrechos(0, documento.comprimento(), [&](const Trecho& t) {
        ++trechos;
        if (indices.try_emplace(t.formato.cor, int(cores.size()) + 1).second) cores.push_back(t.formato.cor);
    });

    std::string s;
    try {
        // Room for the text, a "\\par" a line and a change of format a run.
        s.reserve(size_t(documento.comprimento()) + size_t(documento.quantLinhas()) * 5 +
                  size_t(trechos) * 6 + cores.size() * 32 + 256);
        s += "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n{\\colortbl ;";
        for (Cor c : cores) {
            s += "\\red";
            numero(s, vermelho(c));
            s += "\\green";
            numero(s, verde(c));
            s += "\\blue";
            numero(s, azul(c));
            s += ';';
        }
        s += "}\r\n\\uc1\\pard\\f0\\fs20";
        EscritorRtf escritor(s, indices);
        documento.percorreTexto(0, documento.comprimento(),
                                [&escritor](QStringView texto, Formato f) { escritor.pedaco(texto, f); });
        s += "}\r\n";
        return s;
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

// ---------------------------------------------------------------- reading

namespace {

enum class Acao {
    Nenhuma,
    Paragrafo,
    Tabulacao,
    Caractere,
    Cor,
    Negrito,
    Simples,
    Unicode,
    ContaUnicode,
    Binario,
    Vermelho,
    Verde,
    Azul,
    TabelaCores,
    Destino,
};

struct Palavra {
    Acao acao;
    char16_t caractere = 0;
};

const std::unordered_map<std::string_view, Palavra>& palavras() {
    static const std::unordered_map<std::string_view, Palavra> tabela = [] {
        std::unordered_map<std::string_view, Palavra> t{
            {"par", {Acao::Paragrafo}},
            {"line", {Acao::Paragrafo}},
            {"sect", {Acao::Paragrafo}},
            {"row", {Acao::Paragrafo}},
            {"tab", {Acao::Tabulacao}},
            {"cell", {Acao::Tabulacao}},
            {"emdash", {Acao::Caractere, u'\u2014'}},
            {"endash", {Acao::Caractere, u'\u2013'}},
            {"lquote", {Acao::Caractere, u'\u2018'}},
            {"rquote", {Acao::Caractere, u'\u2019'}},
            {"ldblquote", {Acao::Caractere, u'\u201C'}},
            {"rdblquote", {Acao::Caractere, u'\u201D'}},
            {"bullet", {Acao::Caractere, u'\u2022'}},
            {"emspace", {Acao::Caractere, u'\u2003'}},
            {"enspace", {Acao::Caractere, u'\u2002'}},
            {"cf", {Acao::Cor}},
            {"b", {Acao::Negrito}},
            {"plain", {Acao::Simples}},
            {"u", {Acao::Unicode}},
            {"uc", {Acao::ContaUnicode}},
            {"bin", {Acao::Binario}},
            {"red", {Acao::Vermelho}},
            {"green", {Acao::Verde}},
            {"blue", {Acao::Azul}},
            {"colortbl", {Acao::TabelaCores}},
        };
        for (const char* destino : {"fonttbl",
                                    "stylesheet",
                                    "info",
                                    "pict",
                                    "object",
                                    "objdata",
                                    "header",
                                    "headerl",
                                    "headerr",
                                    "headerf",
                                    "footer",
                                    "footerl",
                                    "footerr",
                                    "footerf",
                                    "footnote",
                                    "annotation",
                                    "listtable",
                                    "listoverridetable",
                                    "revtbl",
                                    "rsidtbl",
                                    "filetbl",
                                    "fldinst",
                                    "xe",
                                    "tc",
                                    "txe",
                                    "rxe",
                                    "pntext",
                                    "pntxta",
                                    "pntxtb",
                                    "themedata",
                                    "colorschememapping",
                                    "latentstyles",
                                    "datastore",
                                    "xmlnstbl",
                                    "generator",
                                    "nonshppict",
                                    "userprops",
                                    "docvar",
                                    "template",
                                    "bkmkstart",
                                    "bkmkend",
                                    "mmathPr"})
            t.emplace(destino, Palavra{Acao::Destino});
        return t;
    }();
    return tabela;
}

enum class Destino : uint8_t { Texto, Ignorado, Cores };

struct Grupo {
    Destino destino = Destino::Texto;
    int64_t uc = 1;
    Formato formato;
};

// A group's state in 8 bytes: colour (24 bits), bold, destination, \uc.
uint64_t empacota(const Grupo& g) {
    return uint64_t(g.formato.cor & 0xFFFFFF) | uint64_t(g.formato.negrito) << 24 |
           uint64_t(g.destino) << 25 | uint64_t(g.uc) << 27;
}
Grupo desempacota(uint64_t v) {
    return {Destino((v >> 25) & 3), int64_t(v >> 27), Formato{Cor(v & 0xFFFFFF), ((v >> 24) & 1) != 0}};
}

// Characters gathered before they go to the document in one piece.
constexpr qsizetype PedacoMaximo = 1 << 16;

// The reader keeps, per open group, one bit; a group's state takes 8 bytes
// only when the group changes it, which costs at least three bytes of input
// ("{" and a control word). The colour table keeps only the entries that
// have a colour, 8 bytes each for at least six bytes of input. So the work
// of reading stays within a few bytes per byte read, beside the document.
class Leitor {
public:
    // The text is rtf followed by `brancos` blanks.
    Leitor(const QByteArray& rtf, int64_t brancos)
        : d_(rtf.constData()), reais_(rtf.size()), n_(rtf.size() + brancos) {}
    void le(DocumentoRico& saida);

private:
    char em(int64_t i) const { return i < reais_ ? d_[i] : ' '; }
    void controle();
    void palavra(std::string_view nome, bool temParametro, int64_t parametro);
    void simbolo(char c);
    void textoCru(char c);
    void brancos(int64_t k);
    void emite(char16_t c);
    void descarrega();
    bool pulaReserva() {
        if (pular_ <= 0) return false;
        --pular_;
        return true;
    }
    Grupo grupo() const { return desempacota(estados_.back()); }
    void muda(const Grupo& g);
    void abreGrupo() { proprio_.push_back(false); }
    void fechaGrupo() {
        if (proprio_.back()) estados_.pop_back();
        proprio_.pop_back();
    }
    Cor corDaTabela(int64_t indice) const;

    const char* d_;
    int64_t reais_;
    int64_t n_;
    int64_t i_ = 0;
    std::deque<uint64_t> estados_{empacota(Grupo{})};
    std::vector<bool> proprio_{true};
    std::deque<uint64_t> cores_; // index << 24 | colour, of the entries with a colour
    int64_t quantCores_ = 0;
    Cor corEntrada_ = 0;
    bool entradaTemCor_ = false;
    int64_t pular_ = 0; // characters of a \u fallback still to skip
    QString pedaco_;
    Formato formatoPedaco_;
    DocumentoRico lido_;
};

void Leitor::muda(const Grupo& g) {
    const uint64_t v = empacota(g);
    if (v == estados_.back()) return;
    if (proprio_.back()) {
        estados_.back() = v;
    } else {
        estados_.push_back(v);
        proprio_.back() = true;
    }
}

Cor Leitor::corDaTabela(int64_t indice) const {
    const auto it = std::lower_bound(cores_.begin(), cores_.end(), uint64_t(indice) << 24);
    if (it == cores_.end() || int64_t(*it >> 24) != indice) return 0; // "auto"
    return Cor(*it & 0xFFFFFF);
}

void Leitor::le(DocumentoRico& saida) {
    while (i_ < n_) {
        if (i_ >= reais_) {
            // Only blanks are left, each a character of the text.
            brancos(n_ - i_);
            i_ = n_;
            break;
        }
        const char c = d_[i_];
        if (c == '{') {
            ++i_;
            pular_ = 0;
            abreGrupo();
        } else if (c == '}') {
            ++i_;
            pular_ = 0;
            fechaGrupo();
            if (proprio_.size() == 1) break; // the document's own group closed
        } else if (c == '\\') {
            controle();
        } else {
            ++i_;
            textoCru(c);
        }
    }
    descarrega();
    saida.defineTexto(QString());
    if (lido_.comprimento() > 0) saida.acrescentaTomando(lido_);
}

void Leitor::controle() {
    ++i_; // the backslash
    if (i_ >= n_) return;
    const auto letra = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto digito = [](char c) { return c >= '0' && c <= '9'; };
    if (!letra(em(i_))) {
        simbolo(em(i_++));
        return;
    }
    const int64_t inicio = i_;
    while (i_ < n_ && letra(em(i_)))
        ++i_;
    const std::string_view nome(d_ + inicio, size_t(i_ - inicio));
    bool negativo = false, temParametro = false;
    int64_t parametro = 0;
    if (i_ + 1 < n_ && em(i_) == '-' && digito(em(i_ + 1))) {
        negativo = true;
        ++i_;
    }
    while (i_ < n_ && digito(em(i_))) {
        temParametro = true;
        if (parametro < 100000000000LL) parametro = parametro * 10 + (em(i_) - '0');
        ++i_;
    }
    if (i_ < n_ && em(i_) == ' ') ++i_;
    palavra(nome, temParametro, negativo ? -parametro : parametro);
}

void Leitor::palavra(std::string_view nome, bool temParametro, int64_t parametro) {
    const auto& tabela = palavras();
    const auto it = tabela.find(nome);
    const Palavra p = it == tabela.end() ? Palavra{Acao::Nenhuma} : it->second;
    if (p.acao == Acao::Binario) {
        // Raw bytes follow; they are never text here.
        i_ += std::clamp<int64_t>(parametro, 0, n_ - i_);
        return;
    }
    if (pulaReserva()) return;
    Grupo g = grupo();
    if (g.destino == Destino::Ignorado) return;
    if (g.destino == Destino::Cores) {
        const int64_t valor = std::clamp<int64_t>(parametro, 0, 255);
        switch (p.acao) {
        case Acao::Vermelho:
            corEntrada_ = (corEntrada_ & 0x00FFFF) | Cor(valor << 16);
            break;
        case Acao::Verde:
            corEntrada_ = (corEntrada_ & 0xFF00FF) | Cor(valor << 8);
            break;
        case Acao::Azul:
            corEntrada_ = (corEntrada_ & 0xFFFF00) | Cor(valor);
            break;
        default:
            return;
        }
        entradaTemCor_ = true;
        return;
    }
    switch (p.acao) {
    case Acao::Paragrafo:
        emite(u'\r');
        emite(u'\n');
        break;
    case Acao::Tabulacao:
        emite(u'\t');
        break;
    case Acao::Caractere:
        emite(p.caractere);
        break;
    case Acao::Cor:
        g.formato.cor = parametro > 0 ? corDaTabela(parametro) : 0;
        break;
    case Acao::Negrito:
        g.formato.negrito = !temParametro || parametro != 0;
        break;
    case Acao::Simples:
        g.formato = Formato{};
        break;
    case Acao::Unicode:
        if (temParametro && parametro >= -32768 && parametro <= 65535) emite(char16_t(parametro & 0xFFFF));
        pular_ = g.uc;
        break;
    case Acao::ContaUnicode:
        g.uc = std::clamp<int64_t>(parametro, 0, 1 << 30);
        break;
    case Acao::TabelaCores:
        g.destino = Destino::Cores;
        cores_.clear();
        quantCores_ = 0;
        corEntrada_ = 0;
        entradaTemCor_ = false;
        break;
    case Acao::Destino:
        g.destino = Destino::Ignorado;
        break;
    default:
        break;
    }
    muda(g);
}

void Leitor::simbolo(char c) {
    if (c == '\'') {
        // Up to two hexadecimal digits: one byte of the code page.
        int valor = 0, digitos = 0;
        while (digitos < 2 && i_ < n_) {
            const char h = em(i_);
            int v;
            if (h >= '0' && h <= '9')
                v = h - '0';
            else if (h >= 'a' && h <= 'f')
                v = h - 'a' + 10;
            else if (h >= 'A' && h <= 'F')
                v = h - 'A' + 10;
            else
                break;
            valor = valor * 16 + v;
            ++digitos;
            ++i_;
        }
        if (pulaReserva() || digitos == 0) return;
        emite(cp1252::caractere(uint8_t(valor)));
        return;
    }
    if (pulaReserva()) return;
    switch (c) {
    case '\\':
    case '{':
    case '}':
        textoCru(c);
        break;
    case '*': {
        Grupo g = grupo();
        g.destino = Destino::Ignorado;
        muda(g);
        break;
    }
    case '~':
        emite(u'\u00A0');
        break;
    case '_':
        emite(u'\u2011');
        break;
    case '\r':
    case '\n':
        emite(u'\r');
        emite(u'\n');
        break;
    default:
        break; // \- \: \| and the rest carry no text
    }
}

void Leitor::textoCru(char c) {
    if (c == '\r' || c == '\n') return;
    if (pulaReserva()) return;
    if (grupo().destino == Destino::Cores) {
        if (c == ';') {
            if (entradaTemCor_) cores_.push_back(uint64_t(quantCores_) << 24 | corEntrada_);
            ++quantCores_;
            corEntrada_ = 0;
            entradaTemCor_ = false;
        }
        return;
    }
    if (c == '\t')
        emite(u'\t');
    else if (uint8_t(c) >= 0x20)
        emite(cp1252::caractere(uint8_t(c)));
}

void Leitor::brancos(int64_t k) {
    const int64_t pulados = std::min(k, pular_);
    pular_ -= pulados;
    k -= pulados;
    const Grupo g = grupo();
    if (g.destino != Destino::Texto) return;
    descarrega();
    while (k > 0) {
        const qsizetype parte = qsizetype(std::min<int64_t>(k, PedacoMaximo));
        lido_.acrescenta(QString(parte, u' '), g.formato);
        k -= parte;
    }
}

void Leitor::emite(char16_t c) {
    const Grupo g = grupo();
    if (g.destino != Destino::Texto) return;
    if (!(g.formato == formatoPedaco_)) {
        descarrega();
        formatoPedaco_ = g.formato;
    }
    pedaco_.append(QChar(c));
    if (pedaco_.size() >= PedacoMaximo) descarrega();
}

void Leitor::descarrega() {
    if (pedaco_.isEmpty()) return;
    lido_.acrescenta(pedaco_, formatoPedaco_);
    pedaco_.resize(0);
}

} // namespace

void leRtf(const QByteArray& rtf, DocumentoRico& documento, int64_t brancosNoFim) {
    // Blanks can't begin "{\\rtf": the bytes alone decide.
    if (!rtf.startsWith("{\\rtf")) {
        try {
            QString texto = cp1252::decodifica(rtf);
            if (brancosNoFim > 0) texto.append(QString(brancosNoFim, u' '));
            documento.defineTexto(texto);
        } catch (const std::bad_alloc&) {
            throw FalhaExecucao(erro::MemoriaInsuficiente);
        }
        return;
    }
    try {
        Leitor(rtf, std::max<int64_t>(brancosNoFim, 0)).le(documento);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

} // namespace sorvelo
