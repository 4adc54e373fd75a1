// The commands of a scenario line, and how they find the controls.
#include "Acoes.h"
#include "Observacao.h"
#include "Roteiro.h"
#include "base/Cp1252.h"
#include "core/Estado.h"
#include "forms/Apresenta.h"
#include "forms/Sorvelo.h"
#include "roteiro/Acoes.h"
#include "roteiro/Observacao.h"
#include "roteiro/Roteiro.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMenu>
#include <QWidget>

#include <cstring>

namespace sorvelo::roteiro {

namespace {
// How each command is written, for the message of a malformed line.
struct Uso {
    const char* comando;
    const char* exemplo;
};
const Uso usos[] = {
    {"clica", "clica C"},
    {"digita", "digita C \"texto\""},
    {"tecla", "tecla C Enter|Tab|Esc|Esquerda|Direita|Cima|Baixo|Apagar|Retrocesso"},
    {"escolhe", "escolhe C \"item\""},
    {"rola", "rola C N"},
    {"move", "move C X Y"},
    {"responde", "responde Sim|Não|Cancelar|OK"},
    {"relogio", "relogio \"22/11/2026\" \"14:05:09\""},
    {"pasta", "pasta \"caminho\""},
    {"tabela", "tabela \"Arquivo.sv\" \"texto\""},
    {"inicia", "inicia Apresenta [\"arquivo\"]"},
    {"espera", "espera MS"},
    {"estado", "estado C"},
    {"confere", "confere C \"texto\""},
    {"fecha", "fecha [FORMA]"},
};

bool numero(const Palavra& p, int& n) {
    bool ok = false;
    n = p.texto.toInt(&ok);
    return ok && !p.aspas;
}
} // namespace

bool Roteiro::confereForma(const LinhaCenario& l, const char* forma) {
    bool ok = l.palavras.size() == std::strlen(forma);
    for (size_t i = 0; ok && i < l.palavras.size(); ++i)
        ok = l.palavras[i].aspas == (forma[i] == 't');
    if (ok) return true;
    QString exemplo = QString::fromUtf8(forma);
    for (const Uso& u : usos)
        if (l.comando() == QLatin1String(u.comando)) exemplo = QString::fromUtf8(u.exemplo);
    erro(l.numero, QStringLiteral("a linha se escreve: %1").arg(exemplo));
    return false;
}

QWidget* Roteiro::formaNoTopo() const {
    if (QWidget* m = QApplication::activeModalWidget(); m && nomesFormas_.contains(m)) return m;
    for (auto it = formas_.rbegin(); it != formas_.rend(); ++it)
        if (*it && (*it)->isVisible()) return *it;
    if (janela_) return janela_.get();
    return apresenta_ && apresenta_->isVisible() ? static_cast<QWidget*>(apresenta_.get()) : nullptr;
}

QWidget* Roteiro::formaDe(QObject* c) const {
    // A menu is a window of its own: its entries belong to the window of its bar.
    for (QObject* o = c; o; o = o->parent()) {
        auto* w = qobject_cast<QWidget*>(o);
        if (w && !qobject_cast<QMenu*>(w)) return w->window();
    }
    return nullptr;
}

QObject* Roteiro::controle(const LinhaCenario& l, const QString& nome) {
    std::vector<QWidget*> onde;
    QString nomeControle = nome;
    if (const qsizetype ponto = nome.indexOf(u'.'); ponto > 0) {
        const QString forma = nome.left(ponto);
        nomeControle = nome.mid(ponto + 1);
        if (janela_ && janela_->objectName() == forma) onde.push_back(janela_.get());
        for (const QPointer<QWidget>& f : formas_)
            if (f && f->objectName() == forma) onde.push_back(f);
        if (onde.empty()) {
            erro(l.numero, QStringLiteral("a forma %1 não está aberta").arg(forma));
            return nullptr;
        }
    } else {
        if (QWidget* topo = formaNoTopo()) onde.push_back(topo);
        if (janela_ && (onde.empty() || onde.front() != janela_.get())) onde.push_back(janela_.get());
    }
    for (QWidget* f : onde) {
        if (f->objectName() == nomeControle) return f;
        QObject* achado = nullptr;
        for (QObject* o : f->findChildren<QObject*>(nomeControle)) {
            if (formaDe(o) != f) continue;
            if (qobject_cast<QAction*>(o)) return o;
            if (!achado && o->isWidgetType()) achado = o;
        }
        if (achado) return achado;
    }
    erro(l.numero, QStringLiteral("controle desconhecido: %1").arg(nome));
    return nullptr;
}

QWidget* Roteiro::widget(const LinhaCenario& l, const QString& nome) {
    QObject* c = controle(l, nome);
    if (!c) return nullptr;
    if (auto* w = qobject_cast<QWidget*>(c)) return w;
    erro(l.numero, QStringLiteral("%1 não aceita este comando").arg(nome));
    return nullptr;
}

bool Roteiro::acessivel(const LinhaCenario& l, QObject* c, bool ativaJanela) {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || formaDe(c) == modal) {
        if (ativaJanela) ativa(formaDe(c));
        return true;
    }
    erro(l.numero, QStringLiteral("a forma modal %1 está na frente").arg(modal->objectName()));
    return false;
}

