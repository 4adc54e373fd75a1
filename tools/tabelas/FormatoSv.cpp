#include "FormatoSv.h"

#include <bit>
#include <cstdio>

namespace sorvelo::tabelas {

namespace {
std::string doisDigitos(int n) {
    char b[8];
    std::snprintf(b, sizeof b, "%02d", n % 100);
    return b;
}

bool digito(char c) {
    return c >= '0' && c <= '9';
}
} // namespace

std::string chave(const std::string& codigo, const Parametros& par) {
    return codigo + doisDigitos(par.v) + "A" + doisDigitos(par.p) + "G" + doisDigitos(par.t);
}

std::string complementa(std::string s) {
    for (char& c : s)
        c = char(255 - (unsigned char)c);
    return s;
}

std::string textoDoArquivo(const std::string& codigo, const std::vector<Bloco>& blocos) {
    std::string s;
    for (const Bloco& b : blocos) {
        s += chave(codigo, b.par) + "\r\n";
        for (size_t r = 0; r < b.linhas.size(); ++r) {
            Mascara m = b.linhas[r];
            bool primeira = true;
            while (m) {
                if (!primeira) s += ' ';
                s += doisDigitos(std::countr_zero(m) + 1);
                primeira = false;
                m &= m - 1;
            }
            s += r + 1 < b.linhas.size() ? "\r\n" : " ##\r\n";
        }
    }
    return s;
}

std::optional<std::vector<std::vector<std::string>>> leBlocoComoPrograma(const std::string& texto,
                                                                         const std::string& ch) {
    const size_t achado = texto.find(ch);
    if (achado == std::string::npos) return std::nullopt;
    std::vector<std::vector<std::string>> linhas(1);
    size_t pos = achado + 13;
    for (;;) {
        if (pos + 2 > texto.size()) return std::nullopt;
        const std::string dois = texto.substr(pos, 2);
        if (dois == "##") return linhas;
        if (dois[0] == '\n') {
            if (int(linhas.size()) >= MaxLinhasBloco) return std::nullopt;
            linhas.emplace_back();
            pos -= 2;
        } else {
            if (int(linhas.back().size()) >= MaxCelulasLinha) return std::nullopt;
            linhas.back().push_back(dois);
        }
        pos += 3;
    }
}

std::optional<std::vector<Mascara>> linhasComoMascaras(const std::vector<std::vector<std::string>>& linhas,
                                                       int v) {
    std::vector<Mascara> r;
    for (const auto& l : linhas) {
        Mascara m = 0;
        for (const std::string& c : l) {
            if (c.size() != 2 || !digito(c[0]) || !digito(c[1])) return std::nullopt;
            const int n = (c[0] - '0') * 10 + (c[1] - '0');
            if (n < 1 || n > v || n > 64) return std::nullopt;
            m |= Mascara(1) << (n - 1);
        }
        r.push_back(m);
    }
    return r;
}

std::vector<Bloco> leBlocos(const std::string& texto, const std::string& codigo, int k) {
    std::vector<Bloco> r;
    size_t pos = 0;
    while ((pos = texto.find(codigo, pos)) != std::string::npos) {
        const std::string ch = texto.substr(pos, 11);
        pos += 1;
        if (ch.size() != 11 || ch[5] != 'A' || ch[8] != 'G') continue;
        if (!digito(ch[3]) || !digito(ch[4]) || !digito(ch[6]) || !digito(ch[7]) || !digito(ch[9]) ||
            !digito(ch[10]))
            continue;
        Bloco b;
        b.par = {(ch[3] - '0') * 10 + (ch[4] - '0'), k, (ch[6] - '0') * 10 + (ch[7] - '0'),
                 (ch[9] - '0') * 10 + (ch[10] - '0')};
        const auto linhas = leBlocoComoPrograma(texto, ch);
        if (!linhas) continue;
        const auto mascaras = linhasComoMascaras(*linhas, b.par.v);
        if (!mascaras) continue;
        b.linhas = *mascaras;
        r.push_back(std::move(b));
    }
    return r;
}

} // namespace sorvelo::tabelas
