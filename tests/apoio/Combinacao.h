// The dialogs of a combination scripted for the logic's tests: a person
// who, in "Combinações", clicks the check boxes and presses a button, and
// lets "InsereVetor" run.
#pragma once

#include "apoio/ProgramaTeste.h"
#include "combinacoes/Combinacao.h"
#include "combinacoes/Estatistica.h"
#include "combinacoes/InsereVetor.h"

namespace sorvelo::teste {

// What a scripted user does in the dialogs, and what was seen there.
struct Roteiro {
    bool iniciar = true;        // press "Iniciar combinação" (else "Cancelar")
    bool estatistica = false;   // click "Fazer estatística de acertos" first
    bool autoCompletar = false; // click "Auto-completar" first
    // The dialogs while they are up (for cancels inside yields).
    Combinacoes* combinacoes = nullptr;
    InsereVetor* insere = nullptr;
    int vezesCombinacoes = 0, vezesInsere = 0;
    // Whether the bank's caret was put at the end (statistics in sight).
    struct CaretNoFim {
        const DocumentoRico* banco = nullptr;
        uint64_t antes = 0;
        explicit operator bool() const { return banco && banco->pedidosCaretNoFim() > antes; }
    } caretNoFim;
    QString lblTotAp, lblValAp;
    bool chkEstHabilitado = false, chkEstVisivel = false, chkAutoVisivel = false;
};

// Gives the program's dialogs "Combinacoes" and "InsereVetor" this script.
inline void roteiriza(ProgramaTeste& t, Roteiro& r) {
    Programa& p = t.p;
    r.caretNoFim = {&p.tela.TxtBanco, p.tela.TxtBanco.pedidosCaretNoFim()};
    t.d.dialogos.quando(Dialogo::Combinacoes, [&r, &p] {
        ++r.vezesCombinacoes;
        Combinacoes dlg(p, p.module2);
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
    });
    t.d.dialogos.quando(Dialogo::InsereVetor, [&r, &p] {
        ++r.vezesInsere;
        InsereVetor dlg(p, p.module2);
        r.insere = &dlg;
        dlg.ativa();
        r.insere = nullptr;
    });
}

} // namespace sorvelo::teste
