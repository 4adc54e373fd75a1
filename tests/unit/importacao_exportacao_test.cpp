// Bets in and out of the bank: the CSV, the plain text and the PDF written
// from VetBan, the import of a file into both forms of the bank, the dialog
// of the import as logic, and the failures on the way.
#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "core/Loteria.h"
#include "edicao/Importar.h"
#include "relatorios/Exportar.h"
#include "relatorios/RelBanco.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

// Appends a bet of the given numbers to both forms of the bank, as the
// arrow button does.
void poeAposta(Programa& p, std::initializer_list<int> numeros) {
    auto& e = p.e;
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    QString texto;
    int c = 0;
    for (int n : numeros) {
        e.VetBan.define(c++, e.QuantBan.valor(), formata00(n));
        texto += formata00(n) + u' ';
    }
    e.VetBan.define(c, e.QuantBan.valor(), QStringLiteral("#"));
    InsereApostaBanco(p, texto, (e.QuantBan + 1).valor());
    e.QuantBan += 1;
}

QByteArray leArquivo(const QString& caminho) {
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly)) return "<não abre>";
    return f.readAll();
}

void gravaArquivo(const QString& caminho, const QByteArray& bytes) {
    QFile f(caminho);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QStringList linhasVetBan(const Programa& p) {
    QStringList s;
    for (int32_t i = 0; i < p.e.QuantBan.valor(); ++i)
        s << RetAposta(p, i);
    return s;
}

struct Banco : ProgramaTeste {
    QTemporaryDir pasta;
    QString arquivo(const QString& nome) const { return QDir(pasta.path()).filePath(nome); }
};

} // namespace

TEST(ExportacaoBanco, CsvComMarcaDeOrdemCabecalhoENumerosDeDoisAlgarismos) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    poeAposta(b.p, {7, 10, 20, 30, 40, 50, 60});
    EXPECT_EQ(textoCsv(b.p), QByteArray("\xEF\xBB\xBF"
                                        "Aposta;D1;D2;D3;D4;D5;D6;D7\r\n"
                                        "1;01;02;03;04;05;06\r\n"
                                        "2;07;10;20;30;40;50;60\r\n"));
}

TEST(ExportacaoBanco, TextoPlanoComAsLinhasComoOBancoMostra) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    poeAposta(b.p, {11, 12});
    EXPECT_EQ(textoPlano(b.p), QByteArray("00001)   01 02 03 04 05 06\r\n"
                                          "00002)   11 12\r\n"));
}

TEST(ExportacaoBanco, TextoPlanoPassaDe99999ApostasComNumerosMaisLongos) {
    Banco b;
    for (int i = 0; i < 100000; ++i)
        poeAposta(b.p, {1});
    const QByteArray t = textoPlano(b.p);
    EXPECT_TRUE(t.endsWith("99999)   01\r\n100000)   01\r\n"));
}

TEST(ExportacaoBanco, ApostaComTextoQueNaoENumeroVaiEntreAspasNoCsv) {
    Banco b;
    poeAposta(b.p, {1});
    b.p.e.VetBan.define(1, 0, QStringLiteral("a;\"b"));
    b.p.e.VetBan.define(2, 0, QStringLiteral("#"));
    EXPECT_EQ(textoCsv(b.p), QByteArray("\xEF\xBB\xBF"
                                        "Aposta;D1;D2\r\n"
                                        "1;01;\"a;\"\"b\"\r\n"));
}

TEST(ExportacaoBanco, FormatoPelaExtensao) {
    EXPECT_EQ(formatoExportacao(QStringLiteral("/x/banco.CSV")), FormatoExportacao::Csv);
    EXPECT_EQ(formatoExportacao(QStringLiteral("/x/banco.txt")), FormatoExportacao::Texto);
    EXPECT_EQ(formatoExportacao(QStringLiteral("/x/banco.Pdf")), FormatoExportacao::Pdf);
    EXPECT_EQ(formatoExportacao(QStringLiteral("/x/banco")), FormatoExportacao::Csv);
}

