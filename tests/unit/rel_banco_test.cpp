#include "apoio/ProgramaTeste.h"
#include "relatorios/RelBanco.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

using namespace sorvelo;
using sorvelo::teste::falhaDe;
using sorvelo::teste::ProgramaTeste;

namespace {

const QStringList FontesTela = {"Arial", "Courier New", "DejaVu Sans", "Liberation Mono", "Última"};

struct Listagem : ProgramaTeste {
    std::unique_ptr<RelBanco> forma;
    explicit Listagem(const QString& jogo = QStringLiteral("Mega-Sena")) : ProgramaTeste(jogo) {}
    // Load and the first activation, as the form shows it.
    QString abre(const QStringList& fontes = FontesTela) {
        forma = std::make_unique<RelBanco>(p);
        forma->Carrega(fontes, 19200, 14400);
        forma->Ativa();
        return forma->tela.RTFRel.texto();
    }
    void apostas(int quant) {
        for (int i = 0; i < quant; ++i)
            aposta({1 + i % 50, 2 + i % 50, 3 + i % 50, 4 + i % 50, 5 + i % 50, 6 + i % 50});
    }
    QString cabecalho() const {
        return QStringLiteral("Listagem de apostas - ") + p.e.NomeLoteria +
               QStringLiteral("\r\nData: 22/11/2026 14:05:09\r\nNome do arquivo: ") + p.e.ArquivoBanco +
               QStringLiteral("\r\n\r\nDezenas escolhidas: ") + p.e.DezEscolhidas + QStringLiteral("\r\n") +
               p.e.Historico + QStringLiteral("\r\n");
    }
    // The rows of bets (between the head and the footer).
    QString corpo() const {
        const QString t = forma->tela.RTFRel.texto();
        const QString rodape = QStringLiteral("\r\n\r\n") + p.e.TextoEstatistica + QStringLiteral("\r\n\r\n");
        const QString c = cabecalho();
        return t.mid(c.size(), t.size() - c.size() - rodape.size());
    }
};

// The listing built the plain way: the whole text rewritten for
// every cell of every row.
struct ReferenciaListagem {
    explicit ReferenciaListagem(const Programa& programa) : p(programa) {}
    const Programa& p;
    QString Text;
    QString VetRelNumero[11], VetRelAposta[11];
    int ColunasRel = 0;
    void EscreveLinhaRel() {
        for (int c = 0; c <= ColunasRel - 1; ++c)
            Text = Text + VetRelNumero[c] + VetRelAposta[c] + QStringLiteral("   ");
        Text = Text + QStringLiteral("\r\n");
        for (int c = 0; c <= 9; ++c)
            VetRelNumero[c] = VetRelAposta[c] = QString();
    }
    QString monta(const QString& agora) {
        const Estado& e = p.e;
        ColunasRel = e.NomeLoteria == "MEGA-SENA" || e.NomeLoteria == "DUPLA SENA" ? 4
                     : e.NomeLoteria == "QUINA"                                    ? 5
                     : e.NomeLoteria == "LOTOMANIA"                                ? 1
                                                                                   : 2;
        const int digitos = e.QuantBan >= 100000 ? 7 : 5;
        Text = "Listagem de apostas - " + e.NomeLoteria + "\r\n" + "Data: " + agora + "\r\n" +
               "Nome do arquivo: " + e.ArquivoBanco + "\r\n\r\n";
        Text = Text + "Dezenas escolhidas: " + e.DezEscolhidas + "\r\n" + e.Historico + "\r\n";
        int ColunaRel = 0;
        for (int64_t i = 0; i < e.QuantBan.valor(); ++i) {
            QString aposta;
            for (int c = 0;; ++c) {
                const QString v = e.VetBan.valor(c, i);
                if (v == u'#') break;
                aposta += v + u' ';
            }
            VetRelAposta[ColunaRel] = aposta;
            VetRelNumero[ColunaRel] = QString::number(i + 1).rightJustified(digitos, u'0') + ")  ";
            ++ColunaRel;
            if (ColunaRel == ColunasRel) {
                EscreveLinhaRel();
                ColunaRel = 0;
            }
        }
        EscreveLinhaRel();
        Text = Text + "\r\n\r\n";
        Text = Text + e.TextoEstatistica + "\r\n\r\n";
        return Text;
    }
};

QString celula(int n, std::initializer_list<int> numeros) {
    QString s = formata(n, 5) + QStringLiteral(")  ");
    for (int x : numeros)
        s += formata00(x) + u' ';
    return s + QStringLiteral("   ");
}

} // namespace

