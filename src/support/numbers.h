#pragma once

#include <QStringView>

namespace lanterra {

/// The number that a text begins with, leading blanks passed over: sign, digits, one point, exponent. 0 if it
/// begins with none, so "5000abc" is 5000 and "twelve" is 0. No locale, no hexadecimal, no "inf"; a number
/// too large for a double is the largest one.
double LeadingNumber(QStringView text);

/// Whether the whole text, trimmed, is such a number.
bool IsNumeric(QStringView text);

/// Whether a field counts as empty: "" or a single blank.
bool IsBlank(QStringView text);

/// Rounds to a whole number, a half to the even neighbour. The value must lie in the range of int.
int RoundHalfEven(float value);

} // namespace lanterra
