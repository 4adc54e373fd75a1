// The report of the tables: for every key its size, the best known size,
// their ratio, the lower bound, the count of the one-pass packing of the
// reduced combination for the same v, k, t; per game the median and the
// five worst ratios; the blocks left out and why.
#pragma once

#include "Gerador.h"

#include <iosfwd>

namespace sorvelo::tabelas {

void escreveRelatorio(std::ostream& out, const Tabelas& tabelas, const Referencias& ref);

} // namespace sorvelo::tabelas
