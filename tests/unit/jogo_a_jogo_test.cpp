#include "apoio/ProgramaTeste.h"
#include "core/BancoApostas.h"
#include "relatorios/JogoAJogo.h"

#include "apoio/ImprimeQt.h"

#include <gtest/gtest.h>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {

struct JogoAJogoTeste : ::testing::Test, ProgramaTeste {
    // A bank of the given bets, each a list of numbers, with VetBan sized as
    // the bank's writers size it (two rows more than the bets).
    void banco(const std::vector<std::vector<int>>& apostas) {
        p.e.VetBan.redimensiona(81, int64_t(apostas.size()) + 1);
        for (size_t l = 0; l < apostas.size(); ++l) {
            int c = 0;
            for (int n : apostas[l])
                p.e.VetBan.define(c++, int64_t(l), formata00(n));
            p.e.VetBan.define(c, int64_t(l), QStringLiteral("#"));
        }
        p.e.QuantBan = Int32::de(int64_t(apostas.size()));
    }
    void confere(const JogoAJogo& j, int32_t linha, const char* seq, const QString& jogo) {
        EXPECT_EQ(j.ApostaAtual, linha);
        EXPECT_EQ(j.TxtSeq, QString::fromLatin1(seq));
        EXPECT_EQ(j.TxtJogo, jogo);
    }
};

const QString Aposta1 = QStringLiteral("01 02 03 04 05 06 ");
const QString Aposta2 = QStringLiteral("07 08 09 10 11 12 13 ");
const QString Aposta3 = QStringLiteral("14 15 16 17 18 19 ");

} // namespace

TEST_F(JogoAJogoTeste, AbreNaPrimeiraAposta) {
    banco({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12, 13}});
    const JogoAJogo j(p);
    confere(j, 0, "000001", Aposta1);
}

TEST_F(JogoAJogoTeste, BancoVazioDeixaAsDuasCaixasVazias) {
    const JogoAJogo j(p);
    EXPECT_EQ(j.ApostaAtual, 0);
    EXPECT_TRUE(j.TxtSeq.isEmpty());
    EXPECT_TRUE(j.TxtJogo.isEmpty());
}

TEST_F(JogoAJogoTeste, DescerESubirParamNasPontas) {
    banco({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12, 13}, {14, 15, 16, 17, 18, 19}});
    JogoAJogo j(p);
    j.BtnSubir();
    confere(j, 0, "000001", Aposta1);
    j.BtnDescer();
    confere(j, 1, "000002", Aposta2);
    j.BtnDescer();
    confere(j, 2, "000003", Aposta3);
    j.BtnDescer();
    confere(j, 2, "000003", Aposta3);
    j.BtnSubir();
    confere(j, 1, "000002", Aposta2);
    j.BtnSubir();
    j.BtnSubir();
    confere(j, 0, "000001", Aposta1);
}

TEST_F(JogoAJogoTeste, UmaApostaOsDoisBotoesAReescrevem) {
    banco({{1, 2, 3, 4, 5, 6}});
    JogoAJogo j(p);
    j.TxtSeq = QStringLiteral("x");
    j.TxtJogo = QStringLiteral("y");
    j.BtnDescer();
    confere(j, 0, "000001", Aposta1);
    j.TxtSeq = QStringLiteral("x");
    j.TxtJogo = QStringLiteral("y");
    j.BtnSubir();
    confere(j, 0, "000001", Aposta1);
}

TEST_F(JogoAJogoTeste, MilhaoDeApostasNumeroComSeteDigitos) {
    const int64_t quant = 1000000;
    p.e.VetBan.redimensiona(81, quant + 1);
    const uint8_t linha[] = {MatrizTexto::codigoNumero(1), MatrizTexto::codigoNumero(2), MatrizTexto::Fim};
    p.e.VetBan.reserva(quant + 2, size_t(quant) * 3);
    for (int64_t l = 0; l < quant; ++l)
        p.e.VetBan.defineCelulas(l, linha, 3);
    p.e.QuantBan = Int32::de(quant);
    JogoAJogo j(p);
    j.ApostaAtual = 999997;
    j.BtnDescer();
    confere(j, 999998, "999999", QStringLiteral("01 02 "));
    j.BtnDescer();
    confere(j, 999999, "1000000", QStringLiteral("01 02 "));
    j.BtnDescer();
    confere(j, 999999, "1000000", QStringLiteral("01 02 "));
}

