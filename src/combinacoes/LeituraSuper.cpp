#include "combinacoes/LeituraSuper.h"

#include "base/Cp1252.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <new>

namespace sorvelo {

const TabelaSuper* tabelaSuperDe(const QString& NomeLoteria) {
    static const std::array<TabelaSuper, 4> tabelas = {{
        {QStringLiteral("LOTOFÁCIL"), QStringLiteral("Lotofacil.sv"), QByteArrayLiteral("LFC"), 15},
        {QStringLiteral("MEGA-SENA"), QStringLiteral("Megasena.sv"), QByteArrayLiteral("MSC"), 6},
        {QStringLiteral("DUPLA SENA"), QStringLiteral("Duplasena.sv"), QByteArrayLiteral("DSC"), 6},
        {QStringLiteral("QUINA"), QStringLiteral("Quina.sv"), QByteArrayLiteral("QNC"), 5},
    }};
    for (const TabelaSuper& t : tabelas)
        if (t.NomeLoteria == NomeLoteria) return &t;
    return nullptr;
}

QByteArray LeArquivoSuper(const QString& caminho) {
    const QFileInfo info(caminho);
    if (!info.exists()) return {};
    QFile f(caminho);
    if (info.isDir() || !f.open(QIODevice::ReadOnly)) throw FalhaExecucao(erro::AcessoCaminho);
    if (f.size() > LimiteArquivoSuper) throw FalhaExecucao(erro::MemoriaInsuficiente);
    try {
        QByteArray dados = f.readAll();
        if (f.error() != QFileDevice::NoError) throw FalhaExecucao(erro::ErroEntradaSaida);
        return dados;
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
}

QByteArray ChaveSuper(const TabelaSuper& tabela, Int16 QuantEscolhidos, Int16 QuantAcertar, Int16 DezAposta) {
    const QString chave = QString::fromLatin1(tabela.codigo) + formata00(QuantEscolhidos.valor()) + u'A' +
                          formata00(QuantAcertar.valor()) + u'G' + formata00(DezAposta.valor());
    return chave.toLatin1();
}

std::optional<Int32> PosicaoBlocoSuper(const QByteArray& TextoSuper, const QByteArray& chave) {
    const qsizetype i = TextoSuper.indexOf(chave);
    if (i < 0) return std::nullopt;
    return Int32::de(int64_t(i) + 1) + 13;
}

namespace {

// The cell of two characters (fewer at the end of the text) into VetRes.
void poeCelula(MatrizTexto& VetRes, int64_t coluna, int64_t linha, const char* par, qsizetype quant) {
    auto digito = [](char c) { return c >= '0' && c <= '9'; };
    if (quant == 2 && digito(par[0]) && digito(par[1])) {
        VetRes.defineCodigo(coluna, linha, MatrizTexto::codigoNumero((par[0] - '0') * 10 + (par[1] - '0')));
        return;
    }
    VetRes.define(coluna, linha, cp1252::decodifica(par, quant));
}

} // namespace

void LeBlocoSuper(const QByteArray& TextoSuper, Int32& PosSuper, MatrizTexto& VetRes, Int16& QuantSuper) {
    QuantSuper = 0;
    Int32 linha = 0;
    Int16 coluna = 0;
    const qsizetype tamanho = TextoSuper.size();
    for (;;) {
        // The two characters at PosSuper: fewer, or none, at the end.
        if (PosSuper < 1) throw FalhaExecucao(erro::ChamadaInvalida);
        const qsizetype inicio = qsizetype(PosSuper.valor()) - 1;
        const qsizetype quant = std::clamp<qsizetype>(tamanho - inicio, 0, 2);
        const char* par = quant > 0 ? TextoSuper.constData() + inicio : "";
        if (quant == 2 && par[0] == '#' && par[1] == '#') {
            QuantSuper += 1;
            VetRes.defineCodigo(coluna.valor(), linha.valor(), MatrizTexto::Fim);
            return;
        }
        if (quant > 0 && par[0] == '\n') {
            VetRes.defineCodigo(coluna.valor(), linha.valor(), MatrizTexto::Fim);
            linha += 1;
            coluna = 0;
            QuantSuper += 1;
            PosSuper -= 2;
        } else {
            poeCelula(VetRes, coluna.valor(), linha.valor(), par, quant);
            coluna += 1;
        }
        PosSuper += 3;
    }
}

} // namespace sorvelo
