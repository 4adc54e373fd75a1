#include "combinacoes/InsereVetor.h"

#include "core/Loteria.h"

#include "combinacoes/Estatistica.h"
#include "core/BancoApostas.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace sorvelo {

namespace {
const QString CRLF = QStringLiteral("\r\n");

// A statement of a routine that goes on at the next one after a failure.
template <typename F> bool tenta(F&& f) {
    try {
        f();
        return true;
    } catch (const FalhaExecucao&) {
    } catch (const std::bad_alloc&) {
    }
    return false;
}

void acrescentaCodigo(QString& texto, uint8_t c) {
    if (c >= MatrizTexto::PrimeiroNumero && c < MatrizTexto::PrimeiroNumero + 100) {
        const int n = c - MatrizTexto::PrimeiroNumero;
        texto += QChar(u'0' + n / 10);
        texto += QChar(u'0' + n % 10);
    } else if (c == MatrizTexto::Fim) {
        texto += u'#';
    }
    texto += u' ';
}
} // namespace

Int16 TamanhoJogoDe(const QString& nomeLoteria) {
    // A full bet has as many numbers as the game's default per bet.
    const Jogo* j = jogoPorNome(nomeLoteria);
    return j && j->nomeMaiusculo == nomeLoteria ? Int16(int16_t(j->spin)) : Int16(0);
}

InsereVetor::InsereVetor(Nucleo& p, Module2& m) : LogicaDialogo(p, Cancelar::MarcaCancelado), m_(m) {
    TamanhoJogo = TamanhoJogoDe(p.e.NomeLoteria);
    MaiorNumero = p.e.NumFim;
    randomizeRelogio(*p.s.aleatorio, *p.s.relogio);
    Iniciado = false;
}

void InsereVetor::ativa() {
    LblCont = QStringLiteral("0");
    LblTotal = QStringLiteral("de ") + textoNumero(int64_t(p_.e.TotalApostas.valor()));
    aoMostrarRotulos();
    if (!Iniciado) {
        InsereVetRes(p_.e.DezAposta);
        Iniciado = true;
    }
}

void InsereVetor::fechando() {
    p_.tela.TxtBanco.defineVisivel(true);
    p_.e.VetRes.apaga();
    p_.e.VetRes.redimensiona(81, 1);
}

void InsereVetor::InsereVetRes(Int16 k) {
    auto& e = p_.e;
    DocumentoRico& banco = p_.tela.TxtBanco;
    banco.defineVisivel(false);
    InsereLinhaBanco(p_, CabecalhoLote(p_), true);
    Cont = 0;
    LinhaOrigem = e.TotalApostas - 1;
    // Room for the rows that come, so that VetBan does not grow step by
    // step in memory (its bounds still grow one row at a time).
    tenta([&] {
        const int64_t linhas = int64_t(e.QuantBan.valor()) + int64_t(e.TotalApostas.valor()) + 2;
        e.VetBan.reserva(linhas, size_t(std::max<int64_t>(e.TotalApostas.valor(), 0)) *
                                     size_t(std::clamp<int>(k.valor() + 1, 1, 82)));
    });
    uint8_t codigos[256];
    while (Cont < e.TotalApostas && !e.Cancelado) {
        const int64_t n = int64_t(Cont.valor()) + 1;
        if (ApostaDeNumeros(LinhaOrigem, k, codigos)) {
            for (int c = 0; c < k.valor(); ++c)
                codigos[c] = uint8_t(codigos[c] - MatrizTexto::PrimeiroNumero);
            InsereLinhaAposta(banco, n, codigos, k.valor(), e.FimLinha);
        } else {
            InsereLinhaAposta(banco, n, RetApostaCelulas(LinhaOrigem, k, QString()), e.FimLinha);
        }
        Cont += 1;
        LinhaOrigem -= 1;
        if (Cont.valor() % 13 == 0) {
            LblCont = textoNumero(int64_t(Cont.valor()));
            aoContar(LblCont);
            p_.s.cedencia->cede();
        }
    }
    if (e.ComEstatistica) {
        const QString texto = CRLF + RetornaEstatistica(p_, m_) + CRLF + CRLF + CRLF;
        banco.acrescenta(texto, CorLog, true);
    }
    InsereLinhaBanco(p_, CRLF, true);
    banco.defineVisivel(true);
    fecha();
}

