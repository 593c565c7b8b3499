#pragma once

#include <QString>

namespace lanterra {

/// The web address of the product. Names under lanterra.example are reserved for its maker.
inline QString ProductAddress() { return QStringLiteral("https://www.lanterra.example/"); }

} // namespace lanterra
