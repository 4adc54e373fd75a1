// Time of the random and the typed bets on a large bank: 32,767 random
// Mega-Sena bets of 15 numbers appended to a bank that already holds a
// million bets, then 1,000 typed bets moved from the pending list into it.
// Usage: sorteio_bench [bets already in the bank]  (default 1000000)
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Principal.h"
#include "edicao/Digitacao.h"
#include "edicao/Sortear.h"
#include "programa/Programa.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

using namespace sorvelo;

namespace {

using Cronometro = std::chrono::steady_clock;

double segundosDesde(Cronometro::time_point inicio) {
    return std::chrono::duration<double>(Cronometro::now() - inicio).count();
}

double segundosCpu() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

// A bank of `quant` six-number bets, written as the bank writers do.
void encheBanco(Programa& p, int64_t quant) {
    auto& e = p.e;
    e.VetBan.reserva(quant + 2, size_t(quant) * 7);
    std::array<uint8_t, 7> codigos{};
    for (int64_t n = 0; n < quant; ++n) {
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        QString aposta;
        for (int c = 0; c < 6; ++c) {
            const int numero = 1 + int((n * 7 + c * 11) % 60);
            codigos[size_t(c)] = MatrizTexto::codigoNumero(numero);
            aposta += MatrizTexto::textoDe(codigos[size_t(c)]);
            aposta += u' ';
        }
        codigos[6] = MatrizTexto::Fim;
        e.VetBan.defineCelulas(e.QuantBan.valor(), codigos.data(), 7);
        InsereApostaBanco(p, aposta, n + 1);
        e.QuantBan += 1;
    }
}

} // namespace

int main(int argc, char** argv) {
    const int64_t banco = argc > 1 ? std::atoll(argv[1]) : 1000000;
    ServicosDuplos d;
    Programa p{d.servicos(), d.dialogos};
    CarregaPrincipal(p);
    encheBanco(p, banco);

    // 32,767 random bets of 15 numbers.
    Sortear s(p);
    s.TxtQuant = QStringLiteral("32767");
    s.TxtDez = QStringLiteral("15");
    auto inicio = Cronometro::now();
    double cpu = segundosCpu();
    s.SorteiaApostas();
    const double tSorteio = segundosDesde(inicio);
    const double cpuSorteio = segundosCpu() - cpu;
    std::printf("banco: %lld apostas antes\n", static_cast<long long>(banco));
    std::printf("32767 apostas sorteadas de 15: %.3f s  (CPU %.3f s)  banco: %lld\n", tSorteio, cpuSorteio,
                static_cast<long long>(p.e.QuantBan.valor()));

    // 1,000 typed bets, typed through the window's logic, then moved.
    Digitacao dg(p);
    dg.ativa();
    for (int k = 0; k < 1000; ++k) {
        dg.recebeFoco(Digitacao::controle(Digitacao::Alvo::TxtQNum));
        dg.enter();
        for (int c = 0; c < 6; ++c) {
            dg.teclaTxtNum(c);
            dg.mudaTxtNum(c, QString::number(1 + (k + c * 9) % 60));
            dg.enter();
        }
        dg.clicaBtnInserir();
    }
    inicio = Cronometro::now();
    cpu = segundosCpu();
    dg.BtnInserirBancoClick();
    const double tDigitadas = segundosDesde(inicio);
    const double cpuDigitadas = segundosCpu() - cpu;
    std::printf("1000 apostas digitadas para o banco: %.4f s  (CPU %.4f s)  banco: %lld\n", tDigitadas,
                cpuDigitadas, static_cast<long long>(p.e.QuantBan.valor()));
    return 0;
}
