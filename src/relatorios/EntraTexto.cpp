#include "EntraTexto.h"

namespace sorvelo {

void EntraTexto::Carrega() {
    tela.LblMensagem = e_.TextoPrompt;
    tela.TxtTexto.Text = e_.TextoDigitado;
}

void EntraTexto::BtnOK() {
    e_.TextoDigitado = tela.TxtTexto.Text;
    fechada_ = true;
}

void EntraTexto::BtnCancelar() {
    e_.TextoDigitado = textoCancelar();
    fechada_ = true;
}

} // namespace sorvelo
