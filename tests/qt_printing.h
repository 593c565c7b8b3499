#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <ostream>

// Lets a failed comparison print Qt's texts as texts. Found by argument-dependent lookup, so it stands in the
// namespace of the types.

inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }

inline void PrintTo(const QByteArray &bytes, std::ostream *out) { *out << '"' << bytes.toStdString() << '"'; }
