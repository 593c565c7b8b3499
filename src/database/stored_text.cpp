#include "database/stored_text.h"

#include <QStringConverter>
#include <algorithm>

namespace lanterra {

namespace {

constexpr QByteArrayView mark("\xFF\xFE", 2);

bool SurvivesAsText(QStringView text) {
    const auto isLost = [](QChar character) { return character.unicode() >= 0xFFFE; };
    return text.isValidUtf16() && !text.startsWith(QChar(QChar::ByteOrderMark)) &&
           std::none_of(text.cbegin(), text.cend(), isLost);
}

} // namespace

QVariant StoredForm(const QVariant &value) {
    if (value.typeId() != QMetaType::QString || SurvivesAsText(value.toString()))
        return value;
    QStringEncoder encoder(QStringEncoder::Utf16LE, QStringConverter::Flag::WriteBom);
    return QByteArray(encoder(value.toString()));
}

QVariant FromStoredForm(const QVariant &value) {
    if (value.typeId() != QMetaType::QByteArray || !value.toByteArray().startsWith(mark))
        return value;
    QStringDecoder decoder(QStringDecoder::Utf16LE);
    return QString(decoder(value.toByteArray()));
}

} // namespace lanterra
