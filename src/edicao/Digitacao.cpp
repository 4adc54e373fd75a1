#include "edicao/Digitacao.h"

#include "core/BancoApostas.h"
#include "edicao/SortearFormato.h"

#include <algorithm>

namespace sorvelo {

namespace {
constexpr Cor CorCelulaAtiva = rgb(0, 64, 0);
constexpr Cor CorCelulaInativa = rgb(128, 128, 128);
constexpr int TeclaEsquerda = 37;

// Positions in the tab order: TxtQNum, the 60 cells, then the rest.
constexpr int QuantPosicoes = 1 + Digitacao::QuantCelulas + 6;
int posicao(Digitacao::Foco f) {
    using A = Digitacao::Alvo;
    switch (f.alvo) {
    case A::TxtQNum:
        return 0;
    case A::TxtNum:
        return 1 + f.celula;
    default:
        return Digitacao::QuantCelulas + int(f.alvo) - int(A::BtnInserir) + 1;
    }
}
Digitacao::Foco naPosicao(int k) {
    using A = Digitacao::Alvo;
    if (k == 0) return Digitacao::controle(A::TxtQNum);
    if (k <= Digitacao::QuantCelulas) return Digitacao::celula(k - 1);
    return Digitacao::controle(A(int(A::BtnInserir) + k - Digitacao::QuantCelulas - 1));
}
} // namespace

Digitacao::Digitacao(Nucleo& p) : LogicaDialogo(p, Cancelar::Nenhum) {}

void Digitacao::ativa() {
    BtnExcluir.Caption = QStringLiteral("Excluir\rselecionado");
    BtnInserirBanco.Caption = QStringLiteral("Inserir no\rbanco de apostas");
    AjustaCampos();
}

Digitacao::CelulaNumero& Digitacao::TxtNum(int64_t i) {
    if (i < 0 || i >= QuantCelulas)
        throw falhaElementoControle(int(std::clamp<int64_t>(i, INT32_MIN, INT32_MAX)));
    return celulas_[size_t(i)];
}
const Digitacao::CelulaNumero& Digitacao::TxtNum(int64_t i) const {
    return const_cast<Digitacao*>(this)->TxtNum(i);
}

double Digitacao::quantNumeros() const {
    return valorNumerico(TxtQNum);
}

void Digitacao::AjustaCampos() {
    for (int i = 0; i < QuantCelulas; ++i) {
        celulas_[size_t(i)].Enabled = false;
        celulas_[size_t(i)].BackColor = CorCelulaInativa;
    }
    for (Int16 i = 0; quantNumeros() > i.valor(); ++i) {
        CelulaNumero& c = TxtNum(i.valor());
        c.Enabled = true;
        c.BackColor = CorCelulaAtiva;
    }
}

void Digitacao::LimpaCampos() {
    for (int i = 0; i < QuantCelulas; ++i)
        celulas_[size_t(i)].Text.clear();
}

bool Digitacao::TestaVazio() {
    for (Int16 i = 0; quantNumeros() > i.valor(); ++i)
        if (TxtNum(i.valor()).Text.isEmpty()) return true;
    return false;
}

bool Digitacao::TestaRepeticao(const QString& t, Int16 x) {
    const QString procurado = formataTexto00(t);
    for (Int16 i = 0; quantNumeros() > i.valor(); ++i) {
        const QString& texto = TxtNum(i.valor()).Text;
        if (!texto.isEmpty() && formataTexto00(texto) == procurado && i != x) return true;
    }
    return false;
}

void Digitacao::mudaTxtQNum(const QString& texto) {
    if (texto == TxtQNum) return;
    TxtQNum = texto;
    AjustaCampos();
}

void Digitacao::teclaTxtNum(int) {
    SemTeste = 0;
}

void Digitacao::mudaTxtNum(int i, const QString& texto) {
    TxtNum(i).Text = texto;
}

void Digitacao::teclaAbaixoTxtNum(int i, int codigo) {
    if (codigo == TeclaEsquerda && i > 0) vaiPara(celula(i - 1));
}

bool Digitacao::habilitado(Foco f) const {
    switch (f.alvo) {
    case Alvo::TxtNum:
        return f.celula >= 0 && f.celula < QuantCelulas && celulas_[size_t(f.celula)].Enabled;
    case Alvo::BtnInserir:
        return BtnInserir.Enabled;
    case Alvo::BtnExcluir:
        return BtnExcluir.Enabled;
    case Alvo::BtnInserirBanco:
        return BtnInserirBanco.Enabled;
    case Alvo::BtnSair:
        return BtnSair.Enabled;
    default:
        return true;
    }
}

void Digitacao::enter() {
    const int atual = posicao(foco);
    for (int k = 1; k < QuantPosicoes; ++k) {
        const Foco f = naPosicao((atual + k) % QuantPosicoes);
        if (habilitado(f)) {
            vaiPara(f);
            return;
        }
    }
}

void Digitacao::vaiPara(Foco f) {
    // A disabled control does not take the focus; it stays where it is.
    if (!habilitado(f)) return;
    foco = f;
    if (aoMoverFoco) aoMoverFoco(f);
    recebeFoco(f);
}

void Digitacao::recebeFoco(Foco f) {
    foco = f;
    if (f.alvo == Alvo::TxtNum)
        testaFocoCelula(f.celula);
    else if (f.alvo == Alvo::BtnInserir)
        testaUltimaCelula();
}

void Digitacao::testaFocoCelula(int p) {
    UltimoCampo = Int16(int16_t(p));
    if (p < 1 || SemTeste != 0) return;
    const int anterior = p - 1;
    if (TestaRepeticao(TxtNum(anterior).Text, Int16(int16_t(anterior)))) {
        p_.s.caixa->critico(QStringLiteral("Número Repetido!"));
        SemTeste = -1;
        TxtNum(anterior).Text.clear();
        vaiPara(celula(anterior));
    }
}

void Digitacao::testaUltimaCelula() {
    const Int16 e = Int16::de(quantNumeros() - 1);
    if (!TestaRepeticao(TxtNum(e.valor()).Text, e)) {
        // The only place that pads the numbers to two digits.
        for (Int16 i = 0; quantNumeros() > i.valor(); ++i) {
            CelulaNumero& c = TxtNum(i.valor());
            c.Text = formataTexto00(c.Text);
        }
        return;
    }
    p_.s.caixa->critico(QStringLiteral("Número Repetido!"));
    SemTeste = -1;
    TxtNum(e.valor()).Text.clear();
    vaiPara(celula(e.valor()));
}

void Digitacao::selecionaLista(int indice) {
    ListIndex = indice >= 0 && indice < LstApostas.size() ? indice : -1;
}

void Digitacao::clicaBtnInserir() {
    if (!BtnInserir.Enabled) return;
    const Foco botao = controle(Alvo::BtnInserir);
    if (foco != botao) recebeFoco(botao);
    // The test of the last cell may have taken the focus away: then the
    // press ends without a click.
    if (foco == botao) BtnInserirClick();
}

void Digitacao::BtnInserirClick() {
    if (TestaVazio()) {
        p_.s.caixa->critico(QStringLiteral("Não pode inserir, campo vazio!"));
        vaiPara(celula(UltimoCampo.valor()));
        return;
    }
    QString linha;
    for (Int16 i = 0; quantNumeros() > i.valor(); ++i)
        linha += TxtNum(i.valor()).Text + u' ';
    LstApostas.append(linha);
    ListIndex = int(LstApostas.size()) - 1;
    BtnInserirBanco.Enabled = true;
    LimpaCampos();
    vaiPara(celula(0));
}

void Digitacao::BtnExcluirClick() {
    // No test for an empty selection: removing item -1 is an invalid call.
    if (ListIndex < 0 || ListIndex >= LstApostas.size()) throw FalhaExecucao(erro::ChamadaInvalida);
    LstApostas.removeAt(ListIndex);
    ListIndex = -1;
}

void Digitacao::BtnInserirBancoClick() {
    InsereNoBanco();
    BtnInserir.Enabled = false;
    BtnExcluir.Enabled = false;
    BtnInserirBanco.Enabled = false;
}

void Digitacao::BtnSairClick() {
    if (BtnInserirBanco.Enabled &&
        p_.s.caixa->pergunta(QStringLiteral("As apostas digitadas não foram incluídas no banco de apostas!\r"
                                            "Deseja incluí-las agora?"),
                             Botoes::SimNao, Resposta::Sim) == Resposta::Sim)
        InsereNoBanco();
    fecha();
}

void Digitacao::InsereNoBanco() {
    auto& e = p_.e;
    const double quant = quantNumeros();
    // The cells that each row takes: as many as TxtQNum shows now.
    int colunas = 0;
    while (quant > colunas && colunas <= e.VetBan.ultimaColuna())
        ++colunas;
    try {
        e.VetBan.reserva(int64_t(e.QuantBan.valor()) + LstApostas.size() + 2,
                         size_t(LstApostas.size()) * size_t(colunas + 1));
    } catch (const FalhaExecucao&) {
    }
    const bool cabe = !(quant > colunas); // the "#" too, within the columns
    for (const QString& item : LstApostas) {
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        const int64_t linha = e.QuantBan.valor();
        // The line is cut by position: the two characters at 3j.
        uint8_t codigos[256];
        bool simples = cabe && colunas < e.VetBan.ultimaColuna() + 1;
        for (int j = 0; simples && j < colunas; ++j) {
            codigos[j] = MatrizTexto::codigoDe(item.mid(3 * j, 2));
            simples = codigos[j] != MatrizTexto::Outro;
        }
        if (simples) {
            codigos[colunas] = MatrizTexto::Fim;
            e.VetBan.defineCelulas(linha, codigos, colunas + 1);
            InsereApostaBanco(item);
        } else {
            Int16 j = 0;
            for (; quant > j.valor(); ++j)
                e.VetBan.define(j.valor(), linha, item.mid(3 * j.valor(), 2));
            InsereApostaBanco(item);
            e.VetBan.define(j.valor(), linha, QStringLiteral("#"));
        }
        e.QuantBan += 1;
    }
}

void Digitacao::InsereApostaBanco(const QString& Aposta) {
    InsereLinhaAposta(p_.tela.TxtBanco, (p_.e.QuantBan + 1).valor(), Aposta, p_.e.FimLinha);
}

} // namespace sorvelo
