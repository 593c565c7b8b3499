#include "shell/version_file.h"

#include <QHash>
#include <QStringList>
#include <QVersionNumber>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

bool IsWebAddress(const QString &text) {
    return text.startsWith("http://"_L1, Qt::CaseInsensitive) ||
           text.startsWith("https://"_L1, Qt::CaseInsensitive);
}

} // namespace

bool VersionFile::IsNewerThan(const QString &otherVersion) const {
    return QVersionNumber::fromString(version) > QVersionNumber::fromString(otherVersion);
}

std::optional<VersionFile> ReadVersionFile(const QString &text, const QString &product) {
    QHash<QString, QString> values;
    for (const QString &line : text.split(u'\n'))
        values[line.section(u'=', 0, 0).trimmed()] = line.section(u'=', 1).trimmed();
    VersionFile file{values[u"Version"_s], values[u"Page"_s], values[u"Note"_s]};
    if (values[u"Product"_s] != product || QVersionNumber::fromString(file.version).isNull())
        return {};
    if (!IsWebAddress(file.page))
        file.page.clear();
    return file;
}

} // namespace lanterra
