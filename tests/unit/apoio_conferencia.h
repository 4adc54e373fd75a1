// A program started as the main window's load starts it, with scripted
// services, and small helpers to mark a result and fill the bank.
#pragma once

#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "platform/Duplos.h"

#include <QStringList>

#include <initializer_list>
#include <ostream>

namespace sorvelo::teste {

struct Ambiente {
    ServicosDuplos d;
    Programa p;

    explicit Ambiente(const QString& jogo = QStringLiteral("Mega-Sena")) {
        p.s = d.servicos();
        CarregaPrincipal(p);
        TrocaLoteria(p, jogo);
        d.caixa.limpa();
    }

    // The cell that shows the number n in the game in hand.
    int celula(int n) const { return n - p.e.NumIni.valor(); }

    // Clicks the cells of the numbers, blue or (fixar) red.
    void marca(std::initializer_list<int> numeros, bool fixar = false) {
        p.tela.ChkFixar.Value = fixar;
        for (int n : numeros)
            ClicaNumero(p, int16_t(celula(n)));
        p.tela.ChkFixar.Value = false;
    }

    // A bank row from texts, "#" added behind, as the bank's writers grow it.
    void aposta(const QStringList& celulas, bool comFim = true) {
        auto& e = p.e;
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        int c = 0;
        for (const QString& t : celulas)
            e.VetBan.define(c++, e.QuantBan.valor(), t);
        if (comFim) e.VetBan.define(c, e.QuantBan.valor(), QStringLiteral("#"));
        e.QuantBan += 1;
    }
    void aposta(std::initializer_list<int> numeros) {
        QStringList l;
        for (int n : numeros)
            l << formata00(n);
        aposta(l);
    }
};

} // namespace sorvelo::teste

// Readable QStrings in the failures of the tests.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
QT_END_NAMESPACE
