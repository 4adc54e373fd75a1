#include "platform/qt/RepinturaQt.h"

namespace sorvelo {

void RepinturaQt::repinta(const std::function<void()>& pinta, bool sempre) {
    const int64_t agora = agoraMs_();
    if (!sempre && ultima_ >= 0 && agora - ultima_ < intervaloMs_) return;
    ultima_ = agora;
    ++feitas_;
    if (pinta) pinta();
}

} // namespace sorvelo
