#include "support/url_encode.h"

#include <array>

namespace lanterra {

namespace {

/// The characters that become "%" and their code. All are below 128.
constexpr char16_t escapedCharacters[] = u"%!#$~^&>()+|`=\\[]{};':\",?/<";
constexpr char16_t noBreakSpace = 160;

constexpr auto isEscaped = [] {
    std::array<bool, 128> table{};
    for (const char16_t character : escapedCharacters)
        table[character] = character != 0;
    return table;
}();

void AppendEscaped(QString &result, ushort code) {
    constexpr auto digits = u"0123456789ABCDEF";
    result += u'%';
    result += QChar(digits[code >> 4U]);
    result += QChar(digits[code & 15U]);
}

} // namespace

// One pass gives what the replacements give one after the other: "%" goes first and "+" before the blank, so
// nothing that a replacement puts in is ever replaced again.
QString UrlEncode(QStringView text) {
    QString result;
    result.reserve(text.size() * 2);
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code < isEscaped.size() && isEscaped[code])
            AppendEscaped(result, code);
        else
            result += code == u' ' || code == noBreakSpace ? QChar(u'+') : character;
    }
    return result;
}

} // namespace lanterra
