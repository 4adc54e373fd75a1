#include "forms/Sortear.h"

#include "forms/Janelas.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace sorvelo {

namespace {
QLineEdit* caixa(int maximo) {
    auto* t = new QLineEdit;
    if (maximo) t->setMaxLength(maximo);
    return t;
}
void poeTexto(QLineEdit* t, const QString& texto) {
    if (t->text() != texto) t->setText(texto);
}
} // namespace

QScrollBar* JanelaSortear::barra(QWidget* pai, const char* nome, int x, int y, int valor) {
    auto* b = poe(new QScrollBar(Qt::Vertical), pai, nome, x, y, 255, 315);
    b->setRange(0, 32767);
    b->setValue(valor);
    return b;
}

JanelaSortear::JanelaSortear(Programa& p, QWidget* pai)
    : Formulario(p, "Sortear", QStringLiteral("Sortear apostas"), pai), s_(p) {
    ligaLogica(s_);
    tamanho(8880, 5700);
    auto* frame2 = poe(new QGroupBox(QStringLiteral("Configurações")), this, "Frame2", 120, 120, 8640, 2940);
    escala_.rotulo(frame2, QStringLiteral("Informe a quantidade de apostas a sortear:"), 240, 360, 4560, 255,
                   "Label4");
    txtQuant_ = poe(caixa(0), frame2, "TxtQuant", 4920, 300, 735, 315);
    scrQuant_ = barra(frame2, "ScrQuant", 5655, 300, s_.ScrQuant);
    escala_.rotulo(frame2, QStringLiteral("Informe a quantidade de dezenas por aposta:"), 240, 780, 4560, 255,
                   "Label3");
    txtDez_ = poe(caixa(0), frame2, "TxtDez", 4920, 720, 735, 315);
    scrDez_ = barra(frame2, "ScrDez", 5655, 720, s_.ScrDez);
    escala_.rotulo(frame2, QStringLiteral("Garantir os seguintes números em todas as apostas:"), 240, 1260,
                   6360, 255, "Label5");
    escala_.rotulo(frame2, QStringLiteral("Não devem constar os seguintes números em todas as apostas:"), 240,
                   2100, 6360, 255, "Label6");
    for (int i = 0; i < Sortear::QuantCaixas; ++i) {
        const QByteArray g = QStringLiteral("Garantir(%1)").arg(i).toUtf8();
        const QByteArray x = QStringLiteral("Excluir(%1)").arg(i).toUtf8();
        garantir_[size_t(i)] = poe(caixa(2), frame2, g.constData(), 240 + 630 * i, 1560, 495, 315);
        excluir_[size_t(i)] = poe(caixa(2), frame2, x.constData(), 240 + 630 * i, 2400, 495, 315);
        garantir_[size_t(i)]->setAlignment(Qt::AlignCenter);
        excluir_[size_t(i)]->setAlignment(Qt::AlignCenter);
        liga(garantir_[size_t(i)], &QLineEdit::textEdited,
             [this, i](const QString& t) { s_.Garantir[size_t(i)] = t; });
        liga(excluir_[size_t(i)], &QLineEdit::textEdited,
             [this, i](const QString& t) { s_.Excluir[size_t(i)] = t; });
    }

    auto* frame1 = poe(new QGroupBox(QStringLiteral("Opções")), this, "Frame1", 120, 3180, 8640, 1695);
    checkBox2_ =
        poe(new QCheckBox(QStringLiteral("Sortear números dentro das dezenas com mais ocorrências na "
                                         "proporção de  dos números sorteados")),
            frame1, "CheckBox2", 240, 300, 8280, 315);
    txtMaisOco_ = poe(caixa(0), frame1, "TxtMaisOco", 600, 615, 555, 315);
    scrMaisOco_ = barra(frame1, "ScrMaisOco", 1155, 615, s_.ScrMaisOco);
    escala_.rotulo(frame1, QStringLiteral("%"), 1470, 645, 255, 255, "Label2");
    checkBox1_ =
        poe(new QCheckBox(QStringLiteral("Sortear números dentro das dezenas com menos ocorrências na "
                                         "proporção de  dos números sorteados")),
            frame1, "CheckBox1", 240, 960, 8280, 315);
    txtMenosOco_ = poe(caixa(0), frame1, "TxtMenosOco", 600, 1275, 555, 315);
    scrMenosOco_ = barra(frame1, "ScrMenosOco", 1155, 1275, s_.ScrMenosOco);
    escala_.rotulo(frame1, QStringLiteral("%"), 1470, 1305, 255, 255, "Label1");

    auto* ok = poe(new QPushButton(QStringLiteral("OK")), this, "BtnOK", 2640, 5040, 1575, 435);
    auto* cancelar =
        poe(new QPushButton(QStringLiteral("Cancelar")), this, "BtnCancelar", 4560, 5040, 1575, 435);
    for (QPushButton* b : {ok, cancelar}) {
        b->setAutoDefault(false);
        b->setDefault(false);
    }

    liga(txtQuant_, &QLineEdit::textEdited, [this](const QString& t) { s_.TxtQuant = t; });
    liga(txtDez_, &QLineEdit::textEdited, [this](const QString& t) { s_.TxtDez = t; });
    liga(txtMaisOco_, &QLineEdit::textEdited, [this](const QString& t) { s_.TxtMaisOco = t; });
    liga(txtMenosOco_, &QLineEdit::textEdited, [this](const QString& t) { s_.TxtMenosOco = t; });
    liga(scrQuant_, &QScrollBar::valueChanged, [this](int v) { s_.mudaScrQuant(v); });
    liga(scrDez_, &QScrollBar::valueChanged, [this](int v) { s_.mudaScrDez(v); });
    liga(scrMaisOco_, &QScrollBar::valueChanged, [this](int v) { s_.mudaScrMaisOco(v); });
    liga(scrMenosOco_, &QScrollBar::valueChanged, [this](int v) { s_.mudaScrMenosOco(v); });
    liga(checkBox1_, &QCheckBox::toggled, [this](bool v) { s_.CheckBox1 = v; });
    liga(checkBox2_, &QCheckBox::toggled, [this](bool v) { s_.CheckBox2 = v; });
    liga(ok, &QPushButton::clicked, [this] { s_.BtnOK(); });
    liga(cancelar, &QPushButton::clicked, [this] { s_.BtnCancelar(); });
}

void JanelaSortear::atualizaTela() {
    poeTexto(txtQuant_, s_.TxtQuant);
    poeTexto(txtDez_, s_.TxtDez);
    poeTexto(txtMaisOco_, s_.TxtMaisOco);
    poeTexto(txtMenosOco_, s_.TxtMenosOco);
    for (int i = 0; i < Sortear::QuantCaixas; ++i) {
        poeTexto(garantir_[size_t(i)], s_.Garantir[size_t(i)]);
        poeTexto(excluir_[size_t(i)], s_.Excluir[size_t(i)]);
    }
    checkBox1_->setChecked(s_.CheckBox1);
    checkBox2_->setChecked(s_.CheckBox2);
    scrQuant_->setValue(s_.ScrQuant);
    scrDez_->setValue(s_.ScrDez);
    scrMaisOco_->setValue(s_.ScrMaisOco);
    scrMenosOco_->setValue(s_.ScrMenosOco);
}

void mostraJanelaSortear(Programa& p, QWidget* pai) {
    JanelaSortear janela(p, pai);
    janela.mostraModal();
}

} // namespace sorvelo
