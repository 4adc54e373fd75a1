#include "roteiro/Observacao.h"

#include "forms/Controles.h"
#include "platform/qt/AreaRica.h"
#include "roteiro/Transcricao.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QCryptographicHash>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTextEdit>

namespace sorvelo::roteiro {

bool textoControle(const QObject* o, QString& t) {
    if (auto* a = qobject_cast<const AreaRica*>(o))
        t = a->documento() ? a->documento()->texto() : QString();
    else if (auto* c = qobject_cast<const CelulaNumero*>(o))
        t = c->text();
    else if (auto* g = qobject_cast<const BotaoGiro*>(o))
        t = QString::number(g->value());
    else if (auto* e = qobject_cast<const QLineEdit*>(o))
        t = e->text();
    else if (auto* cb = qobject_cast<const QComboBox*>(o))
        t = cb->currentText();
    else if (auto* b = qobject_cast<const QAbstractButton*>(o))
        t = b->text();
    else if (auto* l = qobject_cast<const QLabel*>(o))
        t = l->text();
    else if (auto* s = qobject_cast<const QAbstractSlider*>(o))
        t = QString::number(s->value());
    else if (auto* sp = qobject_cast<const QAbstractSpinBox*>(o))
        t = sp->text();
    else if (auto* te = qobject_cast<const QTextEdit*>(o))
        t = te->toPlainText();
    else if (auto* pe = qobject_cast<const QPlainTextEdit*>(o))
        t = pe->toPlainText();
    else if (auto* pb = qobject_cast<const QProgressBar*>(o))
        t = QString::number(pb->value());
    else if (auto* v = qobject_cast<const QAbstractItemView*>(o))
        t = v->currentIndex().data().toString();
    else if (auto* gb = qobject_cast<const QGroupBox*>(o))
        t = gb->title();
    else if (auto* m = qobject_cast<const QMenu*>(o))
        t = m->title();
    else if (auto* ac = qobject_cast<const QAction*>(o))
        t = ac->text();
    else if (auto* w = qobject_cast<const QWidget*>(o); w && w->isWindow())
        t = w->windowTitle();
    else
        return false;
    return true;
}

QString estadoControle(const QObject* o) {
    bool visivel = false, habilitado = false, marcavel = false, marcado = false;
    if (auto* a = qobject_cast<const QAction*>(o)) {
        visivel = a->isVisible();
        habilitado = a->isEnabled();
        marcavel = a->isCheckable();
        marcado = a->isChecked();
    } else if (auto* w = qobject_cast<const QWidget*>(o)) {
        visivel = w->isVisible();
        habilitado = w->isEnabled();
        if (auto* b = qobject_cast<const QAbstractButton*>(w)) {
            marcavel = b->isCheckable();
            marcado = b->isChecked();
        }
    }
    QString s = visivel ? QStringLiteral("visível") : QStringLiteral("oculto");
    s += habilitado ? QStringLiteral(" habilitado") : QStringLiteral(" desabilitado");
    if (marcavel) s += marcado ? QStringLiteral(" marcado") : QStringLiteral(" desmarcado");
    return s;
}

bool coresControle(const QObject* o, QString& runs) {
    if (auto* c = qobject_cast<const CelulaNumero*>(o)) {
        auto rgb = [](QColor k) {
            return QStringLiteral("%1,%2,%3").arg(k.red()).arg(k.green()).arg(k.blue());
        };
        runs = QStringLiteral(" fundo %1 texto %2").arg(rgb(c->fundo()), rgb(c->frente()));
        return true;
    }
    auto* area = qobject_cast<const AreaRica*>(o);
    if (!area) return false;
    runs.clear();
    const DocumentoRico* doc = area->documento();
    if (!doc) return true;
    const QString& texto = doc->texto();
    std::vector<Trecho> juntos;
    for (const Trecho& t : doc->trechos()) {
        if (t.fim <= t.inicio) continue;
        if (!juntos.empty() && juntos.back().formato == t.formato && juntos.back().fim == t.inicio)
            juntos.back().fim = t.fim;
        else
            juntos.push_back(t);
    }
    for (const Trecho& t : juntos) {
        const Cor c = t.formato.cor;
        runs += QStringLiteral(" [%1,%2,%3%4] ")
                    .arg(vermelho(c))
                    .arg(verde(c))
                    .arg(azul(c))
                    .arg(t.formato.negrito ? QStringLiteral(" negrito") : QString());
        runs += aspas(texto.mid(t.inicio, t.fim - t.inicio));
    }
    return true;
}

QString posicaoControle(const QWidget* w, const std::function<int(int)>& deTw) {
    const QRect g = w->geometry();
    return QStringLiteral("%1, %2, %3, %4")
        .arg(deTw(g.x()))
        .arg(deTw(g.y()))
        .arg(deTw(g.width()))
        .arg(deTw(g.height()));
}

namespace {

QString txt(Int16 v) {
    return QString::number(v.valor());
}
QString txt(Int32 v) {
    return QString::number(v.valor());
}
QString txt(double v) {
    return textoNumero(v).trimmed();
}
QString txt(bool v) {
    return v ? QStringLiteral("-1") : QStringLiteral("0");
}
QString txt(const QString& v) {
    return v;
}
QString txtCor(Cor c) {
    return QStringLiteral("%1,%2,%3").arg(vermelho(c)).arg(verde(c)).arg(azul(c));
}

using Escalar = std::function<QString(const Programa&)>;
template <typename T> Escalar de(T Estado::*m) {
    return [m](const Programa& p) { return txt(p.e.*m); };
}
Escalar cor(Cor Estado::*m) {
    return [m](const Programa& p) { return txtCor(p.e.*m); };
}

// The bank's rows in one line: how many, and a SHA-1 of their texts (each
// row as `mostra VetBan` writes it, then a line feed), for banks too large
// to write out.
QString resumoVetBan(const Programa& p) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const int64_t quant = std::min<int64_t>(p.e.QuantBan.valor(), p.e.VetBan.quantLinhas());
    for (int64_t i = 0; i < quant; ++i) {
        QStringList celulas;
        for (int64_t c = 0; c <= p.e.VetBan.ultimaColuna(); ++c) {
            const QString v = p.e.VetBan.valor(c, i);
            celulas << v;
            if (v == u'#') break;
        }
        hash.addData((celulas.join(u' ') + u'\n').toUtf8());
    }
    return QStringLiteral("%1 linhas, SHA-1 %2").arg(quant).arg(QString::fromLatin1(hash.result().toHex()));
}

const QHash<QString, Escalar>& escalares() {
    static const QHash<QString, Escalar> tabela = {
        {QStringLiteral("NumIni"), de(&Estado::NumIni)},
        {QStringLiteral("NumFim"), de(&Estado::NumFim)},
        {QStringLiteral("DezMin"), de(&Estado::DezMin)},
        {QStringLiteral("NomeLoteria"), de(&Estado::NomeLoteria)},
        {QStringLiteral("ValorAposta"), de(&Estado::ValorAposta)},
        {QStringLiteral("QuantEscolhidos"), de(&Estado::QuantEscolhidos)},
        {QStringLiteral("DezAposta"), de(&Estado::DezAposta)},
        {QStringLiteral("TotalApostas"), de(&Estado::TotalApostas)},
        {QStringLiteral("QuantBan"), de(&Estado::QuantBan)},
        {QStringLiteral("DezEscolhidas"), de(&Estado::DezEscolhidas)},
        {QStringLiteral("Historico"), de(&Estado::Historico)},
        {QStringLiteral("TextoEstatistica"), de(&Estado::TextoEstatistica)},
        {QStringLiteral("NomeArquivo"), de(&Estado::NomeArquivo)},
        {QStringLiteral("ArquivoBanco"), de(&Estado::ArquivoBanco)},
        {QStringLiteral("BancoAlterado"), de(&Estado::BancoAlterado)},
        {QStringLiteral("Cancelado"), de(&Estado::Cancelado)},
        {QStringLiteral("FimLinha"), de(&Estado::FimLinha)},
        {QStringLiteral("ComEstatistica"), de(&Estado::ComEstatistica)},
        {QStringLiteral("ModoFechamento"), de(&Estado::ModoFechamento)},
        {QStringLiteral("ModoReduzido"), de(&Estado::ModoReduzido)},
        {QStringLiteral("DezFinal"), de(&Estado::DezFinal)},
        {QStringLiteral("QuantAcertar"), de(&Estado::QuantAcertar)},
        {QStringLiteral("EmReducao"), de(&Estado::EmReducao)},
        {QStringLiteral("TopicoHelp"), de(&Estado::TopicoHelp)},
        {QStringLiteral("TextoPrompt"), de(&Estado::TextoPrompt)},
        {QStringLiteral("TextoDigitado"), de(&Estado::TextoDigitado)},
        {QStringLiteral("CorFundoNum"), cor(&Estado::CorFundoNum)},
        {QStringLiteral("CorTextoNum"), cor(&Estado::CorTextoNum)},
        {QStringLiteral("CorMarcado"), cor(&Estado::CorMarcado)},
        {QStringLiteral("CorTextoMarcado"), cor(&Estado::CorTextoMarcado)},
        {QStringLiteral("CorFixo"), cor(&Estado::CorFixo)},
        // The main form's own counters.
        {QStringLiteral("ContAjuda"), [](const Programa& p) { return txt(p.tela.ContAjuda); }},
        {QStringLiteral("ContCancela"), [](const Programa& p) { return txt(p.tela.ContCancela); }},
        // Not a variable of the program: the rows of VetBan in one line.
        {QStringLiteral("ResumoVetBan"), resumoVetBan},
    };
    return tabela;
}

// An array: the bounds of its index, how many elements from the lower bound
// are in use, and the text of one element.
struct Arranjo {
    std::function<bool(const Programa&, int64_t)> noLimite;
    std::function<int64_t(const Programa&)> inferior;
    std::function<int64_t(const Programa&)> emUso;
    std::function<QString(const Programa&, int64_t)> elemento;
};

// A row of a bank-shaped array: cells up to and including the first "#".
QString linhaMatriz(const MatrizTexto& m, int64_t linha) {
    QStringList celulas;
    for (int64_t c = 0; c <= m.ultimaColuna(); ++c) {
        const QString v = m.valor(c, linha);
        celulas << v;
        if (v == u'#') break;
    }
    return celulas.join(u' ');
}

Arranjo matriz(MatrizTexto Estado::*m, bool contadoPorQuantBan) {
    Arranjo a;
    a.noLimite = [m](const Programa& p, int64_t i) {
        return (p.e.*m).temLimites() && i >= 0 && i < (p.e.*m).quantLinhas();
    };
    a.inferior = [](const Programa&) { return int64_t(0); };
    a.emUso = [m, contadoPorQuantBan](const Programa& p) {
        const MatrizTexto& x = p.e.*m;
        if (!x.temLimites()) return int64_t(0);
        if (contadoPorQuantBan) return std::min<int64_t>(p.e.QuantBan.valor(), x.quantLinhas());
        int64_t n = 0;
        for (int64_t l = 0; l < x.quantLinhas(); ++l)
            if (x.codigo(0, l) != MatrizTexto::Vazio) n = l + 1;
        return n;
    };
    a.elemento = [m](const Programa& p, int64_t i) { return linhaMatriz(p.e.*m, i); };
    return a;
}

Arranjo textos(Vetor<QString> Estado::*m) {
    Arranjo a;
    a.noLimite = [m](const Programa& p, int64_t i) {
        return i >= (p.e.*m).inferior() && i <= (p.e.*m).superior();
    };
    a.inferior = [m](const Programa& p) { return (p.e.*m).inferior(); };
    a.emUso = [m](const Programa& p) {
        const Vetor<QString>& v = p.e.*m;
        int64_t ultimo = v.inferior() - 1;
        for (int64_t i = v.inferior(); i <= v.superior(); ++i) {
            if (v(i) == u'#') return i - v.inferior() + 1;
            if (!v(i).isEmpty()) ultimo = i;
        }
        return ultimo - v.inferior() + 1;
    };
    a.elemento = [m](const Programa& p, int64_t i) { return (p.e.*m)(i); };
    return a;
}

Arranjo numeros(Vetor<Int16> Estado::*m) {
    Arranjo a;
    a.noLimite = [m](const Programa& p, int64_t i) {
        return i >= (p.e.*m).inferior() && i <= (p.e.*m).superior();
    };
    a.inferior = [m](const Programa& p) { return (p.e.*m).inferior(); };
    a.emUso = [m](const Programa& p) {
        const Vetor<Int16>& v = p.e.*m;
        int64_t n = 0;
        for (int64_t i = v.inferior(); i <= std::min<int64_t>(v.superior(), 99) && v(i) != -1; ++i)
            ++n;
        return n;
    };
    a.elemento = [m](const Programa& p, int64_t i) { return txt((p.e.*m)(i)); };
    return a;
}

const QHash<QString, Arranjo>& arranjos() {
    static const QHash<QString, Arranjo> tabela = {
        {QStringLiteral("VetBan"), matriz(&Estado::VetBan, true)},
        {QStringLiteral("VetRes"), matriz(&Estado::VetRes, false)},
        {QStringLiteral("VetNum"), numeros(&Estado::VetNum)},
        {QStringLiteral("VetFixos"), textos(&Estado::VetFixos)},
        {QStringLiteral("VetDezenas"), textos(&Estado::VetDezenas)},
        {QStringLiteral("VetDezenas2"), textos(&Estado::VetDezenas2)},
    };
    return tabela;
}

} // namespace