void Roteiro::executaLinha(const LinhaCenario& l) {
    if (fim_) return;
    if (!l.erro.isEmpty()) return erro(l.numero, l.erro);
    // The first yield inside the line's action runs the event loop, and so
    // does the first one after it.
    struct Agiu {
        CedenciaConduzida& c;
        ~Agiu() { c.linhaAgiu(); }
    } agiu{servicos_.cedencia};
    servicos_.cedencia.linhaAgiu();
    const QString& c = l.comando();
    if (c == QStringLiteral("clica"))
        cmdClica(l);
    else if (c == QStringLiteral("digita"))
        cmdDigita(l);
    else if (c == QStringLiteral("tecla"))
        cmdTecla(l);
    else if (c == QStringLiteral("escolhe"))
        cmdEscolhe(l);
    else if (c == QStringLiteral("rola"))
        cmdRola(l);
    else if (c == QStringLiteral("move"))
        cmdMove(l);
    else if (c == QStringLiteral("arquivo"))
        cmdArquivo(l);
    else if (c == QStringLiteral("relogio"))
        cmdRelogio(l);
    else if (c == QStringLiteral("espera"))
        cmdEspera(l);
    else if (c == QStringLiteral("mostra"))
        cmdMostra(l);
    else if (c == QStringLiteral("estado"))
        cmdEstado(l);
    else if (c == QStringLiteral("confere"))
        cmdConfere(l);
    else if (c == QStringLiteral("fecha"))
        cmdFecha(l);
    else if (c == QStringLiteral("tabela"))
        cmdTabela(l);
    else if (c == QStringLiteral("responde"))
        erro(l.numero, QStringLiteral("nenhuma caixa de mensagem na tela"));
    else if (c == QStringLiteral("pasta"))
        erro(l.numero, QStringLiteral("pasta vem antes de todas as outras linhas"));
    else if (c == QStringLiteral("inicia"))
        erro(l.numero, QStringLiteral("inicia vem antes de todas as outras linhas"));
    else if (c == QStringLiteral("na_cedencia"))
        erro(l.numero, QStringLiteral("na_cedencia vem logo depois da linha que age"));
    else
        erro(l.numero, QStringLiteral("comando desconhecido: %1").arg(c));
}

void Roteiro::cmdClica(const LinhaCenario& l) {
    if (!confereForma(l, "pp")) return;
    QObject* c = controle(l, l.palavras[1].texto);
    if (!c || !acessivel(l, c)) return;
    const QString motivo = clica(c);
    if (!motivo.isEmpty()) erro(l.numero, motivo);
}

void Roteiro::cmdDigita(const LinhaCenario& l) {
    if (!confereForma(l, "ppt")) return;
    QWidget* w = widget(l, l.palavras[1].texto);
    if (!w || !acessivel(l, w)) return;
    const QString motivo = digita(w, l.palavras[2].texto);
    if (!motivo.isEmpty()) erro(l.numero, motivo);
}

void Roteiro::cmdTecla(const LinhaCenario& l) {
    if (!confereForma(l, "ppp")) return;
    QWidget* w = widget(l, l.palavras[1].texto);
    if (!w || !acessivel(l, w)) return;
    const QString motivo = tecla(w, l.palavras[2].texto);
    if (!motivo.isEmpty()) erro(l.numero, motivo);
}

void Roteiro::cmdEscolhe(const LinhaCenario& l) {
    if (!confereForma(l, "ppt")) return;
    QWidget* w = widget(l, l.palavras[1].texto);
    if (!w || !acessivel(l, w)) return;
    const QString motivo = escolhe(w, l.palavras[2].texto);
    if (!motivo.isEmpty()) erro(l.numero, motivo);
}

