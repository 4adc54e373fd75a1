// The GUI fixture of the forms' tests: the real main window over a program
// with the scripted services, the real forms for its dialogs, offscreen,
// and a way to script each modal dialog as it comes up.
#pragma once

#include "apoio/Duplos.h"
#include "apoio/ImprimeQt.h"
#include "forms/Janelas.h"
#include "forms/Sorvelo.h"
#include "programa/Programa.h"

#include <QApplication>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace sorvelo::teste {

class FormasTeste {
public:
    using Passo = std::function<void(QWidget*)>;

    // The main window, made and shown (the services may be set up before).
    void abreJanela() {
        janela = std::make_unique<Sorvelo>(p, janelas);
        janela->show();
        QApplication::processEvents();
    }
    // Runs each step on the modal dialog as it comes up, in order; the
    // watch runs while steps are left or a modal dialog is up.
    void quandoAbrir(std::vector<Passo> passos) {
        passos_ = std::move(passos);
        ultimo_ = nullptr;
        vigia();
    }
    // Every scripted step ran (the fixtures call it at the end of each test).
    void confereRoteiro() { EXPECT_TRUE(passos_.empty()) << passos_.size() << " dialog(s) never came up"; }
    void clica(const char* nome) {
        auto* b = janela->findChild<QPushButton*>(QString::fromUtf8(nome));
        ASSERT_NE(b, nullptr) << nome;
        b->click();
    }

    ServicosDuplos duplos;
    JanelasFormas janelas;
    Programa p{duplos.servicos(), janelas};
    std::unique_ptr<Sorvelo> janela;
    // The objectName of each modal dialog that a step ran on.
    QStringList vistos;

private:
    void vigia() {
        QTimer::singleShot(0, janela.get(), [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal && modal != ultimo_ && !passos_.empty()) {
                ultimo_ = modal;
                Passo passo = passos_.front();
                passos_.erase(passos_.begin());
                vistos << modal->objectName();
                passo(modal);
            }
            if (!passos_.empty() || QApplication::activeModalWidget()) vigia();
        });
    }

    std::vector<Passo> passos_;
    QWidget* ultimo_ = nullptr;
};

} // namespace sorvelo::teste
