// The runner's mechanics that the program cannot show yet: waiting for a
// handler that yields, a line run inside the N-th yield, forms shown modal
// and not modal, the wait limit. The controls and forms here are the
// test's own, added to the real main window.
#include "core/BancoApostas.h"
#include "forms/Protecao.h"
#include "forms/Sorvelo.h"
#include "roteiro/Roteiro.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <thread>

using namespace sorvelo;
using namespace sorvelo::roteiro;

namespace {

struct Execucao {
    int status = -1;
    QString transcricao;
};

QPushButton* botao(Sorvelo& j, const char* nome, std::function<void()> f) {
    auto* b = new QPushButton(QString::fromUtf8(nome), j.centralWidget());
    b->setObjectName(QString::fromUtf8(nome));
    b->setGeometry(0, 0, 10, 10);
    b->show();
    QObject::connect(b, &QPushButton::clicked, &j, [&j, f] {
        executaProtegido(f);
        j.sincroniza();
    });
    return b;
}

// Buttons of the test: one that inserts five bets, yielding after each and
// stopping when Cancelado turns true; one that sets Cancelado; one that
// opens a modal form; one that shows a form that is not modal.
void botoesDeTeste(Sorvelo& j) {
    Programa& p = j.programa();
    botao(j, "BtnCedeCinco", [&p] {
        for (int i = 0; i < 5; ++i) {
            InsereApostaMarcada(p);
            p.s.cedencia->cede();
            if (p.e.Cancelado) break;
        }
    });
    botao(j, "BtnCancelaTeste", [&p] { p.e.Cancelado = true; });
    // Yields five times, each after posting an event that adds an "x" to
    // Historico: the "x"s tell how many times the event loop ran.
    botao(j, "BtnCedeComEventos", [&p] {
        for (int i = 0; i < 5; ++i) {
            QTimer::singleShot(0, [&p] { p.e.Historico += QStringLiteral("x"); });
            p.s.cedencia->cede();
        }
    });
    botao(j, "BtnAbreModal", [&j, &p] {
        QDialog d(&j);
        d.setObjectName(QStringLiteral("DialogoTeste"));
        d.setWindowTitle(QStringLiteral("Diálogo de teste"));
        d.setProperty("sorvelo_forma", true);
        auto* nome = new QLineEdit(&d);
        nome->setObjectName(QStringLiteral("TxtEscolhidos"));
        auto* ok = new QPushButton(QStringLiteral("OK"), &d);
        ok->setObjectName(QStringLiteral("BtnOK"));
        ok->move(0, 40);
        QObject::connect(ok, &QPushButton::clicked, &d, &QDialog::accept);
        EmModal modal;
        d.exec();
        p.e.Historico = nome->text();
    });
    botao(j, "BtnAbreNaoModal", [&j] {
        auto* d = new QDialog(&j);
        d->setAttribute(Qt::WA_DeleteOnClose);
        d->setObjectName(QStringLiteral("Ferramenta"));
        d->setWindowTitle(QStringLiteral("Ferramenta"));
        d->setProperty("sorvelo_forma", true);
        auto* fechar = new QPushButton(QStringLiteral("Fechar"), d);
        fechar->setObjectName(QStringLiteral("BtnFechar"));
        QObject::connect(fechar, &QPushButton::clicked, d, &QDialog::close);
        d->show();
    });
    botao(j, "BtnServicos", [&p] {
        p.s.impressora->defineFonte(QStringLiteral("Arial"), 10);
        p.s.impressora->imprime(QStringLiteral("00001)   01 02 \r\n"));
        p.s.impressora->fim();
        p.s.abridor->abre(QStringLiteral("https://exemplo.com.br/novidades"));
    });
    botao(j, "BtnDialogos", [&p] {
        const QString filtro = QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;");
        p.e.NomeArquivo = p.s.dialogo->abrir(QStringLiteral("Abrir"), filtro);
        p.e.ArquivoBanco = p.s.dialogo->salvar(QStringLiteral("Salvar"), filtro);
    });
    botao(j, "BtnCaixas", [&p] {
        p.s.caixa->informacao(QStringLiteral("i"));
        p.s.caixa->aviso(QStringLiteral("a"));
        p.s.caixa->critico(QStringLiteral("c"));
        const Resposta r =
            p.s.caixa->pergunta(QStringLiteral("p?"), Botoes::SimNaoCancelar, Resposta::Cancelar);
        p.e.Cancelado = r == Resposta::Cancelar;
    });
    botao(j, "BtnSemFim", [&p] {
        for (;;)
            p.s.cedencia->cede();
    });
    botao(j, "BtnParado", [] { std::this_thread::sleep_for(std::chrono::seconds(3)); });
    botao(j, "BtnFalhaNaCedencia", [&p] {
        p.s.cedencia->cede();
        throw FalhaExecucao(erro::Estouro);
    });
}

Execucao roda(const char* cenario, int limiteMs = 60000, std::FILE* saida = nullptr) {
    std::FILE* f = saida ? saida : std::tmpfile();
    Execucao r;
    {
        Transcricao t(f);
        OpcoesRoteiro op;
        op.aoCriarJanela = botoesDeTeste;
        op.limiteEsperaMs = limiteMs;
        Roteiro roteiro(leCenario(QString::fromUtf8(cenario)), t, op);
        r.status = roteiro.executa();
    }
    if (saida) return r;
    std::rewind(f);
    QByteArray b;
    char buf[4096];
    for (size_t n; (n = std::fread(buf, 1, sizeof buf, f)) > 0;)
        b.append(buf, qsizetype(n));
    std::fclose(f);
    r.transcricao = QString::fromUtf8(b);
    return r;
}

} // namespace

