#include "core/SistemaOperacional.h"

#include <array>

namespace sorvelo {

namespace {

QString n(int64_t v) {
    return QString::number(v);
}

// Blanks off both ends; zero characters and other spaces stay.
QString aparaBrancos(const QString& s) {
    qsizetype i = 0, f = s.size();
    while (i < f && s.at(i) == u' ')
        ++i;
    while (f > i && s.at(f - 1) == u' ')
        --f;
    return s.mid(i, f - i);
}

struct Nome {
    QString texto;
    bool estendida = false;
};

Nome nomeVersao4(const RegistroVersao& r) {
    const QString servico = r.servico.toUpper();
    switch (r.minor) {
    case 0:
        if (r.plataforma == 1) {
            const bool osr2 = servico.contains(u'C') || servico.contains(u'B');
            return {osr2 ? QStringLiteral("Windows 95 OSR2") : QStringLiteral("Windows 95")};
        }
        if (r.plataforma == 2) {
            // Text order, as the text holds it: blanks trimmed, zeros kept.
            const bool sp6 = aparaBrancos(servico).compare(QStringLiteral("SERVICE PACK 6")) >= 0;
            return {QStringLiteral("Windows NT 4.0"), sp6};
        }
        return {QStringLiteral("Unknown OS Version 4.") + n(r.minor) + QStringLiteral(" Platform ") +
                n(r.plataforma)};
    case 10:
        return {servico.contains(u'A') ? QStringLiteral("Windows 98 SE") : QStringLiteral("Windows 98")};
    case 90:
        return {QStringLiteral("Windows ME")};
    default:
        return {QStringLiteral("Unknown OS Version 4.") + n(r.minor)};
    }
}

Nome nomeVersao(const RegistroVersao& r) {
    switch (r.major) {
    case 3:
        return {
            (r.plataforma == 2 ? QStringLiteral("Windows NT 3.") : QStringLiteral("Unknown OS Version 3.")) +
            n(r.minor)};
    case 4:
        return nomeVersao4(r);
    case 5:
        switch (r.minor) {
        case 0:
            return {QStringLiteral("Windows 2000"), true};
        case 1:
            return {QStringLiteral("Windows XP"), true};
        case 2:
            return {QStringLiteral("Windows .NET"), true};
        default:
            return {QStringLiteral("Unknown OS Version 5.") + n(r.minor), true};
        }
    default:
        return {QStringLiteral("Unknown OS Version ") + n(r.major) + u'.' + n(r.minor)};
    }
}

struct BitSuite {
    uint32_t bit;
    const char* texto;
};
constexpr std::array<BitSuite, 8> TextosSuite{{
    {4, "Microsoft BackOffice components are installed ,"},
    {8, "Communications Server installed ,"},
    {128, "Datacenter Server is installed ,"},
    {64, "Embedded NT installed ,"},
    {256, "Single User ,"},
    {1, "Microsoft Small Business Server is installed ,"},
    {32, "Microsoft Small Business Server is installed with the restrictive client license in force ,"},
    {16, "Terminal Services is installed ,"},
}};

QString textoSuite(uint32_t mascara) {
    QString s;
    for (const BitSuite& b : TextosSuite)
        if (mascara & b.bit) s += QLatin1String(b.texto);
    if (s.size() > 2) s.chop(1);
    return s;
}

QString servidor(uint32_t suite) {
    return (suite & 2) ? QStringLiteral("Advanced Server") : QStringLiteral("Server");
}

} // namespace

clsOS::clsOS(const RespostaVersao& resposta) : resposta_(resposta) {
    LeVersaoOS();
}

void clsOS::LeVersaoOS() {
    if (!resposta_.plana) return;
    const RegistroVersao& r = *resposta_.plana;
    const Nome nome = nomeVersao(r);
    OS_Name = nome.texto;
    OS_Version = n(r.major) + u'.' + n(r.minor);
    OS_Build = n(r.build);
    OS_Additional = r.servico;
    OS_Additional.remove(QChar(0));
    if (!nome.estendida || !resposta_.estendida) return;
    leEstendida(*resposta_.estendida);
}

void clsOS::leEstendida(const RegistroVersao& r) {
    const int spMajor = r.servicePackMajor;
    if (spMajor > 0 || r.servicePackMinor > 0)
        OS_ServicePack = QStringLiteral("Service Pack ") + n(spMajor) + u'.' + n(r.servicePackMinor);
    OS_Suite = textoSuite(r.suite);

    if (r.tipoProduto < 1 || r.tipoProduto > 3) return;
    const int tipo = r.tipoProduto;
    const QString controlador = QStringLiteral("Domain Controller");
    if (r.major == 4) {
        OS_ProductType = tipo == 1   ? QStringLiteral("Workstation")
                         : tipo == 2 ? controlador
                                     : servidor(r.suite);
    } else if (r.major == 5 && r.minor == 0) {
        OS_ProductType = tipo == 1   ? QStringLiteral("Professional")
                         : tipo == 2 ? controlador
                                     : servidor(r.suite);
    } else if (r.major == 5 && r.minor == 1) {
        if (tipo == 1) {
            if (r.suite & 512)
                OS_ProductType = QStringLiteral("Home Edition");
            else if (!IsTabletPC())
                OS_ProductType = QStringLiteral("Professional Edition");
            else
                OS_ProductType = spMajor == 2 ? QStringLiteral("Tablet PC 2005 Edition")
                                              : QStringLiteral("Tablet PC Edition");
        } else {
            OS_ProductType = tipo == 2 ? controlador : QStringLiteral("Server");
        }
    } else if (r.major == 5 && r.minor == 2) {
        if (tipo == 1)
            OS_ProductType = QString();
        else if (tipo == 2)
            OS_ProductType = controlador;
        else if (r.suite & 128)
            OS_ProductType = QStringLiteral("DataCenter Server");
        else if (r.suite & 2)
            OS_ProductType = QStringLiteral("Enterprise Server");
        else if (r.suite & 1024)
            OS_ProductType = QStringLiteral("Web Server");
        else
            OS_ProductType = QStringLiteral("Server");
    } else {
        OS_ProductType = QString();
    }
}

} // namespace sorvelo
