// The number of the run-time failure that a piece of code raises.
#pragma once

#include "base/Semantica.h"

namespace sorvelo::teste {

// Runs f and returns the number of the run-time failure it raised (0: none).
template <typename F> int falhaDe(F f) {
    try {
        f();
    } catch (const FalhaExecucao& falha) {
        return falha.numero();
    }
    return 0;
}

} // namespace sorvelo::teste
