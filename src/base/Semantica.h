// The program's run-time semantics, kept in one place: checked 16- and
// 32-bit integers, conversion at the nearest whole number with halves to even,
// the numeric value of a text, number masks, number-to-text with the blank of
// the sign, and the run-time failure that ends the program.
#pragma once

#include <QString>

#include <compare>
#include <cstdint>
#include <exception>
#include <string>

namespace sorvelo {

// Numbers of the run-time failures the program can raise.
namespace erro {
constexpr int ChamadaInvalida = 5;
constexpr int Estouro = 6;
constexpr int MemoriaInsuficiente = 7;
constexpr int SubscritoForaIntervalo = 9;
constexpr int DivisaoPorZero = 11;
constexpr int TiposIncompativeis = 13;
constexpr int NomeArquivoInvalido = 52;
constexpr int ArquivoNaoEncontrado = 53;
constexpr int ErroEntradaSaida = 57;
constexpr int DiscoCheio = 61;
constexpr int PermissaoNegada = 70;
constexpr int AcessoCaminho = 75;
constexpr int CaminhoNaoEncontrado = 76;
constexpr int ElementoControle = 340;
constexpr int Impressora = 482;
} // namespace erro

// The Portuguese text of a run-time failure number.
QString textoErro(int numero);

// A failure that no routine guards: it travels to the top of the program,
// which shows "Erro em tempo de execução 'N':" with the text and ends.
class FalhaExecucao : public std::exception {
public:
    explicit FalhaExecucao(int numero);
    FalhaExecucao(int numero, QString texto);
    int numero() const noexcept { return numero_; }
    const QString& texto() const noexcept { return texto_; }
    const char* what() const noexcept override { return utf8_.c_str(); }

private:
    int numero_;
    QString texto_;
    std::string utf8_;
};

// Failure 340 for a control-array element that does not exist.
FalhaExecucao falhaElementoControle(int indice);

// The message that the top of the program shows for a failure.
QString mensagemFalha(const FalhaExecucao& f);

[[noreturn]] void estouro();
[[noreturn]] void foraDoIntervalo();

// Conversion to an integer at the nearest whole number, halves to even;
// a value outside the range (or not a number) is the overflow failure.
int16_t paraInt16(double valor);
int32_t paraInt32(double valor);
int16_t paraInt16(int64_t valor);
int32_t paraInt32(int64_t valor);

// Signed integer of N bits whose arithmetic fails on overflow.
template <typename T> class InteiroVerificado {
public:
    constexpr InteiroVerificado() = default;
    constexpr InteiroVerificado(T v) : v_(v) {} // NOLINT: as the program's literals
    static InteiroVerificado de(int64_t v) { return InteiroVerificado(converte(v)); }
    static InteiroVerificado de(double v) { return InteiroVerificado(converte(v)); }
    constexpr T valor() const { return v_; }

    InteiroVerificado& operator=(T v) {
        v_ = v;
        return *this;
    }
    InteiroVerificado& operator+=(int64_t d) {
        v_ = converte(int64_t(v_) + d);
        return *this;
    }
    InteiroVerificado& operator-=(int64_t d) {
        v_ = converte(int64_t(v_) - d);
        return *this;
    }
    InteiroVerificado& operator++() { return *this += 1; }
    InteiroVerificado& operator--() { return *this -= 1; }
    friend InteiroVerificado operator+(InteiroVerificado a, int64_t b) { return de(int64_t(a.v_) + b); }
    friend InteiroVerificado operator-(InteiroVerificado a, int64_t b) { return de(int64_t(a.v_) - b); }
    friend InteiroVerificado operator*(InteiroVerificado a, int64_t b) { return de(int64_t(a.v_) * b); }
    friend InteiroVerificado operator+(InteiroVerificado a, InteiroVerificado b) { return a + int64_t(b.v_); }
    friend InteiroVerificado operator-(InteiroVerificado a, InteiroVerificado b) { return a - int64_t(b.v_); }
    friend InteiroVerificado operator*(InteiroVerificado a, InteiroVerificado b) { return a * int64_t(b.v_); }
    friend bool operator==(InteiroVerificado a, int64_t b) { return a.v_ == b; }
    friend auto operator<=>(InteiroVerificado a, int64_t b) { return int64_t(a.v_) <=> b; }
    friend bool operator==(InteiroVerificado a, InteiroVerificado b) { return a.v_ == b.v_; }
    friend auto operator<=>(InteiroVerificado a, InteiroVerificado b) { return a.v_ <=> b.v_; }

private:
    static T converte(int64_t v);
    static T converte(double v);
    T v_ = 0;
};

template <> inline int16_t InteiroVerificado<int16_t>::converte(int64_t v) {
    return paraInt16(v);
}
template <> inline int16_t InteiroVerificado<int16_t>::converte(double v) {
    return paraInt16(v);
}
template <> inline int32_t InteiroVerificado<int32_t>::converte(int64_t v) {
    return paraInt32(v);
}
template <> inline int32_t InteiroVerificado<int32_t>::converte(double v) {
    return paraInt32(v);
}

using Int16 = InteiroVerificado<int16_t>;
using Int32 = InteiroVerificado<int32_t>;

// The numeric value of a text: blanks are skipped, digits are read with the
// point as decimal mark (an exponent E or D may follow), reading stops at the
// first character that cannot continue the number; no number reads 0.
// A value beyond the double range is the overflow failure.
double valorNumerico(const QString& texto);

// A mask of zeros ("00", "00000", "000000"): pads on the left, never cuts.
QString formata(int64_t numero, int digitos);
inline QString formata00(int64_t numero) {
    return formata(numero, 2);
}

// A number turned into text with the blank that stands for a plus sign:
// " 12", "-3", " 4.5", " .5", " 1E+15".
QString textoNumero(int64_t numero);
QString textoNumero(double numero);

// Single-precision value as the program prints it (for Rnd results).
QString textoNumeroSimples(float numero);

} // namespace sorvelo
