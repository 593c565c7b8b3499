#pragma once

#include <QString>

namespace lanterra {

/// A constant that the program keeps enciphered, by its role. The readable source is product_values.txt; the
/// build enciphers it. Empty for an unknown role.
QString ProductValue(const QString &role);

} // namespace lanterra
