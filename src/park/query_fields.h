#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lanterra {

/// One field of the form that a stored query template fills.
struct QueryField {
    QString name;
    QString fixedValue; ///< the literal text of the value, still in form encoding
    QStringList words;  ///< the placeholder words that stand in the value; none for a fixed field
};

/// The fields that a query template sends, in their order. The template is literal pieces in double quotes,
/// joined by " & " to placeholder words: `"url=" & txtUrlText & "&lang=en"` gives `url`, filled by
/// txtUrlText, and `lang`.
QList<QueryField> QueryFields(const QString &query);

} // namespace lanterra
