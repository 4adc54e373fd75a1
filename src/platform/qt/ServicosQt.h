// The desktop implementations of the services.
#pragma once

#include "platform/Servicos.h"

#include <QElapsedTimer>
#include <QString>

class QWidget;

namespace sorvelo {

class CaixaMensagemQt : public CaixaMensagem {
public:
    void informacao(const QString& texto) override;
    void aviso(const QString& texto) override;
    void critico(const QString& texto) override;
    Resposta pergunta(const QString& texto, Botoes botoes, Resposta padrao) override;
};

class DialogoArquivoQt : public DialogoArquivo {
public:
    QString abrir(const QString& titulo, const QString& filtro) override;
    QString salvar(const QString& titulo, const QString& filtro) override;
    // "Arquivo de apostas (*.Apo)|*.Apo;" as the desktop writes it.
    static QString filtroQt(const QString& filtro);
};

class ImpressoraQt : public Impressora {
public:
    ImpressoraQt();
    ~ImpressoraQt() override;
    void defineFonte(const QString& nome, double tamanho) override;
    void imprime(const QString& texto) override;
    void fim() override;

private:
    struct Trabalho;
    Trabalho* t_ = nullptr;
};

class RelogioSistema : public Relogio {
public:
    QDateTime agora() override { return QDateTime::currentDateTime(); }
};

// Runs the message loop when some milliseconds have passed since it last
// ran: the dialogs stay responsive while a loop of millions of yields pays
// for a clock read on most of them.
class CedenciaQt : public Cedencia {
public:
    explicit CedenciaQt(int intervaloMs = 10) : intervaloMs_(intervaloMs) {}
    void cede() override;

private:
    int intervaloMs_;
    QElapsedTimer desde_;
};

class AbridorQt : public Abridor {
public:
    void abre(const QString& endereco) override;
};

class PastaProgramaQt : public PastaPrograma {
public:
    QString caminho() override;
};

// Every service with its desktop implementation; the random source is the
// classic generator.
struct ServicosQt {
    CaixaMensagemQt caixa;
    DialogoArquivoQt dialogo;
    ImpressoraQt impressora;
    GeradorClassico aleatorio;
    RelogioSistema relogio;
    CedenciaQt cedencia;
    AbridorQt abridor;
    PastaProgramaQt pasta;
    Servicos servicos() {
        return {&caixa, &dialogo, &impressora, &aleatorio, &relogio, &cedencia, &abridor, &pasta};
    }
};

// Loads Qt's own Brazilian Portuguese translation, for the standard buttons.
void instalaTraducao();

} // namespace sorvelo
