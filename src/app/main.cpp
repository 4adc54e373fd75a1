// Sorvelo: a workbench for the bets of the Brazilian lotteries.
//   sorvelo [ARQUIVO.Apo]
// The start box comes first; after "Entrar" the main window opens the bet
// file named on the command line, if any, as Abrir does.
#include "core/ArquivoInicial.h"
#include "forms/Apresenta.h"
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

    auto fazPrincipal = [&programa, &janelas]() -> std::unique_ptr<QWidget> {
        auto janela = std::make_unique<sorvelo::Sorvelo>(programa, janelas);
        QObject::connect(janela.get(), &sorvelo::Sorvelo::encerrado, [] { QCoreApplication::exit(0); });
        return janela;
    };
    sorvelo::JanelaApresenta apresenta(programa, fazPrincipal,
                                       sorvelo::ArquivoDaLinhaDeComando(QCoreApplication::arguments()));
    QObject::connect(&apresenta, &sorvelo::JanelaApresenta::encerrado, &app,
                     [] { QCoreApplication::exit(0); });
    apresenta.show();
    return QApplication::exec();
}
