#include "roteiro/ServicosRoteiro.h"

#include "platform/qt/Vista.h"
#include "roteiro/Transcricao.h"

#include "base/Semantica.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace sorvelo::roteiro {

namespace {
RelogioMs relogioDe(const Condutor& c) {
    return [&c] { return c.agoraMs(); };
}
} // namespace

QString nomeResposta(Resposta r) {
    switch (r) {
    case Resposta::OK:
        return QStringLiteral("OK");
    case Resposta::Sim:
        return QStringLiteral("Sim");
    case Resposta::Nao:
        return QStringLiteral("Não");
    case Resposta::Cancelar:
        return QStringLiteral("Cancelar");
    }
    return QString();
}

bool respostaDoNome(const QString& nome, Resposta& r) {
    for (Resposta k : {Resposta::OK, Resposta::Sim, Resposta::Nao, Resposta::Cancelar}) {
        if (nomeResposta(k) == nome) {
            r = k;
            return true;
        }
    }
    return false;
}

void CaixaConduzida::informacao(const QString& texto) {
    atualizaVistas();
    c_.atendeCaixa(QStringLiteral("informação"), texto, {Resposta::OK}, Resposta::OK);
}
void CaixaConduzida::aviso(const QString& texto) {
    atualizaVistas();
    c_.atendeCaixa(QStringLiteral("aviso"), texto, {Resposta::OK}, Resposta::OK);
}
void CaixaConduzida::critico(const QString& texto) {
    atualizaVistas();
    c_.atendeCaixa(QStringLiteral("crítico"), texto, {Resposta::OK}, Resposta::OK);
}
Resposta CaixaConduzida::pergunta(const QString& texto, Botoes botoes, Resposta padrao) {
    QList<Resposta> b = {Resposta::Sim, Resposta::Nao};
    if (botoes == Botoes::SimNaoCancelar) b << Resposta::Cancelar;
    atualizaVistas();
    return c_.atendeCaixa(QStringLiteral("pergunta"), texto, b, padrao);
}

QString DialogoConduzido::abrir(const QString& titulo, const QString& filtro) {
    atualizaVistas();
    return c_.atendeDialogo(false, titulo, filtro);
}
QString DialogoConduzido::salvar(const QString& titulo, const QString& filtro) {
    atualizaVistas();
    return c_.atendeDialogo(true, titulo, filtro);
}

void ImpressoraConduzida::defineFonte(const QString& nome, double tamanho) {
    c_.anota(QStringLiteral("impressora fonte %1 %2").arg(aspas(nome), QString::number(tamanho)));
}
void ImpressoraConduzida::imprime(const QString& texto) {
    c_.anota(QStringLiteral("impressora ") + aspas(texto));
    if (!arquivo_.isEmpty()) textos_ += texto;
}
void ImpressoraConduzida::fim() {
    c_.anota(QStringLiteral("impressora fim"));
    if (arquivo_.isEmpty()) return;
    QFile f(arquivo_);
    arquivo_.clear();
    const QByteArray bytes = textos_.toUtf8();
    textos_.clear();
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        throw FalhaExecucao(erro::Impressora);
}
void ImpressoraConduzida::defineArquivo(const QString& caminho) {
    // The file's own name is a temporary one: the transcript gives its kind.
    c_.anota(QStringLiteral("impressora arquivo ") + QFileInfo(caminho).suffix());
    arquivo_ = caminho;
    textos_.clear();
}

void AbridorConduzido::abre(const QString& endereco) {
    c_.anota(QStringLiteral("abre ") + aspas(endereco));
}

CedenciaConduzida::CedenciaConduzida(Condutor& c) : c_(c), ritmo_(IntervaloCedenciaMs, relogioDe(c), 1) {}

void CedenciaConduzida::cede() {
    c_.cedeu();
    if (!ritmo_.devida()) return;
    QCoreApplication::processEvents();
    ritmo_.rodou();
}

} // namespace sorvelo::roteiro
