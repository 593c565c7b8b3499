#pragma once

#include <QDateTime>
#include <QString>

namespace lanterra {

/// Date and time in the short forms of the user's locale, with ordinary blanks where the locale has narrow
/// ones, which the code page can't hold.
QString ShortDate(const QDateTime &moment);
QString ShortTime(const QDateTime &moment);

} // namespace lanterra
