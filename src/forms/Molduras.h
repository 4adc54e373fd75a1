// Frames whose controls are placed in twips from the frame's outer top, as
// the layout gives them. The desktop draws a frame's caption and border
// taller than the layout reckons with, so the controls of a frame are
// measured from its inner top: each stands as far below the frame's inner
// top on the screen as the layout puts it below the layout's inner top, as
// far as the frame's room below its lowest control allows, and never above
// the frame's contents. A frame keeps its size, and grows only by what its
// controls would otherwise run past its contents.
#pragma once

class QWidget;

namespace sorvelo {

class Escala;

// The layout's inner top of a titled frame, in twips: just below its top
// border, which runs through the middle of the caption.
inline constexpr int TopoInternoMoldura = 120;

// Called for every control placed on `pai`: when `pai` is a frame, the
// control is measured from its inner top, now and whenever the frame's
// caption or font changes.
void registraNaMoldura(const Escala& escala, QWidget* pai, QWidget* filho);

// How far, in pixels, the controls of `moldura` stand below their place in
// twips (0 for anything but a frame): a control moved later in twips adds it.
int descidaNaMoldura(const QWidget* moldura);

} // namespace sorvelo
