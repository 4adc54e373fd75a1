// Reading the super-reduction tables: the complement of the bytes, the game's
// file and code, the key, its first occurrence and the reading of a block.
#include "ApoioSuper.h"
#include "apoio/ProgramaTeste.h"
#include "core/Module1.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

// A block read from its key in `texto`; the failure number, 0 for none.
struct Leitura {
    MatrizTexto VetRes;
    Int32 PosSuper;
    Int16 QuantSuper;
    int falha = 0;

    Leitura(const QByteArray& texto, const QByteArray& chave) {
        VetRes.redimensiona(81, 10000);
        const auto pos = PosicaoBlocoSuper(texto, chave);
        if (!pos) {
            ADD_FAILURE() << "chave ausente";
            return;
        }
        PosSuper = *pos;
        falha = falhaDe([&] { LeBlocoSuper(texto, PosSuper, VetRes, QuantSuper); });
    }
    // Row r as the cells up to its "#", joined by blanks; "!" when the row
    // has no "#" within VetRes.
    QString linha(int r) const {
        QStringList celulas;
        for (int c = 0; c <= VetRes.ultimaColuna(); ++c) {
            const QString v = VetRes.valor(c, r);
            if (v == u'#') return celulas.join(u' ');
            celulas << v;
        }
        return QStringLiteral("!");
    }
};

const QByteArray Chave = QByteArrayLiteral("MSC08A04G04");

} // namespace

TEST(InverteBytes, CadaByteVira255MenosEle) {
    QByteArray todos;
    for (int b = 0; b < 256; ++b)
        todos += char(b);
    const QByteArray r = InverteBytes(todos);
    ASSERT_EQ(r.size(), 256);
    for (int b = 0; b < 256; ++b)
        EXPECT_EQ(static_cast<unsigned char>(r[b]), 255 - b) << b;
    EXPECT_EQ(InverteBytes(QByteArrayLiteral("MSC")), QByteArray("\xB2\xAC\xBC"));
}

TEST(InverteBytes, EhSuaPropriaInversa) {
    const QByteArray texto = QByteArrayLiteral("MSC08A04G04\r\n01 02 03 04 05 06 ##\xE9\x00\xFF");
    EXPECT_EQ(InverteBytes(InverteBytes(texto)), texto);
    EXPECT_TRUE(InverteBytes(QByteArray()).isEmpty());
}

TEST(InverteBytes, CedeDepoisDeCadaCentesimoCaractere) {
    for (const auto& [tamanho, cessoes] :
         {std::pair{0, 0}, {99, 0}, {100, 1}, {199, 1}, {250, 2}, {300, 3}}) {
        int vezes = 0;
        const QByteArray r = InverteBytes(QByteArray(tamanho, 'a'), [&] { ++vezes; });
        EXPECT_EQ(vezes, cessoes) << tamanho;
        EXPECT_EQ(r.size(), tamanho);
    }
}

TEST(TabelaSuper, ArquivoCodigoETamanhoDaApostaDeCadaJogo) {
    struct Caso {
        const char16_t* nome;
        const char16_t* arquivo;
        const char* codigo;
        int dezFinal;
    };
    for (const Caso& c :
         {Caso{u"LOTOFÁCIL", u"Lotofacil.sv", "LFC", 15}, Caso{u"MEGA-SENA", u"Megasena.sv", "MSC", 6},
          Caso{u"DUPLA SENA", u"Duplasena.sv", "DSC", 6}, Caso{u"QUINA", u"Quina.sv", "QNC", 5}}) {
        const TabelaSuper* t = tabelaSuperDe(QString::fromUtf16(c.nome));
        ASSERT_NE(t, nullptr) << QString::fromUtf16(c.nome).toStdString();
        EXPECT_EQ(t->arquivo, QString::fromUtf16(c.arquivo));
        EXPECT_EQ(t->codigo, QByteArray(c.codigo));
        EXPECT_EQ(t->DezFinal, c.dezFinal);
    }
    EXPECT_EQ(tabelaSuperDe(QStringLiteral("LOTOMANIA")), nullptr);
    EXPECT_EQ(tabelaSuperDe(QStringLiteral("Mega-Sena")), nullptr) << "o nome como NomeLoteria o guarda";
}

