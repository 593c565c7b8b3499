#pragma once

#include <QJsonDocument>
#include <QString>

namespace lanterra {

/// The JSON document of one of the program's own resources; an empty document if it isn't there.
QJsonDocument ReadJsonResource(const QString &path);

} // namespace lanterra
