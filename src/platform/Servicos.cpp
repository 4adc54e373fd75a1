#include "platform/Servicos.h"

#include <cstring>

namespace sorvelo {

float GeradorClassico::rnd() {
    x_ = (x_ * 1140671485u + 12820163u) & 0xFFFFFFu;
    return float(x_) / 16777216.0f;
}

void GeradorClassico::randomize(double semente) {
    uint64_t bits = 0;
    std::memcpy(&bits, &semente, sizeof bits);
    const uint32_t alto = uint32_t(bits >> 32);
    const uint32_t mistura = ((alto & 0xFFFFu) ^ (alto >> 16)) << 8;
    x_ = (x_ & 0xFF0000FFu) | (mistura & 0x00FFFF00u);
}

QString textoData(const QDateTime& momento) {
    return momento.date().toString(QStringLiteral("dd/MM/yyyy"));
}
QString textoHora(const QDateTime& momento) {
    return momento.time().toString(QStringLiteral("HH:mm:ss"));
}

void randomizeRelogio(FonteAleatoria& fonte, Relogio& relogio) {
    const QTime t = relogio.agora().time();
    // The program's timer is a single-precision count of seconds.
    const float segundos = float(t.msecsSinceStartOfDay()) / 1000.0f;
    fonte.randomize(double(segundos));
}

} // namespace sorvelo
