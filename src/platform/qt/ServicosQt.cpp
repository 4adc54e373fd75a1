#include "platform/qt/ServicosQt.h"

#include "platform/qt/Vista.h"

#include "base/Semantica.h"
#include "platform/Atividade.h"
#include "platform/qt/DialogoArquivoPortugues.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGlyphRun>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRawFont>
#include <QStandardPaths>
#include <QTranslator>
#include <QUrl>

#include <algorithm>
#include <chrono>

namespace sorvelo {

namespace {
const QString Titulo = QStringLiteral("Sorvelo");

QWidget* janelaAtiva() {
    return QApplication::activeWindow();
}

// A carriage return in a message is a line break on the screen.
QString linhas(QString texto) {
    return texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

void caixaSimples(QMessageBox::Icon icone, const QString& texto) {
    atualizaVistas();
    QMessageBox caixa(icone, Titulo, linhas(texto), QMessageBox::Ok, janelaAtiva());
    EmModal modal;
    caixa.exec();
}
} // namespace

void CaixaMensagemQt::informacao(const QString& texto) {
    caixaSimples(QMessageBox::Information, texto);
}
void CaixaMensagemQt::aviso(const QString& texto) {
    caixaSimples(QMessageBox::Warning, texto);
}
void CaixaMensagemQt::critico(const QString& texto) {
    caixaSimples(QMessageBox::Critical, texto);
}

Resposta CaixaMensagemQt::pergunta(const QString& texto, Botoes botoes, Resposta padrao) {
    QMessageBox::StandardButtons b = QMessageBox::Yes | QMessageBox::No;
    if (botoes == Botoes::SimNaoCancelar) b |= QMessageBox::Cancel;
    QMessageBox caixa(QMessageBox::Question, Titulo, linhas(texto), b, janelaAtiva());
    caixa.setDefaultButton(padrao == Resposta::Nao        ? QMessageBox::No
                           : padrao == Resposta::Cancelar ? QMessageBox::Cancel
                                                          : QMessageBox::Yes);
    if (botoes == Botoes::SimNao) caixa.setEscapeButton(QMessageBox::No);
    atualizaVistas();
    EmModal modal;
    switch (caixa.exec()) {
    case QMessageBox::Yes:
        return Resposta::Sim;
    case QMessageBox::Cancel:
        return Resposta::Cancelar;
    default:
        return Resposta::Nao;
    }
}

QString DialogoArquivoQt::filtroQt(const QString& filtro) {
    // "Descrição|*.a;*.b|Outra|*.c" → "Descrição (*.a *.b);;Outra (*.c)"
    const QStringList partes = filtro.split(u'|');
    QStringList saida;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QStringList padroes = partes[i + 1].split(u';', Qt::SkipEmptyParts);
        QString descricao = partes[i];
        if (!descricao.contains(u'(')) descricao += QStringLiteral(" (") + padroes.join(u' ') + u')';
        saida << descricao;
    }
    return saida.join(QStringLiteral(";;"));
}

QString DialogoArquivoQt::mostra(const QString& titulo, const QString& filtro, bool salvar) {
    atualizaVistas();
    if (pasta_.isEmpty()) pasta_ = pastaDeDocumentos();
    QFileDialog dialogo(janelaAtiva(), titulo, pasta_, filtroQt(filtro));
    preparaDialogoArquivo(dialogo);
    if (salvar) {
        dialogo.setAcceptMode(QFileDialog::AcceptSave);
        dialogo.setFileMode(QFileDialog::AnyFile);
        // The overwrite question belongs to the program, not to the dialog.
        dialogo.setOption(QFileDialog::DontConfirmOverwrite);
    } else {
        dialogo.setAcceptMode(QFileDialog::AcceptOpen);
        dialogo.setFileMode(QFileDialog::ExistingFile);
    }
    EmModal modal;
    if (dialogo.exec() != QDialog::Accepted) return {};
    const QStringList escolhidos = dialogo.selectedFiles();
    if (escolhidos.isEmpty()) return {};
    // The next dialog opens in the folder last used.
    pasta_ = QFileInfo(escolhidos.first()).absolutePath();
    return escolhidos.first();
}

QString DialogoArquivoQt::abrir(const QString& titulo, const QString& filtro) {
    return mostra(titulo, filtro, false);
}

QString DialogoArquivoQt::salvar(const QString& titulo, const QString& filtro) {
    return mostra(titulo, filtro, true);
}

struct ImpressoraQt::Trabalho {
    QPrinter impressora;
    QPainter pintor;
    QFont fonte{QStringLiteral("Arial"), 10};
    QString pdf; // the file of a job sent to no printer
    int y = 0;
};

namespace {
// "Listagem do banco de apostas 2026-11-22 14-05-09.pdf", in the folder,
// with " (2)" and up when the name is taken.
QString nomePdf(const QString& pasta, const QString& janela) {
    QString base = janela.isEmpty() ? QStringLiteral("Sorvelo") : janela;
    static const QString proibidos = QStringLiteral("/\\:*?\"<>|");
    for (QChar& c : base)
        if (proibidos.contains(c)) c = u'-';
    base += u' ' + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss"));
    const QDir dir(pasta);
    QString nome = dir.filePath(base + QStringLiteral(".pdf"));
    for (int n = 2; QFileInfo::exists(nome); ++n)
        nome = dir.filePath(base + QStringLiteral(" (%1).pdf").arg(n));
    return nome;
}
} // namespace

namespace {
// One line of plain text at the baseline y. Its characters go straight to
// the font's glyphs, with their advances, when the font has them all (the
// listing of a large bank is hundreds of thousands of lines); otherwise the
// text is laid out in full.
void desenhaLinha(QPainter& pintor, const QRawFont& fonte, QStringView linha, int y) {
    if (linha.isEmpty()) return;
    if (fonte.isValid()) {
        QList<quint32> glifos(linha.size());
        int quant = int(linha.size());
        if (fonte.glyphIndexesForChars(linha.constData(), int(linha.size()), glifos.data(), &quant) &&
            std::find(glifos.begin(), glifos.begin() + quant, 0u) == glifos.begin() + quant) {
            glifos.resize(quant);
            QList<QPointF> avancos(quant);
            fonte.advancesForGlyphIndexes(glifos.constData(), avancos.data(), quant);
            QList<QPointF> posicoes(quant);
            qreal x = 0;
            for (int i = 0; i < quant; ++i) {
                posicoes[i] = QPointF(x, 0);
                x += avancos[i].x();
            }
            QGlyphRun corrida;
            corrida.setRawFont(fonte);
            corrida.setGlyphIndexes(glifos);
            corrida.setPositions(posicoes);
            pintor.drawGlyphRun(QPointF(0, y), corrida);
            return;
        }
    }
    pintor.drawText(0, y, linha.toString());
}
} // namespace

ImpressoraQt::ImpressoraQt()
    : impressoraPadrao([] { return QPrinterInfo::defaultPrinterName(); }),
      pastaDocumentos([] { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }) {}

ImpressoraQt::~ImpressoraQt() {
    delete t_;
}

void ImpressoraQt::comeca() {
    if (!t_) t_ = new Trabalho;
    if (t_->pintor.isActive()) return;
    const QString nome = impressoraPadrao ? impressoraPadrao() : QString();
    if (!arquivo_.isEmpty()) {
        t_->impressora.setOutputFormat(QPrinter::PdfFormat);
        t_->impressora.setOutputFileName(arquivo_);
        t_->impressora.setDocName(QFileInfo(arquivo_).completeBaseName());
    } else if (nome.isEmpty()) {
        const QString pasta = pastaDocumentos ? pastaDocumentos() : QString();
        QDir().mkpath(pasta);
        QWidget* janela = janelaAtiva();
        t_->pdf = nomePdf(pasta, janela ? janela->windowTitle() : QString());
        t_->impressora.setOutputFormat(QPrinter::PdfFormat);
        t_->impressora.setOutputFileName(t_->pdf);
        t_->impressora.setDocName(QFileInfo(t_->pdf).completeBaseName());
    } else {
        t_->impressora.setPrinterName(nome);
    }
    if (!t_->impressora.isValid() || !t_->pintor.begin(&t_->impressora)) {
        delete t_;
        t_ = nullptr;
        arquivo_.clear();
        throw FalhaExecucao(erro::Impressora);
    }
    t_->y = 0;
    paginas_ = 1;
}

void ImpressoraQt::defineFonte(const QString& nome, double tamanho) {
    if (!t_) t_ = new Trabalho;
    t_->fonte.setFamily(nome);
    if (tamanho > 0) t_->fonte.setPointSizeF(tamanho);
}

void ImpressoraQt::imprime(const QString& texto) {
    comeca();
    t_->pintor.setFont(t_->fonte);
    const QFontMetrics m(t_->fonte, &t_->impressora);
    const QRawFont fonteCrua = QRawFont::fromFont(QFont(t_->fonte, &t_->impressora));
    const QRect pagina = t_->impressora.pageLayout().paintRectPixels(t_->impressora.resolution());
    qsizetype inicio = 0;
    for (;;) {
        qsizetype fimLinha = inicio;
        while (fimLinha < texto.size() && texto[fimLinha] != u'\r' && texto[fimLinha] != u'\n')
            ++fimLinha;
        if (t_->y + m.height() > pagina.height()) {
            if (!t_->impressora.newPage()) throw FalhaExecucao(erro::Impressora);
            ++paginas_;
            t_->y = 0;
        }
        desenhaLinha(t_->pintor, fonteCrua, QStringView(texto).mid(inicio, fimLinha - inicio),
                     t_->y + m.ascent());
        t_->y += m.height();
        if (fimLinha >= texto.size()) break;
        inicio =
            fimLinha +
            (texto[fimLinha] == u'\r' && fimLinha + 1 < texto.size() && texto[fimLinha + 1] == u'\n' ? 2 : 1);
    }
}

void ImpressoraQt::defineArquivo(const QString& caminho) {
    arquivo_ = caminho;
}

void ImpressoraQt::fim() {
    arquivo_.clear();
    if (!t_ || !t_->pintor.isActive()) {
        delete t_;
        t_ = nullptr;
        return;
    }
    const bool aceito = t_->pintor.end() && t_->impressora.printerState() != QPrinter::Error;
    const QString pdf = t_->pdf;
    delete t_;
    t_ = nullptr;
    if (!aceito) throw FalhaExecucao(erro::Impressora);
    if (!pdf.isEmpty()) {
        ultimoPdf_ = pdf;
        if (abridor) abridor->abre(pdf);
    }
}

RelogioMs relogioMonotonico() {
    return [] {
        static const auto inicio = std::chrono::steady_clock::now();
        return int64_t(
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - inicio)
                .count());
    };
}

