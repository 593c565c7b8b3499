#pragma once

#include <QByteArray>
#include <QString>

namespace lanterra {

/// What the client sends below the request line when one of the program's own forms is posted: the type of
/// the body, its length in bytes of the code page, and the body as it is.
QByteArray FormPost(const QString &body);

} // namespace lanterra
