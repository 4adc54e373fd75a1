#include "apoio/ProgramaTeste.h"
#include "relatorios/Conferencia.h"
#include "relatorios/Pontuacao.h"

#include <gtest/gtest.h>

#include <memory>

using namespace sorvelo;
using sorvelo::teste::ProgramaTeste;

namespace {

const QString Cabecalho = QStringLiteral("Conferência de apostas da MEGA-SENA\r\nBanco de apostas: \r\n\r\n");

struct Conferencia : ProgramaTeste {
    std::unique_ptr<ConfApostas> forma;
    // The window as its holder keeps it, without widgets: loaded anew when
    // it isn't open, and its showing is its first activation (the form runs
    // it once the window stands); brought back when it is.
    explicit Conferencia(const QString& jogo = QStringLiteral("Mega-Sena")) : ProgramaTeste(jogo) {
        d.dialogos.quando(Dialogo::ConfApostas, [this] {
            if (forma && forma->aberto()) {
                if (!MostraConfApostasAberta(*forma)) forma.reset();
                return;
            }
            forma = std::make_unique<ConfApostas>(p);
            forma->Carrega();
            ++novas;
            if (ativaAoMostrar && !forma->Ativa()) forma.reset();
        });
    }
    int novas = 0;              // windows loaded anew
    bool ativaAoMostrar = true; // false: the test activates the new window itself
    void conferir() { BtnConferir(p); }
    QString iniciar() {
        forma->BtnIniciar();
        return forma->tela.RTFConf.texto();
    }
    QStringList linhas() const { return forma->tela.RTFConf.texto().split(QStringLiteral("\r\n")); }
    QStringList caixas() const {
        QStringList r;
        for (const auto& v : d.caixa.vistas())
            r << v.texto;
        return r;
    }
};

} // namespace

TEST(ConfApostas, BancoVazioComResultadoMarcado) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    ASSERT_TRUE(c.forma);
    EXPECT_EQ(c.iniciar(), Cabecalho + QStringLiteral("Resultado: 01 02 03 04 05 06 \r\n\r\n\r\n"));
    const auto trechos = c.forma->tela.RTFConf.trechos();
    ASSERT_EQ(trechos.size(), 3u);
    EXPECT_EQ(trechos[0].formato, c.forma->tela.RTFConf.formatoPadrao);
    EXPECT_EQ(trechos[0].fim, Cabecalho.size());
    EXPECT_EQ(trechos[1].formato, (Formato{rgb(0, 150, 0), true}));
    EXPECT_EQ(trechos[2].formato, (Formato{rgb(0, 150, 0), false}));
    EXPECT_EQ(c.forma->LblMensagem, QStringLiteral("Concluído."));
    EXPECT_TRUE(c.forma->tela.RTFConf.visivel());
    ASSERT_EQ(c.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(c.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Informacao);
    EXPECT_EQ(c.d.caixa.vistas()[0].texto, QStringLiteral("Conferência concluída!"));
}

TEST(ConfApostas, DuplaSenaSemNadaMarcadoLembraAvisaEFecha) {
    Conferencia c(QStringLiteral("Dupla Sena"));
    c.conferir();
    EXPECT_FALSE(c.forma);
    const auto& v = c.d.caixa.vistas();
    ASSERT_EQ(v.size(), 2u);
    EXPECT_EQ(v[0].tipo, CaixaVista::Tipo::Informacao);
    EXPECT_EQ(v[0].texto, QStringLiteral("Lembrete: não se esqueça de conferir o segundo sorteio!"));
    EXPECT_EQ(v[1].tipo, CaixaVista::Tipo::Aviso);
    EXPECT_EQ(v[1].texto, QStringLiteral("Informe o resultado na seção \"Escolha de números\""));
}

TEST(ConfApostas, DuplaSenaComResultadoSoLembra) {
    Conferencia c(QStringLiteral("Dupla Sena"));
    c.marca({50});
    c.conferir();
    ASSERT_TRUE(c.forma);
    EXPECT_EQ(c.caixas(), QStringList{"Lembrete: não se esqueça de conferir o segundo sorteio!"});
    EXPECT_EQ(c.forma->tela.TxtPontos.Text, QStringLiteral("4"));
    EXPECT_EQ(c.forma->tela.LblTitulo, QStringLiteral("Conferir banco de apostas - DUPLA SENA"));
}