TEST(LeituraDoCenario, PalavrasTextosEscapesEComentarios) {
    const LinhaCenario l = leLinha(QStringLiteral("digita  TxtValAp \"a\\\"b\\\\c\\r\\n\" # fim"), 7);
    ASSERT_TRUE(l.erro.isEmpty());
    ASSERT_EQ(l.palavras.size(), 3u);
    EXPECT_EQ(l.numero, 7);
    EXPECT_EQ(l.palavras[1].texto, QStringLiteral("TxtValAp"));
    EXPECT_FALSE(l.palavras[1].aspas);
    EXPECT_EQ(l.palavras[2].texto, QStringLiteral("a\"b\\c\r\n"));
    EXPECT_TRUE(l.palavras[2].aspas);
    EXPECT_FALSE(leLinha(QStringLiteral("mostra \"sem fim"), 1).erro.isEmpty());
    EXPECT_FALSE(leLinha(QStringLiteral("mostra \"a\\t\""), 1).erro.isEmpty());
    EXPECT_EQ(leCenario(QStringLiteral("# só comentário\r\n\r\nfecha\r\n")).size(), 1u);
    EXPECT_EQ(leCenario(QStringLiteral("# só comentário\r\n\r\nfecha\r\n")).front().numero, 3);
}

TEST(Transcricao, AspasComEscapes) {
    EXPECT_EQ(aspas(QStringLiteral("a\"b\\c\r\n ")), QStringLiteral("\"a\\\"b\\\\c\\r\\n \""));
}

TEST(Espera, LinhaSoCorreQuandoOTratadorQueCedeTermina) {
    const Execucao r = roda("clica BtnCedeCinco\nmostra QuantBan\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("QuantBan = \"5\"\n"));
}

TEST(NaCedencia, RodaALinhaDentroDaEnesimaCedencia) {
    const Execucao r =
        roda("clica BtnCedeCinco\nna_cedencia 1 mostra QuantBan\nna_cedencia 3 mostra QuantBan\n"
             "mostra QuantBan\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("QuantBan = \"1\"\nQuantBan = \"3\"\nQuantBan = \"5\"\n"));
}

TEST(NaCedencia, UmCliqueNoMeioCancelaOTrabalho) {
    const Execucao r = roda("clica BtnCedeCinco\nna_cedencia 2 clica BtnCancelaTeste\nmostra QuantBan\n"
                            "mostra Cancelado\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("QuantBan = \"2\"\nCancelado = \"-1\"\n"));
}

TEST(NaCedencia, ContaDesdeALinhaQueAgiu) {
    const Execucao r = roda("clica BtnCedeCinco\nclica BtnCedeCinco\nna_cedencia 2 mostra QuantBan\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("QuantBan = \"7\"\n"));
}