TEST(ExportacaoBanco, ComandoGravaOArquivoEDizQuantasApostas) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    const QString csv = b.arquivo(QStringLiteral("banco.csv"));
    b.d.dialogo.enfileira(csv);
    ExportarBanco(b.p);
    ASSERT_EQ(b.d.dialogo.pedidos().size(), 1u);
    EXPECT_EQ(b.d.dialogo.pedidos()[0].titulo, QStringLiteral("Exportar banco de apostas"));
    EXPECT_EQ(leArquivo(csv), textoCsv(b.p));
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto, QStringLiteral("1 aposta exportada para \"banco.csv\"."));
    // Only the file itself stays in the folder.
    EXPECT_EQ(QDir(b.pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"banco.csv"});
}

TEST(ExportacaoBanco, ArquivoExistentePerguntaENaoSobrescreveSemOSim) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    const QString txt = b.arquivo(QStringLiteral("banco.txt"));
    gravaArquivo(txt, "antigo");
    b.d.dialogo.enfileira(txt);
    b.d.caixa.responde(Resposta::Nao);
    ExportarBanco(b.p);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto,
              QStringLiteral("Este nome de arquivo já existe! Deseja sobrescrever?"));
    EXPECT_EQ(leArquivo(txt), QByteArray("antigo"));
    b.d.dialogo.enfileira(txt);
    b.d.caixa.responde(Resposta::Sim);
    ExportarBanco(b.p);
    EXPECT_EQ(leArquivo(txt), QByteArray("00001)   01 02 03 04 05 06\r\n"));
}

