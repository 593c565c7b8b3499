#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>

namespace lanterra {

/// A page, or a part of one, that stands in a resource, one record a line:
///   - {NAME} is replaced by a value, unescaped;
///   - "@LIST text" is written once for each row of LIST.txt beside the page, with {VALUE}, {TEXT} and {MARK}
///     of the row;
///   - "?NAME text" is written if NAME is on.
/// Each line goes out with CR LF behind it. A row of a list is VALUE|TEXT|MARK; a row without TEXT has its
/// value as text.
class PageTemplate {
public:
    using Values = QHash<QString, QString>;
    using Switch = std::function<bool(const QString &name)>;

    /// `path` is of the form ":/folder/name.htm". A page that can't be read is empty.
    explicit PageTemplate(const QString &path);

    /// Without `isOn` all is on.
    QString Fill(const Values &values, const Switch &isOn = {}) const;

private:
    QString FillRows(const QString &list, const QString &record) const;

    QString folder;
    QStringList lines;
};

/// The lines of a resource, without the empty one behind its last line end.
QStringList ResourceLines(const QString &path);

} // namespace lanterra