TEST(NaCedencia, OTimerDisparaNumaCedenciaSoComEspera) {
    const Execucao r = roda("clica BtnCedeCinco\nna_cedencia 2 espera 1500\nmostra TxtQuantApostas\n"
                            "mostra QuantBan\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("TxtQuantApostas = \" 2\"\nQuantBan = \"5\"\n"));
}

TEST(NaCedencia, SoAPrimeiraCedenciaDepoisDeUmaLinhaRodaOLacoDeMensagens) {
    // Yield 1 runs the loop; 2, 3 and 4 do not, the virtual clock standing
    // still. The handler's end leaves the rest to the loop.
    const Execucao r = roda("clica BtnCedeComEventos\nna_cedencia 4 mostra Historico\nmostra Historico\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("Historico = \"x\"\nHistorico = \"xxxxx\"\n"));
}

TEST(NaCedencia, UmaLinhaNaCedenciaRodaOLacoNessaCedencia) {
    // The line in yield 2 sees the loop's one run; the loop runs after it.
    const Execucao r = roda("clica BtnCedeComEventos\nna_cedencia 2 mostra Historico\n"
                            "na_cedencia 4 mostra Historico\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("Historico = \"x\"\nHistorico = \"xx\"\n"));
}

TEST(NaCedencia, CedenciaQueNaoHouveEErroDoCenario) {
    const Execucao r = roda("clica BtnCedeCinco\nna_cedencia 9 mostra QuantBan\nmostra QuantBan\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.transcricao, QStringLiteral("erro linha 2: a cedência 9 não houve (houve 5)\n"));
}

TEST(NaCedencia, SemLinhaQueAjaAntesEErro) {
    const Execucao r = roda("na_cedencia 1 mostra QuantBan\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.transcricao, QStringLiteral("erro linha 1: na_cedencia vem logo depois da linha que age\n"));
}

// A person can't type into a disabled box: the line is refused, and the
// keys don't go to the box that has the focus.
TEST(ControleDesabilitado, DigitarEErroDaLinha) {
    const Execucao r = roda("estado CmbAcertar\ndigita TxtValAp \"9\"\ndigita CmbAcertar \"xy\"\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(
        r.transcricao,
        QStringLiteral("CmbAcertar: visível desabilitado\nerro linha 3: o controle está desabilitado\n"));
}

TEST(ControleDesabilitado, TeclaEErroDaLinha) {
    const Execucao r = roda("tecla CmbAcertar Tab\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.transcricao, QStringLiteral("erro linha 1: o controle está desabilitado\n"));
}

TEST(Formas, ModalAnunciadaEComandadaPorDentroDoSeuLaco) {
    const Execucao r = roda("clica BtnAbreModal\ndigita TxtEscolhidos \"abc\"\nmostra TxtEscolhidos\n"
                            "mostra Sorvelo.TxtEscolhidos\nestado DialogoTeste.BtnOK\nclica BtnOK\n"
                            "mostra Historico\nmostra TxtEscolhidos\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("forma DialogoTeste \"Diálogo de teste\" modal\n"
                                            "TxtEscolhidos = \"abc\"\n"
                                            "Sorvelo.TxtEscolhidos = \"00\"\n"
                                            "DialogoTeste.BtnOK: visível habilitado\n"
                                            "fecha DialogoTeste\n"
                                            "Historico = \"abc\"\n"
                                            "TxtEscolhidos = \"00\"\n"));
}

TEST(Formas, NaoModalDeixaAJanelaPrincipalUsavel) {
    const Execucao r =
        roda("clica BtnAbreNaoModal\nclica Num(0)\nmostra TxtEscolhidos\nclica Ferramenta.BtnFechar\n"
             "mostra Ferramenta.BtnFechar\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.transcricao, QStringLiteral("forma Ferramenta \"Ferramenta\" não modal\n"
                                            "TxtEscolhidos = \"01\"\n"
                                            "fecha Ferramenta\n"
                                            "erro linha 5: a forma Ferramenta não está aberta\n"));
}

TEST(Servicos, ImpressoraEAbridorEscrevemNaTranscricao) {
    const Execucao r = roda("clica BtnServicos\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("impressora fonte \"Arial\" 10\n"
                                            "impressora \"00001)   01 02 \\r\\n\"\n"
                                            "impressora fim\n"
                                            "abre \"https://exemplo.com.br/novidades\"\n"));
}

