#include "roteiro/Cenario.h"

#include <QStringList>

namespace sorvelo::roteiro {

namespace {
bool branco(QChar c) {
    return c == u' ' || c == u'\t';
}
} // namespace

LinhaCenario leLinha(const QString& texto, int numero) {
    LinhaCenario l;
    l.numero = numero;
    qsizetype i = 0;
    const qsizetype n = texto.size();
    while (i < n) {
        if (branco(texto[i])) {
            ++i;
            continue;
        }
        if (texto[i] == u'#') break;
        Palavra p;
        if (texto[i] == u'"') {
            p.aspas = true;
            ++i;
            bool fechado = false;
            while (i < n) {
                const QChar c = texto[i++];
                if (c == u'"') {
                    fechado = true;
                    break;
                }
                if (c != u'\\') {
                    p.texto += c;
                    continue;
                }
                const QChar e = i < n ? texto[i++] : QChar();
                if (e == u'"' || e == u'\\')
                    p.texto += e;
                else if (e == u'r')
                    p.texto += u'\r';
                else if (e == u'n')
                    p.texto += u'\n';
                else {
                    l.erro = QStringLiteral("escape desconhecido \\%1").arg(e);
                    return l;
                }
            }
            if (!fechado) {
                l.erro = QStringLiteral("texto sem as aspas do fim");
                return l;
            }
            if (i < n && !branco(texto[i]) && texto[i] != u'#') {
                l.erro = QStringLiteral("falta um branco depois do texto");
                return l;
            }
        } else {
            while (i < n && !branco(texto[i]))
                p.texto += texto[i++];
        }
        l.palavras.push_back(p);
    }
    return l;
}

std::vector<LinhaCenario> leCenario(const QString& conteudo) {
    std::vector<LinhaCenario> linhas;
    const QStringList partes = conteudo.split(u'\n');
    for (qsizetype k = 0; k < partes.size(); ++k) {
        QString t = partes[k];
        if (t.endsWith(u'\r')) t.chop(1);
        LinhaCenario l = leLinha(t, int(k + 1));
        if (!l.palavras.empty() || !l.erro.isEmpty()) linhas.push_back(std::move(l));
    }
    return linhas;
}

} // namespace sorvelo::roteiro
