// The dialog "InsereVetorReduz" as logic: the whole reduced combination runs
// when it first comes to the front, in three phases.
//
// 1. Combining: the subsets that the generator left in VetRes go into
//    VetBan, from the last row to the first (ascending order), each with "#".
// 2. Reducing: they are packed into bets of DezFinal numbers (Reducao.h);
//    the bets go back into VetBan.
// 3. Inserting: TxtBanco is rewritten with the head, one numbered coloured
//    line per bet (the fixed numbers joined to each bet here) and the end.
//
// "Cancelar" in phases one and two stops the run at its next yield and
// leaves the bank empty; in phase three it only closes the dialog, and the
// insertion runs on to its end.
#pragma once

#include "combinacoes/Module2.h"
#include "core/LogicaDialogo.h"

#include <QStringList>

#include <functional>

namespace sorvelo {

class InsereVetorReduz : public LogicaDialogo {
public:
    enum class Fase { Parado, Combinando, Reduzindo, Inserindo };

    // The dialog's load.
    explicit InsereVetorReduz(Nucleo& p);

    // Coming to the front: the whole run, once (EmReducao guards it).
    void ativa();
    void BtnCancelar() override;
    Fase fase() const { return fase_; }

    void IniciaReducao();
    void CombinaNumeros();
    void InsereVetBan(Int32 linha, Int16 k);
    void ReduzCombinacoes();
    void InsereJogosBanco();
    // The text of a bet of VetBan; with fixed numbers, the bet and the fixed
    // numbers sorted, written back into the row.
    QString RetAposta(Int32 linha);

    // Controls.
    QString LblCont, LblTotal;
    // Told when the count changes.
    std::function<void(const QString&)> aoContar;

    // Fields of the dialog.
    Int32 QuantFinal;
    Int16 DezUltimo;

protected:
    // The close, by whichever way: TxtBanco shown, VetRes shrunk.
    void fechando() override;

private:
    void conta(const QString& texto);
    // A yield; true when a cancel came during it.
    bool cedeECancelou();
    void esvaziaBanco();
    void adicionaLista(const QString& item);

    Fase fase_ = Fase::Parado;
    bool cancelado_ = false;
    QStringList LstSort; // sorted as text, as the hidden list box
};

} // namespace sorvelo