TEST(ExportacaoBanco, FalhaAoGravarAvisaEDeixaOArquivoAntigo) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    const QString semPasta = b.arquivo(QStringLiteral("nao_existe/banco.csv"));
    EXPECT_FALSE(ExportaBanco(b.p, semPasta, FormatoExportacao::Csv).isEmpty());
    EXPECT_FALSE(QFileInfo::exists(semPasta));
    // A name taken by a folder: nothing is written and the folder stays.
    const QString pasta = b.arquivo(QStringLiteral("banco.txt"));
    ASSERT_TRUE(QDir().mkpath(QDir(pasta).filePath(QStringLiteral("dentro"))));
    const QString falha = ExportaBanco(b.p, pasta, FormatoExportacao::Texto);
    EXPECT_TRUE(falha.startsWith(QStringLiteral("Não foi possível gravar o arquivo \"banco.txt\"")))
        << falha.toStdString();
    EXPECT_TRUE(QFileInfo(QDir(pasta).filePath(QStringLiteral("dentro"))).isDir());
    EXPECT_EQ(QDir(b.pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST(ExportacaoBanco, BancoVazioNaoAbreODialogo) {
    Banco b;
    ExportarBanco(b.p);
    EXPECT_TRUE(b.d.dialogo.pedidos().empty());
    EXPECT_EQ(b.d.caixa.vistas()[0].texto,
              QStringLiteral("O banco de apostas está vazio: não há apostas para exportar."));
}

TEST(ExportacaoBanco, PdfEAListagemDoBancoPelaImpressoraNumArquivo) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    const QString pdf = b.arquivo(QStringLiteral("banco.pdf"));
    EXPECT_EQ(ExportaBanco(b.p, pdf, FormatoExportacao::Pdf), QString());
    const QStringList& r = b.d.impressora.registro;
    ASSERT_EQ(r.size(), 4);
    EXPECT_EQ(r[0], QStringLiteral("arquivo pdf"));
    EXPECT_EQ(r[1], QStringLiteral("fonte Arial 10"));
    EXPECT_EQ(r[2], QStringLiteral("texto ") + textoRelatorio(b.p, b.p.agoraTexto()));
    EXPECT_EQ(r[3], QStringLiteral("fim"));
    // The double writes the job's text to the file it was given.
    EXPECT_EQ(leArquivo(pdf), textoRelatorio(b.p, b.p.agoraTexto()).toUtf8());
    EXPECT_EQ(QDir(b.pasta.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"banco.pdf"});
}

TEST(ExportacaoBanco, PdfDaLotomaniaEmOitoPontos) {
    Banco b;
    TrocaLoteria(b.p, QStringLiteral("Lotomania"));
    poeAposta(b.p, {0, 99});
    EXPECT_EQ(ExportaBanco(b.p, b.arquivo(QStringLiteral("l.pdf")), FormatoExportacao::Pdf), QString());
    EXPECT_EQ(b.d.impressora.registro[1], QStringLiteral("fonte Arial 8"));
}

TEST(ImportacaoApostas, ApostasEntramNasDuasFormasDoBancoComoAsSorteadas) {
    Banco b;
    poeAposta(b.p, {1, 2, 3, 4, 5, 6});
    b.p.e.BancoAlterado = false;
    const QString arquivo = b.arquivo(QStringLiteral("bolao.txt"));
    gravaArquivo(arquivo, "6 5 4 3 2 1\n10,20,30,40,50,60\n");
    LeitorApostas l(1, 60);
    ASSERT_EQ(LeArquivoApostas(arquivo, l, nullptr), QString());
    const QString antes = b.p.e.Historico;
    AcrescentaImportadas(b.p, l, QStringLiteral("bolao.txt"));
    EXPECT_EQ(b.p.e.QuantBan, 3);
    EXPECT_EQ(linhasVetBan(b.p),
              (QStringList{"01 02 03 04 05 06 ", "01 02 03 04 05 06 ", "10 20 30 40 50 60 "}));
    EXPECT_EQ(b.p.tela.TxtBanco.texto(), QStringLiteral("00001)   01 02 03 04 05 06 \r\n"
                                                        "00002)   01 02 03 04 05 06 \r\n"
                                                        "00003)   10 20 30 40 50 60 \r\n"));
    const auto trechos = b.p.tela.TxtBanco.trechos();
    ASSERT_EQ(trechos.size(), 6u);
    EXPECT_EQ(trechos[4].formato.cor, CorNumeroLinha);
    EXPECT_EQ(trechos[5].formato.cor, CorAposta);
    EXPECT_EQ(b.p.e.Historico,
              antes + QStringLiteral("22/11/2026 14:05:09: Importação de 2 apostas de bolao.txt\r\n"));
    EXPECT_TRUE(b.p.e.BancoAlterado);
    EXPECT_TRUE(b.p.tela.TxtBanco.visivel());
}

TEST(ImportacaoApostas, IdaEVoltaPeloCsvDaOMesmoVetBan) {
    Banco b;
    TrocaLoteria(b.p, QStringLiteral("Lotomania"));
    for (int i = 0; i < 300; ++i)
        poeAposta(b.p, {i % 100, (i + 7) % 100, (i + 50) % 100});
    poeAposta(b.p, {});
    const QString csv = b.arquivo(QStringLiteral("b.csv"));
    ASSERT_EQ(ExportaBanco(b.p, csv, FormatoExportacao::Csv), QString());
    const QStringList antes = linhasVetBan(b.p);
    ProgramaTeste outro;
    TrocaLoteria(outro.p, QStringLiteral("Lotomania"));
    LeitorApostas l(outro.p.e.NumIni.valor(), outro.p.e.NumFim.valor());
    ASSERT_EQ(LeArquivoApostas(csv, l, nullptr), QString());
    AcrescentaImportadas(outro.p, l, QStringLiteral("b.csv"));
    // The empty bet has no number and stays out; the others come back sorted,
    // as they were stored.
    QStringList esperadas = antes.mid(0, 300);
    for (QString& a : esperadas) {
        QStringList n = a.split(u' ', Qt::SkipEmptyParts);
        n.sort();
        a = n.join(u' ') + u' ';
    }
    EXPECT_EQ(linhasVetBan(outro.p), esperadas);
}

TEST(ImportacaoApostas, ArquivoQueSumiuOuNaoEArquivoComum) {
    Banco b;
    LeitorApostas l(1, 60);
    EXPECT_EQ(LeArquivoApostas(b.arquivo(QStringLiteral("sumiu.txt")), l, nullptr),
              QStringLiteral("O arquivo \"sumiu.txt\" não existe mais."));
    EXPECT_EQ(LeArquivoApostas(b.pasta.path(), l, nullptr),
              QStringLiteral("\"%1\" não é um arquivo que se possa ler.")
                  .arg(QFileInfo(b.pasta.path()).fileName()));
}

TEST(ImportacaoApostas, RelatorioComContagensEMotivos) {
    LeitorApostas l(1, 60);
    QByteArray t = "1 2 3\n1 1\n";
    for (int i = 0; i < 150; ++i)
        t += "99\n";
    l.le(t.constData(), size_t(t.size()));
    l.termina();
    const QString r = RelatorioImportacao(l);
    EXPECT_TRUE(r.startsWith(QStringLiteral("Apostas válidas: 1\r\nLinhas recusadas: 151\r\n\r\n"
                                            "Linha 2: o número 01 aparece mais de uma vez\r\n"
                                            "Linha 3: o número 99 está fora do jogo (01 a 60)\r\n")));
    EXPECT_TRUE(r.endsWith(QStringLiteral("Linha 101: o número 99 está fora do jogo (01 a 60)\r\n"
                                          "... e mais 51 linhas recusadas.\r\n")));
}

TEST(DialogoImportar, MostraOQueAchouENadaMudaAntesDoImportar) {
    Banco b;
    const QString arquivo = b.arquivo(QStringLiteral("bolao.txt"));
    gravaArquivo(arquivo, "01 02 03 04 05 06\n1 2 3 4 5 77\n");
    b.p.e.BancoAlterado = false;
    const QString historico = b.p.e.Historico;
    Importar i(b.p, arquivo);
    EXPECT_EQ(i.LblArquivo, QStringLiteral("Arquivo: bolao.txt"));
    i.Le();
    EXPECT_EQ(i.PrgLeitura, 100);
    EXPECT_TRUE(i.BtnImportarEnabled);
    EXPECT_EQ(i.LblResumo, QStringLiteral("Deseja acrescentar a aposta válida ao banco de apostas?"));
    EXPECT_EQ(i.TxtRelatorio, QStringLiteral("Apostas válidas: 1\r\nLinhas recusadas: 1\r\n\r\n"
                                             "Linha 2: o número 77 está fora do jogo (01 a 60)\r\n"));
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_EQ(b.p.e.Historico, historico);
    EXPECT_FALSE(b.p.e.BancoAlterado);
    bool fechou = false;
    Ligacao vigiaFecho(i.aoFechar, [&] { fechou = true; });
    i.BtnImportar();
    EXPECT_TRUE(fechou);
    EXPECT_EQ(b.p.e.QuantBan, 1);
    EXPECT_EQ(RetAposta(b.p, 0), QStringLiteral("01 02 03 04 05 06 "));
}

TEST(DialogoImportar, CancelarNaoMudaNada) {
    Banco b;
    const QString arquivo = b.arquivo(QStringLiteral("bolao.txt"));
    gravaArquivo(arquivo, "01 02 03 04 05 06\n");
    b.p.e.BancoAlterado = false;
    Importar i(b.p, arquivo);
    i.Le();
    i.BtnCancelar();
    EXPECT_FALSE(i.aberto());
    i.BtnImportar();
    EXPECT_EQ(b.p.e.QuantBan, 0);
    EXPECT_TRUE(b.p.tela.TxtBanco.texto().isEmpty());
    EXPECT_FALSE(b.p.e.BancoAlterado);
}

TEST(DialogoImportar, NenhumaApostaValidaDeixaImportarDesabilitado) {
    Banco b;
    const QString arquivo = b.arquivo(QStringLiteral("nada.txt"));
    gravaArquivo(arquivo, "texto sem números\n");
    Importar i(b.p, arquivo);
    i.Le();
    EXPECT_FALSE(i.BtnImportarEnabled);
    EXPECT_EQ(i.LblResumo, QStringLiteral("Nenhuma aposta válida foi encontrada no arquivo."));
    i.BtnImportar();
    EXPECT_EQ(b.p.e.QuantBan, 0);
}

TEST(DialogoImportar, ArquivoBinarioAvisaEFechaSemTocarNoBanco) {
    Banco b;
    const QString arquivo = b.arquivo(QStringLiteral("foto.jpg"));
    gravaArquivo(arquivo, QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF", 10));
    Importar i(b.p, arquivo);
    i.Le();
    EXPECT_FALSE(i.aberto());
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].tipo, CaixaVista::Tipo::Aviso);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto,
              QStringLiteral("O arquivo não é um arquivo de texto (tem bytes nulos na linha 1).\r\n"
                             "Nenhuma aposta foi importada."));
    EXPECT_EQ(b.p.e.QuantBan, 0);
}

