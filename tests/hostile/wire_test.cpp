#include "platform/request_text.h"
#include "submission/request_headers.h"
#include "submission/request_template.h"
#include "tests/hostile/hostile_texts.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// The names of the header lines, and whether nothing but those lines stands above the body.
QByteArray NamesOf(const QByteArray &request) {
    QByteArray names;
    for (const QByteArray &line : request.first(request.indexOf("\r\n\r\n")).split('\n')) {
        const QByteArray content = line.endsWith('\r') ? line.chopped(1) : line;
        const bool hasControl =
            std::any_of(content.begin(), content.end(), [](unsigned char c) { return c < 32 || c == 127; });
        names += hasControl ? "a control character, " : content.first(content.indexOf(' ')) + ' ';
    }
    return names;
}

QByteArray Sent(const QString &action, const QString &query, const QString &method) {
    const SiteRequest site{u"Site"_s, action, query, method};
    QString problem;
    const std::optional<TargetAddress> address = ParseTarget(RequestTarget(site), problem);
    EXPECT_TRUE(address) << problem.toStdString();
    return RequestText(
        {method.toLatin1(), RequestTarget(site), SubmissionHeaders(site, address->HostName()), false},
        *address);
}

constexpr auto getLines =
    "GET HOST: USER_AGENT: PRAGMA: ACCEPT_CHARSET: ACCEPT: ACCEPT_LANGUAGE: CONNECTION: REFERER: ";
constexpr auto postLines =
    "POST HOST: USER_AGENT: PRAGMA: ACCEPT_CHARSET: ACCEPT: ACCEPT_LANGUAGE: CONNECTION: REFERER: "
    "CONTENT-TYPE: CONTENT-LENGTH: ";

TEST(HostileTextOnTheWire, StartsNoLineAndBreaksNoField) {
    const QString site =
        u"\"url=\" & txtUrlText & \"&d=\" & txtDescText & \"&k=\" & AllKeywords & \"&end=1\""_s;
    ProjectRecord record;
    for (const QString &text : HostileTexts()) {
        for (const ProjectRecord::TextField &field : record.TextFields())
            field.box->SetText(text);
        const QString query = RequestTemplate(record).Expand(site, [] { return QString(); });
        EXPECT_EQ(query.count(u'&'), 3) << query.toStdString();
        EXPECT_TRUE(query.endsWith(u"&end=1"_s));
        EXPECT_EQ(NamesOf(Sent(u"http://a.example/add"_s, query, u"GET"_s)), getLines) << query.toStdString();
        const QByteArray post = Sent(u"http://a.example/add"_s, query, u"POST"_s);
        EXPECT_EQ(NamesOf(post), postLines) << query.toStdString();
        const QByteArray body = post.sliced(post.indexOf("\r\n\r\n") + 4);
        EXPECT_TRUE(post.contains("\r\nCONTENT-LENGTH: " + QByteArray::number(body.size()) + "\r\n\r\n"));
    }
}

TEST(HostileTextOnTheWire, OfASiteStartsNoLineEither) {
    for (const QString &text : HostileTexts()) {
        EXPECT_EQ(NamesOf(Sent(u"http://a.example/"_s + text, text, u"GET"_s)), getLines)
            << text.toStdString();
        EXPECT_EQ(NamesOf(Sent(u"http://a.example/"_s + text, text, u"POST"_s)), postLines)
            << text.toStdString();
    }
}

} // namespace
