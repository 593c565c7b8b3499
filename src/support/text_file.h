#pragma once

#include <QString>

namespace lanterra {

/// The bytes of the file as text of the code page. What could be read of it if reading fails, in the worst
/// case the empty text.
QString ReadFileText(const QString &path);

/// Replaces the file by the text in the code page; adds nothing to it. The whole new file or the old one
/// stands afterwards. False if it could not be written.
bool WriteFileText(const QString &path, const QString &text);

} // namespace lanterra
