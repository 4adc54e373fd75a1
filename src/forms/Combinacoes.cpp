#include "Combinacoes.h"

#include "Sorvelo.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace sorvelo {

JanelaCombinacoes::JanelaCombinacoes(Programa& p, QWidget* pai)
    : Formulario(p, "Combinacoes", QStringLiteral("Combinações"), pai), c_(p) {
    tamanho(5400, 3600);
    rotulo(QStringLiteral("Quant. de dezenas a combinar:"), 240, 240, 2760, 255, "Label3");
    lblDezComb_ = rotulo(QString(), 3060, 240, 1000, 255, "LblDezComb");
    rotulo(QStringLiteral("Quant. de dezenas por cartela:"), 240, 540, 2760, 255, "Label4");
    lblDezCart_ = rotulo(QString(), 3060, 540, 1000, 255, "LblDezCart");
    rotulo(QStringLiteral("Total de apostas desta combinação:"), 240, 840, 2760, 255, "Label1");
    lblTotAp_ = rotulo(QString(), 3060, 840, 1000, 255, "LblTotAp");
    rotulo(QStringLiteral("Valor total das apostas:"), 240, 1140, 2760, 255, "Label2");
    lblValAp_ = rotulo(QString(), 3060, 1140, 1000, 255, "LblValAp");
    QFont negrito = font();
    negrito.setBold(true);
    for (QLabel* l : {lblDezComb_, lblDezCart_, lblTotAp_, lblValAp_})
        l->setFont(negrito);
    chkEst_ = poe(new QCheckBox(QStringLiteral("Fazer estatística de acertos")), this, "ChkEst", 240, 1500,
                  4800, 300);
    chkAuto_ = poe(new QCheckBox(QStringLiteral("Auto-completar")), this, "ChkAuto", 240, 1500, 4800, 300);
    progresso_ = poe(new QProgressBar, this, "Progresso", 240, 1920, 4920, 300);
    progresso_->setTextVisible(false);
    lblMensagem_ = rotulo(QString(), 240, 2280, 4920, 255, "LblMensagem");
    auto* iniciar =
        poe(new QPushButton(QStringLiteral("Iniciar combinação")), this, "BtnIniciar", 480, 2760, 2100, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 2820, 2760, 2100, 435);
    iniciar->setDefault(false);
    iniciar->setAutoDefault(false);
    cancelar->setAutoDefault(false);

    liga(chkEst_, &QCheckBox::clicked, [this] { c_.clicaEstatistica(); });
    liga(chkAuto_, &QCheckBox::clicked, [this] { c_.clicaAutoCompletar(); });
    liga(iniciar, &QPushButton::clicked, [this] { c_.BtnIniciar(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
    c_.aoMudarMensagem = [this] { lblMensagem_->setText(c_.LblMensagem); };
    c_.aoFechar = [this] { done(0); };
    module2(p).aoMudarProgresso = [this](const BarraProgresso& b) {
        progresso_->setRange(b.Min, qMax(b.Min, int(b.Max)));
        progresso_->setValue(qBound(b.Min, int(b.Value), qMax(b.Min, int(b.Max))));
    };
}

JanelaCombinacoes::~JanelaCombinacoes() {
    module2(p_).aoMudarProgresso = nullptr;
}

void JanelaCombinacoes::sincroniza() {
    sincronizando_ = true;
    auto largo = [this](QLabel* l, const QString& texto) {
        l->setText(texto);
        // The width of the label follows its text.
        l->resize(l->fontMetrics().horizontalAdvance(texto) + tw(100), l->height());
    };
    lblDezComb_->setText(c_.LblDezComb);
    lblDezCart_->setText(c_.LblDezCart);
    largo(lblTotAp_, c_.LblTotAp);
    largo(lblValAp_, c_.LblValAp);
    lblMensagem_->setText(c_.LblMensagem);
    chkEst_->setVisible(c_.ChkEstVisible);
    chkEst_->setEnabled(c_.ChkEst.Enabled);
    chkEst_->setChecked(c_.ChkEst.Value);
    chkAuto_->setVisible(c_.ChkAutoVisible);
    chkAuto_->setEnabled(c_.ChkAuto.Enabled);
    chkAuto_->setChecked(c_.ChkAuto.Value);
    sincronizando_ = false;
}

void JanelaCombinacoes::closeEvent(QCloseEvent* e) {
    // Closing by the frame is a cancel.
    if (c_.aberto()) executaProtegido([this] { c_.BtnCancelar(); });
    e->accept();
}

JanelaInsereVetor::JanelaInsereVetor(Programa& p, QWidget* pai)
    : Formulario(p, "InsereVetor", QStringLiteral("Sorvelo"), pai), v_(p) {
    tamanho(4800, 1800);
    rotulo(v_.Label1, 240, 240, 4320, 255, "Label1");
    lblCont_ = rotulo(QString(), 240, 660, 1800, 255, "LblCont");
    lblTotal_ = rotulo(QString(), 2100, 660, 2400, 255, "LblTotal");
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 1500, 1140, 1800, 435);
    cancelar->setAutoDefault(false);
    liga(cancelar, &QPushButton::clicked, [this] { v_.BtnCancelar(); });
    v_.aoContar = [this](const QString& t) { lblCont_->setText(t); };
    v_.aoMostrarRotulos = [this] { sincroniza(); };
    v_.aoFechar = [this] { done(0); };
    rodaAoAparecer([this] { v_.ativa(); });
}

void JanelaInsereVetor::sincroniza() {
    lblCont_->setText(v_.LblCont);
    lblTotal_->setText(v_.LblTotal);
}

void JanelaInsereVetor::closeEvent(QCloseEvent* e) {
    if (v_.aberto()) executaProtegido([this] { v_.BtnCancelar(); });
    e->accept();
}

namespace {
// The main window shows what its handler did so far before a dialog comes
// up in front of it: the cells that a closing marks are seen marked.
void mostraJanelaPrincipal(QWidget* pai) {
    if (auto* principal = qobject_cast<Sorvelo*>(pai)) principal->sincroniza();
}
} // namespace

JanelasCombinacao janelasCombinacao(QWidget* pai, std::function<void()> caretNoFim) {
    JanelasCombinacao j;
    j.mostraCombinacoes = [pai](Programa& p) {
        mostraJanelaPrincipal(pai);
        JanelaCombinacoes janela(p, pai);
        janela.mostraModal();
    };
    j.mostraInsereVetor = [pai](Programa& p) {
        mostraJanelaPrincipal(pai);
        JanelaInsereVetor janela(p, pai);
        janela.mostraModal();
    };
    j.caretNoFim = [caretNoFim](Programa&) {
        if (caretNoFim) caretNoFim();
    };
    return j;
}

} // namespace sorvelo
