#include "submission/http_header.h"
#include "submission/response_analysis.h"
#include "tests/fakes/scripted_event_queue.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(HttpHeaderTest, ReadsStatusAndLocation) {
    const struct {
        QString raw, statusClass, location;
    } cases[] = {
        {u"HTTP/1.1 200 OK\r\n\r\n"_s, u"Success"_s, u""_s},
        {u"HTTP/1.0 302 Found\r\nlocation:  /next \r\nLocation: /second\r\n\r\n"_s, u"Redirection"_s,
         u"/next"_s},
        {u"HTTP/1.1 301 Moved\nLOCATION: http://a.example/\n continued\n\nLocation: /body"_s,
         u"Redirection"_s, u"http://a.example/ continued"_s},
        {u"HTTP/1.1 404\r\nX: Location: /no\r\n\r\nLocation: /body\r\n"_s, u"Client Error"_s, u""_s},
        {u"HTTP/1.1 503 Busy"_s, u"Server Error"_s, u""_s},
        {u"HTTP/1.1 404\tNot Found\r\n\r\n"_s, u"Client Error"_s,
         u""_s}, // which the answer reader takes, too
        {u"HTTP/1.1 100 Continue\r\n\r\n"_s, u"Informational"_s, u""_s},
        {u"HTTP/1.1 999 Odd\r\n\r\n"_s, u""_s, u""_s},
        {u"hello 404 body"_s, u""_s, u""_s},
        {u""_s, u""_s, u""_s},
    };
    HttpHeader header;
    for (const auto &answer : cases) {
        header.SetRawHeader(answer.raw);
        header.Parse();
        EXPECT_EQ(header.StatusClass(), answer.statusClass) << answer.raw.toStdString();
        EXPECT_EQ(header.LocationValue(), answer.location) << answer.raw.toStdString();
    }
}

TEST(HttpHeaderTest, KeepsItsLastResultUntilTheNextParse) {
    HttpHeader header;
    EXPECT_EQ(header.StatusClass(), QString());
    header.SetRawHeader(u"HTTP/1.1 404 Not Found\r\n\r\n"_s);
    header.Parse();
    header.SetRawHeader(u"HTTP/1.1 200 OK\r\n\r\n"_s);
    EXPECT_EQ(header.StatusClass(), u"Client Error"_s);
    EXPECT_EQ(header.StatusText(), u"404 Not Found"_s);
    EXPECT_EQ(header.StatusCode(), 404);
}

class ResponseAnalysisTest : public testing::Test {
protected:
    FakeClock clock;
    ScriptedEventQueue queue{clock};
    ResponseAnalysis analysis{queue};
};

TEST_F(ResponseAnalysisTest, JudgesTheFirstBlockOfADownload) {
    const QList<std::pair<QString, QString>> cases{
        {u"HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nContent-Type: text/plain\r\n"_s, u"Done"_s},
        {u"HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nContent-Type: application/zip\r\n"_s, u""_s},
        {u"HTTP/1.1 200 OK\r\nContent-Length: soon\r\nContent-Type: text/html\r\n"_s, u""_s},
        {u"just text"_s, u"Error: unknown"_s},
        {u"HTTP/1.1 404 Not Found\r\n"_s, u"Error: 404 Not Found"_s},
        {u"HTTP/1.1 200 OK\r\n\r\nthe word NOT FOUND in a body"_s, u"Error: Not Found"_s},
        {u"HTTP/1.1 302 Found\r\nLocation: /x\r\n"_s, u""_s}, // the Location stands behind the first line
        {u"HTTP/1.0 200 File moved Location: /x\r\n"_s, u"Redirection"_s},
    };
    for (const auto &[text, verdict] : cases)
        EXPECT_EQ(analysis.AnalyseResponseHeader(text), verdict) << text.toStdString();
    EXPECT_GT(queue.Yields(), 17);
}

TEST_F(ResponseAnalysisTest, TakesThreeValuesFromTheHeader) {
    analysis.AnalyseResponseHeader(
        u"HTTP/1.1 200 OK\r\nLast-Modified: today\r\nContent-Length: 12\r\ncontent-type: TEXT/HTML; x\r\n"_s);
    EXPECT_EQ(analysis.lastModified, u"today"_s);
    EXPECT_EQ(analysis.contentLength, u"12"_s);
    EXPECT_EQ(analysis.contentType, u"text/html"_s);
    analysis.AnalyseResponseHeader(u"Site Unavailable"_s);
    EXPECT_EQ(analysis.lastModified, u"n/a"_s);
    EXPECT_EQ(analysis.contentLength, u"0"_s);
    EXPECT_EQ(analysis.contentType, u"n/a"_s);
}

TEST_F(ResponseAnalysisTest, ReadsARedirectionFromTheFirstLineOnly) {
    EXPECT_EQ(analysis.ReadRedirection(u"HTTP/1.1 200 OK\r\nLocation: /x\r\n"_s), QString());
    EXPECT_EQ(analysis.ReadRedirection(u"HTTP/1.1 302 Found\r\nLocation: /x\r\n"_s),
              u"Error: No redirection URL"_s);
    EXPECT_EQ(analysis.ReadRedirection(u"HTTP/1.1 200 Moved Location: /x"_s), u"Error: No redirection URL"_s);
}

TEST_F(ResponseAnalysisTest, ScansTheWholeHeaderForALocation) {
    EXPECT_EQ(analysis.ScanLocation(u"HTTP/1.1 302 Found\r\nA: b\r\nlocation: /there\r\n\r\n"_s),
              u"/there"_s);
    EXPECT_EQ(analysis.ScanLocation(u"HTTP/1.1 200 OK\r\n\r\n"_s), QString());
    EXPECT_EQ(analysis.ScanLocation(u"HTTP/1.1 404 Not Found\r\nLocation: /x\r\n"_s), QString());
    EXPECT_EQ(analysis.ScanLocation(u"no header"_s), u"Error: unknown"_s);
}

} // namespace
