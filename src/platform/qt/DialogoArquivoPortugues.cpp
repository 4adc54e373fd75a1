#include "platform/qt/DialogoArquivoPortugues.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLocale>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QTreeView>

namespace sorvelo {

namespace {
const QLocale Brasil(QLocale::Portuguese, QLocale::Brazil);

enum Coluna { Nome = 0, Tamanho = 1, Tipo = 2, Data = 3 };

QString tipoEmPortugues(const QFileInfo& info) {
    if (info.isDir()) return QCoreApplication::translate("QFileDialog", "Folder");
    const QMimeType tipo = QMimeDatabase().mimeTypeForFile(info);
    // The comment comes in the language of the default locale.
    const QString comentario = tipo.comment();
    return comentario.isEmpty() ? tipo.name() : comentario;
}
} // namespace

QVariant ModeloArquivosPortugues::data(const QModelIndex& indice, int papel) const {
    const auto* arquivos = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (!arquivos || papel != Qt::DisplayRole || !indice.isValid())
        return QIdentityProxyModel::data(indice, papel);
    const QModelIndex origem = mapToSource(indice);
    switch (indice.column()) {
    case Tamanho: {
        const QFileInfo info = arquivos->fileInfo(origem);
        if (info.isDir()) return QString();
        return Brasil.formattedDataSize(info.size());
    }
    case Tipo:
        return tipoEmPortugues(arquivos->fileInfo(origem));
    case Data:
        return Brasil.toString(arquivos->lastModified(origem), QLocale::ShortFormat);
    default:
        return QIdentityProxyModel::data(indice, papel);
    }
}

QString pastaDeDocumentos() {
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!documentos.isEmpty() && QFileInfo(documentos).isDir()) return documentos;
    return QDir::homePath();
}

void preparaDialogoArquivo(QFileDialog& dialogo) {
    dialogo.setProxyModel(new ModeloArquivosPortugues(&dialogo));
    dialogo.setViewMode(QFileDialog::Detail);
    const QFontMetrics medida = dialogo.fontMetrics();
    if (auto* arvore = dialogo.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        QHeaderView* cabecalho = arvore->header();
        cabecalho->setMinimumSectionSize(medida.horizontalAdvance(QStringLiteral("Tamanho")) + 24);
        cabecalho->resizeSection(Nome, medida.horizontalAdvance(u'M') * 24);
        cabecalho->resizeSection(Tamanho, medida.horizontalAdvance(QStringLiteral("1.023,9 KB")) + 24);
        cabecalho->resizeSection(Tipo, medida.horizontalAdvance(QStringLiteral("Documento de texto")) + 24);
        cabecalho->resizeSection(Data, medida.horizontalAdvance(QStringLiteral("Data de modificação")) + 24);
    }
    dialogo.resize(qMax(dialogo.width(), medida.horizontalAdvance(u'M') * 70),
                   qMax(dialogo.height(), medida.height() * 28));
}

} // namespace sorvelo