TEST(ChaveSuper, OnzeCaracteresComOsNumerosEmDoisDigitos) {
    const TabelaSuper& mega = *tabelaSuperDe(QStringLiteral("MEGA-SENA"));
    const QByteArray chave = ChaveSuper(mega, 8, 4, 4);
    EXPECT_EQ(chave, QByteArray("MSC08A04G04"));
    EXPECT_EQ(chave.size(), 11);
    EXPECT_EQ(ChaveSuper(*tabelaSuperDe(QStringLiteral("LOTOFÁCIL")), 20, 14, 13), QByteArray("LFC20A14G13"));
    EXPECT_EQ(ChaveSuper(mega, 100, 4, 4), QByteArray("MSC100A04G04")) << "a máscara não corta";
}

TEST(PosicaoBlocoSuper, PosicaoDaChaveMaisTreze) {
    EXPECT_EQ(PosicaoBlocoSuper(QByteArrayLiteral("MSC08A04G04\r\n01"), Chave).value(), 14);
    EXPECT_EQ(PosicaoBlocoSuper(QByteArrayLiteral("lixo MSC08A04G04\r\n01"), Chave).value(), 19);
    EXPECT_FALSE(PosicaoBlocoSuper(QByteArrayLiteral("MSC08A04G05\r\n01 ##"), Chave).has_value());
    EXPECT_FALSE(PosicaoBlocoSuper(QByteArray(), Chave).has_value());
}

TEST(PosicaoBlocoSuper, PrimeiraOcorrencia) {
    const QByteArray texto = textoBloco(Chave, {"01 02 03 04 05 06"}) + "\r\n" +
                             textoBloco(Chave, {"01 02 03 04 07 08", "05 06 07 08 01 02"});
    const Leitura l(texto, Chave);
    EXPECT_EQ(l.QuantSuper, 1);
    EXPECT_EQ(l.linha(0), QStringLiteral("01 02 03 04 05 06"));
}

TEST(PosicaoBlocoSuper, ComparacaoExataTambemNaCaixa) {
    const QByteArray texto = textoBloco("msc08a04g04", {"01 02 03 04 05 06"});
    EXPECT_FALSE(PosicaoBlocoSuper(texto, Chave).has_value());
}

TEST(LeBlocoSuper, FimAposAUltimaCelulaDaExatamenteAsLinhas) {
    const QByteArray texto =
        textoBloco(Chave, {"01 02 03 04 05 06", "01 02 03 04 07 08", "05 06 07 08 01 02"});
    const Leitura l(texto, Chave);
    EXPECT_EQ(l.falha, 0);
    EXPECT_EQ(l.QuantSuper, 3);
    EXPECT_EQ(l.linha(0), QStringLiteral("01 02 03 04 05 06"));
    EXPECT_EQ(l.linha(1), QStringLiteral("01 02 03 04 07 08"));
    EXPECT_EQ(l.linha(2), QStringLiteral("05 06 07 08 01 02"));
    EXPECT_EQ(l.VetRes.valor(0, 3), QString()) << "nada além das linhas do bloco";
    // PosSuper stops on the "##".
    EXPECT_EQ(texto.mid(l.PosSuper.valor() - 1, 2), QByteArray("##"));
}

TEST(LeBlocoSuper, FimNumaLinhaPropriaDaUmaLinhaASemCelulas) {
    const QByteArray texto =
        textoBloco(Chave, {"01 02 03 04 05 06", "01 02 03 04 07 08"}, FimBloco::LinhaPropria);
    const Leitura l(texto, Chave);
    EXPECT_EQ(l.falha, 0);
    EXPECT_EQ(l.QuantSuper, 3);
    EXPECT_EQ(l.linha(1), QStringLiteral("01 02 03 04 07 08"));
    EXPECT_EQ(l.linha(2), QString());
    EXPECT_EQ(l.VetRes.valor(0, 2), QStringLiteral("#"));
}

TEST(LeBlocoSuper, BlocoDeUmaSoLinha) {
    const Leitura l(textoBloco(Chave, {"01 02 03 04 05 08"}), Chave);
    EXPECT_EQ(l.falha, 0);
    EXPECT_EQ(l.QuantSuper, 1);
    EXPECT_EQ(l.linha(0), QStringLiteral("01 02 03 04 05 08"));
}

