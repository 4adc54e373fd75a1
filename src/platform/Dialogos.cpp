#include "platform/Dialogos.h"

namespace sorvelo {

QString nomeDialogo(Dialogo d) {
    switch (d) {
#define SORVELO_DIALOGO_NOME(nome)                                                                           \
    case Dialogo::nome:                                                                                      \
        return QStringLiteral(#nome);
        SORVELO_DIALOGOS(SORVELO_DIALOGO_NOME)
#undef SORVELO_DIALOGO_NOME
    }
    return QString();
}

const std::array<Dialogo, QuantDialogos>& todosDialogos() {
    static const std::array<Dialogo, QuantDialogos> todos{{
#define SORVELO_DIALOGO_ITEM(nome) Dialogo::nome,
        SORVELO_DIALOGOS(SORVELO_DIALOGO_ITEM)
#undef SORVELO_DIALOGO_ITEM
    }};
    return todos;
}

} // namespace sorvelo
