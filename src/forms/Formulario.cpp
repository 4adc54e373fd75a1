#include "Formulario.h"

#include "Controles.h"
#include "Protecao.h"
#include "platform/Atividade.h"

#include <QTimer>

namespace sorvelo {

Formulario::Formulario(Programa& p, const char* nome, const QString& titulo, QWidget* pai)
    : QDialog(pai), p_(p), escala_(pai) {
    setObjectName(QString::fromUtf8(nome));
    setWindowTitle(titulo);
    setProperty("sorvelo_forma", true);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    QFont fonte(QStringLiteral("Arial"));
    fonte.setPointSize(8);
    setFont(fonte);
    FiltroEnter::instala();
}

void Formulario::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (!aoAparecer_ || agendado_) return;
    agendado_ = true;
    QTimer::singleShot(0, this, [this] {
        executaProtegido(aoAparecer_);
        sincroniza();
    });
}

void Formulario::tamanho(int largura, int altura) {
    setFixedSize(tw(largura), tw(altura));
}

void Formulario::mostraModal() {
    sincroniza();
    setModal(true);
    EmModal modal;
    exec();
}

void Formulario::mostra() {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    sincroniza();
    show();
}

} // namespace sorvelo
