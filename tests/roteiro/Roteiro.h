// The scenario runner: starts the program with its main window as the
// form's load leaves it, runs the scenario's lines one by one when the
// program waits for the person, and writes the transcript.
#pragma once

#include "forms/Janelas.h"
#include "roteiro/Cenario.h"
#include "roteiro/ServicosRoteiro.h"
#include "roteiro/TempoVirtual.h"
#include "roteiro/Transcricao.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace sorvelo {
class JanelaApresenta;
class Sorvelo;
struct Programa;
} // namespace sorvelo

namespace sorvelo::roteiro {

// Exit statuses of the runner.
namespace status {
constexpr int Ok = 0;
constexpr int ConferenciaFalhou = 1;
constexpr int CenarioErrado = 2;
constexpr int FalhaExecucao = 3;
constexpr int CaixaSemResposta = 4;
} // namespace status

struct OpcoesRoteiro {
    // How long a line may wait for the program, in milliseconds.
    int limiteEsperaMs = 60000;
    // Called with the main window once it stands (tests add controls of their own).
    std::function<void(Sorvelo&)> aoCriarJanela;
    // Ends the process at once (a failure, an unanswered box, an end in the
    // middle of a handler); the transcript is flushed before.
    std::function<void(int)> encerraProcesso;
};

class Roteiro : public QObject, public Condutor {
public:
    Roteiro(std::vector<LinhaCenario> linhas, Transcricao& saida, OpcoesRoteiro opcoes = {});
    ~Roteiro() override;

    // Runs the whole scenario in the application's event loop; the status.
    int executa();

    Resposta atendeCaixa(const QString& tipo, const QString& texto, const QList<Resposta>& botoes,
                         Resposta padrao) override;
    QString atendeDialogo(bool salvar, const QString& titulo, const QString& filtro) override;
    void anota(const QString& linha) override { saida_.linha(linha); }
    void cedeu() override;
    int64_t agoraMs() const override { return tempo_.agora(); }

protected:
    bool eventFilter(QObject* alvo, QEvent* e) override;

private:
    struct Armada {
        LinhaCenario linha;
        int numero = 0; // of the na_cedencia line
        long long cedencia = 0;
        bool feita = false;
    };
    struct Arquivo {
        QString caminho;
        bool cancela = false;
    };

    bool preparaPasta();
    void criaJanela();
    void agenda() { passo_.start(); }
    void passo();
    void executaLinha(const LinhaCenario& l);
    void armaCedencias();
    bool verificaArmadas();
    void verificaEspera();
    void aoEncerrar();
    void conclui();
    void erro(int linha, const QString& mensagem);
    void termina(int status, bool sempreEncerra = false);
    void encerra(int status);
    bool aninhado() const;

    // The commands.
    void cmdClica(const LinhaCenario& l);
    void cmdDigita(const LinhaCenario& l);
    void cmdTecla(const LinhaCenario& l);
    void cmdEscolhe(const LinhaCenario& l);
    void cmdRola(const LinhaCenario& l);
    void cmdMove(const LinhaCenario& l);
    void cmdArquivo(const LinhaCenario& l);
    void cmdRelogio(const LinhaCenario& l);
    void cmdEspera(const LinhaCenario& l);
    void cmdMostra(const LinhaCenario& l);
    void cmdEstado(const LinhaCenario& l);
    void cmdConfere(const LinhaCenario& l);
    void cmdFecha(const LinhaCenario& l);
    bool cmdPasta(const LinhaCenario& l);
    // Writes a super-reduction table (its bytes complemented) into the
    // program's folder.
    void cmdTabela(const LinhaCenario& l);
    bool cmdInicia(const LinhaCenario& l);
    void criaApresenta();
    // Twips to pixels and back, at the screen of the program's windows.
    int tw(int twips) const;
    int deTw(int pixels) const;

    // Checks the words of a line: 'p' a plain word, 't' a quoted text.
    bool confereForma(const LinhaCenario& l, const char* forma);
    // fecha FORMA: the form closed by its window frame's close button.
    void fechaForma(const LinhaCenario& l);
    // A control by name ("C" or "Forma.C"); reports the error when there is none.
    QObject* controle(const LinhaCenario& l, const QString& nome);
    QWidget* widget(const LinhaCenario& l, const QString& nome);
    // False (and the error) when a modal form keeps the person from the control;
    // otherwise the control's window becomes the active one, as under a click
    // (not under a mouse move).
    bool acessivel(const LinhaCenario& l, QObject* c, bool ativaJanela = true);
    QWidget* formaNoTopo() const;
    QWidget* formaDe(QObject* c) const;
    // The text of C: a control's, or a scalar variable's; false with the error reported.
    bool textoDe(const LinhaCenario& l, const QString& nome, QString& texto);

    std::vector<LinhaCenario> linhas_;
    size_t proxima_ = 0;
    Transcricao& saida_;
    OpcoesRoteiro op_;
    ServicosRoteiro servicos_;
    std::unique_ptr<QTemporaryDir> pastaTemporaria_;
    JanelasFormas janelas_;
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Sorvelo> janela_;
    // `inicia Apresenta`: the start box comes first, and makes the main window.
    std::unique_ptr<JanelaApresenta> apresenta_;
    bool iniciaApresenta_ = false;
    QString arquivoInicial_;
    TempoVirtual tempo_;
    QTimer passo_;
    QElapsedTimer esperando_;

    std::vector<Armada> armadas_;
    long long cedencias_ = 0;
    int profundidadeCedencia_ = 0;
    std::deque<Arquivo> arquivos_;
    std::vector<QPointer<QWidget>> formas_;
    QHash<QWidget*, QString> nomesFormas_;

    int linhaAtual_ = 0;
    bool laco_ = false;
    bool fim_ = false;
    bool conferenciaFalhou_ = false;
    int status_ = status::Ok;

    // The watch over a program that stops answering inside a handler.
    void vigia();
    std::atomic<long long> pulso_{0};
    std::atomic<int> linhaVigiada_{0};
    std::mutex mutexVigia_;
    std::condition_variable condVigia_;
    bool pararVigia_ = false;
    std::thread vigia_;
};

} // namespace sorvelo::roteiro
