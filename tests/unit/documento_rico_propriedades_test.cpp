// The compact document against a plain reference: random sequences of
// appends, bet lines, clears, rewrites, edits, hides, Text and TextRTF round
// trips and scrolling give the same text, runs and lines in both.
#include "apoio/DocumentoSimples.h"
#include "apoio/RtfSimples.h"
#include "core/Rtf.h"
#include "platform/DocumentoRico.h"

#include "base/Semantica.h"

#include <gtest/gtest.h>

#include <random>

using namespace sorvelo;

namespace {

const Formato Formatos[] = {
    {rgb(150, 0, 0), false}, {rgb(0, 0, 255), false}, {rgb(0, 150, 0), true}, {rgb(0, 0, 0), false}};
const QString FinsDeLinha[] = {QStringLiteral("\r\n"), QStringLiteral("\n"),    QString(),
                               QStringLiteral("\r"),   QStringLiteral("x\r\n"), QStringLiteral("\r\n\r\n")};

class Par {
public:
    explicit Par(uint32_t semente) : aleatorio_(semente) {}

    int sorteia(int limite) { return int(aleatorio_() % uint32_t(limite)); }

    QString pedacoAleatorio(int maximo) {
        static const char16_t alfabeto[] = u"0123456789 abcXYZ\r\n\r\n\t#)çãé€\x3a9{}\\";
        const int n = sorteia(maximo + 1);
        QString s;
        for (int i = 0; i < n; ++i) {
            if (sorteia(40) == 0) {
                s += QChar(0xD83D); // a surrogate pair: outside the 8-bit code page
                s += QChar(0xDE00);
            } else {
                s += QChar(alfabeto[sorteia(int(std::size(alfabeto)) - 1)]);
            }
        }
        return s;
    }

    // One random change, done on both documents.
    void muda() {
        const int op = sorteia(100);
        if (op < 30) {
            const QString p = sorteia(150) == 0 ? pedacoAleatorio(70000) : pedacoAleatorio(40);
            const Formato f = Formatos[sorteia(4)];
            rico.acrescenta(p, f);
            simples.acrescenta(p, f);
        } else if (op < 70) {
            linhasDeAposta(1 + sorteia(sorteia(25) == 0 ? 5000 : 30));
        } else if (op < 73) {
            rico.limpa();
            simples.limpa();
            proximo_ = 1;
        } else if (op < 76) {
            const QString t = pedacoAleatorio(200);
            rico.defineTexto(t);
            simples.defineTexto(t);
        } else if (op < 86) {
            const int64_t n = simples.comprimento();
            const int64_t a = n ? int64_t(aleatorio_() % uint64_t(n + 1)) : 0;
            const int64_t b = std::min<int64_t>(n, a + sorteia(sorteia(5) == 0 ? 500 : 8));
            const QString novo = pedacoAleatorio(6);
            const Formato f = Formatos[sorteia(4)];
            rico.substitui(a, b, novo, f);
            simples.substitui(a, b, novo, f);
        } else if (op < 90) {
            const bool v = sorteia(2) == 0;
            rico.defineVisivel(v);
            simples.defineVisivel(v);
        } else if (op < 94) {
            // Text round trip.
            const QString t = rico.texto();
            rico.defineTexto(t);
            simples.defineTexto(simples.texto());
        } else {
            // Another document appended, or taken when this one is empty.
            Par outro{uint32_t(aleatorio_())};
            for (int i = 0, n = sorteia(6); i < n; ++i)
                outro.muda();
            if (sorteia(2) == 0) {
                rico.acrescenta(outro.rico);
                simples.acrescenta(outro.simples);
            } else {
                const bool estavaVazio = rico.vazio();
                rico.acrescentaTomando(outro.rico);
                simples.acrescentaTomando(outro.simples);
                EXPECT_EQ(outro.rico.vazio(), estavaVazio || outro.simples.texto().isEmpty());
            }
        }
    }

