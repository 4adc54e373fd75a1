// Writes a picture of the main window to a PNG file (for the README and for
// looking at the layout): captura SAIDA.png [cells to mark...]
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Principal.h"
#include "forms/Sorvelo.h"
#include "platform/Duplos.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    sorvelo::ServicosDuplos duplos;
    sorvelo::Programa p;
    p.s = duplos.servicos();
    sorvelo::Sorvelo janela(p);
    janela.show();
    for (int i = 2; i < argc; ++i)
        sorvelo::ClicaNumero(p, sorvelo::Int16(int16_t(atoi(argv[i]))));
    if (argc > 2) {
        sorvelo::InsereApostaMarcada(p);
        sorvelo::AtualizaContadores(p);
    }
    janela.sincroniza();
    QApplication::processEvents();
    return janela.grab().save(QString::fromLocal8Bit(argc > 1 ? argv[1] : "sorvelo.png")) ? 0 : 1;
}
