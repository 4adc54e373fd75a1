// The pictures of the program, drawn in code: the nine toolbar images, the
// arrow of BtnSeta, the dice of PicSort1 and the help mark.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace sorvelo {

enum class Imagem { Novo, Abrir, Salvar, Imprimir, MegaSena, DuplaSena, Quina, Lotomania, LotoFacil };
QPixmap desenhaImagem(Imagem qual, qreal escala = 1.0); // 21 by 25 at scale 1
QPixmap desenhaSeta(int lado);
// Dice: 1 at rest, 2 under the mouse, 3 the frame's hint.
QPixmap desenhaDados(int estado, int lado);
QPixmap desenhaAjuda(int lado);
QIcon iconePrograma();

} // namespace sorvelo
