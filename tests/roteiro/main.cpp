// sorvelo-roteiro: runs a scenario file against the real program, headless,
// and writes the transcript of what the program showed.
#include "platform/qt/ServicosQt.h"
#include "roteiro/Roteiro.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstring>

namespace {

const char* const Ajuda = R"(uso: sorvelo-roteiro CENARIO.txt
Executa o cenário no programa real, sem tela, e escreve a transcrição na saída padrão.

Estado de saída:
  0  o cenário chegou ao fim e todo `confere` valeu
  1  um `confere` falhou (a transcrição diz qual e mostra os dois textos)
  2  o cenário está errado: comando, controle ou variável desconhecida, linha mal escrita,
     `responde` sem caixa na tela, diálogo de arquivo sem `arquivo`, `arquivo` que nenhum
     diálogo usou, `na_cedencia` que não aconteceu, linha depois do fim do programa, linha
     que esperou mais de 60 s (a transcrição termina em "erro linha N: ...")
  3  o programa terminou por uma falha em tempo de execução (última linha: falha N "texto")
  4  veio uma caixa de mensagem que a linha seguinte não responde

Linhas (uma por linha; # começa um comentário; textos entre aspas com \" \\ \r \n):
  clica C                      clique em botão, caixa de marcar, rótulo, figura, célula Num(i),
                               entrada de menu (MenuQuina) ou botão da barra (BarraSup(6))
  digita C "texto"             foco em C, tudo selecionado, uma tecla por caractere
  tecla C Enter|Tab|Esc|Esquerda|Direita|Cima|Baixo|Apagar|Retrocesso
  escolhe C "item"             escolhe o item de uma lista ou caixa de combinação
  rola C N                     barra de rolagem ou botão de giro para N (com o evento de mudança)
  move C X Y                   movimento do mouse sobre C em X, Y (twips)
  responde Sim|Não|Cancelar|OK o botão da caixa de mensagem que acabou de vir
  arquivo "caminho"            o que o próximo diálogo de arquivo devolve; `arquivo cancela`
  relogio "dd/mm/aaaa" "hh:mm:ss"  a data e a hora que o programa lê daí em diante
                               (antes do primeiro `relogio`: 22/11/2026 14:05:09)
  pasta "caminho"              a pasta do programa, antes de todas as outras linhas
                               (sem ela, uma pasta temporária vazia)
  tabela "Arquivo.sv" "texto"  grava o texto na pasta do programa com cada byte complementado,
                               como o programa guarda as tabelas de super-redução
  inicia Apresenta ["arquivo"] o programa começa pela caixa de apresentação, como de fato
                               começa (sem ela, já na janela principal), com o arquivo de
                               apostas da linha de comando, se houver; antes das outras linhas
  espera MS                    o tempo corre MS milissegundos para os temporizadores
  mostra C                     o texto de um controle ou de uma variável compartilhada
                               (QuantBan, Historico, VetBan, VetDezenas(3), ...); Foco dá o
                               nome do controle com o foco; ResumoVetBan dá quantas linhas
                               e o SHA-1 das linhas de VetBan (bancos grandes demais para mostrar)
  mostra C cores               os trechos de cor e peso de uma área de texto rico; de uma
                               célula da grade, as cores de fundo e de texto
  mostra C posição             Left, Top, Width, Height de C em twips (à precisão do pixel)
  mostra C itens               cada item de uma caixa de lista ou combinação, um por linha,
                               em ordem: C(0) = "…"
  estado C                     visível/oculto, habilitado/desabilitado, marcado/desmarcado
  confere C "texto"            compara o texto de C (controle, variável ou elemento)
  fecha                        fecha a janela principal, com o seu fluxo de fechamento
  fecha FORMA                  fecha a forma aberta pelo botão de fechar da moldura da janela
  na_cedencia N LINHA          logo depois da linha que age: executa LINHA dentro da N-ésima
                               cedência ao laço de mensagens contada desde que ela agiu
  C pode ser Forma.C, um controle de uma forma aberta; sem forma, a do topo ou a principal.

Espera e tempo:
  Uma linha só corre quando o programa espera a pessoa: nenhum tratador em meio ao
  trabalho, a não ser os que aguardam num laço modal. Os temporizadores com nome das
  formas (Timer1) andam num relógio virtual, cada um contando o intervalo desde que a
  forma aparece ou desde que é ligado: os disparos reais são retidos e só `espera` faz
  o tempo correr, entregando os disparos devidos um a um, em ordem de tempo; as
  cedências do programa NÃO fazem o tempo correr (para um disparo no meio de um
  trabalho, `na_cedencia N espera 500`).
  Cada cedência conta para `na_cedencia`, mas o laço de mensagens só roda nela pela
  regra do programa, no máximo a cada 10 ms, aqui no relógio virtual: a primeira
  cedência depois de cada linha do cenário (ou de uma caixa ou de um diálogo
  respondidos) roda o laço; as seguintes, só depois que o relógio virtual andar 10 ms.
  Uma linha de `na_cedencia` roda o laço na própria cedência, logo depois dela.
  Assim um trabalho longo cede como no programa, e igual em qualquer máquina.
  Nenhuma resposta sai de uma caixa ou de um diálogo sem uma linha do cenário.

Transcrição (uma linha cada, UTF-8):
  caixa informação|aviso|crítico|pergunta "texto" [Sim, Não] padrão Não / resposta Sim
  C = "texto"  ·  VetBan(0) = "01 02 03 04 05 06 #"  ·  C: [0,150,0 negrito] "..."
  Num(3): fundo 0,0,200 texto 255,255,255  ·  C: Left, Top, Width, Height
  C: visível habilitado marcado  ·  forma Nome "Título" modal|não modal  ·  fecha Nome
  arquivo abrir|salvar "título" "filtro" / resposta "caminho"|cancela
  impressora fonte "Arial" 10 · impressora "texto" · impressora fim · abre "endereço"
  impressora arquivo pdf (o trabalho vai para um arquivo, não para a impressora)
  confere C: esperado "x", obtido "y"  ·  falha 9 "Subscrito fora do intervalo"
  erro linha N: motivo
)";

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && (!std::strcmp(argv[1], "--help") || !std::strcmp(argv[1], "-h"))) {
        std::fputs(Ajuda, stdout);
        return 0;
    }
    if (argc != 2) {
        std::fputs("uso: sorvelo-roteiro CENARIO.txt (--help para a ajuda)\n", stderr);
        return sorvelo::roteiro::status::CenarioErrado;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sorvelo"));
    sorvelo::instalaTraducao();

    QFile arquivo(QString::fromLocal8Bit(argv[1]));
    if (!arquivo.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "sorvelo-roteiro: não abre %s\n", argv[1]);
        return sorvelo::roteiro::status::CenarioErrado;
    }
    const QString conteudo = QString::fromUtf8(arquivo.readAll());

    sorvelo::roteiro::Transcricao saida(stdout);
    sorvelo::roteiro::Roteiro roteiro(sorvelo::roteiro::leCenario(conteudo), saida);
    return roteiro.executa();
}