void Roteiro::cmdRola(const LinhaCenario& l) {
    int n = 0;
    if (!confereForma(l, "ppp")) return;
    if (!numero(l.palavras[2], n)) return erro(l.numero, QStringLiteral("rola pede um número inteiro"));
    QWidget* w = widget(l, l.palavras[1].texto);
    if (!w || !acessivel(l, w)) return;
    const QString motivo = rola(w, n);
    if (!motivo.isEmpty()) erro(l.numero, motivo);
}

void Roteiro::cmdMove(const LinhaCenario& l) {
    int x = 0, y = 0;
    if (!confereForma(l, "pppp")) return;
    if (!numero(l.palavras[2], x) || !numero(l.palavras[3], y))
        return erro(l.numero, QStringLiteral("move pede X e Y inteiros, em twips"));
    QWidget* w = widget(l, l.palavras[1].texto);
    if (!w || !acessivel(l, w, false)) return;
    move(w, QPoint(tw(x), tw(y)));
}

void Roteiro::cmdArquivo(const LinhaCenario& l) {
    if (l.palavras.size() == 2 && !l.palavras[1].aspas && l.palavras[1].texto == QStringLiteral("cancela"))
        arquivos_.push_back({QString(), true});
    else if (l.palavras.size() == 2 && l.palavras[1].aspas)
        arquivos_.push_back({l.palavras[1].texto, false});
    else
        erro(l.numero, QStringLiteral("a linha se escreve: arquivo \"caminho\" ou arquivo cancela"));
}

void Roteiro::cmdRelogio(const LinhaCenario& l) {
    if (!confereForma(l, "ptt")) return;
    const QDate data = QDate::fromString(l.palavras[1].texto, QStringLiteral("dd/MM/yyyy"));
    const QTime hora = QTime::fromString(l.palavras[2].texto, QStringLiteral("HH:mm:ss"));
    if (!data.isValid() || !hora.isValid())
        return erro(l.numero, QStringLiteral("relogio pede a data dd/mm/aaaa e a hora hh:mm:ss"));
    servicos_.relogio.momento = QDateTime(data, hora);
}

bool Roteiro::cmdPasta(const LinhaCenario& l) {
    if (!confereForma(l, "pt")) return false;
    if (l.palavras[1].texto.isEmpty()) {
        erro(l.numero, QStringLiteral("pasta pede um caminho"));
        return false;
    }
    servicos_.pasta.define(l.palavras[1].texto);
    return true;
}

void Roteiro::cmdTabela(const LinhaCenario& l) {
    if (!confereForma(l, "ptt")) return;
    const QString nome = QDir(servicos_.pasta.caminho()).filePath(l.palavras[1].texto);
    QByteArray bytes = cp1252::codifica(l.palavras[2].texto);
    for (char& b : bytes)
        b = char(255 - static_cast<unsigned char>(b));
    QFile f(nome);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        erro(l.numero, QStringLiteral("tabela não grava %1").arg(nome));
}

void Roteiro::cmdEspera(const LinhaCenario& l) {
    int ms = 0;
    if (!confereForma(l, "pp")) return;
    if (!numero(l.palavras[1], ms) || ms < 0)
        return erro(l.numero, QStringLiteral("espera pede os milissegundos, um inteiro de 0 em diante"));
    tempo_.avanca(ms, [this] {
        ++pulso_;
        QCoreApplication::sendPostedEvents();
        return !fim_;
    });
}

bool Roteiro::textoDe(const LinhaCenario& l, const QString& nome, QString& texto) {
    if (nome == QStringLiteral("Foco")) {
        texto = QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
        return true;
    }
    if (!nome.contains(u'.')) {
        std::vector<Valor> valores;
        bool arranjo = false;
        const Busca b = variavel(*programa_, nome, valores, arranjo);
        if (b == Busca::ForaDosLimites) {
            erro(l.numero, QStringLiteral("índice fora dos limites: %1").arg(nome));
            return false;
        }
        if (b == Busca::Achou && arranjo) {
            erro(l.numero, QStringLiteral("%1 é uma matriz: dê o índice, %1(i)").arg(nome));
            return false;
        }
        if (b == Busca::Achou) {
            texto = valores.front().texto;
            return true;
        }
    }
    QObject* c = controle(l, nome);
    if (!c) return false;
    if (textoControle(c, texto)) return true;
    erro(l.numero, QStringLiteral("%1 não tem texto").arg(nome));
    return false;
}

