#include "apoio/Duplos.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;

TEST(CaixaRoteirizada, RespondeDaFilaEGuardaOQueFoiPerguntado) {
    CaixaRoteirizada c;
    c.responde(Resposta::Nao);
    c.responde(Resposta::Cancelar);
    EXPECT_EQ(c.pergunta(QStringLiteral("um?"), Botoes::SimNao, Resposta::Sim), Resposta::Nao);
    EXPECT_EQ(c.pergunta(QStringLiteral("dois?"), Botoes::SimNaoCancelar, Resposta::Sim), Resposta::Cancelar);
    ASSERT_EQ(c.vistas().size(), 2u);
    EXPECT_EQ(c.vistas()[0].texto, QStringLiteral("um?"));
    EXPECT_EQ(c.vistas()[0].botoes, Botoes::SimNao);
    EXPECT_EQ(c.vistas()[0].padrao, Resposta::Sim);
    EXPECT_EQ(c.vistas()[0].resposta, Resposta::Nao);
    EXPECT_TRUE(c.vistas()[0].roteirizada);
    EXPECT_EQ(c.vistas()[1].botoes, Botoes::SimNaoCancelar);
    EXPECT_EQ(c.respostasPendentes(), 0u);
    EXPECT_TRUE(c.naoRoteirizadas().empty());
}

TEST(CaixaRoteirizada, PerguntaSemRespostaNaoBloqueiaERespondeOPadrao) {
    CaixaRoteirizada c;
    EXPECT_EQ(c.pergunta(QStringLiteral("x?"), Botoes::SimNao, Resposta::Nao), Resposta::Nao);
    EXPECT_EQ(c.pergunta(QStringLiteral("y?"), Botoes::SimNaoCancelar, Resposta::Sim), Resposta::Sim);
    const auto nao = c.naoRoteirizadas();
    ASSERT_EQ(nao.size(), 2u);
    EXPECT_EQ(nao[0].texto, QStringLiteral("x?"));
    EXPECT_FALSE(nao[0].roteirizada);
}

