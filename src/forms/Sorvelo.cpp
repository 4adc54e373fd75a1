#include "forms/Sorvelo.h"

#include "combinacoes/Combinacao.h"
#include "combinacoes/CombinacaoReduzida.h"
#include "core/ArquivoApostas.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Loteria.h"
#include "core/Principal.h"
#include "edicao/Eliminar.h"
#include "edicao/Filtrar.h"
#include "edicao/Importar.h"
#include "edicao/Sortear.h"
#include "forms/Controles.h"
#include "forms/Desenhos.h"
#include "forms/Janelas.h"
#include "forms/Protecao.h"
#include "platform/qt/AreaRica.h"
#include "relatorios/Ajuda.h"
#include "relatorios/Conferencia.h"
#include "relatorios/Exportar.h"
#include "relatorios/Sobre.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace sorvelo {

namespace {
QColor qcor(Cor c) {
    return QColor(vermelho(c), verde(c), azul(c));
}

QStringList itensGarantia(int ate) {
    QStringList l = palavrasGarantia();
    for (int i = 7; i <= ate; ++i)
        l << QString::number(i);
    return l;
}
} // namespace

Sorvelo::Sorvelo(Programa& p, JanelasFormas& janelas, QWidget* pai)
    : QMainWindow(pai), FormaBase(p, this), janelas_(janelas) {
    setObjectName(QStringLiteral("Sorvelo"));
    setWindowIcon(iconePrograma());
    janelas_.liga(p_, this);

    area_ = new QWidget(this);
    area_->setObjectName(QStringLiteral("AreaPrincipal"));
    setCentralWidget(area_);

    montaMenus();
    montaBarra();

    picLoteria_ = poe(new QWidget, area_, "PicLoteria", 0, 600, 11535, 10000);
    picLoteria_->installEventFilter(this);
    montaQuadroNumeros();
    montaQuadroBanco();
    montaQuadrosCombinacao();
    montaQuadroOpcoes();
    montaAjuda();

    barraVert_ = poe(new QScrollBar(Qt::Vertical), area_, "BarraVert", 11520, 600, 255, 2295);
    barraHoriz_ = poe(new QScrollBar(Qt::Horizontal), area_, "BarraHoriz", 0, 7800, 2295, 255);
    for (QScrollBar* b : {barraVert_, barraHoriz_}) {
        b->setRange(1, 100);
        b->setValue(1);
        b->setSingleStep(1);
        b->setPageStep(10);
    }
    liga(barraVert_, &QScrollBar::valueChanged, [this](int v) { MudaBarraVert(p_, v); });
    liga(barraHoriz_, &QScrollBar::valueChanged, [this](int v) { MudaBarraHoriz(p_, v); });

    timer1_ = new QTimer(this);
    timer1_->setObjectName(QStringLiteral("Timer1"));
    timer1_->setInterval(500);
    liga(timer1_, &QTimer::timeout, [this] { TickTimer1(p_); });

    executaProtegido([this] { CarregaPrincipal(p_); });
    // The work area below the menu gets the layout's client height, so that
    // the scroll bars start where the layout puts them.
    resize(tw(11880) - 8, tw(8900) - tw(705) + menuBar()->sizeHint().height());
    sincroniza();
    timer1_->start();
}

Sorvelo::~Sorvelo() {
    // The windows that refer to this one's state go first.
    janelas_.apagaTodas();
    // The controls still signal while they are taken down (the focus leaving
    // a box); nothing of this window may answer them any more.
    for (QObject* filho : findChildren<QObject*>())
        QObject::disconnect(filho, nullptr, this, nullptr);
}

template <typename F> void Sorvelo::age(F f) {
    executaProtegido(f);
    sincroniza();
}

void Sorvelo::trocaJogo(const QString& nome) {
    TrocaLoteria(p_, nome);
}

