// The bank's rich text as an RTF 1.x document (the TextRTF of the text
// control): written from the document's runs of colour and weight, and read
// back tolerantly, so that a word processor opens what the program writes
// and the program reads what such a control writes.
#pragma once

#include "platform/DocumentoRico.h"

#include <QByteArray>

#include <string>

namespace sorvelo {

// The whole content as RTF, with a colour table of the colours in use,
// \cfN and \b/\b0 at each change of format, \par for each line end (CR LF,
// a lone CR or a lone LF), \'hh for the code page's upper half and \uN? for
// characters outside it. An empty document gives an empty text.
QByteArray escreveRtf(const DocumentoRico& documento);
// The same bytes, without the copy into a QByteArray (for the bet file).
std::string escreveRtfTexto(const DocumentoRico& documento);

// Replaces the whole content by the document read from rtf (one change).
// Groups nest; unknown control words, \* destinations and the font table,
// style sheet, information and picture groups are skipped; \cfN takes the
// colour table's entry (cf0 and unknown entries are black); \b, \b0,
// \plain, \par, \line, \tab, \'hh, \uN with its \ucN fallback, \~, \_ and
// the named quotes and dashes are understood. A text that does not begin
// with "{\rtf" is taken as plain text in the code page. The text read is rtf
// followed by `brancosNoFim` blanks, which are not made where they change
// nothing (after the document's group closes, or skipped as \u fallback).
// The reading takes time in proportion to the text, and besides the
// document it builds, at most a few bytes of memory per byte of the text.
void leRtf(const QByteArray& rtf, DocumentoRico& documento, int64_t brancosNoFim = 0);

} // namespace sorvelo