TEST(Servicos, DialogoDeArquivoDevolveOQueArquivoEnfileirou) {
    const Execucao r =
        roda("arquivo \"/tmp/jogos.Apo\"\narquivo cancela\nclica BtnDialogos\nmostra NomeArquivo\n"
             "mostra ArquivoBanco\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao,
              QStringLiteral("arquivo abrir \"Abrir\" \"Arquivo de apostas (*.Apo)|*.Apo;\"\n"
                             "resposta \"/tmp/jogos.Apo\"\n"
                             "arquivo salvar \"Salvar\" \"Arquivo de apostas (*.Apo)|*.Apo;\"\n"
                             "resposta cancela\n"
                             "NomeArquivo = \"/tmp/jogos.Apo\"\n"
                             "ArquivoBanco = \"\"\n"));
}

TEST(Servicos, CaixasDeTodosOsTipos) {
    const Execucao r = roda("clica BtnCaixas\nresponde OK\nresponde OK\nresponde OK\nresponde Cancelar\n"
                            "mostra Cancelado\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.transcricao, QStringLiteral("caixa informação \"i\" [OK] padrão OK\nresposta OK\n"
                                            "caixa aviso \"a\" [OK] padrão OK\nresposta OK\n"
                                            "caixa crítico \"c\" [OK] padrão OK\nresposta OK\n"
                                            "caixa pergunta \"p?\" [Sim, Não, Cancelar] padrão Cancelar\n"
                                            "resposta Cancelar\n"
                                            "Cancelado = \"-1\"\n"));
}

// The ends in the middle of a handler end the process at once.
TEST(FimNoMeioDoTrabalho, DialogoDeArquivoSemArquivoEErro) {
    EXPECT_EXIT(roda("arquivo \"x.Apo\"\nclica BtnDialogos\n", 60000, stderr), ::testing::ExitedWithCode(2),
                "resposta \"x.Apo\"\narquivo salvar \"Salvar\" .*\nerro linha 2: nenhum `arquivo` responde a "
                "este diálogo");
}

TEST(FimNoMeioDoTrabalho, RespostaQueACaixaNaoTemEErro) {
    EXPECT_EXIT(roda("clica BtnCaixas\nresponde Sim\n", 60000, stderr), ::testing::ExitedWithCode(2),
                "caixa informação \"i\" \\[OK\\] padrão OK\nerro linha 2: a caixa não tem o botão Sim");
}

TEST(FimNoMeioDoTrabalho, CaixaSemRespostaTerminaComQuatro) {
    EXPECT_EXIT(roda("clica BtnCaixas\nresponde OK\nmostra Cancelado\n", 60000, stderr),
                ::testing::ExitedWithCode(4), "resposta OK\ncaixa aviso \"a\" \\[OK\\] padrão OK\n$");
}

TEST(FimNoMeioDoTrabalho, ControleAtrasDaFormaModalEErro) {
    EXPECT_EXIT(roda("clica BtnAbreModal\nclica MenuQuina\n", 60000, stderr), ::testing::ExitedWithCode(2),
                "forma DialogoTeste \"Diálogo de teste\" modal\nerro linha 2: a forma modal DialogoTeste "
                "está na frente");
}

TEST(FimNoMeioDoTrabalho, LinhaQueEsperaDemaisEErro) {
    EXPECT_EXIT(roda("clica BtnSemFim\nmostra QuantBan\n", 300, stderr), ::testing::ExitedWithCode(2),
                "erro linha 2: a linha esperou mais de 0.3 s pelo programa");
}

TEST(FimNoMeioDoTrabalho, ProgramaQueNaoCedeEErro) {
    EXPECT_EXIT(roda("clica BtnParado\nmostra QuantBan\n", 500, stderr), ::testing::ExitedWithCode(2),
                "erro linha 1: o programa não volta ao laço de mensagens há mais de 0.5 s");
}

TEST(FimNoMeioDoTrabalho, FalhaDepoisDeUmaCedencia) {
    EXPECT_EXIT(roda("clica BtnFalhaNaCedencia\nmostra QuantBan\n", 60000, stderr),
                ::testing::ExitedWithCode(3), "falha 6 \"Estouro\"");
}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    return RUN_ALL_TESTS();
}
