// The count and the cost of a combination, and the generator that fills
// VetRes with all combinations of the chosen numbers, with the progress bar
// that it drives. The prize statistics of the same module are in
// Estatistica.h.
#pragma once

#include "../core/Estado.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace sorvelo {

// The factorial in double precision, the factors taken from the highest
// down; a negative x is not refused (Fatorial(-3) is 12).
double Fatorial(double x);
// n!/(k!(n-k)!) in double precision, not rounded: 50 over 6 gives
// 15890699.999999994.
double RetQuantCombinacoes(Int16 n, Int16 k);
// The count rounded into TotalApostas: nearest whole number, halves to
// even; above the 32-bit range it is the overflow failure.
Int32 ArredondaApostas(double quant);
// The count as it is shown: " 210".
QString TextoQuantApostas(Int32 total);
// The cost in the Brazilian form: 210 at 4,50 gives "945,00".
QString TextoValorApostas(Int32 total, double valorAposta);

// The progress bar of the dialog "Combinações", as a value that the dialog
// shows. A value outside Min..Max is refused and the bar keeps its value.
struct BarraProgresso {
    int Min = 0;
    float Max = 100;
    int32_t Value = 0;
};

// The module-level state of the generator and of the prize statistics: it
// lives as long as the program (ContProgresso goes on from run to run).
struct Module2 {
    Vetor<Int16> VetPos{0, 100};
    Vetor<Int16> VetMax{0, 100};
    Int32 UltIndice, UltPos, LinhaRes;
    std::vector<uint8_t> VetContado; // 0..total
    Vetor<Int16> VetAcerto{0, 6};
    Vetor<Int16> VetSubBase{0, 10};
    static constexpr int UltLinhaSub = 3000, UltColunaSub = 10;
    std::vector<Int16> TabSub = std::vector<Int16>(size_t(UltLinhaSub + 1) * (UltColunaSub + 1));
    Int32 QuantSub;
    Int16 DezPorCartao;
    Vetor<Int16> QuantTernos{0, 2};
    Vetor<Int16> QuantQuadras{0, 2};
    Vetor<Int16> QuantQuinas{0, 1};
    Int16 QuantSenas;

    Int16 PeriodoProgresso;
    Int32 ValorProgresso;
    Int16 ContProgresso;
    BarraProgresso Progresso;
    // Told of every change of the bar (the dialog repaints it).
    std::function<void(const BarraProgresso&)> aoMudarProgresso;

    // The value of "Auto-completar" at the start of the run (0 or 1).
    Int16 AutoCompletar;

    // Set by the cancel of the dialog that runs the generator: the generator
    // and the prize statistics stop at their next yield. Timer1 never clears
    // it; the dialog's start clears it.
    bool Interrompido = false;

    // The memory that a run may plan for, in bytes: a combination whose rows
    // would need more, in VetRes and later in the bank, fails as an
    // allocation does. Zero or less: no limit but the allocator's. Starts at
    // three quarters of the machine's memory.
    int64_t limiteMemoria;

    Module2();

    Int16& Sub(int64_t linha, int64_t coluna);
    uint8_t& Contado(int64_t linha);
};

Module2& module2(Programa& p);

// The bytes that one row of a combination of k numbers takes, from VetRes
// to the bank (the estimate against limiteMemoria).
int64_t BytesPorLinha(int k);

// The message of a failed generation.
QString MensagemMemoriaInsuficiente();

// True when all rows were made; false after a failure (with the message) or
// when the run was interrupted (without one).
bool CombinaVetor(Programa& p, Int16 n, Int16 k, Int32 total);
int GravaCombinacao(Programa& p);
bool PosicaoExcluida(Programa& p, Int32 idx);
void IniciaProgresso(Programa& p, Int32 total);
void AvancaProgresso(Programa& p);

} // namespace sorvelo
