// The dialog "Combinações super reduzidas" as logic: from the flow's
// hand-over to the bank, with tables written by the tests into a temporary
// program folder.
#include "ApoioSuper.h"
#include "apoio/ProgramaTeste.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

const QByteArray Chave = QByteArrayLiteral("MSC08A04G04");
const QString Historico = Agora + QStringLiteral(": Limpou banco de apostas\r\n") + Agora +
                          QStringLiteral(": Combinação reduzida\r\n");

// Mega-Sena with 05 10 15 20 25 30 35 40 marked and a table holding `texto`.
struct Mega : BancadaSuper {
    explicit Mega(const QByteArray& texto) {
        marca({5, 10, 15, 20, 25, 30, 35, 40});
        gravaTabela(QStringLiteral("Megasena.sv"), texto);
    }
    // "Quadra" and "4", 6 numbers a bet.
    void executa(int dezFinal = 6) { BancadaSuper::executa(4, 4, dezFinal); }
};

QString banco(const QString& dezenas, const QStringList& apostas) {
    QString t = QStringLiteral("Dezenas escolhidas: ") + dezenas + QStringLiteral("\r\n") + Historico +
                QStringLiteral("\r\n");
    for (int i = 0; i < apostas.size(); ++i)
        t += QStringLiteral("%1)   %2\r\n").arg(i + 1, 5, 10, QChar(u'0')).arg(apostas[i]);
    return t + QStringLiteral("\r\n");
}

const QString Marcadas = QStringLiteral("05 10 15 20 25 30 35 40 ");

} // namespace

TEST(SuperReducao, PosicoesViramOsNumerosMarcados) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08", "01 02 03 04 06 07", "03 04 05 06 07 08"}));
    m.executa();
    EXPECT_TRUE(m.d.caixa.vistas().empty());
    EXPECT_EQ(m.p.e.QuantBan, 3);
    EXPECT_EQ(m.linhaVetBan(0), QStringLiteral("05 10 15 20 25 40 "));
    EXPECT_EQ(m.linhaVetBan(1), QStringLiteral("05 10 15 20 30 35 "));
    EXPECT_EQ(m.linhaVetBan(2), QStringLiteral("15 20 25 30 35 40 "));
    EXPECT_EQ(m.p.tela.TxtBanco.texto(),
              banco(Marcadas, {QStringLiteral("05 10 15 20 25 40 "), QStringLiteral("05 10 15 20 30 35 "),
                               QStringLiteral("15 20 25 30 35 40 ")}));
    EXPECT_EQ(m.fechamentos, 1);
    EXPECT_EQ(m.quantSuper, 3);
    EXPECT_EQ(m.lblMensagem, QStringLiteral("Inserindo jogos no banco de apostas..."));
}

TEST(SuperReducao, NumeroFixoEntraNaApostaEmOrdem) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08"}));
    m.fixa({7});
    m.executa();
    EXPECT_EQ(m.linhaVetBan(0), QStringLiteral("05 07 10 15 20 25 40 "));
    EXPECT_EQ(m.p.tela.TxtBanco.texto(), banco(QStringLiteral("05 07 10 15 20 25 30 35 40 "),
                                               {QStringLiteral("05 07 10 15 20 25 40 ")}));
}

TEST(SuperReducao, VariosFixosOrdenamCadaAposta) {
    Mega m(textoBloco(Chave, {"08 01 03", "02 07"}));
    m.fixa({1, 50});
    m.executa();
    EXPECT_EQ(m.linhaVetBan(0), QStringLiteral("01 05 15 40 50 "));
    EXPECT_EQ(m.linhaVetBan(1), QStringLiteral("01 10 35 50 "));
}

TEST(SuperReducao, SemFixosAApostaGuardaAOrdemDoBloco) {
    Mega m(textoBloco(Chave, {"08 01 03 02"}));
    m.executa();
    EXPECT_EQ(m.linhaVetBan(0), QStringLiteral("40 05 15 10 "));
}

TEST(SuperReducao, ChaveDeOutraQuantidadeDeNumerosMostraACaixa) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08"}));
    m.marca({45}); // nine chosen: the key would be MSC09A04G04
    m.executa();
    EXPECT_EQ(m.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(m.p.e.QuantBan, 0);
    EXPECT_EQ(m.p.tela.TxtBanco.texto(), QString());
    EXPECT_EQ(m.fechamentos, 1);
}

