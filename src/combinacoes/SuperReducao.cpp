#include "combinacoes/SuperReducao.h"

#include "core/BancoApostas.h"
#include "core/Module1.h"

#include <QDir>

#include <algorithm>

namespace sorvelo {

SuperReducao::SuperReducao(Nucleo& p) : LogicaDialogo(p, Cancelar::MarcaCancelado) {
    LblMensagem = QStringLiteral("Efetuando reduções, aguarde...");
}

void SuperReducao::ativa() {
    // The run closes the dialog at its end; it is never started twice, even
    // when the dialog comes to the front again during one of its yields.
    if (iniciado_) return;
    iniciado_ = true;
    ExecutaSuperReducao();
}

void SuperReducao::semSuperReducao() {
    p_.s.caixa->critico(SemSuperReducoes);
    fecha();
}

void SuperReducao::ExecutaSuperReducao() {
    auto& e = p_.e;
    // A game without a table (Lotomania) has no file to open: the same box
    // as a missing table.
    const TabelaSuper* tabela = tabelaSuperDe(e.NomeLoteria);
    if (!tabela) {
        semSuperReducao();
        return;
    }
    TextoSuper = LeArquivoSuper(QDir(p_.s.pasta->caminho()).filePath(tabela->arquivo));
    TextoSuper = InverteBytes(std::move(TextoSuper), [this] { p_.s.cedencia->cede(); });
    e.VetRes.redimensiona(81, 10000);
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());

    std::optional<Int32> posicao;
    if (e.DezFinal == tabela->DezFinal)
        posicao = PosicaoBlocoSuper(TextoSuper,
                                    ChaveSuper(*tabela, e.QuantEscolhidos, e.QuantAcertar, e.DezAposta));
    if (!posicao) {
        semSuperReducao();
        return;
    }
    PosSuper = *posicao;
    LeBlocoSuper(TextoSuper, PosSuper, e.VetRes, QuantSuper);
    MapeiaBloco();
    mensagem(QStringLiteral("Inserindo jogos no banco de apostas..."));
    InsereJogosSuper();
    fecha();
}

void SuperReducao::MapeiaBloco() {
    auto& e = p_.e;
    const QString fim = QStringLiteral("#");
    for (Int32 r = 0; r < int64_t(QuantSuper.valor()); ++r) {
        Int16 j = 0;
        for (j = 0; j <= 79; ++j) {
            const QString celula = e.VetRes.valor(j.valor(), r.valor());
            if (celula == fim) break;
            // Position 01 is the first marked number. Nothing checks that it
            // lies among them: behind them stand "#" and empty entries.
            const Int16 posicao = Int16::de(valorNumerico(celula) - 1);
            e.VetBan.define(j.valor(), e.QuantBan.valor(), e.VetDezenas(posicao.valor()));
        }
        e.VetBan.define(j.valor(), e.QuantBan.valor(), fim);
        e.QuantBan += 1;
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    }
}

void SuperReducao::InsereJogosSuper() {
    auto& e = p_.e;
    DocumentoRico& banco = p_.tela.TxtBanco;
    banco.limpa();
    banco.defineVisivel(false);
    InsereLinhaBanco(p_, CabecalhoLote(p_), true);
    for (Int32 i = 0; i < e.QuantBan; ++i) {
        const Int32 n = i + 1;
        InsereLinhaAposta(banco, n.valor(), RetAposta(i), e.FimLinha);
        if (n.valor() % 13 == 0) {
            LblCont = formata(n.valor(), 6);
            if (aoContar) aoContar(LblCont);
            p_.s.cedencia->cede();
        }
    }
    InsereLinhaBanco(p_, QStringLiteral("\r\n"), true);
    banco.defineVisivel(true);
}

void SuperReducao::adicionaLista(const QString& item) {
    auto antes = [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    };
    LstSort.insert(std::upper_bound(LstSort.begin(), LstSort.end(), item, antes), item);
}

QString SuperReducao::RetAposta(Int32 linha) {
    auto& e = p_.e;
    LstSort.clear();
    QString texto;
    for (Int16 c = 0;; ++c) {
        const QString celula = e.VetBan.valor(c.valor(), linha.valor());
        if (celula == u'#') break;
        texto += celula + u' ';
        adicionaLista(celula);
    }
    if (e.VetFixos(0).isEmpty()) return texto;
    for (int b = 0; b <= 99 && !e.VetFixos(b).isEmpty(); ++b)
        adicionaLista(e.VetFixos(b));
    texto.clear();
    Int16 i = 0;
    for (const QString& item : std::as_const(LstSort)) {
        e.VetBan.define(i.valor(), linha.valor(), item);
        texto += item + u' ';
        ++i;
    }
    e.VetBan.define(i.valor(), linha.valor(), QStringLiteral("#"));
    return texto;
}

} // namespace sorvelo
