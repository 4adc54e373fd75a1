// The file dialogs of the desktop: where they open, and that they speak
// Portuguese in every column.
#include "platform/qt/ServicosQt.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include <functional>

#include <gtest/gtest.h>

using namespace sorvelo;

namespace {

const QString Filtro = QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;");

// Acts on the next file dialog that comes up.
void naProximaJanela(std::function<void(QFileDialog&)> acao) {
    QTimer::singleShot(0, [acao] {
        auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        acao(*dialogo);
        if (dialogo->isVisible()) dialogo->reject();
    });
}

// A home of the test's own, whose documents folder the desktop's user
// folders file names.
struct Casa {
    QTemporaryDir raiz;
    QString documentos, outra;
    Casa() {
        documentos = raiz.filePath(QStringLiteral("Meus documentos"));
        outra = raiz.filePath(QStringLiteral("outra"));
        QDir().mkpath(documentos);
        QDir().mkpath(outra);
        QDir().mkpath(raiz.filePath(QStringLiteral("config")));
        QFile dirs(raiz.filePath(QStringLiteral("config/user-dirs.dirs")));
        EXPECT_TRUE(dirs.open(QIODevice::WriteOnly));
        dirs.write("XDG_DOCUMENTS_DIR=\"" + documentos.toUtf8() + "\"\n");
        dirs.close();
        qputenv("XDG_CONFIG_HOME", raiz.filePath(QStringLiteral("config")).toUtf8());
    }
    ~Casa() { qunsetenv("XDG_CONFIG_HOME"); }
    QString cria(const QString& pasta, const QString& nome, qint64 bytes = 0) {
        const QString caminho = QDir(pasta).filePath(nome);
        QFile f(caminho);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(bytes, 'x'));
        f.close();
        return caminho;
    }
};

// The row of `nome` in the dialog's detail view, once the folder is read.
QModelIndex linhaDe(QFileDialog& dialogo, const QString& nome) {
    auto* modelo = dialogo.proxyModel();
    if (!modelo) return {};
    auto* arvore = dialogo.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!arvore) return {};
    QElapsedTimer relogio;
    relogio.start();
    while (relogio.elapsed() < 5000) {
        const QModelIndex raiz = arvore->rootIndex();
        for (int r = 0; r < modelo->rowCount(raiz); ++r) {
            const QModelIndex i = modelo->index(r, 0, raiz);
            if (i.data().toString() == nome) return i;
        }
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    return {};
}

} // namespace

TEST(DialogoArquivo, AbreNosDocumentosDepoisNaPastaUsadaPorUltimo) {
    Casa casa;
    const QString jogos = casa.cria(casa.outra, QStringLiteral("jogos.Apo"));
    DialogoArquivoQt dialogo;

    QString pasta;
    naProximaJanela([&](QFileDialog& d) {
        pasta = d.directory().absolutePath();
        d.selectFile(jogos);
        static_cast<QDialog&>(d).accept();
    });
    EXPECT_EQ(dialogo.abrir(QStringLiteral("Abrir arquivo de apostas"), Filtro), jogos);
    EXPECT_EQ(pasta, casa.documentos);

    // A cancel changes nothing; the save dialog opens where the open one was.
    naProximaJanela([&](QFileDialog& d) { pasta = d.directory().absolutePath(); });
    EXPECT_TRUE(dialogo.abrir(QStringLiteral("Abrir arquivo de apostas"), Filtro).isEmpty());
    EXPECT_EQ(pasta, casa.outra);
    naProximaJanela([&](QFileDialog& d) { pasta = d.directory().absolutePath(); });
    EXPECT_TRUE(dialogo.salvar(QStringLiteral("Salvar arquivo de apostas"), Filtro).isEmpty());
    EXPECT_EQ(pasta, casa.outra);

    // Saved in the documents folder: the next one opens there again.
    const QString novo = QDir(casa.documentos).filePath(QStringLiteral("novo.Apo"));
    naProximaJanela([&](QFileDialog& d) {
        d.selectFile(novo);
        static_cast<QDialog&>(d).accept();
    });
    EXPECT_EQ(dialogo.salvar(QStringLiteral("Salvar arquivo de apostas"), Filtro), novo);
    naProximaJanela([&](QFileDialog& d) { pasta = d.directory().absolutePath(); });
    dialogo.abrir(QStringLiteral("Abrir arquivo de apostas"), Filtro);
    EXPECT_EQ(pasta, casa.documentos);
}

