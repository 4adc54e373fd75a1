// The count and the cost of a combination, and the generator that fills
// VetRes with all combinations of the chosen numbers, with the progress bar
// that it drives. The prize statistics of the same module are in
// Estatistica.h.
#pragma once

#include "base/Aviso.h"
#include "core/Estado.h"

#include <cstdint>
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
    Aviso<const BarraProgresso&> aoMudarProgresso;

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

// The bytes that one row of a combination of k numbers takes, from VetRes
// to the bank (the estimate against limiteMemoria).
int64_t BytesPorLinha(int k);

// The message of a failed generation.
QString MensagemMemoriaInsuficiente();

// The walk over the combinations of k out of n, shared by the generator
// and the prize statistics. It walks the positions left out of each
// combination (VetPos, from 0 to VetMax, the last one fastest); `grava`
// writes the combination that the positions leave and returns 1 when it
// was the last. A last one met while a position carries ends the walk
// (FimNoTransporte::Termina) or only the carry, the tail being reset and
// written again (FimNoTransporte::Continua).
enum class FimNoTransporte { Termina, Continua };
// UltPos and the positions' start and maxima for k out of n.
void IniciaPosicoes(Module2& m, Int16 n, Int16 k);
template <typename Grava> void PercorreCombinacoes(Module2& m, FimNoTransporte fim, Grava grava) {
    for (;;) {
        if (grava() == 1) return;
        const int64_t ult = m.UltPos.valor();
        if (m.VetPos(ult) < m.VetMax(ult)) {
            m.VetPos(ult) += 1;
            continue;
        }
        // Carry: a position that reaches its maximum here is a combination
        // as it stands, all positions to its right being at theirs already.
        Int32 q = m.UltPos;
        for (;;) {
            q -= 1;
            if (q < 0) break;
            m.VetPos(q.valor()) += 1;
            if (m.VetPos(q.valor()) < m.VetMax(q.valor())) break;
            if (grava() == 1) {
                if (fim == FimNoTransporte::Termina) return;
                break;
            }
        }
        for (Int32 j = q + 1; j <= m.UltPos; ++j)
            m.VetPos(j.valor()) = m.VetPos(q.valor()) + (j - q).valor();
    }
}

// True when all rows were made; false after a failure (with the message) or
// when the run was interrupted (without one).
bool CombinaVetor(Nucleo& p, Module2& m, Int16 n, Int16 k, Int32 total);
int GravaCombinacao(Nucleo& p, Module2& m);
bool PosicaoExcluida(Nucleo& p, Module2& m, Int32 idx);
void IniciaProgresso(Nucleo& p, Module2& m, Int32 total);
void AvancaProgresso(Nucleo& p, Module2& m);

} // namespace sorvelo
