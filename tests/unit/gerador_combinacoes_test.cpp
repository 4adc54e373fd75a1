// The generator of all combinations: the order of its rows, its yields and
// its progress bar, its failure path, and the subsets of the statistics.
#include "apoio/Combinacao.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace sorvelo;
using namespace sorvelo::teste;

namespace {
QString linhaRes(const Programa& p, int linha, int quant) {
    QStringList cel;
    for (int c = 0; c < quant; ++c)
        cel << p.e.VetRes.valor(c, linha);
    return cel.join(u' ');
}

// Marks the numbers, loads them and runs the generator as the dialog does.
bool gera(ProgramaTeste& b, int k) {
    CarregaNumeros(b.p);
    const Int16 n = ContaNumeros(b.p);
    const Int32 total = ArredondaApostas(RetQuantCombinacoes(n, Int16(int16_t(k))));
    IniciaProgresso(b.p, module2(b.p), total);
    return CombinaVetor(b.p, module2(b.p), n, Int16(int16_t(k)), total);
}
} // namespace

TEST(CombinaVetor, OrdemDasLinhasDeCincoTresATres) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    ASSERT_TRUE(gera(b, 3));
    const QStringList esperadas = {"03 04 05", "02 04 05", "02 03 05", "02 03 04", "01 04 05",
                                   "01 03 05", "01 03 04", "01 02 05", "01 02 04", "01 02 03"};
    EXPECT_EQ(module2(b.p).LinhaRes, 10);
    for (int r = 0; r < 10; ++r) {
        EXPECT_EQ(linhaRes(b.p, r, 3), esperadas[r]) << "linha " << r;
        EXPECT_EQ(b.p.e.VetRes.valor(3, r), QString()) << "a linha não tem marca de fim";
    }
}

TEST(CombinaVetor, MarcasForaDeOrdemChegamNaOrdemDaGrade) {
    ProgramaTeste b;
    b.marca({9, 2, 40, 17, 33});
    ASSERT_TRUE(gera(b, 3));
    // VetNum is in grid order, so the rows exclude positions of 02 09 17 33 40.
    EXPECT_EQ(linhaRes(b.p, 0, 3), QStringLiteral("17 33 40"));
    EXPECT_EQ(linhaRes(b.p, 4, 3), QStringLiteral("02 33 40"));
    EXPECT_EQ(linhaRes(b.p, 9, 3), QStringLiteral("02 09 17"));
}

namespace {
// The rows of n marked numbers taken k at a time, as the generator orders
// them: the sets of excluded positions in lexicographic order, each row the
// numbers left.
QStringList linhasEsperadas(const std::vector<int>& numeros, int k) {
    const int n = int(numeros.size()), e = n - k;
    std::vector<int> excl(static_cast<size_t>(e));
    for (int i = 0; i < e; ++i)
        excl[size_t(i)] = i;
    QStringList linhas;
    for (;;) {
        QStringList cel;
        for (int i = 0, j = 0; i < n; ++i) {
            if (j < e && excl[size_t(j)] == i) {
                ++j;
                continue;
            }
            cel << formata00(numeros[size_t(i)]);
        }
        linhas << cel.join(u' ');
        int i = e - 1;
        while (i >= 0 && excl[size_t(i)] == n - e + i)
            --i;
        if (i < 0) break;
        ++excl[size_t(i)];
        for (int j = i + 1; j < e; ++j)
            excl[size_t(j)] = excl[size_t(j - 1)] + 1;
    }
    return linhas;
}
} // namespace

TEST(CombinaVetor, PoucosNumerosDeMuitosSaemNaMesmaOrdem) {
    // Few numbers taken among many marked (the rows found by a search over
    // the excluded positions), against the order of the excluded sets.
    const std::vector<std::vector<int>> marcas = {
        {2, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 60, 1, 4, 9},
        {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,
         21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40}};
    for (const auto& m : marcas) {
        for (int k : {1, 2, 3}) {
            ProgramaTeste b;
            for (int x : m)
                b.marca({x});
            ASSERT_TRUE(gera(b, k));
            std::vector<int> ordenados = m;
            std::sort(ordenados.begin(), ordenados.end());
            const QStringList esperadas = linhasEsperadas(ordenados, k);
            ASSERT_EQ(module2(b.p).LinhaRes, int(esperadas.size())) << k;
            for (int r = 0; r < int(esperadas.size()); ++r)
                ASSERT_EQ(linhaRes(b.p, r, k), esperadas[r]) << "k " << k << " linha " << r;
        }
    }
}