TEST_F(JogoAJogoTeste, ApostasDeTamanhosDiferentesCadaUmaNoSeuTamanho) {
    std::vector<int> longa;
    for (int n = 1; n <= 81; ++n)
        longa.push_back(n % 100);
    banco({{1, 2, 3, 4, 5, 6}, longa, {}, {99, 0}});
    JogoAJogo j(p);
    EXPECT_EQ(j.TxtJogo.size(), 18);
    j.BtnDescer();
    // 81 numbers: beyond any limit of 100 characters, the whole bet.
    EXPECT_EQ(j.TxtJogo.size(), 81 * 3);
    EXPECT_TRUE(j.TxtJogo.startsWith(QStringLiteral("01 02 03 ")));
    EXPECT_TRUE(j.TxtJogo.endsWith(QStringLiteral("80 81 ")));
    j.BtnDescer();
    EXPECT_EQ(j.TxtJogo, QString());
    j.BtnDescer();
    EXPECT_EQ(j.TxtJogo, QStringLiteral("99 00 "));
}

TEST_F(JogoAJogoTeste, BancoVazioSetaFalhaDepoisDeMostrar000001) {
    // The bank as emptying leaves it: bounds, and no "#" in row 0.
    InsereApostaMarcada(p);
    ASSERT_TRUE(LimpaBancoApostas(p));
    ASSERT_EQ(p.e.QuantBan, 0);
    JogoAJogo j(p);
    EXPECT_EQ(falhaDe([&] { j.BtnDescer(); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(j.TxtSeq, QStringLiteral("000001"));
    JogoAJogo k(p);
    EXPECT_EQ(falhaDe([&] { k.BtnSubir(); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(k.TxtSeq, QStringLiteral("000001"));
}

TEST_F(JogoAJogoTeste, BancoSemLimitesFalhaNaPrimeiraLeitura) {
    p.e.VetBan.apaga();
    p.e.QuantBan = 0;
    JogoAJogo j(p);
    EXPECT_EQ(falhaDe([&] { j.BtnSubir(); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(j.TxtSeq, QStringLiteral("000001"));
}

TEST_F(JogoAJogoTeste, GuardaAApostaAtualQuandoOBancoMuda) {
    banco({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12, 13}, {14, 15, 16, 17, 18, 19}});
    JogoAJogo j(p);
    j.BtnDescer();
    j.BtnDescer();
    confere(j, 2, "000003", Aposta3);
    // The bank shrinks to one bet; the stale row still has its "#".
    p.e.QuantBan = 1;
    EXPECT_EQ(j.TxtJogo, Aposta3); // no refresh of its own
    j.BtnDescer();
    confere(j, 2, "000003", Aposta3);
    j.BtnSubir();
    confere(j, 1, "000002", Aposta2);
    // The bank grows behind the view: the next press goes on from there.
    banco({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12, 13}, {14, 15, 16, 17, 18, 19}, {20, 21}});
    j.BtnDescer();
    confere(j, 2, "000003", Aposta3);
    j.BtnDescer();
    confere(j, 3, "000004", QStringLiteral("20 21 "));
}

TEST_F(JogoAJogoTeste, LinhaSemFimDepoisQueOBancoEncolheFalha) {
    banco({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12, 13}, {14, 15, 16, 17, 18, 19}});
    JogoAJogo j(p);
    j.BtnDescer();
    j.BtnDescer();
    // Emptied and one bet written anew: row 2 no longer exists.
    ASSERT_TRUE(LimpaBancoApostas(p));
    InsereApostaMarcada(p);
    EXPECT_EQ(falhaDe([&] { j.BtnDescer(); }), erro::SubscritoForaIntervalo);
    EXPECT_EQ(j.ApostaAtual, 2);
    EXPECT_EQ(j.TxtSeq, QStringLiteral("000003"));
}

TEST_F(JogoAJogoTeste, NovaAberturaComecaNaPrimeira) {
    banco({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12, 13}});
    {
        JogoAJogo j(p);
        j.BtnDescer();
        EXPECT_EQ(j.ApostaAtual, 1);
    }
    const JogoAJogo j(p);
    confere(j, 0, "000001", Aposta1);
}

TEST_F(JogoAJogoTeste, TxtJogoAcompanhaALarguraDoFormulario) {
    EXPECT_EQ(JogoAJogo::LarguraTxtJogo(6000), 4400);
    EXPECT_EQ(JogoAJogo::LarguraTxtJogo(12000), 10400);
}
