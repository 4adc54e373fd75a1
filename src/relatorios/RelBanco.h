// The listing of the bank, "Listagem do banco de apostas", as logic: a
// header, the bets numbered and set in the game's columns, a footer; a font
// and a size for the whole listing; printing of the plain text.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

namespace sorvelo {

// Bets per row of the listing: 4, 4, 5, 1 and 2 for Mega-Sena, Dupla Sena,
// Quina, Lotomania and Lotofácil (0 for any other name).
int colunasRel(const QString& NomeLoteria);
// The columns of row 0 of VetBan up to its "#", at most 100.
Int16 RetQuantDez(const Nucleo& p);
// Appends the text of row Linha of VetBan (each cell and a blank, up to the
// "#") to `s`: the same text as RetAposta, without a string per bet.
void acrescentaAposta(QString& s, const Nucleo& p, int64_t Linha);

// The whole listing of the bank as text, built in one pass over the bets.
// `agora` is the date and the time as the log writes them.
QString textoRelatorio(const Nucleo& p, const QString& agora);

struct TelaRelBanco {
    QString Caption = QStringLiteral("Listagem do banco de apostas");
    QString Label1 = QStringLiteral("Listagem do banco de apostas - Preview");
    QString Label2 = QStringLiteral("Obs.: os dados do relatório poderão ser copiados ou alterados.");
    DocumentoRico RTFRel;
    // The font of the whole listing (the view and its selection).
    QString FonteNome = QStringLiteral("Arial");
    double FonteTamanho = 9.75;
    int64_t SelStart = 0, SelLength = 0;
    int RightMargin = 0; // twips
    Combo CmbFonte{QStringLiteral("Arial"), {}};
    Combo CmbTamanho{QStringLiteral("10"), {}};
    QString BtnImprimir = QStringLiteral("Imprimir");
    QString BtnCancelar = QStringLiteral("Cancelar");
    // Layout (twips).
    int Left = 0, Top = 0, Width = 0, Height = 0;
    int RTFRelWidth = 0, RTFRelHeight = 0;
};

// The window while it is loaded (modal); a new one at each opening.
class RelBanco : public LogicaDialogo {
public:
    explicit RelBanco(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {}

    // Form load: the fonts of the screen (all but the last), the sizes 6 to
    // 24, the window over the screen (sizes in twips), Lotomania at 8 points.
    void Carrega(const QStringList& fontesTela, int larguraTela, int alturaTela);
    // The window becomes active: the listing is built once per showing.
    void Ativa();
    // Builds the whole listing in RTFRel.
    void MontaRelatorio();
    // A choice in the font list or the size list: the whole listing takes
    // it, and the caret goes to the start.
    void CmbFonteClick();
    void CmbTamanhoClick();
    // Prints the plain text, edits included, in the chosen font.
    void BtnImprimir();

    bool fechada() const { return !aberto(); }
    bool Preenchido = false;
    Int16 QuantDezRel;
    Int16 ColunasRel;
    TelaRelBanco tela;

private:
};

} // namespace sorvelo
