// "Importar apostas": bets read from a text or CSV file, shown to the player
// (how many are valid, which lines were refused and why) and appended to the
// bank only when the player confirms. The form binds the controls below.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"
#include "edicao/LeitorApostas.h"

#include <functional>
#include <memory>

namespace sorvelo {

// The file dialog's title and filter of the command.
QString tituloImportar();
QString filtroImportar();

// Appends the bets that `leitor` found to both forms of the bank, numbered
// from QuantBan + 1 as random bets are, and logs the import in Historico.
// `progresso` (0 to 100) is told now and then, with a yield after it.
void AcrescentaImportadas(Nucleo& p, const LeitorApostas& leitor, const QString& nomeArquivo,
                          const std::function<void(int)>& progresso = {});

// Reads a whole file into a reader, in pieces, with the progress in
// percent and a yield after each piece; `cancelado` is asked after each
// yield. Returns an empty text or the message of a file that cannot be
// read (missing, no regular file, a read error).
QString LeArquivoApostas(const QString& caminho, LeitorApostas& leitor, Cedencia* cedencia,
                         const std::function<void(int)>& progresso = {},
                         const std::function<bool()>& cancelado = {});

// The report of what a reader found, as the dialog shows it.
QString RelatorioImportacao(const LeitorApostas& leitor);

// The main window's command: the file dialog; the dialog of the import is
// shown by the caller when it returns a file.
QString EscolheArquivoImportar(Nucleo& p);

// The import's state from the file dialog to its dialog.
struct ModuloImportar {
    QString caminho; // the file chosen
};

// "Importar apostas..." of the main window: the file dialog, then the
// dialog "Importar" through p.dialogos (none when the file dialog is
// cancelled).
void MenuImportar(Nucleo& p, ModuloImportar& m);

// Esc and the frame are its "Cancelar".
class Importar : public LogicaDialogo {
public:
    Importar(Nucleo& p, QString caminho);

    // The dialog's work when it comes up: the file read with progress. A file
    // that cannot be read, or no text file, is told in a box and the dialog
    // closes.
    void Le();
    // "Importar": the valid bets into the bank, then the close.
    void BtnImportar();
    // "Cancelar": the close; while the file is being read, the reading
    // stops. While the bets go into the bank it does nothing.
    void BtnCancelar() override;

    bool lendo() const { return lendo_; }
    const LeitorApostas& leitor() const { return *leitor_; }

    // Controls.
    QString LblArquivo;
    QString LblResumo;
    QString TxtRelatorio;
    int PrgLeitura = 0; // percent
    bool BtnImportarEnabled = false;

    std::function<void()> aoMudar; // the controls changed (progress too)

private:
    void progresso(int v);

    QString caminho_;
    std::unique_ptr<LeitorApostas> leitor_;
    bool lendo_ = false;
    bool inserindo_ = false;
    bool cancelado_ = false;
};

} // namespace sorvelo
