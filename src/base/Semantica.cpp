#include "base/Semantica.h"

#include <cfenv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace sorvelo {

QString textoErro(int numero) {
    switch (numero) {
    case erro::ChamadaInvalida:
        return QStringLiteral("Chamada de procedimento ou argumento inválido");
    case erro::Estouro:
        return QStringLiteral("Estouro");
    case erro::MemoriaInsuficiente:
        return QStringLiteral("Memória insuficiente");
    case erro::SubscritoForaIntervalo:
        return QStringLiteral("Subscrito fora do intervalo");
    case erro::DivisaoPorZero:
        return QStringLiteral("Divisão por zero");
    case erro::TiposIncompativeis:
        return QStringLiteral("Tipos incompatíveis");
    case erro::NomeArquivoInvalido:
        return QStringLiteral("Nome ou número de arquivo inválido");
    case erro::ArquivoNaoEncontrado:
        return QStringLiteral("Arquivo não encontrado");
    case erro::ErroEntradaSaida:
        return QStringLiteral("Erro de E/S de dispositivo");
    case erro::DiscoCheio:
        return QStringLiteral("Disco cheio");
    case erro::PermissaoNegada:
        return QStringLiteral("Permissão negada");
    case erro::AcessoCaminho:
        return QStringLiteral("Erro de acesso a caminho/arquivo");
    case erro::CaminhoNaoEncontrado:
        return QStringLiteral("Caminho não encontrado");
    case erro::ElementoControle:
        return QStringLiteral("O elemento da matriz de controle não existe");
    case erro::Impressora:
        return QStringLiteral("Erro de impressora");
    default:
        return QStringLiteral("Erro definido pelo aplicativo ou pelo objeto");
    }
}

FalhaExecucao::FalhaExecucao(int numero) : FalhaExecucao(numero, textoErro(numero)) {}

FalhaExecucao::FalhaExecucao(int numero, QString texto)
    : numero_(numero), texto_(std::move(texto)),
      utf8_(QStringLiteral("%1 %2").arg(numero_).arg(texto_).toStdString()) {}

FalhaExecucao falhaElementoControle(int indice) {
    return FalhaExecucao(erro::ElementoControle,
                         QStringLiteral("O elemento '%1' da matriz de controle não existe").arg(indice));
}

QString mensagemFalha(const FalhaExecucao& f) {
    return QStringLiteral("Erro em tempo de execução '%1':\r\n\r\n%2").arg(f.numero()).arg(f.texto());
}

void estouro() {
    throw FalhaExecucao(erro::Estouro);
}
void foraDoIntervalo() {
    throw FalhaExecucao(erro::SubscritoForaIntervalo);
}

namespace {
template <typename T> T arredondaVerificado(double valor) {
    if (std::isnan(valor)) estouro();
    // nearbyint rounds halves to even in the default rounding mode.
    const double r = std::nearbyint(valor);
    if (r < double(std::numeric_limits<T>::min()) || r > double(std::numeric_limits<T>::max())) estouro();
    return static_cast<T>(r);
}
template <typename T> T estreitaVerificado(int64_t valor) {
    if (valor < std::numeric_limits<T>::min() || valor > std::numeric_limits<T>::max()) estouro();
    return static_cast<T>(valor);
}
} // namespace

int16_t paraInt16(double valor) {
    return arredondaVerificado<int16_t>(valor);
}
int32_t paraInt32(double valor) {
    return arredondaVerificado<int32_t>(valor);
}
int16_t paraInt16(int64_t valor) {
    return estreitaVerificado<int16_t>(valor);
}
int32_t paraInt32(int64_t valor) {
    return estreitaVerificado<int32_t>(valor);
}

namespace {
bool ehBranco(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n';
}
bool ehDigito(QChar c) {
    return c >= u'0' && c <= u'9';
}
} // namespace

double valorNumerico(const QString& texto) {
    // Gather the characters of the number, blanks left out, then read them.
    std::string numero;
    int i = 0;
    const int n = int(texto.size());
    auto proximo = [&]() -> QChar {
        while (i < n && ehBranco(texto[i]))
            ++i;
        return i < n ? texto[i] : QChar();
    };
    QChar c = proximo();
    if (c == u'+' || c == u'-') {
        numero += char(c.unicode());
        ++i;
        c = proximo();
    }
    bool temDigito = false;
    while (ehDigito(c)) {
        numero += char(c.unicode());
        temDigito = true;
        ++i;
        c = proximo();
    }
    if (c == u'.') {
        numero += '.';
        ++i;
        c = proximo();
        while (ehDigito(c)) {
            numero += char(c.unicode());
            temDigito = true;
            ++i;
            c = proximo();
        }
    }
    if (!temDigito) return 0.0;
    if (c == u'e' || c == u'E' || c == u'd' || c == u'D') {
        std::string expoente = "e";
        const int guarda = i;
        ++i;
        c = proximo();
        if (c == u'+' || c == u'-') {
            expoente += char(c.unicode());
            ++i;
            c = proximo();
        }
        bool temDigitoExp = false;
        while (ehDigito(c)) {
            expoente += char(c.unicode());
            temDigitoExp = true;
            ++i;
            c = proximo();
        }
        if (temDigitoExp)
            numero += expoente;
        else
            i = guarda;
    }
    const double v = std::strtod(numero.c_str(), nullptr);
    if (std::isinf(v)) estouro();
    return v;
}

QString formata(int64_t numero, int digitos) {
    const bool negativo = numero < 0;
    uint64_t resto = negativo ? uint64_t(0) - uint64_t(numero) : uint64_t(numero);
    char16_t buf[24];
    int i = 24;
    do {
        buf[--i] = char16_t(u'0' + resto % 10);
        resto /= 10;
    } while (resto);
    QString s(reinterpret_cast<const QChar*>(buf + i), 24 - i);
    if (s.size() < digitos) s.prepend(QString(digitos - s.size(), u'0'));
    return negativo ? u'-' + s : s;
}

QString textoNumero(int64_t numero) {
    return numero < 0 ? QString::number(numero) : u' ' + QString::number(numero);
}

namespace {
// The program's display of a floating value with a given count of
// significant digits: no leading zero before the point, exponent E+NN.
QString textoFlutuante(double numero, int significativos) {
    if (numero == 0) return QStringLiteral(" 0");
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*G", significativos, numero);
    QString s = QString::fromLatin1(buf);
    QString sinal = QStringLiteral(" ");
    if (s.startsWith(u'-')) {
        sinal = QStringLiteral("-");
        s.remove(0, 1);
    }
    if (s.startsWith(QStringLiteral("0."))) s.remove(0, 1);
    return sinal + s;
}
} // namespace

QString textoNumero(double numero) {
    return textoFlutuante(numero, 15);
}
QString textoNumeroSimples(float numero) {
    return textoFlutuante(double(numero), 7);
}

} // namespace sorvelo
