#include "project/site_schema.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QStringList Statements() {
    QFile file(u":/project/site_schema.sql"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList statements = QString::fromUtf8(file.readAll()).split(u';');
    statements.removeLast();
    return statements;
}

} // namespace

DatabaseSchema SiteSchema() { return SchemaOf(Statements()); }

bool CreateSiteDatabase(const QString &path, const DatabaseFiller &fill) {
    return CreateDatabase(path, Statements(), fill);
}

} // namespace lanterra
