#include "apoio/ProgramaTeste.h"
#include "core/Principal.h"
#include "core/SistemaOperacional.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

// A service text as the record holds it: padded with zero characters.
QString servico(const char* texto) {
    QString s = QString::fromLatin1(texto);
    s += QString(128 - s.size(), QChar(0));
    return s;
}

RegistroVersao registro(int64_t major, int64_t minor, int64_t plataforma = 2, const char* texto = "") {
    RegistroVersao r;
    r.major = major;
    r.minor = minor;
    r.build = 2600;
    r.plataforma = plataforma;
    r.servico = servico(texto);
    return r;
}

// Both forms of the query answer with the same record.
RespostaVersao resposta(const RegistroVersao& r, int tablet = 0) {
    RespostaVersao v;
    v.plana = r;
    v.estendida = r;
    v.metricaTablet = tablet;
    return v;
}

QString nome(int64_t major, int64_t minor, int64_t plataforma = 2, const char* texto = "") {
    return clsOS(resposta(registro(major, minor, plataforma, texto))).OS_Name;
}

// A record of the extended family whose suite and product fields matter.
clsOS produto(int64_t major, int64_t minor, int tipo, uint32_t suite = 0, int tablet = 0, int spMajor = 0) {
    RegistroVersao r = registro(major, minor);
    r.tipoProduto = tipo;
    r.suite = suite;
    r.servicePackMajor = spMajor;
    return clsOS(resposta(r, tablet));
}

} // namespace

// ---- The name ----

TEST(SistemaOperacional, Versao3NomeiaNtSoNaPlataforma2) {
    EXPECT_EQ(nome(3, 51, 2), QStringLiteral("Windows NT 3.51"));
    EXPECT_EQ(nome(3, 51, 1), QStringLiteral("Unknown OS Version 3.51"));
    EXPECT_EQ(nome(3, 0, 0), QStringLiteral("Unknown OS Version 3.0"));
}

TEST(SistemaOperacional, Windows95PeloTextoDoServico) {
    EXPECT_EQ(nome(4, 0, 1, ""), QStringLiteral("Windows 95"));
    EXPECT_EQ(nome(4, 0, 1, " C"), QStringLiteral("Windows 95 OSR2"));
    EXPECT_EQ(nome(4, 0, 1, " b"), QStringLiteral("Windows 95 OSR2"));
    EXPECT_EQ(nome(4, 0, 1, " A"), QStringLiteral("Windows 95"));
}

TEST(SistemaOperacional, Nt4EOutraPlataforma) {
    EXPECT_EQ(nome(4, 0, 2), QStringLiteral("Windows NT 4.0"));
    EXPECT_EQ(nome(4, 0, 3), QStringLiteral("Unknown OS Version 4.0 Platform 3"));
}

TEST(SistemaOperacional, Windows98EMe) {
    EXPECT_EQ(nome(4, 10, 1, ""), QStringLiteral("Windows 98"));
    EXPECT_EQ(nome(4, 10, 1, " a "), QStringLiteral("Windows 98 SE"));
    EXPECT_EQ(nome(4, 10, 7, "A"), QStringLiteral("Windows 98 SE"));
    EXPECT_EQ(nome(4, 90, 1), QStringLiteral("Windows ME"));
    EXPECT_EQ(nome(4, 3, 1), QStringLiteral("Unknown OS Version 4.3"));
}

TEST(SistemaOperacional, Versao5) {
    EXPECT_EQ(nome(5, 0), QStringLiteral("Windows 2000"));
    EXPECT_EQ(nome(5, 1), QStringLiteral("Windows XP"));
    EXPECT_EQ(nome(5, 2), QStringLiteral("Windows .NET"));
    EXPECT_EQ(nome(5, 7), QStringLiteral("Unknown OS Version 5.7"));
}

TEST(SistemaOperacional, VersoesNovasSaoDesconhecidas) {
    EXPECT_EQ(nome(6, 1), QStringLiteral("Unknown OS Version 6.1"));
    EXPECT_EQ(nome(10, 0), QStringLiteral("Unknown OS Version 10.0"));
    EXPECT_EQ(nome(2, 11), QStringLiteral("Unknown OS Version 2.11"));
}

// ---- Version, build, additional text ----

TEST(SistemaOperacional, VersaoBuildETextoAdicional) {
    RegistroVersao r = registro(5, 1, 2, "Service Pack 2");
    r.build = 2600;
    const clsOS os(resposta(r));
    EXPECT_EQ(os.OS_Version, QStringLiteral("5.1"));
    EXPECT_EQ(os.OS_Build, QStringLiteral("2600"));
    EXPECT_EQ(os.OS_Additional, QStringLiteral("Service Pack 2"));
}

