// What the runner reads of the program: a control's text, state, runs of
// colour and place, and the shared variables by their names.
#pragma once

#include "programa/Programa.h"

#include <QString>

#include <functional>
#include <vector>

class QObject;
class QWidget;

namespace sorvelo::roteiro {

// The text of a control as a person reads it; false when it has none.
bool textoControle(const QObject* o, QString& texto);
// "visível habilitado", then "marcado" or "desmarcado" for a control that can be checked.
QString estadoControle(const QObject* o);
// The runs of a rich-text area: [r,g,b negrito] "texto" ...; of a grid cell its
// back and text colours: fundo r,g,b texto r,g,b; false for any other control.
bool coresControle(const QObject* o, QString& runs);
// Left, Top, Width, Height in the parent, in twips (to the pixel).
QString posicaoControle(const QWidget* w, const std::function<int(int)>& deTw);

struct Valor {
    QString rotulo; // "QuantBan", "VetBan(0)"
    QString texto;
};
enum class Busca { Achou, NaoExiste, ForaDosLimites };
// A shared variable by name, an array element by "Nome(i)". A scalar or an
// element gives one value; an array with no index one value per element in use.
Busca variavel(const Programa& p, const QString& nome, std::vector<Valor>& valores, bool& arranjo);

} // namespace sorvelo::roteiro
