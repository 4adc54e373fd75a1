// The reader of bets from text and CSV files: what makes a bet, what is
// skipped, what is refused and why, and its bounds on hostile input.
#include "edicao/LeitorApostas.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QRegularExpression>
#include <QStringList>

#include <random>
#include <string>

using namespace sorvelo;

namespace {

// Reads the text whole (Mega-Sena: 1 to 60 unless told).
LeitorApostas le(const QByteArray& texto, int ini = 1, int fim = 60) {
    LeitorApostas l(ini, fim);
    l.le(texto.constData(), size_t(texto.size()));
    l.termina();
    return l;
}

// Bet i as "01 02 03".
QString aposta(const LeitorApostas& l, int64_t i) {
    int n = 0;
    const uint8_t* c = l.aposta(i, n);
    QStringList s;
    for (int j = 0; j < n; ++j)
        s << QStringLiteral("%1").arg(int(c[j]), 2, 10, QLatin1Char('0'));
    return s.join(u' ');
}

QStringList apostas(const LeitorApostas& l) {
    QStringList s;
    for (int64_t i = 0; i < l.quantApostas(); ++i)
        s << aposta(l, i);
    return s;
}

QStringList recusas(const LeitorApostas& l) {
    QStringList s;
    for (const Recusa& r : l.recusas())
        s << QStringLiteral("%1: %2").arg(r.linha).arg(r.motivo);
    return s;
}

} // namespace

TEST(LeitorApostas, CadaLinhaComNumerosEUmaApostaEmOrdemCrescente) {
    const LeitorApostas l = le("5 3 1 60 22 17\n01 02 03 04 05 06\n");
    EXPECT_EQ(apostas(l), (QStringList{"01 03 05 17 22 60", "01 02 03 04 05 06"}));
    EXPECT_EQ(l.quantRecusadas(), 0);
    EXPECT_EQ(l.linhasLidas(), 2);
}

TEST(LeitorApostas, SeparadoresBrancosTabulacaoVirgulaPontoEVirgulaEHifen) {
    const LeitorApostas l = le("1,2,3,4,5,6\n1;2;3;4;5;7\n1-2-3-4-5-8\n1\t2\t3  4 ,5 ; 9\n");
    EXPECT_EQ(apostas(l), (QStringList{"01 02 03 04 05 06", "01 02 03 04 05 07", "01 02 03 04 05 08",
                                       "01 02 03 04 05 09"}));
}

TEST(LeitorApostas, ZerosAEsquerdaSaoAceitos) {
    EXPECT_EQ(apostas(le("001 0002 7 07x\n001 0002 7\n")), (QStringList{"01 02 07"}));
}

TEST(LeitorApostas, NumeroDeLinhaNoComecoEPulado) {
    const LeitorApostas l = le("00001)   01 02 03 04 05 06 \r\n  123) 10 20 30 40 50 60\r\n");
    EXPECT_EQ(apostas(l), (QStringList{"01 02 03 04 05 06", "10 20 30 40 50 60"}));
}

TEST(LeitorApostas, LinhasVaziasESemNumerosSaoPuladas) {
    const LeitorApostas l = le("Bolão da firma\n\n   \nDezenas:\n01 02 03 04 05 06\n---\n");
    EXPECT_EQ(apostas(l), (QStringList{"01 02 03 04 05 06"}));
    EXPECT_EQ(l.quantRecusadas(), 0);
}

TEST(LeitorApostas, FinsDeLinhaCrLfCrELfContamAsLinhasDoArquivo) {
    const LeitorApostas l = le("1 2 3\r\n1 1\r61\n\n1 2 99");
    EXPECT_EQ(apostas(l), (QStringList{"01 02 03"}));
    EXPECT_EQ(recusas(l), (QStringList{"2: o número 01 aparece mais de uma vez",
                                       "3: o número 61 está fora do jogo (01 a 60)",
                                       "5: o número 99 está fora do jogo (01 a 60)"}));
    EXPECT_EQ(l.linhasLidas(), 5);
}

