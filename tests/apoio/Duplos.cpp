#include "apoio/Duplos.h"

#include "base/Semantica.h"

#include <QFile>
#include <QFileInfo>

namespace sorvelo {

Resposta CaixaRoteirizada::registra(CaixaVista v) {
    if (v.tipo != CaixaVista::Tipo::Pergunta) {
        v.resposta = Resposta::OK;
        v.roteirizada = !respostas_.empty() && respostas_.front() == Resposta::OK;
        if (v.roteirizada) respostas_.pop_front();
    } else if (!respostas_.empty()) {
        v.resposta = respostas_.front();
        respostas_.pop_front();
        v.roteirizada = true;
    } else {
        v.resposta = v.padrao;
    }
    vistas_.push_back(v);
    if (aoMostrar) aoMostrar(vistas_.back());
    return v.resposta;
}

void CaixaRoteirizada::informacao(const QString& texto) {
    registra({CaixaVista::Tipo::Informacao, texto});
}
void CaixaRoteirizada::aviso(const QString& texto) {
    registra({CaixaVista::Tipo::Aviso, texto});
}
void CaixaRoteirizada::critico(const QString& texto) {
    registra({CaixaVista::Tipo::Critico, texto});
}

Resposta CaixaRoteirizada::pergunta(const QString& texto, Botoes botoes, Resposta padrao) {
    return registra({CaixaVista::Tipo::Pergunta, texto, botoes, padrao});
}

std::vector<CaixaVista> CaixaRoteirizada::naoRoteirizadas() const {
    std::vector<CaixaVista> r;
    for (const auto& v : vistas_)
        if (v.tipo == CaixaVista::Tipo::Pergunta && !v.roteirizada) r.push_back(v);
    return r;
}

QString DialogoRoteirizado::proximo(bool salvar, const QString& titulo, const QString& filtro) {
    QString r;
    if (!caminhos_.empty()) {
        r = caminhos_.front();
        caminhos_.pop_front();
    }
    pedidos_.push_back({salvar, titulo, filtro, r});
    return r;
}

QString DialogoRoteirizado::abrir(const QString& titulo, const QString& filtro) {
    return proximo(false, titulo, filtro);
}
QString DialogoRoteirizado::salvar(const QString& titulo, const QString& filtro) {
    return proximo(true, titulo, filtro);
}

void ImpressoraRegistro::anota(const QString& linha) {
    registro.push_back(linha);
    if (aoRegistrar) aoRegistrar(linha);
}
void ImpressoraRegistro::defineFonte(const QString& nome, double tamanho) {
    anota(QStringLiteral("fonte %1 %2").arg(nome).arg(tamanho));
}
void ImpressoraRegistro::imprime(const QString& texto) {
    anota(QStringLiteral("texto ") + texto);
    if (!arquivo_.isEmpty()) textos_ += texto;
}
void ImpressoraRegistro::fim() {
    anota(QStringLiteral("fim"));
    if (arquivo_.isEmpty()) return;
    QFile f(arquivo_);
    arquivo_.clear();
    const QByteArray bytes = textos_.toUtf8();
    textos_.clear();
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        throw FalhaExecucao(erro::Impressora);
}
void ImpressoraRegistro::defineArquivo(const QString& caminho) {
    anota(QStringLiteral("arquivo ") + QFileInfo(caminho).suffix());
    arquivo_ = caminho;
    textos_.clear();
}

float FonteRoteirizada::rnd() {
    if (!valores_.empty()) {
        const float r = valores_.front();
        valores_.pop_front();
        return r;
    }
    return gerador_.rnd();
}

} // namespace sorvelo