TEST(RelBanco, CabecalhoComJogoDataArquivoEscolhidasELog) {
    Listagem l;
    l.p.e.ArquivoBanco = QStringLiteral("/home/ana/apostas.Apo");
    l.p.e.DezEscolhidas = QStringLiteral("01 02 03 04 05 06 07 ");
    l.p.e.Historico = QStringLiteral("22/11/2026 14:00:00: Combinação de 7 dezenas\r\n");
    l.aposta({1, 2, 3, 4, 5, 6});
    const QString t = l.abre();
    EXPECT_TRUE(t.startsWith(QStringLiteral("Listagem de apostas - MEGA-SENA\r\nData: 22/11/2026 "
                                            "14:05:09\r\nNome do arquivo: /home/ana/apostas.Apo\r\n"
                                            "\r\nDezenas escolhidas: 01 02 03 04 05 06 07 \r\n22/11/2026 "
                                            "14:00:00: Combinação de 7 dezenas\r\n\r\n"
                                            "00001)  01 02 03 04 05 06    ")));
    EXPECT_EQ(l.forma->tela.Caption, QStringLiteral("Listagem do banco de apostas"));
    EXPECT_EQ(l.forma->tela.Label1, QStringLiteral("Listagem do banco de apostas - Preview"));
    EXPECT_EQ(l.forma->tela.Label2,
              QStringLiteral("Obs.: os dados do relatório poderão ser copiados ou alterados."));
}

TEST(RelBanco, OitoApostasDuasLinhasCheiasEUmaLinhaDeBrancos) {
    Listagem l;
    l.apostas(8);
    l.abre();
    QString esperado;
    for (int linha = 0; linha < 2; ++linha) {
        for (int c = 0; c < 4; ++c) {
            const int i = linha * 4 + c;
            esperado += celula(i + 1, {1 + i, 2 + i, 3 + i, 4 + i, 5 + i, 6 + i});
        }
        esperado += QStringLiteral("\r\n");
    }
    esperado += QStringLiteral("            \r\n");
    EXPECT_EQ(l.corpo(), esperado);
    EXPECT_TRUE(l.forma->tela.RTFRel.texto().endsWith(QStringLiteral("            \r\n\r\n\r\n\r\n\r\n")))
        << "an empty footer is blank lines only";
}

TEST(RelBanco, NoveApostasTerceiraLinhaComUmaApostaETresGruposDeBrancos) {
    Listagem l;
    l.apostas(9);
    l.abre();
    const QStringList linhas = l.corpo().split(QStringLiteral("\r\n"));
    ASSERT_EQ(linhas.size(), 4);
    EXPECT_EQ(linhas[2], celula(9, {9, 10, 11, 12, 13, 14}) + QStringLiteral("         "));
    EXPECT_EQ(linhas[3], QString());
    EXPECT_TRUE(linhas[0].startsWith(QStringLiteral("00001)  01 02 03 04 05 06    00002)  02 ")));
}

TEST(RelBanco, MascaraDeCincoDigitosAte99999EDeSeteDesde100000) {
    Listagem l;
    l.apostas(99999);
    l.abre();
    EXPECT_TRUE(l.corpo().startsWith(QStringLiteral("00001)  ")));
    EXPECT_TRUE(l.corpo().contains(QStringLiteral("99999)  ")));
    EXPECT_FALSE(l.corpo().contains(QStringLiteral("0000001)  ")));
    l.aposta({1, 2, 3, 4, 5, 6});
    l.abre();
    EXPECT_TRUE(l.corpo().startsWith(QStringLiteral("0000001)  01 02 03 04 05 06    0000002)  ")));
    EXPECT_TRUE(l.corpo().contains(QStringLiteral("0099999)  ")));
    EXPECT_TRUE(l.corpo().contains(QStringLiteral("0100000)  01 02 03 04 05 06    ")));
}