TEST(LeitorApostas, NumeroForaDoJogoRepetidoETextoSaoRecusadosComOMotivo) {
    const LeitorApostas l = le("0 1 2 3 4 5\n1 2 3 4 5 5\n1 2 três 4\n1 2 3 4 5 61\n");
    EXPECT_EQ(l.quantApostas(), 0);
    EXPECT_EQ(
        recusas(l),
        (QStringList{"1: o número 0 está fora do jogo (01 a 60)", "2: o número 05 aparece mais de uma vez",
                     "3: \"três\" não é um número", "4: o número 61 está fora do jogo (01 a 60)"}));
}

TEST(LeitorApostas, LotomaniaVaiDeZeroANoventaENove) {
    const LeitorApostas l = le("00 99 50\n100 1\n", 0, 99);
    EXPECT_EQ(apostas(l), (QStringList{"00 50 99"}));
    EXPECT_EQ(recusas(l), (QStringList{"2: o número 100 está fora do jogo (00 a 99)"}));
}

TEST(LeitorApostas, NoMaximoOitentaEUmNumeros) {
    QByteArray ok, demais;
    for (int v = 0; v < 81; ++v)
        ok += QByteArray::number(v) + ' ';
    demais = ok + "81";
    const LeitorApostas l = le(ok + "\n" + demais + "\n", 0, 99);
    ASSERT_EQ(l.quantApostas(), 1);
    int n = 0;
    l.aposta(0, n);
    EXPECT_EQ(n, 81);
    EXPECT_EQ(recusas(l), (QStringList{"2: mais de 81 números numa aposta"}));
}

TEST(LeitorApostas, NumeroDeVinteAlgarismosEstaForaDoJogoSemEstouro) {
    const LeitorApostas l = le("12345678901234567890 1 2\n00000000000000000007 1 2\n");
    EXPECT_EQ(apostas(l), (QStringList{"01 02 07"}));
    EXPECT_EQ(recusas(l), (QStringList{"1: o número 12345678901234567890 está fora do jogo (01 a 60)"}));
}

TEST(LeitorApostas, LinhaEnormeERecusadaSemGuardarOTexto) {
    QByteArray enorme(10 * 1000 * 1000, '1');
    const LeitorApostas l = le("1 2 3\n" + enorme + "\n4 5 6\n");
    EXPECT_EQ(apostas(l), (QStringList{"01 02 03", "04 05 06"}));
    EXPECT_EQ(recusas(l), (QStringList{"2: linha longa demais (mais de 4096 caracteres)"}));
}

TEST(LeitorApostas, ArquivoComBytesNulosNaoETexto) {
    const QByteArray binario("1 2 3\n\x00\x01\x02 5", 12);
    const LeitorApostas l = le(binario);
    EXPECT_TRUE(l.parou());
    EXPECT_EQ(l.erro(), QStringLiteral("O arquivo não é um arquivo de texto (tem bytes nulos na linha 2)."));
}

TEST(LeitorApostas, MarcaDeOrdemDosBytesECabecalhoDoCsvSaoPulados) {
    const LeitorApostas l = le("\xEF\xBB\xBF"
                               "Aposta;D1;D2;D3\r\n1;01;02;03\r\n2;04;05;06\r\n");
    EXPECT_TRUE(l.comColunaAposta());
    EXPECT_EQ(apostas(l), (QStringList{"01 02 03", "04 05 06"}));
}

TEST(LeitorApostas, SemOCabecalhoAPrimeiraColunaEUmNumeroDaAposta) {
    EXPECT_EQ(recusas(le("1;01;02;03\r\n")), (QStringList{"1: o número 01 aparece mais de uma vez"}));
    EXPECT_EQ(apostas(le("7;01;02;03\r\n")), (QStringList{"01 02 03 07"}));
}

TEST(LeitorApostas, CamposEntreAspasDePlanilha) {
    EXPECT_EQ(apostas(le("\"01\";\"02\";\"03\"\n")), (QStringList{"01 02 03"}));
}

TEST(LeitorApostas, OsPrimeirosCemMotivosSaoGuardadosETodosContados) {
    QByteArray texto;
    for (int i = 0; i < 1000; ++i)
        texto += "1 1\n";
    const LeitorApostas l = le(texto);
    EXPECT_EQ(l.quantRecusadas(), 1000);
    ASSERT_EQ(l.recusas().size(), size_t(LeitorApostas::MaxRecusasGuardadas));
    EXPECT_EQ(l.recusas().back().linha, 100);
}

