#include "core/BancoApostas.h"

#include "core/ArquivoApostas.h"

namespace sorvelo {

void InsereLinhaBanco(Nucleo& p, const QString& Texto, bool Negrito) {
    p.tela.TxtBanco.acrescenta(Texto, CorLog, Negrito);
}

void InsereLinhaAposta(DocumentoRico& doc, int64_t n, const QString& Aposta, const QString& FimLinha) {
    // A bet of two-digit numbers, each with its blank, goes in as its
    // numbers; the document writes the line when it is read.
    const qsizetype t = Aposta.size();
    uint8_t numeros[255];
    bool deNumeros = t % 3 == 0 && t / 3 <= 255;
    for (qsizetype i = 0; deNumeros && i < t; i += 3) {
        const char16_t a = Aposta[i].unicode(), b = Aposta[i + 1].unicode();
        deNumeros = a >= u'0' && a <= u'9' && b >= u'0' && b <= u'9' && Aposta[i + 2] == u' ';
        if (deNumeros) numeros[i / 3] = uint8_t((a - u'0') * 10 + (b - u'0'));
    }
    if (deNumeros) {
        InsereLinhaAposta(doc, n, numeros, int(t / 3), FimLinha);
        return;
    }
    QString linha;
    linha.reserve(10 + Aposta.size() + FimLinha.size());
    linha += formata(n, 5);
    linha += QLatin1String(")   ");
    linha += Aposta;
    linha += FimLinha;
    const QStringView v(linha);
    doc.acrescenta(v.left(6), CorNumeroLinha, false);
    doc.acrescenta(v.mid(6), CorAposta, false);
}

void InsereLinhaAposta(DocumentoRico& doc, int64_t n, const uint8_t* numeros, int quant,
                       const QString& FimLinha) {
    doc.acrescentaLinhaAposta(n, numeros, quant, FimLinha, {CorNumeroLinha, false}, {CorAposta, false});
}

void InsereApostaBanco(Nucleo& p, const QString& Aposta, int64_t n) {
    InsereLinhaAposta(p.tela.TxtBanco, n, Aposta, p.e.FimLinha);
}

void InsereApostaMarcada(Nucleo& p) {
    auto& e = p.e;
    e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
    QString aposta;
    Int16 c = 0;
    for (int i = 0; i <= 99; ++i) {
        const Celula& cel = p.tela.Num(i);
        if (cel.BackColor == e.CorFixo || cel.BackColor == e.CorMarcado) {
            e.VetBan.define(c.valor(), e.QuantBan.valor(), cel.Text);
            aposta += cel.Text + u' ';
            ++c;
        }
    }
    e.VetBan.define(c.valor(), e.QuantBan.valor(), QStringLiteral("#"));
    InsereApostaBanco(p, aposta, (e.QuantBan + 1).valor());
    e.QuantBan += 1;
}

QString RetAposta(const Nucleo& p, Int32 Linha) {
    QString s;
    for (Int16 c = 0;; ++c) {
        const QString v = p.e.VetBan.valor(c.valor(), Linha.valor());
        if (v == u'#') break;
        s += v + u' ';
    }
    return s;
}

bool LimpaBancoApostas(Nucleo& p) {
    auto& e = p.e;
    auto& t = p.tela;
    if (e.BancoAlterado && !t.TxtBanco.vazio()) {
        switch (p.s.caixa->pergunta(QStringLiteral("Deseja salvar as apostas atuais?"),
                                    Botoes::SimNaoCancelar, Resposta::Sim)) {
        case Resposta::Sim:
            SalvarArquivo(p);
            break;
        case Resposta::Cancelar:
            return false;
        default:
            break;
        }
    }
    t.TxtBanco.defineTexto(QString());
    e.VetBan.redimensiona(81, 1);
    e.QuantBan = 0;
    t.TxtQuantApostas.Text.clear();
    t.TxtValorApostas.Text.clear();
    e.TextoEstatistica.clear();
    e.ArquivoBanco.clear();
    e.DezEscolhidas.clear();
    e.Historico = p.agoraTexto() + QStringLiteral(": Limpou banco de apostas\r\n");
    return true;
}

void BtnLimparBanco(Nucleo& p) {
    if (p.tela.TxtBanco.vazio()) return;
    if (p.s.caixa->pergunta(QStringLiteral("Tem certeza que deseja limpar o banco de apostas?"),
                            Botoes::SimNao, Resposta::Nao) == Resposta::Sim)
        LimpaBancoApostas(p);
}

QString CabecalhoLote(const Nucleo& p) {
    return QStringLiteral("Dezenas escolhidas: ") + p.e.DezEscolhidas + QStringLiteral("\r\n") +
           p.e.Historico + QStringLiteral("\r\n");
}

} // namespace sorvelo
