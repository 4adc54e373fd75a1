#include "edicao/Filtrar.h"

#include "core/BancoApostas.h"

#include <algorithm>

namespace sorvelo {

const QString Filtrar::Caption = QStringLiteral("Filtrar banco de apostas");
const QString Filtrar::CaptionFrame1 = QStringLiteral("Filtros");
const QString Filtrar::CaptionLabel8 = QStringLiteral("Apostas com:");
const QString Filtrar::Eliminadas = QStringLiteral("ou mais serão eliminadas");
const QString Filtrar::SoEliminadas = QStringLiteral("serão eliminadas");

namespace {
bool ehNumero(uint8_t c) {
    return c >= MatrizTexto::PrimeiroNumero && c < MatrizTexto::PrimeiroNumero + 100;
}
} // namespace

void BtnFiltrar(Nucleo& p) {
    p.e.Historico += p.agoraTexto() + QStringLiteral(": Filtragem de apostas\r\n");
    p.dialogos.mostraFiltrar();
}

int LinhaDoNumero(int n) {
    return n % 10 != 0 ? n / 10 : n / 10 - 1;
}

int ColunaDoNumero(int n) {
    if (n < 10) return n - 1;
    return n % 10 != 0 ? n % 10 - 1 : 9;
}

void CopiaLinhaAte(const MatrizTexto& de, int64_t linhaDe, MatrizTexto& para, int64_t linhaPara,
                   bool comFim) {
    int quant = 0;
    const uint8_t* cel = de.celulas(linhaDe, quant);
    const bool achouFim = quant > 0 && cel[quant - 1] == MatrizTexto::Fim;
    uint8_t codigos[256];
    bool temOutros = false;
    for (int c = 0; c < quant; ++c) {
        codigos[c] = cel[c] == MatrizTexto::Outro ? MatrizTexto::Vazio : cel[c];
        temOutros = temOutros || cel[c] == MatrizTexto::Outro;
    }
    const int escritas = achouFim && !comFim ? quant - 1 : quant;
    para.defineCelulas(linhaPara, codigos, escritas);
    if (temOutros)
        for (int c = 0; c < escritas; ++c)
            if (cel[c] == MatrizTexto::Outro) para.define(c, linhaPara, de.valor(c, linhaDe));
    // The walk goes on past the last column looking for the "#".
    if (!achouFim) foraDoIntervalo();
}

QString TextoDaLinha(const MatrizTexto& vet, int64_t linha) {
    int quant = 0;
    const uint8_t* cel = vet.celulas(linha, quant);
    if (quant == 0 || cel[quant - 1] != MatrizTexto::Fim) foraDoIntervalo();
    QString s;
    s.reserve(3 * (quant - 1));
    for (int c = 0; c < quant - 1; ++c) {
        if (ehNumero(cel[c])) {
            const int n = cel[c] - MatrizTexto::PrimeiroNumero;
            s += QChar(u'0' + n / 10);
            s += QChar(u'0' + n % 10);
        } else if (cel[c] == MatrizTexto::Outro) {
            s += vet.valor(c, linha);
        }
        s += u' ';
    }
    return s;
}

Filtrar::Filtrar(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {
    const QString& nome = p.e.NomeLoteria;
    if (nome == QStringLiteral("MEGA-SENA"))
        NumLinhas = 6;
    else if (nome == QStringLiteral("DUPLA SENA"))
        NumLinhas = 5;
    else if (nome == QStringLiteral("QUINA"))
        NumLinhas = 8;
    else if (nome == QStringLiteral("LOTOMANIA"))
        NumLinhas = 10;
    if (nome == QStringLiteral("LOTOFÁCIL"))
        for (CaixaMarcar* c : {&ChkLin, &ChkCol, &ChkLinVaz, &ChkColVaz})
            c->Enabled = false;
    for (Criterio& c : criterios()) {
        if (!c.txt) continue;
        c.txt->Text = QStringLiteral("03");
        *c.scr = BarraRolagem{3, 0, 32767};
    }
    LblObs = QStringLiteral("Observações:\r- As linhas e colunas são referentes aos cartões da CEF.\r"
                            "- Combinações não geram apostas iguais.");
    const std::array<std::pair<Limite*, CampoTexto*>, 7> limites = {{{&limSeq_, &TxtSeq},
                                                                     {&limLin_, &TxtLin},
                                                                     {&limCol_, &TxtCol},
                                                                     {&limLinVaz_, &TxtLinVaz},
                                                                     {&limColVaz_, &TxtColVaz},
                                                                     {&limPar_, &TxtPar},
                                                                     {&limImpar_, &TxtImpar}}};
    for (const auto& [l, t] : limites)
        l->txt = t;
}

Filtrar::~Filtrar() = default;

std::array<Filtrar::Criterio, 8> Filtrar::criterios() {
    return {{
        {"ChkSeq", "TxtSeq", "ScrSeq", QStringLiteral("Números em sequência"), &ChkSeq, &TxtSeq, &ScrSeq},
        {"ChkLin", "TxtLin", "ScrLin", QStringLiteral("Números na mesma linha"), &ChkLin, &TxtLin, &ScrLin},
        {"ChkCol", "TxtCol", "ScrCol", QStringLiteral("Números na mesma coluna"), &ChkCol, &TxtCol, &ScrCol},
        {"ChkLinVaz", "TxtLinVaz", "ScrLinVaz", QStringLiteral("Linhas vazias"), &ChkLinVaz, &TxtLinVaz,
         &ScrLinVaz},
        {"ChkColVaz", "TxtColVaz", "ScrColVaz", QStringLiteral("Colunas vazias"), &ChkColVaz, &TxtColVaz,
         &ScrColVaz},
        {"ChkPar", "TxtPar", "ScrPar", QStringLiteral("Números pares"), &ChkPar, &TxtPar, &ScrPar},
        {"ChkImpar", "TxtImpar", "ScrImpar", QStringLiteral("Números ímpares"), &ChkImpar, &TxtImpar,
         &ScrImpar},
        {"ChkIgual", nullptr, nullptr, QStringLiteral("Outros cartões com a mesma aposta"), &ChkIgual,
         nullptr, nullptr},
    }};
}

void Filtrar::mudaBarra(int linha, int valor) {
    Criterio c = criterios().at(size_t(linha));
    if (!c.scr) return;
    c.scr->Value = valor;
    c.txt->Text = formata00(valor);
}

void Filtrar::BtnOK() {
    ExecutaFiltro();
    fecha();
}

Int16 Filtrar::Cont(int64_t i) const {
    if (i < 0 || i > 10) foraDoIntervalo();
    return cont_[size_t(i)];
}

int16_t Filtrar::Limite::le() {
    // An unchanged box still shares its text with the copy kept here.
    const bool mesmo = lido && txt->Text.constData() == texto.constData() && txt->Text.size() == texto.size();
    if (!mesmo) {
        texto = txt->Text;
        lido = true;
        estouro = false;
        try {
            valor = paraInt16(valorNumerico(texto));
        } catch (const FalhaExecucao&) {
            estouro = true;
        }
    }
    if (estouro) sorvelo::estouro();
    return valor;
}

void Filtrar::ExecutaFiltro() {
    auto& e = p_.e;
    VetAux.redimensiona(81, (e.QuantBan + 1).valor());
    QuantAux = e.QuantBan;
    // Room for the copy at once, so that it does not grow step by step.
    VetAux.reserva(int64_t(QuantAux.valor()) + 2, size_t(QuantAux.valor()) * 8);
    for (PosCopia = 0; PosCopia < e.QuantBan; ++PosCopia)
        CopiaAposta();
    e.VetBan.redimensiona(81, 1);
    e.QuantBan = 0;
    e.VetBan.reserva(int64_t(QuantAux.valor()) + 2, size_t(QuantAux.valor()) * 8);
    iguais_.reset();
    const QString total = QStringLiteral(" de ") + textoNumero(int64_t(QuantAux.valor()));
    for (PosAtual = 0; PosAtual < QuantAux; ++PosAtual) {
        if (Filtro()) DevolveAposta();
        if (PosAtual.valor() % 13 == 0) {
            LblContador = textoNumero(int64_t(PosAtual.valor()) + 1) + total;
            if (aoRepintarContador) aoRepintarContador(false);
        }
    }
    iguais_.reset();
    LblContador = QStringLiteral(" Aguarde...");
    if (aoRepintarContador) aoRepintarContador(true);
    EscreveBanco();
}

void Filtrar::CopiaAposta() {
    CopiaLinhaAte(p_.e.VetBan, PosCopia.valor(), VetAux, PosCopia.valor(), true);
}

void Filtrar::DevolveAposta() {
    auto& e = p_.e;
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    CopiaLinhaAte(VetAux, PosAtual.valor(), e.VetBan, e.QuantBan.valor(), true);
    e.QuantBan += 1;
}

QString Filtrar::RetAposta(Int32 Linha) const {
    return TextoDaLinha(p_.e.VetBan, Linha.valor());
}

void Filtrar::EscreveBanco() {
    auto& e = p_.e;
    DocumentoRico& banco = p_.tela.TxtBanco;
    banco.defineTexto(QString());
    banco.defineVisivel(false);
    for (Int32 i = 0; i < e.QuantBan; ++i)
        InsereLinhaAposta(banco, int64_t(i.valor()) + 1, RetAposta(i), e.FimLinha);
    banco.defineVisivel(true);
}

void Filtrar::LimpaContagem() {
    std::fill(cont_.begin(), cont_.begin() + 10, int16_t(0));
}

void Filtrar::conta(int indice) {
    if (indice < 0 || indice > 10) foraDoIntervalo();
    int16_t& c = cont_[size_t(indice)];
    if (c == INT16_MAX) estouro();
    ++c;
}

// The number in a cell as an integer: the code of a two-digit number, else
// the numeric value of its text.
int Filtrar::numero(int coluna, uint8_t codigo) const {
    if (ehNumero(codigo)) return codigo - MatrizTexto::PrimeiroNumero;
    return paraInt16(valorNumerico(VetAux.valor(coluna, PosAtual.valor())));
}

bool Filtrar::Filtro() {
    LimpaContagem();
    int quant = 0;
    const uint8_t* cel = VetAux.celulas(PosAtual.valor(), quant);
    if (quant == 0 || cel[quant - 1] != MatrizTexto::Fim) foraDoIntervalo();
    const int m = quant - 1; // the column of the "#"
    if (ChkSeq.Value && !passaSequencia(cel, m)) return false;
    if (!passaLinhasColunas(cel, m)) return false;
    if ((ChkPar.Value || ChkImpar.Value) && !passaParImpar(cel, m)) return false;
    if (ChkIgual.Value && !passaIguais()) return false;
    return true;
}

// The run counter R: set back to 0 on a break only while it is below the
// limit, so that once it reached the limit it counts every further number.
bool Filtrar::passaSequencia(const uint8_t* cel, int m) {
    const int16_t limite = limSeq_.le();
    int r = 0;
    for (int i = 0; i < m; ++i) {
        ++r;
        bool igual;
        if (ehNumero(cel[i]) && cel[i + 1] != MatrizTexto::Outro) {
            // The successor of 99 is "100", which no compact cell holds.
            igual = ehNumero(cel[i + 1]) && cel[i + 1] == cel[i] + 1;
        } else {
            const double v = valorNumerico(VetAux.valor(i, PosAtual.valor())) + 1;
            const QString seguinte = formata00(int64_t(paraInt32(v)));
            igual = seguinte == VetAux.valor(i + 1, PosAtual.valor());
        }
        if (!igual && r < limite) r = 0;
    }
    return !(r > limite);
}

// Rows, columns, empty rows, empty columns: all four count into the one
// Cont, on top of one another.
bool Filtrar::passaLinhasColunas(const uint8_t* cel, int m) {
    const int linhas = NumLinhas.valor();
    if (ChkLin.Value) {
        for (int i = 0; i < m; ++i)
            conta(LinhaDoNumero(numero(i, cel[i])));
        for (int r = 0; r < linhas; ++r)
            if (cont_[size_t(r)] >= limLin_.le()) return false;
    }
    if (ChkCol.Value) {
        for (int i = 0; i < m; ++i)
            conta(ColunaDoNumero(numero(i, cel[i])));
        for (int c = 0; c <= 9; ++c)
            if (cont_[size_t(c)] >= limCol_.le()) return false;
    }
    if (ChkLinVaz.Value) {
        for (int i = 0; i < m; ++i)
            conta(LinhaDoNumero(numero(i, cel[i])));
        int vazias = 0;
        for (int r = 0; r < linhas; ++r)
            vazias += cont_[size_t(r)] == 0;
        if (vazias >= limLinVaz_.le()) return false;
    }
    if (ChkColVaz.Value) {
        for (int i = 0; i < m; ++i)
            conta(ColunaDoNumero(numero(i, cel[i])));
        int vazias = 0;
        for (int c = 0; c <= 9; ++c)
            vazias += cont_[size_t(c)] == 0;
        if (vazias >= limColVaz_.le()) return false;
    }
    return true;
}

bool Filtrar::passaParImpar(const uint8_t* cel, int m) {
    int pares = 0, impares = 0;
    for (int i = 0; i < m; ++i) {
        if (numero(i, cel[i]) % 2 == 0)
            ++pares;
        else
            ++impares;
    }
    if (ChkPar.Value && pares >= limPar_.le()) return false;
    if (ChkImpar.Value && impares >= limImpar_.le()) return false;
    return true;
}

// Every row of VetAux takes part, those already dropped and those not yet
// tested; a row that has an equal is marked "@" in cell 0, so that of a
// group of equal bets only the last survives.
bool Filtrar::passaIguais() {
    if (!iguais_) iguais_ = std::make_unique<ApostasIguais>(VetAux, QuantAux.valor());
    if (!iguais_->temIgual(PosAtual.valor())) return true;
    iguais_->marca(PosAtual.valor());
    VetAux.define(0, PosAtual.valor(), QStringLiteral("@"));
    return false;
}

} // namespace sorvelo
