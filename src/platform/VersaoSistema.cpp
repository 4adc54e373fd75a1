#include "platform/VersaoSistema.h"

namespace sorvelo {

RespostaVersao versaoDoSistema() {
    // This program runs on desktops with no such version query: it fails.
    return {};
}

} // namespace sorvelo