TEST(LeBlocoSuper, FimLogoAposAChaveDaUmaLinhaVazia) {
    const Leitura l(Chave + "\r\n##", Chave);
    EXPECT_EQ(l.falha, 0);
    EXPECT_EQ(l.QuantSuper, 1);
    EXPECT_EQ(l.linha(0), QString());
}

TEST(LeBlocoSuper, OFimDeLinhaDaChaveNaoEhLido) {
    // Any two characters stand behind the key; the cells start after them.
    const Leitura l(Chave + "xy01 02 ##", Chave);
    EXPECT_EQ(l.QuantSuper, 1);
    EXPECT_EQ(l.linha(0), QStringLiteral("01 02"));
}

TEST(LeBlocoSuper, OQueHaEntreBlocosNaoEhLido) {
    const QByteArray texto = QByteArrayLiteral("qualquer coisa\r\n##\n") +
                             textoBloco("MSC08A04G03", {"01 02 03 04 05 06"}) + "\n\n lixo ## " +
                             textoBloco(Chave, {"02 04 06 08 01 03"}) + "resto sem fim";
    const Leitura l(texto, Chave);
    EXPECT_EQ(l.QuantSuper, 1);
    EXPECT_EQ(l.linha(0), QStringLiteral("02 04 06 08 01 03"));
}

TEST(LeBlocoSuper, LinhasDeTamanhosDiferentes) {
    const Leitura l(textoBloco(Chave, {"01", "01 02 03 04 05 06 07 08", "03 04"}), Chave);
    EXPECT_EQ(l.QuantSuper, 3);
    EXPECT_EQ(l.linha(0), QStringLiteral("01"));
    EXPECT_EQ(l.linha(1), QStringLiteral("01 02 03 04 05 06 07 08"));
    EXPECT_EQ(l.linha(2), QStringLiteral("03 04"));
}

TEST(LeBlocoSuper, BlocoSemFimCorreAteAFalhaDeSubscrito) {
    // Past the end of the text the cells are empty; the column runs on
    // until it leaves the bounds of VetRes.
    const QByteArray texto = textoBloco(Chave, {"01 02 03 04 05 06", "01 02 03 04 07 08"}, FimBloco::Nenhum);
    const Leitura l(texto, Chave);
    EXPECT_EQ(l.falha, erro::SubscritoForaIntervalo);
    EXPECT_EQ(l.QuantSuper, 2);
    EXPECT_EQ(l.linha(1), QStringLiteral("01 02 03 04 07 08"));
    EXPECT_EQ(l.VetRes.valor(0, 2), QString());
    EXPECT_EQ(l.VetRes.valor(81, 2), QString());
}

TEST(LeBlocoSuper, BlocoSemFimNoMeioDeUmaLinha) {
    const Leitura l(Chave + "\r\n01 02 0", Chave);
    EXPECT_EQ(l.falha, erro::SubscritoForaIntervalo);
    EXPECT_EQ(l.VetRes.valor(2, 0), QStringLiteral("0")) << "o último caractere sozinho";
}

TEST(LeBlocoSuper, DezMilEUmaLinhasCabem) {
    QList<QByteArray> linhas(10001, QByteArrayLiteral("01 02 03 04 05 06"));
    linhas.last() = "06 05 04 03 02 01";
    const Leitura l(textoBloco(Chave, linhas), Chave);
    EXPECT_EQ(l.falha, 0);
    EXPECT_EQ(l.QuantSuper, 10001);
    EXPECT_EQ(l.linha(10000), QStringLiteral("06 05 04 03 02 01"));
}

TEST(LeBlocoSuper, MaisDeDezMilEUmaLinhasFalham) {
    const QList<QByteArray> linhas(10002, QByteArrayLiteral("01 02 03 04 05 06"));
    EXPECT_EQ(Leitura(textoBloco(Chave, linhas), Chave).falha, erro::SubscritoForaIntervalo);
    // The extra row of a "##" on its own line is one row too.
    const QList<QByteArray> cheias(10001, QByteArrayLiteral("01 02 03 04 05 06"));
    EXPECT_EQ(Leitura(textoBloco(Chave, cheias, FimBloco::LinhaPropria), Chave).falha,
              erro::SubscritoForaIntervalo);
    EXPECT_EQ(Leitura(textoBloco(Chave, cheias, FimBloco::AposUltimaCelula), Chave).falha, 0);
}