TEST(LeitorApostas, OsBytesPodemChegarEmPedacosDeQualquerTamanho) {
    const QByteArray texto = "\xEF\xBB\xBF"
                             "00001)   01 02 03\r\n1 1\r\n\r\n60 59 58";
    const LeitorApostas inteiro = le(texto);
    for (int passo = 1; passo <= 5; ++passo) {
        LeitorApostas l(1, 60);
        for (qsizetype i = 0; i < texto.size(); i += passo)
            l.le(texto.constData() + i, size_t(std::min<qsizetype>(passo, texto.size() - i)));
        l.termina();
        EXPECT_EQ(apostas(l), apostas(inteiro)) << passo;
        EXPECT_EQ(recusas(l), recusas(inteiro)) << passo;
        EXPECT_EQ(l.linhasLidas(), inteiro.linhasLidas()) << passo;
    }
}

TEST(LeitorApostas, MarcaIncompletaNoComecoEConteudo) {
    const LeitorApostas l = le("\xEF\xBB"
                               "1 2 3\n");
    EXPECT_EQ(recusas(l), (QStringList{"1: \"\xEF\xBB"
                                       "1\" não é um número"}));
}

// The plain rule, written the long way: split on the separators, numbers
// only, a leading "N)" dropped, each checked; used on random lines.
namespace {
struct Referencia {
    QStringList validas;
    int recusadas = 0;
};
Referencia referencia(const std::string& texto, int ini, int fim) {
    Referencia r;
    const QStringList linhas = QString::fromLatin1(texto.data(), qsizetype(texto.size())).split(u'\n');
    for (QString linha : linhas) {
        linha = linha.trimmed();
        static const QRegularExpression numeroDeLinha(QStringLiteral("^[0-9]+\\)"));
        linha.remove(numeroDeLinha);
        static const QRegularExpression seps(QStringLiteral("[ \\t,;\\-]+"));
        const QStringList campos = linha.split(seps, Qt::SkipEmptyParts);
        bool texto = false, numero = false;
        for (const QString& c : campos) {
            bool todosDigitos = !c.isEmpty();
            for (QChar ch : c)
                todosDigitos = todosDigitos && ch >= u'0' && ch <= u'9';
            (todosDigitos ? numero : texto) = true;
        }
        if (!numero) continue;
        if (texto || campos.size() > 81) {
            ++r.recusadas;
            continue;
        }
        std::vector<int> v;
        bool ok = true;
        for (const QString& c : campos) {
            QString d = c;
            while (d.size() > 1 && d.startsWith(u'0'))
                d.remove(0, 1);
            const int n = d.size() > 6 ? 1000 : d.toInt();
            ok = ok && n >= ini && n <= fim && std::find(v.begin(), v.end(), n) == v.end();
            v.push_back(n);
        }
        if (!ok) {
            ++r.recusadas;
            continue;
        }
        std::sort(v.begin(), v.end());
        QStringList s;
        for (int n : v)
            s << QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
        r.validas << s.join(u' ');
    }
    return r;
}
} // namespace

TEST(LeitorApostas, IgualARegraSimplesEmLinhasAoAcaso) {
    std::mt19937 gerador(20261123);
    const std::string pecas[] = {"1",  "7", "07", "60", "61", "0", "99", "5",  " ",
                                 "  ", ",", ";",  "-",  "\t", "x", "3)", "12)"};
    for (int caso = 0; caso < 2000; ++caso) {
        std::string texto;
        const int linhas = int(gerador() % 6);
        for (int l = 0; l < linhas; ++l) {
            const int n = int(gerador() % 12);
            for (int k = 0; k < n; ++k)
                texto += pecas[gerador() % std::size(pecas)];
            texto += '\n';
        }
        LeitorApostas l(1, 60);
        l.le(texto.data(), texto.size());
        l.termina();
        const Referencia r = referencia(texto, 1, 60);
        EXPECT_EQ(apostas(l), r.validas) << texto;
        EXPECT_EQ(l.quantRecusadas(), r.recusadas) << texto;
    }
}
