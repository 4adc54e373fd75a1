// The repaint of one control at once, outside the message loop: a loop that
// gives the message loop no turn still shows its progress on a label. The
// desktop repaints at most every few tens of milliseconds of real time, so
// that a counter that changes a hundred thousand times costs little; the
// last caption of a run is repainted in any case.
#pragma once

#include <functional>

namespace sorvelo {

class Repintura {
public:
    virtual ~Repintura() = default;
    // `pinta` brings the control up to date and repaints it; it may be
    // skipped when the last repaint was a moment ago, unless `sempre`.
    virtual void repinta(const std::function<void()>& pinta, bool sempre) = 0;
};

// For tests: every repaint happens, and each is counted.
class RepinturaContada : public Repintura {
public:
    void repinta(const std::function<void()>& pinta, bool sempre) override {
        ++quantas;
        if (sempre) ++forcadas;
        if (pinta) pinta();
    }
    long long quantas = 0, forcadas = 0;
};

} // namespace sorvelo
