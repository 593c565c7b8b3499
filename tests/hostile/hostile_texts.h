#pragma once

#include <QStringList>

namespace lanterra {

/// Texts that break careless programs, each shorter than any field: controls, halves of surrogate pairs,
/// characters that storage and code page can't hold, and what looks like markup, a format, a path, a query or
/// a template.
QStringList HostileTexts();

} // namespace lanterra
