// The dialog "Sortear apostas" as logic: it draws a quantity of bets with a
// count of numbers each, some numbers forced into every bet and some barred
// from all, and appends them to the bank as numbered coloured lines. The
// form binds the controls below and forwards its buttons and scroll bars.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

#include <QStringList>

#include <array>
#include <functional>
#include <optional>

namespace sorvelo {

// The main window's button "Sortear apostas": the log line, then the dialog
// (shown by the caller).
void BtnSortear(Nucleo& p);

class Sortear : public LogicaDialogo {
public:
    static constexpr int QuantCaixas = 10;
    // The dialog's load: TxtDez takes the main window's TxtDezAp.
    explicit Sortear(Nucleo& p);

    // Changes of the scroll bars: the value, formatted "00", into the box.
    void mudaScrQuant(int valor);
    void mudaScrDez(int valor);
    void mudaScrMaisOco(int valor);
    void mudaScrMenosOco(int valor);

    // "OK": the draw, then the close. "Cancelar": the close.
    void BtnOK();

    // The draw of all bets into VetBan and TxtBanco.
    void SorteiaApostas();
    // True when the number v may not be used in the bet being drawn.
    bool TestaSorteado(Int16 v);
    // This dialog's writer of one bet line, numbered QuantBan + 1.
    void InsereApostaBanco(const QString& Aposta);

    // Controls.
    QString TxtQuant = QStringLiteral("10");
    int ScrQuant = 10;
    QString TxtDez;
    int ScrDez = 6;
    std::array<QString, QuantCaixas> Garantir, Excluir;
    // The two options of most and least frequent numbers: shown, never read.
    bool CheckBox1 = false, CheckBox2 = false;
    QString TxtMaisOco = QStringLiteral("50"), TxtMenosOco = QStringLiteral("50");
    int ScrMaisOco = 50, ScrMenosOco = 50;
    // The hidden list that keeps the working bet sorted as text.
    QStringList LstSort;

    // Fields of the dialog.
    Int16 QuantSort, DezSort, PosSort;

private:
    void adicionaLista(const QString& item);
    void sorteiaAposta(Int16& i);
    void guardaAposta();
    // The numbers 0..NumFim that the draw may still take for this bet.
    int quantLivres();
    const std::array<double, QuantCaixas>& excluidos();

    // The values of the Excluir boxes, read once a draw (they cannot change
    // while it runs).
    std::optional<std::array<double, QuantCaixas>> excluidos_;
    // The pool left after the forced numbers: the same for every bet of a
    // draw, so it is counted once.
    std::optional<int> livres_;
};

} // namespace sorvelo
