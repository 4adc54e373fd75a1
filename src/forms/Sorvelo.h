// The main window: menus, toolbar, the scrollable work area with the grid,
// the bank and the buttons of the tools. It wires its controls to the logic
// in src/core and mirrors the logic's model of its controls.
#pragma once

#include "forms/Formulario.h"

#include <QMainWindow>

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
class BotaoGiro;
class JanelasFormas;
class CelulaNumero;
class Figura;

class Sorvelo : public QMainWindow, public FormaBase {
    Q_OBJECT
public:
    // Runs the form's load on the program's state; the dialogs that the
    // logic asks for come up over this window.
    Sorvelo(Programa& p, JanelasFormas& janelas, QWidget* pai = nullptr);
    ~Sorvelo() override;

signals:
    // The close flow ran: the program ends.
    void encerrado();

protected:
    void atualizaTela() override;
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
    void trocaJogo(const QString& nome);
    void aplicaLayout();

    JanelasFormas& janelas_;
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
    int imagemSort1_ = 0;          // the picture PicSort1 shows now
    uint64_t caretNoFimVisto_ = 0; // requests of TxtBanco's caret at the end followed
    bool fechado_ = false;
};

} // namespace sorvelo
