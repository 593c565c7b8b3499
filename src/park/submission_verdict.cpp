#include "park/submission_verdict.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

bool IsWebAddress(const QString &text) {
    static const QRegularExpression pattern(u"^https?://[^\\s/?#@]+([/?#]\\S*)?$"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(text).hasMatch();
}

bool IsEmailAddress(const QString &text) {
    static const QRegularExpression pattern(u"^[^\\s@]+@[^\\s@]+\\.[^\\s@]+$"_s);
    return pattern.match(text).hasMatch();
}

QString ObjectionToValue(const PracticeSite &site, const SiteField &field, const QString &value) {
    if (value.trimmed().isEmpty()) {
        const QString missing = field.check == u"category" ? u"missing-category"_s : u"missing-field"_s;
        return field.required ? missing : QString();
    }
    if (field.limit > 0 && value.size() > field.limit)
        return u"too-long"_s;
    if (field.check == u"address" && !IsWebAddress(value))
        return u"bad-address"_s;
    if (field.check == u"email" && !IsEmailAddress(value))
        return u"bad-email"_s;
    if (field.check == u"category" && !site.categories.contains(value))
        return u"unknown-category"_s;
    if (field.check == u"subject" && !Subjects().contains(value))
        return u"unknown-subject"_s;
    return {};
}

} // namespace

Objection FindObjection(const PracticeSite &site, const QList<FormField> &fields) {
    for (const SiteField &field : site.fields) {
        if (field.word.isEmpty())
            continue;
        const QString answer = ObjectionToValue(site, field, ValueOf(fields, field.name));
        if (!answer.isEmpty())
            return {answer, field.label};
    }
    return {};
}

const QStringList &Subjects() {
    static const QStringList subjects = {u"Miscellaneous"_s, u"Business"_s,   u"Computers"_s, u"Education"_s,
                                         u"Entertainment"_s, u"Government"_s, u"Personal"_s};
    return subjects;
}

} // namespace lanterra
