#include "Gerador.h"

#include "Busca.h"
#include "FormatoSv.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <ostream>
#include <sstream>
#include <thread>

namespace sorvelo::tabelas {

namespace {

std::string leArquivo(const std::string& caminho) {
    std::ifstream in(caminho, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

// The code of the file that holds blocks of k numbers (Mega-Sena for 6).
const Jogo& jogoDe(int k) {
    for (const Jogo& j : jogos())
        if (j.k == k) return j;
    return jogos().front();
}

uint64_t semente(uint64_t base, const Parametros& q) {
    uint64_t h = base * 0x9E3779B97F4A7C15ULL;
    for (int x : {q.v, q.k, q.p, q.t})
        h = (h ^ uint64_t(x)) * 0x100000001B3ULL;
    return h;
}

// The filter is a list of texts separated by commas; a key passes when it
// contains one of them (under its own code or, for k = 6, under "DSC").
bool passaFiltro(const std::string& filtro, const Parametros& q) {
    if (filtro.empty()) return true;
    std::stringstream ss(filtro);
    std::string parte;
    while (std::getline(ss, parte, ','))
        if (chave(jogoDe(q.k).codigo, q).find(parte) != std::string::npos ||
            (q.k == 6 && chave("DSC", q).find(parte) != std::string::npos))
            return true;
    return false;
}

} // namespace

void juntaTabelas(Tabelas& destino, const Tabelas& outras) {
    for (const auto& [c, b] : outras) {
        const auto i = destino.find(c);
        if (i == destino.end() || i->second.linhas.size() > b.linhas.size()) destino[c] = b;
    }
}

Tabelas carregaTabelas(const std::string& pasta, std::ostream& log) {
    Tabelas r;
    for (const Jogo& j : jogos()) {
        const std::string texto = complementa(leArquivo(pasta + "/" + j.arquivo));
        for (Bloco& b : leBlocos(texto, j.codigo, j.k)) {
            if (!provaBloco(b)) {
                log << "Bloco recusado pela prova: " << chave(j.codigo, b.par) << "\n";
                continue;
            }
            auto i = r.find(chaveDe(b.par));
            if (i == r.end() || i->second.linhas.size() > b.linhas.size()) r[chaveDe(b.par)] = std::move(b);
        }
    }
    return r;
}

std::string conteudoArquivo(const Jogo& jogo, const Tabelas& tabelas) {
    std::vector<Bloco> blocos;
    for (const Parametros& q : blocosDoJogo(jogo)) {
        const auto i = tabelas.find(chaveDe(q));
        if (i != tabelas.end()) blocos.push_back(i->second);
    }
    return complementa(textoDoArquivo(jogo.codigo, blocos));
}

void gravaTabelas(const std::string& pasta, const Tabelas& tabelas) {
    std::filesystem::create_directories(pasta);
    for (const Jogo& j : jogos()) {
        const std::string destino = pasta + "/" + j.arquivo;
        const std::string temp = destino + ".novo";
        {
            std::ofstream out(temp, std::ios::binary | std::ios::trunc);
            out << conteudoArquivo(j, tabelas);
        }
        std::filesystem::rename(temp, destino);
    }
}

bool cabeNoLimite(const Parametros& q) {
    return limiteInferior(q) <= uint64_t(MaxLinhasBloco) && binomial(q.v, q.p) < (uint64_t(1) << 32);
}

void geraTabelas(const OpcoesGeracao& op, const Referencias& ref, Tabelas& tabelas, std::ostream& log) {
    struct Tarefa {
        Parametros q;
        uint64_t alvo;
    };
    std::vector<Tarefa> tarefas;
    for (int k : {5, 6, 15})
        for (const Parametros& q : blocosDoJogo(jogoDe(k))) {
            if (!cabeNoLimite(q)) continue;
            if (!passaFiltro(op.filtro, q)) continue;
            const uint64_t alvo = std::max(limiteInferior(q), ref.melhorConhecido(q).value_or(0));
            const auto i = tabelas.find(chaveDe(q));
            if (i != tabelas.end() && i->second.linhas.size() <= alvo) continue;
            tarefas.push_back({q, alvo});
        }
    if (op.piores > 0) {
        // The blocks farthest above their target first; a missing block first
        // of all. The distance to a lower bound, which is seldom reached,
        // counts a quarter of the distance to a best known size.
        auto razao = [&](const Tarefa& tf) {
            const auto i = tabelas.find(chaveDe(tf.q));
            if (i == tabelas.end()) return 1e9;
            const double r = double(i->second.linhas.size()) / double(tf.alvo);
            return ref.melhorConhecido(tf.q) ? r : 1 + (r - 1) / 4;
        };
        std::stable_sort(tarefas.begin(), tarefas.end(),
                         [&](const Tarefa& a, const Tarefa& b) { return razao(a) > razao(b); });
        if (tarefas.size() > op.piores) tarefas.resize(op.piores);
    }
    std::mutex trava;
    std::atomic<size_t> proxima{0};
    auto ultimaGravacao = std::chrono::steady_clock::now();
    auto trabalho = [&] {
        for (size_t n; (n = proxima++) < tarefas.size();) {
            const Tarefa& tf = tarefas[n];
            std::vector<Mascara> inicial;
            {
                std::lock_guard<std::mutex> g(trava);
                const auto i = tabelas.find(chaveDe(tf.q));
                if (i != tabelas.end()) inicial = i->second.linhas;
            }
            ConfigBusca cfg;
            cfg.par = tf.q;
            cfg.semente = semente(op.semente, tf.q);
            cfg.segundos = op.segundos;
            cfg.maxMovimentos = op.maxMovimentos;
            cfg.alvo = tf.alvo;
            const ResultadoBusca res = buscaBloco(cfg, inicial);
            Bloco b{tf.q, res.linhas};
            const bool provado = !b.linhas.empty() && provaBloco(b);
            std::lock_guard<std::mutex> g(trava);
            const std::string ch = chave(jogoDe(tf.q.k).codigo, tf.q);
            const auto i = tabelas.find(chaveDe(tf.q));
            const size_t antes = i == tabelas.end() ? 0 : i->second.linhas.size();
            log << ch << ": " << (provado ? std::to_string(b.linhas.size()) : std::string("nenhum"))
                << " linhas (antes " << antes << ", alvo " << tf.alvo << ", " << res.movimentos
                << " movimentos)" << std::endl;
            if (!b.linhas.empty() && !provado) log << ch << ": a busca deu um bloco que a prova recusa\n";
            if (provado && (antes == 0 || b.linhas.size() < antes)) {
                tabelas[chaveDe(tf.q)] = std::move(b);
                if (std::chrono::steady_clock::now() - ultimaGravacao > std::chrono::seconds(30)) {
                    gravaTabelas(op.pasta, tabelas);
                    ultimaGravacao = std::chrono::steady_clock::now();
                }
            }
        }
    };
    std::vector<std::thread> ts;
    for (int i = 0; i < std::max(1, op.trabalhadores); ++i)
        ts.emplace_back(trabalho);
    for (auto& t : ts)
        t.join();
    gravaTabelas(op.pasta, tabelas);
}

} // namespace sorvelo::tabelas