TEST(ConfApostas, NadaMarcadoAvisaEFechaSemLembreteForaDaDuplaSena) {
    Conferencia c;
    c.marca({7}, true); // a red cell is no result
    c.conferir();
    EXPECT_FALSE(c.forma);
    EXPECT_EQ(c.caixas(), QStringList{"Informe o resultado na seção \"Escolha de números\""});
}

TEST(ConfApostas, JanelaNovaSoAvisaDoResultadoVazioQuandoAparece) {
    Conferencia c(QStringLiteral("Dupla Sena"));
    c.ativaAoMostrar = false;
    c.conferir();
    EXPECT_EQ(c.novas, 1) << "loaded anew: the window shows it";
    ASSERT_TRUE(c.forma);
    EXPECT_EQ(c.caixas(), QStringList{"Lembrete: não se esqueça de conferir o segundo sorteio!"});
    EXPECT_FALSE(c.forma->fechada());
    EXPECT_FALSE(c.forma->Ativa()); // the window stands: its first activation
    EXPECT_TRUE(c.forma->fechada());
    EXPECT_EQ(c.caixas(), (QStringList{"Lembrete: não se esqueça de conferir o segundo sorteio!",
                                       "Informe o resultado na seção \"Escolha de números\""}));
}

TEST(ConfApostas, JanelaAbertaVoltaSemNovaCargaETestaOResultadoNaHora) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    ConfApostas* janela = c.forma.get();
    c.marca({2});
    c.conferir();
    EXPECT_EQ(c.novas, 1);
    EXPECT_EQ(c.forma.get(), janela);
    LimpaNumeros(c.p);
    c.conferir();
    EXPECT_EQ(c.novas, 1);
    EXPECT_FALSE(c.forma);
    EXPECT_EQ(c.caixas(), QStringList{"Informe o resultado na seção \"Escolha de números\""});
}

TEST(ConfApostas, AJanelaSabeDaMensagemDeEsperaAntesDaCedencia) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    QStringList eventos;
    c.forma->aoMudarMensagem.liga([&] { eventos << QStringLiteral("mensagem ") + c.forma->LblMensagem; });
    c.d.cedencia.aoCeder = [&](long long) { eventos << QStringLiteral("cede"); };
    c.iniciar();
    EXPECT_EQ(eventos, (QStringList{"mensagem Aguarde, conferindo apostas...", "cede"}));
}

TEST(ConfApostas, LimiarPadraoETituloDeCadaJogo) {
    const std::pair<const char*, const char*> casos[] = {
        {"Mega-Sena", "4"}, {"Dupla Sena", "4"}, {"Quina", "3"}, {"Lotomania", "0"}, {"Lotofácil", "11"}};
    for (const auto& [jogo, limiar] : casos) {
        Conferencia c(QString::fromUtf8(jogo));
        c.marca({5});
        c.conferir();
        ASSERT_TRUE(c.forma) << jogo;
        EXPECT_EQ(c.forma->tela.TxtPontos.Text, QString::fromUtf8(limiar)) << jogo;
        EXPECT_EQ(c.forma->tela.LblTitulo,
                  QStringLiteral("Conferir banco de apostas - ") + c.p.e.NomeLoteria);
        EXPECT_EQ(c.forma->tela.Caption, QStringLiteral("Conferência de apostas"));
    }
}

TEST(ConfApostas, LotomaniaComLimiarPadraoListaTodasInclusiveAsDeZeroPonto) {
    Conferencia c(QStringLiteral("Lotomania"));
    c.marca({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19});
    c.conferir();
    QStringList sem, com;
    for (int n = 50; n < 100; ++n)
        sem << formata00(n);
    for (int n = 0; n < 50; ++n)
        com << formata00(n);
    c.aposta(sem);
    c.aposta(com);
    c.aposta(sem);
    c.iniciar();
    const QStringList l = c.linhas();
    EXPECT_EQ(l[5], QStringLiteral("00001)   ") + sem.join(u' ') + QStringLiteral("   0 ponto"));
    EXPECT_EQ(l[6], QStringLiteral("00002)   ") + com.join(u' ') + QStringLiteral("   20 pontos"));
    EXPECT_EQ(l[7], QStringLiteral("00003)   ") + sem.join(u' ') + QStringLiteral("   0 ponto"));
    EXPECT_EQ(l[8], QString());
    EXPECT_EQ(l[9], QStringLiteral("Total de cartelas com 0 pontos: 2"));
    EXPECT_EQ(l[10], QStringLiteral("Total de cartelas com 20 pontos: 1"));
    EXPECT_EQ(l[11], QString());
    EXPECT_EQ(l.size(), 12);
}

