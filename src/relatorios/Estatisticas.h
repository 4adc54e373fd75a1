// Hit statistics by test draws: the window "Estatística de acerto" as logic.
// It draws a chosen number of random results of the game, scores every bet
// of the bank against each, and writes in green, test by test and in total,
// how many bets reached each score from the threshold on.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

#include <functional>

namespace sorvelo {

class IndiceApostas;

// One random draw of the game into VetDezenas2: DezMin distinct numbers, each
// Int(Rnd * NumFim) + NumIni (so Lotomania never draws 99), in the order of
// drawing, "#" behind the last. A repeated number is drawn again. The
// generator is never seeded here.
void SorteiaResultado(Nucleo& p, Int16& ContDezenas);

// The controls of the window, as the form shows them. The caption is the
// verification window's, on purpose.
struct TelaEstatisticas {
    QString Caption = QStringLiteral("Conferência de apostas");
    QString LblTitulo = QStringLiteral("Estatística de acerto");
    QString Label4 = QStringLiteral("Considerar somente jogos com quantidade de pontos maior ou igual a");
    CampoTexto TxtPontos;
    QString Label5 = QStringLiteral("pontos");
    QString LblMensagem;
    DocumentoRico RTFConf;
    QString BtnEstatistica = QStringLiteral("Iniciar estatística");
    QString BtnImprimir = QStringLiteral("Imprimir");
    QString BtnCancelar = QStringLiteral("Cancelar");
    // Layout set by a resize (twips).
    int FraConfTop = 0, RTFConfWidth = 0, RTFConfHeight = 0;
};

// The window while it is loaded (modal). A run has no yield and no cancel:
// the only way out is "CANCELAR" at the prompt.
class Estatisticas : public LogicaDialogo {
public:
    explicit Estatisticas(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {}

    // Form load: the threshold of the game.
    void Carrega();
    // Asks for the number of tests through the text prompt, then runs them.
    void BtnEstatistica();
    void BtnImprimir();
    // Resize with the window's size in twips.
    void Redimensiona(int largura, int altura);

    bool fechada() const { return !aberto(); }
    TelaEstatisticas tela;

    Int16 QuantTestes, TestesPontuados, ContDezenas;
    // Bets per score in the test in hand, and over all tests of the run;
    // only 0 to 99 are cleared and reported.
    Vetor<Int16> VetPontos{0, 100};
    Vetor<Int16> VetPontosGeral{0, 100};

private:
    void executa();
    void contaTeste(IndiceApostas& indice);
};

} // namespace sorvelo
