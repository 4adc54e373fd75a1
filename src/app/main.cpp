// Sorvelo: a workbench for the bets of the Brazilian lotteries.
#include "forms/Janelas.h"
#include "forms/Sorvelo.h"
#include "platform/qt/ServicosQt.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sorvelo"));
    sorvelo::instalaTraducao();

    sorvelo::ServicosQt servicos;
    sorvelo::JanelasFormas janelas;
    sorvelo::Programa programa(servicos.servicos(), janelas);

    sorvelo::Sorvelo janela(programa, janelas);
    QObject::connect(&janela, &sorvelo::Sorvelo::encerrado, &app, [] { QCoreApplication::exit(0); });
    janela.show();
    return QApplication::exec();
}