void Sorvelo::montaMenus() {
    auto menu = [this](const char* nome, const QString& titulo) {
        QMenu* m = menuBar()->addMenu(titulo);
        m->setObjectName(QString::fromUtf8(nome));
        m->menuAction()->setObjectName(QString::fromUtf8(nome));
        return m;
    };
    auto item = [this](QMenu* m, const char* nome, const QString& texto, auto acao) {
        QAction* a = m->addAction(texto);
        a->setObjectName(QString::fromUtf8(nome));
        liga(a, &QAction::triggered, acao);
        return a;
    };
    QMenu* arquivo = menu("MenuArquivo", QStringLiteral("&Arquivo"));
    item(arquivo, "MenuNovo", QStringLiteral("Novo"), [this] { NovoArquivo(p_); });
    item(arquivo, "MenuÄbrir", QStringLiteral("Abrir"), [this] { AbrirArquivo(p_); });
    item(arquivo, "MenuSalvar", QStringLiteral("Salvar"), [this] { SalvarArquivo(p_); });
    item(arquivo, "MenuSalvarComo", QStringLiteral("Salvar Como"), [this] { SalvarArquivoComo(p_); });
    arquivo->addSeparator()->setObjectName(QStringLiteral("Traco1"));
    item(arquivo, "MenuImprimir", QStringLiteral("Imprimir"), [] {});
    arquivo->addSeparator()->setObjectName(QStringLiteral("Traco2"));
    QAction* sair = arquivo->addAction(QStringLiteral("Sair"));
    sair->setObjectName(QStringLiteral("MenuSair"));
    connect(sair, &QAction::triggered, this, &QWidget::close);
    arquivo->addSeparator()->setObjectName(QStringLiteral("TracoImportar"));
    item(arquivo, "MenuImportar", QStringLiteral("Importar apostas..."),
         [this] { MenuImportar(p_, p_.importar); });
    item(arquivo, "MenuExportar", QStringLiteral("Exportar banco..."), [this] { ExportarBanco(p_); });

    QMenu* loterias = menu("MenuLoterias", QStringLiteral("&Loterias"));
    auto jogo = [&](const char* nome, int k) {
        QAction* a =
            item(loterias, nome, jogos()[size_t(k)].nome, [this, k] { trocaJogo(jogos()[size_t(k)].nome); });
        a->setCheckable(true);
        return a;
    };
    menuMegaSena_ = jogo("MenuMegaSena", 0);
    menuDuplaSena_ = jogo("MenuDuplaSena", 1);
    menuQuina_ = jogo("MenuQuina", 2);
    menuLotomania_ = jogo("MenuLotomania", 3);
    menuLotoFacil_ = jogo("MenuLotoFacil", 4);

    QMenu* relatorios = menu("MenuRelatorios", QStringLiteral("&Relatórios"));
    item(relatorios, "MenuImpBanco", QStringLiteral("Banco de apostas"),
         [this] { p_.dialogos.mostraRelBanco(); });
    item(relatorios, "MenuVerificarGarantia", QStringLiteral("Verificar garantia"),
         [this] { p_.dialogos.mostraVerificaGarantia(); });
    QMenu* internet = menu("MenuInternet", QStringLiteral("&Internet"));
    item(internet, "MenuNovidades", QStringLiteral("Novidades"), [this] { MenuNovidades(p_); });
    QMenu* ajuda = menu("MenuAjuda", QStringLiteral("Aj&uda"));
    item(ajuda, "MenuTopicos", QStringLiteral("Tópicos da ajuda"), [this] { p_.dialogos.mostraTopicos(); });
    item(ajuda, "MenuSobre", QStringLiteral("Sobre o Sor Velo"), [this] { p_.dialogos.mostraSobre(); });
}

