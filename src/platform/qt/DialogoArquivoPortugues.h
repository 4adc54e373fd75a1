// The desktop's file dialog as a Brazilian user reads it: every column in
// Portuguese (the types of files and folders, the sizes and the dates in the
// Brazilian manner, whatever the system's locale), wide enough for its
// headers, opening first in the user's documents folder.
#pragma once

#include <QIdentityProxyModel>
#include <QString>

class QFileDialog;

namespace sorvelo {

// The model of the dialog's views: the file system's model with its size,
// type and date columns written in Portuguese.
class ModeloArquivosPortugues : public QIdentityProxyModel {
    Q_OBJECT
public:
    using QIdentityProxyModel::QIdentityProxyModel;
    QVariant data(const QModelIndex& indice, int papel = Qt::DisplayRole) const override;
};

// The user's documents folder; the home folder when there is none.
QString pastaDeDocumentos();

// Puts the Portuguese model in the dialog and gives it a size that shows
// its column headers whole.
void preparaDialogoArquivo(QFileDialog& dialogo);

} // namespace sorvelo
