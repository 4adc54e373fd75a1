#include "core/Module1.h"

#include "base/Semantica.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace sorvelo {

QString apara(const QString& s) {
    qsizetype ini = 0, fim = s.size();
    while (ini < fim && s[ini] == u' ')
        ++ini;
    while (fim > ini && s[fim - 1] == u' ')
        --fim;
    return s.mid(ini, fim - ini);
}

namespace {
// Mid$(s, i, 1) with 1-based i: i below 1 is failure 5, past the end "".
QChar caractere(const QString& s, int i) {
    if (i < 1) throw FalhaExecucao(erro::ChamadaInvalida);
    return i <= s.size() ? s[i - 1] : QChar();
}
void substitui(QString& s, int i, QChar c) {
    if (i < 1 || i > s.size()) throw FalhaExecucao(erro::ChamadaInvalida);
    s[i - 1] = c;
}
} // namespace

QString FormataNumero(QString& Texto) {
    QString Sinal;
    try {
        QString M = QStringLiteral("000.000.000.000,000000");
        const int virgula = int(M.indexOf(u',')) + 1; // 16
        if (!Texto.isEmpty() && (Texto[0] == u'+' || Texto[0] == u'-')) {
            Sinal = Texto.left(1);
            Texto[0] = u' ';
        }
        Texto = apara(Texto);
        Int16 i = Int16(int16_t(virgula - 1));
        const int p = int(Texto.indexOf(u'.')) + 1;
        auto inteiros = [&](int j) {
            while (j > 0) {
                if (caractere(M, i.valor()) == u'0') {
                    substitui(M, i.valor(), caractere(Texto, j));
                    --j;
                }
                --i;
            }
        };
        if (p > 0) {
            inteiros(p - 1);
            i = Int16(int16_t(virgula + 1));
            int j = p + 1;
            while (j <= Texto.size()) {
                if (caractere(M, i.valor()) == u'0') {
                    substitui(M, i.valor(), caractere(Texto, j));
                    ++j;
                }
                ++i;
            }
        } else {
            inteiros(int(Texto.size()));
        }
        int k = 1;
        while (k < virgula - 1) {
            const QChar c = caractere(M, k);
            if (c != u'0' && c != u'.') break;
            substitui(M, k, u' ');
            ++k;
        }
        for (k = int(M.size()); k >= virgula + 3; --k) {
            const QChar c = caractere(M, k);
            if (c != u'0') {
                if (c == u',') substitui(M, k, u' ');
                break;
            }
            substitui(M, k, u' ');
        }
        const QString r = apara(M);
        return Sinal == QStringLiteral("-") ? Sinal + r : r;
    } catch (const FalhaExecucao&) {
        return Texto;
    }
}

QString TextoInteiro(double Valor) {
    return apara(textoNumero(std::trunc(Valor)));
}

QByteArray InverteBytes(QByteArray s, const std::function<void()>& cede) {
    constexpr qsizetype Passo = 100;
    char* dados = s.data();
    const qsizetype n = s.size();
    for (qsizetype inicio = 0; inicio < n; inicio += Passo) {
        const qsizetype fim = std::min(n, inicio + Passo);
        for (qsizetype i = inicio; i < fim; ++i)
            dados[i] = char(255 - uint8_t(dados[i]));
        if (fim - inicio == Passo && cede) cede();
    }
    return s;
}

void ApagaArquivo(const QString& Nome) {
    if (!Nome.isEmpty()) QFile::remove(Nome);
}

} // namespace sorvelo
