// The transcript of a scenario: one UTF-8 line each, written at once, so that
// what stands in it survives an abrupt end of the process.
#pragma once

#include <QString>

#include <cstdio>

namespace sorvelo::roteiro {

// A text in double quotes with the escapes \" \\ \r \n.
QString aspas(const QString& texto);

class Transcricao {
public:
    explicit Transcricao(std::FILE* saida) : saida_(saida) {}
    void linha(const QString& texto);
    void descarrega() { std::fflush(saida_); }

private:
    std::FILE* saida_;
};

} // namespace sorvelo::roteiro
