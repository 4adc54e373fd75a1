#include "core/GravacaoAtomica.h"

#include "base/Semantica.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sorvelo {

std::function<int(EtapaGravacao, int64_t, int64_t)> GravacaoAtomica::falhaInjetada;

namespace {

bool discoCheio(int e) {
    return e == ENOSPC || e == EDQUOT || e == EFBIG;
}

[[noreturn]] void falhaCriacao(int e, const QString& pasta) {
    if (discoCheio(e)) throw FalhaExecucao(erro::DiscoCheio);
    if (!QDir(pasta).exists()) throw FalhaExecucao(erro::CaminhoNaoEncontrado);
    throw FalhaExecucao(erro::AcessoCaminho);
}

[[noreturn]] void falhaEscrita(int e) {
    throw FalhaExecucao(discoCheio(e) ? erro::DiscoCheio : erro::ErroEntradaSaida);
}

// A hidden name beside the final one that nobody else is using yet.
QByteArray nomeTemporario(const QByteArray& pasta, const QByteArray& final) {
    // Cut short, so that a long final name still leaves room for the rest.
    const QByteArray base = final.mid(final.lastIndexOf('/') + 1).left(64);
    const quint64 sorteio = QRandomGenerator::system()->generate64();
    return pasta + "/." + base + '.' + QByteArray::number(sorteio, 36) + ".tmp";
}

void sincronizaPasta(const QByteArray& pasta) {
    const int fd = ::open(pasta.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd); // the rename itself on the disk; the file is whole either way
    ::close(fd);
}

} // namespace

int GravacaoAtomica::injeta(EtapaGravacao etapa, int64_t tamanho) const {
    return falhaInjetada ? falhaInjetada(etapa, escritos_, tamanho) : 0;
}

GravacaoAtomica::GravacaoAtomica(const QString& nome) : nome_(nome) {
    const QFileInfo info(nome);
    final_ = QFile::encodeName(info.absoluteFilePath());
    pasta_ = QFile::encodeName(info.absolutePath());
    // A folder of that name can't be replaced by a file.
    if (info.isDir()) throw FalhaExecucao(erro::AcessoCaminho);
    if (const int e = injeta(EtapaGravacao::Criacao, 0)) falhaCriacao(e, info.absolutePath());
#ifdef O_TMPFILE
    // A file with no name in the folder: a kill leaves nothing behind.
    fd_ = ::open(pasta_.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0666);
    if (fd_ >= 0 && ::access("/proc/self/fd", X_OK) == 0) return;
    const int e = errno;
    if (fd_ >= 0) {
        ::close(fd_);
        fd_ = -1;
    } else if (e != EOPNOTSUPP && e != EISDIR && e != EINVAL) {
        falhaCriacao(e, info.absolutePath());
    }
#endif
    if (!criaComNome()) falhaCriacao(errno, info.absolutePath());
}

bool GravacaoAtomica::criaComNome() {
    for (int tentativa = 0; tentativa < 100; ++tentativa) {
        temporario_ = nomeTemporario(pasta_, final_);
        fd_ = ::open(temporario_.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
        if (fd_ >= 0) return true;
        if (errno != EEXIST) break;
    }
    temporario_.clear();
    return false;
}

GravacaoAtomica::~GravacaoAtomica() {
    if (!concluido_) descarta();
}

void GravacaoAtomica::descarta() noexcept {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
    if (!temporario_.isEmpty()) ::unlink(temporario_.constData());
    temporario_.clear();
}

void GravacaoAtomica::escreve(const char* dados, int64_t tamanho) {
    while (tamanho > 0) {
        const int64_t parte = std::min<int64_t>(tamanho, int64_t(1) << 30);
        if (const int e = injeta(EtapaGravacao::Escrita, parte)) falhaEscrita(e);
        const ssize_t n = ::write(fd_, dados, size_t(parte));
        if (n < 0) {
            if (errno == EINTR) continue;
            falhaEscrita(errno);
        }
        dados += n;
        tamanho -= n;
        escritos_ += n;
    }
}

void GravacaoAtomica::conclui() {
    if (const int e = injeta(EtapaGravacao::Sincronizacao, 0)) falhaEscrita(e);
    if (::fsync(fd_) != 0) falhaEscrita(errno);
    const QString pasta = QFileInfo(nome_).absolutePath();
    if (const int e = injeta(EtapaGravacao::Troca, 0)) falhaCriacao(e, pasta);
    if (temporario_.isEmpty()) {
        // The nameless file gets a hidden name of its own, then the final one.
        const QByteArray descritor = "/proc/self/fd/" + QByteArray::number(fd_);
        for (int tentativa = 0; tentativa < 100 && temporario_.isEmpty(); ++tentativa) {
            const QByteArray nome = nomeTemporario(pasta_, final_);
            if (::linkat(AT_FDCWD, descritor.constData(), AT_FDCWD, nome.constData(), AT_SYMLINK_FOLLOW) == 0)
                temporario_ = nome;
            else if (errno != EEXIST)
                falhaCriacao(errno, pasta);
        }
        if (temporario_.isEmpty()) falhaCriacao(EEXIST, pasta);
    }
    if (::close(fd_) != 0) {
        fd_ = -1;
        falhaEscrita(errno);
    }
    fd_ = -1;
    if (::rename(temporario_.constData(), final_.constData()) != 0) falhaCriacao(errno, pasta);
    temporario_.clear();
    concluido_ = true;
    sincronizaPasta(pasta_);
}

} // namespace sorvelo