bool RitmoCedencia::devida() {
    if (ultima_ < 0) return true;
    if (++chamadas_ < passo_) return false;
    chamadas_ = 0;
    const int64_t agora = agoraMs_();
    const int64_t desde = agora - leitura_;
    leitura_ = agora;
    if (desde * 4 < intervaloMs_)
        passo_ = std::min(passo_ * 2, passoMaximo_);
    else if (desde > intervaloMs_)
        // As many calls as took one interval at the pace just seen.
        passo_ = int(std::max<int64_t>(1, std::min<int64_t>(passo_ / 2, passo_ * intervaloMs_ / desde)));
    return agora - ultima_ >= intervaloMs_;
}

void RitmoCedencia::rodou() {
    ultima_ = leitura_ = agoraMs_();
    chamadas_ = 0;
}

void CedenciaQt::cede() {
    if (!ritmo_.devida()) return;
    atualizaVistas();
    QCoreApplication::processEvents();
    ritmo_.rodou();
}

void AbridorQt::abre(const QString& endereco) {
    const QUrl url = endereco.contains(u':') && !endereco.startsWith(u'/') ? QUrl(endereco)
                                                                           : QUrl::fromLocalFile(endereco);
    QDesktopServices::openUrl(url);
}

QString PastaProgramaQt::caminho() {
    return QCoreApplication::applicationDirPath();
}

void instalaTraducao() {
    static QTranslator tradutor;
    if (tradutor.load(QLocale(QLocale::Portuguese, QLocale::Brazil), QStringLiteral("qtbase"),
                      QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&tradutor);
    // The default locale names the types of files in the file dialogs.
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
}

} // namespace sorvelo
