// The super-reduction tables: one data file per game, in the program's
// folder, whose bytes are complemented. Once complemented back it is text of
// one-byte characters holding keyed blocks of positions:
//
//   MSC08A04G04<line end>01 02 03 04 05 06<CR LF>01 02 03 04 07 08 ##
//
// The key names the game, the count of chosen numbers, the number to hit and
// the guarantee; each cell is a position in the chosen numbers (01 is the
// first), read three characters apart; a character 10 where a cell would
// begin ends a row, and "##" there ends the block.
#pragma once

#include "base/MatrizTexto.h"
#include "base/Semantica.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace sorvelo {

struct TabelaSuper {
    QString NomeLoteria; // as NomeLoteria holds it: "MEGA-SENA"
    QString arquivo;     // in the program's folder: "Megasena.sv"
    QByteArray codigo;   // first letters of the keys: "MSC"
    int16_t DezFinal;    // the game's full bet, the only size with tables
};

// The table of the game, or none (Lotomania has no file).
const TabelaSuper* tabelaSuperDe(const QString& NomeLoteria);

// The bytes of a file, read whole. A missing file reads as empty (as an
// empty file does); a file that exists but cannot be read is failure 75,
// and one beyond LimiteArquivoSuper bytes is failure 7.
QByteArray LeArquivoSuper(const QString& caminho);
inline int64_t LimiteArquivoSuper = int64_t(1) << 30;

// The key of a block: the game's code, QuantEscolhidos, "A", QuantAcertar,
// "G", DezAposta, each number in the format "00" (11 characters for counts
// below 100).
QByteArray ChaveSuper(const TabelaSuper& tabela, Int16 QuantEscolhidos, Int16 QuantAcertar, Int16 DezAposta);

// The reading position of the block of the key: the position (counted from
// 1) of the key's first occurrence, exact also in case, plus 13 (the key and
// its line end). Nothing when the key is not in the text.
std::optional<Int32> PosicaoBlocoSuper(const QByteArray& TextoSuper, const QByteArray& chave);

// Reads the block at PosSuper into VetRes (a row of positions a row, "#"
// behind the last cell) and counts its rows in QuantSuper. The row in hand
// at "##" counts as a row, so a "##" at the start of a line of its own gives
// a last row without cells. Nothing tests for the end of the text: past it
// the cells are empty and the reading goes on until a subscript of VetRes
// leaves its bounds (failure 9), as a row of more than 81 cells or a block of
// more rows than VetRes holds does.
void LeBlocoSuper(const QByteArray& TextoSuper, Int32& PosSuper, MatrizTexto& VetRes, Int16& QuantSuper);

} // namespace sorvelo