TEST(DialogoImportar, CancelarDuranteALeituraParaDeLer) {
    Banco b;
    const QString arquivo = b.arquivo(QStringLiteral("grande.txt"));
    QByteArray t;
    for (int i = 0; i < 200000; ++i)
        t += "01 02 03 04 05 06\n";
    gravaArquivo(arquivo, t);
    Importar i(b.p, arquivo);
    int cedencias = 0;
    b.d.cedencia.aoCeder = [&](long long) {
        if (++cedencias == 1) i.BtnCancelar();
    };
    i.Le();
    EXPECT_EQ(cedencias, 1);
    EXPECT_FALSE(i.aberto());
    EXPECT_LT(i.leitor().quantApostas(), 200000);
    EXPECT_EQ(b.p.e.QuantBan, 0);
}

TEST(DialogoImportar, MilhaoDeLinhasInvalidasGuardaSoCemMotivos) {
    Banco b;
    const QString arquivo = b.arquivo(QStringLiteral("ruim.txt"));
    QByteArray t;
    t.reserve(5 * 1000000);
    for (int i = 0; i < 1000000; ++i)
        t += "1 1\n";
    gravaArquivo(arquivo, t);
    Importar i(b.p, arquivo);
    i.Le();
    EXPECT_EQ(i.leitor().quantRecusadas(), 1000000);
    EXPECT_EQ(i.leitor().recusas().size(), 100u);
    EXPECT_TRUE(i.TxtRelatorio.endsWith(QStringLiteral("... e mais 999.900 linhas recusadas.\r\n")));
}

TEST(ImportacaoApostas, LeituraParaNoLimiteDeApostasEODiz) {
    LeitorApostas l(1, 60);
    l.defineLimites(3, 1000);
    const QByteArray t = "1 2\n3 4\n5 6\n7 8\n9 10\n";
    l.le(t.constData(), size_t(t.size()));
    l.termina();
    EXPECT_TRUE(l.limiteAtingido());
    EXPECT_EQ(l.quantApostas(), 3);
    EXPECT_EQ(RelatorioImportacao(l),
              QStringLiteral(
                  "A leitura parou na linha 3: uma importação traz no máximo 3 apostas e 1.000 números.\r\n"
                  "Apostas válidas: 3\r\nLinhas recusadas: 0\r\n"));
}

TEST(ImportacaoApostas, LeituraParaNoLimiteDeNumeros) {
    LeitorApostas l(1, 60);
    l.defineLimites(1000, 5);
    const QByteArray t = "1 2\n3 4\n5 6\n7 8\n";
    l.le(t.constData(), size_t(t.size()));
    l.termina();
    EXPECT_TRUE(l.limiteAtingido());
    EXPECT_EQ(l.quantApostas(), 3);
}