TEST(SistemaOperacional, ConsultaQueFalhaDeixaTudoVazio) {
    const clsOS os{RespostaVersao{}};
    for (const QString* campo : {&os.OS_Name, &os.OS_Version, &os.OS_Build, &os.OS_Additional,
                                 &os.OS_ServicePack, &os.OS_Suite, &os.OS_ProductType})
        EXPECT_TRUE(campo->isEmpty());
    EXPECT_EQ(FimLinhaDoSistema(os.OS_Name), QStringLiteral("\r\n"));
}

TEST(SistemaOperacional, NestaPlataformaAConsultaNaoDaVersao) {
    const clsOS os = clsOS::doSistema();
    EXPECT_TRUE(os.OS_Name.isEmpty());
    ProgramaTeste t;
    EXPECT_EQ(t.p.e.FimLinha, QStringLiteral("\r\n"));
}

// ---- The line end ----

TEST(SistemaOperacional, SoWindowsXpDaFimDeLinhaVazio) {
    EXPECT_EQ(nome(5, 1).toUpper(), QStringLiteral("WINDOWS XP"));
    EXPECT_EQ(FimLinhaDoSistema(nome(5, 1)), QString());
    EXPECT_EQ(FimLinhaDoSistema(nome(5, 2)), QStringLiteral("\r\n"));
    EXPECT_EQ(FimLinhaDoSistema(nome(5, 0)), QStringLiteral("\r\n"));
}

// ---- The extended record ----

TEST(SistemaOperacional, VersaoDesconhecidaNaoLeOEstendido) {
    RegistroVersao r = registro(6, 1);
    r.servicePackMajor = 1;
    r.suite = 16;
    r.tipoProduto = 1;
    const clsOS os(resposta(r));
    EXPECT_EQ(os.OS_Name, QStringLiteral("Unknown OS Version 6.1"));
    EXPECT_EQ(os.OS_Version, QStringLiteral("6.1"));
    EXPECT_EQ(os.OS_ServicePack, QString());
    EXPECT_EQ(os.OS_Suite, QString());
    EXPECT_EQ(os.OS_ProductType, QString());
}

TEST(SistemaOperacional, Nt4SoLeOEstendidoDoServicePack6EmDiante) {
    RegistroVersao r = registro(4, 0, 2, "Service Pack 5");
    r.tipoProduto = 1;
    r.servicePackMajor = 5;
    EXPECT_EQ(clsOS(resposta(r)).OS_ProductType, QString());
    r.servico = servico("Service Pack 6");
    r.servicePackMajor = 6;
    const clsOS os(resposta(r));
    EXPECT_EQ(os.OS_ProductType, QStringLiteral("Workstation"));
    EXPECT_EQ(os.OS_ServicePack, QStringLiteral("Service Pack 6.0"));
    r.servico = servico("  service pack 6a");
    EXPECT_EQ(clsOS(resposta(r)).OS_ProductType, QStringLiteral("Workstation"));
}

TEST(SistemaOperacional, EstendidoQueFalhaDeixaOsTresCamposVazios) {
    RespostaVersao v = resposta(registro(5, 1));
    v.plana->servicePackMajor = 2;
    v.plana->tipoProduto = 1;
    v.estendida.reset();
    const clsOS os(v);
    EXPECT_EQ(os.OS_Name, QStringLiteral("Windows XP"));
    EXPECT_EQ(os.OS_ServicePack, QString());
    EXPECT_EQ(os.OS_ProductType, QString());
}

TEST(SistemaOperacional, ServicePack) {
    RegistroVersao r = registro(5, 0);
    EXPECT_EQ(clsOS(resposta(r)).OS_ServicePack, QString());
    r.servicePackMajor = 0;
    r.servicePackMinor = 1;
    EXPECT_EQ(clsOS(resposta(r)).OS_ServicePack, QStringLiteral("Service Pack 0.1"));
    r.servicePackMajor = 4;
    r.servicePackMinor = 0;
    EXPECT_EQ(clsOS(resposta(r)).OS_ServicePack, QStringLiteral("Service Pack 4.0"));
}

TEST(SistemaOperacional, SuiteSoComTerminalServicesGuardaOBrancoFinal) {
    EXPECT_EQ(produto(5, 0, 0, 16).OS_Suite, QStringLiteral("Terminal Services is installed "));
}

