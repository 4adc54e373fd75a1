// The shared state of the program (the variables of Module1), the model of
// the main window's controls that the logic reads and writes, and the
// services: the Nucleo. The whole program's state (programa/Programa.h)
// is a Nucleo with the state of each tool's module beside it.
#pragma once

#include "base/MatrizTexto.h"
#include "base/Semantica.h"
#include "platform/Dialogos.h"
#include "platform/DocumentoRico.h"
#include "platform/Servicos.h"

#include <QString>
#include <QStringList>

#include <array>

namespace sorvelo {

struct Estado {
    Int16 NumIni, NumFim, DezMin;
    QString NomeLoteria;
    double ValorAposta = 0;
    Int16 QuantEscolhidos, DezAposta;
    Int32 TotalApostas;
    MatrizTexto VetBan;
    Int32 QuantBan;
    MatrizTexto VetRes;
    Vetor<Int16> VetNum{0, 100};
    Vetor<QString> VetFixos{0, 100};
    QString DezEscolhidas, Historico, TextoEstatistica, NomeArquivo, ArquivoBanco;
    bool BancoAlterado = false;
    bool Cancelado = false;
    QString FimLinha;
    bool ComEstatistica = false;
    bool ModoFechamento = false;
    bool ModoReduzido = false;
    // The reduced combination: numbers per final bet, how many must hit, and
    // the guard against a second start of its insertion.
    Int16 DezFinal, QuantAcertar;
    bool EmReducao = false;
    Vetor<QString> VetDezenas{0, 81};
    Vetor<QString> VetDezenas2{0, 80};
    Int16 TopicoHelp;
    QString TextoPrompt, TextoDigitado;

    Cor CorFundoNum = 0, CorTextoNum = 0, CorMarcado = 0, CorTextoMarcado = 0, CorFixo = 0;
};

// Control models. Names of the fields follow the controls' properties.
struct Celula {
    QString Text;
    Cor BackColor = rgb(0, 64, 0); // as drawn at design time
    Cor ForeColor = rgb(0, 255, 0);
};
struct CampoTexto {
    QString Text;
    bool Enabled = true;
    bool Visible = true;
};
struct CaixaMarcar {
    bool Value = false;
    bool Enabled = true;
};
struct Combo {
    QString Text;
    QStringList itens;
    bool Enabled = true;
};
struct Spin {
    int Value = 0;
    int Min = 0;
    int Max = 100;
};
struct BarraRolagem {
    int Value = 1;
    int Min = 1;
    int Max = 100;
    int Left = 0, Top = 0, Width = 0, Height = 0; // twips
};

// The main window as the logic sees it.
struct TelaPrincipal {
    static constexpr int QuantCelulas = 105;
    std::array<Celula, QuantCelulas> celulas;
    // Num(i): failure 340 for an index outside 0..104.
    Celula& Num(int64_t i);
    const Celula& Num(int64_t i) const;

    CampoTexto TxtEscolhidos, TxtDezAp, TxtDezAp2, TxtValAp, TxtLoteria, TxtQuantApostas, TxtValorApostas;
    Spin SpbDezAp, SpbDezAp2;
    CaixaMarcar ChkFixar, ChkReduzir;
    Combo CmbFecha, CmbGarantia;
    Combo CmbAcertar{QString(), {}, false};
    bool BtnFecharEnabled = true;
    bool MenuMegaSena = false, MenuDuplaSena = false, MenuQuina = false, MenuLotomania = false,
         MenuLotoFacil = false;
    DocumentoRico TxtBanco;
    QString Caption = QStringLiteral("Sor Velo");

    // Layout state that the logic moves (twips).
    int PicLoteriaLeft = 0, PicLoteriaTop = 600;
    BarraRolagem BarraVert, BarraHoriz;
    std::array<bool, 8> HelpRotinaVisible{};
    int PicSort1Left = 240, PicSort1Top = 3000;
    int PicSort1Imagem = 1; // 1: at rest, 2: hovered (picture of PicSort2), 3: of PicSort3

    Int16 ContAjuda, ContCancela;
};

// The state that every part of the logic shares. It is made with its
// services and its dialogs, none of them missing, and keeps them for life.
struct Nucleo {
    Estado e;
    TelaPrincipal tela;
    const Servicos s;
    Dialogos& dialogos;

    // Throws std::invalid_argument when a service is missing.
    Nucleo(const Servicos& servicos, Dialogos& dialogos);
    Nucleo(const Nucleo&) = delete;
    Nucleo& operator=(const Nucleo&) = delete;

    QString agoraTexto(); // date, blank, time, as a log line starts
};

} // namespace sorvelo
