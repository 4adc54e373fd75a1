// Helpers of the filter and elimination tests: a program of a given game
// with a bank written as the bank's writers write it.
#pragma once

#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Loteria.h"

#include <QStringList>

namespace sorvelo::teste {

struct BancoTeste : ProgramaTeste {
    explicit BancoTeste(const QString& jogo = QStringLiteral("Mega-Sena")) {
        if (jogo != QStringLiteral("Mega-Sena")) TrocaLoteria(p, jogo);
    }

    // One bet of these cells (blank-separated texts), its "#", and its line
    // at the end of TxtBanco numbered QuantBan + 1.
    void aposta(const QString& celulas) {
        auto& e = p.e;
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        const QStringList lista = celulas.split(u' ', Qt::SkipEmptyParts);
        QString texto;
        int c = 0;
        for (const QString& v : lista) {
            e.VetBan.define(c++, e.QuantBan.valor(), v);
            texto += v + u' ';
        }
        e.VetBan.define(c, e.QuantBan.valor(), QStringLiteral("#"));
        InsereApostaBanco(p, texto, (e.QuantBan + 1).valor());
        e.QuantBan += 1;
    }
    void apostas(const QStringList& lista) {
        for (const QString& a : lista)
            aposta(a);
    }

    // The bets of VetBan as text, without the trailing blank.
    QStringList banco() const {
        QStringList r;
        for (int i = 0; i < p.e.QuantBan.valor(); ++i)
            r << RetAposta(p, i).trimmed();
        return r;
    }
    QStringList linhasTexto() const { return p.tela.TxtBanco.texto().split(QStringLiteral("\r\n")); }
};

} // namespace sorvelo::teste
