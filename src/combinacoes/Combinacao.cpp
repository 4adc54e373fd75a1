#include "Combinacao.h"

#include "../core/BancoApostas.h"
#include "../core/Grade.h"
#include "../core/Loteria.h"
#include "Estatistica.h"

namespace sorvelo {

namespace {
const QString CRLF = QStringLiteral("\r\n");
}

Combinacoes::Combinacoes(Programa& p) : p_(p) {
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
    if (aberto_ && ChkEstVisible && ChkEst.Enabled) ChkEst.Value = !ChkEst.Value;
}

void Combinacoes::clicaAutoCompletar() {
    if (aberto_ && ChkAutoVisible && ChkAuto.Enabled) ChkAuto.Value = !ChkAuto.Value;
}

void Combinacoes::mensagem(const QString& texto) {
    LblMensagem = texto;
    if (aoMudarMensagem) aoMudarMensagem();
}

void Combinacoes::fecha() {
    const bool estava = aberto_;
    aberto_ = false;
    if (estava && aoFechar) aoFechar();
}

void Combinacoes::BtnCancelar() {
    p_.e.Cancelado = true;
    module2(p_).Interrompido = true;
    fecha();
}

void Combinacoes::BtnIniciar() {
    auto& e = p_.e;
    Module2& m = module2(p_);
    m.Interrompido = false;
    e.Historico += p_.agoraTexto() + QStringLiteral(": Combinação de ") + LblDezComb +
                   QStringLiteral(" números ") + QStringLiteral(" de ") + LblDezCart +
                   QStringLiteral(" em ") + LblDezCart + CRLF;
    if (ChkAuto.Value)
        e.Historico += p_.agoraTexto() + QStringLiteral(": Foi selecionada a opção Auto-Completar.") + CRLF;
    CarregaNumeros(p_);
    e.ComEstatistica = ChkEst.Value;
    m.AutoCompletar = ChkAuto.Value ? 1 : 0;
    IniciaProgresso(p_, e.TotalApostas);
    mensagem(QStringLiteral("Efetuando combinações..."));
    p_.s.cedencia->cede();
    // A cancel stops the generator and the count at their next yield.
    const bool feito = aberto_ && CombinaVetor(p_, e.QuantEscolhidos, e.DezAposta, e.TotalApostas);
    if (feito && aberto_ && ChkEst.Value) {
        IniciaProgresso(p_, e.TotalApostas * 6);
        mensagem(QStringLiteral("Fazendo estatística de acertos..."));
        p_.s.cedencia->cede();
        if (aberto_) FazEstatistica(p_, e.NomeLoteria, e.TotalApostas);
    }
    // The dialog closed during the run was cancelled, whatever Timer1 did to
    // Cancelado meanwhile: nothing goes to the bank.
    if (!feito || !aberto_) {
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
void contaEPreco(Programa& p) {
    auto& e = p.e;
    e.TotalApostas = ArredondaApostas(RetQuantCombinacoes(e.QuantEscolhidos, e.DezAposta));
    e.ValorAposta = valorNumerico(RetValorNumerico(p.tela.TxtValAp.Text, false));
}
} // namespace

bool PreparaCombinacao(Programa& p) {
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

void PreparaFechamento(Programa& p) {
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

void ConcluiCombinacao(Programa& p, const JanelasCombinacao& janelas) {
    auto& e = p.e;
    if (e.Cancelado) return;
    if (!p.tela.TxtBanco.texto().isEmpty()) {
        if (p.s.caixa->pergunta(QStringLiteral("Limpar o banco de apostas para inserir os novos jogos?"),
                                Botoes::SimNao, Resposta::Nao) == Resposta::Sim)
            LimpaBancoApostas(p);
    }
    janelas.mostraInsereVetor(p);
    if (e.ComEstatistica && janelas.caretNoFim) janelas.caretNoFim(p);
}

void BtnIniciar(Programa& p, const JanelasCombinacao& janelas) {
    if (!PreparaCombinacao(p)) return;
    janelas.mostraCombinacoes(p);
    ConcluiCombinacao(p, janelas);
}

void BtnFechar(Programa& p, const JanelasCombinacao& janelas) {
    PreparaFechamento(p);
    p.e.ModoFechamento = true;
    janelas.mostraCombinacoes(p);
    p.e.ModoFechamento = false;
    LimpaNumeros(p);
    ConcluiCombinacao(p, janelas);
}

} // namespace sorvelo
