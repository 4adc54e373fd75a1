#include "core/Loteria.h"

#include "core/BancoApostas.h"
#include "core/Grade.h"
#include "core/Module1.h"

namespace sorvelo {

const std::array<Jogo, 5>& jogos() {
    static const std::array<Jogo, 5> tabela{{
        {QStringLiteral("Mega-Sena"), QStringLiteral("MEGA-SENA"), 1, 60, 6, QStringLiteral("06"), 6,
         QStringLiteral("4,50"), QStringLiteral("Quina"), QStringLiteral("Quina"), true, 6,
         QStringLiteral("4")},
        {QStringLiteral("Dupla Sena"), QStringLiteral("DUPLA SENA"), 1, 50, 6, QStringLiteral("06"), 6,
         QStringLiteral("2,50"), QStringLiteral("Quina"), QStringLiteral("Quina"), true, 5,
         QStringLiteral("4")},
        {QStringLiteral("Quina"), QStringLiteral("QUINA"), 1, 80, 5, QStringLiteral("05"), 5,
         QStringLiteral("2,00"), QStringLiteral("Quadra"), QStringLiteral("Quadra"), true, 8,
         QStringLiteral("3")},
        {QStringLiteral("Lotomania"), QStringLiteral("LOTOMANIA"), 0, 99, 20, QStringLiteral("50"), 50,
         QStringLiteral("2,50"), QString(), QString(), false, 10, QStringLiteral("0")},
        {QStringLiteral("Lotofácil"), QStringLiteral("LOTOFÁCIL"), 1, 25, 15, QStringLiteral("15"), 15,
         QStringLiteral("2,50"), QStringLiteral("7"), QStringLiteral("13"), true, 0, QStringLiteral("11")},
    }};
    return tabela;
}

const Jogo* jogoPorNome(const QString& nome) {
    const QString m = nome.toUpper();
    for (const Jogo& j : jogos())
        if (j.nomeMaiusculo == m) return &j;
    return nullptr;
}

void DefineCores(Nucleo& p) {
    p.e.CorFundoNum = rgb(0, 64, 0);
    p.e.CorTextoNum = rgb(0, 255, 0);
    p.e.CorMarcado = rgb(0, 0, 200);
    p.e.CorTextoMarcado = rgb(255, 255, 255);
    p.e.CorFixo = rgb(200, 0, 0);
}

QString RetValorNumerico(const QString& s, bool aparar) {
    QString r;
    r.reserve(s.size());
    for (QChar c : s) {
        if (c == u'.') continue;
        r += c == u',' ? QChar(u'.') : c;
    }
    if (aparar) {
        for (qsizetype i = r.size() - 1; i >= 0; --i) {
            if (r[i] == u'0') {
                r[i] = u' ';
                continue;
            }
            if (r[i] == u'.') r[i] = u' ';
            break;
        }
    }
    return apara(r);
}

void DesmarcaMenus(Nucleo& p) {
    auto& t = p.tela;
    t.MenuMegaSena = t.MenuDuplaSena = t.MenuQuina = t.MenuLotomania = t.MenuLotoFacil = false;
}

const QStringList& palavrasGarantia() {
    static const QStringList palavras = {QStringLiteral("Duque"), QStringLiteral("Terno"),
                                         QStringLiteral("Quadra"), QStringLiteral("Quina"),
                                         QStringLiteral("Sena")};
    return palavras;
}

int numeroDaPalavra(const QString& texto) {
    const qsizetype k = palavrasGarantia().indexOf(texto);
    return k >= 0 ? int(k) + 2 : 0;
}

int valorGarantia(const QString& texto) {
    if (const int n = numeroDaPalavra(texto)) return n;
    const double v = valorNumerico(texto);
    return v >= 7 ? int(v) : 0;
}

namespace {
// CmbAcertar follows CmbGarantia: a word gives its number; a figure from 7
// up is copied when `copiaFigura` allows.
void acertarDaGarantia(Nucleo& p, bool copiaFigura) {
    const QString& g = p.tela.CmbGarantia.Text;
    if (const int n = numeroDaPalavra(g))
        p.tela.CmbAcertar.Text = QString::number(n);
    else if (copiaFigura && valorNumerico(g) >= 7)
        p.tela.CmbAcertar.Text = g;
}
} // namespace

void DerivaAcertar(Nucleo& p) {
    acertarDaGarantia(p, true);
}

void CliqueGarantia(Nucleo& p) {
    acertarDaGarantia(p, !p.tela.ChkReduzir.Value);
}

void ConfiguraLoteria(Nucleo& p, const QString& Nome) {
    auto& e = p.e;
    auto& t = p.tela;
    Int16 ini = 0, fim = 0;
    if (const Jogo* j = jogoPorNome(Nome)) {
        ini = Int16(int16_t(j->numIni));
        fim = Int16(int16_t(j->numFim));
        e.DezMin = Int16(int16_t(j->dezMin));
    }
    e.NomeLoteria = Nome.toUpper();
    e.NumIni = ini;
    e.NumFim = fim;
    for (int i = 0; i <= 103; ++i)
        t.Num(i).Text.clear();
    LimpaNumeros(p);
    Int16 i = 0;
    for (Int16 n = e.NumIni; n <= e.NumFim.valor(); ++n) {
        t.Num(i.valor()).Text = formata00(n.valor());
        ++i;
    }
    t.TxtEscolhidos.Text = QStringLiteral("00");
    t.TxtLoteria.Text = Nome;
    t.CmbFecha.Enabled = t.CmbGarantia.Enabled = t.BtnFecharEnabled = true;
    for (const Jogo& j : jogos()) {
        if (j.nome != Nome) continue;
        t.TxtDezAp.Text = t.TxtDezAp2.Text = j.dezAposta;
        t.SpbDezAp.Value = t.SpbDezAp2.Value = j.spin;
        t.TxtValAp.Text = j.valor;
        if (j.fechamento) {
            t.CmbFecha.Text = j.fecha;
            t.CmbGarantia.Text = j.garantia;
        }
        t.CmbFecha.Enabled = t.CmbGarantia.Enabled = t.BtnFecharEnabled = j.fechamento;
    }
    e.ValorAposta = valorNumerico(RetValorNumerico(t.TxtValAp.Text, false));
    DerivaAcertar(p);
}

void TrocaLoteria(Nucleo& p, const QString& nome) {
    p.e.NomeArquivo.clear();
    if (!LimpaBancoApostas(p)) return;
    LimpaNumeros(p);
    ConfiguraLoteria(p, nome);
    DesmarcaMenus(p);
    auto& t = p.tela;
    if (nome == jogos()[0].nome)
        t.MenuMegaSena = true;
    else if (nome == jogos()[1].nome)
        t.MenuDuplaSena = true;
    else if (nome == jogos()[2].nome)
        t.MenuQuina = true;
    else if (nome == jogos()[3].nome)
        t.MenuLotomania = true;
    else if (nome == jogos()[4].nome)
        t.MenuLotoFacil = true;
}

} // namespace sorvelo