TEST(RelBanco, LotomaniaUmaApostaPorLinhaEmOitoPontos) {
    Listagem l(QStringLiteral("Lotomania"));
    QStringList aposta;
    for (int n = 0; n < 50; ++n)
        aposta << formata00(n * 2);
    l.aposta(aposta);
    l.aposta(aposta);
    l.abre();
    const QStringList linhas = l.corpo().split(QStringLiteral("\r\n"));
    ASSERT_EQ(linhas.size(), 4);
    EXPECT_EQ(linhas[0], QStringLiteral("00001)  ") + aposta.join(u' ') + QStringLiteral("    "));
    EXPECT_TRUE(linhas[1].startsWith(QStringLiteral("00002)  00 02 ")));
    EXPECT_EQ(linhas[2], QStringLiteral("   "));
    EXPECT_EQ(l.forma->tela.FonteTamanho, 8);
    EXPECT_EQ(l.forma->tela.CmbTamanho.Text, QStringLiteral("8"));
}

TEST(RelBanco, OutrosJogosFicamEmNoveVirgulaSetentaECincoComDezNaCaixa) {
    for (const char* jogo : {"Mega-Sena", "Dupla Sena", "Quina", "Lotofácil"}) {
        Listagem l(QString::fromUtf8(jogo));
        l.abre();
        EXPECT_EQ(l.forma->tela.FonteTamanho, 9.75) << jogo;
        EXPECT_EQ(l.forma->tela.CmbTamanho.Text, QStringLiteral("10")) << jogo;
        EXPECT_EQ(l.forma->tela.CmbFonte.Text, QStringLiteral("Arial")) << jogo;
    }
}

TEST(RelBanco, ColunasDoJogo) {
    EXPECT_EQ(colunasRel(QStringLiteral("MEGA-SENA")), 4);
    EXPECT_EQ(colunasRel(QStringLiteral("DUPLA SENA")), 4);
    EXPECT_EQ(colunasRel(QStringLiteral("QUINA")), 5);
    EXPECT_EQ(colunasRel(QStringLiteral("LOTOMANIA")), 1);
    EXPECT_EQ(colunasRel(QStringLiteral("LOTOFÁCIL")), 2);
}

