#pragma once

#include "park/form_fields.h"
#include "park/http_message.h"

#include <QDateTime>
#include <deque>

namespace lanterra {

/// What a practice site received in one request.
struct Receipt {
    qint64 number = 0; ///< counted from 1 since the start
    QDateTime time;
    QString site;
    QString outcome; ///< how the site answers, in a few words
    QByteArray method;
    QString target;
    QList<FormField> headers;
    QList<FormField> fields;
    bool cut = false; ///< whether more came than is kept
};

/// The last 1,000 receipts, newest first. Of each at most 32 KiB of text are kept.
class ReceivedLog {
public:
    static constexpr size_t capacity = 1000;

    /// Records what this request brought to the site, and gives the receipt's number.
    qint64 Add(const QString &site, const QString &outcome, const HttpRequest &request,
               const QList<FormField> &fields);

    const std::deque<Receipt> &Receipts() const { return receipts; }
    qint64 Total() const { return total; }

    /// Whether a kept receipt of the site has this value in the field.
    bool Holds(const QString &site, const FormField &field) const;

private:
    std::deque<Receipt> receipts;
    qint64 total = 0;
};

} // namespace lanterra