void Sorvelo::montaBarra() {
    barraSup_ = new QToolBar(area_);
    barraSup_->setObjectName(QStringLiteral("BarraSup"));
    barraSup_->setGeometry(0, 0, tw(11880), tw(600));
    barraSup_->setIconSize(QSize(tw(21 * 15), tw(25 * 15)));
    barraSup_->setMovable(false);
    struct Botao {
        Imagem imagem;
        QString dica;
        std::function<void()> acao;
    };
    const std::array<Botao, 10> botoes{{
        {Imagem::Novo, QStringLiteral("Criar novo arquivo de jogos"), [this] { NovoArquivo(p_); }},
        {Imagem::Abrir, QStringLiteral("Abrir arquivo de jogos"), [this] { AbrirArquivo(p_); }},
        {Imagem::Salvar, QStringLiteral("Salvar jogos em arquivo"), [this] { SalvarArquivo(p_); }},
        {Imagem::Imprimir, QStringLiteral("Imprimir jogos na impressora"),
         [this] { p_.dialogos.mostraRelBanco(); }},
        {Imagem::Novo, QString(), nullptr},
        {Imagem::MegaSena, QStringLiteral("Seleciona Mega-Sena"), [this] { trocaJogo(jogos()[0].nome); }},
        {Imagem::DuplaSena, QStringLiteral("Seleciona Dupla Sena"), [this] { trocaJogo(jogos()[1].nome); }},
        {Imagem::Quina, QStringLiteral("Seleciona Quina"), [this] { trocaJogo(jogos()[2].nome); }},
        {Imagem::Lotomania, QStringLiteral("Seleciona Lotomania"), [this] { trocaJogo(jogos()[3].nome); }},
        {Imagem::LotoFacil, QStringLiteral("Seleciona Lotofácil"), [this] { trocaJogo(jogos()[4].nome); }},
    }};
    const qreal escala = escala_.dpi() / 96.0;
    for (size_t i = 0; i < botoes.size(); ++i) {
        const QString nome = QStringLiteral("BarraSup(%1)").arg(i + 1);
        if (!botoes[i].acao) {
            barraSup_->addSeparator()->setObjectName(nome);
            continue;
        }
        QAction* a = barraSup_->addAction(QIcon(desenhaImagem(botoes[i].imagem, escala)), botoes[i].dica);
        a->setObjectName(nome);
        a->setToolTip(botoes[i].dica);
        if (QWidget* w = barraSup_->widgetForAction(a)) w->setObjectName(nome);
        liga(a, &QAction::triggered, [f = botoes[i].acao] { f(); });
    }
    txtLoteria_ = poe(new QLineEdit, area_, "TxtLoteria", 6840, 60, 2595, 450);
    QFont f(QStringLiteral("Arial"));
    f.setBold(true);
    f.setPointSize(12);
    txtLoteria_->setFont(f);
    txtLoteria_->setReadOnly(true);
    txtLoteria_->setAlignment(Qt::AlignCenter);
    txtLoteria_->setFocusPolicy(Qt::NoFocus);
    vincula(txtLoteria_, p_.tela.TxtLoteria);
}

void Sorvelo::montaQuadroNumeros() {
    frame1_ =
        poe(new QGroupBox(QStringLiteral("Escolha de números")), picLoteria_, "Frame1", 120, 120, 5655, 3855);
    for (int i = 0; i < TelaPrincipal::QuantCelulas; ++i) {
        auto* c = new CelulaNumero;
        poe(c, frame1_, nullptr, 120 + 360 * (i % 15), 360 + 360 * (i / 15), 255, 255);
        c->setObjectName(QStringLiteral("Num(%1)").arg(i));
        num_[size_t(i)] = c;
        liga(c, &CelulaNumero::clicked, [this, i] { ClicaNumero(p_, Int16(int16_t(i))); });
    }
    picSort1_ = poe(new Figura, frame1_, "PicSort1", 240, 3000, 375, 375);
    picSort1_->setToolTip(QStringLiteral("Sortear números para combinação"));
    picSort1_->setMouseTracking(true);
    liga(picSort1_, &Figura::movido, [this](int, int) { p_.tela.PicSort1Imagem = 2; });
    liga(picSort1_, &Figura::pressionado, [this] {
        p_.tela.PicSort1Left = 260;
        p_.tela.PicSort1Top = 3020;
    });
    liga(picSort1_, &Figura::clicked, [this] { p_.dialogos.mostraSortComb(); });
    liga(picSort1_, &Figura::solto, [this] {
        p_.tela.PicSort1Left = 240;
        p_.tela.PicSort1Top = 3000;
    });

    rotulo(frame1_, QStringLiteral("Total escolhidos:"), 720, 3060, 1300, 255);
    txtEscolhidos_ = poe(new QLineEdit, frame1_, "TxtEscolhidos", 2040, 3000, 555, 315);
    txtEscolhidos_->setReadOnly(true);
    txtEscolhidos_->setAlignment(Qt::AlignCenter);
    chkFixar_ =
        poe(new QCheckBox(QStringLiteral("Fixar números")), frame1_, "ChkFixar", 2760, 3030, 1500, 255);
    vincula(chkFixar_, p_.tela.ChkFixar);
    rotulo(frame1_, QStringLiteral("Valor da aposta:"), 720, 3450, 1300, 255);
    txtValAp_ = poe(new QLineEdit, frame1_, "TxtValAp", 2040, 3390, 855, 315);
    vincula(txtEscolhidos_, p_.tela.TxtEscolhidos);
    vincula(txtValAp_, p_.tela.TxtValAp);
    auto* limpar =
        poe(new QPushButton(QStringLiteral("Limpar")), frame1_, "BtnLimpar", 4320, 3000, 1095, 375);
    liga(static_cast<QPushButton*>(limpar), &QPushButton::clicked, [this] { BtnLimpar(p_); });

    btnSeta_ = poe(new Figura, picLoteria_, "BtnSeta", 5760, 1560, 375, 375);
    btnSeta_->setPixmap(desenhaSeta(tw(375)));
    btnSeta_->setCursor(Qt::PointingHandCursor);
    liga(btnSeta_, &Figura::clicked, [this] { InsereApostaMarcada(p_); });
}

