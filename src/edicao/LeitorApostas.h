// The reader of bets kept outside the program: a text or CSV file where
// every line that holds numbers is one bet. It takes the file's bytes in
// pieces of any size, keeps bounded memory whatever the input, and checks
// each bet against the game in use.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sorvelo {

// A line that did not become a bet: its number in the file (from 1) and why.
struct Recusa {
    int64_t linha = 0;
    QString motivo;
};

class LeitorApostas {
public:
    static constexpr int MaxNumeros = 81;                // numbers in one bet
    static constexpr int MaxCaracteresLinha = 4096;      // longer lines are refused
    static constexpr int MaxRecusasGuardadas = 100;      // reasons kept for the report
    static constexpr int64_t MaxApostas = 5000000;       // valid bets read at most
    static constexpr int64_t MaxNumerosTotal = 60000000; // and their numbers in all

    // The game's numbers: numIni to numFim (0 to 99 at most).
    LeitorApostas(int numIni, int numFim);

    // Lower bounds than MaxApostas and MaxNumerosTotal (for tests).
    void defineLimites(int64_t apostas, int64_t numeros) {
        maxApostas_ = apostas;
        maxNumeros_ = numeros;
    }
    int64_t limiteApostas() const { return maxApostas_; }
    int64_t limiteNumeros() const { return maxNumeros_; }

    // The next bytes of the file. Nothing more is read after a fatal error
    // or once MaxApostas bets or MaxNumerosTotal numbers are in hand.
    void le(const char* dados, size_t tamanho);
    // The end of the file: the last line, when it has no line end.
    void termina();

    // True when reading stopped: the file is no text, or the bets are too many.
    bool parou() const { return !erro_.isEmpty() || limiteAtingido_; }
    // A fatal error: the file is not a text file (empty when none).
    const QString& erro() const { return erro_; }
    bool limiteAtingido() const { return limiteAtingido_; }

    int64_t quantApostas() const { return int64_t(inicios_.size()); }
    // The numbers of bet i, ascending (0 to 99 each).
    const uint8_t* aposta(int64_t i, int& quant) const;
    int64_t quantRecusadas() const { return quantRecusadas_; }
    const std::vector<Recusa>& recusas() const { return recusas_; }
    int64_t linhasLidas() const { return linha_; }
    // The file's first column is the bet's number (a CSV with the column "Aposta").
    bool comColunaAposta() const { return comColunaAposta_; }

private:
    void fimDeLinha();
    void processaLinha(const char* s, int n);
    void recusa(const QString& motivo);
    QString textoNumero(int n) const;

    int numIni_, numFim_;
    // The line in hand.
    std::vector<char> linhaAtual_;
    bool linhaLonga_ = false;
    bool crAnterior_ = false;
    bool inicioArquivo_ = true;
    int bomLido_ = 0;
    bool algumConteudo_ = false; // a line with fields came already
    bool comColunaAposta_ = false;
    int64_t linha_ = 0; // lines ended so far
    // The bets: numbers one after another, and where each begins.
    std::vector<uint8_t> numeros_;
    std::vector<uint64_t> inicios_;
    int64_t quantRecusadas_ = 0;
    std::vector<Recusa> recusas_;
    QString erro_;
    bool limiteAtingido_ = false;
    int64_t maxApostas_ = MaxApostas, maxNumeros_ = MaxNumerosTotal;
};

} // namespace sorvelo
