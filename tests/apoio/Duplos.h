// Scripted doubles of the desktop services, for tests and for the scenario
// runner. None of them blocks: a question that nobody scripted is recorded
// and answered with its default button.
#pragma once

#include "platform/Dialogos.h"
#include "platform/Servicos.h"

#include <QStringList>

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <vector>

namespace sorvelo {

struct CaixaVista {
    enum class Tipo { Informacao, Aviso, Critico, Pergunta } tipo;
    QString texto;
    Botoes botoes = Botoes::SimNao;
    Resposta padrao = Resposta::OK;
    Resposta resposta = Resposta::OK;
    bool roteirizada = false; // answered from the queue
};

class CaixaRoteirizada : public CaixaMensagem {
public:
    void responde(Resposta r) { respostas_.push_back(r); }
    void informacao(const QString& texto) override;
    void aviso(const QString& texto) override;
    void critico(const QString& texto) override;
    Resposta pergunta(const QString& texto, Botoes botoes, Resposta padrao) override;

    const std::vector<CaixaVista>& vistas() const { return vistas_; }
    // Questions that came with no scripted answer.
    std::vector<CaixaVista> naoRoteirizadas() const;
    size_t respostasPendentes() const { return respostas_.size(); }
    void limpa() {
        vistas_.clear();
        respostas_.clear();
    }
    // Called after each box is recorded (the scenario runner writes it down).
    std::function<void(const CaixaVista&)> aoMostrar;

private:
    Resposta registra(CaixaVista v);
    std::deque<Resposta> respostas_;
    std::vector<CaixaVista> vistas_;
};

class DialogoRoteirizado : public DialogoArquivo {
public:
    // An empty path is a Cancel.
    void enfileira(const QString& caminho) { caminhos_.push_back(caminho); }
    QString abrir(const QString& titulo, const QString& filtro) override;
    QString salvar(const QString& titulo, const QString& filtro) override;
    struct Pedido {
        bool salvar;
        QString titulo, filtro, resposta;
    };
    const std::vector<Pedido>& pedidos() const { return pedidos_; }

private:
    QString proximo(bool salvar, const QString& titulo, const QString& filtro);
    std::deque<QString> caminhos_;
    std::vector<Pedido> pedidos_;
};

class ImpressoraRegistro : public Impressora {
public:
    void defineFonte(const QString& nome, double tamanho) override;
    void imprime(const QString& texto) override;
    void fim() override;
    // "arquivo": the job's texts are written to the file, as UTF-8, at its end.
    void defineArquivo(const QString& caminho) override;
    // "fonte Arial 10", "texto ...", "fim", "arquivo NOME"
    QStringList registro;
    std::function<void(const QString&)> aoRegistrar;

private:
    void anota(const QString& linha);
    QString arquivo_, textos_;
};

// Answers scripted values first, then those of the classic generator.
class FonteRoteirizada : public FonteAleatoria {
public:
    void enfileira(float r) { valores_.push_back(r); }
    float rnd() override;
    void randomize(double semente) override {
        sementes.push_back(semente);
        gerador_.randomize(semente);
    }
    std::vector<double> sementes;

private:
    std::deque<float> valores_;
    GeradorClassico gerador_;
};

class RelogioFixo : public Relogio {
public:
    explicit RelogioFixo(QDateTime momento = QDateTime(QDate(2026, 11, 22), QTime(14, 5, 9)))
        : momento(momento) {}
    QDateTime agora() override { return momento; }
    QDateTime momento;
};

class CedenciaContada : public Cedencia {
public:
    void cede() override {
        ++quantas;
        if (aoCeder) aoCeder(quantas);
    }
    long long quantas = 0;
    std::function<void(long long)> aoCeder;
};

class AbridorRegistro : public Abridor {
public:
    void abre(const QString& endereco) override {
        abertos.push_back(endereco);
        if (aoAbrir) aoAbrir(endereco);
    }
    QStringList abertos;
    std::function<void(const QString&)> aoAbrir;
};

class PastaFixa : public PastaPrograma {
public:
    explicit PastaFixa(QString caminho = QString()) : caminho_(std::move(caminho)) {}
    QString caminho() override { return caminho_; }
    void define(const QString& c) { caminho_ = c; }

private:
    QString caminho_;
};

// The dialogs as a test scripts them: each request is recorded; a dialog
// given a script runs it (it drives the dialog's logic as a person would),
// one without a script is only recorded.
class DialogosRoteirizados : public Dialogos {
public:
    void mostra(Dialogo d) override {
        pedidos.push_back(d);
        auto it = roteiros_.find(d);
        if (it != roteiros_.end()) it->second();
    }
    // What the person does while dialog d is up (it replaces an earlier script).
    void quando(Dialogo d, std::function<void()> roteiro) { roteiros_[d] = std::move(roteiro); }
    // How many times d was asked for.
    int vezes(Dialogo d) const { return int(std::count(pedidos.begin(), pedidos.end(), d)); }
    std::vector<Dialogo> pedidos;

private:
    std::map<Dialogo, std::function<void()>> roteiros_;
};

// A complete set of doubles, ready to hand to a Programa.
struct ServicosDuplos {
    CaixaRoteirizada caixa;
    DialogoRoteirizado dialogo;
    ImpressoraRegistro impressora;
    FonteRoteirizada aleatorio;
    RelogioFixo relogio;
    CedenciaContada cedencia;
    AbridorRegistro abridor;
    PastaFixa pasta;
    DialogosRoteirizados dialogos;
    Servicos servicos() {
        return {&caixa, &dialogo, &impressora, &aleatorio, &relogio, &cedencia, &abridor, &pasta};
    }
    // The set with the yield (and the printer) of another kind, for a
    // Programa made with them.
    Servicos servicos(Cedencia* outraCedencia, Impressora* outraImpressora = nullptr) {
        Servicos s = servicos();
        if (outraCedencia) s.cedencia = outraCedencia;
        if (outraImpressora) s.impressora = outraImpressora;
        return s;
    }
};

} // namespace sorvelo
