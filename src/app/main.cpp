// Sorvelo: a workbench for the bets of the Brazilian lotteries.
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

    sorvelo::Sorvelo janela(programa);
    QObject::connect(&janela, &sorvelo::Sorvelo::encerrado, &app, [] { QCoreApplication::exit(0); });
    janela.show();
    return QApplication::exec();
}
