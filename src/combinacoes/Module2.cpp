#include "combinacoes/Module2.h"

#include "core/Module1.h"

#include <algorithm>
#include <bit>
#include <new>
#include <stdexcept>

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

namespace sorvelo {

double Fatorial(double x) {
    if (x == 0 || x == 1) return 1;
    double r = x;
    r = (x - 1) * r;
    for (;;) {
        x = x - 1;
        if (!(x > 1)) break;
        r = (x - 1) * r;
    }
    return r;
}

double RetQuantCombinacoes(Int16 n, Int16 k) {
    const double a = Fatorial(n.valor());
    const double b = Fatorial(k.valor());
    const double c = Fatorial((n - k).valor());
    return a / (c * b);
}

Int32 ArredondaApostas(double quant) {
    return Int32::de(quant);
}

QString TextoQuantApostas(Int32 total) {
    return textoNumero(int64_t(total.valor()));
}

QString TextoValorApostas(Int32 total, double valorAposta) {
    return FormataNumero(textoNumero(double(total.valor()) * valorAposta));
}

namespace {
int64_t memoriaDaMaquina() {
#if defined(_SC_PHYS_PAGES) && defined(_SC_PAGE_SIZE)
    const long paginas = sysconf(_SC_PHYS_PAGES);
    const long tamanho = sysconf(_SC_PAGE_SIZE);
    if (paginas > 0 && tamanho > 0) return int64_t(paginas) * int64_t(tamanho);
#endif
    return 0;
}
} // namespace

Module2::Module2() : limiteMemoria(memoriaDaMaquina() / 4 * 3) {}

Int16& Module2::Sub(int64_t linha, int64_t coluna) {
    if (linha < 0 || linha > UltLinhaSub || coluna < 0 || coluna > UltColunaSub) foraDoIntervalo();
    return TabSub[size_t(linha * (UltColunaSub + 1) + coluna)];
}

uint8_t& Module2::Contado(int64_t linha) {
    if (linha < 0 || linha >= int64_t(VetContado.size())) foraDoIntervalo();
    return VetContado[size_t(linha)];
}

int64_t BytesPorLinha(int k) {
    if (k < 0) k = 0;
    // VetRes and VetBan: a row index of 8 bytes and one byte a cell (and
    // the "#"); VetContado: one byte; the bank's text: one byte a number,
    // and a byte for its share of the segments.
    return (8 + k) + 1 + (8 + k + 1) + (k + 1);
}

QString MensagemMemoriaInsuficiente() {
    return QStringLiteral("A memória do computador é insuficiente para") + QChar(13) +
           QStringLiteral("essa quantidade de combinações!");
}

namespace {
void verificaMemoria(const Module2& m, Int32 total, Int16 k) {
    if (m.limiteMemoria <= 0) return;
    const int64_t linhas = int64_t(total.valor()) + 1;
    if (linhas > m.limiteMemoria / BytesPorLinha(k.valor())) throw FalhaExecucao(erro::MemoriaInsuficiente);
}

void preparaVetRes(Nucleo& p, Module2& m, Int16 k, Int32 total) {
    const int64_t linhas = int64_t(total.valor()) + 1;
    p.e.VetRes.redimensiona(81, total.valor());
    p.e.VetRes.reserva(linhas, size_t(linhas) * size_t(std::clamp<int>(k.valor(), 0, 82)));
    m.VetContado.assign(size_t(linhas), 0);
}
} // namespace

void IniciaPosicoes(Module2& m, Int16 n, Int16 k) {
    const Int32 ultimo = Int32(n.valor()) - 1;
    m.UltPos = ultimo - k.valor();
    for (Int32 i = 0; i <= m.UltPos; ++i) {
        m.VetPos(i.valor()) = Int16::de(int64_t(i.valor()));
        m.VetMax(i.valor()) = Int16::de(int64_t((ultimo - (m.UltPos - i)).valor()));
    }
}

bool CombinaVetor(Nucleo& p, Module2& m, Int16 n, Int16 k, Int32 total) {
    try {
        verificaMemoria(m, total, k);
        preparaVetRes(p, m, k, total);
        m.UltIndice = Int32(n.valor()) - 1;
        IniciaPosicoes(m, n, k);
        m.LinhaRes = 0;
        // An interrupted run stops after the row of the yield that saw it.
        bool interrompido = false;
        PercorreCombinacoes(m, FimNoTransporte::Termina, [&] {
            if (GravaCombinacao(p, m) == 1) return 1;
            if (!m.Interrompido) return 0;
            interrompido = true;
            return 1;
        });
        return !interrompido;
    } catch (const FalhaExecucao&) {
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    p.s.caixa->critico(MensagemMemoriaInsuficiente());
    return false;
}

int GravaCombinacao(Nucleo& p, Module2& m) {
    auto& e = p.e;
    const int64_t ultIndice = m.UltIndice.valor();
    const int64_t ultPos = m.UltPos.valor();
    // The bounds of the arrays read below, checked once for the row.
    if (ultIndice >= 0) e.VetNum(ultIndice);
    if (ultPos >= 0) m.VetPos(ultPos);
    const Int16* num = ultIndice >= 0 ? &e.VetNum(0) : nullptr;
    const Int16* pos = ultPos >= 0 ? &m.VetPos(0) : nullptr;
    const int64_t linha = m.LinhaRes.valor();
    uint8_t codigos[82] = {};
    int col = 0;
    bool simples = true;
    const auto toma = [&](int64_t idx) {
        if (col > 81) foraDoIntervalo();
        const int v = num[idx].valor();
        if (v >= 0 && v <= 99) {
            codigos[col] = MatrizTexto::codigoNumero(v);
        } else {
            codigos[col] = MatrizTexto::Vazio;
            simples = false;
        }
        ++col;
    };
    // The excluded positions ascend strictly, so that one walk along them
    // answers PosicaoExcluida for every index.
    const int64_t tomados = ultIndice - ultPos;
    if (ultPos >= 0 && tomados >= 0 && ultIndice < 128 && pos[0].valor() >= 0 &&
        pos[ultPos].valor() <= ultIndice) {
        // Up to 128 numbers: the excluded positions as bits, the indices
        // taken read from the bits left, in ascending order.
        uint64_t excluidas[2] = {0, 0};
        for (int64_t j = 0; j <= ultPos; ++j) {
            const int v = pos[j].valor();
            excluidas[v >> 6] |= uint64_t(1) << (v & 63);
        }
        for (int64_t w = 0; w < 2 && w * 64 <= ultIndice; ++w) {
            const int64_t bits = std::min<int64_t>(64, ultIndice + 1 - w * 64);
            uint64_t livres = ~excluidas[w] & (bits == 64 ? ~uint64_t(0) : (uint64_t(1) << bits) - 1);
            while (livres) {
                toma(w * 64 + std::countr_zero(livres));
                livres &= livres - 1;
            }
        }
    } else {
        int64_t j = 0;
        for (int64_t idx = 0; idx <= ultIndice; ++idx) {
            if (j <= ultPos && pos[j].valor() == idx) {
                ++j;
                continue;
            }
            toma(idx);
        }
    }
    e.VetRes.defineCelulas(linha, codigos, col);
    if (!simples) {
        // A number that two digits cannot hold is kept as its text.
        int c = 0;
        int64_t j = 0;
        for (int64_t idx = 0; idx <= ultIndice; ++idx) {
            if (j <= ultPos && pos[j].valor() == idx) {
                ++j;
                continue;
            }
            const int v = num[idx].valor();
            if (v < 0 || v > 99) e.VetRes.define(c, linha, formata00(v));
            ++c;
        }
    }
    m.Contado(linha) = 0;
    m.LinhaRes += 1;
    AvancaProgresso(p, m);
    return m.VetPos(0) >= m.VetMax(0) ? 1 : 0;
}

bool PosicaoExcluida(Nucleo&, Module2& m, Int32 idx) {
    for (Int32 i = 0; i <= m.UltPos; ++i)
        if (m.VetPos(i.valor()) == int64_t(idx.valor())) return true;
    return false;
}

namespace {
void mostraProgresso(Module2& m) {
    m.aoMudarProgresso(m.Progresso);
}
// The bar refuses a value outside its range; the routine goes on.
void defineValorBarra(Module2& m, int32_t valor) {
    if (valor < m.Progresso.Min || float(valor) > m.Progresso.Max) return;
    m.Progresso.Value = valor;
    mostraProgresso(m);
}
} // namespace

void IniciaProgresso(Nucleo&, Module2& m, Int32 total) {
    m.PeriodoProgresso = total >= 1000 ? 100 : 1;
    m.Progresso.Min = 0;
    const float maximo = float(double(total.valor()) / double(m.PeriodoProgresso.valor()) + 1);
    if (maximo > float(m.Progresso.Min)) m.Progresso.Max = maximo;
    m.Progresso.Value = 0;
    mostraProgresso(m);
    m.ValorProgresso = 0;
}

void AvancaProgresso(Nucleo& p, Module2& m) {
    p.s.cedencia->cede();
    // With no period set yet the test itself fails, and the failure goes on
    // into the statement that it guards.
    const int periodo = m.PeriodoProgresso.valor();
    if (periodo == 0 || m.ContProgresso.valor() % periodo == 0) {
        m.ValorProgresso += 1;
        defineValorBarra(m, m.ValorProgresso.valor());
    }
    m.ContProgresso += 1;
    if (m.ContProgresso == 1000) m.ContProgresso = 0;
}

} // namespace sorvelo
