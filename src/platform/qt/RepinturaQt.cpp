#include "RepinturaQt.h"

namespace sorvelo {

void RepinturaQt::repinta(const std::function<void()>& pinta, bool sempre) {
    if (!sempre && desde_.isValid() && desde_.elapsed() < intervaloMs_) return;
    desde_.start();
    ++feitas_;
    if (pinta) pinta();
}

} // namespace sorvelo