TEST(LeBlocoSuper, UmMilhaoDeLinhasParaNaFalhaSemLerTudo) {
    const QList<QByteArray> linhas(1000000, QByteArrayLiteral("01 02 03 04 05 06"));
    const QByteArray texto = textoBloco(Chave, linhas);
    const Leitura l(texto, Chave);
    EXPECT_EQ(l.falha, erro::SubscritoForaIntervalo);
    EXPECT_LT(l.PosSuper.valor(), 200000) << "a leitura para na linha que não cabe";
}

TEST(LeBlocoSuper, OitentaEUmaCelulasCabemOitentaEDuasFalham) {
    const Leitura cabe(textoBloco(Chave, {linhaDePosicoes(81)}), Chave);
    EXPECT_EQ(cabe.falha, 0);
    EXPECT_EQ(cabe.VetRes.valor(80, 0), QStringLiteral("01"));
    EXPECT_EQ(cabe.VetRes.valor(81, 0), QStringLiteral("#"));
    EXPECT_EQ(Leitura(textoBloco(Chave, {linhaDePosicoes(82)}), Chave).falha, erro::SubscritoForaIntervalo);
    // The "##" counts where a cell would stand: behind 81 cells there is
    // still room for it, not behind 82.
    EXPECT_EQ(Leitura(textoBloco(Chave, {linhaDePosicoes(81)}, FimBloco::LinhaPropria), Chave).falha, 0);
}

TEST(LeBlocoSuper, LinhaDeDuzentasCelulasFalha) {
    EXPECT_EQ(Leitura(textoBloco(Chave, {linhaDePosicoes(200)}), Chave).falha, erro::SubscritoForaIntervalo);
}

TEST(LeBlocoSuper, BytesQueNaoSaoTextoFicamNasCelulas) {
    const Leitura l(Chave + "\r\n\xE9\x01 \xFF\x80 ##", Chave);
    EXPECT_EQ(l.falha, 0);
    EXPECT_EQ(l.QuantSuper, 1);
    EXPECT_EQ(l.VetRes.valor(0, 0), QString(QChar(0xE9)) + QChar(1));
    EXPECT_EQ(l.VetRes.valor(1, 0), QStringLiteral("ÿ€"));
}

TEST(LeArquivoSuper, ArquivoAusenteEhVazio) {
    QTemporaryDir pasta;
    EXPECT_TRUE(LeArquivoSuper(QDir(pasta.path()).filePath(QStringLiteral("Megasena.sv"))).isEmpty());
    EXPECT_FALSE(QFile::exists(QDir(pasta.path()).filePath(QStringLiteral("Megasena.sv"))))
        << "a leitura não cria o arquivo";
}

TEST(LeArquivoSuper, LeOsBytesSemMudarNenhum) {
    QTemporaryDir pasta;
    const QString nome = QDir(pasta.path()).filePath(QStringLiteral("Quina.sv"));
    QByteArray bytes;
    for (int i = 0; i < 1000; ++i)
        bytes += char(i * 7);
    {
        QFile f(nome);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    EXPECT_EQ(LeArquivoSuper(nome), bytes);
}

TEST(LeArquivoSuper, UmaPastaNoLugarDoArquivoEhFalhaDeAcesso) {
    QTemporaryDir pasta;
    ASSERT_TRUE(QDir(pasta.path()).mkdir(QStringLiteral("Megasena.sv")));
    EXPECT_EQ(falhaDe([&] { LeArquivoSuper(QDir(pasta.path()).filePath(QStringLiteral("Megasena.sv"))); }),
              erro::AcessoCaminho);
}

TEST(LeArquivoSuper, ArquivoAlemDoLimiteEhFaltaDeMemoria) {
    QTemporaryDir pasta;
    const QString nome = QDir(pasta.path()).filePath(QStringLiteral("Megasena.sv"));
    {
        QFile f(nome);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(2000, 'x'));
    }
    const int64_t antes = LimiteArquivoSuper;
    LimiteArquivoSuper = 1000;
    EXPECT_EQ(falhaDe([&] { LeArquivoSuper(nome); }), erro::MemoriaInsuficiente);
    LimiteArquivoSuper = antes;
}
