// libFuzzer target of the RTF reader on its own. Reading must end normally,
// never with a crash, a sanitizer report, a hang or more memory than a few
// bytes per byte read; and what was read must come back the same:
// - the document is at most two characters per byte read (a line end);
// - written and read again, it keeps its text (line ends aside);
// - blanks given as a count read as the same blanks written out.
#include "core/Rtf.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace sorvelo;

namespace {

QString normaliza(QString s) {
    return s.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

void exige(bool condicao) {
    if (!condicao) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t tamanho) {
    const QByteArray rtf(reinterpret_cast<const char*>(dados), qsizetype(tamanho));
    DocumentoRico d;
    leRtf(rtf, d);
    exige(d.comprimento() <= 2 * int64_t(tamanho) + 2);

    DocumentoRico deNovo;
    leRtf(escreveRtf(d), deNovo);
    exige(normaliza(deNovo.texto()) == normaliza(d.texto()));

    const int64_t brancos = tamanho > 0 ? dados[0] % 8 : 3;
    DocumentoRico contados, escritos;
    leRtf(rtf, contados, brancos);
    leRtf(rtf + QByteArray(brancos, ' '), escritos);
    exige(contados.texto() == escritos.texto());
    const auto a = contados.trechos(), b = escritos.trechos();
    exige(a.size() == b.size());
    for (size_t k = 0; k < a.size(); ++k)
        exige(a[k].inicio == b[k].inicio && a[k].fim == b[k].fim && a[k].formato == b[k].formato);
    return 0;
}
