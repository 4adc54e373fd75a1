#include "relatorios/Ajuda.h"

#include <QDir>

namespace sorvelo {

PaginaMontada MontaPaginaHelp(int64_t topico) {
    PaginaMontada m;
    if (topico < 0 || topico >= QuantPaginasAjuda) return m;
    const PaginaAjuda& pagina = paginasAjuda()[size_t(topico)];
    m.titulo = QString::fromUtf16(pagina.titulo);
    for (const TrechoAjuda& t : pagina.trechos)
        m.escritas << QString::fromUtf16(t.texto) + QString::fromUtf16(t.fim);
    return m;
}

bool TeclaFechaAjuda(int codigo) {
    return codigo == 13 || codigo == 27;
}

Help::Help(Nucleo& p) : LogicaDialogo(p, Cancelar::Nenhum), RTFHelp(MontaPaginaHelp(p.e.TopicoHelp.valor())) {
    LblTitulo = RTFHelp.titulo;
}

bool Help::TeclaComando(int codigo) {
    if (!TeclaFechaAjuda(codigo)) return false;
    fecha();
    return true;
}

QString TextoTopico(int indice) {
    static const std::array<const char16_t*, QuantTopicos> textos{
        u"Tutorial do Sorvelo",    u"Combinações",          u"Fechamentos",
        u"Sorteio de apostas",     u"Digitação de apostas", u"Filtragem de apostas",
        u"Conferência de apostas", u"Combinações reduzidas"};
    if (indice < 0 || indice >= QuantTopicos) throw falhaElementoControle(indice);
    return QString::fromUtf16(textos[size_t(indice)]);
}

int PaginaDoTopico(int indice) {
    if (indice < 0 || indice >= QuantTopicos) throw falhaElementoControle(indice);
    return indice - 1;
}

QString CaminhoTutorial(Nucleo& p) {
    return QDir(p.s.pasta->caminho()).filePath(QStringLiteral("Sorvelo.doc"));
}

void AbreTopico(Nucleo& p, int Index) {
    const int pagina = PaginaDoTopico(Index);
    if (pagina < 0) {
        // The desktop's answer is not looked at: a missing file says nothing.
        p.s.abridor->abre(CaminhoTutorial(p));
        return;
    }
    p.e.TopicoHelp = Int16::de(int64_t(pagina));
    p.dialogos.mostraHelp();
}

void ClicaHelpRotina(Nucleo& p, int Index) {
    if (Index < 0 || Index >= QuantPaginasAjuda) throw falhaElementoControle(Index);
    p.e.TopicoHelp = Int16::de(int64_t(Index));
    p.dialogos.mostraHelp();
}

} // namespace sorvelo
