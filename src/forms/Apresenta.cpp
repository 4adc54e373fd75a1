#include "forms/Apresenta.h"

#include "core/ArquivoInicial.h"
#include "forms/Ilustracoes.h"
#include "forms/Sorvelo.h"

#include <QCloseEvent>
#include <QPushButton>

namespace sorvelo {

JanelaApresenta::JanelaApresenta(Programa& p, FazPrincipal fazPrincipal, QString arquivo)
    : Formulario(p, "Apresenta", QStringLiteral("Sorvelo")), fazPrincipal_(std::move(fazPrincipal)),
      arquivo_(std::move(arquivo)) {
    setWindowIcon(QIcon(desenhaEmblema(64)));
    auto* image1 = poe(new QLabel, this, "Image1", 240, 240, 1920, 1920);
    image1->setPixmap(desenhaEmblema(tw(1920)));
    auto* image2 = poe(new QLabel, this, "Image2", 2400, 360, 3840, 960);
    image2->setPixmap(desenhaBolas(tw(3840), tw(960)));
    auto* image3 = poe(new QLabel, this, "Image3", 2640, 1440, 3360, 2040);
    image3->setPixmap(desenhaVolante(tw(3360), tw(2040)));
    QLabel* nome = rotulo(QStringLiteral("Sorvelo"), 240, 2280, 2160, 480, "LblNome");
    QFont grande(QStringLiteral("Arial"), 16);
    grande.setBold(true);
    nome->setFont(grande);
    nome->setAlignment(Qt::AlignCenter);
    auto* entrar = poe(new QPushButton(QStringLiteral("Entrar")), this, "BtnEntrar", 2640, 3720, 1575, 435);
    entrar->setDefault(true);
    connect(entrar, &QPushButton::clicked, this, &JanelaApresenta::entra);
    tamanho(6480, 4440);
}

JanelaApresenta::~JanelaApresenta() = default;

void JanelaApresenta::entra() {
    // The two steps ignore their failures.
    try {
        if (!janela_) {
            principal_ = fazPrincipal_();
            janela_ = principal_.get();
            janela_->show();
            emit principalAberta(janela_);
        }
    } catch (const std::exception&) {
    }
    entrou_ = true;
    close();
    if (!janela_ || arquivo_.isEmpty()) return;
    const QString arquivo = std::exchange(arquivo_, QString());
    executaProtegido([&] { AbreArquivoInicial(p_, arquivo); });
    atualizaVistas();
}

void JanelaApresenta::closeEvent(QCloseEvent* e) {
    e->accept();
    if (!entrou_) emit encerrado();
}

} // namespace sorvelo
