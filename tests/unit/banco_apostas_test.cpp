#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
struct Banco : ::testing::Test, ProgramaTeste {
    void marca(std::initializer_list<int> celulas) {
        for (int i : celulas)
            ClicaNumero(p, i);
    }
    void fixa(int i) {
        p.tela.ChkFixar.Value = true;
        ClicaNumero(p, i);
        p.tela.ChkFixar.Value = false;
    }
    // A bank with one bet and BancoAlterado true.
    void bancoComUmaAposta() {
        marca({0, 1, 2, 3, 4, 5});
        InsereApostaMarcada(p);
    }
};
} // namespace

// ---- BtnSeta ----

TEST_F(Banco, SetaSemNadaMarcadoAcrescentaLinhaSoComFim) {
    InsereApostaMarcada(p);
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(p.e.VetBan.valor(0, 0), QStringLiteral("#"));
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   \r\n"));
    EXPECT_EQ(RetAposta(p, 0), QString());
}

TEST_F(Banco, SetaFazUmaApostaDosNumerosMarcados) {
    marca({0, 9, 59});
    InsereApostaMarcada(p);
    EXPECT_EQ(p.e.VetBan.valor(0, 0), QStringLiteral("01"));
    EXPECT_EQ(p.e.VetBan.valor(1, 0), QStringLiteral("10"));
    EXPECT_EQ(p.e.VetBan.valor(2, 0), QStringLiteral("60"));
    EXPECT_EQ(p.e.VetBan.valor(3, 0), QStringLiteral("#"));
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 10 60 \r\n"));
    EXPECT_EQ(RetAposta(p, 0), QStringLiteral("01 10 60 "));
}

TEST_F(Banco, SetaNaoMexeNaGradeNemNoHistorico) {
    marca({4});
    const QString historico = p.e.Historico;
    InsereApostaMarcada(p);
    EXPECT_EQ(p.tela.Num(4).BackColor, p.e.CorMarcado);
    EXPECT_EQ(p.e.Historico, historico);
}

TEST_F(Banco, FixasEMarcadasEntramMisturadasNaOrdemDaGrade) {
    marca({2});
    fixa(5);
    marca({10});
    fixa(0);
    InsereApostaMarcada(p);
    EXPECT_EQ(RetAposta(p, 0), QStringLiteral("01 03 06 11 "));
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 03 06 11 \r\n"));
}

TEST_F(Banco, LinhasSeguintesNumeradasPorQuantBan) {
    marca({0});
    InsereApostaMarcada(p);
    InsereApostaMarcada(p);
    InsereApostaMarcada(p);
    EXPECT_EQ(p.e.QuantBan, 3);
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 \r\n00002)   01 \r\n00003)   01 \r\n"));
}

TEST_F(Banco, VetBanCresceUmaLinhaPorAposta) {
    EXPECT_FALSE(p.e.VetBan.temLimites());
    InsereApostaMarcada(p);
    EXPECT_EQ(p.e.VetBan.ultimaLinha(), 1);
    EXPECT_EQ(p.e.VetBan.ultimaColuna(), 81);
    InsereApostaMarcada(p);
    EXPECT_EQ(p.e.VetBan.ultimaLinha(), 2);
    InsereApostaMarcada(p);
    EXPECT_EQ(p.e.VetBan.ultimaLinha(), 3);
    EXPECT_EQ(p.e.QuantBan, 3);
}

TEST_F(Banco, CoresDeUmaLinhaDeAposta) {
    marca({0, 1});
    InsereApostaMarcada(p);
    const auto trechos = p.tela.TxtBanco.trechos();
    ASSERT_EQ(trechos.size(), 2u);
    EXPECT_EQ(trechos[0].inicio, 0);
    EXPECT_EQ(trechos[0].fim, 6);
    EXPECT_EQ(trechos[0].formato.cor, rgb(150, 0, 0));
    EXPECT_FALSE(trechos[0].formato.negrito);
    EXPECT_EQ(trechos[1].inicio, 6);
    EXPECT_EQ(trechos[1].fim, p.tela.TxtBanco.comprimento());
    EXPECT_EQ(trechos[1].formato.cor, rgb(0, 0, 255));
    EXPECT_FALSE(trechos[1].formato.negrito);
    EXPECT_EQ(CorNumeroLinha, rgb(150, 0, 0));
    EXPECT_EQ(CorAposta, rgb(0, 0, 255));
    EXPECT_EQ(CorLog, rgb(0, 150, 0));
}

