// "Verificar garantia" (menu Relatórios) as logic: the numbers marked on the
// grid (blue), the guarantee and the number to hit of the frame
// "Combinações reduzidas", and the bank, checked with the exact count of
// Garantia.h; the listing goes to a rich-text view that "Imprimir" prints.
#pragma once

#include "core/Estado.h"
#include "core/LogicaDialogo.h"
#include "relatorios/Garantia.h"

namespace sorvelo {

struct TelaVerificaGarantia {
    QString Caption = QStringLiteral("Verificar garantia");
    QString LblTitulo = QStringLiteral("Garantia do banco de apostas");
    DocumentoRico RTFGarantia;
    QString BtnImprimir = QStringLiteral("Imprimir");
    QString BtnFechar = QStringLiteral("Fechar");
};

// The guarantee of the frame as a number: "Duque" 2 .. "Sena" 6, otherwise
// the numeric value of the text.
int garantiaDoQuadro(const QString& texto);

// The numbers marked (blue) on the grid, ascending.
std::vector<int> numerosMarcados(const Nucleo& p);

class VerificaGarantia : public LogicaDialogo {
public:
    explicit VerificaGarantia(Nucleo& p) : LogicaDialogo(p, Cancelar::Nenhum) {}

    // Reads the grid, the frame and the bank, counts, and writes the listing.
    void Carrega();
    void BtnImprimir();
    void BtnFechar() { fecha(); }
    bool fechada() const { return !aberto(); }
    const ResultadoGarantia& resultado() const { return resultado_; }

    TelaVerificaGarantia tela;

private:
    ResultadoGarantia resultado_;
};

} // namespace sorvelo