    void linhasDeAposta(int quant) {
        const int k = sorteia(4) == 0 ? sorteia(16) : 6;
        const QString fim = FinsDeLinha[sorteia(6) < 4 ? 0 : sorteia(6)];
        if (sorteia(10) == 0) proximo_ = sorteia(3) == 0 ? 99990 : sorteia(20);
        for (int i = 0; i < quant; ++i) {
            uint8_t numeros[16];
            QString aposta;
            for (int c = 0; c < k; ++c) {
                numeros[c] = uint8_t(sorteia(100));
                aposta += formata00(numeros[c]) + u' ';
            }
            rico.acrescentaLinhaAposta(proximo_, numeros, k, fim, Formatos[0], Formatos[1]);
            const QString linha = formata(proximo_, 5) + QStringLiteral(")   ") + aposta + fim;
            simples.acrescenta(QStringView(linha).left(6), Formatos[0]);
            simples.acrescenta(QStringView(linha).mid(6), Formatos[1]);
            ++proximo_;
        }
    }

    DocumentoRico rico;
    DocumentoSimples simples;

private:
    std::mt19937 aleatorio_;
    int64_t proximo_ = 1;
};

void comparaTrechos(const std::vector<Trecho>& a, const std::vector<Trecho>& b) {
    ASSERT_EQ(a.size(), b.size());
    for (size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(a[i].inicio, b[i].inicio) << i;
        ASSERT_EQ(a[i].fim, b[i].fim) << i;
        ASSERT_EQ(a[i].formato, b[i].formato) << i;
    }
}

// What a view reads: the lines of a window, their starts, lengths, runs and
// text, and the line of positions inside them.
void comparaJanela(Par& par, int64_t primeira, int64_t linhas) {
    const DocumentoRico& r = par.rico;
    const DocumentoSimples& s = par.simples;
    for (int64_t l = std::max<int64_t>(0, primeira); l < std::min(s.quantLinhas(), primeira + linhas); ++l) {
        const int64_t ini = s.inicioLinha(l);
        ASSERT_EQ(r.inicioLinha(l), ini) << l;
        ASSERT_EQ(r.comprimentoLinha(l), s.comprimentoLinha(l)) << l;
        const int64_t fim = ini + s.comprimentoLinha(l);
        comparaTrechos(r.trechos(ini, fim), s.trechos(ini, fim));
        ASSERT_EQ(r.texto(ini, fim), s.texto().mid(ini, fim - ini)) << l;
        ASSERT_EQ(r.linhaDa(ini), s.linhaDa(ini)) << l;
        ASSERT_EQ(r.linhaDa(fim), s.linhaDa(fim)) << l;
    }
}

void compara(Par& par) {
    const DocumentoRico& r = par.rico;
    const DocumentoSimples& s = par.simples;
    const QString texto = s.texto();
    ASSERT_EQ(r.comprimento(), s.comprimento());
    ASSERT_EQ(r.vazio(), texto.isEmpty());
    ASSERT_EQ(r.texto(), texto);
    ASSERT_EQ(r.quantLinhas(), s.quantLinhas());
    ASSERT_EQ(r.visivel(), s.visivel());
    comparaTrechos(r.trechos(), s.trechos());
    const int64_t n = s.comprimento();
    for (int i = 0; i < 20; ++i) {
        const int64_t p = int64_t(par.sorteia(int(n) + 3)) - 1;
        ASSERT_EQ(r.linhaDa(p), s.linhaDa(p)) << p;
        ASSERT_EQ(r.formatoEm(p), s.formatoEm(p)) << p;
        if (p >= 0 && p < n) {
            ASSERT_EQ(r.caractere(p), texto[qsizetype(p)]) << p;
        }
        const int64_t b = std::min<int64_t>(n, p + par.sorteia(300));
        ASSERT_EQ(r.texto(p, b), texto.mid(std::max<int64_t>(p, 0), b - std::max<int64_t>(p, 0)));
        comparaTrechos(r.trechos(p, b), s.trechos(p, b));
    }
    // The text in pieces: in order, each inside one run.
    QString lido;
    r.percorreTexto(0, n, [&](QStringView pedaco, Formato f) {
        ASSERT_FALSE(pedaco.isEmpty());
        ASSERT_EQ(f, s.formatoEm(lido.size()));
        ASSERT_EQ(f, s.formatoEm(lido.size() + pedaco.size() - 1));
        lido += pedaco;
    });
    ASSERT_EQ(lido, texto);
    // Scrolling: a window at the start, the middle, the end and anywhere.
    const int64_t linhas = s.quantLinhas();
    for (int64_t primeira : {int64_t(0), linhas / 2, linhas - 20, int64_t(par.sorteia(int(linhas)))})
        comparaJanela(par, primeira, 25);
    // The longest line from a line on, as a view measures its width.
    for (int64_t desde : {int64_t(0), int64_t(par.sorteia(int(linhas)))}) {
        std::pair<int64_t, int64_t> maior{-1, -1};
        for (int64_t l = desde; l < linhas; ++l)
            if (s.comprimentoLinha(l) > maior.second) maior = {l, s.comprimentoLinha(l)};
        ASSERT_EQ(r.linhaMaisLonga(desde), maior) << desde;
    }
    // TextRTF: the same bytes as the plain writer gives for the reference.
    ASSERT_EQ(escreveRtf(r), escreveRtfSimples(s));
}

} // namespace

