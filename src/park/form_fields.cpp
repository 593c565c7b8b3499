#include "park/form_fields.h"

#include "support/code_page.h"

#include <algorithm>

namespace lanterra {

namespace {

QString DecodeValue(QByteArrayView encoded) {
    QByteArray bytes = encoded.toByteArray();
    bytes.replace('+', ' ');
    return CodePage::Decode(QByteArray::fromPercentEncoding(bytes));
}

FormField DecodeField(QByteArrayView pair) {
    const qsizetype equals = pair.indexOf('=');
    if (equals < 0)
        return {DecodeValue(pair), {}};
    return {DecodeValue(pair.first(equals)), DecodeValue(pair.sliced(equals + 1))};
}

} // namespace

QList<FormField> ParseFormFields(QByteArrayView encoded, qsizetype maximum) {
    QList<FormField> fields;
    while (!encoded.isEmpty() && fields.size() < maximum) {
        const qsizetype end = encoded.indexOf('&');
        const QByteArrayView pair = end < 0 ? encoded : encoded.first(end);
        if (!pair.isEmpty())
            fields.append(DecodeField(pair));
        encoded = end < 0 ? QByteArrayView() : encoded.sliced(end + 1);
    }
    return fields;
}

QString ValueOf(const QList<FormField> &fields, const QString &name) {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&name](const FormField &field) { return field.name == name; });
    return found == fields.end() ? QString() : found->value;
}

} // namespace lanterra
