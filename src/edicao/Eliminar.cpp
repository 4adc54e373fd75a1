#include "edicao/Eliminar.h"

#include "core/BancoApostas.h"
#include "edicao/Filtrar.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace sorvelo {

const QString Eliminar::Caption = QStringLiteral("Eliminação aleatória de números");
const QString Eliminar::CaptionLabel1 = QStringLiteral("Eliminação aleatória de números de apostas");
const QString Eliminar::CaptionLabel2 =
    QStringLiteral("Informe a quantidade de números a eliminar por aposta:");
const QString Eliminar::CaptionBtnIniciar = QStringLiteral("Iniciar");
const QString Eliminar::MensagemQuantidade =
    QStringLiteral("Não é possível eliminar mais números\rdo que o total de números de cada aposta!");

namespace {
const QString CRLF = QStringLiteral("\r\n");
// Cell codes of the working copy of a bet: those of the bank array, and the
// mark of a struck number (the text "X").
constexpr uint8_t Riscada = 254;
constexpr int Colunas = 256;
} // namespace

void BtnEliminar(Nucleo& p) {
    p.dialogos.mostraEliminar();
}

Eliminar::Eliminar(Nucleo& p) : LogicaDialogo(p, Cancelar::Nenhum) {}

Int16 Eliminar::CompVetBan() const {
    int quant = 0;
    const uint8_t* cel = p_.e.VetBan.celulas(0, quant);
    // With no "#" the count runs off the end of the row.
    if (quant == 0 || cel[quant - 1] != MatrizTexto::Fim) foraDoIntervalo();
    return Int16(int16_t(quant - 1));
}

QString Eliminar::RetAposta(Int32 Linha) const {
    return TextoDaLinha(p_.e.VetBan, Linha.valor());
}

void Eliminar::BtnIniciar() {
    auto& e = p_.e;
    e.Historico += p_.agoraTexto() + QStringLiteral(": Eliminação de números") + CRLF;
    randomizeRelogio(*p_.s.aleatorio, *p_.s.relogio);
    const Int16 n = CompVetBan();
    const Int16 q = Int16::de(valorNumerico(TxtQuant.Text));
    if (q > n) {
        p_.s.caixa->critico(MensagemQuantidade);
        return;
    }
    // The bound is read at each turn: a click inside a yield may have run
    // the whole handler meanwhile.
    for (Int32 b = 0; b < e.QuantBan; ++b) {
        eliminaDaAposta(b.valor(), n.valor(), q.valor());
        contaECede(int64_t(b.valor()) + 1);
    }
    EscreveBanco();
    fecha();
}

void Eliminar::contaECede(int64_t feitas) {
    if (feitas % 13 != 0) return;
    LblCont = formata(feitas, 6);
    if (aoContar) aoContar();
    p_.s.cedencia->cede();
}

// Strikes q of the cells 0..n-1 of the row, then closes the row up over
// those cells and writes the "#" behind the last one kept. The cells behind
// the new "#" keep what they held, struck marks included.
void Eliminar::eliminaDaAposta(int64_t linha, int n, int q) {
    MatrizTexto& vet = p_.e.VetBan;
    uint8_t cel[Colunas];
    std::vector<QString> outros; // the texts of the cells that are no code, when there are any
    int guardadas = 0;
    const uint8_t* p = vet.celulasGuardadas(linha, guardadas);
    const int largura = std::max(guardadas, n + 1);
    std::memcpy(cel, p, size_t(guardadas));
    std::memset(cel + guardadas, MatrizTexto::Vazio, size_t(largura - guardadas));
    for (int c = 0; c < guardadas; ++c) {
        if (cel[c] != MatrizTexto::Outro) continue;
        if (outros.empty()) outros.resize(size_t(largura));
        outros[size_t(c)] = vet.valor(c, linha);
        if (outros[size_t(c)] == u'X') cel[c] = Riscada;
    }
    FonteAleatoria& rnd = *p_.s.aleatorio;
    for (int k = 0; k < q;) {
        const float r = rnd.rnd();
        const int c = int(float(n) * r);
        if (c < 0 || c >= largura) foraDoIntervalo();
        if (cel[c] != Riscada) ++k;
        cel[c] = Riscada;
    }
    int w = 0;
    for (int j = 0; j < n; ++j) {
        if (cel[j] == Riscada) continue;
        cel[w] = cel[j];
        if (!outros.empty()) outros[size_t(w)] = outros[size_t(j)];
        ++w;
    }
    cel[w] = MatrizTexto::Fim;
    // Back into the row: the plain codes at once, then the texts.
    const int escritas = std::max(n, w + 1);
    uint8_t codigos[Colunas];
    bool temTextos = false;
    for (int c = 0; c < escritas; ++c) {
        const bool texto = cel[c] == MatrizTexto::Outro || cel[c] == Riscada;
        codigos[c] = texto ? MatrizTexto::Vazio : cel[c];
        temTextos = temTextos || texto;
    }
    vet.defineCelulas(linha, codigos, escritas);
    if (!temTextos) return;
    for (int c = 0; c < escritas; ++c) {
        if (cel[c] == Riscada)
            vet.define(c, linha, QStringLiteral("X"));
        else if (cel[c] == MatrizTexto::Outro)
            vet.define(c, linha, outros[size_t(c)]);
    }
}

void Eliminar::EscreveBanco() {
    auto& e = p_.e;
    DocumentoRico& banco = p_.tela.TxtBanco;
    banco.defineTexto(QString());
    banco.defineVisivel(false);
    InsereLinhaBanco(p_, CabecalhoLote(p_), true);
    for (Int32 i = 0; i < e.QuantBan;) {
        InsereLinhaAposta(banco, int64_t(i.valor()) + 1, RetAposta(i), e.FimLinha);
        i += 1;
        contaECede(i.valor());
    }
    InsereLinhaBanco(p_, CRLF + CRLF, true);
    banco.defineVisivel(true);
}

} // namespace sorvelo
