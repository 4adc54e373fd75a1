#include "forms/CombinacoesReduz.h"

#include "forms/Janelas.h"

#include <QProgressBar>
#include <QPushButton>

namespace sorvelo {

JanelaCombinacoesReduz::JanelaCombinacoesReduz(Programa& p, QWidget* pai)
    : Formulario(p, "CombinacoesReduz", QStringLiteral("Combinações reduzidas"), pai), c_(p, p.module2) {
    ligaLogica(c_);
    tamanho(6000, 3600);
    rotulo(QStringLiteral("Quant. de dezenas a combinar:"), 240, 240, 2760, 255, "Label3");
    QLabel* lblDezComb = rotulo(QString(), 3060, 240, 1000, 255, "LblDezComb");
    rotulo(QStringLiteral("Dezenas por aposta:"), 240, 540, 2760, 255, "Label4");
    QLabel* lblDezApo = rotulo(QString(), 3060, 540, 1000, 255, "LblDezApo");
    rotulo(QStringLiteral("Garantia de:"), 240, 840, 1200, 255, "Label1");
    QLabel* lblGarantia = rotulo(QString(), 1500, 840, 1500, 255, "LblGarantia");
    rotulo(QStringLiteral("Se acertar"), 240, 1140, 1000, 255, "Label5");
    QLabel* lblAcertar = rotulo(QString(), 1260, 1140, 600, 255, "LblAcertar");
    rotulo(QStringLiteral("números dentro dos números escolhidos"), 1860, 1140, 3900, 255, "Label7");
    QFont negrito = font();
    negrito.setBold(true);
    for (QLabel* l : {lblDezComb, lblDezApo, lblGarantia, lblAcertar})
        l->setFont(negrito);
    progresso_ = poe(new QProgressBar, this, "Progresso", 240, 1920, 5520, 300);
    progresso_->setTextVisible(false);
    QLabel* lblMensagem = rotulo(QString(), 240, 2280, 5520, 255, "LblMensagem");
    auto* iniciar =
        poe(new QPushButton(QStringLiteral("Iniciar combinação")), this, "BtnIniciar", 600, 2760, 2100, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 3300, 2760, 2100, 435);
    iniciar->setAutoDefault(false);
    cancelar->setAutoDefault(false);
    liga(iniciar, &QPushButton::clicked, [this] { c_.BtnIniciar(); });
    liga(cancelar, &QPushButton::clicked, [this] { c_.BtnCancelar(); });
    vincula(lblDezComb, c_.LblDezComb);
    vincula(lblDezApo, c_.LblDezApo);
    vincula(lblGarantia, c_.LblGarantia);
    vincula(lblAcertar, c_.LblAcertar);
    vincula(lblMensagem, c_.LblMensagem);
    // The generator's bar follows the run here too.
    progressoMudou_ = Ligacao(p.module2.aoMudarProgresso, [this](const BarraProgresso& b) {
        progresso_->setRange(b.Min, qMax(b.Min, int(b.Max)));
        progresso_->setValue(qBound(b.Min, int(b.Value), qMax(b.Min, int(b.Max))));
    });
}

void mostraJanelaCombinacoesReduz(Programa& p, QWidget* pai) {
    JanelaCombinacoesReduz janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
