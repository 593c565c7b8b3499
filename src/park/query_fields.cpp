#include "park/query_fields.h"

namespace lanterra {

namespace {

void AppendLiteral(QList<QueryField> &fields, const QString &literal) {
    const QStringList parts = literal.split(u'&');
    fields.last().fixedValue += parts.first();
    for (qsizetype i = 1; i < parts.size(); ++i)
        fields.append({{}, parts[i], {}});
}

void SplitNameFromValue(QueryField &field) {
    const qsizetype equals = field.fixedValue.indexOf(u'=');
    field.name = field.fixedValue.left(equals);
    field.fixedValue.remove(0, field.name.size() + 1);
}

} // namespace

QList<QueryField> QueryFields(const QString &query) {
    QList<QueryField> fields(1);
    const QStringList pieces = query.split(u'"');
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        const bool literal = i % 2 == 1;
        const QString word = QString(pieces[i]).remove(u'&').trimmed();
        if (literal)
            AppendLiteral(fields, pieces[i]);
        else if (!word.isEmpty())
            fields.last().words.append(word);
    }
    for (QueryField &field : fields)
        SplitNameFromValue(field);
    fields.removeIf([](const QueryField &field) { return field.name.isEmpty(); });
    return fields;
}

} // namespace lanterra
