#include "combinacoes/CombinacaoReduzida.h"

#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "relatorios/Pontuacao.h"

namespace sorvelo {

namespace {
const QString CRLF = QStringLiteral("\r\n");
}

CombinacoesReduz::CombinacoesReduz(Nucleo& p, Module2& m)
    : LogicaDialogo(p, Cancelar::MarcaCancelado), m_(m) {
    const auto& e = p.e;
    LblDezComb = formata00(e.QuantEscolhidos.valor());
    LblDezApo = formata00(e.DezFinal.valor());
    LblGarantia = p.tela.CmbGarantia.Text + u' ';
    LblAcertar = p.tela.CmbAcertar.Text;
}

void CombinacoesReduz::BtnIniciar() {
    auto& e = p_.e;
    m_.Interrompido = false;
    e.Historico += p_.agoraTexto() + QStringLiteral(": Garantia de no mínimo ") + LblGarantia +
                   QStringLiteral(" se acertar ") + LblAcertar +
                   QStringLiteral(" números dentro das dezenas escolhidas.") + CRLF;
    CarregaNumeros(p_);
    IniciaProgresso(p_, m_, e.TotalApostas);
    mensagem(QStringLiteral("Efetuando combinações..."));
    p_.s.cedencia->cede();
    // A cancel stops the generator at its next yield; the dialog closed
    // during the run was cancelled, whatever Timer1 did to Cancelado.
    const bool feito = aberto() && CombinaVetor(p_, m_, e.QuantEscolhidos, e.DezAposta, e.TotalApostas);
    if (!feito || !aberto()) {
        e.Cancelado = true;
        fecha();
        return;
    }
    mensagem(QString());
    fecha();
}

Int16 DezenasDaGarantia(const QString& texto) {
    const Int16 d = Int16::de(valorNumerico(texto));
    const int palavra = numeroDaPalavra(texto);
    return palavra ? Int16(int16_t(palavra)) : d;
}

void CliqueReduzir(Nucleo& p, bool marcado) {
    p.tela.ChkReduzir.Value = marcado;
    p.tela.CmbAcertar.Enabled = marcado;
}

bool PreparaReducao(Nucleo& p) {
    auto& e = p.e;
    auto& t = p.tela;
    // The bank is emptied before any check; a Cancel of its save question
    // leaves the old bets, which then go into the packing as they are.
    LimpaBancoApostas(p);
    CarregaNumeros(p);
    e.Cancelado = false;
    e.EmReducao = false;
    if (valorNumerico(t.TxtEscolhidos.Text) == 0) {
        p.s.caixa->informacao(QStringLiteral("Favor selecionar os números a combinar"));
        return false;
    }
    CarregaVetDezEsc(p);
    e.DezAposta = DezenasDaGarantia(t.CmbGarantia.Text);
    e.QuantEscolhidos = Int16::de(valorNumerico(t.TxtEscolhidos.Text));
    e.DezFinal = Int16::de(valorNumerico(t.TxtDezAp2.Text));
    e.QuantAcertar = Int16::de(valorNumerico(t.CmbAcertar.Text));
    if (t.ChkReduzir.Value && e.DezAposta > e.QuantAcertar) {
        p.s.caixa->critico(QStringLiteral("A garantia deve ser menor ou igual à quant. a acertar!"));
        return false;
    }
    if (e.DezAposta >= e.QuantEscolhidos) {
        p.s.caixa->critico(QStringLiteral("Não é possível fazer redução com os parâmetros informados!"));
        return false;
    }
    e.TotalApostas = ArredondaApostas(RetQuantCombinacoes(e.QuantEscolhidos, e.DezAposta));
    e.ValorAposta = valorNumerico(RetValorNumerico(t.TxtValAp.Text, false));
    e.Historico += p.agoraTexto() + QStringLiteral(": Combinação reduzida") + CRLF;
    return true;
}

void BtnReduz(Nucleo& p) {
    if (!PreparaReducao(p)) return;
    if (p.tela.ChkReduzir.Value) {
        p.dialogos.mostraCombSuperReduz();
        return;
    }
    p.dialogos.mostraCombinacoesReduz();
    if (!p.e.Cancelado) p.dialogos.mostraInsereVetorReduz();
}

} // namespace sorvelo
