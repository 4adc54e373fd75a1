// Helpers of the super-reduction tests: a writer of tables (keyed blocks of
// positions, every byte complemented) into a temporary program folder, and
// the state that the reduced combination flow hands over to the dialog.
// The writer is the tests' own: it complements bytes by itself and never
// goes through the program's reading path.
#pragma once

#include "apoio/Combinacao.h"
#include "combinacoes/SuperReducao.h"
#include "relatorios/Pontuacao.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace sorvelo::teste {

inline QByteArray complementa(QByteArray s) {
    for (char& c : s)
        c = char(255 - static_cast<unsigned char>(c));
    return s;
}

// Where the block's end "##" stands.
enum class FimBloco {
    AposUltimaCelula, // "... 05 06 ##": where the next cell would begin
    LinhaPropria,     // "... 05 06\r\n##": at the start of a line of its own
    Nenhum,           // the last row ends with its line end and nothing follows
};

// A block as text: the key, CR LF, the rows ("01 02 03") each ended by CR LF
// but the last, and the end.
inline QByteArray textoBloco(const QByteArray& chave, const QList<QByteArray>& linhas,
                             FimBloco fim = FimBloco::AposUltimaCelula) {
    QByteArray t = chave + "\r\n" + linhas.join("\r\n");
    switch (fim) {
    case FimBloco::AposUltimaCelula:
        t += " ##";
        break;
    case FimBloco::LinhaPropria:
        t += "\r\n##";
        break;
    case FimBloco::Nenhum:
        t += "\r\n";
        break;
    }
    return t;
}

// A row of `quant` cells, the positions 01, 02, ... going round 01..ciclo.
inline QByteArray linhaDePosicoes(int quant, int ciclo = 8) {
    QByteArray l;
    for (int i = 0; i < quant; ++i) {
        if (i) l += ' ';
        l += QByteArray::number(1 + i % ciclo).rightJustified(2, '0');
    }
    return l;
}

// A program as the main window's load leaves it, with its folder in a
// temporary directory, and the flow's hand-over to the dialog.
struct BancadaSuper : ProgramaTeste {
    QTemporaryDir pasta;

    explicit BancadaSuper(const QString& jogo = QStringLiteral("Mega-Sena")) : ProgramaTeste(jogo) {
        d.pasta.define(pasta.path());
    }

    QString caminho(const QString& nome) const { return QDir(pasta.path()).filePath(nome); }

    // Writes the text complemented, as the tables are stored.
    void gravaTabela(const QString& nome, const QByteArray& texto) const {
        QFile f(caminho(nome));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(complementa(texto));
    }

    // What the flow does before it shows the dialog: the bank cleared, the
    // marked and fixed numbers loaded, the counts and the log line.
    void preparaFluxo(int garantia) {
        auto& e = p.e;
        LimpaBancoApostas(p);
        CarregaNumeros(p);
        CarregaVetDezEsc(p);
        e.DezAposta = Int16::de(int64_t(garantia));
        e.QuantEscolhidos = Int16::de(valorNumerico(p.tela.TxtEscolhidos.Text));
        e.Historico += Agora + QStringLiteral(": Combinação reduzida\r\n");
    }

    // The dialog run as it comes to the front, after the flow's hand-over.
    void executa(int garantia, int acertar, int dezFinal, SuperReducao** dialogo = nullptr) {
        preparaFluxo(garantia);
        p.e.DezFinal = Int16::de(int64_t(dezFinal));
        p.e.QuantAcertar = Int16::de(int64_t(acertar));
        SuperReducao dlg(p);
        Ligacao vigiaFecho(dlg.aoFechar, [this] { ++fechamentos; });
        dlg.aoContar = [this](const QString& t) { contagens << t; };
        if (dialogo) *dialogo = &dlg;
        dlg.ativa();
        if (dialogo) *dialogo = nullptr;
        posSuper = dlg.PosSuper.valor();
        quantSuper = dlg.QuantSuper.valor();
        lblMensagem = dlg.LblMensagem;
        lblCont = dlg.LblCont;
    }

    // The critical boxes shown.
    QStringList caixasCriticas() const {
        QStringList r;
        for (const CaixaVista& v : d.caixa.vistas())
            if (v.tipo == CaixaVista::Tipo::Critico) r << v.texto;
        return r;
    }

    int fechamentos = 0;
    QStringList contagens;
    int32_t posSuper = 0;
    int16_t quantSuper = 0;
    QString lblMensagem, lblCont;
};

inline const QString SemSuperReducoes =
    QStringLiteral("Não há super-reduções para os parâmetros informados!");

} // namespace sorvelo::teste
