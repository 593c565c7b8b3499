#include "support/numbers.h"

#include <cmath>
#include <limits>

namespace lanterra {

namespace {

bool IsDigit(QChar character) { return character >= u'0' && character <= u'9'; }
bool IsSign(QChar character) { return character == u'+' || character == u'-'; }

qsizetype SkipDigits(QStringView text, qsizetype at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

qsizetype SkipSign(QStringView text, qsizetype at) {
    return at < text.size() && IsSign(text[at]) ? at + 1 : at;
}

/// The length of the exponent that stands at `at`, 0 if none or one without digits does.
qsizetype ExponentLength(QStringView text, qsizetype at) {
    if (at >= text.size() || text[at].toLower() != u'e')
        return 0;
    const qsizetype digits = SkipSign(text, at + 1);
    const qsizetype end = SkipDigits(text, digits);
    return end == digits ? 0 : end - at;
}

/// The length of the number that the text begins with, 0 for none.
qsizetype NumberLength(QStringView text) {
    const qsizetype start = SkipSign(text, 0);
    qsizetype end = SkipDigits(text, start);
    qsizetype digits = end - start;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = end + 1;
        end = SkipDigits(text, fraction);
        digits += end - fraction;
    }
    return digits == 0 ? 0 : end + ExponentLength(text, end);
}

} // namespace

double LeadingNumber(QStringView text) {
    const QStringView trimmed = text.trimmed();
    const double value = trimmed.first(NumberLength(trimmed)).toDouble();
    return std::isinf(value) ? std::copysign(std::numeric_limits<double>::max(), value) : value;
}

bool IsNumeric(QStringView text) {
    const QStringView trimmed = text.trimmed();
    return !trimmed.isEmpty() && NumberLength(trimmed) == trimmed.size();
}

bool IsBlank(QStringView text) { return text.isEmpty() || text == u" "; }

int RoundHalfEven(float value) { return static_cast<int>(std::nearbyint(value)); }

} // namespace lanterra
