#include "Relatorio.h"

#include "FormatoSv.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace sorvelo::tabelas {

namespace {

std::string fmt(const char* f, double x) {
    char b[32];
    std::snprintf(b, sizeof b, f, x);
    return b;
}

struct Resumo {
    std::vector<std::pair<double, std::string>> razoes;       // to the best known
    std::vector<std::pair<double, std::string>> razoesLimite; // to the lower bound, where none is known
    std::vector<std::pair<double, std::string>> reducoes;     // 1 - size / packing
    std::vector<std::string> fora;
};

double mediana(std::vector<std::pair<double, std::string>> v) {
    if (v.empty()) return 0;
    std::sort(v.begin(), v.end());
    const size_t n = v.size();
    return n % 2 ? v[n / 2].first : (v[n / 2 - 1].first + v[n / 2].first) / 2;
}

void escreveResumo(std::ostream& out, const std::string& nome, Resumo r) {
    out << "\n== " << nome << ": resumo ==\n";
    out << "Razão ao melhor conhecido: " << r.razoes.size() << " blocos, mediana "
        << fmt("%.3f", mediana(r.razoes));
    std::sort(r.razoes.rbegin(), r.razoes.rend());
    out << "; piores:";
    for (size_t i = 0; i < r.razoes.size() && i < 5; ++i)
        out << " " << r.razoes[i].second << " " << fmt("%.3f", r.razoes[i].first);
    out << "\n";
    if (!r.razoesLimite.empty()) {
        out << "Sem melhor conhecido: " << r.razoesLimite.size()
            << " blocos, razão ao limite inferior mediana " << fmt("%.3f", mediana(r.razoesLimite));
        std::sort(r.razoesLimite.rbegin(), r.razoesLimite.rend());
        out << "; maiores:";
        for (size_t i = 0; i < r.razoesLimite.size() && i < 5; ++i)
            out << " " << r.razoesLimite[i].second << " " << fmt("%.3f", r.razoesLimite[i].first);
        out << "\n";
    }
    std::sort(r.reducoes.begin(), r.reducoes.end());
    out << "Redução frente ao empacotamento da combinação reduzida: mediana "
        << fmt("%.1f%%", 100 * mediana(r.reducoes));
    if (!r.reducoes.empty())
        out << ", menor " << fmt("%.1f%%", 100 * r.reducoes.front().first) << " ("
            << r.reducoes.front().second << ")";
    out << "\n";
    out << "Fora das tabelas (" << r.fora.size() << "):";
    for (const std::string& f : r.fora)
        out << "\n  " << f;
    out << "\n";
}

} // namespace

void escreveRelatorio(std::ostream& out, const Tabelas& tabelas, const Referencias& ref) {
    std::map<std::tuple<int, int, int>, uint64_t> empacotado;
    for (const Jogo& j : jogos()) {
        if (j.codigo == "DSC") continue;
        const std::string nome = j.codigo == "MSC" ? "Mega-Sena e Dupla Sena (MSC, DSC)" : j.nome;
        out << "\n== " << nome << " ==\n";
        out << "chave        linhas  melhor  razão  limite  r/limite  empacot.  redução\n";
        Resumo r;
        for (const Parametros& q : blocosDoJogo(j)) {
            const std::string ch = chave(j.codigo, q);
            const auto i = tabelas.find(chaveDe(q));
            const uint64_t lim = limiteInferior(q);
            if (i == tabelas.end()) {
                r.fora.push_back(ch + (cabeNoLimite(q) ? ": nenhum bloco de até 10001 linhas encontrado"
                                                       : ": o limite inferior, " + std::to_string(lim) +
                                                             " linhas, passa de 10001"));
                continue;
            }
            const double n = double(i->second.linhas.size());
            const auto melhor = ref.melhorConhecido(q);
            auto& emp = empacotado[{q.v, q.k, q.t}];
            if (emp == 0) emp = tamanhoEmpacotamento(q.v, q.k, q.t);
            const double reducao = 1.0 - n / double(emp);
            char linha[160];
            std::snprintf(linha, sizeof linha, "%s  %6.0f  %6s  %5s  %6llu  %8.3f  %8llu  %6.1f%%\n",
                          ch.c_str(), n, melhor ? std::to_string(*melhor).c_str() : "-",
                          melhor ? fmt("%.3f", n / double(*melhor)).c_str() : "-", (unsigned long long)lim,
                          n / double(lim), (unsigned long long)emp, 100 * reducao);
            out << linha;
            if (melhor)
                r.razoes.push_back({n / double(*melhor), ch});
            else
                r.razoesLimite.push_back({n / double(lim), ch});
            r.reducoes.push_back({reducao, ch});
        }
        escreveResumo(out, nome, r);
    }
}

} // namespace sorvelo::tabelas
