#include "support/text_template.h"

namespace lanterra {

QString FillTemplate(const QString &text, const QHash<QString, QString> &values) {
    QString filled;
    qsizetype from = 0;
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', open + 1)) {
        const qsizetype close = text.indexOf(u'}', open);
        const auto value = values.constFind(text.mid(open + 1, close - open - 1));
        if (close < 0 || value == values.constEnd())
            continue;
        filled += QStringView(text).mid(from, open - from);
        filled += *value;
        from = close + 1;
    }
    filled += QStringView(text).mid(from);
    return filled;
}

} // namespace lanterra
