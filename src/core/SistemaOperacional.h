// The operating-system probe: the class clsOS, which names the system from
// the answer of the version query. Of all it finds, the main window uses one
// fact: whether the name is "Windows XP", which decides FimLinha.
#pragma once

#include "platform/VersaoSistema.h"

#include <QString>

namespace sorvelo {

class clsOS {
public:
    // Runs LeVersaoOS on the answer of the version query.
    explicit clsOS(const RespostaVersao& resposta);
    // The probe of the system the program runs on.
    static clsOS doSistema() { return clsOS(versaoDoSistema()); }

    // All text, empty until the probe fills them.
    QString OS_Name;
    QString OS_Version;
    QString OS_Build;
    QString OS_Additional;
    QString OS_ServicePack;
    QString OS_Suite;
    QString OS_ProductType;

    bool IsTabletPC() const { return resposta_.metricaTablet != 0; }

private:
    void LeVersaoOS();
    void leEstendida(const RegistroVersao& r);

    RespostaVersao resposta_;
};

} // namespace sorvelo
