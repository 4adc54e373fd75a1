// The desktop implementations of the services.
#pragma once

#include "platform/Servicos.h"

#include <QElapsedTimer>
#include <QString>

#include <functional>

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

private:
    // Opens in the user's documents folder, then in the folder last used.
    QString mostra(const QString& titulo, const QString& filtro, bool salvar);
    QString pasta_;
};

// Prints to the system's default printer. Where the system has no printer
// at all, the job becomes a PDF file in the user's documents folder, named
// with the active window's caption and the date and time, which the
// desktop then opens. A printer that refuses the job is failure 482. A font
// size that is no size (0 or less) keeps the size in use.
class ImpressoraQt : public Impressora {
public:
    ImpressoraQt();
    ~ImpressoraQt() override;
    void defineFonte(const QString& nome, double tamanho) override;
    void imprime(const QString& texto) override;
    void fim() override;
    void defineArquivo(const QString& caminho) override;

    // The name of the system's default printer; empty when there is none.
    std::function<QString()> impressoraPadrao;
    // Where the PDF of a job goes when there is no printer.
    std::function<QString()> pastaDocumentos;
    // Opens the PDF when the job ends (nullptr: left alone).
    Abridor* abridor = nullptr;
    // The PDF of the last job sent to no printer.
    const QString& ultimoPdf() const { return ultimoPdf_; }
    // Pages of the job in hand or of the last one.
    int paginas() const { return paginas_; }

private:
    struct Trabalho;
    void comeca();
    Trabalho* t_ = nullptr;
    QString arquivo_; // the PDF file of the next job, when one is asked for
    QString ultimoPdf_;
    int paginas_ = 0;
};

class RelogioSistema : public Relogio {
public:
    QDateTime agora() override { return QDateTime::currentDateTime(); }
};

// A monotonic clock in milliseconds (tests give one of their own).
using RelogioMs = std::function<int64_t()>;
RelogioMs relogioMonotonico();

// How long a yield lets pass between two runs of the message loop.
constexpr int IntervaloCedenciaMs = 10;

// When a yield runs the message loop: at the first call, then once
// `intervaloMs` have passed since the loop last ran. A loop of millions of
// yields should not pay for a clock read on each, so the clock is read every
// `passo_` calls: the stride doubles (up to `passoMaximo`) while reads come
// much sooner than the interval, and shrinks as soon as a read comes later
// than the interval, down to one call when calls are slow.
class RitmoCedencia {
public:
    explicit RitmoCedencia(int intervaloMs, RelogioMs agoraMs, int passoMaximo = 4096)
        : intervaloMs_(intervaloMs), passoMaximo_(passoMaximo), agoraMs_(std::move(agoraMs)) {}
    // Counts a call; true when the loop is due.
    bool devida();
    // The loop has just run.
    void rodou();
    // The next call is due at once, as the first one.
    void reinicia() { ultima_ = -1; }

private:
    int intervaloMs_;
    int passoMaximo_;
    RelogioMs agoraMs_;
    int64_t ultima_ = -1; // when the loop last ran
    int64_t leitura_ = 0; // the last clock read
    int passo_ = 1;       // calls between clock reads
    int chamadas_ = 0;    // calls since the last read
};

// The yield to the message loop: it runs the loop at most every
// `intervaloMs`, after bringing every form up to date.
class CedenciaQt : public Cedencia {
public:
    explicit CedenciaQt(int intervaloMs = IntervaloCedenciaMs, RelogioMs agoraMs = relogioMonotonico())
        : ritmo_(intervaloMs, std::move(agoraMs)) {}
    void cede() override;

private:
    RitmoCedencia ritmo_;
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
    ServicosQt() { impressora.abridor = &abridor; }
    Servicos servicos() {
        return {&caixa, &dialogo, &impressora, &aleatorio, &relogio, &cedencia, &abridor, &pasta};
    }
};

// Loads Qt's own Brazilian Portuguese translation, for the standard buttons
// and dialogs, and makes Brazilian Portuguese the default locale.
void instalaTraducao();

} // namespace sorvelo