TEST(RelBanco, ApostasMaisLongasNaoMudamAsColunas) {
    Listagem l(QStringLiteral("Quina"));
    for (int i = 0; i < 6; ++i)
        l.aposta({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    l.abre();
    const QStringList linhas = l.corpo().split(QStringLiteral("\r\n"));
    EXPECT_EQ(linhas[0].count(QStringLiteral(")  ")), 5);
    EXPECT_EQ(linhas[1].count(QStringLiteral(")  ")), 1);
}

TEST(RelBanco, ArquivoVazioALinhaParaNoRotulo) {
    Listagem l;
    l.aposta({1, 2, 3, 4, 5, 6});
    const QString t = l.abre();
    EXPECT_TRUE(t.contains(QStringLiteral("\r\nNome do arquivo: \r\n\r\n")));
}

TEST(RelBanco, RodapeComAEstatistica) {
    Listagem l;
    l.aposta({1, 2, 3, 4, 5, 6});
    l.p.e.TextoEstatistica = QStringLiteral("Quadra: 15\r\nQuina: 6");
    const QString t = l.abre();
    EXPECT_TRUE(t.endsWith(QStringLiteral("06") + QString(13, u' ') +
                           QStringLiteral("\r\n\r\n\r\nQuadra: 15\r\nQuina: 6\r\n\r\n")));
}

TEST(RelBanco, BancoVazioDeixaAListagemVazia) {
    Listagem l;
    EXPECT_EQ(l.abre(), QString());
    EXPECT_TRUE(l.forma->Preenchido);
    l.forma->BtnImprimir();
    EXPECT_EQ(l.d.impressora.registro, QStringList({"texto ", "fonte Arial 10", "texto ", "fim"}));
}

TEST(RelBanco, ReabrirRefazComNovaHoraEPerdeAsEdicoes) {
    Listagem l;
    l.aposta({1, 2, 3, 4, 5, 6});
    l.abre();
    l.forma->tela.RTFRel.acrescenta(QStringLiteral("minha nota"), 0);
    l.forma->Ativa(); // coming back from another window: not rebuilt
    EXPECT_TRUE(l.forma->tela.RTFRel.texto().endsWith(QStringLiteral("minha nota")));
    l.forma->BtnCancelar();
    EXPECT_TRUE(l.forma->fechada());
    l.d.relogio.momento = QDateTime(QDate(2026, 11, 22), QTime(15, 30, 0));
    const QString t = l.abre();
    EXPECT_FALSE(t.contains(QStringLiteral("minha nota")));
    EXPECT_TRUE(t.contains(QStringLiteral("\r\nData: 22/11/2026 15:30:00\r\n")));
}

TEST(RelBanco, FontesDaTelaMenosAUltimaETamanhosDe6A24) {
    Listagem l;
    l.abre();
    EXPECT_EQ(l.forma->tela.CmbFonte.itens,
              QStringList({"Arial", "Courier New", "DejaVu Sans", "Liberation Mono"}));
    QStringList tamanhos;
    for (int i = 6; i <= 24; ++i)
        tamanhos << QString::number(i);
    EXPECT_EQ(l.forma->tela.CmbTamanho.itens, tamanhos);
    EXPECT_EQ(l.forma->tela.CmbTamanho.itens.size(), 19);
}

TEST(RelBanco, UmaSoFonteDeixaAListaVaziaEArialNaCaixa) {
    Listagem l;
    l.abre({"Sans"});
    EXPECT_TRUE(l.forma->tela.CmbFonte.itens.isEmpty());
    EXPECT_EQ(l.forma->tela.CmbFonte.Text, QStringLiteral("Arial"));
    Listagem nenhuma;
    nenhuma.abre({});
    EXPECT_TRUE(nenhuma.forma->tela.CmbFonte.itens.isEmpty());
}

TEST(RelBanco, JanelaSobreATelaSemQuebraDeLinha) {
    Listagem l;
    l.abre();
    const TelaRelBanco& t = l.forma->tela;
    EXPECT_EQ(t.Left, 0);
    EXPECT_EQ(t.Top, 0);
    EXPECT_EQ(t.Width, 19200);
    EXPECT_EQ(t.Height, 14000);
    EXPECT_EQ(t.RTFRelWidth, 18800);
    EXPECT_EQ(t.RTFRelHeight, 12900);
    EXPECT_EQ(t.RightMargin, 200000);
}

TEST(RelBanco, FonteETamanhoMudamAListagemInteiraEOCursorVaiAoInicio) {
    Listagem l;
    l.apostas(3);
    l.abre();
    l.forma->tela.SelStart = 40;
    l.forma->tela.CmbFonte.Text = QStringLiteral("Courier New");
    l.forma->CmbFonteClick();
    EXPECT_EQ(l.forma->tela.FonteNome, QStringLiteral("Courier New"));
    EXPECT_EQ(l.forma->tela.SelStart, 0);
    EXPECT_EQ(l.forma->tela.SelLength, 0);
    l.forma->tela.CmbTamanho.Text = QStringLiteral("14");
    l.forma->CmbTamanhoClick();
    EXPECT_EQ(l.forma->tela.FonteTamanho, 14);
    l.forma->tela.CmbTamanho.Text = QStringLiteral("grande");
    l.forma->CmbTamanhoClick();
    EXPECT_EQ(l.forma->tela.FonteTamanho, 0) << "a size that is no number reads 0";
}

TEST(RelBanco, ImprimirOTextoEditadoNaFonteEscolhida) {
    Listagem l;
    l.apostas(2);
    l.abre();
    l.forma->tela.RTFRel.acrescenta(QStringLiteral("editado"), 0);
    l.forma->tela.CmbFonte.Text = QStringLiteral("Courier New");
    l.forma->tela.CmbTamanho.Text = QStringLiteral("12.5");
    l.forma->BtnImprimir();
    EXPECT_EQ(l.d.impressora.registro, QStringList({"texto ", "fonte Courier New 12.5",
                                                    "texto " + l.forma->tela.RTFRel.texto(), "fim"}));
    EXPECT_TRUE(l.d.impressora.registro[2].endsWith(QStringLiteral("editado")));
    EXPECT_FALSE(l.forma->fechada()) << "the form stays open";
    l.d.impressora.registro.clear();
    l.forma->tela.CmbTamanho.Text = QStringLiteral("x");
    l.forma->BtnImprimir();
    EXPECT_EQ(l.d.impressora.registro[1], QStringLiteral("fonte Courier New 0"));
}

TEST(RelBanco, NadaMudaNoBanco) {
    Listagem l;
    l.apostas(5);
    const bool alterado = l.p.e.BancoAlterado;
    const QString banco = l.p.tela.TxtBanco.texto();
    l.abre();
    EXPECT_EQ(l.p.e.QuantBan, 5);
    EXPECT_EQ(l.p.e.BancoAlterado, alterado);
    EXPECT_EQ(l.p.tela.TxtBanco.texto(), banco);
    EXPECT_EQ(l.forma->QuantDezRel, 6);
    EXPECT_EQ(l.forma->ColunasRel, 4);
}

TEST(RelBanco, ApostaSemFimEFalhaDeSubscrito) {
    Listagem l;
    l.aposta({1, 2, 3, 4, 5, 6});
    l.aposta(QStringList{"01"}, false);
    for (int c = 1; c <= 81; ++c)
        l.p.e.VetBan.define(c, 1, QStringLiteral("02"));
    EXPECT_EQ(falhaDe([&] { l.abre(); }), erro::SubscritoForaIntervalo);
}

// The listing built in one pass is the listing of the per-cell rewrite, on
// random banks of every game.
TEST(RelBanco, MesmoTextoQueAReescritaPorCelula) {
    std::mt19937 g(99);
    const char* jogosTeste[] = {"Mega-Sena", "Dupla Sena", "Quina", "Lotomania", "Lotofácil"};
    int casos = 0;
    for (const char* jogo : jogosTeste) {
        for (int caso = 0; caso < 30; ++caso) {
            Listagem l(QString::fromUtf8(jogo));
            Estado& e = l.p.e;
            const int quant = caso < 12 ? caso : int(g() % 60) + 1;
            for (int b = 0; b < quant; ++b) {
                const int tamanho = e.DezMin.valor() + int(g() % 5) - 1;
                QStringList aposta;
                for (int k = 0; k < tamanho; ++k)
                    aposta << formata00(int(g() % 100));
                if (g() % 20 == 0) aposta << QStringLiteral("x");
                if (g() % 20 == 0) aposta.clear();
                l.aposta(aposta);
            }
            if (g() % 2) e.ArquivoBanco = QStringLiteral("/tmp/banco %1.Apo").arg(caso);
            if (g() % 2) e.Historico = QStringLiteral("22/11/2026 10:00:00: Linha %1\r\n").arg(caso);
            if (g() % 2) e.DezEscolhidas = QStringLiteral("01 05 ");
            if (g() % 2) e.TextoEstatistica = QStringLiteral("Quina: %1").arg(caso);
            const QString t = l.abre();
            ReferenciaListagem ref(l.p);
            ASSERT_EQ(t, quant == 0 ? QString() : ref.monta(QStringLiteral("22/11/2026 14:05:09")))
                << jogo << " caso " << caso;
            ++casos;
        }
    }
    EXPECT_EQ(casos, 150);
}
