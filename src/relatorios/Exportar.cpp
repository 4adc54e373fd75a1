#include "relatorios/Exportar.h"

#include "relatorios/RelBanco.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include <algorithm>

namespace sorvelo {

namespace {

constexpr qsizetype TamanhoBloco = 1 << 20;

// Bytes gathered in a block and handed to the device when it is full.
class Saida {
public:
    explicit Saida(QIODevice& d) : d_(d) { b_.reserve(TamanhoBloco + 4096); }
    void poe(char c) { b_.append(c); }
    void poe(const char* s, qsizetype n) { b_.append(s, n); }
    void poe(const QByteArray& s) { b_.append(s); }
    void numero2(int n) {
        b_.append(char('0' + n / 10));
        b_.append(char('0' + n % 10));
    }
    // n in decimal, padded with zeros to `digitos`.
    void numero(int64_t n, int digitos) {
        char s[24];
        int k = 0;
        do {
            s[k++] = char('0' + n % 10);
            n /= 10;
        } while (n > 0);
        while (k < digitos)
            s[k++] = '0';
        while (k > 0)
            b_.append(s[--k]);
    }
    bool fimDeLinha() {
        b_.append("\r\n", 2);
        return b_.size() < TamanhoBloco || esvazia();
    }
    bool esvazia() {
        const bool ok = b_.isEmpty() || d_.write(b_) == b_.size();
        b_.clear();
        return ok;
    }

private:
    QIODevice& d_;
    QByteArray b_;
};

// A cell that is no number, as a CSV field: quoted when it needs it.
QByteArray campoCsv(const QString& texto) {
    QByteArray s = texto.toUtf8();
    if (!s.contains(';') && !s.contains('"') && !s.contains('\r') && !s.contains('\n')) return s;
    s.replace("\"", "\"\"");
    return '"' + s + '"';
}

// The cells of a bet: those before its "#" (all the stored ones when the
// row has none).
int quantCelulas(const MatrizTexto& m, int64_t linha, const uint8_t*& c) {
    int quant = 0;
    c = m.celulas(linha, quant);
    if (quant > 0 && c[quant - 1] == MatrizTexto::Fim) --quant;
    return quant;
}

QString motivoGravacao(QFileDevice::FileError erro) {
    switch (erro) {
    case QFileDevice::PermissionsError:
        return QStringLiteral("sem permissão de escrita");
    case QFileDevice::OpenError:
        return QStringLiteral("a pasta não existe ou não aceita arquivos novos");
    case QFileDevice::ResourceError:
    case QFileDevice::WriteError:
        return QStringLiteral("erro de gravação (disco cheio?)");
    default:
        return QStringLiteral("erro de gravação");
    }
}

QString falhaGravacao(const QString& caminho, QFileDevice::FileError erro) {
    return QStringLiteral("Não foi possível gravar o arquivo \"%1\": %2. Nenhum arquivo foi alterado.")
        .arg(QFileInfo(caminho).fileName(), motivoGravacao(erro));
}

QString exportaPdf(Nucleo& p, const QString& caminho) {
    const QFileInfo destino(caminho);
    QTemporaryFile temporario(
        destino.dir().filePath(QStringLiteral(".%1.XXXXXX.pdf").arg(destino.fileName())));
    if (!temporario.open()) return falhaGravacao(caminho, temporario.error());
    temporario.close();
    Impressora& impressora = *p.s.impressora;
    try {
        impressora.defineArquivo(temporario.fileName());
        impressora.defineFonte(QStringLiteral("Arial"),
                               p.e.NomeLoteria == QStringLiteral("LOTOMANIA") ? 8 : 10);
        impressora.imprime(textoRelatorio(p, p.agoraTexto()));
        impressora.fim();
    } catch (const FalhaExecucao&) {
        return QStringLiteral("Não foi possível gerar o PDF de \"%1\". Nenhum arquivo foi alterado.")
            .arg(destino.fileName());
    }
    QFile pdf(temporario.fileName());
    QSaveFile saida(caminho);
    if (!pdf.open(QIODevice::ReadOnly)) return falhaGravacao(caminho, pdf.error());
    if (!saida.open(QIODevice::WriteOnly)) return falhaGravacao(caminho, saida.error());
    QByteArray bloco(TamanhoBloco, Qt::Uninitialized);
    for (;;) {
        const qint64 n = pdf.read(bloco.data(), TamanhoBloco);
        if (n < 0) return falhaGravacao(caminho, pdf.error());
        if (n == 0) break;
        if (saida.write(bloco.constData(), n) != n) return falhaGravacao(caminho, saida.error());
    }
    if (!saida.commit()) return falhaGravacao(caminho, saida.error());
    return QString();
}

} // namespace

QString tituloExportar() {
    return QStringLiteral("Exportar banco de apostas");
}

QString filtroExportar() {
    return QStringLiteral("Planilha CSV (*.csv)|*.csv|Texto (*.txt)|*.txt|PDF (*.pdf)|*.pdf");
}

FormatoExportacao formatoExportacao(const QString& caminho) {
    const QString extensao = QFileInfo(caminho).suffix().toLower();
    if (extensao == QStringLiteral("txt")) return FormatoExportacao::Texto;
    if (extensao == QStringLiteral("pdf")) return FormatoExportacao::Pdf;
    return FormatoExportacao::Csv;
}

bool escreveCsv(const Nucleo& p, QIODevice& saida) {
    const MatrizTexto& m = p.e.VetBan;
    const int64_t quant = p.e.QuantBan.valor();
    int colunas = 0;
    for (int64_t i = 0; i < quant; ++i) {
        const uint8_t* c = nullptr;
        colunas = std::max(colunas, quantCelulas(m, i, c));
    }
    Saida s(saida);
    s.poe("\xEF\xBB\xBF"
          "Aposta",
          9);
    for (int j = 1; j <= colunas; ++j) {
        s.poe(";D", 2);
        s.numero(j, 1);
    }
    if (!s.fimDeLinha()) return false;
    for (int64_t i = 0; i < quant; ++i) {
        const uint8_t* c = nullptr;
        const int n = quantCelulas(m, i, c);
        s.numero(i + 1, 1);
        for (int j = 0; j < n; ++j) {
            s.poe(';');
            if (c[j] >= MatrizTexto::PrimeiroNumero && c[j] != MatrizTexto::Outro)
                s.numero2(c[j] - MatrizTexto::PrimeiroNumero);
            else if (c[j] == MatrizTexto::Outro)
                s.poe(campoCsv(m.valor(j, i)));
        }
        if (!s.fimDeLinha()) return false;
    }
    return s.esvazia();
}

bool escreveTexto(const Nucleo& p, QIODevice& saida) {
    const MatrizTexto& m = p.e.VetBan;
    const int64_t quant = p.e.QuantBan.valor();
    Saida s(saida);
    for (int64_t i = 0; i < quant; ++i) {
        const uint8_t* c = nullptr;
        const int n = quantCelulas(m, i, c);
        s.numero(i + 1, 5);
        s.poe(")  ", 3);
        for (int j = 0; j < n; ++j) {
            s.poe(' ');
            if (c[j] >= MatrizTexto::PrimeiroNumero && c[j] != MatrizTexto::Outro)
                s.numero2(c[j] - MatrizTexto::PrimeiroNumero);
            else if (c[j] == MatrizTexto::Outro)
                s.poe(m.valor(j, i).toUtf8());
        }
        if (!s.fimDeLinha()) return false;
    }
    return s.esvazia();
}

QByteArray textoCsv(const Nucleo& p) {
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    escreveCsv(p, b);
    return b.data();
}

QByteArray textoPlano(const Nucleo& p) {
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    escreveTexto(p, b);
    return b.data();
}

QString ExportaBanco(Nucleo& p, const QString& caminho, FormatoExportacao formato) {
    if (formato == FormatoExportacao::Pdf) return exportaPdf(p, caminho);
    QSaveFile arquivo(caminho);
    if (!arquivo.open(QIODevice::WriteOnly)) return falhaGravacao(caminho, arquivo.error());
    const bool escrito =
        formato == FormatoExportacao::Csv ? escreveCsv(p, arquivo) : escreveTexto(p, arquivo);
    if (!escrito) {
        const QFileDevice::FileError erro = arquivo.error();
        arquivo.cancelWriting();
        return falhaGravacao(caminho, erro);
    }
    if (!arquivo.commit()) return falhaGravacao(caminho, arquivo.error());
    return QString();
}

void ExportarBanco(Nucleo& p) {
    CaixaMensagem& caixa = *p.s.caixa;
    if (p.e.QuantBan <= 0) {
        caixa.informacao(QStringLiteral("O banco de apostas está vazio: não há apostas para exportar."));
        return;
    }
    const QString caminho = p.s.dialogo->salvar(tituloExportar(), filtroExportar());
    if (caminho.isEmpty()) return;
    if (QFileInfo::exists(caminho) &&
        caixa.pergunta(QStringLiteral("Este nome de arquivo já existe! Deseja sobrescrever?"), Botoes::SimNao,
                       Resposta::Nao) != Resposta::Sim)
        return;
    const QString falha = ExportaBanco(p, caminho, formatoExportacao(caminho));
    if (!falha.isEmpty()) {
        caixa.aviso(falha);
        return;
    }
    const int64_t quant = p.e.QuantBan.valor();
    caixa.informacao(QStringLiteral("%1 %2 exportada%3 para \"%4\".")
                         .arg(quant)
                         .arg(quant == 1 ? QStringLiteral("aposta") : QStringLiteral("apostas"))
                         .arg(quant == 1 ? QString() : QStringLiteral("s"))
                         .arg(QFileInfo(caminho).fileName()));
}

} // namespace sorvelo
