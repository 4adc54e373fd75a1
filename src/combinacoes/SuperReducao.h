// The dialog "Combinações super reduzidas" as logic: it reads the game's
// table from the program's folder, finds the block of the chosen count, the
// number to hit and the guarantee, maps its positions onto the marked numbers
// and rewrites the bank with the block's bets. The whole runs when the dialog
// comes to the front; the form shows LblMensagem and LblCont and forwards
// its cancel button.
#pragma once

#include "combinacoes/LeituraSuper.h"
#include "core/Estado.h"

#include <QByteArray>
#include <QStringList>

#include "core/LogicaDialogo.h"

#include <functional>

namespace sorvelo {

// "Cancelar" (and Esc or the frame): Cancelado and the close of the
// dialog; the run goes on to its end all the same.
class SuperReducao : public LogicaDialogo {
public:
    // The dialog's load. It takes from the reduced combination flow
    // QuantEscolhidos, QuantAcertar, DezAposta (the guarantee), DezFinal,
    // VetDezenas, VetFixos, DezEscolhidas and Historico.
    explicit SuperReducao(Nucleo& p);

    // Coming to the front: the whole run, once.
    void ativa();

    void ExecutaSuperReducao();
    // The block's rows (VetRes) mapped onto the marked numbers (VetDezenas)
    // as bets appended to VetBan.
    void MapeiaBloco();
    void InsereJogosSuper();
    // The text of row `linha` of VetBan; with fixed numbers the row is
    // rewritten sorted with them.
    QString RetAposta(Int32 linha);

    // Controls.
    static inline const QString Caption = QStringLiteral("Combinações super reduzidas");
    static inline const QString SemSuperReducoes =
        QStringLiteral("Não há super-reduções para os parâmetros informados!");
    QString LblCont, LblTotal;
    // Told when LblCont changes (every 13 bets).
    std::function<void(const QString&)> aoContar;

    // Fields of the dialog.
    QByteArray TextoSuper;
    Int32 PosSuper;
    Int16 QuantSuper;

private:
    void semSuperReducao();
    void adicionaLista(const QString& item);

    QStringList LstSort; // sorted as text, as the hidden list box
    bool iniciado_ = false;
};

} // namespace sorvelo
