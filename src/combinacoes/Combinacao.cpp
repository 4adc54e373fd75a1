#include "combinacoes/Combinacao.h"

#include "combinacoes/Estatistica.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"

namespace sorvelo {

namespace {
const QString CRLF = QStringLiteral("\r\n");
}

Combinacoes::Combinacoes(Nucleo& p, Module2& m) : LogicaDialogo(p, Cancelar::MarcaCancelado), m_(m) {
    const auto& e = p.e;
    LblDezComb = formata00(e.QuantEscolhidos.valor());
    LblDezCart = formata00(e.DezAposta.valor());
    LblTotAp = TextoQuantApostas(e.TotalApostas);
    LblValAp = TextoValorApostas(e.TotalApostas, e.ValorAposta);
    ChkEstVisible = !e.ModoFechamento;
    ChkAutoVisible = e.ModoFechamento;
    ChkEst.Enabled =
        e.NomeLoteria != QStringLiteral("LOTOFÁCIL") && e.NomeLoteria != QStringLiteral("LOTOMANIA");
}

void Combinacoes::clicaEstatistica() {
    if (aberto() && ChkEstVisible && ChkEst.Enabled) ChkEst.Value = !ChkEst.Value;
}

void Combinacoes::clicaAutoCompletar() {
    if (aberto() && ChkAutoVisible && ChkAuto.Enabled) ChkAuto.Value = !ChkAuto.Value;
}

void Combinacoes::BtnIniciar() {
    auto& e = p_.e;
    m_.Interrompido = false;
    e.Historico += p_.agoraTexto() + QStringLiteral(": Combinação de ") + LblDezComb +
                   QStringLiteral(" números ") + QStringLiteral(" de ") + LblDezCart +
                   QStringLiteral(" em ") + LblDezCart + CRLF;
    if (ChkAuto.Value)
        e.Historico += p_.agoraTexto() + QStringLiteral(": Foi selecionada a opção Auto-Completar.") + CRLF;
    CarregaNumeros(p_);
    e.ComEstatistica = ChkEst.Value;
    m_.AutoCompletar = ChkAuto.Value ? 1 : 0;
    IniciaProgresso(p_, m_, e.TotalApostas);
    mensagem(QStringLiteral("Efetuando combinações..."));
    p_.s.cedencia->cede();
    // A cancel stops the generator and the count at their next yield.
    const bool feito = aberto() && CombinaVetor(p_, m_, e.QuantEscolhidos, e.DezAposta, e.TotalApostas);
    // A dialog closed by its cancel during the run is gone: its check box
    // reads as at a new load, unchecked, and no count is made.
    if (feito && aberto() && ChkEst.Value) {
        IniciaProgresso(p_, m_, e.TotalApostas * 6);
        mensagem(QStringLiteral("Fazendo estatística de acertos..."));
        p_.s.cedencia->cede();
        if (aberto()) FazEstatistica(p_, m_, e.NomeLoteria, e.TotalApostas);
    }
    // The dialog closed during the run was cancelled, whatever Timer1 did to
    // Cancelado meanwhile: nothing goes to the bank.
    if (!feito || !aberto()) {
        e.Cancelado = true;
        fecha();
        return;
    }
    mensagem(QString());
    fecha();
}

Int16 DezenasDoFechamento(const QString& texto) {
    const Int16 d = Int16::de(valorNumerico(texto));
    const int palavra = numeroDaPalavra(texto);
    return palavra ? Int16(int16_t(palavra)) : d;
}

namespace {
void contaEPreco(Nucleo& p) {
    auto& e = p.e;
    e.TotalApostas = ArredondaApostas(RetQuantCombinacoes(e.QuantEscolhidos, e.DezAposta));
    e.ValorAposta = valorNumerico(RetValorNumerico(p.tela.TxtValAp.Text, false));
}
} // namespace

bool PreparaCombinacao(Nucleo& p) {
    auto& e = p.e;
    e.Cancelado = false;
    e.ModoReduzido = false;
    if (valorNumerico(p.tela.TxtEscolhidos.Text) == 0) {
        p.s.caixa->informacao(QStringLiteral("Favor selecionar os números a combinar"));
        return false;
    }
    e.QuantEscolhidos = Int16::de(valorNumerico(p.tela.TxtEscolhidos.Text));
    e.DezAposta = Int16::de(valorNumerico(p.tela.TxtDezAp.Text));
    contaEPreco(p);
    return true;
}

void PreparaFechamento(Nucleo& p) {
    auto& e = p.e;
    e.Cancelado = false;
    e.Historico += p.agoraTexto() + QStringLiteral(": Fechamento completo de ") + p.tela.CmbFecha.Text + CRLF;
    // Every cell, the blank ones behind the game's last number too, and in
    // the marked colour even while "Fixar números" is checked.
    for (int i = 0; i <= 99; ++i) {
        Celula& c = p.tela.Num(i);
        c.BackColor = e.CorMarcado;
        c.ForeColor = e.CorTextoMarcado;
    }
    e.QuantEscolhidos = e.NumFim;
    e.DezAposta = DezenasDoFechamento(p.tela.CmbFecha.Text);
    contaEPreco(p);
}

void ConcluiCombinacao(Nucleo& p) {
    auto& e = p.e;
    if (e.Cancelado) return;
    if (!p.tela.TxtBanco.vazio()) {
        if (p.s.caixa->pergunta(QStringLiteral("Limpar o banco de apostas para inserir os novos jogos?"),
                                Botoes::SimNao, Resposta::Nao) == Resposta::Sim)
            LimpaBancoApostas(p);
    }
    p.dialogos.mostraInsereVetor();
    // The statistics at the end of the bank, in sight.
    if (e.ComEstatistica) p.tela.TxtBanco.caretNoFim();
}

void BtnIniciar(Nucleo& p) {
    if (!PreparaCombinacao(p)) return;
    p.dialogos.mostraCombinacoes();
    ConcluiCombinacao(p);
}

void BtnFechar(Nucleo& p) {
    PreparaFechamento(p);
    p.e.ModoFechamento = true;
    p.dialogos.mostraCombinacoes();
    p.e.ModoFechamento = false;
    LimpaNumeros(p);
    ConcluiCombinacao(p);
}

} // namespace sorvelo
