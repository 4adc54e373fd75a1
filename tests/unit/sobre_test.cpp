#include "apoio/ProgramaTeste.h"
#include "relatorios/Sobre.h"

#include "apoio/ImprimeQt.h"

#include <QUrl>

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

TEST(Sobre, TextosDaCaixa) {
    EXPECT_EQ(QString::fromUtf16(TituloSobre), QStringLiteral("Sobre o Sorvelo"));
    EXPECT_EQ(QString::fromUtf16(DescricaoSistema),
              QStringLiteral("Sistema de administração de jogos para loterias"));
    EXPECT_EQ(QString::fromUtf16(VersaoPrograma), QStringLiteral("Versão 1.8"));
}

TEST(Sobre, EnderecosSaoDeVerdade) {
    const QUrl pagina(QString::fromUtf16(EnderecoProduto));
    EXPECT_TRUE(pagina.isValid());
    EXPECT_EQ(pagina.scheme(), QStringLiteral("https"));
    EXPECT_FALSE(pagina.host().isEmpty());
    const QString email = QString::fromUtf16(EmailSuporte);
    EXPECT_EQ(email.count(u'@'), 1);
    EXPECT_TRUE(QUrl(QStringLiteral("mailto:") + email).isValid());
}

TEST(Sobre, LinkEEmailAbremPeloDesktop) {
    ProgramaTeste t;
    ClicaLink(t.p);
    ClicaEmail(t.p);
    EXPECT_EQ(t.d.abridor.abertos, (QStringList{QStringLiteral("https://www.sorvelo.com.br"),
                                                QStringLiteral("mailto:suporte@sorvelo.com.br")}));
    EXPECT_TRUE(t.d.caixa.vistas().empty());
}

TEST(Sobre, NovidadesAbreAMesmaPagina) {
    ProgramaTeste t;
    MenuNovidades(t.p);
    ClicaLink(t.p);
    ASSERT_EQ(t.d.abridor.abertos.size(), 2);
    EXPECT_EQ(t.d.abridor.abertos[0], t.d.abridor.abertos[1]);
    // No outside command line: the address goes to the desktop as it is.
    EXPECT_FALSE(t.d.abridor.abertos[0].contains(QStringLiteral("rundll32")));
}