TEST(ConfApostas, LimiarZeroNaQuinaPontoNoSingularAte1) {
    Conferencia c(QStringLiteral("Quina"));
    c.marca({1, 2, 3, 4, 5});
    c.conferir();
    c.forma->tela.TxtPontos.Text = QStringLiteral("0");
    c.aposta({10, 20, 30, 40, 50});
    c.aposta({1, 20, 30, 40, 50});
    c.aposta({1, 2, 30, 40, 50});
    c.iniciar();
    const QStringList l = c.linhas();
    EXPECT_EQ(l[5], QStringLiteral("00001)   10 20 30 40 50   0 ponto"));
    EXPECT_EQ(l[6], QStringLiteral("00002)   01 20 30 40 50   1 ponto"));
    EXPECT_EQ(l[7], QStringLiteral("00003)   01 02 30 40 50   2 pontos"));
    // The tally says "pontos" for every score.
    EXPECT_EQ(l[9], QStringLiteral("Total de cartelas com 0 pontos: 1"));
    EXPECT_EQ(l[10], QStringLiteral("Total de cartelas com 1 pontos: 1"));
    EXPECT_EQ(l[11], QStringLiteral("Total de cartelas com 2 pontos: 1"));
}

TEST(ConfApostas, ArquivoDoBancoNaSegundaLinha) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    c.iniciar();
    EXPECT_EQ(c.linhas()[1], QStringLiteral("Banco de apostas: "));
    c.p.e.ArquivoBanco = QStringLiteral("/home/ana/Mega 2026.Apo");
    c.iniciar();
    EXPECT_EQ(c.linhas()[1], QStringLiteral("Banco de apostas: /home/ana/Mega 2026.Apo"));
}

TEST(ConfApostas, NumeroVermelhoApareceNoResultadoENaoPontua) {
    Conferencia c;
    c.marca({1, 2, 3, 4});
    c.marca({5}, true);
    c.conferir();
    c.forma->tela.TxtPontos.Text = QStringLiteral("0");
    c.aposta({1, 2, 3, 4, 5, 6});
    c.iniciar();
    const QStringList l = c.linhas();
    EXPECT_EQ(l[3], QStringLiteral("Resultado: 01 02 03 04 05 "));
    EXPECT_EQ(l[5], QStringLiteral("00001)   01 02 03 04 05 06   4 pontos"));
}

TEST(ConfApostas, LotomaniaNumeroAcimaDe79ApareceNoResultadoENaoPontua) {
    Conferencia c(QStringLiteral("Lotomania"));
    c.marca({10, 85});
    c.conferir();
    c.aposta({10, 85});
    c.iniciar();
    const QStringList l = c.linhas();
    EXPECT_EQ(l[3], QStringLiteral("Resultado: 10 85 "));
    EXPECT_EQ(l[5], QStringLiteral("00001)   10 85   1 ponto"));
}

TEST(ConfApostas, DuasExecucoesDaoOMesmoTextoSemDobrarAContagem) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    for (int i = 0; i < 7; ++i)
        c.aposta({1, 2, 3, 4, 40 + i, 50});
    c.aposta({1, 2, 3, 30, 40, 50});
    const QString primeira = c.iniciar();
    const auto trechos = c.forma->tela.RTFConf.trechos();
    const QString segunda = c.iniciar();
    EXPECT_EQ(primeira, segunda);
    EXPECT_EQ(trechos.size(), c.forma->tela.RTFConf.trechos().size());
    EXPECT_TRUE(segunda.contains(QStringLiteral("Total de cartelas com 4 pontos: 7\r\n")));
    EXPECT_FALSE(segunda.contains(QStringLiteral("3 pontos")));
    EXPECT_EQ(c.forma->VetPontos(4), 7);
}