TEST(CaixaRoteirizada, AvisosSaoRegistradosComOK) {
    CaixaRoteirizada c;
    c.informacao(QStringLiteral("info"));
    c.aviso(QStringLiteral("aviso"));
    c.critico(QStringLiteral("crítico"));
    ASSERT_EQ(c.vistas().size(), 3u);
    EXPECT_EQ(c.vistas()[0].tipo, CaixaVista::Tipo::Informacao);
    EXPECT_EQ(c.vistas()[1].tipo, CaixaVista::Tipo::Aviso);
    EXPECT_EQ(c.vistas()[2].tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(c.vistas()[2].texto, QStringLiteral("crítico"));
    for (const auto& v : c.vistas())
        EXPECT_EQ(v.resposta, Resposta::OK);
    EXPECT_TRUE(c.naoRoteirizadas().empty());
}

TEST(CaixaRoteirizada, AvisoConsomeSoUmOKRoteirizado) {
    CaixaRoteirizada c;
    c.responde(Resposta::OK);
    c.responde(Resposta::Sim);
    c.informacao(QStringLiteral("info"));
    EXPECT_TRUE(c.vistas()[0].roteirizada);
    c.aviso(QStringLiteral("aviso")); // the Sim waits for the question
    EXPECT_FALSE(c.vistas()[1].roteirizada);
    EXPECT_EQ(c.pergunta(QStringLiteral("?"), Botoes::SimNao, Resposta::Nao), Resposta::Sim);
}

TEST(CaixaRoteirizada, AoMostrarEhChamadoACadaCaixa) {
    CaixaRoteirizada c;
    QStringList textos;
    c.aoMostrar = [&](const CaixaVista& v) { textos << v.texto; };
    c.informacao(QStringLiteral("a"));
    c.pergunta(QStringLiteral("b"), Botoes::SimNao, Resposta::Nao);
    EXPECT_EQ(textos, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    c.limpa();
    EXPECT_TRUE(c.vistas().empty());
}

TEST(DialogoRoteirizado, CaminhosDaFilaEVazioEhCancelar) {
    DialogoRoteirizado d;
    d.enfileira(QStringLiteral("/tmp/a.Apo"));
    EXPECT_EQ(d.abrir(QStringLiteral("Abrir"), QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;")),
              QStringLiteral("/tmp/a.Apo"));
    EXPECT_EQ(d.salvar(QStringLiteral("Salvar"), QStringLiteral("f")), QString());
    ASSERT_EQ(d.pedidos().size(), 2u);
    EXPECT_FALSE(d.pedidos()[0].salvar);
    EXPECT_EQ(d.pedidos()[0].titulo, QStringLiteral("Abrir"));
    EXPECT_EQ(d.pedidos()[0].filtro, QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;"));
    EXPECT_TRUE(d.pedidos()[1].salvar);
    EXPECT_TRUE(d.pedidos()[1].resposta.isEmpty());
}

TEST(ImpressoraRegistro, RegistraFonteTextoEFim) {
    ImpressoraRegistro i;
    int avisos = 0;
    i.aoRegistrar = [&](const QString&) { ++avisos; };
    i.defineFonte(QStringLiteral("Arial"), 10);
    i.imprime(QStringLiteral("linha"));
    i.fim();
    EXPECT_EQ(i.registro, (QStringList{QStringLiteral("fonte Arial 10"), QStringLiteral("texto linha"),
                                       QStringLiteral("fim")}));
    EXPECT_EQ(avisos, 3);
}

TEST(FonteRoteirizada, ValoresRoteirizadosPrimeiroDepoisOGerador) {
    FonteRoteirizada f;
    f.enfileira(0.25f);
    f.enfileira(0.5f);
    EXPECT_EQ(f.rnd(), 0.25f);
    EXPECT_EQ(f.rnd(), 0.5f);
    GeradorClassico g;
    EXPECT_EQ(f.rnd(), g.rnd());
    EXPECT_EQ(f.rnd(), g.rnd());
}

TEST(FonteRoteirizada, RandomizeRegistraASementeESemeiaOGerador) {
    FonteRoteirizada f;
    f.randomize(42.0);
    ASSERT_EQ(f.sementes.size(), 1u);
    EXPECT_EQ(f.sementes[0], 42.0);
    GeradorClassico g;
    g.randomize(42.0);
    EXPECT_EQ(f.rnd(), g.rnd());
}

TEST(RelogioFixo, MomentoPadrao) {
    RelogioFixo r;
    EXPECT_EQ(r.agora(), QDateTime(QDate(2026, 11, 22), QTime(14, 5, 9)));
    r.momento = QDateTime(QDate(2027, 1, 2), QTime(3, 4, 5));
    EXPECT_EQ(textoData(r.agora()), QStringLiteral("02/01/2027"));
}

TEST(CedenciaContada, ContaEAvisa) {
    CedenciaContada c;
    long long ultimo = 0;
    c.aoCeder = [&](long long n) { ultimo = n; };
    c.cede();
    c.cede();
    EXPECT_EQ(c.quantas, 2);
    EXPECT_EQ(ultimo, 2);
}

TEST(AbridorRegistro, GuardaOsEnderecos) {
    AbridorRegistro a;
    a.abre(QStringLiteral("https://exemplo"));
    EXPECT_EQ(a.abertos, QStringList{QStringLiteral("https://exemplo")});
}

TEST(PastaFixa, DevolveOCaminhoDado) {
    PastaFixa p(QStringLiteral("/opt/sorvelo"));
    EXPECT_EQ(p.caminho(), QStringLiteral("/opt/sorvelo"));
    p.define(QStringLiteral("/tmp"));
    EXPECT_EQ(p.caminho(), QStringLiteral("/tmp"));
}

TEST(ServicosDuplos, TodosOsServicosApontamParaOsDuplos) {
    ServicosDuplos d;
    const Servicos s = d.servicos();
    EXPECT_EQ(s.caixa, &d.caixa);
    EXPECT_EQ(s.dialogo, &d.dialogo);
    EXPECT_EQ(s.impressora, &d.impressora);
    EXPECT_EQ(s.aleatorio, &d.aleatorio);
    EXPECT_EQ(s.relogio, &d.relogio);
    EXPECT_EQ(s.cedencia, &d.cedencia);
    EXPECT_EQ(s.abridor, &d.abridor);
    EXPECT_EQ(s.pasta, &d.pasta);
}
