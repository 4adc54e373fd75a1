#include "relatorios/JogoAJogo.h"

#include "core/BancoApostas.h"

namespace sorvelo {

JogoAJogo::JogoAJogo(Nucleo& p) : p_(p) {
    if (p_.e.QuantBan > 0) {
        ApostaAtual = 0;
        mostraLinha();
    }
}

void JogoAJogo::mostraLinha() {
    TxtSeq = formata(int64_t((ApostaAtual + 1).valor()), 6);
    // The bet up to its "#", however many columns (no limit of 100).
    TxtJogo = RetAposta(p_, ApostaAtual);
}

void JogoAJogo::BtnDescer() {
    if (ApostaAtual < p_.e.QuantBan - 1) ApostaAtual += 1;
    mostraLinha();
}

void JogoAJogo::BtnSubir() {
    if (ApostaAtual > 0) ApostaAtual -= 1;
    mostraLinha();
}

} // namespace sorvelo
