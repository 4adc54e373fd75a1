// The platform services as the scenario runner gives them to the program:
// the message box, the file dialogs, the printer, the opening of addresses
// and the yield go through the runner; the clock is fixed, the folder set.
#pragma once

#include "apoio/Duplos.h"
#include "platform/Servicos.h"
#include "platform/qt/ServicosQt.h"

#include <QList>

namespace sorvelo::roteiro {

// What the services need of the runner.
class Condutor {
public:
    virtual ~Condutor() = default;
    // A box came up: the runner writes it down and answers from the scenario.
    virtual Resposta atendeCaixa(const QString& tipo, const QString& texto, const QList<Resposta>& botoes,
                                 Resposta padrao) = 0;
    // A file dialog: what `arquivo` queued ("" for a Cancel).
    virtual QString atendeDialogo(bool salvar, const QString& titulo, const QString& filtro) = 0;
    // A line of the transcript.
    virtual void anota(const QString& linha) = 0;
    // The program yields to the message loop.
    virtual void cedeu() = 0;
    // The runner's virtual clock, in milliseconds.
    virtual int64_t agoraMs() const = 0;
};

// The words of the answers, as the scenario and the transcript write them.
QString nomeResposta(Resposta r);
bool respostaDoNome(const QString& nome, Resposta& r);

class CaixaConduzida : public CaixaMensagem {
public:
    explicit CaixaConduzida(Condutor& c) : c_(c) {}
    void informacao(const QString& texto) override;
    void aviso(const QString& texto) override;
    void critico(const QString& texto) override;
    Resposta pergunta(const QString& texto, Botoes botoes, Resposta padrao) override;

private:
    Condutor& c_;
};

class DialogoConduzido : public DialogoArquivo {
public:
    explicit DialogoConduzido(Condutor& c) : c_(c) {}
    QString abrir(const QString& titulo, const QString& filtro) override;
    QString salvar(const QString& titulo, const QString& filtro) override;

private:
    Condutor& c_;
};

class ImpressoraConduzida : public Impressora {
public:
    explicit ImpressoraConduzida(Condutor& c) : c_(c) {}
    void defineFonte(const QString& nome, double tamanho) override;
    void imprime(const QString& texto) override;
    void fim() override;
    // The job's texts go to the file, as UTF-8, at its end.
    void defineArquivo(const QString& caminho) override;

private:
    Condutor& c_;
    QString arquivo_, textos_;
};

class AbridorConduzido : public Abridor {
public:
    explicit AbridorConduzido(Condutor& c) : c_(c) {}
    void abre(const QString& endereco) override;

private:
    Condutor& c_;
};

// The yield: the runner counts every one (and may run a line in it); the
// event loop runs by the program's own rule on the runner's virtual clock,
// which only `espera` moves. A line of the scenario reaches the program
// through the event loop, so the first yield after a line runs it at once;
// the yields that follow run it only once the virtual clock has moved by the
// interval. No real time enters: a scenario yields alike on every machine.
// The virtual clock costs nothing to read, so every yield reads it.
class CedenciaConduzida : public Cedencia {
public:
    explicit CedenciaConduzida(Condutor& c);
    void cede() override;
    // A line of the scenario acted, or a box or a dialog was answered: the
    // next yield runs the event loop.
    void linhaAgiu() { ritmo_.reinicia(); }

private:
    Condutor& c_;
    RitmoCedencia ritmo_;
};

struct ServicosRoteiro {
    explicit ServicosRoteiro(Condutor& c) : caixa(c), dialogo(c), impressora(c), abridor(c), cedencia(c) {}
    CaixaConduzida caixa;
    DialogoConduzido dialogo;
    ImpressoraConduzida impressora;
    AbridorConduzido abridor;
    CedenciaConduzida cedencia;
    GeradorClassico aleatorio;
    RelogioFixo relogio;
    PastaFixa pasta;
    Servicos servicos() {
        return {&caixa, &dialogo, &impressora, &aleatorio, &relogio, &cedencia, &abridor, &pasta};
    }
};

} // namespace sorvelo::roteiro
