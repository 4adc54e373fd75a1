// The whole program's state: the shared core (Estado, the main window's
// model, the services, the dialogs) and, beside it, the state of each
// tool's module as a plain member. It sits above every part of the logic:
// a part takes the Nucleo and, when it has one, its own module's state;
// the forms hold the Programa and hand each part what it takes.
#pragma once

#include "combinacoes/Module2.h"
#include "core/Estado.h"
#include "edicao/Importar.h"

namespace sorvelo {

struct Programa : Nucleo {
    Programa(const Servicos& servicos, Dialogos& dialogos) : Nucleo(servicos, dialogos) {}

    // The generator of combinations and its prize statistics: lives as
    // long as the program (ContProgresso goes on from run to run).
    Module2 module2;
    // The file chosen for an import, on its way to the dialog.
    ModuloImportar importar;
    // The coming modules' state goes here, one member each.
};

inline Module2& module2(Programa& p) {
    return p.module2;
}

} // namespace sorvelo
