// The built-in help: the eight pages of the page form `Help`, the topics
// form `Topicos` and the tutorial document beside the program.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <vector>

namespace sorvelo {

constexpr int QuantPaginasAjuda = 8;

// One paragraph of a page and the line ends that follow it.
struct TrechoAjuda {
    const char16_t* texto;
    const char16_t* fim;
};
struct PaginaAjuda {
    const char16_t* titulo;
    std::vector<TrechoAjuda> trechos;
};
const std::array<PaginaAjuda, QuantPaginasAjuda>& paginasAjuda();

// What the page form shows: the title of LblTitulo and the text of RTFHelp,
// in the writes that fill it (one a paragraph).
struct PaginaMontada {
    QString titulo;
    QStringList escritas;
    QString texto() const { return escritas.join(QString()); }
};
// The page of a topic; a topic outside 0 to 7 fills nothing.
PaginaMontada MontaPaginaHelp(int64_t topico);

// The page's back colour: a pale yellow.
constexpr Cor CorFundoAjuda = rgb(255, 255, 220);
// The page's font.
inline constexpr char FonteAjuda[] = "Verdana";
constexpr double TamanhoFonteAjuda = 9.75;

// A key in the page's command box: Enter (13) and Esc (27) close the page.
bool TeclaFechaAjuda(int codigo);

// The page form `Help`, as logic: its load reads TopicoHelp and builds the
// page; a click in the text, Enter or Esc close it.
class Help : public LogicaDialogo {
public:
    explicit Help(Nucleo& p);
    QString LblTitulo;
    PaginaMontada RTFHelp;
    // A click in RTFHelp.
    void ClicaTexto() { fecha(); }
    // A key in TxtComando; true when the key is dropped (Enter, Esc).
    bool TeclaComando(int codigo);
    bool fechada() const { return !aberto(); }
};

// The topics form.
constexpr int QuantTopicos = 8;
// The text of LblHelp(indice), 0 to 7.
QString TextoTopico(int indice);
// The page a topic opens; -1 for the tutorial (index 0).
int PaginaDoTopico(int indice);
// The tutorial document: "Sorvelo.doc" in the program's folder.
QString CaminhoTutorial(Nucleo& p);
// A click on Book(Index) or LblHelp(Index): the tutorial opens through the
// desktop (no message whether it is there or not); any other topic sets
// TopicoHelp and shows the page form, modal, through p.dialogos.
void AbreTopico(Nucleo& p, int Index);
// A click on the main window's HelpRotina(Index).
void ClicaHelpRotina(Nucleo& p, int Index);

} // namespace sorvelo
