#include "relatorios/EntraTexto.h"

namespace sorvelo {

void EntraTexto::Carrega() {
    tela.LblMensagem = p_.e.TextoPrompt;
    tela.TxtTexto.Text = p_.e.TextoDigitado;
}

void EntraTexto::BtnOK() {
    p_.e.TextoDigitado = tela.TxtTexto.Text;
    fecha();
}

void EntraTexto::BtnCancelar() {
    p_.e.TextoDigitado = textoCancelar();
    fecha();
}

} // namespace sorvelo