bool InsereVetor::ExisteNaLista(Int16 r) const {
    if (p_.e.NomeLoteria == QStringLiteral("LOTOFÁCIL") && r == 0) return true;
    const QString item = formata00(r.valor());
    bool existe = false;
    for (const QString& s : LstSort)
        if (s == item) existe = true;
    return existe;
}

void InsereVetor::adicionaLista(const QString& item) {
    auto antes = [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    };
    LstSort.insert(std::upper_bound(LstSort.begin(), LstSort.end(), item, antes), item);
}

QString InsereVetor::apostaDaLista(Int16& i) {
    auto& e = p_.e;
    const int64_t destino = e.QuantBan.valor();
    QString texto;
    for (i = 0; i < int64_t(LstSort.size()); ++i) {
        const QString& item = LstSort[i.valor()];
        texto += item + u' ';
        tenta([&] { e.VetBan.define(i.valor(), destino, item); });
    }
    return texto;
}

bool InsereVetor::ApostaDeNumeros(Int32 linha, Int16 k, uint8_t* codigos) {
    auto& e = p_.e;
    LstSort.clear();
    tenta([&] { e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor()); });
    const int64_t destino = e.QuantBan.valor();
    const bool comLista = m_.AutoCompletar == 1 || !e.VetFixos(0).isEmpty();

    // The common case, on the cell codes: every cell of the row readable
    // and a number, the bet and its "#" within the columns of VetBan.
    const bool linhaExiste = linha >= 0 && linha.valor() <= e.VetRes.ultimaLinha() && destino >= 0 &&
                             destino <= e.VetBan.ultimaLinha();
    if (comLista || !linhaExiste || k < 0 || k.valor() > e.VetBan.ultimaColuna() ||
        k.valor() > e.VetRes.ultimaColuna() + 1)
        return false;
    int quant = 0;
    const uint8_t* origem = e.VetRes.celulasGuardadas(linha.valor(), quant);
    for (int c = 0; c < k.valor(); ++c) {
        codigos[c] = c < quant ? origem[c] : MatrizTexto::Vazio;
        if (codigos[c] < MatrizTexto::PrimeiroNumero || codigos[c] >= MatrizTexto::PrimeiroNumero + 100)
            return false;
    }
    codigos[k.valor()] = MatrizTexto::Fim;
    e.VetBan.defineCelulas(destino, codigos, k.valor() + 1);
    e.QuantBan += 1;
    return true;
}

QString InsereVetor::RetAposta(Int32 linha, Int16 k) {
    uint8_t codigos[256];
    QString texto;
    texto.reserve(3 * std::max<int>(k.valor(), TamanhoJogo.valor()) + 3);
    if (ApostaDeNumeros(linha, k, codigos)) {
        for (int c = 0; c < k.valor(); ++c)
            acrescentaCodigo(texto, codigos[c]);
        return texto;
    }
    return RetApostaCelulas(linha, k, std::move(texto));
}

QString InsereVetor::RetApostaCelulas(Int32 linha, Int16 k, QString texto) {
    auto& e = p_.e;
    const int64_t destino = e.QuantBan.valor();
    const bool comLista = m_.AutoCompletar == 1 || !e.VetFixos(0).isEmpty();
    // Cell by cell, each step skipped when it fails.
    Int16 i = 0;
    for (i = 0; i < k; ++i) {
        QString v;
        if (!tenta([&] { v = e.VetRes.valor(i.valor(), linha.valor()); })) continue;
        texto += v + u' ';
        tenta([&] { e.VetBan.define(i.valor(), destino, v); });
        if (comLista) adicionaLista(v);
    }
    if (m_.AutoCompletar == 1) {
        Int16 j = i;
        while (j < TamanhoJogo) {
            const float x = float(MaiorNumero.valor() + 1) * p_.s.aleatorio->rnd();
            const Int16 r = Int16::de(int64_t(std::floor(double(x))));
            if (!ExisteNaLista(r)) {
                adicionaLista(formata00(r.valor()));
                j += 1;
            }
        }
        texto = apostaDaLista(i);
    }
    if (!e.VetFixos(0).isEmpty()) {
        for (int b = 0; b <= 99 && !e.VetFixos(b).isEmpty(); ++b)
            adicionaLista(e.VetFixos(b));
        texto = apostaDaLista(i);
    }
    tenta([&] { e.VetBan.define(i.valor(), destino, QStringLiteral("#")); });
    tenta([&] { e.QuantBan += 1; });
    return texto;
}

} // namespace sorvelo
