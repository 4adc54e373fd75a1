#include "platform/qt/ServicosQt.h"

#include "platform/qt/Vista.h"

#include "base/Semantica.h"
#include "platform/Atividade.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QTranslator>
#include <QUrl>

namespace sorvelo {

namespace {
const QString Titulo = QStringLiteral("Sorvelo");

QWidget* janelaAtiva() {
    return QApplication::activeWindow();
}

void caixaSimples(QMessageBox::Icon icone, const QString& texto) {
    atualizaVistas();
    QMessageBox caixa(icone, Titulo, texto, QMessageBox::Ok, janelaAtiva());
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
    QMessageBox caixa(QMessageBox::Question, Titulo, texto, b, janelaAtiva());
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

QString DialogoArquivoQt::abrir(const QString& titulo, const QString& filtro) {
    atualizaVistas();
    EmModal modal;
    return QFileDialog::getOpenFileName(janelaAtiva(), titulo, QString(), filtroQt(filtro));
}

QString DialogoArquivoQt::salvar(const QString& titulo, const QString& filtro) {
    // The overwrite question belongs to the program, not to the dialog.
    atualizaVistas();
    EmModal modal;
    return QFileDialog::getSaveFileName(janelaAtiva(), titulo, QString(), filtroQt(filtro), nullptr,
                                        QFileDialog::DontConfirmOverwrite);
}

struct ImpressoraQt::Trabalho {
    QPrinter impressora;
    QPainter pintor;
    QFont fonte{QStringLiteral("Arial"), 10};
    int y = 0;
};

ImpressoraQt::ImpressoraQt() = default;
ImpressoraQt::~ImpressoraQt() {
    delete t_;
}

void ImpressoraQt::defineFonte(const QString& nome, double tamanho) {
    if (!t_) t_ = new Trabalho;
    t_->fonte = QFont(nome);
    t_->fonte.setPointSizeF(tamanho);
}

void ImpressoraQt::imprime(const QString& texto) {
    if (!t_) t_ = new Trabalho;
    if (!t_->pintor.isActive()) {
        if (!t_->pintor.begin(&t_->impressora)) throw FalhaExecucao(erro::Impressora);
        t_->y = 0;
    }
    t_->pintor.setFont(t_->fonte);
    const QFontMetrics m(t_->fonte, &t_->impressora);
    const QRect pagina = t_->impressora.pageLayout().paintRectPixels(t_->impressora.resolution());
    for (const QString& linha : texto.split(QStringLiteral("\r\n"))) {
        if (t_->y + m.height() > pagina.height()) {
            t_->impressora.newPage();
            t_->y = 0;
        }
        t_->pintor.drawText(0, t_->y + m.ascent(), linha);
        t_->y += m.height();
    }
}

void ImpressoraQt::fim() {
    if (t_ && t_->pintor.isActive()) t_->pintor.end();
    delete t_;
    t_ = nullptr;
}

void CedenciaQt::cede() {
    if (desde_.isValid() && desde_.elapsed() < intervaloMs_) return;
    atualizaVistas();
    QCoreApplication::processEvents();
    desde_.start();
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
}

} // namespace sorvelo
