#include "relatorios/RelBanco.h"

#include "core/BancoApostas.h"

#include <algorithm>

namespace sorvelo {

int colunasRel(const QString& NomeLoteria) {
    if (NomeLoteria == QStringLiteral("MEGA-SENA")) return 4;
    if (NomeLoteria == QStringLiteral("DUPLA SENA")) return 4;
    if (NomeLoteria == QStringLiteral("QUINA")) return 5;
    if (NomeLoteria == QStringLiteral("LOTOMANIA")) return 1;
    if (NomeLoteria == QStringLiteral("LOTOFÁCIL")) return 2;
    return 0;
}

Int16 RetQuantDez(const Nucleo& p) {
    Int16 n = 0;
    for (int j = 0; j <= 99; ++j) {
        if (p.e.VetBan.valor(j, 0) == u'#') break;
        ++n;
    }
    return n;
}

void acrescentaAposta(QString& s, const Nucleo& p, int64_t Linha) {
    const MatrizTexto& VetBan = p.e.VetBan;
    int quant = 0;
    const uint8_t* c = VetBan.celulas(Linha, quant);
    if (quant == 0 || c[quant - 1] != MatrizTexto::Fim) {
        // No "#" among the stored cells: the slow reading meets the bound.
        s += RetAposta(p, Int32::de(Linha));
        return;
    }
    for (int j = 0; j + 1 < quant; ++j) {
        const uint8_t codigo = c[j];
        if (codigo >= MatrizTexto::PrimeiroNumero && codigo != MatrizTexto::Outro) {
            const int n = codigo - MatrizTexto::PrimeiroNumero;
            s += QChar(u'0' + n / 10);
            s += QChar(u'0' + n % 10);
        } else if (codigo == MatrizTexto::Outro) {
            s += VetBan.valor(j, Linha);
        }
        s += u' ';
    }
}

namespace {

// One row of the listing: every column's number and bet, then three blanks.
void escreveLinhaRel(QString& s, const QString* numeros, const int64_t* linhas, int colunas, int usadas,
                     const Nucleo& p) {
    for (int c = 0; c < colunas; ++c) {
        if (c < usadas) {
            s += numeros[c];
            acrescentaAposta(s, p, linhas[c]);
        }
        s += QStringLiteral("   ");
    }
    s += QStringLiteral("\r\n");
}

} // namespace

QString textoRelatorio(const Nucleo& p, const QString& agora) {
    const Estado& e = p.e;
    const int64_t quant = e.QuantBan.valor();
    const int colunas = colunasRel(e.NomeLoteria);
    const int digitos = quant >= 100000 ? 7 : 5;
    QString s = QStringLiteral("Listagem de apostas - ") + e.NomeLoteria + QStringLiteral("\r\nData: ") +
                agora + QStringLiteral("\r\nNome do arquivo: ") + e.ArquivoBanco + QStringLiteral("\r\n\r\n");
    s += QStringLiteral("Dezenas escolhidas: ") + e.DezEscolhidas + QStringLiteral("\r\n") + e.Historico +
         QStringLiteral("\r\n");
    if (colunas <= 0 && quant > 11) foraDoIntervalo(); // the row in hand holds 11 bets
    // Room for the bets at the size of the first one.
    int celulas = 7;
    if (quant > 0) e.VetBan.celulas(0, celulas);
    s.reserve(s.size() + quant * (digitos + 3 + 3 * std::max(celulas, 1) + 3) +
              quant / std::max(colunas, 1) * 2 + 64 + e.TextoEstatistica.size());
    QString numeros[11];
    int64_t linhas[11] = {};
    int usadas = 0;
    for (int64_t i = 0; i < quant; ++i) {
        numeros[usadas] = formata(i + 1, digitos) + QStringLiteral(")  ");
        linhas[usadas] = i;
        ++usadas;
        if (usadas == colunas) {
            escreveLinhaRel(s, numeros, linhas, colunas, usadas, p);
            usadas = 0;
        }
    }
    escreveLinhaRel(s, numeros, linhas, colunas, usadas, p);
    s += QStringLiteral("\r\n\r\n");
    s += e.TextoEstatistica + QStringLiteral("\r\n\r\n");
    return s;
}

void RelBanco::Carrega(const QStringList& fontesTela, int larguraTela, int alturaTela) {
    for (qsizetype i = 0; i < fontesTela.size() - 1; ++i)
        tela.CmbFonte.itens << fontesTela[i];
    for (int i = 6; i <= 24; ++i)
        tela.CmbTamanho.itens << QString::number(i);
    tela.Left = 0;
    tela.Top = 0;
    tela.Width = larguraTela;
    tela.Height = alturaTela - 400;
    tela.RTFRelWidth = tela.Width - 400;
    tela.RTFRelHeight = tela.Height - 1100;
    tela.RightMargin = 200000;
    if (p_.e.NomeLoteria == QStringLiteral("LOTOMANIA")) {
        tela.FonteTamanho = 8;
        tela.CmbTamanho.Text = QStringLiteral("8");
    }
}

void RelBanco::Ativa() {
    if (!Preenchido && p_.e.QuantBan > 0) {
        tela.RTFRel.defineVisivel(false);
        MontaRelatorio();
        tela.RTFRel.defineVisivel(true);
    }
    Preenchido = true;
}

void RelBanco::MontaRelatorio() {
    QuantDezRel = RetQuantDez(p_);
    ColunasRel = int16_t(colunasRel(p_.e.NomeLoteria));
    tela.RTFRel.defineTexto(textoRelatorio(p_, p_.agoraTexto()));
}

void RelBanco::CmbFonteClick() {
    tela.SelStart = 0;
    tela.SelLength = tela.RTFRel.comprimento();
    tela.FonteNome = tela.CmbFonte.Text;
    tela.SelLength = 0;
    tela.SelStart = 0;
}

void RelBanco::CmbTamanhoClick() {
    tela.SelStart = 0;
    tela.SelLength = tela.RTFRel.comprimento();
    tela.FonteTamanho = valorNumerico(tela.CmbTamanho.Text);
    tela.SelLength = 0;
    tela.SelStart = 0;
}

void RelBanco::BtnImprimir() {
    Impressora& impressora = *p_.s.impressora;
    impressora.imprime(QString());
    impressora.defineFonte(tela.CmbFonte.Text, valorNumerico(tela.CmbTamanho.Text));
    impressora.imprime(tela.RTFRel.texto());
    impressora.fim();
}

} // namespace sorvelo