TEST(DocumentoRicoPropriedades, SequenciasAleatoriasDaoOMesmoQueODocumentoSimples) {
    for (uint32_t semente = 1; semente <= 20; ++semente) {
        SCOPED_TRACE(semente);
        Par par(semente);
        for (int passo = 0; passo < 40; ++passo) {
            par.muda();
            compara(par);
            if (HasFatalFailure()) return;
        }
    }
}

TEST(DocumentoRicoPropriedades, LinhasDeApostaAtravessamOsLimitesDosSegmentos) {
    // Thousands of bet lines (several segments), with the number passing
    // from five to six digits, then edits across the joints.
    Par par(7);
    par.linhasDeAposta(1);
    for (int i = 0; i < 6; ++i) {
        par.rico.acrescenta(QStringLiteral("Dezenas escolhidas: 01 02\r\n"), Formatos[2]);
        par.simples.acrescenta(QStringLiteral("Dezenas escolhidas: 01 02\r\n"), Formatos[2]);
        par.linhasDeAposta(4000);
    }
    compara(par);
    for (int i = 0; i < 15 && !HasFatalFailure(); ++i) {
        const int64_t a = int64_t(par.sorteia(int(par.simples.comprimento())));
        par.rico.substitui(a, a + 40, QStringLiteral("\n"), Formatos[3]);
        par.simples.substitui(a, a + 40, QStringLiteral("\n"), Formatos[3]);
        compara(par);
    }
}

TEST(DocumentoRicoPropriedades, CrNoFimDeUmSegmentoELfNoComecoDoSeguinte) {
    // A text of exactly the size of a segment that ends with a CR, then a
    // LF: one line end, as in one string.
    Par par(3);
    const QString cheio = QString(64 * 1024 - 1, u'a') + u'\r';
    par.rico.acrescenta(cheio, Formatos[0]);
    par.simples.acrescenta(cheio, Formatos[0]);
    par.rico.acrescenta(QStringLiteral("\nb"), Formatos[1]);
    par.simples.acrescenta(QStringLiteral("\nb"), Formatos[1]);
    compara(par);
    EXPECT_EQ(par.rico.quantLinhas(), 2);
    EXPECT_EQ(par.rico.comprimentoLinha(0), 64 * 1024 - 1);
}
