#include "core/ArquivoApostas.h"

#include "base/Cp1252.h"
#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/GravacaoAtomica.h"
#include "core/Loteria.h"
#include "core/Module1.h"
#include "core/Rtf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

namespace sorvelo {

int64_t LimiteTextoArquivo = LimiteTextoArquivoPadrao;

namespace {

const QString TituloSalvar = QStringLiteral("Salvar arquivo de apostas");
const QString TituloAbrir = QStringLiteral("Abrir arquivo de apostas");
const QString Filtro = QStringLiteral("Arquivo de apostas (*.Apo)|*.Apo;");
const QString PerguntaSobrescrever = QStringLiteral("Este nome de arquivo já existe! Deseja sobrescrever?");

constexpr int TamanhoComprimento = 10;
// The position of CarregaVetBan is a signed 16-bit value: it never reads a
// character past this one.
constexpr int64_t UltimaPosicaoVetBan = 32767;

// The failure of a file that cannot be opened.
[[noreturn]] void falhaAbertura(const QString& nome) {
    if (nome.isEmpty()) throw FalhaExecucao(erro::NomeArquivoInvalido);
    if (!QFileInfo(nome).absoluteDir().exists()) throw FalhaExecucao(erro::CaminhoNaoEncontrado);
    throw FalhaExecucao(erro::AcessoCaminho);
}

// ------------------------------------------------------------ writing

std::string bytesVetBan(const Nucleo& p) {
    const MatrizTexto& v = p.e.VetBan;
    std::string s;
    const int64_t quant = p.e.QuantBan.valor();
    try {
        s.reserve(size_t(std::max<int64_t>(quant, 0)) * 13);
        for (int64_t linha = 0; linha < quant; ++linha) {
            int n = 0;
            const uint8_t* c = v.celulas(linha, n);
            // With no "#" the walk runs off the row's columns.
            if (n == 0 || c[n - 1] != MatrizTexto::Fim) foraDoIntervalo();
            for (int k = 0; k < n - 1; ++k) {
                const uint8_t codigo = c[k];
                if (codigo >= MatrizTexto::PrimeiroNumero && codigo < MatrizTexto::PrimeiroNumero + 100) {
                    const int numero = codigo - MatrizTexto::PrimeiroNumero;
                    s += char('0' + numero / 10);
                    s += char('0' + numero % 10);
                } else if (codigo == MatrizTexto::Outro) {
                    s += cp1252::codifica(v.valor(k, linha)).toStdString();
                }
            }
            s += '#';
        }
    } catch (const std::bad_alloc&) {
        throw FalhaExecucao(erro::MemoriaInsuficiente);
    }
    return s;
}

QString textoDasCelulas(const Nucleo& p, Cor fundo) {
    QString s;
    for (int i = 0; i <= 99; ++i)
        if (p.tela.Num(i).BackColor == fundo) s += p.tela.Num(i).Text;
    return s;
}

class Gravador {
public:
    explicit Gravador(GravacaoAtomica& arquivo) : arquivo_(arquivo) {}
    void campo(const char* dados, int64_t tamanho) {
        char comprimento[TamanhoComprimento];
        std::memset(comprimento, ' ', sizeof comprimento);
        const QByteArray digitos = QByteArray::number(qlonglong(tamanho));
        std::memcpy(comprimento, digitos.constData(), size_t(digitos.size()));
        escreve(comprimento, TamanhoComprimento);
        posicao_ += TamanhoComprimento;
        escreve(dados, tamanho);
        posicao_ += tamanho;
    }
    void campo(const QByteArray& b) { campo(b.constData(), b.size()); }
    void campo(const std::string& b) { campo(b.data(), int64_t(b.size())); }
    void campo(const QString& texto) { campo(cp1252::codifica(texto)); }

private:
    void escreve(const char* dados, int64_t tamanho) { arquivo_.escreve(dados, tamanho); }
    GravacaoAtomica& arquivo_;
    Int32 posicao_ = 1;
};

// ------------------------------------------------------------ reading

// A field as read: the bytes that the file holds, then the blanks that stand
// for the rest of a text running past the end of the file. The blanks are
// made only where the result depends on them.
struct Campo {
    QByteArray bytes;
    int64_t brancos = 0;
    int64_t tamanho() const { return bytes.size() + brancos; }
    // The first n characters, blanks included.
    QByteArray inicio(int64_t n) const {
        n = std::min(n, tamanho());
        if (n <= bytes.size()) return bytes.left(n);
        try {
            return bytes + QByteArray(n - bytes.size(), ' ');
        } catch (const std::bad_alloc&) {
            throw FalhaExecucao(erro::MemoriaInsuficiente);
        }
    }
    QString texto() const {
        try {
            QString r = cp1252::decodifica(bytes);
            if (brancos > 0) r.append(QString(brancos, u' '));
            return r;
        } catch (const std::bad_alloc&) {
            throw FalhaExecucao(erro::MemoriaInsuficiente);
        }
    }
};

// Reads the fields one after the other. A byte past the end of the file
// reads as a blank, as the blank-filled buffer of the read is left there.
class Leitor {
public:
    explicit Leitor(QFile& arquivo) : arquivo_(arquivo), tamanho_(arquivo.size()) {}

