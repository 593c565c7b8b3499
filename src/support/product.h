#pragma once

#include <QString>

namespace lanterra {

/// The web address of the product. Names under lanterra.example are reserved for its maker.
inline QString ProductAddress() { return QStringLiteral("https://www.lanterra.example/"); }

/// The version as the window and the reports show it.
inline QString VersionCaption() { return QStringLiteral("Version " LANTERRA_VERSION); }

} // namespace lanterra
