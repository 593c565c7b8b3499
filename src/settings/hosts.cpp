#include "settings/hosts.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

Hosts::Hosts(const QString &programFolder)
    : file(QDir(programFolder).filePath(u"hosts.ini"_s), QSettings::IniFormat) {}

QString Hosts::Address(const QString &section, const QString &key) const {
    // A comma makes a list of what is one address.
    return file.value(section + u'/' + key).toStringList().join(u',').trimmed();
}

} // namespace lanterra
