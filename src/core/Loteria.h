// The five games and the routine that puts the main window into one.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

struct Jogo {
    QString nome; // as the menu gives it
    QString nomeMaiusculo;
    int numIni, numFim, dezMin;
    QString dezAposta;         // TxtDezAp, TxtDezAp2
    int spin;                  // SpbDezAp, SpbDezAp2
    QString valor;             // TxtValAp
    QString fecha;             // CmbFecha ("" for Lotomania: left as it was)
    QString garantia;          // CmbGarantia ("" for Lotomania)
    bool fechamento;           // BtnFechar, CmbFecha, CmbGarantia enabled
    int linhasCartela;         // 0: none
    QString pontosConferencia; // threshold of the verification window
};

const std::array<Jogo, 5>& jogos();
// The game of a name in either case; nullptr when none matches.
const Jogo* jogoPorNome(const QString& nome);

void DefineCores(Nucleo& p);
// Nome in mixed case (menu, toolbar, start) or upper case (a file).
void ConfiguraLoteria(Nucleo& p, const QString& Nome);
QString RetValorNumerico(const QString& s, bool aparar);
void DesmarcaMenus(Nucleo& p);
// The number a guarantee word stands for: "Duque" 2 ... "Sena" 6, or the
// text's own value when it reads 7 or more; 0 otherwise.
int valorGarantia(const QString& texto);
// The guarantee words in the order of the lists: "Duque" ... "Sena".
const QStringList& palavrasGarantia();
// The number a guarantee word stands for, 2 to 6; 0 for any other text.
int numeroDaPalavra(const QString& texto);
// CmbAcertar derived from CmbGarantia's text.
void DerivaAcertar(Nucleo& p);
// A click in CmbGarantia's list: CmbAcertar follows the guarantee (a figure
// from 7 up only while ChkReduzir is unchecked).
void CliqueGarantia(Nucleo& p);
// A game switch by menu or toolbar (nome in mixed case).
void TrocaLoteria(Nucleo& p, const QString& nome);

} // namespace sorvelo
