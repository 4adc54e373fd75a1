// The window "Digitação de apostas" as logic: the user types the numbers of
// a bet into a row of cells, adds the bet to a list of pending bets, and
// moves the whole list into the bank in one step. The window is not modal:
// the bets go into whatever bank and game are current at that moment.
//
// The logic keeps the focus: the form tells it where the focus went (a
// click, the Tab key) and it runs the handlers of the control that got it;
// where the logic moves the focus itself it tells the form by aoMoverFoco.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

#include <QStringList>

#include <array>
#include <functional>

namespace sorvelo {

class Digitacao : public LogicaDialogo {
public:
    static constexpr int QuantCelulas = 60;

    // The controls that can hold the focus, in the tab order (the cells
    // TxtNum 0 to 59 stand between TxtQNum and BtnInserir).
    enum class Alvo {
        TxtQNum,
        TxtNum,
        BtnInserir,
        BtnSair,
        LstApostas,
        BtnExcluir,
        BtnInserirBanco,
        RTFRascunho
    };
    struct Foco {
        Alvo alvo = Alvo::TxtQNum;
        int celula = 0; // for TxtNum
        friend bool operator==(const Foco&, const Foco&) = default;
    };
    static Foco celula(int i) { return {Alvo::TxtNum, i}; }
    static Foco controle(Alvo a) { return {a, 0}; }

    struct CelulaNumero {
        QString Text;
        bool Enabled = false;
        Cor BackColor = rgb(128, 128, 128);
    };
    struct Botao {
        QString Caption;
        bool Enabled = true;
    };

    // The form's load: every control at its default.
    explicit Digitacao(Nucleo& p);

    // The window becomes active: the two captions, then AjustaCampos.
    void ativa();

    // Events of the controls.
    void mudaTxtQNum(const QString& texto);
    // A key typed into cell i (any key but Enter), then its new text.
    void teclaTxtNum(int i);
    void mudaTxtNum(int i, const QString& texto);
    // A key down in cell i; only the Left arrow (37) is treated.
    void teclaAbaixoTxtNum(int i, int codigo);
    // Enter: swallowed, a Tab in its place.
    void enter();
    // The focus arrived at a control (by the mouse or the Tab key).
    void recebeFoco(Foco f);
    // A click on an item of the list.
    void selecionaLista(int indice);
    // A click on BtnInserir by the mouse: the button first gets the focus
    // (and with it the test of the last cell); the click goes on only if
    // the button keeps the focus.
    void clicaBtnInserir();

    // The buttons' click handlers.
    void BtnInserirClick();
    void BtnExcluirClick();
    void BtnInserirBancoClick();
    void BtnSairClick();

    // Routines of the form.
    void AjustaCampos();
    void LimpaCampos();
    bool TestaVazio();
    bool TestaRepeticao(const QString& t, Int16 x);
    void InsereNoBanco();
    void InsereApostaBanco(const QString& Aposta);

    // Cell i of TxtNum: failure 340 for an index outside 0..59.
    CelulaNumero& TxtNum(int64_t i);
    const CelulaNumero& TxtNum(int64_t i) const;
    const std::array<CelulaNumero, QuantCelulas>& celulas() const { return celulas_; }

    // Told when the logic moves the focus (SetFocus), and when the window closes.
    std::function<void(Foco)> aoMoverFoco;

    // Controls.
    QString TxtQNum = QStringLiteral("6");
    QStringList LstApostas;
    int ListIndex = -1;
    Botao BtnInserir{QStringLiteral("Inserir"), true};
    Botao BtnExcluir{QString(), true};
    Botao BtnInserirBanco{QString(), false};
    Botao BtnSair{QStringLiteral("Sair"), true};
    QString RTFRascunho;
    Foco foco;

    // Fields of the form.
    Int16 UltimoCampo;
    Int16 SemTeste;

private:
    // The value of TxtQNum, read anew each time it bounds a loop.
    double quantNumeros() const;
    bool habilitado(Foco f) const;
    // SetFocus: the focus moves and the control's handler runs.
    void vaiPara(Foco f);
    void testaFocoCelula(int p);
    void testaUltimaCelula();

    std::array<CelulaNumero, QuantCelulas> celulas_;
};

} // namespace sorvelo
