#include "submission/http_header.h"
#include "submission/response_analysis.h"
#include "tests/fakes/scripted_event_queue.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(HttpHeaderTest, ReadsStatusAndLocation) {
    const QList<QStringList> cases{
        {u"HTTP/1.1 200 OK\r\n\r\n"_s, u"Success"_s, u""_s},
        {u"HTTP/1.0 302 Found\r\nlocation:  /x \r\nLocation: /y\r\n\r\n"_s, u"Redirection"_s, u"/x"_s},
        {u"HTTP/1.1 301 Moved\nLOCATION: /a\n b\n\nLocation: /body"_s, u"Redirection"_s, u"/a b"_s},
        {u"HTTP/1.1 404\r\nX: Location: /no\r\n\r\nLocation: /body\r\n"_s, u"Client Error"_s, u""_s},
        {u"HTTP/1.1 503 Busy"_s, u"Server Error"_s, u""_s},
        {u"HTTP/1.1 404\tNot Found\r\n\r\n"_s, u"Client Error"_s, u""_s}, // the answer reader takes it, too
        {u"HTTP/1.1 100 Continue\r\n\r\n"_s, u"Informational"_s, u""_s},
        {u"HTTP/1.1 999 Odd\r\n\r\n"_s, u""_s, u""_s},
        {u"hello 404 body"_s, u""_s, u""_s},
        {u""_s, u""_s, u""_s},
    };
    HttpHeader header;
    for (const QStringList &row : cases) {
        const QString before = header.StatusClass();
        header.SetRawHeader(row[0]);
        EXPECT_EQ(header.StatusClass(), before) << "it keeps its last result until the next parse";
        header.Parse();
        EXPECT_EQ(header.StatusClass(), row[1]) << row[0].toStdString();
        EXPECT_EQ(header.LocationValue(), row[2]) << row[0].toStdString();
    }
}

class ResponseAnalysisTest : public testing::Test {
protected:
    FakeClock clock;
    ScriptedEventQueue queue{clock};
    ResponseAnalysis analysis{queue};
};

TEST_F(ResponseAnalysisTest, JudgesABlockScansItForALocationAndReadsARedirectionInItsFirstLine) {
    const QString notHere = u"Error: No redirection URL"_s;
    const QList<QStringList> cases{
        {u"HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nContent-Type: text/plain\r\n"_s, u"Done"_s, {}, {}},
        {u"HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nContent-Type: application/zip\r\n"_s, {}, {}, {}},
        {u"HTTP/1.1 200 OK\r\nContent-Length: soon\r\nContent-Type: text/html\r\n"_s, {}, {}, {}},
        {u"just text"_s, u"Error: unknown"_s, u"Error: unknown"_s, {}},
        {u"HTTP/1.1 404 Not Found\r\nLocation: /x\r\n"_s, u"Error: 404 Not Found"_s, {}, {}},
        {u"HTTP/1.1 200 OK\r\n\r\nthe word NOT FOUND in a body"_s, u"Error: Not Found"_s, {}, {}},
        {u"HTTP/1.1 200 OK\r\nLocation: /x\r\n"_s, {}, u"/x"_s, {}},
        {u"HTTP/1.1 302 Found\r\nA: b\r\nlocation: /x\r\n\r\n"_s, {}, u"/x"_s, notHere},
        {u"HTTP/1.0 200 File moved Location: /x\r\n"_s, u"Redirection"_s, u"/x"_s, u"Redirection"_s},
        {u"HTTP/1.1 200 Moved Location: /x"_s, u"Redirection"_s, u"/x"_s, notHere}, // no line end of its own
    };
    for (const QStringList &row : cases) {
        EXPECT_EQ(analysis.AnalyseResponseHeader(row[0]), row[1]) << row[0].toStdString();
        EXPECT_EQ(analysis.ScanLocation(row[0]), row[2]) << row[0].toStdString();
        EXPECT_EQ(analysis.ReadRedirection(row[0]), row[3]) << row[0].toStdString();
    }
    EXPECT_GT(queue.Yields(), 17);
}

TEST_F(ResponseAnalysisTest, TakesThreeValuesFromTheHeader) {
    const QList<QStringList> cases{
        {u"HTTP/1.1 200 OK\r\nLast-Modified: today\r\nContent-Length: 12\r\ncontent-type: TEXT/HTML; x\r\n"_s,
         u"today 12 text/html"_s},
        {u"Site Unavailable"_s, u"n/a 0 n/a"_s}};
    for (const QStringList &row : cases) {
        analysis.AnalyseResponseHeader(row[0]);
        EXPECT_EQ((QStringList{analysis.lastModified, analysis.contentLength, analysis.contentType}),
                  row[1].split(u' '));
    }
}

} // namespace
