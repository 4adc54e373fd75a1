// The bet bank in its two forms: VetBan with QuantBan (the data) and
// TxtBanco (the coloured text), and the writers that keep them side by side.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

constexpr Cor CorLog = rgb(0, 150, 0);
constexpr Cor CorNumeroLinha = rgb(150, 0, 0);
constexpr Cor CorAposta = rgb(0, 0, 255);

// A green line or block at the end of TxtBanco.
void InsereLinhaBanco(Nucleo& p, const QString& Texto, bool Negrito);
// The bet line "00001)   01 02 03 04 05 06 " plus FimLinha, numbered n, at
// the end of a document: the first 6 characters dark red, the rest blue.
void InsereLinhaAposta(DocumentoRico& doc, int64_t n, const QString& Aposta, const QString& FimLinha);
// The same line of a bet of `quant` numbers from 0 to 99, without its text.
void InsereLinhaAposta(DocumentoRico& doc, int64_t n, const uint8_t* numeros, int quant,
                       const QString& FimLinha);
// The main form's writer of one bet line, numbered QuantBan + 1.
void InsereApostaBanco(Nucleo& p, const QString& Aposta, int64_t n);
// BtnSeta: one bet of the marked grid.
void InsereApostaMarcada(Nucleo& p);
// The text of row Linha of VetBan: each cell and a blank, up to the "#".
QString RetAposta(const Nucleo& p, Int32 Linha);
// Empties the bank, asking about saving; false when the user cancelled.
bool LimpaBancoApostas(Nucleo& p);
// The small button of the bank's frame.
void BtnLimparBanco(Nucleo& p);
// The head of a batch: "Dezenas escolhidas: ", the numbers, the log.
QString CabecalhoLote(const Nucleo& p);

} // namespace sorvelo
