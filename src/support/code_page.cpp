#include "support/code_page.h"

#include <algorithm>
#include <optional>

namespace lanterra {

namespace {

constexpr int firstSpecial = 0x80; ///< the 32 bytes from here on are the page's own, all others are Latin 1
constexpr char16_t specials[] = u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                                u"\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
                                u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                                u"\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
constexpr int specialCount = 32;
static_assert(std::size(specials) == specialCount + 1);

constexpr bool IsSpecialByte(char32_t byte) {
    return byte >= firstSpecial && byte < firstSpecial + specialCount;
}

std::optional<char> ByteOf(char32_t character) {
    if (character <= 0xFF && !IsSpecialByte(character))
        return static_cast<char>(character);
    const auto *end = specials + specialCount;
    const auto *found = std::find(specials, end, character);
    if (found == end)
        return {};
    return static_cast<char>(firstSpecial + (found - specials));
}

} // namespace

QString CodePage::Decode(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (IsSpecialByte(character.unicode()))
            character = specials[character.unicode() - firstSpecial];
    }
    return text;
}

QByteArray CodePage::Encode(QStringView text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        bytes += ByteOf(text[i].unicode()).value_or('?');
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
    }
    return bytes;
}

bool CodePage::Holds(char32_t character) { return ByteOf(character).has_value(); }

} // namespace lanterra
