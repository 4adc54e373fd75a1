// sorvelo-tabelas: makes, proves and reports the super-reduction tables.
#include "FormatoSv.h"
#include "Gerador.h"
#include "Relatorio.h"

#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

using namespace sorvelo::tabelas;

namespace {

const char* const Ajuda = R"(Uso: sorvelo-tabelas COMANDO [opções]

Comandos:
  gera        procura blocos menores para as tabelas, partindo das que estão na pasta
              (guarda sempre o menor dos dois), prova cada um e regrava os arquivos
  prova       prova cada bloco de cada arquivo da pasta; sai com 1 se algum falhar
  junta       junta às tabelas da pasta os blocos menores das tabelas de outra (--de PASTA)
  relatorio   mostra, para cada chave, o tamanho, o melhor conhecido, a razão, o limite
              inferior e o tamanho do empacotamento da combinação reduzida

Opções:
  --dados PASTA         pasta dos arquivos Lotofacil.sv, Megasena.sv, Duplasena.sv, Quina.sv
                        (padrão: dados)
  --referencias PASTA   pasta de coberturas-ljcr.csv e loteria-designs.csv
  --segundos N          tempo de busca por bloco (padrão: 10)
  --movimentos N        limite de movimentos por bloco (com a mesma semente, repete o resultado)
  -j N                  quantos blocos procurar ao mesmo tempo (padrão: 2)
  --semente N           semente das buscas (padrão: 2026)
  --filtro TEXTOS       só as chaves que contêm um dos textos, separados por vírgulas
                        (ex.: MSC, QNC12, MSC,QNC2)
  --de PASTA            a outra pasta de "junta"
  --piores N            só os N blocos mais acima do alvo (o melhor conhecido, ou o limite
                        inferior onde não há), os que faltam primeiro
  --relatorio ARQUIVO   grava o relatório no arquivo ao fim de "gera"

Para regravar as tabelas do projeto, na raiz:
  nice -n 10 build-rel/tools/tabelas/sorvelo-tabelas gera --dados dados --segundos 60 --relatorio dados/relatorio.txt
)";

struct Argumentos {
    std::string comando;
    OpcoesGeracao op;
    std::string referencias = SORVELO_REFERENCIAS;
    std::string relatorio;
    std::string de;
    bool ok = true;
};

Argumentos leArgumentos(int argc, char** argv) {
    Argumentos a;
    if (argc < 2) {
        a.ok = false;
        return a;
    }
    a.comando = argv[1];
    for (int i = 2; i < argc; ++i) {
        const std::string o = argv[i];
        if (i + 1 >= argc) {
            a.ok = false;
            break;
        }
        const std::string v = argv[++i];
        if (o == "--dados")
            a.op.pasta = v;
        else if (o == "--referencias")
            a.referencias = v;
        else if (o == "--segundos")
            a.op.segundos = std::stod(v);
        else if (o == "--movimentos")
            a.op.maxMovimentos = std::stoull(v);
        else if (o == "-j")
            a.op.trabalhadores = std::stoi(v);
        else if (o == "--semente")
            a.op.semente = std::stoull(v);
        else if (o == "--filtro")
            a.op.filtro = v;
        else if (o == "--piores")
            a.op.piores = std::stoull(v);
        else if (o == "--de")
            a.de = v;
        else if (o == "--relatorio")
            a.relatorio = v;
        else
            a.ok = false;
    }
    return a;
}

int prova(const std::string& pasta) {
    int falhas = 0, blocos = 0;
    for (const Jogo& j : jogos()) {
        std::ifstream in(pasta + "/" + j.arquivo, std::ios::binary);
        const std::string texto = complementa(std::string(std::istreambuf_iterator<char>(in), {}));
        for (const Bloco& b : leBlocos(texto, j.codigo, j.k)) {
            ++blocos;
            if (!provaBloco(b) || b.linhas.size() > size_t(MaxLinhasBloco)) {
                std::cout << j.arquivo << ": " << chave(j.codigo, b.par) << " não cobre\n";
                ++falhas;
            }
        }
    }
    std::cout << blocos << " blocos, " << falhas << " falhas\n";
    return falhas == 0 && blocos > 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    Argumentos a = leArgumentos(argc, argv);
    if (!a.ok || a.comando == "--help" || a.comando == "-h") {
        std::cout << Ajuda;
        return a.ok ? 0 : 2;
    }
    if (a.comando == "prova") return prova(a.op.pasta);
    Referencias ref;
    ref.carregaCoberturas(a.referencias + "/coberturas-ljcr.csv");
    ref.carregaLoterias(a.referencias + "/loteria-designs.csv");
    Tabelas tabelas = carregaTabelas(a.op.pasta, std::cerr);
    if (a.comando == "relatorio") {
        escreveRelatorio(std::cout, tabelas, ref);
        return 0;
    }
    if (a.comando == "junta" && !a.de.empty()) {
        juntaTabelas(tabelas, carregaTabelas(a.de, std::cerr));
        gravaTabelas(a.op.pasta, tabelas);
        return 0;
    }
    if (a.comando != "gera") {
        std::cout << Ajuda;
        return 2;
    }
    geraTabelas(a.op, ref, tabelas, std::cerr);
    if (!a.relatorio.empty()) {
        std::ofstream out(a.relatorio);
        escreveRelatorio(out, tabelas, ref);
    }
    return 0;
}
