// Every handler of a form runs through `protegido`: a run-time failure that
// escapes the logic reaches the top here, which shows it and ends the
// program. The depth of running handlers and of modal loops is counted, so
// that a driver of the program knows when it waits for the person.
#pragma once

#include "base/Semantica.h"
#include "platform/Atividade.h"

#include <exception>
#include <functional>
#include <new>
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

// Any other exception that reaches the top (a fault of the program): the
// critical box with its text, then the end, never a silent terminate.
void trataExcecao(const char* oque);

// Counts a handler at work for as long as it lives, whichever way it ends.
class EmManipulador {
public:
    EmManipulador() { ++Atividade::manipuladores; }
    ~EmManipulador() { --Atividade::manipuladores; }
    EmManipulador(const EmManipulador&) = delete;
    EmManipulador& operator=(const EmManipulador&) = delete;
};

// Runs a handler body, counting it and sending whatever it throws to the top.
template <typename F> void executaProtegido(F&& f) {
    try {
        EmManipulador contado;
        std::forward<F>(f)();
    } catch (const FalhaExecucao& falha) {
        trataFalha(falha);
    } catch (const std::bad_alloc&) {
        trataFalha(FalhaExecucao(erro::MemoriaInsuficiente));
    } catch (const std::exception& e) {
        trataExcecao(e.what());
    } catch (...) {
        trataExcecao("?");
    }
}

template <typename F> auto protegido(F f) {
    return [f = std::move(f)](auto&&...) mutable { executaProtegido(f); };
}

} // namespace sorvelo
