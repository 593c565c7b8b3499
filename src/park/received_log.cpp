#include "park/received_log.h"

#include "support/code_page.h"

#include <algorithm>

namespace lanterra {

namespace {

/// Hands out a fixed number of characters.
class Allowance {
public:
    explicit Allowance(qsizetype characters) : left(characters) {}

    QString Take(const QString &text) {
        QString taken = text.left(left);
        left -= taken.size();
        exceeded = exceeded || taken.size() < text.size();
        return taken;
    }

    QList<FormField> Take(const QList<FormField> &fields) {
        QList<FormField> taken;
        for (const FormField &field : fields)
            taken.append({Take(field.name), Take(field.value)});
        return taken;
    }

    bool Exceeded() const { return exceeded; }

private:
    qsizetype left;
    bool exceeded = false;
};

QList<FormField> HeaderTexts(const HttpRequest &request) {
    QList<FormField> texts;
    for (const auto &[name, value] : request.headers)
        texts.append({CodePage::Decode(name), CodePage::Decode(value)});
    return texts;
}

} // namespace

qint64 ReceivedLog::Add(const QString &site, const QString &outcome, const HttpRequest &request,
                        const QList<FormField> &fields) {
    Allowance allowance(32'768);
    Receipt receipt{++total, QDateTime::currentDateTime(), site, outcome, request.method, {}, {}, {}, false};
    receipt.fields = allowance.Take(fields);
    receipt.target = allowance.Take(CodePage::Decode(request.target));
    receipt.headers = allowance.Take(HeaderTexts(request));
    receipt.cut = allowance.Exceeded();
    receipts.push_front(std::move(receipt));
    if (receipts.size() > capacity)
        receipts.pop_back();
    return total;
}

bool ReceivedLog::Holds(const QString &site, const FormField &field) const {
    return std::any_of(receipts.begin(), receipts.end(), [&](const Receipt &receipt) {
        return receipt.site == site &&
               std::any_of(receipt.fields.begin(), receipt.fields.end(), [&](const FormField &known) {
                   return known.name == field.name && known.value == field.value;
               });
    });
}

} // namespace lanterra
