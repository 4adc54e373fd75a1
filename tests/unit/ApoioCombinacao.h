// Helpers of the combination tests: a program started as the main window's
// load starts it, with scripted services and a fixed clock, and dialogs run
// without widgets.
#pragma once

#include "combinacoes/Combinacao.h"
#include "combinacoes/Estatistica.h"
#include "combinacoes/InsereVetor.h"
#include "combinacoes/Module2.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "platform/Duplos.h"

#include <QStringList>

#include <functional>
#include <initializer_list>

namespace sorvelo::teste {

// The log lines begin with the fixed clock's date and time.
inline const QString Agora = QStringLiteral("22/11/2026 14:05:09");

struct Bancada {
    ServicosDuplos d;
    Programa p;

    explicit Bancada(const QString& jogo = QStringLiteral("Mega-Sena")) {
        p.s = d.servicos();
        CarregaPrincipal(p);
        if (jogo != QStringLiteral("Mega-Sena")) TrocaLoteria(p, jogo);
    }

    // Clicks the cells of these numbers (cell of number n: n - NumIni).
    void marca(std::initializer_list<int> numeros) {
        for (int n : numeros)
            ClicaNumero(p, Int16::de(int64_t(n - p.e.NumIni.valor())));
    }
    void fixa(std::initializer_list<int> numeros) {
        p.tela.ChkFixar.Value = true;
        marca(numeros);
        p.tela.ChkFixar.Value = false;
    }
    void marcaFaixa(int de, int ate) {
        for (int n = de; n <= ate; ++n)
            ClicaNumero(p, Int16::de(int64_t(n - p.e.NumIni.valor())));
    }
    void dezenasPorAposta(int k) { p.tela.TxtDezAp.Text = formata00(k); }

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

// What a scripted user does in the dialogs.
struct Roteiro {
    bool iniciar = true;        // press "Iniciar combinação" (else "Cancelar")
    bool estatistica = false;   // click "Fazer estatística de acertos" first
    bool autoCompletar = false; // click "Auto-completar" first
    // Called with the dialogs while they are up (for cancels inside yields).
    Combinacoes* combinacoes = nullptr;
    InsereVetor* insere = nullptr;
    int vezesCombinacoes = 0, vezesInsere = 0;
    bool caretNoFim = false;
    QString lblTotAp, lblValAp;
    bool chkEstHabilitado = false, chkEstVisivel = false, chkAutoVisivel = false;
};

inline JanelasCombinacao janelasRoteirizadas(Roteiro& r) {
    JanelasCombinacao j;
    j.mostraCombinacoes = [&r](Programa& p) {
        ++r.vezesCombinacoes;
        Combinacoes dlg(p);
        r.lblTotAp = dlg.LblTotAp;
        r.lblValAp = dlg.LblValAp;
        r.chkEstHabilitado = dlg.ChkEst.Enabled;
        r.chkEstVisivel = dlg.ChkEstVisible;
        r.chkAutoVisivel = dlg.ChkAutoVisible;
        r.combinacoes = &dlg;
        if (r.estatistica) dlg.clicaEstatistica();
        if (r.autoCompletar) dlg.clicaAutoCompletar();
        if (r.iniciar)
            dlg.BtnIniciar();
        else
            dlg.BtnCancelar();
        r.combinacoes = nullptr;
    };
    j.mostraInsereVetor = [&r](Programa& p) {
        ++r.vezesInsere;
        InsereVetor dlg(p);
        r.insere = &dlg;
        dlg.ativa();
        r.insere = nullptr;
    };
    j.caretNoFim = [&r](Programa&) { r.caretNoFim = true; };
    return j;
}

} // namespace sorvelo::teste
