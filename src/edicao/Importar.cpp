#include "edicao/Importar.h"

#include "core/BancoApostas.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace sorvelo {

namespace {

// A count in the Brazilian manner: "1.234.567".
QString milhares(int64_t n) {
    QString s = QString::number(n);
    for (qsizetype i = s.size() - 3; i > 0 && s[i - 1].isDigit(); i -= 3)
        s.insert(i, u'.');
    return s;
}

QString nomeDe(const QString& caminho) {
    return QFileInfo(caminho).fileName();
}

constexpr qint64 TamanhoPedaco = 1 << 20;
constexpr int64_t ApostasPorCedencia = 1 << 16;

} // namespace

QString tituloImportar() {
    return QStringLiteral("Importar apostas");
}

QString filtroImportar() {
    return QStringLiteral("Apostas em texto ou planilha (*.txt;*.csv)|*.txt;*.csv|Todos os arquivos (*.*)|*");
}

QString EscolheArquivoImportar(Nucleo& p) {
    return p.s.dialogo->abrir(tituloImportar(), filtroImportar());
}

void MenuImportar(Nucleo& p, ModuloImportar& m) {
    m.caminho = EscolheArquivoImportar(p);
    if (m.caminho.isEmpty()) return;
    p.dialogos.mostraImportar();
}

QString LeArquivoApostas(const QString& caminho, LeitorApostas& leitor, Cedencia* cedencia,
                         const std::function<void(int)>& progresso, const std::function<bool()>& cancelado) {
    const QFileInfo info(caminho);
    const QString nome = nomeDe(caminho);
    if (!info.exists()) return QStringLiteral("O arquivo \"%1\" não existe mais.").arg(nome);
    if (!info.isFile()) return QStringLiteral("\"%1\" não é um arquivo que se possa ler.").arg(nome);
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::ReadOnly)) {
        if (arquivo.error() == QFileDevice::PermissionsError)
            return QStringLiteral("Não foi possível abrir o arquivo \"%1\": sem permissão de leitura.")
                .arg(nome);
        return QStringLiteral("Não foi possível abrir o arquivo \"%1\".").arg(nome);
    }
    const qint64 tamanho = std::max<qint64>(arquivo.size(), 1);
    QByteArray pedaco(TamanhoPedaco, Qt::Uninitialized);
    qint64 lidos = 0;
    for (;;) {
        const qint64 n = arquivo.read(pedaco.data(), TamanhoPedaco);
        if (n < 0) return QStringLiteral("Erro ao ler o arquivo \"%1\".").arg(nome);
        if (n == 0) break;
        leitor.le(pedaco.constData(), size_t(n));
        if (leitor.parou()) break;
        lidos += n;
        if (progresso) progresso(int(std::min<qint64>(100, lidos * 100 / tamanho)));
        if (cedencia) cedencia->cede();
        if (cancelado && cancelado()) return QString();
    }
    leitor.termina();
    if (progresso) progresso(100);
    return QString();
}

QString RelatorioImportacao(const LeitorApostas& leitor) {
    QString s;
    if (leitor.limiteAtingido())
        s += QStringLiteral("A leitura parou na linha %1: uma importação traz no máximo %2 apostas e %3 "
                            "números.\r\n")
                 .arg(milhares(leitor.linhasLidas()), milhares(leitor.limiteApostas()),
                      milhares(leitor.limiteNumeros()));
    s += QStringLiteral("Apostas válidas: %1\r\n").arg(milhares(leitor.quantApostas()));
    s += QStringLiteral("Linhas recusadas: %1\r\n").arg(milhares(leitor.quantRecusadas()));
    if (leitor.recusas().empty()) return s;
    s += QStringLiteral("\r\n");
    for (const Recusa& r : leitor.recusas())
        s += QStringLiteral("Linha %1: %2\r\n").arg(milhares(r.linha), r.motivo);
    const int64_t resto = leitor.quantRecusadas() - int64_t(leitor.recusas().size());
    if (resto == 1) s += QStringLiteral("... e mais 1 linha recusada.\r\n");
    if (resto > 1) s += QStringLiteral("... e mais %1 linhas recusadas.\r\n").arg(milhares(resto));
    return s;
}

