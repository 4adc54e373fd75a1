#include "combinacoes/InsereVetorReduz.h"

#include "combinacoes/Reducao.h"
#include "core/BancoApostas.h"

#include <algorithm>
#include <new>

namespace sorvelo {

namespace {
const QString CRLF = QStringLiteral("\r\n");

// A statement that goes on at the next one after a failure.
template <typename F> void tenta(F&& f) {
    try {
        f();
    } catch (const FalhaExecucao&) {
    } catch (const std::bad_alloc&) {
    }
}

QString contador(int64_t n) {
    return formata(n, 6);
}

// The texts of VetBan's rows 0..quant-1 that are no number, "#" or empty.
QStringList outrosTextos(const MatrizTexto& banco, int64_t quant) {
    QStringList outros;
    for (int64_t r = 0; r < quant; ++r) {
        int q = 0;
        const uint8_t* cel = banco.celulasGuardadas(r, q);
        for (int c = 0; c < q; ++c)
            if (cel[c] == MatrizTexto::Outro) outros << banco.valor(c, r);
    }
    return outros;
}

// Row r of VetBan into the packing: its cells up to its "#".
void acrescentaLinha(Reducao& red, const Alfabeto& alf, const MatrizTexto& banco, int64_t r, bool padrao) {
    int q = 0;
    const uint8_t* cel = banco.celulasGuardadas(r, q);
    uint16_t valores[Reducao::Colunas];
    int n = 0;
    bool temFim = false;
    for (; n < Reducao::Colunas; ++n) {
        const uint8_t c = n < q ? cel[n] : MatrizTexto::Vazio;
        if (c == MatrizTexto::Fim) {
            temFim = true;
            break;
        }
        if (padrao)
            valores[n] = c;
        else
            valores[n] = alf.valor(c == MatrizTexto::Outro ? banco.valor(n, r) : MatrizTexto::textoDe(c));
    }
    red.acrescenta(valores, n, temFim);
}
} // namespace

InsereVetorReduz::InsereVetorReduz(Nucleo& p) : LogicaDialogo(p, Cancelar::SoFecha) {
    LblMensagem = QStringLiteral("Inserindo jogos no banco de apostas...");
}

void InsereVetorReduz::conta(const QString& texto) {
    LblCont = texto;
    if (aoContar) aoContar(LblCont);
}

bool InsereVetorReduz::cedeECancelou() {
    p_.s.cedencia->cede();
    return cancelado_;
}

void InsereVetorReduz::ativa() {
    if (p_.e.EmReducao) return;
    p_.e.EmReducao = true;
    IniciaReducao();
}

void InsereVetorReduz::BtnCancelar() {
    if (fase_ == Fase::Combinando || fase_ == Fase::Reduzindo) {
        cancelado_ = true;
        p_.e.Cancelado = true;
    }
    fecha();
}

void InsereVetorReduz::fechando() {
    p_.tela.TxtBanco.defineVisivel(true);
    p_.e.VetRes.apaga();
    p_.e.VetRes.redimensiona(81, 1);
    p_.e.EmReducao = false;
}

void InsereVetorReduz::esvaziaBanco() {
    auto& e = p_.e;
    e.VetBan.redimensiona(81, 1);
    e.QuantBan = 0;
    p_.tela.TxtBanco.defineTexto(QString());
    p_.tela.TxtBanco.defineVisivel(true);
    fase_ = Fase::Parado;
}

void InsereVetorReduz::IniciaReducao() {
    conta(QStringLiteral("000000"));
    CombinaNumeros();
    fecha();
}

void InsereVetorReduz::CombinaNumeros() {
    auto& e = p_.e;
    fase_ = Fase::Combinando;
    mensagem(QStringLiteral("Combinando números..."));
    // Room for the rows that come (the bounds still grow one row at a time).
    tenta([&] {
        const int64_t total = std::max<int64_t>(e.TotalApostas.valor(), 0);
        e.VetBan.reserva(int64_t(e.QuantBan.valor()) + total + 2,
                         size_t(total) * size_t(std::clamp<int>(e.DezAposta.valor() + 1, 1, 82)));
    });
    int64_t feitas = 0;
    for (Int32 linha = e.TotalApostas - 1; linha >= 0; linha -= 1) {
        InsereVetBan(linha, e.DezAposta);
        ++feitas;
        if (feitas % 13 == 0) {
            conta(contador(feitas));
            if (cedeECancelou()) return esvaziaBanco();
        }
    }
    mensagem(QStringLiteral("Aguarde alguns minutos..."));
    if (cedeECancelou()) return esvaziaBanco();
    ReduzCombinacoes();
}

void InsereVetorReduz::InsereVetBan(Int32 linha, Int16 k) {
    auto& e = p_.e;
    tenta([&] { e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor()); });
    const int64_t destino = e.QuantBan.valor();
    const int kk = k.valor();
    // The common case on the cell codes: every cell a number, the row and
    // its "#" within the bounds of both arrays.
    bool simples = kk >= 0 && kk <= e.VetRes.ultimaColuna() + 1 && kk <= e.VetBan.ultimaColuna() &&
                   linha >= 0 && linha.valor() <= e.VetRes.ultimaLinha() && destino >= 0 &&
                   destino <= e.VetBan.ultimaLinha();
    uint8_t codigos[256];
    for (int c = 0; simples && c < kk; ++c) {
        codigos[c] = e.VetRes.codigo(c, linha.valor());
        simples = codigos[c] != MatrizTexto::Outro;
    }
    if (simples) {
        codigos[kk] = MatrizTexto::Fim;
        e.VetBan.defineCelulas(destino, codigos, kk + 1);
    } else {
        for (int c = 0; c < kk; ++c)
            tenta([&] { e.VetBan.define(c, destino, e.VetRes.valor(c, linha.valor())); });
        tenta([&] { e.VetBan.define(kk, destino, QStringLiteral("#")); });
    }
    tenta([&] { e.QuantBan += 1; });
}

