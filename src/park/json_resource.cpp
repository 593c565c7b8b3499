#include "park/json_resource.h"

#include <QFile>

namespace lanterra {

QJsonDocument ReadJsonResource(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
}

} // namespace lanterra