void AcrescentaImportadas(Nucleo& p, const LeitorApostas& leitor, const QString& nomeArquivo,
                          const std::function<void(int)>& progresso) {
    Estado& e = p.e;
    const int64_t quant = leitor.quantApostas();
    e.Historico +=
        p.agoraTexto() + QStringLiteral(": Importação de %1 apostas de %2\r\n").arg(quant).arg(nomeArquivo);
    if (quant == 0) return;
    if (int64_t(e.QuantBan.valor()) + quant > INT32_MAX) estouro();
    try {
        e.VetBan.reserva(int64_t(e.QuantBan.valor()) + quant + 2, size_t(quant) * 8);
    } catch (const FalhaExecucao&) {
    }
    DocumentoRico& banco = p.tela.TxtBanco;
    banco.defineVisivel(false);
    uint8_t codigos[LeitorApostas::MaxNumeros + 1];
    QString texto;
    texto.reserve(3 * (LeitorApostas::MaxNumeros + 1));
    for (int64_t i = 0; i < quant; ++i) {
        int n = 0;
        const uint8_t* numeros = leitor.aposta(i, n);
        texto.clear();
        for (int j = 0; j < n; ++j) {
            codigos[j] = MatrizTexto::codigoNumero(numeros[j]);
            texto += QChar(u'0' + numeros[j] / 10);
            texto += QChar(u'0' + numeros[j] % 10);
            texto += u' ';
        }
        codigos[n] = MatrizTexto::Fim;
        e.VetBan.redimensionaPreservando((e.QuantBan + 1).valor());
        e.VetBan.defineCelulas(e.QuantBan.valor(), codigos, n + 1);
        InsereLinhaAposta(banco, (e.QuantBan + 1).valor(), texto, e.FimLinha);
        e.QuantBan += 1;
        if (progresso && (i + 1) % ApostasPorCedencia == 0) {
            progresso(int((i + 1) * 100 / quant));
            if (p.s.cedencia) p.s.cedencia->cede();
        }
    }
    banco.defineVisivel(true);
    e.BancoAlterado = true;
    if (progresso) progresso(100);
}

Importar::Importar(Nucleo& p, QString caminho)
    : LogicaDialogo(p, Cancelar::SoFecha), caminho_(std::move(caminho)) {
    leitor_ = std::make_unique<LeitorApostas>(p.e.NumIni.valor(), p.e.NumFim.valor());
    LblArquivo = QStringLiteral("Arquivo: ") + nomeDe(caminho_);
    LblResumo = QStringLiteral("Lendo o arquivo...");
}

void Importar::progresso(int v) {
    PrgLeitura = v;
    if (aoMudar) aoMudar();
}

void Importar::Le() {
    if (!aberto()) return;
    lendo_ = true;
    const QString falha = LeArquivoApostas(
        caminho_, *leitor_, p_.s.cedencia, [this](int v) { progresso(v); }, [this] { return cancelado_; });
    lendo_ = false;
    if (!aberto()) return;
    const QString mensagem = falha.isEmpty() ? leitor_->erro() : falha;
    if (!mensagem.isEmpty()) {
        p_.s.caixa->aviso(mensagem + QStringLiteral("\r\nNenhuma aposta foi importada."));
        fecha();
        return;
    }
    TxtRelatorio = RelatorioImportacao(*leitor_);
    const int64_t validas = leitor_->quantApostas();
    if (validas == 0)
        LblResumo = QStringLiteral("Nenhuma aposta válida foi encontrada no arquivo.");
    else if (validas == 1)
        LblResumo = QStringLiteral("Deseja acrescentar a aposta válida ao banco de apostas?");
    else
        LblResumo = QStringLiteral("Deseja acrescentar as %1 apostas válidas ao banco de apostas?")
                        .arg(milhares(validas));
    BtnImportarEnabled = validas > 0;
    if (aoMudar) aoMudar();
}

void Importar::BtnImportar() {
    if (!aberto() || lendo_ || !BtnImportarEnabled) return;
    BtnImportarEnabled = false;
    LblResumo = QStringLiteral("Acrescentando as apostas ao banco...");
    progresso(0);
    inserindo_ = true;
    AcrescentaImportadas(p_, *leitor_, nomeDe(caminho_), [this](int v) { progresso(v); });
    inserindo_ = false;
    fecha();
}

void Importar::BtnCancelar() {
    // Once the bets go into the bank, they all go.
    if (inserindo_) return;
    if (lendo_) cancelado_ = true;
    fecha();
}

} // namespace sorvelo
