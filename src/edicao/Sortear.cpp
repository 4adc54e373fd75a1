#include "edicao/Sortear.h"

#include "core/BancoApostas.h"
#include "edicao/SortearFormato.h"

#include <algorithm>
#include <bitset>
#include <cmath>

namespace sorvelo {

void BtnSortear(Nucleo& p) {
    p.e.Historico += p.agoraTexto() + QStringLiteral(": Foi feito sorteio de números pelo computador\r\n");
    p.dialogos.mostraSortear();
}

Sortear::Sortear(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {
    TxtDez = p.tela.TxtDezAp.Text;
}

void Sortear::mudaScrQuant(int valor) {
    ScrQuant = valor;
    TxtQuant = formata00(valor);
}
void Sortear::mudaScrDez(int valor) {
    ScrDez = valor;
    TxtDez = formata00(valor);
}
void Sortear::mudaScrMaisOco(int valor) {
    ScrMaisOco = valor;
    TxtMaisOco = formata00(valor);
}
void Sortear::mudaScrMenosOco(int valor) {
    ScrMenosOco = valor;
    TxtMenosOco = formata00(valor);
}

void Sortear::BtnOK() {
    SorteiaApostas();
    BtnCancelar();
}

void Sortear::adicionaLista(const QString& item) {
    // The list box keeps its items in text order, without regard to case.
    auto antes = [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    };
    LstSort.insert(std::upper_bound(LstSort.begin(), LstSort.end(), item, antes), item);
}

const std::array<double, Sortear::QuantCaixas>& Sortear::excluidos() {
    if (!excluidos_) {
        std::array<double, QuantCaixas> valores{};
        for (int i = 0; i < QuantCaixas; ++i)
            valores[size_t(i)] = valorNumerico(Excluir[size_t(i)]);
        excluidos_ = valores;
    }
    return *excluidos_;
}

bool Sortear::TestaSorteado(Int16 v) {
    if (p_.e.NomeLoteria == QStringLiteral("LOTOFÁCIL") && v == 0) return true;
    for (double x : excluidos())
        if (x == double(v.valor())) return true;
    const QString item = formata00(v.valor());
    return std::find(LstSort.cbegin(), LstSort.cend(), item) != LstSort.cend();
}

int Sortear::quantLivres() {
    int livres = 0;
    for (int v = 0; v <= p_.e.NumFim.valor(); ++v)
        if (!TestaSorteado(Int16(int16_t(v)))) ++livres;
    return livres;
}

void Sortear::sorteiaAposta(Int16& i) {
    // The numbers that every bet must hold, up to the first empty box.
    LstSort.clear();
    i = 0;
    while (i < QuantCaixas) {
        const QString& caixa = Garantir[size_t(i.valor())];
        if (caixa.isEmpty()) break;
        adicionaLista(formataTexto00(caixa));
        i += 1;
    }
    if (!(i < DezSort)) return;
    // A pool too small to fill the bet would keep the draw going forever:
    // that request is refused before the first number is drawn.
    if (!livres_) livres_ = quantLivres();
    if (int64_t(DezSort.valor()) - i.valor() > *livres_) throw FalhaExecucao(erro::ChamadaInvalida);

    // Membership of the two-digit numbers in the list, kept beside it.
    std::bitset<100> naLista;
    for (const QString& item : LstSort) {
        const uint8_t c = MatrizTexto::codigoDe(item);
        if (c >= MatrizTexto::PrimeiroNumero && c < MatrizTexto::PrimeiroNumero + 100)
            naLista.set(size_t(c - MatrizTexto::PrimeiroNumero));
    }
    const bool lotofacil = p_.e.NomeLoteria == QStringLiteral("LOTOFÁCIL");
    const float tamanho = float(p_.e.NumFim.valor() + 1);
    while (i < DezSort) {
        const float r = p_.s.aleatorio->rnd();
        const int v = int(std::floor(tamanho * r));
        // TestaSorteado, on the bits: v is 0..NumFim here.
        bool usado = (lotofacil && v == 0) || naLista.test(size_t(v));
        for (double x : excluidos())
            usado = usado || x == double(v);
        if (!usado) {
            adicionaLista(formata00(v));
            naLista.set(size_t(v));
            i += 1;
        }
    }
}

void Sortear::guardaAposta() {
    auto& e = p_.e;
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    const int64_t linha = e.QuantBan.valor();
    const int dez = DezSort.valor();
    auto item = [&](int j) { return j < LstSort.size() ? LstSort[j] : QString(); };
    QString texto;
    texto.reserve(3 * std::max(dez, 0));

    // The common case on cell codes: every item a number, the "#" within
    // the columns of VetBan.
    uint8_t codigos[256];
    bool simples = dez >= 0 && dez <= e.VetBan.ultimaColuna();
    for (int j = 0; simples && j < dez; ++j) {
        codigos[j] = MatrizTexto::codigoDe(item(j));
        simples = codigos[j] != MatrizTexto::Outro;
    }
    if (simples) {
        for (int j = 0; j < dez; ++j)
            texto += item(j) + u' ';
        codigos[dez] = MatrizTexto::Fim;
        e.VetBan.defineCelulas(linha, codigos, dez + 1);
        InsereApostaBanco(texto);
        e.QuantBan += 1;
        return;
    }
    for (Int16 j = 0; j <= DezSort - 1; ++j) {
        const QString v = item(j.valor());
        texto += v + u' ';
        e.VetBan.define(j.valor(), linha, v);
    }
    InsereApostaBanco(texto);
    e.VetBan.define(DezSort.valor(), linha, QStringLiteral("#"));
    e.QuantBan += 1;
}

void Sortear::SorteiaApostas() {
    auto& e = p_.e;
    randomizeRelogio(*p_.s.aleatorio, *p_.s.relogio);
    QuantSort = Int16::de(valorNumerico(TxtQuant));
    DezSort = Int16::de(valorNumerico(TxtDez));
    PosSort = 0;
    excluidos_.reset();
    livres_.reset();
    if (QuantSort > 1) {
        // Room for the rows that come; the bounds still grow row by row.
        try {
            e.VetBan.reserva(int64_t(e.QuantBan.valor()) + QuantSort.valor() + 2,
                             size_t(QuantSort.valor()) * size_t(std::clamp(DezSort.valor() + 1, 1, 82)));
        } catch (const FalhaExecucao&) {
        }
    }
    while (PosSort < QuantSort) {
        Int16 i;
        sorteiaAposta(i);
        // One bet asked for is drawn and kept nowhere.
        if (QuantSort > 1) guardaAposta();
        PosSort += 1;
    }
}

void Sortear::InsereApostaBanco(const QString& Aposta) {
    InsereLinhaAposta(p_.tela.TxtBanco, (p_.e.QuantBan + 1).valor(), Aposta, p_.e.FimLinha);
}

} // namespace sorvelo
