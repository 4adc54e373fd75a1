// A person's edits in a rich-text document: the text, the runs of format and
// the lines after any replacement are those of the same content written
// from scratch.
#include "platform/DocumentoRico.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace sorvelo;

namespace {

const Formato Formatos[] = {{rgb(150, 0, 0), false}, {rgb(0, 0, 255), false}, {rgb(0, 150, 0), true}};

// The same content appended piece by piece into a new document.
DocumentoRico doZero(const QString& texto, const std::vector<int>& formatos) {
    DocumentoRico d;
    for (qsizetype i = 0; i < texto.size(); ++i)
        d.acrescenta(QStringView(texto).mid(i, 1), Formatos[formatos[size_t(i)]]);
    return d;
}

void comparaCom(const DocumentoRico& d, const QString& texto, const std::vector<int>& formatos) {
    const DocumentoRico r = doZero(texto, formatos);
    ASSERT_EQ(d.texto(), r.texto());
    ASSERT_EQ(d.quantLinhas(), r.quantLinhas());
    for (int64_t l = 0; l < r.quantLinhas(); ++l) {
        ASSERT_EQ(d.inicioLinha(l), r.inicioLinha(l)) << "line " << l;
        ASSERT_EQ(d.comprimentoLinha(l), r.comprimentoLinha(l)) << "line " << l;
    }
    const auto a = d.trechos(), b = r.trechos();
    ASSERT_EQ(a.size(), b.size());
    for (size_t i = 0; i < a.size(); ++i) {
        EXPECT_EQ(a[i].inicio, b[i].inicio);
        EXPECT_EQ(a[i].fim, b[i].fim);
        EXPECT_TRUE(a[i].formato == b[i].formato);
    }
}

} // namespace

TEST(EdicaoDocumento, DigitarNoMeioDeUmaLinha) {
    DocumentoRico d;
    d.acrescenta(QStringLiteral("00001)  "), Formatos[0]);
    d.acrescenta(QStringLiteral("01 02\r\n"), Formatos[1]);
    d.substitui(5, 5, QStringLiteral("x"), Formatos[2]);
    EXPECT_EQ(d.texto(), QStringLiteral("00001x)  01 02\r\n"));
    EXPECT_TRUE(d.formatoEm(5) == Formatos[2]);
    EXPECT_TRUE(d.formatoEm(6) == Formatos[0]);
    EXPECT_TRUE(d.formatoEm(9) == Formatos[1]);
    EXPECT_EQ(d.quantLinhas(), 2);
}

TEST(EdicaoDocumento, ApagarUmFimDeLinhaJuntaAsLinhas) {
    DocumentoRico d;
    d.defineTexto(QStringLiteral("um\r\ndois\r\ntres"));
    ASSERT_EQ(d.quantLinhas(), 3);
    d.substitui(2, 4, QString(), d.formatoPadrao);
    EXPECT_EQ(d.texto(), QStringLiteral("umdois\r\ntres"));
    EXPECT_EQ(d.quantLinhas(), 2);
    EXPECT_EQ(d.inicioLinha(1), 8);
}

TEST(EdicaoDocumento, UmCrSeguidoDeLfFormaUmSoFimDeLinha) {
    DocumentoRico d;
    d.defineTexto(QStringLiteral("a\r\nb"));
    d.substitui(2, 2, QStringLiteral("x\r"), d.formatoPadrao); // "a\rx\r\nb"
    EXPECT_EQ(d.quantLinhas(), 3);
    EXPECT_EQ(d.inicioLinha(1), 2);
    EXPECT_EQ(d.inicioLinha(2), 5);
    d.substitui(2, 3, QString(), d.formatoPadrao); // "a\r\r\nb"
    EXPECT_EQ(d.quantLinhas(), 3);
    EXPECT_EQ(d.inicioLinha(2), 4);
}

TEST(EdicaoDocumento, ApagarTudoEEscreverDeNovo) {
    DocumentoRico d;
    d.defineTexto(QStringLiteral("linha\r\noutra"));
    d.substitui(0, d.comprimento(), QString(), d.formatoPadrao);
    EXPECT_EQ(d.comprimento(), 0);
    EXPECT_EQ(d.quantLinhas(), 1);
    EXPECT_TRUE(d.trechos().empty());
    d.substitui(0, 0, QStringLiteral("novo"), Formatos[1]);
    comparaCom(d, QStringLiteral("novo"), {1, 1, 1, 1});
}

TEST(EdicaoDocumento, EdicoesAoAcasoDaoOMesmoQueEscreverDoZero) {
    std::mt19937 g(4);
    const QString letras = QStringLiteral("ab \r\n\r\n0");
    for (int caso = 0; caso < 200; ++caso) {
        QString texto;
        std::vector<int> formatos;
        DocumentoRico d;
        for (int passo = 0; passo < 30; ++passo) {
            const int64_t n = texto.size();
            const int64_t ini = n ? int64_t(g() % uint32_t(n + 1)) : 0;
            const int64_t fim =
                ini + (n > ini ? int64_t(g() % uint32_t(std::min<int64_t>(4, n - ini) + 1)) : 0);
            QString novo;
            for (int k = int(g() % 4); k > 0; --k)
                novo += letras[qsizetype(g() % uint32_t(letras.size()))];
            const int f = int(g() % 3);
            d.substitui(ini, fim, novo, Formatos[f]);
            texto.replace(qsizetype(ini), qsizetype(fim - ini), novo);
            formatos.erase(formatos.begin() + ini, formatos.begin() + fim);
            formatos.insert(formatos.begin() + ini, size_t(novo.size()), f);
            comparaCom(d, texto, formatos);
            if (HasFatalFailure()) {
                ADD_FAILURE() << "case " << caso << " step " << passo;
                return;
            }
        }
    }
}
