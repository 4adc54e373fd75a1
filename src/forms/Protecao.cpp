#include "forms/Protecao.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace sorvelo {

namespace {
TratadorFalha& tratador() {
    static TratadorFalha t = tratadorPadrao;
    return t;
}
} // namespace

void defineTratadorFalha(TratadorFalha t) {
    tratador() = t ? std::move(t) : TratadorFalha(tratadorPadrao);
}

void trataFalha(const FalhaExecucao& f) {
    tratador()(f);
}

void trataExcecao(const char* oque) {
    const QString texto = QStringLiteral("Erro interno do programa: ") + QString::fromUtf8(oque);
    if (qApp) {
        QMessageBox caixa(QMessageBox::Critical, QStringLiteral("Sorvelo"), texto, QMessageBox::Ok);
        EmModal modal;
        caixa.exec();
    } else {
        std::fprintf(stderr, "%s\n", qPrintable(texto));
    }
    std::fflush(nullptr);
    std::_Exit(1);
}

void tratadorPadrao(const FalhaExecucao& f) {
    if (qApp) {
        QMessageBox caixa(QMessageBox::Critical, QStringLiteral("Sorvelo"), mensagemFalha(f),
                          QMessageBox::Ok);
        EmModal modal;
        caixa.exec();
    } else {
        std::fprintf(stderr, "%s\n", qPrintable(mensagemFalha(f)));
    }
    std::fflush(nullptr);
    // Ends at once: nothing is saved, no other form gets a say.
    std::_Exit(1);
}

} // namespace sorvelo
