// The small prompt that asks for one line of text. It exchanges its values
// through TextoPrompt and TextoDigitado of the shared state: the caller sets
// the question and the proposed answer, shows the prompt modal, then reads
// TextoDigitado, where "CANCELAR" means that the user gave up.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

namespace sorvelo {

// The answer that stands for giving up, typed or pressed.
inline const QString& textoCancelar() {
    static const QString t = QStringLiteral("CANCELAR");
    return t;
}
inline bool respostaCancelada(const QString& TextoDigitado) {
    return TextoDigitado == textoCancelar();
}

struct TelaEntraTexto {
    QString Caption = QStringLiteral("Sorvelo");
    QString LblMensagem = QStringLiteral("Informe o texto:");
    CampoTexto TxtTexto;
    QString BtnOK = QStringLiteral("OK");
    QString BtnCancelar = QStringLiteral("Cancelar");
};

// The prompt while it is loaded. Closing it any other way than by its two
// buttons leaves TextoDigitado with the proposed value.
class EntraTexto : public LogicaDialogo {
public:
    explicit EntraTexto(Nucleo& p) : LogicaDialogo(p, Cancelar::Nenhum) {}
    // Load: the question and the proposed value into the controls.
    void Carrega();
    // OK: the typed text becomes the answer.
    void BtnOK();
    // Cancelar: the answer is "CANCELAR".
    void BtnCancelar() override;
    bool fechada() const { return !aberto(); }
    TelaEntraTexto tela;
};

} // namespace sorvelo
