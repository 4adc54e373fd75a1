// The reader that the shipped tables must satisfy: the one of the program's
// super-reduction. Until the test links the program's own reader, it is the
// tool's reader, which follows the same rules (first occurrence of the key,
// first cell 13 characters further, a character 10 ends a row, "##" ends
// the block). Only this function changes to switch.
#pragma once

#include "FormatoSv.h"

#include <optional>
#include <string>
#include <vector>

namespace sorvelo::tabelas {

// The rows of the block of `chave` as the program reads them from the file's
// stored (complemented) bytes; nothing when it would not read it.
inline std::optional<std::vector<std::vector<std::string>>>
linhasLidasPeloPrograma(const std::string& arquivoComplementado, const std::string& chave) {
    return leBlocoComoPrograma(complementa(arquivoComplementado), chave);
}

} // namespace sorvelo::tabelas