TEST_F(Banco, CabecalhoVerdeEmNegrito) {
    ClicaNumero(p, 0);
    CarregaNumeros(p);
    LimpaBancoApostas(p);
    p.e.DezEscolhidas = QStringLiteral("01 ");
    const QString cabecalho = CabecalhoLote(p);
    EXPECT_EQ(cabecalho, QStringLiteral("Dezenas escolhidas: 01 \r\n") + linhaHistoricoLimpou() +
                             QStringLiteral("\r\n"));
    InsereLinhaBanco(p, cabecalho, true);
    InsereApostaMarcada(p);
    InsereLinhaBanco(p, QStringLiteral("\r\n"), true);
    const auto t = p.tela.TxtBanco.trechos();
    ASSERT_EQ(t.size(), 4u);
    EXPECT_EQ(t[0].inicio, 0);
    EXPECT_EQ(t[0].fim, cabecalho.size());
    EXPECT_EQ(t[0].formato, (Formato{rgb(0, 150, 0), true}));
    EXPECT_EQ(t[1].fim - t[1].inicio, 6);
    EXPECT_EQ(t[1].formato, (Formato{rgb(150, 0, 0), false}));
    EXPECT_EQ(t[2].formato, (Formato{rgb(0, 0, 255), false}));
    EXPECT_EQ(t[3].formato, (Formato{rgb(0, 150, 0), true}));
    EXPECT_TRUE(p.tela.TxtBanco.texto().endsWith(QStringLiteral("01 \r\n\r\n")));
}

TEST_F(Banco, LinhaDeLogSemNegrito) {
    InsereLinhaBanco(p, QStringLiteral("log"), false);
    const auto t = p.tela.TxtBanco.trechos();
    ASSERT_EQ(t.size(), 1u);
    EXPECT_EQ(t[0].formato, (Formato{rgb(0, 150, 0), false}));
}

TEST_F(Banco, NumerosAlemDe99999ImprimemMaisLongosComCorteEm6) {
    DocumentoRico doc;
    InsereLinhaAposta(doc, 123456, QStringLiteral("01 02 "), QStringLiteral("\r\n"));
    EXPECT_EQ(doc.texto(), QStringLiteral("123456)   01 02 \r\n"));
    const auto t = doc.trechos();
    ASSERT_EQ(t.size(), 2u);
    EXPECT_EQ(doc.texto().mid(int(t[0].inicio), int(t[0].fim - t[0].inicio)), QStringLiteral("123456"));
    EXPECT_EQ(t[0].formato.cor, CorNumeroLinha);
    EXPECT_EQ(t[1].inicio, 6);
    EXPECT_EQ(t[1].formato.cor, CorAposta);
}

TEST_F(Banco, LinhaSemFimDeLinhaExtra) {
    DocumentoRico doc;
    InsereLinhaAposta(doc, 7, QStringLiteral("05 "), QString());
    EXPECT_EQ(doc.texto(), QStringLiteral("00007)   05 "));
}

TEST_F(Banco, ApostaBancoUsaOFimLinhaDoPrograma) {
    p.e.FimLinha = QString();
    InsereApostaBanco(p, QStringLiteral("01 02 "), 3);
    EXPECT_EQ(p.tela.TxtBanco.texto(), QStringLiteral("00003)   01 02 "));
}

TEST_F(Banco, OitentaEUmaCelulasDaLotomaniaFuncionam) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    for (int i = 0; i < 81; ++i)
        ClicaNumero(p, i);
    EXPECT_EQ(falhaDe([&] { InsereApostaMarcada(p); }), 0);
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(p.e.VetBan.valor(80, 0), QStringLiteral("80"));
    EXPECT_EQ(p.e.VetBan.valor(81, 0), QStringLiteral("#"));
    QString esperado;
    for (int n = 0; n < 81; ++n)
        esperado += formata00(n) + u' ';
    EXPECT_EQ(RetAposta(p, 0), esperado);
}

TEST_F(Banco, OitentaEDuasCelulasDaLotomaniaSaoFalha9) {
    TrocaLoteria(p, QStringLiteral("Lotomania"));
    for (int i = 0; i < 82; ++i)
        ClicaNumero(p, i);
    const QString texto = p.tela.TxtBanco.texto();
    EXPECT_EQ(falhaDe([&] { InsereApostaMarcada(p); }), erro::SubscritoForaIntervalo);
    // It stops where the "#" falls off the row: nothing reached the text.
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_EQ(p.tela.TxtBanco.texto(), texto);
    EXPECT_EQ(p.e.VetBan.valor(81, 0), QStringLiteral("81"));
}

TEST_F(Banco, RetApostaSemFimNasOitentaEDuasColunasEhFalha9) {
    LimpaBancoApostas(p);
    for (int c = 0; c <= 81; ++c)
        p.e.VetBan.define(c, 0, QStringLiteral("01"));
    p.e.QuantBan = 1;
    EXPECT_EQ(falhaDe([&] { (void)RetAposta(p, 0); }), erro::SubscritoForaIntervalo);
}

