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

#include "Module2.h"

#include <QStringList>

#include <functional>

namespace sorvelo {

class InsereVetorReduz {
public:
    enum class Fase { Parado, Combinando, Reduzindo, Inserindo };

    // The dialog's load.
    explicit InsereVetorReduz(Programa& p);

    // Coming to the front: the whole run, once (EmReducao guards it).
    void ativa();
    void BtnCancelar();
    // The close, by whichever way: TxtBanco shown, VetRes shrunk.
    void fecha();
    bool aberto() const { return aberto_; }
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
    QString LblMensagem = QStringLiteral("Inserindo jogos no banco de apostas...");
    QString LblCont, LblTotal;
    // Told when a label changes and when the dialog closes.
    std::function<void()> aoMudarMensagem;
    std::function<void(const QString&)> aoContar;
    std::function<void()> aoFechar;

    // Fields of the dialog.
    Int32 QuantFinal;
    Int16 DezUltimo;

private:
    void mensagem(const QString& texto);
    void conta(const QString& texto);
    // A yield; true when a cancel came during it.
    bool cedeECancelou();
    void esvaziaBanco();
    void adicionaLista(const QString& item);

    Programa& p_;
    Fase fase_ = Fase::Parado;
    bool aberto_ = true;
    bool cancelado_ = false;
    QStringList LstSort; // sorted as text, as the hidden list box
};

} // namespace sorvelo