Busca variavel(const Programa& p, const QString& nome, std::vector<Valor>& valores, bool& arranjo) {
    valores.clear();
    arranjo = false;
    if (auto it = escalares().find(nome); it != escalares().end()) {
        valores.push_back({nome, it.value()(p)});
        return Busca::Achou;
    }
    QString base = nome;
    bool temIndice = false;
    int64_t indice = 0;
    if (const qsizetype abre = nome.indexOf(u'('); abre > 0 && nome.endsWith(u')')) {
        bool ok = false;
        indice = nome.mid(abre + 1, nome.size() - abre - 2).toLongLong(&ok);
        if (!ok) return Busca::NaoExiste;
        base = nome.left(abre);
        temIndice = true;
    }
    auto it = arranjos().find(base);
    if (it == arranjos().end()) return Busca::NaoExiste;
    const Arranjo& a = it.value();
    if (temIndice) {
        if (!a.noLimite(p, indice)) return Busca::ForaDosLimites;
        valores.push_back({nome, a.elemento(p, indice)});
        return Busca::Achou;
    }
    arranjo = true;
    const int64_t ini = a.inferior(p), n = a.emUso(p);
    for (int64_t i = ini; i < ini + n; ++i)
        valores.push_back({QStringLiteral("%1(%2)").arg(base).arg(i), a.elemento(p, i)});
    return Busca::Achou;
}

} // namespace sorvelo::roteiro
