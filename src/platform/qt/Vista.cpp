#include "platform/qt/Vista.h"

#include <algorithm>
#include <vector>

namespace sorvelo {

namespace {
std::vector<Vista*>& vistas() {
    static std::vector<Vista*> v;
    return v;
}
} // namespace

Vista::Vista() {
    vistas().push_back(this);
}

Vista::~Vista() {
    auto& v = vistas();
    v.erase(std::remove(v.begin(), v.end(), this), v.end());
}

void atualizaVistas() {
    // A window may close (and leave the list) while it is brought up to date.
    const std::vector<Vista*> copia = vistas();
    for (Vista* v : copia)
        if (std::find(vistas().begin(), vistas().end(), v) != vistas().end()) v->sincroniza();
}

} // namespace sorvelo
