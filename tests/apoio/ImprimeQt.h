// Readable gtest messages for Qt texts.
#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QStringList& l, std::ostream* os) {
    *os << '{';
    for (const QString& s : l)
        *os << " \"" << s.toStdString() << '"';
    *os << " }";
}