void Sorvelo::montaQuadroBanco() {
    fraBanco_ = poe(new QGroupBox(QStringLiteral("Banco de apostas")), picLoteria_, "FraBanco", 6120, 120,
                    5415, 4935);
    txtBanco_ = poe(new AreaRica, fraBanco_, "TxtBanco", 120, 240, 5055, 3255);
    txtBanco_->defineDocumento(&p_.tela.TxtBanco);
    rotulo(fraBanco_, QStringLiteral("Qtd. Apostas:"), 120, 3630, 1080, 255);
    txtQuantApostas_ = poe(new QLineEdit, fraBanco_, "TxtQuantApostas", 1200, 3570, 1095, 315);
    rotulo(fraBanco_, QStringLiteral("Valor Total:"), 2460, 3630, 960, 255);
    txtValorApostas_ = poe(new QLineEdit, fraBanco_, "TxtValorApostas", 3420, 3570, 1335, 315);
    vincula(txtQuantApostas_, p_.tela.TxtQuantApostas);
    vincula(txtValorApostas_, p_.tela.TxtValorApostas);
    for (QLineEdit* t : {txtQuantApostas_, txtValorApostas_}) {
        t->setReadOnly(true);
        t->setAlignment(Qt::AlignRight);
    }
    auto* limpaBanco =
        poe(new QPushButton(QStringLiteral("X")), fraBanco_, "BtnLimparBanco", 4860, 3570, 315, 315);
    limpaBanco->setToolTip(QStringLiteral("Limpar o banco de apostas"));
    liga(limpaBanco, &QPushButton::clicked, [this] { BtnLimparBanco(p_); });
    auto* filtrar = poe(new QPushButton(QStringLiteral("Filtrar banco de apostas")), fraBanco_, "BtnFiltrar",
                        120, 4020, 2535, 375);
    liga(filtrar, &QPushButton::clicked, [this] { BtnFiltrar(p_); });
    auto* estatistica = poe(new QPushButton(QStringLiteral("Estatística de acerto")), fraBanco_,
                            "CommandButton2", 2760, 4020, 2415, 375);
    liga(estatistica, &QPushButton::clicked, [this] { p_.dialogos.mostraEstatisticas(); });
    auto* conferir = poe(new QPushButton(QStringLiteral("Conferir banco")), fraBanco_, "BtnConferir", 120,
                         4440, 2535, 375);
    liga(conferir, &QPushButton::clicked, [this] { BtnConferir(p_); });
    fraBanco_->setMouseTracking(true);
    fraBanco_->installEventFilter(this);
}