TEST(ConfApostas, LinhaDaApostaNumeradaPelaLinhaDoBancoEColorida) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 7, 8});
    c.conferir();
    for (int i = 0; i < 11; ++i)
        c.aposta({11, 12, 13, 14, 15, 16});
    c.aposta({1, 2, 3, 4, 5, 6});
    c.iniciar();
    const QString linha = QStringLiteral("00012)   01 02 03 04 05 06   4 pontos\r\n");
    const QString& texto = c.forma->tela.RTFConf.texto();
    const int64_t ini = texto.indexOf(linha);
    ASSERT_GT(ini, 0);
    const auto trechos = c.forma->tela.RTFConf.trechos(ini, ini + linha.size());
    ASSERT_EQ(trechos.size(), 2u);
    EXPECT_EQ(trechos[0].fim - trechos[0].inicio, 6);
    EXPECT_EQ(trechos[0].formato, (Formato{rgb(150, 0, 0), false}));
    EXPECT_EQ(trechos[1].formato, (Formato{rgb(0, 0, 255), false}));
    EXPECT_EQ(trechos[1].fim, ini + linha.size());
    EXPECT_EQ(c.linhas()[7], QStringLiteral("Total de cartelas com 4 pontos: 1"));
}

TEST(ConfApostas, NumeroDaApostaAcimaDe99999NaoCortaECorAindaEm6) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    for (int i = 0; i < 100000; ++i)
        c.aposta({i == 99999 ? 1 : 2});
    c.forma->tela.TxtPontos.Text = QStringLiteral("1");
    c.iniciar();
    const QString linha = QStringLiteral("100000)   01   1 ponto\r\n");
    const QString& texto = c.forma->tela.RTFConf.texto();
    const int64_t ini = texto.indexOf(linha);
    ASSERT_GT(ini, 0);
    const auto trechos = c.forma->tela.RTFConf.trechos(ini, ini + linha.size());
    ASSERT_EQ(trechos.size(), 2u);
    EXPECT_EQ(trechos[0].fim - trechos[0].inicio, 6);
    EXPECT_EQ(texto.mid(ini, 6), QStringLiteral("100000"));
}

TEST(ConfApostas, LimiarLidoComoValorNumericoDoTexto) {
    struct Caso {
        const char* texto;
        QStringList listadas;
    };
    const Caso casos[] = {{"3.5", {"00004", "00005"}},
                          {"3,5", {"00003", "00004", "00005"}},
                          {"", {"00001", "00002", "00003", "00004", "00005"}},
                          {"abc", {"00001", "00002", "00003", "00004", "00005"}},
                          {"-2", {"00001", "00002", "00003", "00004", "00005"}},
                          {" 5 pontos", {"00005"}},
                          {"7", {}}};
    for (const Caso& caso : casos) {
        Conferencia c;
        c.marca({1, 2, 3, 4, 5, 6});
        c.conferir();
        c.aposta({10, 20, 30, 40, 50, 60});
        c.aposta({1, 20, 30, 40, 50, 60});
        c.aposta({1, 2, 3, 40, 50, 60});
        c.aposta({1, 2, 3, 4, 50, 60});
        c.aposta({1, 2, 3, 4, 5, 60});
        c.forma->tela.TxtPontos.Text = QString::fromUtf8(caso.texto);
        c.iniciar();
        QStringList listadas;
        for (const QString& l : c.linhas())
            if (l.size() > 5 && l[5] == u')') listadas << l.left(5);
        EXPECT_EQ(listadas, caso.listadas) << caso.texto;
        EXPECT_EQ(c.forma->LblMensagem, QStringLiteral("Concluído.")) << caso.texto;
    }
}

TEST(ConfApostas, LimiarAcimaDeTodosOsPontosNaoListaNada) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    c.aposta({1, 2, 3, 4, 5, 6});
    c.forma->tela.TxtPontos.Text = QStringLiteral("7");
    EXPECT_EQ(c.iniciar(), Cabecalho + QStringLiteral("Resultado: 01 02 03 04 05 06 \r\n\r\n\r\n"));
    EXPECT_EQ(c.forma->LblMensagem, QStringLiteral("Concluído."));
    EXPECT_EQ(c.caixas().last(), QStringLiteral("Conferência concluída!"));
}

