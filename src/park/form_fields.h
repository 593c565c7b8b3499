#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace lanterra {

struct FormField {
    QString name;
    QString value;
};

/// The fields of a form in the order in which they stand, from a query or a body of the kind
/// application/x-www-form-urlencoded: "+" is a blank, "%XX" a byte, bytes are characters of the code page. A
/// "%" without two hexadecimal digits stands for itself. Never fails; at most `maximum` fields come back.
QList<FormField> ParseFormFields(QByteArrayView encoded, qsizetype maximum = 200);

/// The first value that a field of this name has; empty if it is missing.
QString ValueOf(const QList<FormField> &fields, const QString &name);

} // namespace lanterra
