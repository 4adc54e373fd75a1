// A scenario file read into its lines: one command a line, `#` starts a
// comment, texts in double quotes with the escapes \" \\ \r \n.
#pragma once

#include <QString>

#include <vector>

namespace sorvelo::roteiro {

struct Palavra {
    QString texto;
    bool aspas = false; // written as a quoted text
};

struct LinhaCenario {
    int numero = 0; // in the file, from 1
    std::vector<Palavra> palavras;
    QString erro; // a line that could not be read
    const QString& comando() const { return palavras.front().texto; }
};

// The lines that hold a command; blank and comment lines are left out.
std::vector<LinhaCenario> leCenario(const QString& conteudo);
// The words of one line (erro tells what is wrong with it).
LinhaCenario leLinha(const QString& texto, int numero);

} // namespace sorvelo::roteiro