TEST(ConfApostas, MarcasMudadasDepoisDeConferirNaoValemAteNovaConferencia) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    c.aposta({1, 2, 3, 4, 5, 6});
    c.aposta({11, 12, 13, 14, 15, 16});
    LimpaNumeros(c.p);
    c.marca({11, 12, 13, 14, 15, 16});
    const QString antes = c.iniciar();
    EXPECT_EQ(c.linhas()[3], QStringLiteral("Resultado: 01 02 03 04 05 06 "));
    EXPECT_TRUE(antes.contains(QStringLiteral("00001)   01 02 03 04 05 06   6 pontos")));
    EXPECT_FALSE(antes.contains(QStringLiteral("00002)")));

    c.conferir();
    c.iniciar();
    EXPECT_EQ(c.linhas()[3], QStringLiteral("Resultado: 11 12 13 14 15 16 "));
    EXPECT_EQ(c.linhas()[5], QStringLiteral("00002)   11 12 13 14 15 16   6 pontos"));
}

TEST(ConfApostas, NovaConferenciaComAJanelaAbertaNaoCarregaDeNovo) {
    Conferencia c(QStringLiteral("Dupla Sena"));
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    ConfApostas* janela = c.forma.get();
    c.forma->tela.TxtPontos.Text = QStringLiteral("2");
    c.marca({7});
    c.conferir();
    EXPECT_EQ(c.forma.get(), janela);
    EXPECT_EQ(c.forma->tela.TxtPontos.Text, QStringLiteral("2"));
    EXPECT_EQ(c.caixas(), QStringList{"Lembrete: não se esqueça de conferir o segundo sorteio!"});
    EXPECT_EQ(c.p.e.VetDezenas(6), QStringLiteral("07"));
}

TEST(ConfApostas, JanelaFechadaCarregaDeNovoNaProximaConferencia) {
    Conferencia c(QStringLiteral("Dupla Sena"));
    c.marca({1});
    c.conferir();
    c.forma->tela.TxtPontos.Text = QStringLiteral("2");
    c.forma->BtnCancelar();
    EXPECT_TRUE(c.forma->fechada());
    c.conferir();
    ASSERT_TRUE(c.forma);
    EXPECT_FALSE(c.forma->fechada());
    EXPECT_EQ(c.forma->tela.TxtPontos.Text, QStringLiteral("4"));
    EXPECT_EQ(c.caixas().count(QStringLiteral("Lembrete: não se esqueça de conferir o segundo sorteio!")), 2);
}

TEST(ConfApostas, ConferenciaSemMarcasComAJanelaAbertaAvisaEFecha) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    LimpaNumeros(c.p);
    c.conferir();
    EXPECT_FALSE(c.forma);
    EXPECT_EQ(c.caixas(), QStringList{"Informe o resultado na seção \"Escolha de números\""});
}

TEST(ConfApostas, VoltarAJanelaComResultadoValidoNaoAvisa) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    LimpaNumeros(c.p); // the snapshot still holds 01
    EXPECT_TRUE(c.forma->Ativa());
    EXPECT_TRUE(c.caixas().isEmpty());
}

TEST(ConfApostas, BancoJogoEArquivoSaoLidosAoIniciar) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    // The game switch empties bank, grid and chosen numbers; the result
    // stays in VetDezenas until the next press of "Conferir banco".
    TrocaLoteria(c.p, QStringLiteral("Quina"));
    c.aposta({1, 2, 3, 4, 5});
    c.iniciar();
    const QStringList l = c.linhas();
    EXPECT_EQ(l[0], QStringLiteral("Conferência de apostas da QUINA"));
    EXPECT_EQ(l[3], QStringLiteral("Resultado: "));
    EXPECT_EQ(l[5], QStringLiteral("00001)   01 02 03 04 05   5 pontos"));
    // The threshold stays the one set at load.
    EXPECT_EQ(c.forma->tela.TxtPontos.Text, QStringLiteral("4"));
}

TEST(ConfApostas, UmaCedenciaComAMensagemDeEsperaEListagemEscondidaDuranteAExecucao) {
    Conferencia c;
    c.marca({1, 2, 3, 4});
    c.conferir();
    for (int i = 0; i < 40; ++i)
        c.aposta({1, 2, 3, 4, 5, 6});
    QStringList mensagens;
    c.d.cedencia.aoCeder = [&](long long) { mensagens << c.forma->LblMensagem; };
    int escritasVisiveis = 0, escritas = 0;
    c.forma->tela.RTFConf.aoMudar.liga([&] {
        ++escritas;
        if (c.forma->tela.RTFConf.visivel()) ++escritasVisiveis;
    });
    c.iniciar();
    EXPECT_EQ(mensagens, QStringList{"Aguarde, conferindo apostas..."});
    EXPECT_EQ(c.d.cedencia.quantas, 1);
    EXPECT_GT(escritas, 40);
    EXPECT_EQ(escritasVisiveis, 0);
    EXPECT_TRUE(c.forma->tela.RTFConf.visivel());
}

