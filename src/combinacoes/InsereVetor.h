// The dialog "InsereVetor" as logic: it writes the rows that the generator
// left in VetRes into VetBan and, as numbered coloured lines, into
// TxtBanco, adding the fixed numbers or completing short bets at random.
// The form shows LblCont and LblTotal and forwards its cancel button; all
// the work runs when the dialog first comes to the front.
#pragma once

#include "combinacoes/Module2.h"
#include "core/LogicaDialogo.h"

#include <QStringList>

namespace sorvelo {

class InsereVetor : public LogicaDialogo {
public:
    // The dialog's load: the size of a full bet, the highest number, the
    // random numbers seeded from the clock.
    InsereVetor(Nucleo& p, Module2& m);

    // Coming to the front: the labels, then the whole run, once.
    void ativa();

    void InsereVetRes(Int16 k);
    // Writes the bet of a row of VetRes into VetBan at row QuantBan and
    // gives its text. Each failing step is skipped.
    QString RetAposta(Int32 linha, Int16 k);
    // The common case of RetAposta: when the row's first k cells are
    // numbers, writes them and the "#" into VetBan, gives their codes in
    // `codigos` (k + 1 of them) and is true. Otherwise writes nothing but
    // the new bound of VetBan, and RetApostaCelulas does the rest.
    bool ApostaDeNumeros(Int32 linha, Int16 k, uint8_t* codigos);
    QString RetApostaCelulas(Int32 linha, Int16 k, QString texto);
    bool ExisteNaLista(Int16 r) const;

    // Controls.
    const QString Label1 = QStringLiteral("Inserindo jogos no banco de apostas...");
    QString LblCont, LblTotal;
    // Told when the dialog comes to the front and its labels are set, before
    // the run, so that the form shows them during it.
    Aviso<> aoMostrarRotulos;
    // Told when LblCont changes (every 13 bets), before the yield.
    Aviso<const QString&> aoContar;

    // Fields of the dialog.
    Int16 TamanhoJogo;
    Int16 MaiorNumero;
    bool Iniciado = false;
    Int32 Cont;
    Int32 LinhaOrigem;

protected:
    // The close, by whichever way: TxtBanco shown, VetRes shrunk.
    void fechando() override;

private:
    void adicionaLista(const QString& item);
    QString apostaDaLista(Int16& i);

    Module2& m_;
    QStringList LstSort; // sorted as text, as the hidden list box
};

// The size of a full bet of the game: Mega-Sena 6, Quina 5, Lotomania 50...
Int16 TamanhoJogoDe(const QString& nomeLoteria);

} // namespace sorvelo
