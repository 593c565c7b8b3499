#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace lanterra {

/// The single-byte code page of the wire and of text files: windows-1252, with a one-to-one table. Its five
/// unused bytes (81, 8D, 8F, 90, 9D hexadecimal) map to the control characters of the same number, so bytes
/// that are decoded and encoded again are the same bytes. Source of the table: the Unicode Consortium's
/// mapping of windows-1252.
class CodePage {
public:
    /// One character a byte.
    static QString Decode(QByteArrayView bytes);

    /// One byte a character; a character outside the page, a surrogate pair included, becomes one "?".
    static QByteArray Encode(QStringView text);

    /// Whether Encode keeps the character.
    static bool Holds(char32_t character);
};

} // namespace lanterra
