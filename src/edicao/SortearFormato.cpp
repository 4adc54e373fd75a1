#include "edicao/SortearFormato.h"

#include "base/Semantica.h"

#include <cmath>

namespace sorvelo {

namespace {
bool digito(QChar c) {
    return c >= u'0' && c <= u'9';
}
bool branco(QChar c) {
    return c == u' ' || c == u'\t';
}
} // namespace

bool textoNumerico(const QString& texto) {
    int i = 0;
    const int n = int(texto.size());
    while (i < n && branco(texto[i]))
        ++i;
    if (i < n && (texto[i] == u'+' || texto[i] == u'-')) ++i;
    bool temDigito = false;
    while (i < n && digito(texto[i])) {
        ++i;
        temDigito = true;
    }
    if (i < n && texto[i] == u'.') {
        ++i;
        while (i < n && digito(texto[i])) {
            ++i;
            temDigito = true;
        }
    }
    if (!temDigito) return false;
    if (i < n && (texto[i] == u'e' || texto[i] == u'E' || texto[i] == u'd' || texto[i] == u'D')) {
        ++i;
        if (i < n && (texto[i] == u'+' || texto[i] == u'-')) ++i;
        bool temExpoente = false;
        while (i < n && digito(texto[i])) {
            ++i;
            temExpoente = true;
        }
        if (!temExpoente) return false;
    }
    while (i < n && branco(texto[i]))
        ++i;
    return i == n;
}

QString formataTexto(const QString& texto, int digitos) {
    if (!textoNumerico(texto)) return texto;
    const double v = valorNumerico(texto);
    // The mask rounds halves away from zero; a number that no integer
    // holds is written as it reads.
    const double r = std::round(v);
    if (!(std::fabs(r) < 9.0e18)) return texto;
    const int64_t inteiro = int64_t(r);
    return formata(inteiro == 0 ? 0 : inteiro, digitos);
}

} // namespace sorvelo
