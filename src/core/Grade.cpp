#include "core/Grade.h"

namespace sorvelo {

void MarcaNumero(Nucleo& p, Int16 Indice) {
    Celula& c = p.tela.Num(Indice.valor());
    c.BackColor = p.tela.ChkFixar.Value ? p.e.CorFixo : p.e.CorMarcado;
    c.ForeColor = p.e.CorTextoMarcado;
}

void DesmarcaNumero(Nucleo& p, Int16 Indice) {
    Celula& c = p.tela.Num(Indice.valor());
    c.BackColor = p.e.CorFundoNum;
    c.ForeColor = p.e.CorTextoNum;
}

Int16 ContaNumeros(const Nucleo& p) {
    Int16 n = 0;
    for (int i = 0; i <= 99; ++i)
        if (p.tela.Num(i).BackColor == p.e.CorMarcado) ++n;
    return n;
}

void AtualizaEscolhidos(Nucleo& p) {
    p.tela.TxtEscolhidos.Text = formata00(ContaNumeros(p).valor());
}

void LimpaNumeros(Nucleo& p) {
    for (int16_t i = 0; i <= 99; ++i)
        DesmarcaNumero(p, i);
    p.tela.TxtEscolhidos.Text = QStringLiteral("00");
}

void CarregaNumeros(Nucleo& p) {
    auto& e = p.e;
    for (int i = 0; i <= 99; ++i) {
        e.VetNum(i) = -1;
        e.VetFixos(i) = QString();
    }
    e.DezEscolhidas.clear();
    Int16 a = 0, b = 0;
    for (int i = 0; i <= 99; ++i) {
        const Celula& c = p.tela.Num(i);
        if (c.BackColor == e.CorMarcado) {
            e.VetNum(a.valor()) = Int16::de(valorNumerico(c.Text));
            e.DezEscolhidas += formata00(e.VetNum(a.valor()).valor()) + u' ';
            ++a;
        } else if (c.BackColor == e.CorFixo) {
            e.VetFixos(b.valor()) = c.Text;
            e.DezEscolhidas += c.Text + u' ';
            ++b;
        }
    }
}

void ClicaNumero(Nucleo& p, Int16 i) {
    if (i > p.e.NumFim) return;
    const Cor fundo = p.tela.Num(i.valor()).BackColor;
    if (fundo == p.e.CorMarcado || fundo == p.e.CorFixo)
        DesmarcaNumero(p, i);
    else
        MarcaNumero(p, i);
    AtualizaEscolhidos(p);
}

void BtnLimpar(Nucleo& p) {
    if (p.s.caixa->pergunta(QStringLiteral("Tem certeza que deseja apagar todos os números escolhidos?"),
                            Botoes::SimNao, Resposta::Nao) == Resposta::Sim)
        LimpaNumeros(p);
}

void MudaSpin(const Spin& spin, CampoTexto& campo) {
    campo.Text = formata00(spin.Value);
}

} // namespace sorvelo