TEST(ConfApostas, FimLinhaFechaCadaPedacoEOResultadoGanhaUmaLinhaAMais) {
    Conferencia c;
    c.p.e.FimLinha = QString(); // the system whose rich text closes the paragraph itself
    c.marca({1, 2});
    c.conferir();
    c.forma->tela.TxtPontos.Text = QStringLiteral("0");
    c.aposta({1, 3});
    c.aposta({4, 5});
    EXPECT_EQ(c.iniciar(), Cabecalho + QStringLiteral("Resultado: 01 02 \r\n00001)   01 03   1 ponto"
                                                      "00002)   04 05   0 ponto"
                                                      "Total de cartelas com 0 pontos: 1"
                                                      "Total de cartelas com 1 pontos: 1"));
}

TEST(ConfApostas, MaisDe32767ListadasNumMesmoPontoEstouram) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    c.forma->tela.TxtPontos.Text = QStringLiteral("0");
    for (int i = 0; i < 32767; ++i)
        c.aposta({2});
    c.iniciar();
    EXPECT_EQ(c.forma->VetPontos(0), 32767);
    EXPECT_TRUE(c.linhas().contains(QStringLiteral("Total de cartelas com 0 pontos: 32767")));

    c.aposta({3});
    try {
        c.forma->BtnIniciar();
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::Estouro);
    }
    EXPECT_EQ(c.caixas().count(QStringLiteral("Conferência concluída!")), 1);
}

TEST(ConfApostas, LinhaSemFimInterrompeComFalha9) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    c.aposta({1});
    QStringList cheia;
    for (int k = 0; k <= 81; ++k)
        cheia << formata00(k);
    c.aposta(cheia, false);
    try {
        c.forma->BtnIniciar();
        FAIL() << "sem falha";
    } catch (const FalhaExecucao& f) {
        EXPECT_EQ(f.numero(), erro::SubscritoForaIntervalo);
    }
    EXPECT_NE(c.forma->LblMensagem, QStringLiteral("Concluído."));
}

TEST(ConfApostas, ImprimeUmaLinhaEmBrancoEOTextoDaListagem) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    c.forma->BtnImprimir(); // before a run: blank lines only
    EXPECT_EQ(c.d.impressora.registro, (QStringList{"texto ", "texto ", "fim"}));
    c.d.impressora.registro.clear();

    c.aposta({1, 2, 3, 4, 5, 6});
    const QString texto = c.iniciar();
    c.forma->BtnImprimir();
    EXPECT_EQ(c.d.impressora.registro, (QStringList{"texto ", "texto " + texto, "fim"}));
    EXPECT_TRUE(texto.contains(QStringLiteral("00001)   01 02 03 04 05 06   6 pontos\r\n")));
}

TEST(ConfApostas, RedimensionaQuadroEListagem) {
    Conferencia c;
    c.marca({1});
    c.conferir();
    c.forma->Redimensiona(9000, 7000);
    EXPECT_EQ(c.forma->tela.FraConfTop, 4800);
    EXPECT_EQ(c.forma->tela.RTFConfWidth, 8650);
    EXPECT_EQ(c.forma->tela.RTFConfHeight, 4000);
}

TEST(ConfApostas, NadaMudaNoBanco) {
    Conferencia c;
    c.marca({1, 2, 3, 4, 5, 6});
    c.conferir();
    InsereApostaMarcada(c.p);
    c.p.e.BancoAlterado = false;
    const QString banco = c.p.tela.TxtBanco.texto();
    c.iniciar();
    EXPECT_EQ(c.p.e.QuantBan, 1);
    EXPECT_EQ(RetApostaVetBan(c.p, 0), QStringLiteral("01 02 03 04 05 06 "));
    EXPECT_EQ(c.p.tela.TxtBanco.texto(), banco);
    EXPECT_FALSE(c.p.e.BancoAlterado);
}