TEST(CombinaVetor, CemNumerosDaLotomaniaDoisADoisSaemNaMesmaOrdem) {
    // More than 64 numbers: the excluded positions fill two words.
    ProgramaTeste b;
    TrocaLoteria(b.p, QStringLiteral("Lotomania"));
    std::vector<int> todos;
    for (int n = 0; n <= 99; ++n) {
        ClicaNumero(b.p, Int16::de(int64_t(b.celula(n))));
        todos.push_back(n);
    }
    ASSERT_TRUE(gera(b, 2));
    const QStringList esperadas = linhasEsperadas(todos, 2);
    ASSERT_EQ(module2(b.p).LinhaRes, int(esperadas.size()));
    for (int r = 0; r < int(esperadas.size()); ++r)
        ASSERT_EQ(linhaRes(b.p, r, 2), esperadas[r]) << "linha " << r;
}

TEST(CombinaVetor, NIgualAKDaUmaLinhaComTodos) {
    ProgramaTeste b;
    b.marcaFaixa(10, 15);
    ASSERT_TRUE(gera(b, 6));
    EXPECT_EQ(module2(b.p).LinhaRes, 1);
    EXPECT_EQ(linhaRes(b.p, 0, 6), QStringLiteral("10 11 12 13 14 15"));
    EXPECT_EQ(b.d.cedencia.quantas, 1);
}

TEST(CombinaVetor, SeteSeisATantasLinhasSemAMenorESemAMaior) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    ASSERT_TRUE(gera(b, 6));
    EXPECT_EQ(module2(b.p).LinhaRes, 7);
    EXPECT_EQ(linhaRes(b.p, 0, 6), QStringLiteral("02 03 04 05 06 07"));
    EXPECT_EQ(linhaRes(b.p, 6, 6), QStringLiteral("01 02 03 04 05 06"));
}

TEST(CombinaVetor, UmaPosicaoExcluidaNaoEntraNoTransporte) {
    // n - k = 1: the single excluded position walks 0..k and the run ends
    // when it reaches its maximum, row i leaving out the i-th number.
    ProgramaTeste b;
    b.marcaFaixa(1, 9);
    ASSERT_TRUE(gera(b, 8));
    Module2& m = module2(b.p);
    EXPECT_EQ(m.LinhaRes, 9);
    EXPECT_EQ(m.UltPos, 0);
    EXPECT_EQ(m.VetPos(0), 8);
    EXPECT_EQ(m.VetMax(0), 8);
    for (int r = 0; r < 9; ++r) {
        QStringList esperada;
        for (int n = 1; n <= 9; ++n)
            if (n != r + 1) esperada << formata00(n);
        EXPECT_EQ(linhaRes(b.p, r, 8), esperada.join(u' '));
    }
}

TEST(CombinaVetor, LidasDeTrasParaFrenteFicamEmOrdemCrescente) {
    ProgramaTeste b;
    b.marcaFaixa(1, 10);
    ASSERT_TRUE(gera(b, 4));
    const int total = 210;
    EXPECT_EQ(module2(b.p).LinhaRes, total);
    QStringList lidas;
    for (int r = total - 1; r >= 0; --r)
        lidas << linhaRes(b.p, r, 4);
    QStringList ordenadas = lidas;
    ordenadas.sort();
    ordenadas.removeDuplicates();
    EXPECT_EQ(lidas, ordenadas);
    EXPECT_EQ(lidas.first(), QStringLiteral("01 02 03 04"));
    EXPECT_EQ(lidas.last(), QStringLiteral("07 08 09 10"));
}

TEST(CombinaVetor, NAbaixoDeKEscreveUmaLinhaComTodosEAcaba) {
    ProgramaTeste b;
    b.marcaFaixa(1, 3);
    ASSERT_TRUE(gera(b, 6));
    EXPECT_EQ(b.p.e.VetRes.ultimaLinha(), 0);
    EXPECT_EQ(module2(b.p).LinhaRes, 1);
    EXPECT_EQ(linhaRes(b.p, 0, 3), QStringLiteral("01 02 03"));
}

