#include "core/LogicaDialogo.h"

namespace sorvelo {

LogicaDialogo::LogicaDialogo(Nucleo& p, Cancelar cancelar) : p_(p), cancelar_(cancelar) {}

void LogicaDialogo::BtnCancelar() {
    if (cancelar_ == Cancelar::MarcaCancelado) p_.e.Cancelado = true;
    fecha();
}

void LogicaDialogo::fechaPelaMoldura() {
    if (!aberto_) return;
    if (cancelar_ == Cancelar::Nenhum)
        fecha();
    else
        BtnCancelar();
}

void LogicaDialogo::fecha() {
    fechando();
    const bool estava = aberto_;
    aberto_ = false;
    if (estava) aoFechar();
}

void LogicaDialogo::mensagem(const QString& texto) {
    LblMensagem = texto;
    aoMudarMensagem();
}

} // namespace sorvelo
