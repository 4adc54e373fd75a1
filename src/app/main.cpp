// Sorvelo: a workbench for the bets of the Brazilian lotteries.
//   sorvelo [ARQUIVO.Apo]
// The start box comes first; after "Entrar" the main window opens the bet
// file named on the command line, if any, as Abrir does.
#include "core/ArquivoInicial.h"
#include "forms/Apresenta.h"
#include "forms/Sorvelo.h"
#include "platform/qt/ServicosQt.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sorvelo"));
    sorvelo::instalaTraducao();

    sorvelo::ServicosQt servicos;
    sorvelo::Programa programa;
    programa.s = servicos.servicos();

    sorvelo::JanelaApresenta apresenta(programa,
                                       sorvelo::ArquivoDaLinhaDeComando(QCoreApplication::arguments()));
    QObject::connect(&apresenta, &sorvelo::JanelaApresenta::encerrado, &app,
                     [] { QCoreApplication::exit(0); });
    QObject::connect(
        &apresenta, &sorvelo::JanelaApresenta::principalAberta, &app, [&app](sorvelo::Sorvelo* j) {
            QObject::connect(j, &sorvelo::Sorvelo::encerrado, &app, [] { QCoreApplication::exit(0); });
        });
    apresenta.show();
    return QApplication::exec();
}
