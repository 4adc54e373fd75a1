// The dialog "Filtrar banco de apostas" as logic: its eight criteria with
// their limits, and the filter run that thins the bank. The run moves the
// bank into the private copy VetAux, empties VetBan, passes every bet through
// Filtro, appends the survivors to VetBan and only then rewrites TxtBanco,
// with the bet lines alone (the heads and blocks of the old text are lost).
// The form binds the controls below and forwards the clicks.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"
#include "edicao/ApostasIguais.h"

#include <array>
#include <functional>
#include <memory>

namespace sorvelo {

class Filtrar : public LogicaDialogo {
public:
    // The dialog's load: NumLinhas from the game, the four row and column
    // boxes disabled in Lotofácil, the remarks of LblObs.
    explicit Filtrar(Nucleo& p);
    ~Filtrar();

    // "OK": the whole run, then the close. "Cancelar": the close.
    void BtnOK();

    // A scroll bar moved: its box gets the value formatted "00". `linha` is
    // the criterion's row, 0 (sequence) to 6 (odd numbers).
    void mudaBarra(int linha, int valor);

    // The run and its steps.
    void ExecutaFiltro();
    bool Filtro();
    void LimpaContagem();
    void CopiaAposta();
    void DevolveAposta();
    QString RetAposta(Int32 Linha) const;
    void EscreveBanco();

    // Captions.
    static const QString Caption, CaptionFrame1, CaptionLabel8, Eliminadas, SoEliminadas;
    struct Criterio {
        const char* nomeChk;
        const char* nomeTxt; // nullptr for the identical bets
        const char* nomeScr;
        QString legenda;
        CaixaMarcar* chk;
        CampoTexto* txt;
        BarraRolagem* scr;
    };
    // The eight rows of the dialog, in order.
    std::array<Criterio, 8> criterios();

    // Controls.
    CaixaMarcar ChkSeq, ChkLin, ChkCol, ChkLinVaz, ChkColVaz, ChkPar, ChkImpar, ChkIgual;
    CampoTexto TxtSeq, TxtLin, TxtCol, TxtLinVaz, TxtColVaz, TxtPar, TxtImpar;
    BarraRolagem ScrSeq, ScrLin, ScrCol, ScrLinVaz, ScrColVaz, ScrPar, ScrImpar;
    QString LblContador, LblObs;
    // Told each time LblContador changes and is to be repainted at once (the
    // run gives the message loop no turn); `sempre` is false for the counts,
    // which the form may skip when it repainted a moment ago, and true for
    // the last caption.
    std::function<void(bool sempre)> aoRepintarContador;

    // Fields of the dialog.
    MatrizTexto VetAux;
    Int32 QuantAux, PosCopia, PosAtual;
    Int16 NumLinhas;
    // Cont(0..10), shared by the row and column tests.
    Int16 Cont(int64_t i) const;

private:
    // A limit as the criterion reads it: the numeric value of its text at
    // 16 bits, parsed once per distinct text; the overflow of an unreadable
    // value shows at the first bet that reads it.
    struct Limite {
        const CampoTexto* txt = nullptr;
        QString texto;
        bool lido = false, estouro = false;
        int16_t valor = 0;
        int16_t le();
    };
    void conta(int indice);
    int numero(int coluna, uint8_t codigo) const;
    bool passaSequencia(const uint8_t* cel, int m);
    bool passaLinhasColunas(const uint8_t* cel, int m);
    bool passaParImpar(const uint8_t* cel, int m);
    bool passaIguais();

    std::array<int16_t, 11> cont_{};
    Limite limSeq_, limLin_, limCol_, limLinVaz_, limColVaz_, limPar_, limImpar_;
    std::unique_ptr<ApostasIguais> iguais_;
};

// "Filtrar banco de apostas" of the main window: the log line
// ": Filtragem de apostas" (which stays when the dialog is cancelled), then
// the dialog, through p.dialogos.
void BtnFiltrar(Nucleo& p);

// The row and the column of a number on the card ten numbers wide:
// 01..10 are row 0, 01, 11, 21... column 0; 00 gives -1 for both.
int LinhaDoNumero(int n);
int ColunaDoNumero(int n);

// Copies a row of one bank array into another up to its "#" (included when
// `comFim`), a row with no "#" within the columns being failure 9.
void CopiaLinhaAte(const MatrizTexto& de, int64_t linhaDe, MatrizTexto& para, int64_t linhaPara, bool comFim);
// The text of a row: each cell and a blank, up to the "#".
QString TextoDaLinha(const MatrizTexto& vet, int64_t linha);

} // namespace sorvelo