TEST_F(Banco, RetApostaDeLinhaForaDoBancoEhFalha9) {
    LimpaBancoApostas(p);
    EXPECT_EQ(falhaDe([&] { (void)RetAposta(p, 2); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(falhaDe([&] { (void)RetAposta(p, -1); }), erro::SubscritoForaIntervalo);
}

TEST_F(Banco, RetApostaLeCelulasEstranhasComoEstao) {
    LimpaBancoApostas(p);
    p.e.VetBan.define(0, 1, QStringLiteral("7"));
    p.e.VetBan.define(1, 1, QString());
    p.e.VetBan.define(2, 1, QStringLiteral("#"));
    p.e.VetBan.define(3, 1, QStringLiteral("99"));
    EXPECT_EQ(RetAposta(p, 1), QStringLiteral("7  "));
}

// ---- LimpaBancoApostas ----

TEST_F(Banco, LimpaBancoRepoeTudo) {
    bancoComUmaAposta();
    p.e.TextoEstatistica = QStringLiteral("estatística");
    p.e.ArquivoBanco = QStringLiteral("/tmp/a.Apo");
    CarregaNumeros(p);
    p.tela.TxtQuantApostas.Text = QStringLiteral(" 1");
    p.tela.TxtValorApostas.Text = QStringLiteral("4,50");
    p.e.Historico = QStringLiteral("velho\r\n");
    d.caixa.responde(Resposta::Nao);
    EXPECT_TRUE(LimpaBancoApostas(p));
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_EQ(p.e.VetBan.ultimaLinha(), 1);
    EXPECT_EQ(p.e.VetBan.ultimaColuna(), 81);
    EXPECT_EQ(p.e.VetBan.valor(0, 0), QString());
    EXPECT_TRUE(p.tela.TxtQuantApostas.Text.isEmpty());
    EXPECT_TRUE(p.tela.TxtValorApostas.Text.isEmpty());
    EXPECT_TRUE(p.e.TextoEstatistica.isEmpty());
    EXPECT_TRUE(p.e.ArquivoBanco.isEmpty());
    EXPECT_TRUE(p.e.DezEscolhidas.isEmpty());
    EXPECT_EQ(p.e.Historico, linhaHistoricoLimpou());
    EXPECT_TRUE(p.e.BancoAlterado);
    // The grid is not touched.
    EXPECT_EQ(p.tela.Num(0).BackColor, p.e.CorMarcado);
}

TEST_F(Banco, EsvaziarBancoSalvoEInalteradoNaoPergunta) {
    bancoComUmaAposta();
    p.e.BancoAlterado = false; // the end of a save
    EXPECT_TRUE(LimpaBancoApostas(p));
    EXPECT_TRUE(d.caixa.vistas().empty());
    EXPECT_EQ(p.e.QuantBan, 0);
}

TEST_F(Banco, EsvaziarBancoVazioNaoPerguntaMesmoAlterado) {
    LimpaBancoApostas(p);
    ASSERT_TRUE(p.e.BancoAlterado);
    EXPECT_TRUE(LimpaBancoApostas(p));
    EXPECT_TRUE(d.caixa.vistas().empty());
}

TEST_F(Banco, EsvaziarBancoAlteradoPerguntaSimNaoCancelar) {
    bancoComUmaAposta();
    d.caixa.responde(Resposta::Nao);
    LimpaBancoApostas(p);
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    const CaixaVista& v = d.caixa.vistas()[0];
    EXPECT_EQ(v.tipo, CaixaVista::Tipo::Pergunta);
    EXPECT_EQ(v.texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(v.botoes, Botoes::SimNaoCancelar);
    EXPECT_EQ(v.padrao, Resposta::Sim);
}

TEST_F(Banco, CancelarAoEsvaziarMantemTudo) {
    bancoComUmaAposta();
    p.e.TextoEstatistica = QStringLiteral("est");
    p.e.ArquivoBanco = QStringLiteral("/tmp/a.Apo");
    p.e.DezEscolhidas = QStringLiteral("01 ");
    p.e.Historico = QStringLiteral("h\r\n");
    p.tela.TxtQuantApostas.Text = QStringLiteral(" 1");
    p.tela.TxtValorApostas.Text = QStringLiteral("4,50");
    const QString texto = p.tela.TxtBanco.texto();
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Cancelar);
    EXPECT_FALSE(LimpaBancoApostas(p));
    EXPECT_EQ(salvamento.vezes(), 0);
    EXPECT_EQ(p.tela.TxtBanco.texto(), texto);
    EXPECT_EQ(p.e.QuantBan, 1);
    EXPECT_EQ(RetAposta(p, 0), QStringLiteral("01 02 03 04 05 06 "));
    EXPECT_EQ(p.e.TextoEstatistica, QStringLiteral("est"));
    EXPECT_EQ(p.e.ArquivoBanco, QStringLiteral("/tmp/a.Apo"));
    EXPECT_EQ(p.e.DezEscolhidas, QStringLiteral("01 "));
    EXPECT_EQ(p.e.Historico, QStringLiteral("h\r\n"));
    EXPECT_EQ(p.tela.TxtQuantApostas.Text, QStringLiteral(" 1"));
    EXPECT_EQ(p.tela.TxtValorApostas.Text, QStringLiteral("4,50"));
    EXPECT_TRUE(p.e.BancoAlterado);
}

TEST_F(Banco, SimAoEsvaziarSalvaESegue) {
    bancoComUmaAposta();
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Sim);
    EXPECT_TRUE(LimpaBancoApostas(p));
    EXPECT_EQ(salvamento.vezes(), 1);
    EXPECT_EQ(salvamento.apostasNoArquivo(), 1); // saved before emptying
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
}

TEST_F(Banco, SimAoEsvaziarSegueMesmoQueOSalvarNaoMudeNada) {
    bancoComUmaAposta();
    d.caixa.responde(Resposta::Sim);
    EXPECT_TRUE(LimpaBancoApostas(p)); // no save command installed
    EXPECT_EQ(p.e.QuantBan, 0);
}

TEST_F(Banco, NaoAoEsvaziarNaoSalva) {
    bancoComUmaAposta();
    SalvamentoVigiado salvamento(*this);
    d.caixa.responde(Resposta::Nao);
    EXPECT_TRUE(LimpaBancoApostas(p));
    EXPECT_EQ(salvamento.vezes(), 0);
    EXPECT_EQ(p.e.QuantBan, 0);
}

// ---- BtnLimparBanco ----

TEST_F(Banco, BtnLimparBancoPerguntaComPadraoNao) {
    bancoComUmaAposta();
    p.e.BancoAlterado = false;
    d.caixa.responde(Resposta::Sim);
    BtnLimparBanco(p);
    ASSERT_EQ(d.caixa.vistas().size(), 1u);
    const CaixaVista& v = d.caixa.vistas()[0];
    EXPECT_EQ(v.texto, QStringLiteral("Tem certeza que deseja limpar o banco de apostas?"));
    EXPECT_EQ(v.botoes, Botoes::SimNao);
    EXPECT_EQ(v.padrao, Resposta::Nao);
    EXPECT_EQ(p.e.QuantBan, 0);
    EXPECT_TRUE(p.tela.TxtBanco.texto().isEmpty());
}

TEST_F(Banco, BtnLimparBancoRespondidoNaoMantemOBanco) {
    bancoComUmaAposta();
    d.caixa.responde(Resposta::Nao);
    BtnLimparBanco(p);
    EXPECT_EQ(d.caixa.vistas().size(), 1u);
    EXPECT_EQ(p.e.QuantBan, 1);
}

TEST_F(Banco, BtnLimparBancoComBancoAlteradoFazAsDuasPerguntas) {
    bancoComUmaAposta();
    d.caixa.responde(Resposta::Sim);
    d.caixa.responde(Resposta::Cancelar);
    BtnLimparBanco(p);
    ASSERT_EQ(d.caixa.vistas().size(), 2u);
    EXPECT_EQ(d.caixa.vistas()[1].texto, QStringLiteral("Deseja salvar as apostas atuais?"));
    EXPECT_EQ(p.e.QuantBan, 1);
}

TEST_F(Banco, BtnLimparBancoComBancoVazioNaoPergunta) {
    BtnLimparBanco(p);
    EXPECT_TRUE(d.caixa.vistas().empty());
    LimpaBancoApostas(p);
    BtnLimparBanco(p);
    EXPECT_TRUE(d.caixa.vistas().empty());
}

// ---- BancoAlterado ----

TEST_F(Banco, QualquerMudancaDoTextoMarcaOBancoAlterado) {
    EXPECT_FALSE(p.e.BancoAlterado);
    InsereApostaMarcada(p);
    EXPECT_TRUE(p.e.BancoAlterado);
    p.e.BancoAlterado = false;
    InsereLinhaBanco(p, QStringLiteral("x"), true);
    EXPECT_TRUE(p.e.BancoAlterado);
    p.e.BancoAlterado = false;
    p.tela.TxtBanco.defineTexto(QStringLiteral("carregado de um arquivo"));
    EXPECT_TRUE(p.e.BancoAlterado);
}
