// What the program needs of the desktop, each service behind an interface.
// The logic reaches them only through a Servicos instance handed to it, so
// that tests can give scripted doubles (Duplos.h) and the program the Qt
// implementations (platform/qt).
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace sorvelo {

// Message box: title "Sorvelo".
enum class Resposta { OK, Sim, Nao, Cancelar };
enum class Botoes { SimNao, SimNaoCancelar };

class CaixaMensagem {
public:
    virtual ~CaixaMensagem() = default;
    virtual void informacao(const QString& texto) = 0;
    virtual void aviso(const QString& texto) = 0;
    virtual void critico(const QString& texto) = 0;
    // A question; `padrao` is the button that Enter presses.
    virtual Resposta pergunta(const QString& texto, Botoes botoes, Resposta padrao) = 0;
};

// Common dialog for files. An empty result is a Cancel.
class DialogoArquivo {
public:
    virtual ~DialogoArquivo() = default;
    // filtro in the program's own form: "Arquivo de apostas (*.Apo)|*.Apo;"
    virtual QString abrir(const QString& titulo, const QString& filtro) = 0;
    virtual QString salvar(const QString& titulo, const QString& filtro) = 0;
};

// The printer: plain text, a font, the end of the job.
class Impressora {
public:
    virtual ~Impressora() = default;
    virtual void defineFonte(const QString& nome, double tamanho) = 0;
    virtual void imprime(const QString& texto) = 0;
    virtual void fim() = 0;
    // The next job, up to its end, is written as a PDF to this file instead
    // of going to a printer.
    virtual void defineArquivo(const QString& caminho) = 0;
};

// Rnd and Randomize: one uniform generator for the whole process.
class FonteAleatoria {
public:
    virtual ~FonteAleatoria() = default;
    virtual float rnd() = 0; // 0 <= r < 1
    virtual void randomize(double semente) = 0;
};

class Relogio {
public:
    virtual ~Relogio() = default;
    virtual QDateTime agora() = 0;
};

// A yield to the message loop (DoEvents). Every yield of the program goes here.
class Cedencia {
public:
    virtual ~Cedencia() = default;
    virtual void cede() = 0;
};

// Opening a web address, a mail address or a document through the desktop.
class Abridor {
public:
    virtual ~Abridor() = default;
    virtual void abre(const QString& endereco) = 0;
};

// The program's own folder (where data files and "00001.txt" live).
class PastaPrograma {
public:
    virtual ~PastaPrograma() = default;
    virtual QString caminho() = 0;
};

struct Servicos {
    CaixaMensagem* caixa = nullptr;
    DialogoArquivo* dialogo = nullptr;
    Impressora* impressora = nullptr;
    FonteAleatoria* aleatorio = nullptr;
    Relogio* relogio = nullptr;
    Cedencia* cedencia = nullptr;
    Abridor* abridor = nullptr;
    PastaPrograma* pasta = nullptr;
};

// The classic 24-bit generator: x := (x * 1140671485 + 12820163) mod 2^24,
// from x = 327680, r = x / 2^24; Randomize mixes the seed's upper bits
// into the middle of the state.
class GeradorClassico : public FonteAleatoria {
public:
    float rnd() override;
    void randomize(double semente) override;
    uint32_t estado() const { return x_; }

private:
    uint32_t x_ = 327680;
};

// Date and time as text in the Brazilian short forms.
QString textoData(const QDateTime& momento); // "22/11/2026"
QString textoHora(const QDateTime& momento); // "14:05:09"
// Randomize with no argument: the seconds since midnight of the clock.
void randomizeRelogio(FonteAleatoria& fonte, Relogio& relogio);

} // namespace sorvelo
