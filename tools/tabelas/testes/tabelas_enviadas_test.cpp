#include "Gerador.h"
#include "LeituraPrograma.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

using namespace sorvelo;
using namespace sorvelo::tabelas;

namespace {

std::string arquivo(const Jogo& j) {
    std::ifstream in(std::string(SORVELO_DADOS) + "/" + j.arquivo, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

} // namespace

// Every block of a file is read by the program's reader with rows of the
// game's full bet, and passes the exact proof. The blocks of Dupla Sena are
// those of Mega-Sena under their own keys (the next test), so they are read
// but not proven twice.
TEST(TabelasEnviadas, CadaBlocoELidoPeloProgramaECobre) {
    for (const Jogo& j : jogos()) {
        const std::string bytes = arquivo(j);
        ASSERT_FALSE(bytes.empty()) << j.arquivo;
        int presentes = 0;
        for (const Parametros& q : blocosDoJogo(j)) {
            const std::string ch = chave(j.codigo, q);
            const auto linhas = linhasLidasPeloPrograma(bytes, ch);
            if (!linhas) continue;
            ++presentes;
            ASSERT_LE(linhas->size(), size_t(MaxLinhasBloco)) << ch;
            for (const auto& l : *linhas)
                ASSERT_EQ(int(l.size()), j.k) << ch;
            const auto mascaras = linhasComoMascaras(*linhas, q.v);
            ASSERT_TRUE(mascaras) << ch;
            if (j.codigo != "DSC") {
                EXPECT_TRUE(provaBloco(Bloco{q, *mascaras})) << ch;
            }
        }
        EXPECT_GT(presentes, 0) << j.arquivo;
    }
}

TEST(TabelasEnviadas, MegaSenaEDuplaSenaTemOsMesmosBlocos) {
    const std::string mega = complementa(arquivo(jogos()[1]));
    std::string dupla = complementa(arquivo(jogos()[2]));
    for (size_t i = 0; (i = dupla.find("DSC", i)) != std::string::npos;)
        dupla.replace(i, 3, "MSC");
    EXPECT_EQ(mega, dupla);
}

TEST(TabelasEnviadas, BlocosQueNaoCabemNoLimiteNaoEstaoNosArquivos) {
    for (const Jogo& j : jogos()) {
        const std::string bytes = arquivo(j);
        for (const Parametros& q : blocosDoJogo(j))
            if (!cabeNoLimite(q)) {
                EXPECT_FALSE(linhasLidasPeloPrograma(bytes, chave(j.codigo, q)));
            }
    }
}