TEST(DialogoArquivo, SemPastaDeDocumentosAbreNaPastaPessoal) {
    Casa casa;
    QDir(casa.documentos).removeRecursively();
    DialogoArquivoQt dialogo;
    QString pasta;
    naProximaJanela([&](QFileDialog& d) { pasta = d.directory().absolutePath(); });
    dialogo.abrir(QStringLiteral("Abrir arquivo de apostas"), Filtro);
    EXPECT_EQ(pasta, QDir::homePath());
}

TEST(DialogoArquivo, ColunasEmPortuguesECabecalhosInteiros) {
    instalaTraducao();
    Casa casa;
    QDir(casa.documentos).mkdir(QStringLiteral("Loterias"));
    const QString texto = casa.cria(casa.documentos, QStringLiteral("notas.txt"), 1536);
    {
        QFile f(texto);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        ASSERT_TRUE(
            f.setFileTime(QDateTime(QDate(2026, 3, 5), QTime(14, 7)), QFileDevice::FileModificationTime));
    }
    DialogoArquivoQt dialogo;
    QStringList cabecalhos, pastaLinha, textoLinha;
    bool inteiros = true;
    naProximaJanela([&](QFileDialog& d) {
        d.selectNameFilter(QStringLiteral("*"));
        d.setNameFilter(QStringLiteral("Todos (*)"));
        auto* arvore = d.findChild<QTreeView*>(QStringLiteral("treeView"));
        ASSERT_NE(arvore, nullptr);
        ASSERT_TRUE(arvore->isVisible()) << "a vista em detalhes";
        QHeaderView* h = arvore->header();
        for (int c = 0; c < 4; ++c) {
            const QString t = h->model()->headerData(c, Qt::Horizontal).toString();
            cabecalhos << t;
            if (h->sectionSize(c) < h->fontMetrics().horizontalAdvance(t) + 8) inteiros = false;
        }
        const QModelIndex pasta = linhaDe(d, QStringLiteral("Loterias"));
        const QModelIndex notas = linhaDe(d, QStringLiteral("notas.txt"));
        ASSERT_TRUE(pasta.isValid());
        ASSERT_TRUE(notas.isValid());
        for (int c = 1; c < 4; ++c) {
            pastaLinha << pasta.siblingAtColumn(c).data().toString();
            textoLinha << notas.siblingAtColumn(c).data().toString();
        }
    });
    dialogo.abrir(QStringLiteral("Abrir arquivo de apostas"), Filtro);
    EXPECT_EQ(cabecalhos, (QStringList{QStringLiteral("Nome"), QStringLiteral("Tamanho"),
                                       QStringLiteral("Tipo"), QStringLiteral("Data de modificação")}));
    EXPECT_TRUE(inteiros) << "nenhum cabeçalho cortado";
    ASSERT_EQ(pastaLinha.size(), 3);
    EXPECT_EQ(pastaLinha[1], QStringLiteral("Pasta"));
    ASSERT_EQ(textoLinha.size(), 3);
    EXPECT_EQ(textoLinha[0], QStringLiteral("1,50 KiB"));
    EXPECT_EQ(textoLinha[1], QStringLiteral("Documento de Texto"));
    EXPECT_EQ(textoLinha[2], QStringLiteral("05/03/2026 14:07"));
}
