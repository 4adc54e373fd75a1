// The eight pages of the built-in help, as the page form shows them: each
// page's title and its text, paragraph by paragraph, every paragraph with
// the line ends that follow it.
#include "relatorios/Ajuda.h"

namespace sorvelo {

namespace {

constexpr const char16_t* Paragrafo = u"\r\n\r\n";
constexpr const char16_t* Linha = u"\r\n";
constexpr const char16_t* Nada = u"";

const std::array<PaginaAjuda, QuantPaginasAjuda> Paginas{{
    {u"Iniciar Combinação",
     {{u"Esta opção fará uma combinação dos números informados na seção \"Escolha de números\" gerando "
       u"um determinado número de apostas de modo que se os números sorteados conferirem com qualquer "
       u"dos números escolhidos o acerto é garantido.",
       Paragrafo},
      {u"Fazer uma combinação de 10 números é o mesmo que você marcar uma só cartela com 10 números, mas "
       u"a combinação tem uma grande vantagem: como ela gera vários cartões, no caso de acerto o jogador "
       u"receberá um prêmio maior, pois várias cartelas poderão ser sorteadas, enquanto no outro caso o "
       u"jogador terá direito somente a um prêmio.",
       Paragrafo},
      {u"Por exemplo, se o jogador fizer uma combinação de 10 números na Mega-Sena, serão geradas 210 "
       u"apostas, e no caso de acerto as estatísticas são as seguintes:",
       Paragrafo},
      {u"* Acertando 4 dezenas pega 15 quadras.", Linha},
      {u"* Acertando 5 dezenas pega 5 quinas e 50 quadras.", Linha},
      {u"* Acertando 6 dezenas pega 1 sena, 24 quinas e 90 quadras.", Paragrafo}}},
    {u"Iniciar Fechamento",
     {{u"Esta opção fará o fechamento do jogo escolhido, por exemplo, se for escolhido o Terno, serão "
       u"feitas todas as combinações possíveis de 3 números, gerando um determinado número de apostas de "
       u"modo que se você registrar todas as cartelas geradas, com certeza absoluta você fará o terno em "
       u"uma das cartelas.",
       Paragrafo},
      {u"Isso é interessante, pois dependendo do prêmio acumulado, compensa arriscar um fechamento, e "
       u"até mesmo fechando-se o duque você aumentará as probabilidades de acerto pois garantindo o "
       u"acerto de 2 números, ficarão apenas 4 números para concorrerem no concurso.",
       Paragrafo},
      {u"Como o programa gera uma quantidade menor de números por aposta, por exemplo, no caso do "
       u"fechamento do Duque para a Lotofácil serão geradas 300 cartelas com 2 números, então para cada "
       u"cartela deve-se preecher os 13 números restantes, e para isso basta selecionar a opção "
       u"\"Auto-completar\" antes de iniciar o fechamento, que o Sorvelo sorteará para você os números "
       u"restantes.",
       Paragrafo}}},
    {u"Sortear apostas pelo computador",
     {{u"Esta opção gera um determinado número de apostas, que são sorteadas pelo Sorvelo "
       u"aleatoriamente. Na opção \"Informe a quantidade de dezenas por aposta\" deve-se informar a "
       u"quantidade de números a jogar por aposta, que no caso da Mega-Sena por exemplo, é no mínimo 6 "
       u"jogos por cartela. Na opção \"Informe a quantidade de apostas a sortear\" informe a quantidade "
       u"de cartelas a jogar.",
       Paragrafo},
      {u"Você pode configurar o Sorvelo para sortear números dentro das dezenas de maior ou menor "
       u"ocorrência em uma determinada proporção, por exemplo, se for informado 50%, metade dos números "
       u"sorteados estarão dentro das dezenas de maior/menor ocorrência.",
       Paragrafo},
      {u"Pode-se também selecionar determinados números e garantir que eles constarão em todas as "
       u"apostas, e também garantir que determinados números não constem em nenhum jogo sorteado.",
       Paragrafo}}},
    {u"Digitar apostas",
     {{u"Utilize essa opção se você desejar inserir ou complementar o banco de apostas com jogos de seu "
       u"próprio palpite. Para isso basta informar a quantidade de jogos por cartela, e nas caixas de "
       u"texto digitar os números desejados, e em seguida pressionar \"Inserir\", que o jogo será "
       u"inserido na caixa de listagem abaixo. Ao terminar de digitar os números, pressione o botão "
       u"\"Inserir no banco de apostas\" para que todos os jogos da caixa de listagem sejam inseridos no "
       u"banco de apostas.",
       Paragrafo}}},
    {u"Filtrar banco de apostas",
     {{u"No banco de apostas você pode inserir combinações, números sorteados, números digitados, etc. "
       u"em um só local. Após ter concluído o lançamento de apostas no mesmo, você poderá fazer uma "
       u"filtragem de acordo com vários critérios:",
       Paragrafo},
      {u"Números em sequência: se você selecionar esta caixa, serão excluídas as apostas que contiverem "
       u"uma quantidade de números em sequência maior ou igual à quantidade informada na caixa de "
       u"seleção logo à frente, onde o default é 3, ou seja, apostas que contiverem 3 ou mais números em "
       u"sequência serão eliminadas, por exemplo, 01, 05, 06, 07, 08, 20 (nesse caso temos 4 números em "
       u"sequência).",
       Paragrafo},
      {u"Números na mesma linha ou coluna: se estas caixas forem selecionadas, serão eliminadas as "
       u"apostas que contiverem uma quantidade de números na mesma linha ou coluna, maior ou igual à "
       u"quantidade informada na caixa de seleção correspondente. As linhas (ou colunas) são as "
       u"sequências horizontais ou verticais de números na cartela da CEF, que no caso da Mega-Sena por "
       u"exemplo, possuem 10 linhas por 6 colunas.",
       Paragrafo},
      {u"Linhas vazias, Colunas vazias: linhas ou colunas vazias são linhas ou colunas que não contém "
       u"nenhum número, e no caso destas caixas serem selecionadas, serão eliminadas as apostas que "
       u"contiverem uma quantidade de linhas ou colunas vazias maior ou igual à caixa de seleção "
       u"correspondente.",
       Paragrafo},
      {u"Números pares, Números ímpares: se estas caixas forem selecionadas, serão eliminadas as apostas "
       u"que contiverem uma quantidade de números pares ou ímpares maior ou igual à quantidade informada "
       u"na caixa de seleção correspondente.",
       Paragrafo},
      {u"Outros cartões com a mesma aposta: Se esta caixa for selecionada, serão eliminadas apostas que "
       u"contiverem os mesmos números (jogos iguais), e será deixada somente uma aposta das apostas "
       u"iguais.",
       Paragrafo}}},
    {u"Conferir banco de apostas",
     {{u"Essa opção permite o jogador conferir todos os jogos constantes no banco de apostas com o "
       u"resultado informado. Para isso deve-se informar primeiramente o resultado do concurso na seção "
       u"\"Escolha de números\" e em seguida pressionar o botão \"Conferir banco de apostas\". Altere o "
       u"valor da caixa de texto \"Mostrar somente jogos com quant. de pontos maior ou igual a X "
       u"pontos\" para o valor desejado e pressione o botão \"Iniciar conferência\". ",
       Paragrafo}}},
    {u"Combinações reduzidas",
     {{u"A combinação reduzida reduz a quantidade de apostas, com uma determinada garantia de acerto, "
       u"desde que os números sorteados estejam dentro dos números escolhidos. Por exemplo, vamos supor "
       u"que na Mega-Sena o jogador escolhe 11 números e deseja fazer uma combinação de 6 em 6, de modo "
       u"que se o resultado da Mega-Sena estiver contido dentro dos números escolhidos, a quina é "
       u"garantida. Assim, serão geradas apenas 121 apostas, contra 462 apostas, se o jogador tivesse "
       u"feita uma combinação completa. A vantagem deste tipo de combinação é que ela aumenta a "
       u"probabilidade de acertos com uma quantidade de jogos reduzida.",
       Nada}}},
    {u"Fixar números",
     {{u"Essa opção permite fixar números, que serão inseridos em uma determinada combinação completa. "
       u"Por exemplo, vamos supor que na Mega-Sena você deseje uma combinação que gere apostas com 6 "
       u"dezenas cada, mas quer 3 números escolhidos por você sejam fixos em todas as apostas. Então, "
       u"você fixa 3 números e escolhe uma combinação de, por exemplo, 07 números de 3 em 3, que no "
       u"total resultará em 35 apostas baseadas em uma seleção de 10 números (07 combinados + 3 fixos).",
       Nada}}},
}};

} // namespace

const std::array<PaginaAjuda, QuantPaginasAjuda>& paginasAjuda() {
    return Paginas;
}

} // namespace sorvelo
