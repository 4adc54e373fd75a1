// The packing rule of the reduced combination written plainly, as rows of
// 82 text cells compared as texts, every combination tested against every
// bet made so far. Slow and simple: the engine under test must give the same
// bets in the same order.
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace sorvelo::teste {

struct ForaDoIntervalo : std::runtime_error {
    ForaDoIntervalo() : std::runtime_error("subscrito fora do intervalo") {}
};

// A cell's text, of at most four characters, compared as texts compare.
struct Texto {
    std::array<char, 5> c{};
    Texto() = default;
    explicit Texto(const QString& s) {
        const QByteArray b = s.toLatin1();
        for (int i = 0; i < b.size() && i < 4; ++i)
            c[size_t(i)] = b[i];
    }
    QString texto() const { return QString::fromLatin1(c.data()); }
    friend bool operator==(const Texto& a, const Texto& b) {
        return std::strcmp(a.c.data(), b.c.data()) == 0;
    }
    friend bool operator>(const Texto& a, const Texto& b) { return std::strcmp(a.c.data(), b.c.data()) > 0; }
};

class ReducaoReferencia {
public:
    using Linha = std::array<Texto, 82>;

    static const Texto& fim() {
        static const Texto f(QStringLiteral("#"));
        return f;
    }

    // The combinations as VetBan holds them: cells, then "#".
    std::vector<Linha> vetBan;
    std::vector<Linha> vetRes;
    Texto faltante;
    int quantFinal = 0;
    int dezFinal = 0;

    void acrescenta(const QStringList& celulas, bool comFim = true) {
        Linha l;
        for (int i = 0; i < celulas.size() && i < 82; ++i)
            l[size_t(i)] = Texto(celulas[i]);
        if (comFim) cel(l, int(celulas.size())) = fim();
        vetBan.push_back(l);
    }

    void reduz() {
        vetRes.assign(vetBan.size() + 1, Linha{});
        quantFinal = 0;
        for (int c = 0; c < int(vetBan.size()); ++c)
            testaCombinacao(c);
        int dezUltimo = totalNum(quantFinal - 1);
        while (dezUltimo < dezFinal) {
            completaUltimoJogo(dezUltimo);
            ++dezUltimo;
        }
    }

    // The bets, each as its cells up to the "#".
    std::vector<QStringList> apostas() const {
        std::vector<QStringList> r;
        for (int i = 0; i < quantFinal; ++i) {
            QStringList a;
            for (const Texto& v : vetRes[size_t(i)]) {
                if (v == fim()) break;
                a << v.texto();
            }
            r.push_back(a);
        }
        return r;
    }

    static Texto& cel(Linha& l, int i) {
        if (i < 0 || i > 81) throw ForaDoIntervalo();
        return l[size_t(i)];
    }
    Linha& res(int r) {
        if (r < 0 || r >= int(vetRes.size())) throw ForaDoIntervalo();
        return vetRes[size_t(r)];
    }

    int totalNum(int r) {
        Linha& l = res(r);
        for (int i = 0;; ++i)
            if (cel(l, i) == fim()) return i;
    }

    void testaCombinacao(int c) {
        if (c == 0) {
            novoJogo(0);
            return;
        }
        for (int r = 0; r < quantFinal; ++r)
            if (testaJogoContido(r, c)) return;
        const int dezUltimo = totalNum(quantFinal - 1);
        if (dezUltimo >= dezFinal) {
            novoJogo(c);
            return;
        }
        insereDezena(dezUltimo);
    }

    bool testaJogoContido(int r, int c) {
        try {
            Linha& comb = vetBan[size_t(c)];
            Linha& aposta = res(r);
            for (int i = 0; cel(comb, i) != fim(); ++i) {
                const Texto x = cel(comb, i);
                bool achou = false;
                for (int j = 0; cel(aposta, j) != fim(); ++j)
                    if (cel(aposta, j) == x) {
                        achou = true;
                        break;
                    }
                if (!achou) {
                    faltante = x;
                    return false;
                }
            }
            return true;
        } catch (const ForaDoIntervalo&) {
            return false;
        }
    }

    void novoJogo(int c) {
        Linha& comb = vetBan[size_t(c)];
        Linha& dest = res(quantFinal);
        for (int i = 0;; ++i) {
            dest[size_t(i)] = cel(comb, i);
            if (comb[size_t(i)] == fim()) break;
        }
        ++quantFinal;
    }

    void insereDezena(int dezUltimo) {
        Linha& l = res(quantFinal - 1);
        int i = dezUltimo - 1;
        while (i > 0) {
            if (faltante > cel(l, i)) break;
            --i;
        }
        if (i != 0) {
            cel(l, dezUltimo + 2) = fim();
            for (int j = dezUltimo; j >= i + 1; --j)
                cel(l, j + 1) = cel(l, j);
            cel(l, i + 1) = faltante;
        } else {
            if (faltante > cel(l, 0)) i = 1;
            cel(l, dezUltimo + 2) = fim();
            for (int j = dezUltimo; j >= i; --j)
                cel(l, j + 1) = cel(l, j);
            cel(l, i) = faltante;
        }
    }

    void completaUltimoJogo(int dezUltimo) {
        try {
            Linha& ultima = res(quantFinal - 1);
            for (int i = 0; i <= dezFinal - 1; ++i) {
                bool achou = false;
                try {
                    const Texto x = cel(res(quantFinal - 2), i);
                    for (int j = 0; j <= dezFinal - 1 && !achou; ++j)
                        achou = cel(ultima, j) == x;
                } catch (const ForaDoIntervalo&) {
                    achou = true; // a failed test counts as found
                }
                if (!achou) {
                    faltante = res(quantFinal - 2)[size_t(i)];
                    insereDezena(dezUltimo);
                    return;
                }
            }
        } catch (const ForaDoIntervalo&) {
        }
    }
};

} // namespace sorvelo::teste