TEST(CombinaVetor, CedeAoLacoDeMensagensACadaLinha) {
    ProgramaTeste b;
    b.marcaFaixa(1, 5);
    std::vector<int> linhasNaCedencia;
    b.d.cedencia.aoCeder = [&](long long) { linhasNaCedencia.push_back(module2(b.p).LinhaRes.valor()); };
    ASSERT_TRUE(gera(b, 3));
    EXPECT_EQ(linhasNaCedencia, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(CombinaVetor, FalhaDeMemoriaMostraAMensagemEDaFalso) {
    ProgramaTeste b;
    b.marcaFaixa(1, 20);
    module2(b.p).limiteMemoria = 1000;
    EXPECT_FALSE(gera(b, 6));
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    const CaixaVista& v = b.d.caixa.vistas()[0];
    EXPECT_EQ(v.tipo, CaixaVista::Tipo::Critico);
    EXPECT_EQ(v.texto, QStringLiteral("A memória do computador é insuficiente para\r"
                                      "essa quantidade de combinações!"));
}

TEST(CombinaVetor, LimitePadraoDeixaPassarAQuinaDaMegaSena) {
    Module2 m;
    const int64_t linhas = 5461512 + 1;
    if (m.limiteMemoria > 0) {
        EXPECT_GT(m.limiteMemoria / BytesPorLinha(5), linhas);
    }
    EXPECT_GT(BytesPorLinha(6), BytesPorLinha(5));
}

TEST(CombinaVetor, ColunaAlemDe81TambemCaiNaMensagem) {
    ProgramaTeste b(QStringLiteral("Lotomania"));
    b.marcaFaixa(0, 83);
    EXPECT_FALSE(gera(b, 83));
    ASSERT_EQ(b.d.caixa.vistas().size(), 1u);
    EXPECT_EQ(b.d.caixa.vistas()[0].texto, MensagemMemoriaInsuficiente());
}

TEST(CombinaVetor, OitentaEDuasColunasAindaCabem) {
    ProgramaTeste b(QStringLiteral("Lotomania"));
    b.marcaFaixa(0, 82);
    ASSERT_TRUE(gera(b, 82));
    EXPECT_EQ(module2(b.p).LinhaRes, 83);
    EXPECT_EQ(b.p.e.VetRes.valor(81, 0), QStringLiteral("82"));
    EXPECT_TRUE(b.d.caixa.vistas().empty());
}

TEST(PosicaoExcluida, ComparaComTodasAsPosicoes) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    m.UltPos = -1;
    EXPECT_FALSE(PosicaoExcluida(b.p, module2(b.p), 0));
    m.UltPos = 1;
    m.VetPos(0) = 3;
    m.VetPos(1) = 7;
    EXPECT_TRUE(PosicaoExcluida(b.p, module2(b.p), 3));
    EXPECT_TRUE(PosicaoExcluida(b.p, module2(b.p), 7));
    EXPECT_FALSE(PosicaoExcluida(b.p, module2(b.p), 5));
}

TEST(Progresso, NovecentosENoventaENoveTemPeriodoUm) {
    ProgramaTeste b;
    IniciaProgresso(b.p, module2(b.p), 999);
    const Module2& m = module2(b.p);
    EXPECT_EQ(m.PeriodoProgresso, 1);
    EXPECT_EQ(m.Progresso.Max, 1000.0f);
    EXPECT_EQ(m.Progresso.Min, 0);
    EXPECT_EQ(m.Progresso.Value, 0);
    EXPECT_EQ(m.ValorProgresso, 0);
}

TEST(Progresso, MilTemPeriodoCemEMaximoOnze) {
    ProgramaTeste b;
    IniciaProgresso(b.p, module2(b.p), 1000);
    const Module2& m = module2(b.p);
    EXPECT_EQ(m.PeriodoProgresso, 100);
    EXPECT_EQ(m.Progresso.Max, 11.0f);
}

TEST(Progresso, MaximoEmPrecisaoSimples) {
    ProgramaTeste b;
    IniciaProgresso(b.p, module2(b.p), 5461512);
    EXPECT_EQ(module2(b.p).Progresso.Max, float(5461512.0 / 100 + 1));
}

TEST(Progresso, AvancaUmaVezPorPeriodo) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    std::vector<int32_t> valores;
    m.aoMudarProgresso.liga([&](const BarraProgresso& barra) { valores.push_back(barra.Value); });
    IniciaProgresso(b.p, module2(b.p), 1000);
    for (int i = 0; i < 1000; ++i)
        AvancaProgresso(b.p, module2(b.p));
    EXPECT_EQ(m.ValorProgresso, 10);
    EXPECT_EQ(m.Progresso.Value, 10);
    EXPECT_EQ(valores, (std::vector<int32_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(b.d.cedencia.quantas, 1000);
    EXPECT_EQ(m.ContProgresso, 0);
}

TEST(Progresso, ContadorDeCicloSegueDeUmaExecucaoAOutra) {
    ProgramaTeste b;
    b.marcaFaixa(1, 7);
    ASSERT_TRUE(gera(b, 6)); // seven rows at period 1
    Module2& m = module2(b.p);
    EXPECT_EQ(m.ContProgresso, 7);
    EXPECT_EQ(m.Progresso.Value, 7);
    IniciaProgresso(b.p, module2(b.p), 1000);
    EXPECT_EQ(m.ContProgresso, 7) << "IniciaProgresso não zera o ciclo";
    for (int i = 0; i < 150; ++i)
        AvancaProgresso(b.p, module2(b.p));
    // From 7 to 156 only 100 is a multiple of the period; from 0 it would
    // have been 0 and 100.
    EXPECT_EQ(m.ValorProgresso, 1);
    EXPECT_EQ(m.ContProgresso, 157);
}

TEST(Progresso, CicloVoltaAZeroEmMil) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    IniciaProgresso(b.p, module2(b.p), 10);
    m.ContProgresso = 998;
    AvancaProgresso(b.p, module2(b.p));
    EXPECT_EQ(m.ContProgresso, 999);
    AvancaProgresso(b.p, module2(b.p));
    EXPECT_EQ(m.ContProgresso, 0);
}

TEST(Progresso, BarraRecusaValorAcimaDoMaximoEOLacoSegue) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    IniciaProgresso(b.p, module2(b.p), 1); // maximum 2
    for (int i = 0; i < 5; ++i)
        AvancaProgresso(b.p, module2(b.p));
    EXPECT_EQ(m.ValorProgresso, 5);
    EXPECT_EQ(m.Progresso.Value, 2);
}

