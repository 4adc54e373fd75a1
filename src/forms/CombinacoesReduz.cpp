#include "CombinacoesReduz.h"

#include "CombSuperReduz.h"
#include "Sorvelo.h"

#include <QCloseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace sorvelo {

JanelaCombinacoesReduz::JanelaCombinacoesReduz(Programa& p, QWidget* pai)
    : Formulario(p, "CombinacoesReduz", QStringLiteral("Combinações reduzidas"), pai), c_(p) {
    tamanho(6000, 3600);
    rotulo(QStringLiteral("Quant. de dezenas a combinar:"), 240, 240, 2760, 255, "Label3");
    lblDezComb_ = rotulo(QString(), 3060, 240, 1000, 255, "LblDezComb");
    rotulo(QStringLiteral("Dezenas por aposta:"), 240, 540, 2760, 255, "Label4");
    lblDezApo_ = rotulo(QString(), 3060, 540, 1000, 255, "LblDezApo");
    rotulo(QStringLiteral("Garantia de:"), 240, 840, 1200, 255, "Label1");
    lblGarantia_ = rotulo(QString(), 1500, 840, 1500, 255, "LblGarantia");
    rotulo(QStringLiteral("Se acertar"), 240, 1140, 1000, 255, "Label5");
    lblAcertar_ = rotulo(QString(), 1260, 1140, 600, 255, "LblAcertar");
    rotulo(QStringLiteral("números dentro dos números escolhidos"), 1860, 1140, 3900, 255, "Label7");
    QFont negrito = font();
    negrito.setBold(true);
    for (QLabel* l : {lblDezComb_, lblDezApo_, lblGarantia_, lblAcertar_})
        l->setFont(negrito);
    progresso_ = poe(new QProgressBar, this, "Progresso", 240, 1920, 5520, 300);
    progresso_->setTextVisible(false);
    lblMensagem_ = rotulo(QString(), 240, 2280, 5520, 255, "LblMensagem");
    auto* iniciar =
        poe(new QPushButton(QStringLiteral("Iniciar combinação")), this, "BtnIniciar", 600, 2760, 2100, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 3300, 2760, 2100, 435);
    iniciar->setAutoDefault(false);
    cancelar->setAutoDefault(false);
    liga(iniciar, &QPushButton::clicked, [this] { c_.BtnIniciar(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
    c_.aoMudarMensagem = [this] { lblMensagem_->setText(c_.LblMensagem); };
    c_.aoFechar = [this] { done(0); };
    // The generator's bar follows the run here too.
    module2(p).aoMudarProgresso = [this](const BarraProgresso& b) {
        progresso_->setRange(b.Min, qMax(b.Min, int(b.Max)));
        progresso_->setValue(qBound(b.Min, int(b.Value), qMax(b.Min, int(b.Max))));
    };
}

JanelaCombinacoesReduz::~JanelaCombinacoesReduz() {
    module2(p_).aoMudarProgresso = nullptr;
}

void JanelaCombinacoesReduz::sincroniza() {
    sincronizando_ = true;
    lblDezComb_->setText(c_.LblDezComb);
    lblDezApo_->setText(c_.LblDezApo);
    lblGarantia_->setText(c_.LblGarantia);
    lblAcertar_->setText(c_.LblAcertar);
    lblMensagem_->setText(c_.LblMensagem);
    sincronizando_ = false;
}

void JanelaCombinacoesReduz::closeEvent(QCloseEvent* e) {
    // Closing by the frame is a cancel.
    if (c_.aberto()) executaProtegido([this] { c_.BtnCancelar(); });
    e->accept();
}

JanelaInsereVetorReduz::JanelaInsereVetorReduz(Programa& p, QWidget* pai)
    : Formulario(p, "InsereVetorReduz", QStringLiteral("Sorvelo"), pai), v_(p) {
    tamanho(4800, 1800);
    lblMensagem_ = rotulo(v_.LblMensagem, 240, 240, 4320, 255, "LblMensagem");
    lblCont_ = rotulo(QString(), 240, 660, 1800, 255, "LblCont");
    lblTotal_ = rotulo(QString(), 2100, 660, 2400, 255, "LblTotal");
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 1500, 1140, 1800, 435);
    cancelar->setAutoDefault(false);
    liga(cancelar, &QPushButton::clicked, [this] { v_.BtnCancelar(); });
    v_.aoMudarMensagem = [this] { lblMensagem_->setText(v_.LblMensagem); };
    v_.aoContar = [this](const QString& t) { lblCont_->setText(t); };
    v_.aoFechar = [this] { done(0); };
    rodaAoAparecer([this] { v_.ativa(); });
}

void JanelaInsereVetorReduz::sincroniza() {
    lblMensagem_->setText(v_.LblMensagem);
    lblCont_->setText(v_.LblCont);
    lblTotal_->setText(v_.LblTotal);
}

void JanelaInsereVetorReduz::closeEvent(QCloseEvent* e) {
    if (v_.aberto()) executaProtegido([this] { v_.BtnCancelar(); });
    e->accept();
}

JanelasReducao janelasReducao(QWidget* pai) {
    auto mostraPrincipal = [pai] {
        if (auto* principal = qobject_cast<Sorvelo*>(pai)) principal->sincroniza();
    };
    JanelasReducao j;
    j.mostraCombinacoesReduz = [pai, mostraPrincipal](Programa& p) {
        mostraPrincipal();
        JanelaCombinacoesReduz janela(p, pai);
        janela.mostraModal();
    };
    j.mostraInsereVetorReduz = [pai, mostraPrincipal](Programa& p) {
        mostraPrincipal();
        JanelaInsereVetorReduz janela(p, pai);
        janela.mostraModal();
    };
    j.mostraCombSuperReduz = [pai, mostraPrincipal](Programa& p) {
        mostraPrincipal();
        JanelaCombSuperReduz janela(p, pai);
        janela.mostraModal();
    };
    return j;
}

} // namespace sorvelo
