#include "forms/Combinacoes.h"

#include <QCheckBox>
#include <QProgressBar>
#include <QPushButton>

namespace sorvelo {

JanelaCombinacoes::JanelaCombinacoes(Programa& p, QWidget* pai)
    : Formulario(p, "Combinacoes", QStringLiteral("Combinações"), pai), c_(p, p.module2) {
    ligaLogica(c_);
    tamanho(5400, 3600);
    rotulo(QStringLiteral("Quant. de dezenas a combinar:"), 240, 240, 2760, 255, "Label3");
    auto* lblDezComb = rotulo(QString(), 3060, 240, 1000, 255, "LblDezComb");
    rotulo(QStringLiteral("Quant. de dezenas por cartela:"), 240, 540, 2760, 255, "Label4");
    auto* lblDezCart = rotulo(QString(), 3060, 540, 1000, 255, "LblDezCart");
    rotulo(QStringLiteral("Total de apostas desta combinação:"), 240, 840, 2760, 255, "Label1");
    lblTotAp_ = rotulo(QString(), 3060, 840, 1000, 255, "LblTotAp");
    rotulo(QStringLiteral("Valor total das apostas:"), 240, 1140, 2760, 255, "Label2");
    lblValAp_ = rotulo(QString(), 3060, 1140, 1000, 255, "LblValAp");
    QFont negrito = font();
    negrito.setBold(true);
    for (QLabel* l : {lblDezComb, lblDezCart, lblTotAp_, lblValAp_})
        l->setFont(negrito);
    auto* chkEst = poe(new QCheckBox(QStringLiteral("Fazer estatística de acertos")), this, "ChkEst", 240,
                       1500, 4800, 300);
    auto* chkAuto =
        poe(new QCheckBox(QStringLiteral("Auto-completar")), this, "ChkAuto", 240, 1500, 4800, 300);
    progresso_ = poe(new QProgressBar, this, "Progresso", 240, 1920, 4920, 300);
    progresso_->setTextVisible(false);
    auto* lblMensagem = rotulo(QString(), 240, 2280, 4920, 255, "LblMensagem");
    auto* iniciar =
        poe(new QPushButton(QStringLiteral("Iniciar combinação")), this, "BtnIniciar", 480, 2760, 2100, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 2820, 2760, 2100, 435);
    iniciar->setDefault(false);
    iniciar->setAutoDefault(false);
    cancelar->setAutoDefault(false);

    vincula(lblDezComb, c_.LblDezComb);
    vincula(lblDezCart, c_.LblDezCart);
    vincula(lblMensagem, c_.LblMensagem);
    vincula(chkEst, c_.ChkEst, c_.ChkEstVisible);
    vincula(chkAuto, c_.ChkAuto, c_.ChkAutoVisible);
    liga(chkEst, &QCheckBox::clicked, [this] { c_.clicaEstatistica(); });
    liga(chkAuto, &QCheckBox::clicked, [this] { c_.clicaAutoCompletar(); });
    liga(iniciar, &QPushButton::clicked, [this] { c_.BtnIniciar(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
    progressoMudou_ = Ligacao(p.module2.aoMudarProgresso, [this](const BarraProgresso& b) {
        progresso_->setRange(b.Min, qMax(b.Min, int(b.Max)));
        progresso_->setValue(qBound(b.Min, int(b.Value), qMax(b.Min, int(b.Max))));
    });
}

void JanelaCombinacoes::atualizaTela() {
    auto largo = [this](QLabel* l, const QString& texto) {
        l->setText(texto);
        // The width of the label follows its text.
        l->resize(l->fontMetrics().horizontalAdvance(texto) + tw(100), l->height());
    };
    largo(lblTotAp_, c_.LblTotAp);
    largo(lblValAp_, c_.LblValAp);
}

void mostraJanelaCombinacoes(Programa& p, QWidget* pai) {
    JanelaCombinacoes janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