void Sorvelo::montaQuadrosCombinacao() {
    frame2_ = poe(new QGroupBox(QStringLiteral("Combinações completas")), picLoteria_, "Frame2", 120, 4080,
                  5655, 1095);
    rotulo(frame2_, QStringLiteral("Dezenas por aposta:"), 240, 450, 1560, 255);
    txtDezAp_ = poe(new QLineEdit, frame2_, "TxtDezAp", 1800, 390, 495, 315);
    spbDezAp_ = poe(new BotaoGiro, frame2_, "SpbDezAp", 2295, 390, 255, 315);
    auto* iniciar = poe(new QPushButton(QStringLiteral("Iniciar Combinação completa")), frame2_, "BtnIniciar",
                        2760, 330, 2655, 435);
    iniciar->setToolTip(QStringLiteral("Faz uma combinação para fazer o fechamento dos números escolhidos"));
    liga(iniciar, &QPushButton::clicked, [this] { BtnIniciar(p_); });

    frame5_ = poe(new QGroupBox(QStringLiteral("Combinações reduzidas")), picLoteria_, "Frame5", 120, 5280,
                  5655, 1695);
    rotulo(frame5_, QStringLiteral("Dezenas por aposta:"), 240, 390, 1560, 255);
    txtDezAp2_ = poe(new QLineEdit, frame5_, "TxtDezAp2", 1800, 330, 495, 315);
    spbDezAp2_ = poe(new BotaoGiro, frame5_, "SpbDezAp2", 2295, 330, 255, 315);
    auto* reduz = poe(new QPushButton(QStringLiteral("Iniciar Combinação reduzida")), frame5_, "BtnReduz",
                      2760, 270, 2655, 435);
    reduz->setToolTip(QStringLiteral("Faz uma combinação reduzida com os números escolhidos"));
    liga(reduz, &QPushButton::clicked, [this] { BtnReduz(p_); });
    rotulo(frame5_, QStringLiteral("Garantia de:"), 240, 810, 1000, 255);
    auto* garantia = poe(new CaixaCombinacao, frame5_, "CmbGarantia", 1260, 750, 1215, 315);
    cmbGarantia_ = garantia;
    cmbGarantia_->setEditable(true);
    cmbGarantia_->addItems(itensGarantia(20));
    rotulo(frame5_, QStringLiteral("Se acertar"), 2640, 810, 840, 255);
    cmbAcertar_ = poe(new QComboBox, frame5_, "CmbAcertar", 3480, 750, 735, 315);
    cmbAcertar_->setEditable(true);
    for (int i = 2; i <= 20; ++i)
        cmbAcertar_->addItem(QString::number(i));
    rotulo(frame5_, QStringLiteral("números dentro dos números escolhidos."), 240, 1140, 5000, 255);
    chkReduzir_ = poe(new QCheckBox(QStringLiteral("Reduzir quant. de jogos ao mínimo possível")), frame5_,
                      "ChkReduzir", 240, 1380, 5000, 255);

    vincula(txtDezAp_, p_.tela.TxtDezAp);
    vincula(txtDezAp2_, p_.tela.TxtDezAp2);
    // A spin button writes its value into its text box and gives it the focus.
    auto giro = [this](BotaoGiro* botao, Spin& spin, CampoTexto& campo, QLineEdit* caixa) {
        liga(botao, &BotaoGiro::valueChanged, [this, &spin, &campo, caixa](int v) {
            spin.Value = v;
            MudaSpin(spin, campo);
            caixa->setFocus();
        });
    };
    giro(spbDezAp_, p_.tela.SpbDezAp, p_.tela.TxtDezAp, txtDezAp_);
    giro(spbDezAp2_, p_.tela.SpbDezAp2, p_.tela.TxtDezAp2, txtDezAp2_);
    vincula(cmbGarantia_, p_.tela.CmbGarantia);
    // Only a click on an item derives CmbAcertar, not a Tab through the box.
    liga(garantia, &CaixaCombinacao::escolhido, [this](int) {
        p_.tela.CmbGarantia.Text = cmbGarantia_->currentText();
        CliqueGarantia(p_);
    });
    vincula(cmbAcertar_, p_.tela.CmbAcertar);
    vincula(chkReduzir_, p_.tela.ChkReduzir);
    liga(chkReduzir_, &QCheckBox::clicked, [this](bool v) { CliqueReduzir(p_, v); });
    for (QWidget* q : {static_cast<QWidget*>(frame2_), static_cast<QWidget*>(frame5_)}) {
        q->setMouseTracking(true);
        q->installEventFilter(this);
    }
    for (QWidget* b : {static_cast<QWidget*>(iniciar), static_cast<QWidget*>(reduz)}) {
        b->setMouseTracking(true);
        // The move over a button hides marks; the frame must not see it too.
        b->setAttribute(Qt::WA_NoMousePropagation);
        b->installEventFilter(this);
    }
}

