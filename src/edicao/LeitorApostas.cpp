#include "edicao/LeitorApostas.h"

#include <algorithm>
#include <bitset>

namespace sorvelo {

namespace {

constexpr unsigned char Bom[3] = {0xEF, 0xBB, 0xBF};

bool separador(char c) {
    return c == ' ' || c == '\t' || c == ',' || c == ';' || c == '-';
}
bool digito(char c) {
    return c >= '0' && c <= '9';
}

// A field as the report shows it: at most 20 characters, from UTF-8.
QString campoVisivel(const char* s, int n) {
    const int mostrar = std::min(n, 20);
    QString t = QString::fromUtf8(s, mostrar);
    if (n > mostrar) t += QStringLiteral("...");
    return t;
}

// The value of a field of digits, or -1 when it has more than three
// significant digits (no game goes past 99).
int valorCampo(const char* s, int n) {
    int i = 0;
    while (i < n - 1 && s[i] == '0')
        ++i;
    if (n - i > 3) return -1;
    int v = 0;
    for (; i < n; ++i)
        v = v * 10 + (s[i] - '0');
    return v;
}

} // namespace

LeitorApostas::LeitorApostas(int numIni, int numFim)
    : numIni_(std::clamp(numIni, 0, 99)), numFim_(std::clamp(numFim, 0, 99)) {
    linhaAtual_.reserve(256);
}

void LeitorApostas::le(const char* dados, size_t tamanho) {
    size_t i = 0;
    // The byte-order mark, which may come split across pieces.
    while (inicioArquivo_ && i < tamanho) {
        if (bomLido_ < 3 && static_cast<unsigned char>(dados[i]) == Bom[bomLido_]) {
            ++bomLido_;
            ++i;
            if (bomLido_ == 3) inicioArquivo_ = false;
            continue;
        }
        inicioArquivo_ = false;
        // A partial mark was content after all.
        for (int k = 0; k < bomLido_; ++k)
            linhaAtual_.push_back(char(Bom[k]));
    }
    while (i < tamanho && !parou()) {
        if (crAnterior_) {
            crAnterior_ = false;
            if (dados[i] == '\n') {
                ++i;
                continue;
            }
        }
        // The piece of the line up to its end, a null byte or the end of
        // the bytes in hand.
        size_t f = i;
        while (f < tamanho && dados[f] != '\n' && dados[f] != '\r' && dados[f] != '\0')
            ++f;
        const size_t n = f - i;
        const bool inteira = f < tamanho && dados[f] != '\0' && linhaAtual_.empty() && !linhaLonga_;
        if (inteira && n <= size_t(MaxCaracteresLinha)) {
            // A whole line within the bytes in hand: read where it stands.
            ++linha_;
            processaLinha(dados + i, int(n));
        } else {
            const size_t cabe =
                size_t(MaxCaracteresLinha) - std::min(linhaAtual_.size(), size_t(MaxCaracteresLinha));
            if (n > cabe) linhaLonga_ = true;
            if (!linhaLonga_) linhaAtual_.insert(linhaAtual_.end(), dados + i, dados + f);
            if (f < tamanho && dados[f] != '\0') fimDeLinha();
        }
        if (f == tamanho) break;
        if (dados[f] == '\0') {
            erro_ = QStringLiteral("O arquivo não é um arquivo de texto (tem bytes nulos na linha %1).")
                        .arg(linha_ + 1);
            return;
        }
        crAnterior_ = dados[f] == '\r';
        i = f + 1;
    }
}

void LeitorApostas::termina() {
    if (parou()) return;
    if (inicioArquivo_) {
        inicioArquivo_ = false;
        for (int k = 0; k < bomLido_; ++k)
            linhaAtual_.push_back(char(Bom[k]));
    }
    if (!linhaAtual_.empty() || linhaLonga_) fimDeLinha();
}

void LeitorApostas::fimDeLinha() {
    ++linha_;
    if (linhaLonga_) {
        recusa(QStringLiteral("linha longa demais (mais de %1 caracteres)").arg(MaxCaracteresLinha));
    } else {
        processaLinha(linhaAtual_.data(), int(linhaAtual_.size()));
    }
    linhaAtual_.clear();
    linhaLonga_ = false;
}

void LeitorApostas::recusa(const QString& motivo) {
    ++quantRecusadas_;
    if (int(recusas_.size()) < MaxRecusasGuardadas) recusas_.push_back({linha_, motivo});
}

QString LeitorApostas::textoNumero(int n) const {
    return n < 10 ? QStringLiteral("0%1").arg(n) : QString::number(n);
}

void LeitorApostas::processaLinha(const char* s, int n) {
    int i = 0;
    while (i < n && (s[i] == ' ' || s[i] == '\t'))
        ++i;
    const bool primeira = !algumConteudo_;
    if (i < n) algumConteudo_ = true;
    // The head of a CSV of bets: its first column is "Aposta".
    if (primeira && i < n) {
        int f = i;
        while (f < n && s[f] != ';' && s[f] != ',' && s[f] != '\t')
            ++f;
        QString primeiro = QString::fromUtf8(s + i, f - i).trimmed();
        if (primeiro.size() >= 2 && primeiro.startsWith(u'"') && primeiro.endsWith(u'"'))
            primeiro = primeiro.mid(1, primeiro.size() - 2);
        if (primeiro.compare(QStringLiteral("Aposta"), Qt::CaseInsensitive) == 0) {
            comColunaAposta_ = true;
            return;
        }
    }
    if (comColunaAposta_) {
        // The bet's number in the first column is skipped.
        while (i < n && s[i] != ';' && s[i] != ',' && s[i] != '\t')
            ++i;
    } else {
        // A leading line number such as "00001)".
        int j = i;
        while (j < n && digito(s[j]))
            ++j;
        if (j > i && j < n && s[j] == ')') i = j + 1;
    }

    int numeros[MaxNumeros + 1];
    int quant = 0;
    bool demais = false;
    int foraDoJogo = -1; // index in the line of the first field out of range
    int foraTamanho = 0;
    int textoInicio = -1, textoTamanho = 0;
    while (i < n) {
        if (separador(s[i])) {
            ++i;
            continue;
        }
        int f = i;
        while (f < n && !separador(s[f]))
            ++f;
        const char* campo = s + i;
        int tamanho = f - i;
        if (tamanho >= 2 && campo[0] == '"' && campo[tamanho - 1] == '"') {
            ++campo;
            tamanho -= 2;
        }
        i = f;
        if (tamanho == 0) continue;
        if (!std::all_of(campo, campo + tamanho, digito)) {
            if (textoInicio < 0) {
                textoInicio = int(campo - s);
                textoTamanho = tamanho;
            }
            continue;
        }
        const int v = valorCampo(campo, tamanho);
        if ((v < numIni_ || v > numFim_) && foraDoJogo < 0) {
            foraDoJogo = int(campo - s);
            foraTamanho = tamanho;
        }
        if (quant < MaxNumeros)
            numeros[quant++] = v;
        else
            demais = true;
    }

    if (quant == 0) return; // no number: skipped
    if (textoInicio >= 0) {
        recusa(QStringLiteral("\"%1\" não é um número").arg(campoVisivel(s + textoInicio, textoTamanho)));
        return;
    }
    if (demais) {
        recusa(QStringLiteral("mais de %1 números numa aposta").arg(MaxNumeros));
        return;
    }
    if (foraDoJogo >= 0) {
        recusa(
            QStringLiteral("o número %1 está fora do jogo (%2 a %3)")
                .arg(campoVisivel(s + foraDoJogo, foraTamanho), textoNumero(numIni_), textoNumero(numFim_)));
        return;
    }
    std::bitset<100> vistos;
    for (int k = 0; k < quant; ++k) {
        if (vistos.test(size_t(numeros[k]))) {
            recusa(QStringLiteral("o número %1 aparece mais de uma vez").arg(textoNumero(numeros[k])));
            return;
        }
        vistos.set(size_t(numeros[k]));
    }
    inicios_.push_back(numeros_.size());
    for (int v = numIni_; v <= numFim_; ++v)
        if (vistos.test(size_t(v))) numeros_.push_back(uint8_t(v));
    if (quantApostas() >= maxApostas_ || int64_t(numeros_.size()) >= maxNumeros_) limiteAtingido_ = true;
}

const uint8_t* LeitorApostas::aposta(int64_t i, int& quant) const {
    const uint64_t inicio = inicios_[size_t(i)];
    const uint64_t fim = size_t(i) + 1 < inicios_.size() ? inicios_[size_t(i) + 1] : numeros_.size();
    quant = int(fim - inicio);
    return numeros_.data() + inicio;
}

} // namespace sorvelo
