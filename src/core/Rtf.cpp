#include "core/Rtf.h"

#include "base/Semantica.h"
#include "core/Cp1252.h"

#include <algorithm>
#include <charconv>
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

QByteArray escreveRtf(const DocumentoRico& documento) {
    if (documento.comprimento() == 0) return {};
    const std::vector<Trecho> trechos = documento.trechos();

    // Colour table in the order of first use; entry 0 stays "auto".
    std::vector<Cor> cores;
    std::vector<int> indiceCor(trechos.size());
    std::unordered_map<Cor, int> indices;
    for (size_t k = 0; k < trechos.size(); ++k) {
        const Cor c = trechos[k].formato.cor;
        auto [it, nova] = indices.try_emplace(c, int(cores.size()) + 1);
        if (nova) cores.push_back(c);
        indiceCor[k] = it->second;
    }

    std::string s;
    try {
        s.reserve(size_t(documento.comprimento()) + trechos.size() * 8 + cores.size() * 32 + 256);
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

        const QChar* d = documento.texto().constData();
        int corAtual = -1;
        bool negritoAtual = false;
        int64_t i = 0;
        for (size_t k = 0; k < trechos.size(); ++k) {
            const Trecho& t = trechos[k];
            if (i >= t.fim) continue; // its only character went with a CR LF before it
            bool mudou = false;
            if (indiceCor[k] != corAtual) {
                s += "\\cf";
                numero(s, indiceCor[k]);
                corAtual = indiceCor[k];
                mudou = true;
            }
            if (t.formato.negrito != negritoAtual) {
                s += t.formato.negrito ? "\\b" : "\\b0";
                negritoAtual = t.formato.negrito;
                mudou = true;
            }
            if (mudou) s += ' ';
            for (; i < t.fim; ++i) {
                const char16_t c = d[i].unicode();
                if (c >= 0x20 && c < 0x7F) {
                    if (c == u'\\' || c == u'{' || c == u'}') s += '\\';
                    s += char(c);
                } else if (c == u'\r' || c == u'\n') {
                    // A CR LF is one line end, even when a change of format
                    // falls between the two.
                    if (c == u'\r' && i + 1 < documento.comprimento() && d[i + 1] == u'\n') ++i;
                    s += "\\par\r\n";
                } else if (c == u'\t') {
                    s += "\\tab ";
                } else if (c < 0x20 || c == 0x7F) {
                    hexa(s, uint8_t(c));
                } else if (uint8_t b; cp1252::byteDe(c, b)) {
                    hexa(s, b);
                } else {
                    s += "\\u";
                    numero(s, int16_t(c));
                    s += '?';
                }
            }
        }
        s += "}\r\n";
        return QByteArray(s.data(), qsizetype(s.size()));
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

enum class Destino { Texto, Ignorado, Cores };

struct Grupo {
    Destino destino = Destino::Texto;
    int64_t uc = 1;
    Formato formato;
};

class Leitor {
public:
    explicit Leitor(const QByteArray& rtf) : d_(rtf.constData()), n_(rtf.size()) {}
    void le(DocumentoRico& saida);

private:
    void controle();
    void palavra(std::string_view nome, bool temParametro, int64_t parametro);
    void simbolo(char c);
    void textoCru(char c);
    void emite(char16_t c);
    void descarrega();
    bool pulaReserva() {
        if (pular_ <= 0) return false;
        --pular_;
        return true;
    }
    Grupo& grupo() { return pilha_.back(); }

    const char* d_;
    int64_t n_;
    int64_t i_ = 0;
    std::vector<Grupo> pilha_{Grupo{}};
    std::vector<Cor> cores_;
    std::vector<bool> automatica_;
    Cor corEntrada_ = 0;
    bool entradaTemCor_ = false;
    int64_t pular_ = 0; // characters of a \u fallback still to skip
    QString pedaco_;
    Formato formatoPedaco_;
    DocumentoRico lido_;
};

void Leitor::le(DocumentoRico& saida) {
    while (i_ < n_) {
        const char c = d_[i_];
        if (c == '{') {
            ++i_;
            pular_ = 0;
            pilha_.push_back(grupo());
        } else if (c == '}') {
            ++i_;
            pular_ = 0;
            pilha_.pop_back();
            if (pilha_.size() == 1) break; // the document's own group closed
        } else if (c == '\\') {
            controle();
        } else {
            ++i_;
            textoCru(c);
        }
    }
    descarrega();
    saida.defineTexto(QString());
    if (lido_.comprimento() > 0) saida.acrescenta(lido_);
}

void Leitor::controle() {
    ++i_; // the backslash
    if (i_ >= n_) return;
    const auto letra = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto digito = [](char c) { return c >= '0' && c <= '9'; };
    if (!letra(d_[i_])) {
        simbolo(d_[i_++]);
        return;
    }
    const int64_t inicio = i_;
    while (i_ < n_ && letra(d_[i_]))
        ++i_;
    const std::string_view nome(d_ + inicio, size_t(i_ - inicio));
    bool negativo = false, temParametro = false;
    int64_t parametro = 0;
    if (i_ + 1 < n_ && d_[i_] == '-' && digito(d_[i_ + 1])) {
        negativo = true;
        ++i_;
    }
    while (i_ < n_ && digito(d_[i_])) {
        temParametro = true;
        if (parametro < 100000000000LL) parametro = parametro * 10 + (d_[i_] - '0');
        ++i_;
    }
    if (i_ < n_ && d_[i_] == ' ') ++i_;
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
    Grupo& g = grupo();
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
        if (parametro > 0 && parametro < int64_t(cores_.size()) && !automatica_[size_t(parametro)])
            g.formato.cor = cores_[size_t(parametro)];
        else
            g.formato.cor = 0;
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
        automatica_.clear();
        corEntrada_ = 0;
        entradaTemCor_ = false;
        break;
    case Acao::Destino:
        g.destino = Destino::Ignorado;
        break;
    default:
        break;
    }
}

void Leitor::simbolo(char c) {
    if (c == '\'') {
        // Up to two hexadecimal digits: one byte of the code page.
        int valor = 0, digitos = 0;
        while (digitos < 2 && i_ < n_) {
            const char h = d_[i_];
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
    case '*':
        grupo().destino = Destino::Ignorado;
        break;
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
    Grupo& g = grupo();
    if (g.destino == Destino::Cores) {
        if (c == ';') {
            cores_.push_back(corEntrada_);
            automatica_.push_back(!entradaTemCor_);
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

void Leitor::emite(char16_t c) {
    const Grupo& g = grupo();
    if (g.destino != Destino::Texto) return;
    if (!(g.formato == formatoPedaco_)) {
        descarrega();
        formatoPedaco_ = g.formato;
    }
    pedaco_.append(QChar(c));
}

void Leitor::descarrega() {
    if (pedaco_.isEmpty()) return;
    lido_.acrescenta(pedaco_, formatoPedaco_);
    pedaco_.clear();
}

} // namespace

void leRtf(const QByteArray& rtf, DocumentoRico& documento) {
    if (!rtf.startsWith("{\\rtf")) {
        documento.defineTexto(cp1252::decodifica(rtf));
        return;
    }
    try {
        Leitor(rtf).le(documento);
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

} // namespace sorvelo
