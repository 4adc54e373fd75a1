// Writes pictures of the program's windows to PNG files, for the README and
// for looking at the layout:
//   captura SAIDA.png [cells to mark...]   the main window (a bet of the marks)
//   captura --dialogos PASTA               also Combinações and Conferência de apostas
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Principal.h"
#include "forms/Combinacoes.h"
#include "forms/ConfApostas.h"
#include "forms/Janelas.h"
#include "forms/Sorvelo.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTimer>

using namespace sorvelo;

namespace {
void marca(Programa& p, std::initializer_list<int> celulas) {
    for (int c : celulas)
        ClicaNumero(p, Int16(int16_t(c)));
}

// Saves the modal dialog on top when it shows, then runs `depois` on it.
void aoAbrir(const QString& arquivo, std::function<void(QWidget*)> depois) {
    QTimer::singleShot(50, [arquivo, depois] {
        if (QWidget* d = QApplication::activeModalWidget()) {
            d->grab().save(arquivo);
            depois(d);
        }
    });
}
} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ServicosDuplos duplos;
    JanelasFormas janelas;
    Programa p(duplos.servicos(), janelas);
    Sorvelo janela(p, janelas);
    janela.show();
    const QStringList args = QCoreApplication::arguments().mid(1);
    if (args.value(0) == QStringLiteral("--dialogos")) {
        const QDir pasta(args.value(1, QStringLiteral(".")));
        marca(p, {2, 8, 15, 21, 33, 40, 47, 52});
        janela.sincroniza();
        aoAbrir(pasta.filePath(QStringLiteral("combinacoes.png")),
                [](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click(); });
        janela.findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
        janela.grab().save(pasta.filePath(QStringLiteral("principal.png")));
        janela.findChild<QPushButton*>(QStringLiteral("BtnConferir"))->click();
        if (auto* conf = janela.findChild<JanelaConfApostas*>(QStringLiteral("ConfApostas"))) {
            QApplication::processEvents();
            conf->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
            conf->grab().save(pasta.filePath(QStringLiteral("conferencia.png")));
        }
        return 0;
    }
    for (int i = 1; i < args.size(); ++i)
        ClicaNumero(p, Int16(int16_t(args[i].toInt())));
    if (args.size() > 1) {
        InsereApostaMarcada(p);
        AtualizaContadores(p);
    }
    janela.sincroniza();
    QApplication::processEvents();
    return janela.grab().save(args.value(0, QStringLiteral("sorvelo.png"))) ? 0 : 1;
}
