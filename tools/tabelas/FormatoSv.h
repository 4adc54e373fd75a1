// The table files: a sequence of blocks, each a key of 11 characters (code,
// count of chosen numbers, "A", number to hit, "G", guarantee), a line end,
// rows of two-digit positions each followed by one gap character (a blank,
// or the carriage return of the row's line end), and the end "##" where the
// next cell would begin, one gap after the last cell. Stored with every
// byte complemented (255 minus itself).
#pragma once

#include "Bloco.h"

#include <optional>
#include <string>
#include <vector>

namespace sorvelo::tabelas {

// The largest block that the program reads, and the most cells in a row.
constexpr int MaxLinhasBloco = 10001;
constexpr int MaxCelulasLinha = 81;

// "MSC08A04G04".
std::string chave(const std::string& codigo, const Parametros& par);

// Every byte replaced by 255 minus itself; its own inverse.
std::string complementa(std::string s);

// The text of a file (not yet complemented), blocks in the given order.
std::string textoDoArquivo(const std::string& codigo, const std::vector<Bloco>& blocos);

// Reads the block of `chave` from the text as the program reads it: the
// first occurrence of the key, 13 characters further the first cell, a
// character 10 where a cell would begin ends a row, "##" ends the block and
// counts the row in hand. Gives nothing when the key is missing or where
// the program would fault (the text runs out, more than 10001 rows or 81
// cells in a row).
std::optional<std::vector<std::vector<std::string>>> leBlocoComoPrograma(const std::string& texto,
                                                                         const std::string& chave);

// The rows read as positions: nothing when a cell is not a position 01 .. v.
std::optional<std::vector<Mascara>> linhasComoMascaras(const std::vector<std::vector<std::string>>& linhas,
                                                       int v);

// Every block of the code found in the text, in the order of the text.
std::vector<Bloco> leBlocos(const std::string& texto, const std::string& codigo, int k);

} // namespace sorvelo::tabelas
