// A window that mirrors a model (every form of the program). Before
// anything modal happens (a message box, a file dialog, a yield to the
// message loop) atualizaVistas() brings every such window up to date with
// its model, so that what the logic has set is on the screen first.
#pragma once

namespace sorvelo {

class Vista {
public:
    Vista();
    virtual ~Vista();
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;
    // The model onto the widgets.
    virtual void sincroniza() = 0;
};

// Every open Vista brought up to date, in the order they were made.
void atualizaVistas();

} // namespace sorvelo
