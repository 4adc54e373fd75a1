#include "core/Principal.h"

#include "core/ArquivoApostas.h"
#include "core/Loteria.h"
#include "core/Module1.h"
#include "core/SistemaOperacional.h"

#include <QDir>

namespace sorvelo {

QString FimLinhaDoSistema(const QString& nomeSistema) {
    return nomeSistema.toUpper() == QStringLiteral("WINDOWS XP") ? QString() : QStringLiteral("\r\n");
}

void CarregaPrincipal(Nucleo& p) {
    // The probe's name, upper-cased; only "WINDOWS XP" drops the line end.
    p.e.FimLinha = FimLinhaDoSistema(clsOS::doSistema().OS_Name);
    DefineCores(p);
    ConfiguraLoteria(p, QStringLiteral("Mega-Sena"));
    DesmarcaMenus(p);
    p.tela.MenuMegaSena = true;
}

void AtualizaContadores(Nucleo& p) {
    auto& t = p.tela;
    t.TxtQuantApostas.Text = textoNumero(int64_t(p.e.QuantBan.valor()));
    QString total = textoNumero(valorNumerico(t.TxtQuantApostas.Text) * p.e.ValorAposta);
    t.TxtValorApostas.Text = FormataNumero(total);
}

void TickTimer1(Nucleo& p) {
    auto& t = p.tela;
    t.ContAjuda += 1;
    if (t.ContAjuda > 10) EscondeAjuda(p);
    if (t.ContAjuda.valor() % 3 == 0) AtualizaContadores(p);
    t.ContCancela += 1;
    if (t.ContCancela > 30) {
        t.ContCancela = 0;
        p.e.Cancelado = false;
    }
}

void MudaBarraHoriz(Nucleo& p, int valor) {
    p.tela.BarraHoriz.Value = valor;
    p.tela.PicLoteriaLeft = -(valor * 100);
    if (valor == 1) p.tela.PicLoteriaLeft = 0;
}

void MudaBarraVert(Nucleo& p, int valor) {
    p.tela.BarraVert.Value = valor;
    p.tela.PicLoteriaTop = -(valor * 100);
    if (valor == 1) p.tela.PicLoteriaTop = 600;
}

void Redimensiona(Nucleo& p, int largura, int altura) {
    auto& t = p.tela;
    // A negative size is refused by the control; that statement is skipped.
    t.BarraHoriz.Top = altura - 1100;
    t.BarraVert.Left = largura - 370;
    if (largura - 370 >= 0) t.BarraHoriz.Width = largura - 370;
    if (altura - 1425 >= 0) t.BarraVert.Height = altura - 1425;
}

void EscondeAjuda(Nucleo& p) {
    p.tela.HelpRotinaVisible.fill(false);
}

void MovimentoMouse(Nucleo& p, Regiao onde, int x, int y) {
    auto& t = p.tela;
    auto mostra = [&](std::initializer_list<int> marcas) {
        t.ContAjuda = 0;
        EscondeAjuda(p);
        for (int m : marcas)
            t.HelpRotinaVisible[size_t(m)] = true;
    };
    switch (onde) {
    case Regiao::Frame2:
        mostra({0});
        break;
    case Regiao::Frame3:
        if (y < 960)
            mostra({1, 2});
        else
            mostra({3});
        break;
    case Regiao::FraBanco:
        if (x < 2800)
            mostra({4});
        else
            mostra({5});
        break;
    case Regiao::Frame5:
        mostra({6});
        break;
    case Regiao::Frame1:
        mostra({7});
        t.PicSort1Imagem = 3;
        break;
    case Regiao::BtnIniciar:
        t.HelpRotinaVisible[0] = false;
        break;
    case Regiao::BtnFechar:
        t.HelpRotinaVisible[1] = false;
        break;
    case Regiao::BtnSortear:
    case Regiao::BtnDigitar:
        t.HelpRotinaVisible[2] = false;
        t.HelpRotinaVisible[3] = false;
        break;
    case Regiao::BtnReduz:
        t.HelpRotinaVisible[6] = false;
        break;
    }
}

void FechaPrincipal(Nucleo& p) {
    if (!p.tela.TxtBanco.vazio() && p.e.BancoAlterado) {
        if (p.s.caixa->pergunta(QStringLiteral("Deseja salvar as apostas atuais?"), Botoes::SimNao,
                                Resposta::Sim) == Resposta::Sim) {
            SalvarArquivo(p);
        }
    }
    ApagaArquivo(QDir(p.s.pasta->caminho()).filePath(QStringLiteral("00001.txt")));
}

} // namespace sorvelo
