#pragma once

#include <QByteArray>

namespace lanterra {

/// Whether a byte is a control character, which must not stand in a line of an HTTP header.
bool IsControl(char byte);

/// Each byte for which `mustEncode` holds becomes "%" and its code in two hexadecimal capitals; all others
/// pass, a "%" too.
QByteArray PercentEncode(QByteArrayView bytes, bool (*mustEncode)(char));

} // namespace lanterra
