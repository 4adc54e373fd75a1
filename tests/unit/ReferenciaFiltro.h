// The filter's rule written as plainly as it reads, cell by cell on texts,
// with the identical-bets test comparing each bet with every other one. The
// tests compare the program's filter with it; the benchmark times it.
#pragma once

#include "base/MatrizTexto.h"
#include "base/Semantica.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace sorvelo::teste {

struct ReferenciaFiltro {
    // Ticked boxes: sequence, row, column, empty rows, empty columns, even,
    // odd, identical. Limits as typed, for the first seven.
    std::array<bool, 8> marcadas{};
    std::array<QString, 7> limites{"03", "03", "03", "03", "03", "03", "03"};
    int numLinhas = 6;

    // Results of a run.
    std::vector<std::vector<QString>> aux; // the private copy, 82 cells a row
    QStringList sobreviventes;             // kept bets, as text
    int falha = 0;                         // run-time failure that ended the run, 0 for none

    static int linhasDoJogo(const QString& nomeLoteria) {
        if (nomeLoteria == QStringLiteral("MEGA-SENA")) return 6;
        if (nomeLoteria == QStringLiteral("DUPLA SENA")) return 5;
        if (nomeLoteria == QStringLiteral("QUINA")) return 8;
        if (nomeLoteria == QStringLiteral("LOTOMANIA")) return 10;
        return 0;
    }

    void executa(const MatrizTexto& vetBan, int64_t quantBan) {
        try {
            aux.assign(size_t(quantBan), std::vector<QString>(82));
            for (int64_t r = 0; r < quantBan; ++r) {
                for (int c = 0;; ++c) {
                    const QString v = vetBan.valor(c, r);
                    aux[size_t(r)][size_t(c)] = v;
                    if (v == QStringLiteral("#")) break;
                }
            }
            for (int64_t r = 0; r < quantBan; ++r)
                if (filtro(size_t(r))) sobreviventes << texto(size_t(r));
        } catch (const FalhaExecucao& f) {
            falha = f.numero();
        }
    }

private:
    int16_t limite(int i) const { return paraInt16(valorNumerico(limites[size_t(i)])); }
    QString celula(size_t linha, int c) const {
        if (c < 0 || c > 81) foraDoIntervalo();
        return aux[linha][size_t(c)];
    }
    int16_t& contador(int i) {
        if (i < 0 || i > 10) foraDoIntervalo();
        return cont16[size_t(i)];
    }
    int numero(size_t linha, int c) const { return paraInt16(valorNumerico(celula(linha, c))); }
    static int linhaDe(int n) {
        if (n % 10 != 0) return n / 10;
        return n / 10 - 1;
    }
    static int colunaDe(int n) {
        if (n < 10) return n - 1;
        if (n % 10 == 0) return 9;
        return n % 10 - 1;
    }
    QString texto(size_t linha) const {
        QString s;
        for (int c = 0; celula(linha, c) != QStringLiteral("#"); ++c)
            s += celula(linha, c) + u' ';
        return s;
    }
    void contaLinhas(size_t l) {
        for (int i = 0; celula(l, i) != QStringLiteral("#"); ++i)
            ++contador(linhaDe(numero(l, i)));
    }
    void contaColunas(size_t l) {
        for (int i = 0; celula(l, i) != QStringLiteral("#"); ++i)
            ++contador(colunaDe(numero(l, i)));
    }

    bool filtro(size_t l) {
        for (int i = 0; i <= 9; ++i)
            contador(i) = 0;
        if (marcadas[0]) {
            int r = 0;
            for (int i = 0;; ++i) {
                if (celula(l, i) == QStringLiteral("#")) {
                    if (r > limite(0)) return false;
                    break;
                }
                ++r;
                const QString seguinte = formata00(int64_t(paraInt32(valorNumerico(celula(l, i)) + 1)));
                if (seguinte != celula(l, i + 1) && r < limite(0)) r = 0;
            }
        }
        if (marcadas[1]) {
            contaLinhas(l);
            for (int r = 0; r < numLinhas; ++r)
                if (contador(r) >= limite(1)) return false;
        }
        if (marcadas[2]) {
            contaColunas(l);
            for (int c = 0; c <= 9; ++c)
                if (contador(c) >= limite(2)) return false;
        }
        if (marcadas[3]) {
            contaLinhas(l);
            int vazias = 0;
            for (int r = 0; r < numLinhas; ++r)
                if (contador(r) == 0) ++vazias;
            if (vazias >= limite(3)) return false;
        }
        if (marcadas[4]) {
            contaColunas(l);
            int vazias = 0;
            for (int c = 0; c <= 9; ++c)
                if (contador(c) == 0) ++vazias;
            if (vazias >= limite(4)) return false;
        }
        if (marcadas[5] || marcadas[6]) {
            int pares = 0, impares = 0;
            for (int i = 0; celula(l, i) != QStringLiteral("#"); ++i) {
                if (numero(l, i) % 2 == 0)
                    ++pares;
                else
                    ++impares;
            }
            if (marcadas[5] && pares >= limite(5)) return false;
            if (marcadas[6] && impares >= limite(6)) return false;
        }
        if (marcadas[7]) {
            for (size_t k = 0; k < aux.size(); ++k) {
                if (k == l) continue;
                bool iguais = true;
                for (int i = 0; celula(l, i) != QStringLiteral("#"); ++i) {
                    if (celula(l, i) != celula(k, i)) {
                        iguais = false;
                        break;
                    }
                }
                if (iguais) {
                    aux[l][0] = QStringLiteral("@");
                    return false;
                }
            }
        }
        return true;
    }

    std::array<int16_t, 11> cont16{};

public:
    // Cont as the run left it.
    int contFinal(int i) const { return cont16[size_t(i)]; }
};

} // namespace sorvelo::teste
