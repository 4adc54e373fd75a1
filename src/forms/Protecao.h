// Every handler of a form runs through `protegido`: a run-time failure that
// escapes the logic reaches the top here, which shows it and ends the
// program. The depth of running handlers and of modal loops is counted, so
// that a driver of the program knows when it waits for the person.
#pragma once

#include "core/Semantica.h"
#include "platform/Atividade.h"

#include <functional>
#include <utility>

namespace sorvelo {

// What the top of the program does with a failure. The program's own shows
// the critical box "Erro em tempo de execução 'N':" and ends the process;
// tests and the scenario runner install theirs.
using TratadorFalha = std::function<void(const FalhaExecucao&)>;
void defineTratadorFalha(TratadorFalha t);
void trataFalha(const FalhaExecucao& f);
// The program's own handler.
void tratadorPadrao(const FalhaExecucao& f);

// Runs a handler body, counting it and sending a failure to the top.
template <typename F> void executaProtegido(F&& f) {
    ++Atividade::manipuladores;
    try {
        std::forward<F>(f)();
    } catch (const FalhaExecucao& falha) {
        --Atividade::manipuladores;
        trataFalha(falha);
        return;
    } catch (const std::bad_alloc&) {
        --Atividade::manipuladores;
        trataFalha(FalhaExecucao(erro::MemoriaInsuficiente));
        return;
    }
    --Atividade::manipuladores;
}

template <typename F> auto protegido(F f) {
    return [f = std::move(f)](auto&&...) mutable { executaProtegido(f); };
}

} // namespace sorvelo
