// The main window: menus, toolbar, the scrollable work area with the grid,
// the bank and the buttons of the tools. It wires its controls to the logic
// in src/core and mirrors the logic's model of its controls.
#pragma once

#include "Montagem.h"
#include "core/Estado.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <memory>

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QTimer;
class QToolBar;

namespace sorvelo {

class AreaRica;
class ConfApostas;
class JanelaConfApostas;
class JanelaDigitacao;
class JanelaJogoAJogo;
struct JanelasCombinacao;
class BotaoGiro;
class CelulaNumero;
class Figura;

class Sorvelo : public QMainWindow {
    Q_OBJECT
public:
    // Runs the form's load on the program's state.
    explicit Sorvelo(Programa& p, QWidget* pai = nullptr);
    ~Sorvelo() override;

    Programa& programa() { return p_; }
    // The logic's model of the controls onto the widgets.
    void sincroniza();
    // Twips to pixels at this screen's resolution (15 twips a pixel at 96 DPI).
    int tw(int twips) const { return escala_.tw(twips); }
    int deTw(int pixels) const { return escala_.deTw(pixels); }

signals:
    // The close flow ran: the program ends.
    void encerrado();

protected:
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    void montaMenus();
    void montaBarra();
    void montaQuadroNumeros();
    void montaQuadroBanco();
    void montaQuadrosCombinacao();
    void montaQuadroOpcoes();
    void montaAjuda();
    // Runs a handler of the form: failures to the top, then the screen.
    template <typename F> void age(F f);
    template <typename S, typename Sinal, typename F> void liga(S* emissor, Sinal sinal, F f) {
        ligaProtegido(
            this, emissor, sinal, &sincronizando_, [this] { sincroniza(); }, std::move(f));
    }
    template <typename W> W* poe(W* w, QWidget* pai, const char* nome, int x, int y, int l, int a) {
        return escala_.poe(w, pai, nome, x, y, l, a);
    }
    QLabel* rotulo(QWidget* pai, const QString& texto, int x, int y, int l, int a) {
        return escala_.rotulo(pai, texto, x, y, l, a);
    }
    void trocaJogo(const QString& nome);
    void abreConferencia();
    void abreDigitacao();
    void mostraHelp();
    void mostraTopicos();
    void mostraJogoAJogo();
    JanelasCombinacao janelasComb();
    void aplicaLayout();

    Programa& p_;
    Escala escala_;
    QWidget* area_ = nullptr;
    QToolBar* barraSup_ = nullptr;
    QLineEdit* txtLoteria_ = nullptr;
    QScrollBar *barraVert_ = nullptr, *barraHoriz_ = nullptr;
    QWidget* picLoteria_ = nullptr;
    QGroupBox *frame1_ = nullptr, *fraBanco_ = nullptr, *frame2_ = nullptr, *frame5_ = nullptr,
              *frame3_ = nullptr;
    std::array<CelulaNumero*, TelaPrincipal::QuantCelulas> num_{};
    Figura* btnSeta_ = nullptr;
    Figura* picSort1_ = nullptr;
    std::array<Figura*, 8> helpRotina_{};
    QLineEdit *txtEscolhidos_ = nullptr, *txtValAp_ = nullptr, *txtDezAp_ = nullptr, *txtDezAp2_ = nullptr,
              *txtQuantApostas_ = nullptr, *txtValorApostas_ = nullptr;
    BotaoGiro *spbDezAp_ = nullptr, *spbDezAp2_ = nullptr;
    QCheckBox *chkFixar_ = nullptr, *chkReduzir_ = nullptr;
    QComboBox *cmbFecha_ = nullptr, *cmbGarantia_ = nullptr, *cmbAcertar_ = nullptr;
    QPushButton* btnFechar_ = nullptr;
    AreaRica* txtBanco_ = nullptr;
    QAction *menuMegaSena_ = nullptr, *menuDuplaSena_ = nullptr, *menuQuina_ = nullptr,
            *menuLotomania_ = nullptr, *menuLotoFacil_ = nullptr;
    QTimer* timer1_ = nullptr;
    std::unique_ptr<ConfApostas> conf_;
    QPointer<JanelaConfApostas> janelaConf_;
    QPointer<JanelaDigitacao> janelaDigitacao_;
    QPointer<JanelaJogoAJogo> janelaJogo_;
    int imagemSort1_ = 0; // the picture PicSort1 shows now
    bool sincronizando_ = false;
    bool fechado_ = false;
};

} // namespace sorvelo