    Campo campo() {
        const Campo comprimento = bytes(TamanhoComprimento);
        posicao_ += TamanhoComprimento;
        const Int32 n = Int32::de(valorNumerico(comprimento.texto()));
        if (n < 0) throw FalhaExecucao(erro::ChamadaInvalida);
        if (n > LimiteTextoArquivo) throw FalhaExecucao(erro::MemoriaInsuficiente);
        Campo texto = bytes(n.valor());
        posicao_ += n.valor();
        return texto;
    }
    QString texto() { return campo().texto(); }

private:
    Campo bytes(int64_t n) {
        Campo r;
        const int64_t inicio = int64_t(posicao_.valor()) - 1;
        const int64_t noArquivo = std::clamp<int64_t>(tamanho_ - inicio, 0, n);
        try {
            r.bytes = QByteArray(noArquivo, ' ');
        } catch (const std::bad_alloc&) {
            throw FalhaExecucao(erro::MemoriaInsuficiente);
        }
        if (noArquivo > 0 && arquivo_.seek(inicio)) arquivo_.read(r.bytes.data(), noArquivo);
        r.brancos = n - noArquivo;
        return r;
    }
    QFile& arquivo_;
    int64_t tamanho_;
    Int32 posicao_ = 1;
};

// The part of a field of marks that decides the result: each pair of
// characters is a mark, and a pair of blanks is the number 0, whose cell
// doesn't exist. The pair cut by the end of the file counts; of the pairs of
// blanks alone the first decides (skipped for the blue marks, the end of the
// program for the red ones), the others can only repeat it.
QString marcasDe(const Campo& c, bool pulaFalhas) {
    const int64_t reais = c.bytes.size() + (c.bytes.size() % 2);
    return cp1252::decodifica(c.inicio(reais + (pulaFalhas ? 0 : 2)));
}

// The numeric value of the two characters at i (1-based), as an integer.
Int16 valorPar(const QString& texto, int64_t i) {
    const QChar a = texto[i - 1];
    const QChar b = i < texto.size() ? texto[i] : QChar();
    if (a >= u'0' && a <= u'9' && b >= u'0' && b <= u'9')
        return Int16(int16_t((a.unicode() - u'0') * 10 + (b.unicode() - u'0')));
    return Int16::de(valorNumerico(texto.mid(i - 1, 2)));
}

// The marks of fields 2 and 11, each on the cell of the number one lower.
void carregaMarcas(Nucleo& p, const QString& Texto, Cor fundo, bool pulaFalhas) {
    for (int64_t i = 1; i < Texto.size(); i += 2) {
        const Int16 v = valorPar(Texto, i);
        const int64_t indice = int64_t(v.valor()) - 1;
        if (pulaFalhas && (indice < 0 || indice >= TelaPrincipal::QuantCelulas))
            continue; // both statements fail
        Celula& c = p.tela.Num(indice);
        c.BackColor = fundo;
        c.ForeColor = p.e.CorTextoMarcado;
    }
}

void defineSpin(Spin& spin, CampoTexto& campo, const QString& texto) {
    campo.Text = texto;
    const int valor = Int16::de(valorNumerico(texto)).valor();
    if (valor == spin.Value) return;
    spin.Value = valor;
    MudaSpin(spin, campo); // the spin button's change
}

} // namespace

QString TextoMarcados(const Nucleo& p) {
    return textoDasCelulas(p, p.e.CorMarcado);
}
QString TextoFixos(const Nucleo& p) {
    return textoDasCelulas(p, p.e.CorFixo);
}

QString TextoVetBan(const Nucleo& p) {
    const std::string b = bytesVetBan(p);
    return cp1252::decodifica(b.data(), int64_t(b.size()));
}

void CarregaMarcados(Nucleo& p, const QString& Texto) {
    carregaMarcas(p, Texto, p.e.CorMarcado, true);
}
void CarregaFixos(Nucleo& p, const QString& Texto) {
    carregaMarcas(p, Texto, p.e.CorFixo, false);
}

void CarregaVetBan(Nucleo& p, const QString& Texto) {
    auto& e = p.e;
    // Every row takes at least one character and the 16-bit position stops
    // the reading at character 32767, so no bank of 32767 rows or more can be
    // read back: the rows past that are never reached and are not allocated.
    const Int32 ultimaLinha = e.QuantBan + 1;
    e.VetBan.redimensiona(81, std::min<int64_t>(ultimaLinha.valor(), UltimaPosicaoVetBan));
    const int64_t tamanho = Texto.size();
    const auto caractere = [&](int64_t i) { return i <= tamanho ? Texto[i - 1] : QChar(); };
    Int16 posicao = 1;
    for (int64_t linha = 0; linha < e.QuantBan.valor(); ++linha) {
        Int16 coluna = 0;
        while (caractere(posicao.valor()) != u'#') {
            const int64_t i = posicao.valor();
            const QChar a = caractere(i), b = caractere(i + 1);
            if (a >= u'0' && a <= u'9' && b >= u'0' && b <= u'9')
                e.VetBan.defineCodigo(
                    coluna.valor(), linha,
                    MatrizTexto::codigoNumero((a.unicode() - u'0') * 10 + (b.unicode() - u'0')));
            else
                e.VetBan.define(coluna.valor(), linha, Texto.mid(i - 1, 2));
            ++coluna;
            posicao += 2;
        }
        e.VetBan.defineCodigo(coluna.valor(), linha, MatrizTexto::Fim);
        posicao += 1;
    }
}

void NovoArquivo(Nucleo& p) {
    p.e.NomeArquivo.clear();
    p.tela.Caption = QStringLiteral("Sorvelo");
    if (!LimpaBancoApostas(p)) return;
    LimpaNumeros(p);
    p.e.Historico.clear();
}

void SalvarArquivo(Nucleo& p) {
    auto& e = p.e;
    if (e.NomeArquivo.isEmpty()) {
        const QString nome = p.s.dialogo->salvar(TituloSalvar, Filtro);
        if (nome.isEmpty()) return;
        e.NomeArquivo = nome;
    }
    e.ArquivoBanco = e.NomeArquivo;
    if (QFileInfo::exists(e.NomeArquivo) &&
        p.s.caixa->pergunta(PerguntaSobrescrever, Botoes::SimNao, Resposta::Nao) != Resposta::Sim)
        return;
    GravaArquivo(p, e.NomeArquivo);
    e.BancoAlterado = false;
}

void SalvarArquivoComo(Nucleo& p) {
    p.e.NomeArquivo.clear();
    SalvarArquivo(p);
}

void GravaArquivo(Nucleo& p, const QString& Nome) {
    const auto& e = p.e;
    const auto& t = p.tela;
    if (Nome.isEmpty()) falhaAbertura(Nome);
    // The old file stays whole until the new one is complete on the disk.
    GravacaoAtomica arquivo(Nome);
    Gravador g(arquivo);
    g.campo(e.NomeLoteria);
    g.campo(TextoMarcados(p));
    g.campo(escreveRtfTexto(t.TxtBanco));
    g.campo(t.TxtQuantApostas.Text);
    g.campo(t.TxtValorApostas.Text);
    g.campo(bytesVetBan(p));
    g.campo(textoNumero(int64_t(e.QuantBan.valor())));
    g.campo(e.TextoEstatistica);
    g.campo(e.DezEscolhidas);
    g.campo(e.Historico);
    g.campo(TextoFixos(p));
    g.campo(t.TxtValAp.Text);
    g.campo(t.TxtDezAp.Text);
    g.campo(t.TxtDezAp2.Text);
    g.campo(t.CmbGarantia.Text);
    g.campo(t.CmbAcertar.Text);
    arquivo.conclui();
}

void AbrirArquivo(Nucleo& p) {
    if (!LimpaBancoApostas(p)) return;
    LimpaNumeros(p);
    const QString nome = p.s.dialogo->abrir(TituloAbrir, Filtro);
    if (nome.isEmpty()) return;
    LeArquivo(p, nome);
}

void LeArquivo(Nucleo& p, const QString& nome) {
    auto& e = p.e;
    auto& t = p.tela;
    e.NomeArquivo = nome;
    t.Caption = QStringLiteral("Sorvelo - ") + nome;
    e.ArquivoBanco = nome;

    // The binary open creates a name that does not exist.
    QFile arquivo(nome);
    // A folder, a pipe or a device is no file of bets: it can't be read
    // whole, and a pipe would wait for a writer forever.
    const QFileInfo info(nome);
    if (info.exists() && !info.isFile()) falhaAbertura(nome);
    const bool aberto =
        info.exists() ? arquivo.open(QIODevice::ReadOnly) : arquivo.open(QIODevice::ReadWrite);
    if (!aberto || arquivo.isSequential()) falhaAbertura(nome);
    Leitor l(arquivo);
    // The name is upper-cased as the program writes it, so that a file
    // written by hand ("Quina") behaves as one of the program's ("QUINA").
    e.NomeLoteria = l.texto().toUpper();
    ConfiguraLoteria(p, e.NomeLoteria);
    CarregaMarcados(p, marcasDe(l.campo(), true));
    const Campo rtf = l.campo();
    leRtf(rtf.bytes, t.TxtBanco, rtf.brancos);
    t.TxtQuantApostas.Text = l.texto();
    t.TxtValorApostas.Text = l.texto();
    // Only the characters that CarregaVetBan can reach are decoded.
    const QString textoVetBan = cp1252::decodifica(l.campo().inicio(UltimaPosicaoVetBan + 1));
    // Blanks are left out of a number: those past the end change nothing.
    e.QuantBan = Int32::de(valorNumerico(cp1252::decodifica(l.campo().bytes)));
    CarregaVetBan(p, textoVetBan);
    e.TextoEstatistica = l.texto();
    e.DezEscolhidas = l.texto();
    e.Historico = l.texto();
    CarregaFixos(p, marcasDe(l.campo(), false));
    t.TxtValAp.Text = l.texto();
    defineSpin(t.SpbDezAp, t.TxtDezAp, l.texto());
    defineSpin(t.SpbDezAp2, t.TxtDezAp2, l.texto());
    t.CmbGarantia.Text = l.texto();
    t.CmbAcertar.Text = l.texto();
    arquivo.close();
    AtualizaEscolhidos(p);
}

} // namespace sorvelo