void Sorvelo::montaQuadroOpcoes() {
    frame3_ =
        poe(new QGroupBox(QStringLiteral("Outras opções")), picLoteria_, "Frame3", 6000, 5160, 5535, 1815);
    rotulo(frame3_, QStringLiteral("Garantia de:"), 240, 330, 1000, 255);
    cmbFecha_ = poe(new QComboBox, frame3_, "CmbFecha", 1260, 270, 1215, 315);
    cmbFecha_->setEditable(true);
    cmbFecha_->addItems(itensGarantia(15));
    vincula(cmbFecha_, p_.tela.CmbFecha);
    btnFechar_ = poe(new QPushButton(QStringLiteral("Iniciar fechamento")), frame3_, "BtnFechar", 2640, 240,
                     2655, 375);
    liga(btnFechar_, &QPushButton::clicked, [this] { BtnFechar(p_); });
    auto* sortear = poe(new QPushButton(QStringLiteral("Sortear apostas pelo computador")), frame3_,
                        "BtnSortear", 240, 600, 2535, 330);
    auto* jogoAJogo =
        poe(new QPushButton(QStringLiteral("Jogo a jogo")), frame3_, "CommandButton1", 2880, 600, 2415, 330);
    auto* digitar =
        poe(new QPushButton(QStringLiteral("Digitar apostas")), frame3_, "BtnDigitar", 240, 1080, 2535, 375);
    auto* eliminar = poe(new QPushButton(QStringLiteral("Eliminação de números")), frame3_, "BtnEliminar",
                         2880, 1080, 2415, 375);
    liga(eliminar, &QPushButton::clicked, [this] { BtnEliminar(p_); });
    liga(sortear, &QPushButton::clicked, [this] { BtnSortear(p_); });
    liga(digitar, &QPushButton::clicked, [this] { p_.dialogos.mostraDigitacao(); });
    liga(jogoAJogo, &QPushButton::clicked, [this] { p_.dialogos.mostraJogoAJogo(); });
    frame3_->setMouseTracking(true);
    frame3_->installEventFilter(this);
    for (QWidget* b : {static_cast<QWidget*>(btnFechar_), static_cast<QWidget*>(sortear),
                       static_cast<QWidget*>(digitar)}) {
        b->setMouseTracking(true);
        // The move over a button hides marks; the frame must not see it too.
        b->setAttribute(Qt::WA_NoMousePropagation);
        b->installEventFilter(this);
    }
    frame1_->setMouseTracking(true);
    frame1_->installEventFilter(this);
}

void Sorvelo::montaAjuda() {
    struct Marca {
        QWidget* quadro;
        int x, y;
    };
    const std::array<Marca, 8> marcas{{{frame2_, 5400, 120},
                                       {frame3_, 5280, 300},
                                       {frame3_, 2640, 660},
                                       {frame3_, 5280, 1500},
                                       {fraBanco_, 2640, 4500},
                                       {fraBanco_, 5160, 4080},
                                       {frame5_, 5400, 120},
                                       {frame1_, 5400, 120}}};
    const QPixmap imagem = desenhaAjuda(tw(195));
    for (size_t k = 0; k < marcas.size(); ++k) {
        auto* f = new Figura;
        poe(f, marcas[k].quadro, nullptr, marcas[k].x, marcas[k].y, 195, 195);
        f->setObjectName(QStringLiteral("HelpRotina(%1)").arg(k));
        f->setPixmap(imagem);
        f->setToolTip(QStringLiteral("O que é isto?"));
        f->hide();
        helpRotina_[k] = f;
        liga(f, &Figura::clicked, [this, k] { ClicaHelpRotina(p_, int(k)); });
    }
}

