#include "roteiro/Roteiro.h"

#include "forms/Apresenta.h"

#include "core/Estado.h"
#include "forms/Protecao.h"
#include "forms/Sorvelo.h"
#include "platform/Atividade.h"
#include "platform/qt/Vista.h"
#include "programa/Programa.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>
#include <cstdlib>

namespace sorvelo::roteiro {

Roteiro::Roteiro(std::vector<LinhaCenario> linhas, Transcricao& saida, OpcoesRoteiro opcoes)
    : linhas_(std::move(linhas)), saida_(saida), op_(std::move(opcoes)), servicos_(*this) {
    if (!op_.encerraProcesso) {
        op_.encerraProcesso = [](int s) {
            std::fflush(nullptr);
            std::_Exit(s);
        };
    }
    passo_.setSingleShot(true);
    passo_.setInterval(0);
    connect(&passo_, &QTimer::timeout, this, &Roteiro::passo);
}

Roteiro::~Roteiro() {
    {
        std::lock_guard<std::mutex> trava(mutexVigia_);
        pararVigia_ = true;
    }
    condVigia_.notify_all();
    if (vigia_.joinable()) vigia_.join();
    qApp->removeEventFilter(this);
    janela_.reset();
    apresenta_.reset();
    programa_.reset();
    defineTratadorFalha(nullptr);
}

int Roteiro::executa() {
    defineTratadorFalha([this](const FalhaExecucao& f) {
        anota(QStringLiteral("falha %1 %2").arg(f.numero()).arg(aspas(f.texto())));
        termina(status::FalhaExecucao, true);
    });
    if (!preparaPasta()) return status_;
    qApp->installEventFilter(this);
    if (iniciaApresenta_)
        criaApresenta();
    else
        criaJanela();
    if (fim_) return status_;
    vigia_ = std::thread([this] { vigia(); });
    esperando_.start();
    agenda();
    laco_ = true;
    QApplication::exec();
    laco_ = false;
    return status_;
}

// `pasta` lines stand before all others: the folder is the program's from its
// start; `inicia` comes with them.
bool Roteiro::preparaPasta() {
    while (proxima_ < linhas_.size() && linhas_[proxima_].erro.isEmpty() &&
           (linhas_[proxima_].comando() == QStringLiteral("pasta") ||
            linhas_[proxima_].comando() == QStringLiteral("inicia"))) {
        const LinhaCenario& l = linhas_[proxima_++];
        if (!(l.comando() == QStringLiteral("pasta") ? cmdPasta(l) : cmdInicia(l))) return false;
    }
    if (servicos_.pasta.caminho().isEmpty()) {
        pastaTemporaria_ = std::make_unique<QTemporaryDir>();
        servicos_.pasta.define(pastaTemporaria_->path());
    }
    return true;
}

void Roteiro::criaJanela() {
    programa_ = std::make_unique<Programa>(servicos_.servicos(), janelas_);
    janela_ = std::make_unique<Sorvelo>(*programa_, janelas_);
    connect(janela_.get(), &Sorvelo::encerrado, this, &Roteiro::aoEncerrar);
    if (op_.aoCriarJanela) op_.aoCriarJanela(*janela_);
    janela_->show();
    janela_->activateWindow();
    QApplication::setActiveWindow(janela_.get());
    tempo_.adota(janela_.get());
}

void Roteiro::criaApresenta() {
    programa_ = std::make_unique<Programa>(servicos_.servicos(), janelas_);
    auto fazPrincipal = [this]() -> std::unique_ptr<QWidget> {
        return std::make_unique<Sorvelo>(*programa_, janelas_);
    };
    apresenta_ = std::make_unique<JanelaApresenta>(*programa_, fazPrincipal, arquivoInicial_);
    connect(apresenta_.get(), &JanelaApresenta::principalAberta, this, [this](QWidget*) {
        janela_.reset(static_cast<Sorvelo*>(apresenta_->tomaPrincipal().release()));
        Sorvelo* j = janela_.get();
        anota(QStringLiteral("forma Sorvelo %1 não modal").arg(aspas(j->windowTitle())));
        connect(j, &Sorvelo::encerrado, this, &Roteiro::aoEncerrar);
        if (op_.aoCriarJanela) op_.aoCriarJanela(*j);
        j->activateWindow();
        QApplication::setActiveWindow(j);
        tempo_.adota(j);
    });
    // Closed by its frame, the box ends the program.
    connect(apresenta_.get(), &JanelaApresenta::encerrado, this, &Roteiro::aoEncerrar);
    apresenta_->show();
    apresenta_->activateWindow();
    QApplication::setActiveWindow(apresenta_.get());
}

int Roteiro::tw(int twips) const {
    return Escala(janela_.get()).tw(twips);
}

int Roteiro::deTw(int pixels) const {
    return Escala(janela_.get()).deTw(pixels);
}

bool Roteiro::aninhado() const {
    return Atividade::manipuladores > 0 || Atividade::modais > 0 || profundidadeCedencia_ > 0;
}

void Roteiro::termina(int s, bool sempreEncerra) {
    if (fim_) return;
    fim_ = true;
    status_ = s;
    saida_.descarrega();
    if (sempreEncerra || aninhado())
        encerra(s);
    else if (laco_)
        QCoreApplication::exit(s);
}

void Roteiro::encerra(int s) {
    // The process ends with no destructor run: the temporary folder goes first.
    if (pastaTemporaria_) pastaTemporaria_->remove();
    op_.encerraProcesso(s);
}

void Roteiro::erro(int linha, const QString& mensagem) {
    anota(QStringLiteral("erro linha %1: %2").arg(linha).arg(mensagem));
    termina(status::CenarioErrado);
}

void Roteiro::passo() {
    if (fim_) return;
    ++pulso_;
    agenda();
    if (!Atividade::ocioso()) {
        verificaEspera();
        return;
    }
    QCoreApplication::sendPostedEvents();
    if (fim_ || !Atividade::ocioso()) return;
    if (!verificaArmadas()) return;
    if (proxima_ >= linhas_.size()) {
        conclui();
        return;
    }
    const LinhaCenario& l = linhas_[proxima_++];
    linhaAtual_ = l.numero;
    linhaVigiada_ = l.numero;
    cedencias_ = 0;
    armaCedencias();
    tempo_.observa();
    executaLinha(l);
    esperando_.restart();
}

void Roteiro::verificaEspera() {
    if (esperando_.elapsed() <= op_.limiteEsperaMs) return;
    const int linha = proxima_ < linhas_.size() ? linhas_[proxima_].numero : linhaAtual_;
    erro(linha,
         QStringLiteral("a linha esperou mais de %1 s pelo programa").arg(op_.limiteEsperaMs / 1000.0));
}

// The na_cedencia lines behind the line about to act are armed together.
void Roteiro::armaCedencias() {
    armadas_.clear();
    while (proxima_ < linhas_.size() && linhas_[proxima_].erro.isEmpty() &&
           linhas_[proxima_].comando() == QStringLiteral("na_cedencia")) {
        const LinhaCenario& l = linhas_[proxima_++];
        bool ok = false;
        const long long n =
            l.palavras.size() >= 3 && !l.palavras[1].aspas ? l.palavras[1].texto.toLongLong(&ok) : 0;
        Armada a;
        a.numero = l.numero;
        a.cedencia = n;
        a.linha.numero = l.numero;
        a.linha.palavras.assign(l.palavras.begin() + std::min<size_t>(2, l.palavras.size()),
                                l.palavras.end());
        if (!ok || n < 1)
            a.linha.erro = QStringLiteral("na_cedencia pede um número a partir de 1 e uma linha");
        else if (a.linha.palavras.front().texto == QStringLiteral("na_cedencia") ||
                 a.linha.palavras.front().texto == QStringLiteral("responde"))
            a.linha.erro = QStringLiteral("na_cedencia não leva %1").arg(a.linha.palavras.front().texto);
        if (!a.linha.erro.isEmpty()) {
            erro(l.numero, a.linha.erro);
            return;
        }
        armadas_.push_back(std::move(a));
    }
}

bool Roteiro::verificaArmadas() {
    for (const Armada& a : armadas_) {
        if (a.feita) continue;
        erro(a.numero, QStringLiteral("a cedência %1 não houve (houve %2)").arg(a.cedencia).arg(cedencias_));
        return false;
    }
    armadas_.clear();
    return true;
}

void Roteiro::cedeu() {
    ++pulso_;
    ++cedencias_;
    // Most yields run no event loop, where the wait is checked otherwise.
    if (cedencias_ % 64 == 0 && !Atividade::ocioso()) verificaEspera();
    for (size_t i = 0; i < armadas_.size() && !fim_; ++i) {
        if (armadas_[i].feita || armadas_[i].cedencia != cedencias_) continue;
        armadas_[i].feita = true;
        const LinhaCenario linha = armadas_[i].linha;
        // What the program shows at this yield, as its own yield shows it.
        atualizaVistas();
        ++profundidadeCedencia_;
        linhaAtual_ = linha.numero;
        executaLinha(linha);
        --profundidadeCedencia_;
    }
}

void Roteiro::aoEncerrar() {
    // The close flow ended the program: nothing of the scenario may follow.
    if (proxima_ < linhas_.size()) {
        erro(linhas_[proxima_].numero, QStringLiteral("o programa já terminou"));
        return;
    }
    conclui();
}

void Roteiro::conclui() {
    for (const Armada& a : armadas_) {
        if (!a.feita) {
            erro(a.numero,
                 QStringLiteral("a cedência %1 não houve (houve %2)").arg(a.cedencia).arg(cedencias_));
            return;
        }
    }
    if (!arquivos_.empty()) {
        const Arquivo& a = arquivos_.front();
        erro(linhaAtual_, QStringLiteral("nenhum diálogo de arquivo usou a resposta %1")
                              .arg(a.cancela ? QStringLiteral("cancela") : aspas(a.caminho)));
        return;
    }
    termina(conferenciaFalhou_ ? status::ConferenciaFalhou : status::Ok);
}

Resposta Roteiro::atendeCaixa(const QString& tipo, const QString& texto, const QList<Resposta>& botoes,
                              Resposta padrao) {
    QStringList nomes;
    for (Resposta r : botoes)
        nomes << nomeResposta(r);
    anota(QStringLiteral("caixa %1 %2 [%3] padrão %4")
              .arg(tipo, aspas(texto), nomes.join(QStringLiteral(", ")), nomeResposta(padrao)));
    if (fim_) return padrao;
    if (proxima_ >= linhas_.size() || !linhas_[proxima_].erro.isEmpty() ||
        linhas_[proxima_].comando() != QStringLiteral("responde")) {
        termina(status::CaixaSemResposta, true);
        return padrao;
    }
    const LinhaCenario& l = linhas_[proxima_++];
    linhaAtual_ = l.numero;
    Resposta r = padrao;
    if (!confereForma(l, "pp")) return padrao;
    if (!respostaDoNome(l.palavras[1].texto, r)) {
        erro(l.numero, QStringLiteral("resposta desconhecida: %1").arg(l.palavras[1].texto));
        return padrao;
    }
    if (!botoes.contains(r)) {
        erro(l.numero, QStringLiteral("a caixa não tem o botão %1").arg(l.palavras[1].texto));
        return padrao;
    }
    anota(QStringLiteral("resposta ") + nomeResposta(r));
    servicos_.cedencia.linhaAgiu();
    return r;
}

QString Roteiro::atendeDialogo(bool salvar, const QString& titulo, const QString& filtro) {
    anota(
        QStringLiteral("arquivo %1 %2 %3")
            .arg(salvar ? QStringLiteral("salvar") : QStringLiteral("abrir"), aspas(titulo), aspas(filtro)));
    if (arquivos_.empty()) {
        erro(linhaAtual_, QStringLiteral("nenhum `arquivo` responde a este diálogo"));
        return QString();
    }
    const Arquivo a = arquivos_.front();
    arquivos_.pop_front();
    anota(QStringLiteral("resposta ") + (a.cancela ? QStringLiteral("cancela") : aspas(a.caminho)));
    servicos_.cedencia.linhaAgiu();
    return a.cancela ? QString() : a.caminho;
}

bool Roteiro::eventFilter(QObject* alvo, QEvent* e) {
    const QEvent::Type tipo = e->type();
    if (tipo != QEvent::Show && tipo != QEvent::Hide) return false;
    auto* w = qobject_cast<QWidget*>(alvo);
    if (!w || !w->isWindow() || qobject_cast<Sorvelo*>(w) || !w->property("sorvelo_forma").toBool() ||
        e->spontaneous())
        return false;
    const bool anunciada = nomesFormas_.contains(w);
    if (tipo == QEvent::Show && !anunciada) {
        nomesFormas_.insert(w, w->objectName());
        formas_.push_back(w);
        connect(w, &QObject::destroyed, this, [this, w] {
            if (nomesFormas_.contains(w)) anota(QStringLiteral("fecha ") + nomesFormas_.take(w));
        });
        const bool modal = w->windowModality() != Qt::NonModal;
        anota(QStringLiteral("forma %1 %2 %3")
                  .arg(w->objectName(), aspas(w->windowTitle()),
                       modal ? QStringLiteral("modal") : QStringLiteral("não modal")));
        tempo_.adota(w);
    } else if (tipo == QEvent::Hide && anunciada) {
        anota(QStringLiteral("fecha ") + nomesFormas_.take(w));
        formas_.erase(std::remove(formas_.begin(), formas_.end(), w), formas_.end());
    }
    return false;
}

void Roteiro::vigia() {
    long long visto = -1;
    auto desde = std::chrono::steady_clock::now();
    std::unique_lock<std::mutex> trava(mutexVigia_);
    while (!pararVigia_) {
        condVigia_.wait_for(trava, std::chrono::milliseconds(200));
        if (pararVigia_) break;
        const long long p = pulso_;
        const auto agora = std::chrono::steady_clock::now();
        if (p != visto) {
            visto = p;
            desde = agora;
        } else if (agora - desde > std::chrono::milliseconds(op_.limiteEsperaMs)) {
            // The program stays in a handler with no yield: it cannot be reached.
            anota(QStringLiteral("erro linha %1: o programa não volta ao laço de mensagens há mais de %2 s")
                      .arg(linhaVigiada_.load())
                      .arg(op_.limiteEsperaMs / 1000.0));
            encerra(status::CenarioErrado);
            return;
        }
    }
}

} // namespace sorvelo::roteiro
