#pragma once

#include <QString>

namespace lanterra {

/// Form encoding as the stored templates expect it: 29 replacements, one after the other, in a fixed order. All
/// other characters pass, line breaks and those above 127 included.
QString UrlEncode(QString text);

} // namespace lanterra
