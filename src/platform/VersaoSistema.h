// What the system's version query answers, in the two forms of its record:
// the plain one (version, build, platform, service text) and the extended
// one (also the service pack's numbers, the suite mask and the product
// type), and the tablet question of the system metrics.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace sorvelo {

struct RegistroVersao {
    int64_t major = 0;
    int64_t minor = 0;
    int64_t build = 0;
    int64_t plataforma = 0;
    // As the record holds it: a fixed buffer, zero characters included.
    QString servico;
    // The extended form only.
    int servicePackMajor = 0;
    int servicePackMinor = 0;
    uint32_t suite = 0;
    int tipoProduto = 0;
};

struct RespostaVersao {
    // No value: the query failed in that form.
    std::optional<RegistroVersao> plana;
    std::optional<RegistroVersao> estendida;
    // The answer of the tablet question (0: not a tablet).
    int metricaTablet = 0;
};

// The query on the system the program runs on. Only one family of systems
// answers it; on every other system both forms fail.
RespostaVersao versaoDoSistema();

} // namespace sorvelo
