#pragma once

#include <QString>
#include <QStringView>
#include <functional>

namespace lanterra {

/// `text` with every "{{name}}" replaced by what `valueOf` gives for the name. One pass: a value that holds
/// braces itself is not looked at again. Braces that don't close stay as they are.
QString FillSlots(QStringView text, const std::function<QString(QStringView)> &valueOf);

} // namespace lanterra