void Sorvelo::atualizaTela() {
    const auto& t = p_.tela;
    for (int i = 0; i < TelaPrincipal::QuantCelulas; ++i) {
        const Celula& c = t.celulas[size_t(i)];
        num_[size_t(i)]->define(c.Text, qcor(c.BackColor), qcor(c.ForeColor));
    }
    spbDezAp_->setValueSilencioso(t.SpbDezAp.Value);
    spbDezAp2_->setValueSilencioso(t.SpbDezAp2.Value);
    btnFechar_->setEnabled(t.BtnFecharEnabled);
    menuMegaSena_->setChecked(t.MenuMegaSena);
    menuDuplaSena_->setChecked(t.MenuDuplaSena);
    menuQuina_->setChecked(t.MenuQuina);
    menuLotomania_->setChecked(t.MenuLotomania);
    menuLotoFacil_->setChecked(t.MenuLotoFacil);
    if (windowTitle() != t.Caption) setWindowTitle(t.Caption);
    txtBanco_->setVisible(t.TxtBanco.visivel());
    txtBanco_->atualiza();
    if (caretNoFimVisto_ != t.TxtBanco.pedidosCaretNoFim()) {
        caretNoFimVisto_ = t.TxtBanco.pedidosCaretNoFim();
        txtBanco_->rolaParaFim();
    }
    aplicaLayout();
    for (size_t k = 0; k < helpRotina_.size(); ++k)
        helpRotina_[k]->setVisible(t.HelpRotinaVisible[k]);
    picSort1_->move(tw(t.PicSort1Left), tw(t.PicSort1Top) + descidaNaMoldura(frame1_));
    if (imagemSort1_ != t.PicSort1Imagem) {
        imagemSort1_ = t.PicSort1Imagem;
        picSort1_->setPixmap(desenhaDados(imagemSort1_, tw(375)));
    }
    if (barraVert_->value() != t.BarraVert.Value) barraVert_->setValue(t.BarraVert.Value);
    if (barraHoriz_->value() != t.BarraHoriz.Value) barraHoriz_->setValue(t.BarraHoriz.Value);
}

void Sorvelo::aplicaLayout() {
    const auto& t = p_.tela;
    picLoteria_->move(tw(t.PicLoteriaLeft), tw(t.PicLoteriaTop));
    if (t.BarraVert.Height > 0) {
        barraVert_->setGeometry(tw(t.BarraVert.Left), tw(600), tw(255), tw(t.BarraVert.Height));
        barraHoriz_->setGeometry(0, tw(t.BarraHoriz.Top), tw(t.BarraHoriz.Width), tw(255));
    }
    barraVert_->raise();
    barraHoriz_->raise();
    barraSup_->raise();
    txtLoteria_->raise();
}

void Sorvelo::resizeEvent(QResizeEvent* e) {
    QMainWindow::resizeEvent(e);
    if (!area_ || !barraVert_) return;
    // The outer size as the program measures it: the work area plus the
    // borders, the title and the menu.
    const int largura = deTw(area_->width()) + 120;
    const int altura = deTw(area_->height()) + 705;
    age([&] { Redimensiona(p_, largura, altura); });
}

bool Sorvelo::eventFilter(QObject* alvo, QEvent* e) {
    if (e->type() == QEvent::MouseMove) {
        const QPoint pos = static_cast<QMouseEvent*>(e)->position().toPoint();
        const int x = deTw(pos.x()), y = deTw(pos.y());
        const QString nome = alvo->objectName();
        static const QHash<QString, Regiao> regioes = {{QStringLiteral("Frame1"), Regiao::Frame1},
                                                       {QStringLiteral("Frame2"), Regiao::Frame2},
                                                       {QStringLiteral("Frame3"), Regiao::Frame3},
                                                       {QStringLiteral("Frame5"), Regiao::Frame5},
                                                       {QStringLiteral("FraBanco"), Regiao::FraBanco},
                                                       {QStringLiteral("BtnIniciar"), Regiao::BtnIniciar},
                                                       {QStringLiteral("BtnFechar"), Regiao::BtnFechar},
                                                       {QStringLiteral("BtnSortear"), Regiao::BtnSortear},
                                                       {QStringLiteral("BtnDigitar"), Regiao::BtnDigitar},
                                                       {QStringLiteral("BtnReduz"), Regiao::BtnReduz}};
        auto it = regioes.find(nome);
        if (it != regioes.end()) age([&] { MovimentoMouse(p_, it.value(), x, y); });
    } else if (e->type() == QEvent::MouseButtonPress && alvo == picLoteria_) {
        age([&] { EscondeAjuda(p_); });
    }
    return QMainWindow::eventFilter(alvo, e);
}

void Sorvelo::closeEvent(QCloseEvent* e) {
    if (!fechado_) {
        fechado_ = true;
        timer1_->stop();
        age([this] { FechaPrincipal(p_); });
        emit encerrado();
    }
    e->accept();
}

} // namespace sorvelo
