#include "roteiro/Transcricao.h"

namespace sorvelo::roteiro {

QString aspas(const QString& texto) {
    QString r;
    r.reserve(texto.size() + 2);
    r += u'"';
    for (QChar c : texto) {
        switch (c.unicode()) {
        case u'"':
            r += QStringLiteral("\\\"");
            break;
        case u'\\':
            r += QStringLiteral("\\\\");
            break;
        case u'\r':
            r += QStringLiteral("\\r");
            break;
        case u'\n':
            r += QStringLiteral("\\n");
            break;
        default:
            r += c;
        }
    }
    r += u'"';
    return r;
}

void Transcricao::linha(const QString& texto) {
    const QByteArray b = texto.toUtf8() + '\n';
    std::fwrite(b.constData(), 1, size_t(b.size()), saida_);
    std::fflush(saida_);
}

} // namespace sorvelo::roteiro
