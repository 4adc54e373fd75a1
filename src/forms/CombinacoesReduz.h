// The dialog "Combinações reduzidas" of a reduced combination: the
// parameters and the run of the generator.
#pragma once

#include "combinacoes/CombinacaoReduzida.h"
#include "forms/Formulario.h"

class QProgressBar;

namespace sorvelo {

class JanelaCombinacoesReduz : public Formulario {
    Q_OBJECT
public:
    explicit JanelaCombinacoesReduz(Programa& p, QWidget* pai = nullptr);

private:
    CombinacoesReduz c_;
    QProgressBar* progresso_;
    Ligacao progressoMudou_;
};

} // namespace sorvelo
