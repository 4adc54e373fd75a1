// The program fixture of every test: a Programa made with the scripted
// doubles of the services and of the dialogs, started as the main window's
// load starts it (and, given a game, switched to it), with small helpers to
// mark numbers and fill the bank.
#pragma once

#include "apoio/Duplos.h"
#include "apoio/Falha.h"
#include "apoio/ImprimeQt.h"
#include "core/ArquivoApostas.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "programa/Programa.h"

#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

#include <initializer_list>

namespace sorvelo::teste {

// The log lines begin with the fixed clock's date and time.
inline const QString Agora = QStringLiteral("22/11/2026 14:05:09");

inline QString linhaHistoricoLimpou() {
    return Agora + QStringLiteral(": Limpou banco de apostas\r\n");
}

struct ProgramaTeste {
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};

    // The load only: Mega-Sena, as the program starts.
    ProgramaTeste() { CarregaPrincipal(p); }
    // The load, then the game chosen as the menu chooses it.
    explicit ProgramaTeste(const QString& jogo) : ProgramaTeste() {
        TrocaLoteria(p, jogo);
        d.caixa.limpa();
    }

    // The cell that shows the number n in the game in hand.
    int celula(int n) const { return n - p.e.NumIni.valor(); }
    // Clicks the cells of the numbers, blue or (fixar) red.
    void marca(std::initializer_list<int> numeros, bool fixar = false) {
        p.tela.ChkFixar.Value = fixar;
        for (int n : numeros)
            ClicaNumero(p, Int16::de(int64_t(celula(n))));
        p.tela.ChkFixar.Value = false;
    }
    void fixa(std::initializer_list<int> numeros) { marca(numeros, true); }
    void marcaFaixa(int de, int ate) {
        for (int n = de; n <= ate; ++n)
            ClicaNumero(p, Int16::de(int64_t(celula(n))));
    }
    void dezenasPorAposta(int k) { p.tela.TxtDezAp.Text = formata00(k); }

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

    // The lines of the bank's text (CR LF ends a line).
    QStringList linhasBanco() const { return p.tela.TxtBanco.texto().split(QStringLiteral("\r\n")); }
    // The bet lines only ("00001)   ...").
    QStringList apostasBanco() const {
        QStringList r;
        for (const QString& l : linhasBanco())
            if (l.size() >= 6 && l[5] == u')') r << l;
        return r;
    }
    // Row r of VetBan as text.
    QString linhaVetBan(int r) const { return RetAposta(p, Int32::de(int64_t(r))); }
};

// The save routine seen from outside: the file dialog will answer a path in
// a folder of the test's own; the file is there once the program saved.
class SalvamentoVigiado {
public:
    explicit SalvamentoVigiado(ProgramaTeste& t) : caminho_(pasta_.filePath(QStringLiteral("salvo.Apo"))) {
        t.d.dialogo.enfileira(caminho_);
    }
    // 1 once the file was written, 0 before.
    int vezes() const { return QFileInfo::exists(caminho_) ? 1 : 0; }
    // The bets of the file, read back by a program of its own.
    int apostasNoArquivo() const {
        ProgramaTeste outro;
        outro.d.dialogo.enfileira(caminho_);
        AbrirArquivo(outro.p);
        return int(outro.p.e.QuantBan.valor());
    }

private:
    QTemporaryDir pasta_;
    QString caminho_;
};

} // namespace sorvelo::teste
