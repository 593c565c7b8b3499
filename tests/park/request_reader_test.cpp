#include "park/request_reader.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;

namespace {

const QByteArray post =
    "POST http://a.example/x?y HTTP/1.1\r\nHOST: a.example\r\nCONTENT-LENGTH: 5\r\n\r\nu=a&b";

TEST(RequestReader, ReadsARequestThatComesByteByByteAndKeepsTheNext) {
    RequestReader reader;
    for (qsizetype i = 0; i + 1 < post.size(); ++i)
        ASSERT_EQ(reader.Add(post.mid(i, 1)), RequestReader::State::NeedsMore) << i;
    EXPECT_EQ(reader.Add("bGET /next HTTP/1.0\n\n"), RequestReader::State::Complete);
    const HttpRequest request = reader.TakeRequest();
    EXPECT_EQ(request.path, "/x");
    EXPECT_EQ(request.query, "y");
    EXPECT_EQ(request.Header("host"), "a.example");
    EXPECT_EQ(request.body, "u=a&b");
    EXPECT_EQ(reader.Add({}), RequestReader::State::Complete);
    EXPECT_EQ(reader.TakeRequest().path, "/next");
    EXPECT_FALSE(reader.HasBegun());
}

TEST(RequestReader, RefusesWhatIsNoRequestOrTooLarge) {
    const std::pair<QByteArray, int> cases[] = {
        {"\x16\x03\x01\x02\n", 400},
        {"GET /\r\n", 400},
        {"GET  / HTTP/1.1\r\n", 400},
        {"GET / HTTP/1.1\r\nno colon\r\n", 400},
        {"GET / HTTP/1.1\r\n: x\r\n", 400},
        {"GET /\x01 HTTP/1.1\r\n", 400},
        {"GET / HTTP/1.1\r\nA: b\rc\r\n", 400},
        {"POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n", 400},
        {"GET / HTTP/2.0\r\n", 505},
        {"POST / HTTP/1.1\r\n\r\n", 411},
        {"POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n", 501},
        {"POST / HTTP/1.1\r\nContent-Length: 262145\r\n\r\n", 413},
        {"POST / HTTP/1.1\r\nContent-Length: 99999999999999999999\r\n\r\n", 413},
        {QByteArray(65'536, 'x'), 431},
        {"GET / HTTP/1.1\r\n" + QByteArray("A: b\r\n").repeated(201), 431},
        {"GET /" + QByteArray(65'000, 'x') + " HTTP/1.1\r\n\r\n", 0}};
    for (const auto &[bytes, status] : cases) {
        RequestReader reader;
        const bool refused = reader.Add(bytes) == RequestReader::State::Refused;
        EXPECT_EQ(refused ? reader.RefusalStatus() : 0, status) << bytes.left(60).toStdString();
    }
}

} // namespace