void InsereVetorReduz::ReduzCombinacoes() {
    auto& e = p_.e;
    fase_ = Fase::Reduzindo;
    mensagem(QStringLiteral("Reduzindo combinações..."));
    e.VetRes.redimensiona(81, e.QuantBan.valor());
    const int64_t quant = e.QuantBan.valor();
    const QStringList outros = outrosTextos(e.VetBan, quant);
    const bool padrao = outros.isEmpty();
    const Alfabeto alfabeto = padrao ? Alfabeto() : Alfabeto(outros);
    Reducao red(alfabeto, e.DezFinal, e.DezAposta.valor());
    for (int64_t r = 0; r < quant; ++r)
        acrescentaLinha(red, alfabeto, e.VetBan, r, padrao);
    const bool completo = red.reduz([&](int32_t quantFinal) {
        conta(contador(quantFinal));
        return !cedeECancelou();
    });
    if (!completo) return esvaziaBanco();
    QuantFinal = red.QuantFinal();
    DezUltimo = red.TotalNum(QuantFinal.valor() - 1);
    e.VetBan.redimensiona(81, QuantFinal.valor());
    e.QuantBan = QuantFinal;
    // DevolveJogo: each bet with its "#" back into VetBan.
    for (int32_t r = 0; r < QuantFinal; ++r) {
        const std::vector<uint16_t> aposta = red.aposta(r);
        if (padrao) {
            uint8_t codigos[Reducao::Colunas + 1];
            for (size_t i = 0; i < aposta.size(); ++i)
                codigos[i] = uint8_t(aposta[i]);
            codigos[aposta.size()] = MatrizTexto::Fim;
            e.VetBan.defineCelulas(r, codigos, int(aposta.size()) + 1);
        } else {
            for (size_t i = 0; i < aposta.size(); ++i)
                e.VetBan.define(int64_t(i), r, alfabeto.texto(aposta[i]));
            e.VetBan.define(int64_t(aposta.size()), r, QStringLiteral("#"));
        }
    }
    InsereJogosBanco();
}

void InsereVetorReduz::InsereJogosBanco() {
    auto& e = p_.e;
    DocumentoRico& banco = p_.tela.TxtBanco;
    fase_ = Fase::Inserindo;
    mensagem(QStringLiteral("Inserindo jogos no banco de apostas..."));
    banco.defineTexto(QString());
    banco.defineVisivel(false);
    InsereLinhaBanco(p_, CabecalhoLote(p_), true);
    for (Int32 i = 0; i < e.QuantBan; i += 1) {
        InsereLinhaAposta(banco, int64_t(i.valor()) + 1, RetAposta(i), e.FimLinha);
        if ((int64_t(i.valor()) + 1) % 13 == 0) {
            conta(contador(int64_t(i.valor()) + 1));
            p_.s.cedencia->cede();
        }
    }
    InsereLinhaBanco(p_, CRLF, true);
    banco.defineVisivel(true);
}

void InsereVetorReduz::adicionaLista(const QString& item) {
    auto antes = [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    };
    LstSort.insert(std::upper_bound(LstSort.begin(), LstSort.end(), item, antes), item);
}

QString InsereVetorReduz::RetAposta(Int32 linha) {
    auto& e = p_.e;
    const int64_t r = linha.valor();
    LstSort.clear();
    QString texto;
    const bool comFixos = !e.VetFixos(0).isEmpty();
    for (int c = 0;; ++c) {
        const QString v = e.VetBan.valor(c, r);
        if (v == u'#') break;
        texto += v + u' ';
        if (comFixos) adicionaLista(v);
    }
    if (!comFixos) return texto;
    for (int b = 0; b <= 99 && !e.VetFixos(b).isEmpty(); ++b)
        adicionaLista(e.VetFixos(b));
    texto.clear();
    int i = 0;
    for (; i < int(LstSort.size()); ++i) {
        texto += LstSort[i] + u' ';
        e.VetBan.define(i, r, LstSort[i]);
    }
    e.VetBan.define(i, r, QStringLiteral("#"));
    return texto;
}

} // namespace sorvelo
