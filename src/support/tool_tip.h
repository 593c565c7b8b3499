#pragma once

#include <QString>

namespace lanterra {

/// A text for the tip that comes up under the pointer: as markup, so that names in it aren't taken for such,
/// and so that a long one wraps. Empty for an empty text.
inline QString ToolTipOf(const QString &text) {
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

} // namespace lanterra