TEST(GeraSubconjuntos, QuatroDeSeisRepeteOUltimo) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    for (int i = 0; i <= 5; ++i)
        m.VetSubBase(i) = Int16(int16_t(i + 1));
    GeraSubconjuntos(b.p, module2(b.p), 4, 6);
    ASSERT_EQ(m.QuantSub, 16);
    auto sub = [&](int j) {
        QStringList s;
        for (int c = 0; c < 4; ++c)
            s << QString::number(m.Sub(j, c).valor());
        return s.join(u' ');
    };
    EXPECT_EQ(sub(0), QStringLiteral("3 4 5 6"));
    EXPECT_EQ(sub(1), QStringLiteral("2 4 5 6"));
    EXPECT_EQ(sub(14), QStringLiteral("1 2 3 4"));
    EXPECT_EQ(sub(15), QStringLiteral("1 2 3 4"));
    EXPECT_EQ(b.d.cedencia.quantas, 0) << "sem cedência";
}

TEST(GeraSubconjuntos, TresDeCincoRepeteOUltimo) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    for (int i = 0; i <= 5; ++i)
        m.VetSubBase(i) = Int16(int16_t(10 * (i + 1)));
    GeraSubconjuntos(b.p, module2(b.p), 3, 5);
    ASSERT_EQ(m.QuantSub, 11);
    EXPECT_EQ(m.Sub(9, 0), 10);
    EXPECT_EQ(m.Sub(9, 2), 30);
    EXPECT_EQ(m.Sub(10, 0), 10);
    EXPECT_EQ(m.Sub(10, 2), 30);
}

TEST(GeraSubconjuntos, UmaPosicaoExcluidaNaoRepete) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    for (int i = 0; i <= 5; ++i)
        m.VetSubBase(i) = Int16(int16_t(i + 1));
    GeraSubconjuntos(b.p, module2(b.p), 5, 6);
    EXPECT_EQ(m.QuantSub, 6);
    GeraSubconjuntos(b.p, module2(b.p), 4, 5);
    EXPECT_EQ(m.QuantSub, 5);
    GeraSubconjuntos(b.p, module2(b.p), 3, 4);
    EXPECT_EQ(m.QuantSub, 4);
}

TEST(Module2, EstadoDoModuloViveComOPrograma) {
    ProgramaTeste b;
    Module2& m = module2(b.p);
    m.ContProgresso = 42;
    EXPECT_EQ(&module2(b.p), &m);
    EXPECT_EQ(module2(b.p).ContProgresso, 42);
    ProgramaTeste outra;
    EXPECT_EQ(module2(outra.p).ContProgresso, 0);
}
