// Counts the handlers at work and the modal loops they wait in, so that a
// driver of the program knows when the program waits for the person.
#pragma once

namespace sorvelo {

struct Atividade {
    static inline int manipuladores = 0; // handlers running (nested through yields)
    static inline int modais = 0;        // modal loops entered from a handler
    // True when no handler is at work apart from those waiting in a modal loop.
    static bool ocioso() { return manipuladores <= modais; }
};

// Around a modal loop entered from a handler (a dialog, a message box).
struct EmModal {
    EmModal() { ++Atividade::modais; }
    ~EmModal() { --Atividade::modais; }
    EmModal(const EmModal&) = delete;
    EmModal& operator=(const EmModal&) = delete;
};

} // namespace sorvelo
