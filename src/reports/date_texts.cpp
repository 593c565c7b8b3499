#include "reports/date_texts.h"

#include <QLocale>

namespace lanterra {

namespace {

QString WithPlainBlanks(QString text) {
    constexpr QChar narrowNoBreakSpace(0x202F);
    constexpr QChar thinSpace(0x2009);
    return text.replace(narrowNoBreakSpace, u' ').replace(thinSpace, u' ');
}

} // namespace

QString ShortDate(const QDateTime &moment) {
    return WithPlainBlanks(QLocale::system().toString(moment.date(), QLocale::ShortFormat));
}

QString ShortTime(const QDateTime &moment) {
    return WithPlainBlanks(QLocale::system().toString(moment.time(), QLocale::ShortFormat));
}

} // namespace lanterra
