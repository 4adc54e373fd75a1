// A program as the main window's load leaves it, with scripted services.
#pragma once

#include "core/Estado.h"
#include "core/Principal.h"
#include "core/Semantica.h"
#include "platform/Duplos.h"

#include <gtest/gtest.h>

namespace sorvelo::teste {

struct ProgramaTeste {
    ServicosDuplos d;
    Programa p;
    ProgramaTeste() {
        p.s = d.servicos();
        CarregaPrincipal(p);
    }
};

// Runs f and returns the number of the run-time failure it raised (0: none).
template <typename F> int falhaDe(F f) {
    try {
        f();
    } catch (const FalhaExecucao& falha) {
        return falha.numero();
    }
    return 0;
}

inline QString linhaHistoricoLimpou() {
    return QStringLiteral("22/11/2026 14:05:09: Limpou banco de apostas\r\n");
}

} // namespace sorvelo::teste