void Roteiro::cmdMostra(const LinhaCenario& l) {
    const bool simples = l.palavras.size() == 2;
    if (!(simples ? confereForma(l, "pp") : confereForma(l, "ppp"))) return;
    const QString& nome = l.palavras[1].texto;
    if (simples) {
        std::vector<Valor> valores;
        bool arranjo = false;
        if (!nome.contains(u'.') && variavel(*programa_, nome, valores, arranjo) == Busca::Achou) {
            for (const Valor& v : valores)
                anota(QStringLiteral("%1 = %2").arg(v.rotulo, aspas(v.texto)));
            return;
        }
        QString texto;
        if (textoDe(l, nome, texto)) anota(QStringLiteral("%1 = %2").arg(nome, aspas(texto)));
        return;
    }
    const QString& modo = l.palavras[2].texto;
    if (modo == QStringLiteral("cores")) {
        QObject* c = controle(l, nome);
        QString runs;
        if (!c) return;
        if (!coresControle(c, runs))
            return erro(l.numero, QStringLiteral("%1 não tem cores a mostrar").arg(nome));
        anota(nome + u':' + runs);
    } else if (modo == QStringLiteral("posição")) {
        if (QWidget* w = widget(l, nome))
            anota(
                QStringLiteral("%1: %2").arg(nome, posicaoControle(w, [this](int px) { return deTw(px); })));
    } else if (modo == QStringLiteral("itens")) {
        QObject* c = controle(l, nome);
        if (!c) return;
        QStringList itens;
        if (auto* combo = qobject_cast<QComboBox*>(c)) {
            for (int i = 0; i < combo->count(); ++i)
                itens << combo->itemText(i);
        } else if (auto* lista = qobject_cast<QListWidget*>(c)) {
            for (int i = 0; i < lista->count(); ++i)
                itens << lista->item(i)->text();
        } else {
            return erro(l.numero, QStringLiteral("%1 não é uma caixa de lista nem de combinação").arg(nome));
        }
        for (int i = 0; i < itens.size(); ++i)
            anota(QStringLiteral("%1(%2) = %3").arg(nome).arg(i).arg(aspas(itens[i])));
    } else {
        erro(l.numero,
             QStringLiteral(
                 "a linha se escreve: mostra C, mostra C cores, mostra C posição ou mostra C itens"));
    }
}

void Roteiro::cmdEstado(const LinhaCenario& l) {
    if (!confereForma(l, "pp")) return;
    if (QObject* c = controle(l, l.palavras[1].texto))
        anota(QStringLiteral("%1: %2").arg(l.palavras[1].texto, estadoControle(c)));
}

void Roteiro::cmdConfere(const LinhaCenario& l) {
    if (!confereForma(l, "ppt")) return;
    QString obtido;
    if (!textoDe(l, l.palavras[1].texto, obtido)) return;
    const QString& esperado = l.palavras[2].texto;
    if (obtido == esperado) return;
    conferenciaFalhou_ = true;
    anota(QStringLiteral("confere %1: esperado %2, obtido %3")
              .arg(l.palavras[1].texto, aspas(esperado), aspas(obtido)));
}

void Roteiro::cmdFecha(const LinhaCenario& l) {
    if (l.palavras.size() == 2) return fechaForma(l);
    if (!confereForma(l, "p")) return;
    // Before "Entrar", the start box is the window to close.
    if (janela_)
        janela_->close();
    else if (apresenta_)
        apresenta_->close();
}

void Roteiro::fechaForma(const LinhaCenario& l) {
    if (!confereForma(l, "pp")) return;
    const QString& nome = l.palavras[1].texto;
    // The form on top of that name: the close button of its window's frame.
    QWidget* alvo = nullptr;
    for (const QPointer<QWidget>& f : formas_)
        if (f && f->isVisible() && f->objectName() == nome) alvo = f;
    if (!alvo && janela_ && janela_->isVisible() && janela_->objectName() == nome) alvo = janela_.get();
    if (!alvo && apresenta_ && apresenta_->isVisible() && apresenta_->objectName() == nome)
        alvo = apresenta_.get();
    if (!alvo) return erro(l.numero, QStringLiteral("a forma %1 não está aberta").arg(nome));
    alvo->close();
}

bool Roteiro::cmdInicia(const LinhaCenario& l) {
    const bool comArquivo = l.palavras.size() == 3;
    if (!confereForma(l, comArquivo ? "ppt" : "pp")) return false;
    if (l.palavras[1].texto != QStringLiteral("Apresenta")) {
        erro(l.numero, QStringLiteral("inicia só conhece Apresenta"));
        return false;
    }
    iniciaApresenta_ = true;
    if (comArquivo) arquivoInicial_ = l.palavras[2].texto;
    return true;
}

} // namespace sorvelo::roteiro
