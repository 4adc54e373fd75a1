// Verifying the bank against the result marked on the grid: the window
// "Conferência de apostas" as logic, its controls as a model that the form
// binds, and the main window's button that opens it.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

namespace sorvelo {

// A green piece of text (bold or not) at the end of a listing.
void EscreveRTF(DocumentoRico& RTFConf, const QString& S, bool Bold);
// The line of bet X (row of VetBan) with its score at the end of a listing:
// "00012)   01 02 03 04 05 06   4 pontos", the first 6 characters dark red,
// the rest blue.
void InsereRTF(const Nucleo& p, DocumentoRico& RTFConf, Int32 X, Int16 Pontos);
// The threshold of a game, as the window starts.
QString pontosPadrao(const QString& NomeLoteria);

// The controls of the window, as the form shows them.
struct TelaConfApostas {
    QString Caption = QStringLiteral("Conferência de apostas");
    QString LblTitulo = QStringLiteral("Conferir banco de apostas");
    QString Label4 = QStringLiteral("Mostrar somente jogos com quantidade de pontos maior ou igual a");
    CampoTexto TxtPontos;
    QString Label5 = QStringLiteral("pontos");
    DocumentoRico RTFConf;
    QString BtnIniciar = QStringLiteral("Iniciar conferência");
    QString BtnImprimir = QStringLiteral("Imprimir");
    QString BtnCancelar = QStringLiteral("Cancelar");
    // Layout set by a resize (twips).
    int FraConfTop = 0, RTFConfWidth = 0, RTFConfHeight = 0;
};

// The window while it is loaded. It is not modal: the main window goes on
// being used behind it. The result it verifies is the snapshot that the
// last press of "Conferir banco" left in VetDezenas and DezEscolhidas; the
// bank, its file name and the game are read when "Iniciar conferência" is
// pressed. Its cancel only closes it; so do Esc and the window's frame.
class ConfApostas : public LogicaDialogo {
public:
    explicit ConfApostas(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {}

    // Form load: the threshold of the game, the Dupla Sena reminder, the title.
    void Carrega();
    // The window becomes active: with an empty result, the warning and the
    // window closes. Returns false when it closed.
    bool Ativa();
    void BtnIniciar();
    void BtnImprimir();
    // Resize with the window's size in twips.
    void Redimensiona(int largura, int altura);

    bool fechada() const { return !aberto(); }
    TelaConfApostas tela;
    // Listed bets per score; only 0 to 99 are cleared and reported.
    Vetor<Int16> VetPontos{0, 100};
};

// "Conferir banco" on the main window: takes the result from the grid
// (CarregaNumeros, CarregaVetDezEsc), then asks for the window. When it
// isn't open (or was closed) it is loaded anew (ConfApostas, Carrega) and
// shown, and its first activation (Ativa) comes once it stands on the
// screen, so that the warning of an empty result closes a window that has
// appeared. When it is open it is only brought back, without a new load:
// that return runs the activation test (MostraConfApostasAberta).
void BtnConferir(Nucleo& p);
// The return to an open window: false when the test closed it.
bool MostraConfApostasAberta(ConfApostas& forma);

} // namespace sorvelo
