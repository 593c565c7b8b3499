#include "park/request_reader.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;

namespace {

int RefusalOf(const QByteArray &bytes) {
    RequestReader reader;
    return reader.Add(bytes) == RequestReader::State::Refused ? reader.RefusalStatus() : 0;
}

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

TEST(RequestReader, RefusesWhatIsNoRequest) {
    for (const char *bytes :
         {"\x16\x03\x01\x02\n", "GET /\r\n", "GET  / HTTP/1.1\r\n", "GET / HTTP/1.1\r\nno colon\r\n",
          "GET / HTTP/1.1\r\n: x\r\n", "GET /\x01 HTTP/1.1\r\n", "GET / HTTP/1.1\r\nA: b\rc\r\n",
          "POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n"})
        EXPECT_EQ(RefusalOf(bytes), 400) << bytes;
    EXPECT_EQ(RefusalOf("GET / HTTP/2.0\r\n"), 505);
    EXPECT_EQ(RefusalOf("POST / HTTP/1.1\r\n\r\n"), 411);
    EXPECT_EQ(RefusalOf("POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n"), 501);
}

TEST(RequestReader, RefusesWhatIsTooLarge) {
    EXPECT_EQ(RefusalOf("POST / HTTP/1.1\r\nContent-Length: 262145\r\n\r\n"), 413);
    EXPECT_EQ(RefusalOf("POST / HTTP/1.1\r\nContent-Length: 99999999999999999999\r\n\r\n"), 413);
    EXPECT_EQ(RefusalOf(QByteArray(65'536, 'x')), 431);
    EXPECT_EQ(RefusalOf("GET / HTTP/1.1\r\n" + QByteArray("A: b\r\n").repeated(201)), 431);
    EXPECT_EQ(RefusalOf("GET /" + QByteArray(65'000, 'x') + " HTTP/1.1\r\n\r\n"), 0);
}

} // namespace
