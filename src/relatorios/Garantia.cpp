#include "relatorios/Garantia.h"

#include "base/Semantica.h"

#include <algorithm>
#include <array>
#include <bit>

namespace sorvelo {

namespace {

QString numeros(const std::vector<int>& ns) {
    QStringList l;
    for (int n : ns)
        l << formata00(n);
    return l.join(u' ');
}

const char16_t* nomeGrupo(int n) {
    switch (n) {
    case 2:
        return u"Duque";
    case 3:
        return u"Terno";
    case 4:
        return u"Quadra";
    case 5:
        return u"Quina";
    case 6:
        return u"Sena";
    default:
        return nullptr;
    }
}

QString garantiaPorExtenso(int t) {
    const char16_t* nome = nomeGrupo(t);
    return nome ? QString::fromUtf16(nome) : QString::number(t);
}

} // namespace

ResultadoGarantia verificaGarantia(std::vector<int> marcados, int acertar, int garantia,
                                   const std::vector<std::vector<int>>& apostas) {
    ResultadoGarantia r;
    std::sort(marcados.begin(), marcados.end());
    marcados.erase(std::unique(marcados.begin(), marcados.end()), marcados.end());
    r.marcados = marcados;
    r.acertar = acertar;
    r.garantia = garantia;
    r.apostas = int64_t(apostas.size());
    const int n = int(marcados.size());
    if (garantia < 1) {
        r.situacao = ResultadoGarantia::Situacao::SemGarantia;
        return r;
    }
    if (n < acertar || acertar < 1 || garantia < 1 || garantia > acertar) {
        r.situacao = ResultadoGarantia::Situacao::PoucosNumeros;
        return r;
    }
    if (!MapaCobertura::parametrosValidos(n, acertar, garantia)) {
        r.situacao = ResultadoGarantia::Situacao::GrandeDemais;
        return r;
    }
    if (apostas.empty()) {
        r.situacao = ResultadoGarantia::Situacao::SemApostas;
        return r;
    }
    std::array<int, 100> posicao;
    posicao.fill(-1);
    for (int i = 0; i < n; ++i)
        if (marcados[size_t(i)] >= 0 && marcados[size_t(i)] < 100) posicao[size_t(marcados[size_t(i)])] = i;
    // Each bet as the set of its marked numbers; a bet repeated or meeting
    // the marked numbers in fewer than t adds nothing.
    std::vector<Mascara> linhas;
    for (const auto& a : apostas) {
        Mascara m = 0;
        for (int x : a)
            if (x >= 0 && x < 100 && posicao[size_t(x)] >= 0) m |= Mascara(1) << posicao[size_t(x)];
        if (std::popcount(m) >= garantia) linhas.push_back(m);
    }
    std::sort(linhas.begin(), linhas.end());
    linhas.erase(std::unique(linhas.begin(), linhas.end()), linhas.end());
    MapaCobertura mapa(n, acertar, garantia);
    for (Mascara m : linhas)
        mapa.marcaLinha(m);
    r.total = mapa.total();
    r.cobertos = mapa.cobertos();
    for (Mascara s : mapa.descobertos(ResultadoGarantia::MaxDescobertos)) {
        std::vector<int> g;
        for (; s; s &= s - 1)
            g.push_back(marcados[size_t(std::countr_zero(s))]);
        r.descobertos.push_back(g);
    }
    return r;
}

std::vector<std::vector<int>> apostasDoBanco(const MatrizTexto& banco, int64_t quantBan) {
    std::vector<std::vector<int>> r;
    if (!banco.temLimites()) return r;
    const int64_t ate = std::min<int64_t>(quantBan, banco.quantLinhas());
    r.reserve(size_t(std::max<int64_t>(0, ate)));
    for (int64_t i = 0; i < ate; ++i) {
        int quant = 0;
        const uint8_t* c = banco.celulas(i, quant);
        std::vector<int> a;
        for (int j = 0; j < quant && c[j] != MatrizTexto::Fim; ++j)
            if (c[j] >= MatrizTexto::PrimeiroNumero && c[j] != MatrizTexto::Outro)
                a.push_back(c[j] - MatrizTexto::PrimeiroNumero);
        r.push_back(std::move(a));
    }
    return r;
}

QString percentualCoberto(const ResultadoGarantia& r) {
    const double p = r.total ? 100.0 * double(r.cobertos) / double(r.total) : 0.0;
    return QString::number(p, 'f', 2).replace(u'.', u',') + u'%';
}

QStringList textoGarantia(const ResultadoGarantia& r) {
    using S = ResultadoGarantia::Situacao;
    QStringList l;
    l << QStringLiteral("Números escolhidos: ") + numeros(r.marcados);
    l << QStringLiteral("Garantia de ") + garantiaPorExtenso(r.garantia) + QStringLiteral(" se acertar ") +
             QString::number(r.acertar) + QStringLiteral(" números dentro dos números escolhidos.");
    l << QStringLiteral("Apostas no banco: ") + QString::number(r.apostas);
    l << QString();
    switch (r.situacao) {
    case S::PoucosNumeros:
        l << QStringLiteral("Marque ao menos ") + QString::number(r.acertar) +
                 QStringLiteral(" números na grade para verificar esta garantia.");
        return l;
    case S::GrandeDemais:
        l << QStringLiteral("São combinações demais para verificar: diminua os números escolhidos.");
        return l;
    case S::SemGarantia:
        l << QStringLiteral("Escolha a garantia no quadro Combinações reduzidas.");
        return l;
    case S::SemApostas:
        l << QStringLiteral("O banco de apostas está vazio: nenhum grupo está coberto.");
        return l;
    case S::Verificada:
        break;
    }
    l << QStringLiteral("Grupos de ") + QString::number(r.acertar) + QStringLiteral(" números cobertos: ") +
             QString::number(r.cobertos) + QStringLiteral(" de ") + QString::number(r.total) +
             QStringLiteral(" (") + percentualCoberto(r) + QStringLiteral(")");
    if (r.cumpre()) {
        l << QStringLiteral("A garantia se cumpre: qualquer que seja o resultado dentro dos números "
                            "escolhidos, alguma aposta acerta ") +
                 QString::number(r.garantia) + QStringLiteral(" ou mais.");
        return l;
    }
    l << QStringLiteral("A garantia não se cumpre para ") + QString::number(r.total - r.cobertos) +
             QStringLiteral(" grupos.");
    l << QString();
    l << (r.total - r.cobertos > r.descobertos.size()
              ? QStringLiteral("Primeiros ") + QString::number(r.descobertos.size()) +
                    QStringLiteral(" grupos não cobertos:")
              : QStringLiteral("Grupos não cobertos:"));
    for (const auto& g : r.descobertos)
        l << numeros(g);
    return l;
}

} // namespace sorvelo
