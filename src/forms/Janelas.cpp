#include "forms/Janelas.h"

#include "base/Semantica.h"
#include "forms/Combinacoes.h"
#include "forms/InsereVetor.h"

#include <QWidget>

#include <stdexcept>

namespace sorvelo {

namespace {
// A dialog whose form is not made yet: a fault of the program, not of the
// person, that reaches the top.
void naoConstruido(Dialogo d) {
    throw std::logic_error("form not built: " + nomeDialogo(d).toStdString());
}
} // namespace

void JanelasFormas::liga(Programa& p, QWidget* principal) {
    p_ = &p;
    principal_ = principal;
}

void JanelasFormas::mostra(Dialogo d) {
    if (!p_) throw std::logic_error("JanelasFormas::mostra before liga");
    Programa& p = *p_;
    QWidget* pai = principal_;
    // One case a dialog, a blank line between them.
    switch (d) {
    case Dialogo::Combinacoes:
        mostraJanelaCombinacoes(p, pai);
        return;

    case Dialogo::InsereVetor:
        mostraJanelaInsereVetor(p, pai);
        return;

    case Dialogo::ConfApostas:
        mostraConfApostas();
        return;

    case Dialogo::Filtrar:
        return naoConstruido(d);

    case Dialogo::Eliminar:
        return naoConstruido(d);

    case Dialogo::Sortear:
        return naoConstruido(d);

    case Dialogo::SortComb:
        return naoConstruido(d);

    case Dialogo::Digitacao:
        return naoConstruido(d);

    case Dialogo::EntraTexto:
        return naoConstruido(d);

    case Dialogo::Estatisticas:
        return naoConstruido(d);

    case Dialogo::RelBanco:
        return naoConstruido(d);

    case Dialogo::CombinacoesReduz:
        return naoConstruido(d);

    case Dialogo::InsereVetorReduz:
        return naoConstruido(d);

    case Dialogo::CombSuperReduz:
        return naoConstruido(d);

    case Dialogo::JogoAJogo:
        return naoConstruido(d);

    case Dialogo::Help:
        return naoConstruido(d);

    case Dialogo::Topicos:
        return naoConstruido(d);

    case Dialogo::Sobre:
        return naoConstruido(d);

    case Dialogo::Apresenta:
        return naoConstruido(d);
    }
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
        aberta->raise();
        aberta->activateWindow();
        return;
    }
    auto logica = std::make_unique<ConfApostas>(p);
    logica->Carrega();
    confApostas.abre(p, std::move(logica), principal_);
}

} // namespace sorvelo
