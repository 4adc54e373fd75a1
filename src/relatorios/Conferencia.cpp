#include "relatorios/Conferencia.h"

#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "relatorios/Pontuacao.h"
#include "relatorios/PontuacaoRapida.h"

namespace sorvelo {

void EscreveRTF(DocumentoRico& RTFConf, const QString& S, bool Bold) {
    RTFConf.acrescenta(S, CorLog, Bold);
}

void InsereRTF(const Nucleo& p, DocumentoRico& RTFConf, Int32 X, Int16 Pontos) {
    QString linha = formata(int64_t(X.valor()) + 1, 5);
    linha += QStringLiteral(")   ");
    linha += RetApostaVetBan(p, X);
    linha += QStringLiteral("  ");
    linha += QString::number(Pontos.valor());
    linha += Pontos > 1 ? QStringLiteral(" pontos") : QStringLiteral(" ponto");
    linha += p.e.FimLinha;
    RTFConf.acrescenta(linha.left(6), CorNumeroLinha, false);
    RTFConf.acrescenta(linha.mid(6), CorAposta, false);
}

QString pontosPadrao(const QString& NomeLoteria) {
    const Jogo* j = jogoPorNome(NomeLoteria);
    return j && j->nomeMaiusculo == NomeLoteria ? j->pontosConferencia : QString();
}

void ConfApostas::Carrega() {
    tela.TxtPontos.Text = pontosPadrao(p_.e.NomeLoteria);
    if (p_.e.NomeLoteria == QStringLiteral("DUPLA SENA"))
        p_.s.caixa->informacao(QStringLiteral("Lembrete: não se esqueça de conferir o segundo sorteio!"));
    tela.LblTitulo = QStringLiteral("Conferir banco de apostas - ") + p_.e.NomeLoteria;
}

bool ConfApostas::Ativa() {
    if (p_.e.VetDezenas(0) == u'#') {
        p_.s.caixa->aviso(QStringLiteral("Informe o resultado na seção \"Escolha de números\""));
        fecha();
    }
    return aberto();
}

void ConfApostas::BtnIniciar() {
    const Estado& e = p_.e;
    DocumentoRico& rtf = tela.RTFConf;
    for (int i = 0; i <= 99; ++i)
        VetPontos(i) = 0;
    mensagem(QStringLiteral("Aguarde, conferindo apostas..."));
    p_.s.cedencia->cede();

    rtf.defineVisivel(false);
    rtf.defineTexto(QString());
    rtf.defineTexto(QStringLiteral("Conferência de apostas da ") + e.NomeLoteria + QStringLiteral("\r\n") +
                    QStringLiteral("Banco de apostas: ") + e.ArquivoBanco + QStringLiteral("\r\n\r\n"));
    EscreveRTF(rtf, QStringLiteral("Resultado: ") + e.DezEscolhidas + e.FimLinha + QStringLiteral("\r\n"),
               true);

    // No message is handled from here on: the threshold's text is the same
    // for every bet, and is read when the first bet has been scored.
    PontuadorBanco pontuador(p_, PontuadorBanco::Sorteio::Resultado);
    const int64_t quant = e.QuantBan.valor();
    double limiar = 0;
    for (int64_t i = 0; i < quant; ++i) {
        const Int16 pontos = pontuador.pontos(int32_t(i));
        if (i == 0) limiar = valorNumerico(tela.TxtPontos.Text);
        if (limiar <= double(pontos.valor())) {
            InsereRTF(p_, rtf, int32_t(i), pontos);
            VetPontos(pontos.valor()) += 1;
        }
    }
    EscreveRTF(rtf, e.FimLinha, false);

    for (int p = 0; p <= 99; ++p) {
        if (VetPontos(p) > 0)
            EscreveRTF(rtf,
                       QStringLiteral("Total de cartelas com ") + QString::number(p) +
                           QStringLiteral(" pontos: ") + QString::number(VetPontos(p).valor()) + e.FimLinha,
                       true);
    }
    rtf.defineVisivel(true);
    // Seen with the box: the forms are brought up to date before it.
    LblMensagem = QStringLiteral("Concluído.");
    p_.s.caixa->informacao(QStringLiteral("Conferência concluída!"));
}

void ConfApostas::BtnImprimir() {
    Impressora& impressora = *p_.s.impressora;
    impressora.imprime(QString());
    impressora.imprime(tela.RTFConf.texto());
    impressora.fim();
}

void ConfApostas::Redimensiona(int largura, int altura) {
    tela.FraConfTop = altura - 2200;
    tela.RTFConfWidth = largura - 350;
    tela.RTFConfHeight = altura - 3000;
}

void BtnConferir(Nucleo& p) {
    CarregaNumeros(p);
    CarregaVetDezEsc(p);
    p.dialogos.mostraConfApostas();
}

bool MostraConfApostasAberta(ConfApostas& forma) {
    return forma.Ativa();
}

} // namespace sorvelo
