// Writes pictures of the program's windows to PNG files, for the README and
// for looking at the layout:
//   captura SAIDA.png [cells to mark...]   the main window (a bet of the marks)
//   captura --dialogos PASTA               also Combinações and Conferência de apostas
//   captura --tutorial PASTA               the pictures of the tutorial: the dialogs above and
//                                          the start box, the bet-by-bet view, the help and the topics
#include "apoio/Duplos.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Principal.h"
#include "forms/Apresenta.h"
#include "forms/Combinacoes.h"
#include "forms/ConfApostas.h"
#include "forms/Digitacao.h"
#include "forms/Help.h"
#include "forms/Janelas.h"
#include "forms/JogoAJogo.h"
#include "forms/Sobre.h"
#include "forms/SortComb.h"
#include "forms/Sorvelo.h"
#include "forms/Topicos.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

using namespace sorvelo;

namespace {
void marca(Programa& p, std::initializer_list<int> celulas) {
    for (int c : celulas)
        ClicaNumero(p, Int16(int16_t(c)));
}

// The picture of a window. On a desktop with a window manager (the xcb
// platform) the window is taken from the screen with the frame that the
// window manager draws around it; offscreen, its contents alone.
QPixmap foto(QWidget& w) {
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) return w.grab();
    w.raise();
    w.activateWindow();
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < 700)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    const QRect moldura = w.frameGeometry();
    return w.screen()->grabWindow(0, moldura.x(), moldura.y(), moldura.width(), moldura.height());
}

// Saves the modal dialog on top when it shows, then runs `depois` on it.
void aoAbrir(const QString& arquivo, std::function<void(QWidget*)> depois) {
    QTimer::singleShot(50, [arquivo, depois] {
        if (QWidget* d = QApplication::activeModalWidget()) {
            foto(*d).save(arquivo);
            depois(d);
        }
    });
}
// The windows at the program's edge, each as a person first sees it.
void capturaTutorial(Programa& p, const QDir& pasta) {
    auto salva = [&](QWidget& w, const char* nome) {
        w.show();
        QApplication::processEvents();
        foto(w).save(pasta.filePath(QString::fromLatin1(nome)));
        w.close();
    };
    JanelaApresenta apresenta(p, [] { return std::unique_ptr<QWidget>(); });
    salva(apresenta, "apresenta.png");
    auto* jogo = new JanelaJogoAJogo(p);
    jogo->mostra();
    jogo->findChild<QPushButton*>(QStringLiteral("BtnDescer"))->click();
    salva(*jogo, "jogoajogo.png");
    JanelaTopicos topicos(p);
    salva(topicos, "topicos.png");
    p.e.TopicoHelp = 0;
    JanelaHelp ajuda(p);
    salva(ajuda, "ajuda.png");
    JanelaSobre sobre(p);
    salva(sobre, "sobre.png");
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
    const bool tutorial = args.value(0) == QStringLiteral("--tutorial");
    if (tutorial || args.value(0) == QStringLiteral("--dialogos")) {
        const QDir pasta(args.value(1, QStringLiteral(".")));
        marca(p, {2, 8, 15, 21, 33, 40, 47, 52});
        janela.sincroniza();
        aoAbrir(pasta.filePath(QStringLiteral("combinacoes.png")),
                [](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click(); });
        janela.findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
        // The counters as Timer1 shows them within a second and a half.
        AtualizaContadores(p);
        janela.sincroniza();
        foto(janela).save(pasta.filePath(QStringLiteral("principal.png")));
        // A draw of six numbers, five of them among the marked ones.
        LimpaNumeros(p);
        marca(p, {2, 8, 15, 21, 33, 56});
        janela.sincroniza();
        janela.findChild<QPushButton*>(QStringLiteral("BtnConferir"))->click();
        if (auto* conf = janela.findChild<JanelaConfApostas*>(QStringLiteral("ConfApostas"))) {
            QApplication::processEvents();
            conf->findChild<QPushButton*>(QStringLiteral("BtnIniciar"))->click();
            foto(*conf).save(pasta.filePath(QStringLiteral("conferencia.png")));
        }
        aoAbrir(pasta.filePath(QStringLiteral("sortear.png")),
                [](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnCancelar"))->click(); });
        janela.findChild<QPushButton*>(QStringLiteral("BtnSortear"))->click();
        aoAbrir(pasta.filePath(QStringLiteral("sortcomb.png")),
                [](QWidget* d) { d->findChild<QPushButton*>(QStringLiteral("BtnCancelar"))->click(); });
        JanelaSortComb(p, &janela).mostraModal();
        janela.findChild<QPushButton*>(QStringLiteral("BtnDigitar"))->click();
        if (auto* dig = janela.findChild<JanelaDigitacao*>(QStringLiteral("Digitacao"))) {
            QApplication::processEvents();
            foto(*dig).save(pasta.filePath(QStringLiteral("digitacao.png")));
        }
        if (tutorial) capturaTutorial(p, pasta);
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
    return foto(janela).save(args.value(0, QStringLiteral("sorvelo.png"))) ? 0 : 1;
}
