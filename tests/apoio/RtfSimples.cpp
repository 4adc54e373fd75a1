#include "apoio/RtfSimples.h"

#include "base/Cp1252.h"
#include "base/Semantica.h"

#include <charconv>
#include <new>
#include <string>
#include <unordered_map>
#include <vector>

namespace sorvelo {

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

QByteArray escreveRtfSimples(const DocumentoSimples& documento) {
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

} // namespace sorvelo
