#pragma once

#include <QHash>
#include <QString>

namespace lanterra {

/// `text` with every "{NAME}" replaced by the value of that name, unescaped. One pass: a value that holds a
/// placeholder itself is not looked at again. A name without a value stays as it is, braces included.
QString FillTemplate(const QString &text, const QHash<QString, QString> &values);

} // namespace lanterra
