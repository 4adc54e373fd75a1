// Writing a whole file so that nobody ever finds it half-written: the new
// content goes to a file of its own in the same folder, is flushed to the
// disk, and takes the place of the old file by a rename only when complete.
// Until then the old file stays as it was; on any failure, and when the
// writing is abandoned (an exception, a kill), the new file goes away.
//
// Failures are the run-time failures of the file system: 75 for a folder or
// a name that can't be written, 76 for a folder that doesn't exist, 61 when
// the disk (or the file size allowed) is full, 57 for any other refusal.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>

namespace sorvelo {

// The steps of a save, as a test names them to make one fail.
enum class EtapaGravacao { Criacao, Escrita, Sincronizacao, Troca };

class GravacaoAtomica {
public:
    // Creates the new file beside `nome` (which must not be empty).
    explicit GravacaoAtomica(const QString& nome);
    // Without conclui: the new file is removed and the old one is untouched.
    ~GravacaoAtomica();
    GravacaoAtomica(const GravacaoAtomica&) = delete;
    GravacaoAtomica& operator=(const GravacaoAtomica&) = delete;

    void escreve(const char* dados, int64_t tamanho);
    // Flushes the new file to the disk and renames it over the old one.
    void conclui();

    // A test's file system fault: called before each step with the bytes
    // written so far and the size of the step's write (0 for the others);
    // an errno value other than 0 makes the step fail as if the system had
    // answered it.
    static std::function<int(EtapaGravacao etapa, int64_t escritos, int64_t tamanho)> falhaInjetada;

private:
    int injeta(EtapaGravacao etapa, int64_t tamanho) const;
    bool criaComNome();
    void descarta() noexcept;

    QString nome_;
    QByteArray final_;
    QByteArray pasta_;
    QByteArray temporario_; // empty while the new file has no name
    int fd_ = -1;
    int64_t escritos_ = 0;
    bool concluido_ = false;
};

} // namespace sorvelo