TEST(SistemaOperacional, SuiteNaOrdemDaTabela) {
    EXPECT_EQ(produto(5, 0, 0, 0).OS_Suite, QString());
    EXPECT_EQ(produto(5, 0, 0, 1 | 4 | 128).OS_Suite,
              QStringLiteral("Microsoft BackOffice components are installed ,Datacenter Server is installed ,"
                             "Microsoft Small Business Server is installed "));
    EXPECT_EQ(produto(5, 0, 0, 8 | 64 | 256 | 32).OS_Suite,
              QStringLiteral("Communications Server installed ,Embedded NT installed ,Single User ,"
                             "Microsoft Small Business Server is installed with the restrictive client "
                             "license in force "));
    // Bits with no text add nothing.
    EXPECT_EQ(produto(5, 0, 0, 2 | 512 | 1024).OS_Suite, QString());
}

TEST(SistemaOperacional, TipoDeProdutoVersao4) {
    auto nt4 = [](int tipo, uint32_t suite) {
        RegistroVersao r = registro(4, 0, 2, "Service Pack 6");
        r.tipoProduto = tipo;
        r.suite = suite;
        return clsOS(resposta(r)).OS_ProductType;
    };
    EXPECT_EQ(nt4(1, 2), QStringLiteral("Workstation"));
    EXPECT_EQ(nt4(2, 0), QStringLiteral("Domain Controller"));
    EXPECT_EQ(nt4(3, 0), QStringLiteral("Server"));
    EXPECT_EQ(nt4(3, 2), QStringLiteral("Advanced Server"));
}

TEST(SistemaOperacional, TipoDeProdutoVersao50) {
    EXPECT_EQ(produto(5, 0, 1).OS_ProductType, QStringLiteral("Professional"));
    EXPECT_EQ(produto(5, 0, 2).OS_ProductType, QStringLiteral("Domain Controller"));
    EXPECT_EQ(produto(5, 0, 3).OS_ProductType, QStringLiteral("Server"));
    EXPECT_EQ(produto(5, 0, 3, 2).OS_ProductType, QStringLiteral("Advanced Server"));
}

TEST(SistemaOperacional, TipoDeProdutoVersao51) {
    EXPECT_EQ(produto(5, 1, 1, 512).OS_ProductType, QStringLiteral("Home Edition"));
    EXPECT_EQ(produto(5, 1, 1, 512, 1).OS_ProductType, QStringLiteral("Home Edition"));
    EXPECT_EQ(produto(5, 1, 1, 0, 0).OS_ProductType, QStringLiteral("Professional Edition"));
    EXPECT_EQ(produto(5, 1, 1, 0, 1, 2).OS_ProductType, QStringLiteral("Tablet PC 2005 Edition"));
    EXPECT_EQ(produto(5, 1, 1, 0, -3, 1).OS_ProductType, QStringLiteral("Tablet PC Edition"));
    EXPECT_EQ(produto(5, 1, 2).OS_ProductType, QStringLiteral("Domain Controller"));
    EXPECT_EQ(produto(5, 1, 3, 2).OS_ProductType, QStringLiteral("Server"));
}

TEST(SistemaOperacional, TipoDeProdutoVersao52) {
    EXPECT_EQ(produto(5, 2, 1, 128).OS_ProductType, QString());
    EXPECT_EQ(produto(5, 2, 2, 128).OS_ProductType, QStringLiteral("Domain Controller"));
    EXPECT_EQ(produto(5, 2, 3, 128 | 2 | 1024).OS_ProductType, QStringLiteral("DataCenter Server"));
    EXPECT_EQ(produto(5, 2, 3, 2 | 1024).OS_ProductType, QStringLiteral("Enterprise Server"));
    EXPECT_EQ(produto(5, 2, 3, 1024).OS_ProductType, QStringLiteral("Web Server"));
    EXPECT_EQ(produto(5, 2, 3, 0).OS_ProductType, QStringLiteral("Server"));
}

TEST(SistemaOperacional, TipoDeProdutoDeOutraVersaoEVazio) {
    for (int tipo = 1; tipo <= 3; ++tipo)
        EXPECT_EQ(produto(5, 3, tipo, 2).OS_ProductType, QString());
}

TEST(SistemaOperacional, TipoForaDe1A3NaoMexeNoCampo) {
    EXPECT_EQ(produto(5, 0, 0).OS_ProductType, QString());
    EXPECT_EQ(produto(5, 0, 4).OS_ProductType, QString());
    EXPECT_EQ(produto(5, 1, -1, 512).OS_ProductType, QString());
}

TEST(SistemaOperacional, TabletPelaMetrica) {
    EXPECT_FALSE(produto(5, 1, 1, 0, 0).IsTabletPC());
    EXPECT_TRUE(produto(5, 1, 1, 0, 1).IsTabletPC());
    EXPECT_TRUE(produto(5, 1, 1, 0, -1).IsTabletPC());
}
