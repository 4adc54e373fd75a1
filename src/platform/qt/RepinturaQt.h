// The desktop's repaint of a control outside the message loop, at most every
// `intervaloMs` of real time.
#pragma once

#include "platform/Repintura.h"
#include "platform/qt/ServicosQt.h"

namespace sorvelo {

class RepinturaQt : public Repintura {
public:
    explicit RepinturaQt(int intervaloMs = 40, RelogioMs agoraMs = relogioMonotonico())
        : intervaloMs_(intervaloMs), agoraMs_(std::move(agoraMs)) {}
    void repinta(const std::function<void()>& pinta, bool sempre) override;
    long long feitas() const { return feitas_; }

private:
    int intervaloMs_;
    RelogioMs agoraMs_;
    int64_t ultima_ = -1; // the last repaint
    long long feitas_ = 0;
};

} // namespace sorvelo
