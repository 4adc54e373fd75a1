// The about box "Sobre o Sorvelo", the product's web page and its support
// mail address; the menu's "Novidades" opens the same page.
#pragma once

#include "core/Estado.h"

namespace sorvelo {

inline constexpr char16_t TituloSobre[] = u"Sobre o Sorvelo";
inline constexpr char16_t DescricaoSistema[] = u"Sistema de administração de jogos para loterias";
inline constexpr char16_t VersaoPrograma[] = u"Versão 1.8";
inline constexpr char16_t EnderecoProduto[] = u"https://www.sorvelo.com.br";
inline constexpr char16_t EmailSuporte[] = u"suporte@sorvelo.com.br";

// LblLink: the product's web page, through the desktop; the box stays.
void ClicaLink(Nucleo& p);
// LblEmail: a new mail to the support address, through the desktop.
void ClicaEmail(Nucleo& p);
// MenuNovidades: the product's web page, with no window of its own.
void MenuNovidades(Nucleo& p);

} // namespace sorvelo