TEST(SuperReducao, DezenasPorApostaDiferenteDaApostaCheiaMostraACaixaSemProcurar) {
    // The file is read and complemented all the same; the key is not searched.
    Mega m(QByteArray(1000, ' ') + textoBloco(Chave, {"01 02 03 04 05 08"}));
    m.executa(7);
    EXPECT_EQ(m.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(m.posSuper, 0) << "nenhuma busca";
    EXPECT_GE(m.d.cedencia.quantas, 10) << "o arquivo foi lido e complementado";
    EXPECT_EQ(m.p.e.QuantBan, 0);
}

TEST(SuperReducao, BlocoDeUmaSoLinha) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08"}));
    m.executa();
    EXPECT_EQ(m.p.e.QuantBan, 1);
    EXPECT_EQ(m.p.tela.TxtBanco.texto(), banco(Marcadas, {QStringLiteral("05 10 15 20 25 40 ")}));
}

TEST(SuperReducao, ArquivoAusenteMostraACaixa) {
    BancadaSuper b;
    b.marca({5, 10, 15, 20, 25, 30, 35, 40});
    b.executa(4, 4, 6);
    EXPECT_EQ(b.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_FALSE(QFile::exists(b.caminho(QStringLiteral("Megasena.sv"))));
    EXPECT_EQ(b.fechamentos, 1);
}

TEST(SuperReducao, ArquivoVazioMostraACaixa) {
    Mega m{QByteArray()};
    m.executa();
    EXPECT_EQ(m.caixasCriticas(), QStringList{SemSuperReducoes});
}

TEST(SuperReducao, ArquivoNaoComplementadoNaoTemAChave) {
    Mega m{QByteArray()};
    QFile f(m.caminho(QStringLiteral("Megasena.sv")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(textoBloco(Chave, {"01 02 03 04 05 08"}));
    f.close();
    m.executa();
    EXPECT_EQ(m.caixasCriticas(), QStringList{SemSuperReducoes});
}

TEST(SuperReducao, LotomaniaMostraACaixa) {
    BancadaSuper b(QStringLiteral("Lotomania"));
    b.marca({5, 10, 15, 20, 25, 30, 35, 40});
    b.gravaTabela(QStringLiteral("Lotomania.sv"), textoBloco("LMC08A04G04", {"01 02 03"}));
    b.executa(4, 4, 50);
    EXPECT_EQ(b.caixasCriticas(), QStringList{SemSuperReducoes});
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(b.d.cedencia.quantas, 0) << "nenhum arquivo lido";
}

TEST(SuperReducao, CadaJogoLeSeuArquivoComSeuCodigo) {
    struct Caso {
        const char16_t* jogo;
        const char16_t* arquivo;
        QByteArray chave;
        int dezFinal;
    };
    const Caso casos[] = {
        {u"Quina", u"Quina.sv", "QNC07A03G03", 5},
        {u"Dupla Sena", u"Duplasena.sv", "DSC07A03G03", 6},
        {u"Lotofácil", u"Lotofacil.sv", "LFC07A03G03", 15},
    };
    for (const Caso& c : casos) {
        BancadaSuper b{QString::fromUtf16(c.jogo)};
        b.marca({2, 4, 6, 8, 10, 12, 14});
        b.gravaTabela(QString::fromUtf16(c.arquivo), textoBloco(c.chave, {"01 02 04 05 07"}));
        b.executa(3, 3, c.dezFinal);
        EXPECT_TRUE(b.caixasCriticas().isEmpty()) << QString::fromUtf16(c.jogo).toStdString();
        EXPECT_EQ(b.linhaVetBan(0), QStringLiteral("02 04 08 10 14 "))
            << QString::fromUtf16(c.jogo).toStdString();
        // Any other size of bet has no table.
        BancadaSuper outro{QString::fromUtf16(c.jogo)};
        outro.marca({2, 4, 6, 8, 10, 12, 14});
        outro.gravaTabela(QString::fromUtf16(c.arquivo), textoBloco(c.chave, {"01 02 04 05 07"}));
        outro.executa(3, 3, c.dezFinal + 1);
        EXPECT_EQ(outro.caixasCriticas(), QStringList{SemSuperReducoes});
    }
}

TEST(SuperReducao, OBancoEhReescritoComCabecalhoLinhasColoridasEFim) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08", "01 02 03 04 06 07"}));
    m.preparaFluxo(4);
    // Whatever stood in the bank's text goes.
    m.p.tela.TxtBanco.acrescenta(QStringLiteral("sobra\r\n"), CorAposta);
    m.p.e.DezFinal = 6;
    m.p.e.QuantAcertar = 4;
    SuperReducao dlg(m.p);
    dlg.ativa();
    const DocumentoRico& t = m.p.tela.TxtBanco;
    const QString esperado =
        banco(Marcadas, {QStringLiteral("05 10 15 20 25 40 "), QStringLiteral("05 10 15 20 30 35 ")});
    ASSERT_EQ(t.texto(), esperado);
    EXPECT_TRUE(t.visivel());
    const qsizetype cabecalho = esperado.indexOf(QStringLiteral("00001)"));
    EXPECT_EQ(t.formatoEm(0), (Formato{CorLog, true}));
    EXPECT_EQ(t.formatoEm(cabecalho - 1), (Formato{CorLog, true}));
    EXPECT_EQ(t.formatoEm(cabecalho), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(t.formatoEm(cabecalho + 5), (Formato{CorNumeroLinha, false}));
    EXPECT_EQ(t.formatoEm(cabecalho + 6), (Formato{CorAposta, false}));
    EXPECT_EQ(t.formatoEm(esperado.size() - 3), (Formato{CorAposta, false}));
    EXPECT_EQ(t.formatoEm(esperado.size() - 1), (Formato{CorLog, true}));
}

TEST(SuperReducao, LblContContaDeTrezeEmTreze) {
    QList<QByteArray> linhas;
    for (int i = 0; i < 27; ++i)
        linhas << "01 02 03 04 05 06";
    Mega m(textoBloco(Chave, linhas));
    m.executa();
    EXPECT_EQ(m.p.e.QuantBan, 27);
    EXPECT_EQ(m.contagens, (QStringList{QStringLiteral("000013"), QStringLiteral("000026")}));
    EXPECT_EQ(m.lblCont, QStringLiteral("000026"));
    // The file (under 100 bytes a row) yields in the complement, the
    // insertion twice.
    const QByteArray texto = textoBloco(Chave, linhas);
    EXPECT_EQ(m.d.cedencia.quantas, texto.size() / 100 + 2);
}

TEST(SuperReducao, FimNumaLinhaPropriaDaUmaApostaSemNumeros) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08"}, FimBloco::LinhaPropria));
    m.executa();
    EXPECT_EQ(m.p.e.QuantBan, 2);
    EXPECT_EQ(m.linhaVetBan(1), QString());
    EXPECT_EQ(m.p.tela.TxtBanco.texto(), banco(Marcadas, {QStringLiteral("05 10 15 20 25 40 "), QString()}));
}

TEST(SuperReducao, PosicaoLogoAlemDasMarcadasCortaAAposta) {
    // Behind the eighth marked number VetDezenas holds "#".
    Mega m(textoBloco(Chave, {"01 02 09 03"}));
    m.executa();
    EXPECT_EQ(m.p.e.VetBan.valor(2, 0), QStringLiteral("#"));
    EXPECT_EQ(m.p.e.VetBan.valor(3, 0), QStringLiteral("15"));
    EXPECT_EQ(m.linhaVetBan(0), QStringLiteral("05 10 "));
    EXPECT_EQ(m.p.tela.TxtBanco.texto(), banco(Marcadas, {QStringLiteral("05 10 ")}));
}

TEST(SuperReducao, PosicaoMaisAlemDaUmaCelulaVazia) {
    Mega m(textoBloco(Chave, {"01 02 10 03"}));
    m.executa();
    EXPECT_EQ(m.linhaVetBan(0), QStringLiteral("05 10  15 "));
    EXPECT_EQ(m.p.tela.TxtBanco.texto(), banco(Marcadas, {QStringLiteral("05 10  15 ")}));
}

TEST(SuperReducao, PosicaoOitentaEDoisEhAUltimaQueExiste) {
    Mega ok(textoBloco(Chave, {"01 82"}));
    ok.executa();
    EXPECT_EQ(ok.linhaVetBan(0), QStringLiteral("05  "));
    Mega acima(textoBloco(Chave, {"01 83"}));
    EXPECT_EQ(falhaDe([&] { acima.executa(); }), erro::SubscritoForaIntervalo);
    Mega zero(textoBloco(Chave, {"00 01"}));
    EXPECT_EQ(falhaDe([&] { zero.executa(); }), erro::SubscritoForaIntervalo);
}

TEST(SuperReducao, LinhaDeOitentaEUmaCelulasDaApostaDeOitenta) {
    Mega m(textoBloco(Chave, {linhaDePosicoes(81)}));
    m.executa();
    EXPECT_EQ(m.p.e.VetBan.valor(79, 0), QStringLiteral("40"));
    EXPECT_EQ(m.p.e.VetBan.valor(80, 0), QStringLiteral("#"));
    QString esperada;
    for (int i = 0; i < 80; ++i)
        esperada += formata00(5 * (1 + i % 8)) + u' ';
    EXPECT_EQ(m.linhaVetBan(0), esperada);
}

TEST(SuperReducao, BlocoSemFimTerminaNaFalhaDeSubscrito) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08"}, FimBloco::Nenhum));
    EXPECT_EQ(falhaDe([&] { m.executa(); }), erro::SubscritoForaIntervalo);
}

TEST(SuperReducao, BlocoMaiorQueOLimiteTerminaNaFalhaDeSubscrito) {
    const QList<QByteArray> linhas(10002, QByteArrayLiteral("01 02 03 04 05 06"));
    Mega m(textoBloco(Chave, linhas));
    EXPECT_EQ(falhaDe([&] { m.executa(); }), erro::SubscritoForaIntervalo);
}

TEST(SuperReducao, CelulasQueNaoSaoNumerosTerminamNaFalhaDeSubscrito) {
    // The numeric value of a cell that is no number is 0: position 0.
    Mega m(Chave + "\r\n\xE9\x01 \xFF\x80 ##");
    EXPECT_EQ(falhaDe([&] { m.executa(); }), erro::SubscritoForaIntervalo);
}

TEST(SuperReducao, CancelarFechaEOBancoEhPreenchidoDoMesmoJeito) {
    QList<QByteArray> linhas;
    for (int i = 0; i < 20; ++i)
        linhas << "01 02 03 04 05 06";
    Mega m(textoBloco(Chave, linhas));
    SuperReducao* dlg = nullptr;
    m.d.cedencia.aoCeder = [&](long long vez) {
        if (vez == 1 && dlg) dlg->BtnCancelar();
    };
    m.BancadaSuper::executa(4, 4, 6, &dlg);
    EXPECT_TRUE(m.p.e.Cancelado);
    EXPECT_EQ(m.fechamentos, 1);
    EXPECT_EQ(m.p.e.QuantBan, 20);
    EXPECT_EQ(m.p.tela.TxtBanco.texto().count(QStringLiteral(")   05 10 15 20 25 30 \r\n")), 20);
    EXPECT_TRUE(m.d.caixa.vistas().empty());
}

TEST(SuperReducao, OsContadoresDaReducaoFicamComoEstavam) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08", "01 02 03 04 06 07"}));
    m.p.e.TotalApostas = 70;
    m.executa();
    EXPECT_EQ(m.p.e.QuantBan, 2);
    EXPECT_EQ(m.p.e.TotalApostas, 70);
    // VetRes keeps the size of the largest block.
    EXPECT_EQ(m.p.e.VetRes.ultimaColuna(), 81);
    EXPECT_EQ(m.p.e.VetRes.ultimaLinha(), 10000);
    EXPECT_EQ(m.p.e.VetBan.ultimaLinha(), 3);
}

TEST(SuperReducao, ComecaComAMensagemDeEspera) {
    BancadaSuper b;
    SuperReducao dlg(b.p);
    EXPECT_EQ(SuperReducao::Caption, QStringLiteral("Combinações super reduzidas"));
    EXPECT_EQ(dlg.LblMensagem, QStringLiteral("Efetuando reduções, aguarde..."));
    EXPECT_EQ(dlg.LblCont, QString());
    EXPECT_EQ(dlg.LblTotal, QString());
    EXPECT_TRUE(dlg.aberto());
}

TEST(SuperReducao, CorreUmaVezSo) {
    Mega m(textoBloco(Chave, {"01 02 03 04 05 08"}));
    m.preparaFluxo(4);
    m.p.e.DezFinal = 6;
    m.p.e.QuantAcertar = 4;
    SuperReducao dlg(m.p);
    dlg.ativa();
    dlg.ativa();
    EXPECT_EQ(m.p.e.QuantBan, 1);
}
