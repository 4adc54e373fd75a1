#include "forms/Janelas.h"

#include "forms/Digitacao.h"
#include "forms/JogoAJogo.h"

#include <QApplication>
#include <QWidget>

#include <stdexcept>

namespace sorvelo {

namespace {
// Brings an open window that is not modal back to the front.
void traz(QWidget* janela) {
    janela->raise();
    janela->activateWindow();
}
} // namespace

JanelasFormas::JanelasFormas() = default;
JanelasFormas::~JanelasFormas() = default;

void JanelasFormas::liga(Programa& p, QWidget* principal) {
    p_ = &p;
    principal_ = principal;
}

void JanelasFormas::mostra(Dialogo d) {
    if (!p_) throw std::logic_error("JanelasFormas::mostra before liga");
    Programa& p = *p_;
    // Over the dialog that is up, if any (the prompt over the statistics,
    // the page over the topics), else over the main window.
    QWidget* pai = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : principal_;
    // One case a dialog, a blank line between them.
    switch (d) {
    case Dialogo::Combinacoes:
        return mostraJanelaCombinacoes(p, pai);

    case Dialogo::InsereVetor:
        return mostraJanelaInsereVetor(p, pai);

    case Dialogo::ConfApostas:
        return mostraConfApostas();

    case Dialogo::Filtrar:
        return mostraJanelaFiltrar(p, pai);

    case Dialogo::Eliminar:
        return mostraJanelaEliminar(p, pai);

    case Dialogo::Sortear:
        return mostraJanelaSortear(p, pai);

    case Dialogo::SortComb:
        return mostraJanelaSortComb(p, pai);

    case Dialogo::Digitacao:
        return mostraDigitacao();

    case Dialogo::EntraTexto:
        return mostraJanelaEntraTexto(p, pai);

    case Dialogo::Estatisticas:
        return mostraJanelaEstatisticas(p, pai);

    case Dialogo::RelBanco:
        return mostraJanelaRelBanco(p, pai);

    case Dialogo::CombinacoesReduz:
        return mostraJanelaCombinacoesReduz(p, pai);

    case Dialogo::InsereVetorReduz:
        return mostraJanelaInsereVetorReduz(p, pai);

    case Dialogo::CombSuperReduz:
        return mostraJanelaCombSuperReduz(p, pai);

    case Dialogo::JogoAJogo:
        return mostraJogoAJogo();

    case Dialogo::Help:
        return mostraJanelaHelp(p, pai);

    case Dialogo::Topicos:
        return mostraJanelaTopicos(p, pai);

    case Dialogo::Sobre:
        return mostraJanelaSobre(p, pai);

    case Dialogo::VerificaGarantia:
        return mostraJanelaVerificaGarantia(p, pai);

    case Dialogo::Importar:
        return mostraJanelaImportar(p, pai);
    }
}

void JanelasFormas::apagaTodas() {
    confApostas.apaga();
    digitacao.apaga();
    jogoAJogo.apaga();
}

void JanelasFormas::mostraConfApostas() {
    Programa& p = *p_;
    if (JanelaConfApostas* aberta = confApostas.aberta()) {
        // Brought back without a new load: the activation test comes now.
        aberta->ignoraProximaAtivacao();
        if (!MostraConfApostasAberta(aberta->logica())) {
            // The window's state is gone with the warning: the window goes now.
            confApostas.apaga();
            return;
        }
        aberta->sincroniza();
        traz(aberta);
        return;
    }
    auto logica = std::make_unique<ConfApostas>(p);
    logica->Carrega();
    confApostas.abre(p, std::move(logica), principal_);
}

void JanelasFormas::mostraDigitacao() {
    if (JanelaDigitacao* aberta = digitacao.aberta()) return traz(aberta);
    JanelaDigitacao* janela = digitacao.abre(*p_, principal_);
    // Beside the main window, on its right.
    const QRect fora = principal_->frameGeometry();
    janela->move(fora.right() + 1, fora.top());
}

void JanelasFormas::mostraJogoAJogo() {
    // An open view comes to the front as it stands.
    if (JanelaJogoAJogo* aberta = jogoAJogo.aberta()) return traz(aberta);
    jogoAJogo.abre(*p_, principal_);
}

} // namespace sorvelo
