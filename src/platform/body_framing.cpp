#include "platform/body_framing.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace lanterra {

using namespace Qt::StringLiterals;

namespace {

// What a length stands for that is too large to be one. Two of these count as the same.
constexpr qint64 endless = std::numeric_limits<qint64>::max();

BodyFraming Malformed(const QString &reason) { return {BodyFraming::Kind::Malformed, 0, reason}; }

std::optional<qint64> ParseLength(const QByteArray &value) {
    if (value.isEmpty() ||
        !std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return {};
    bool fits = false;
    const qint64 length = value.toLongLong(&fits);
    return fits ? length : endless;
}

// The codings of all Transfer-Encoding lines in lower case; "identity" means none.
QList<QByteArray> TransferCodings(const AnswerHeader &header) {
    QList<QByteArray> codings;
    for (const HeaderField &field : header.fields) {
        if (field.name != "transfer-encoding")
            continue;
        for (const QByteArray &part : field.value.toLower().split(',')) {
            const QByteArray coding = part.trimmed();
            if (!coding.isEmpty() && coding != "identity")
                codings.append(coding);
        }
    }
    return codings;
}

BodyFraming FramingByLength(const AnswerHeader &header) {
    std::optional<qint64> length;
    for (const HeaderField &field : header.fields) {
        if (field.name != "content-length")
            continue;
        const std::optional<qint64> value = ParseLength(field.value);
        if (!value || (length && *length != *value))
            return Malformed(u"The Content-Length of the answer is not valid"_s);
        length = value;
    }
    if (!length || *length == endless)
        return {};
    return {BodyFraming::Kind::Length, *length, {}};
}

} // namespace

BodyFraming FramingOf(const AnswerHeader &header) {
    if (header.status == 204 || header.status == 304)
        return {BodyFraming::Kind::None, 0, {}};
    BodyFraming framing = FramingByLength(header);
    const QList<QByteArray> codings = TransferCodings(header);
    if (framing.kind == BodyFraming::Kind::Malformed || codings.isEmpty())
        return framing;
    if (codings != QList<QByteArray>{"chunked"})
        return Malformed(u"The transfer coding of the answer is not supported"_s);
    return {BodyFraming::Kind::Chunks, 0, {}};
}

} // namespace lanterra
