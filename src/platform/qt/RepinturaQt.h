// The desktop's repaint of a control outside the message loop, at most every
// `intervaloMs` of real time.
#pragma once

#include "../Repintura.h"

#include <QElapsedTimer>

namespace sorvelo {

class RepinturaQt : public Repintura {
public:
    explicit RepinturaQt(int intervaloMs = 40) : intervaloMs_(intervaloMs) {}
    void repinta(const std::function<void()>& pinta, bool sempre) override;
    long long feitas() const { return feitas_; }

private:
    int intervaloMs_;
    QElapsedTimer desde_;
    long long feitas_ = 0;
};

} // namespace sorvelo
