// The one way the logic asks for a dialog: Dialogos::mostra with the
// dialog's name. The forms implement it with the real windows; the tests
// with a scripted double (tests/apoio/Dialogos.h). A modal dialog returns
// when it has closed; a window that is not modal returns once it stands
// (or, already open, once it is brought back to the front).
//
// A new dialog is one line in the list below; its `mostraX()` comes with it.
#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace sorvelo {

#define SORVELO_DIALOGOS(X)                                                                                  \
    X(Combinacoes)                                                                                           \
    X(InsereVetor)                                                                                           \
    X(ConfApostas)                                                                                           \
    X(Filtrar)                                                                                               \
    X(Eliminar)                                                                                              \
    X(Sortear)                                                                                               \
    X(SortComb)                                                                                              \
    X(Digitacao)                                                                                             \
    X(EntraTexto)                                                                                            \
    X(Estatisticas)                                                                                          \
    X(RelBanco)                                                                                              \
    X(CombinacoesReduz)                                                                                      \
    X(InsereVetorReduz)                                                                                      \
    X(CombSuperReduz)                                                                                        \
    X(JogoAJogo)                                                                                             \
    X(Help)                                                                                                  \
    X(Topicos)                                                                                               \
    X(Sobre)                                                                                                 \
    X(VerificaGarantia)                                                                                      \
    X(Importar)

enum class Dialogo {
#define SORVELO_DIALOGO_ENUM(nome) nome,
    SORVELO_DIALOGOS(SORVELO_DIALOGO_ENUM)
#undef SORVELO_DIALOGO_ENUM
};

#define SORVELO_DIALOGO_CONTA(nome) +1
inline constexpr size_t QuantDialogos = 0 SORVELO_DIALOGOS(SORVELO_DIALOGO_CONTA);
#undef SORVELO_DIALOGO_CONTA

// The form's name ("Combinacoes"), as its window's objectName.
QString nomeDialogo(Dialogo d);
// Every dialog, in the order of the list.
const std::array<Dialogo, QuantDialogos>& todosDialogos();

class Dialogos {
public:
    virtual ~Dialogos() = default;
    virtual void mostra(Dialogo d) = 0;

#define SORVELO_DIALOGO_MOSTRA(nome)                                                                         \
    void mostra##nome() {                                                                                    \
        mostra(Dialogo::nome);                                                                               \
    }
    SORVELO_DIALOGOS(SORVELO_DIALOGO_MOSTRA)
#undef SORVELO_DIALOGO_MOSTRA
};

} // namespace sorvelo
