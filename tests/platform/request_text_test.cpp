#include "platform/request_text.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(TargetAddress, TakesApartWhatPeopleType) {
    const QList<QStringList> rows{
        {u"http://a.example"_s, u"a.example"_s, u"/"_s},
        {u"  HTTP://A.Example:80/x y?q=1#top "_s, u"a.example"_s, u"/x y?q=1"_s},
        {u"https://a.example:80/"_s, u"a.example:80"_s, u"/"_s},
        {u"https://a.example.:443?q"_s, u"a.example"_s, u"/?q"_s},
        {u"http://user:word@a_b.example:8080/@"_s, u"a_b.example:8080"_s, u"/@"_s},
        {u"http://[::1]:8571/x"_s, u"[::1]:8571"_s, u"/x"_s},
        {u"http://[FE80::1]"_s, u"[fe80::1]"_s, u"/"_s},
        {u"http://b\u00fccher.example:/"_s, u"xn--bcher-kva.example"_s, u"/"_s},
    };
    for (const QStringList &row : rows) {
        QString problem;
        const auto target = ParseTarget(row[0], problem);
        ASSERT_TRUE(target) << row[0].toStdString() << problem.toStdString();
        EXPECT_EQ(target->HostName(), row[1]);
        EXPECT_EQ(target->resource, row[2]);
    }
}

TEST(TargetAddress, RefusesWhatNamesNoHostOrPort) {
    const QStringList hosts{
        u""_s,       u"/x"_s,           u"a b.example/"_s,  u"a\r\nX: y/"_s, u"a..example"_s,  u"[::1/"_s,
        u"[::g]/"_s, u"a.example:0/"_s, u"a.example:+80"_s, u"a:65536/"_s,   QString(64, u'a')};
    QStringList texts{u""_s, u"a.example/x"_s, u"ftp://a.example/"_s};
    for (const QString &host : hosts)
        texts << u"http://"_s + host;
    for (const QString &text : texts) {
        QString problem;
        EXPECT_FALSE(ParseTarget(text, problem)) << text.toStdString();
        EXPECT_NE(problem, QString());
    }
}

TEST(RequestText, SendsHeadersAsTheyAreAndAddsWhatTheyLack) {
    const struct {
        QByteArray method;
        QString target;
        QByteArray headers, text;
    } rows[] = {
        {"GET", u"a.example:81/x"_s, "", "GET /x HTTP/1.1\r\nHost: a.example:81\r\n\r\n"},
        {"GET", u"a.example"_s, "X_Y: host\r\nHOST: z\r\n", "GET / HTTP/1.1\r\nX_Y: host\r\nHOST: z\r\n\r\n"},
        {"GET", u"a.example"_s, "Host: z", "GET / HTTP/1.1\r\nHost: z\r\n\r\n"},
        {"POST", u"a.example/f"_s, "CONTENT-LENGTH: 13\r\n\r\nhost: a\r\n\r\nb",
         "POST /f HTTP/1.1\r\nHost: a.example\r\nContent-Type: application/x-www-form-urlencoded\r\n"
         "CONTENT-LENGTH: 13\r\n\r\nhost: a\r\n\r\nb"},
        {"POST", u"a.example/f"_s, "HOST: z\r\nCONTENT-TYPE: text/plain\r\n\r\n",
         "POST /f HTTP/1.1\r\nHOST: z\r\nCONTENT-TYPE: text/plain\r\n\r\n"},
        // the request line is encoded byte by byte
        {"GET", u"a.example/\u00e9 \u20ac%20\u043f?q=\u00e9\u0431\x7F\t&r"_s, "Host: z\r\n",
         "GET /%E9%20%80%20%D0%BF?q=%E9?%7F%09&r HTTP/1.1\r\nHost: z\r\n\r\n"},
        // a line break in the address starts no header line
        {"GET", u"a.example/?q=a\r\n\r\nEvil: 1 2"_s,
         "HOST: z\r\nREFERER: http://a.example/?q=a\r\n\r\nEvil: 1 2\r\n",
         "GET /?q=a%0D%0A%0D%0AEvil:%201%202 HTTP/1.1\r\nHOST: z\r\n"
         "REFERER: http://a.example/?q=a%0D%0A%0D%0AEvil: 1 2\r\n\r\n"},
    };
    for (const auto &row : rows) {
        QString problem;
        const QString target = u"http://"_s + row.target;
        EXPECT_EQ(RequestText({row.method, target, row.headers, false}, ParseTarget(target, problem).value()),
                  row.text);
    }
}

} // namespace
