#include "tests/platform/read_answer.h"
#include "tests/qt_printing.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using End = AnswerReader::End;
using Outcome = AnswerOutcome;

constexpr qsizetype kilobyte = 1024;

Outcome ReadWhole(const QByteArray &answer, End end = End::Orderly) {
    return ReadAnswer(answer, answer.size(), end);
}

// A row of answers.txt in its own words.
QByteArray Word(const Outcome &outcome) {
    if (outcome.complete)
        return outcome.body == "hello body\n" ? "whole" : "another body";
    if (outcome.problem.isEmpty())
        return "no reason";
    return outcome.header.isEmpty() ? "refused" : outcome.body == "hello" ? "part" : "another part";
}

TEST(AnswerReader, JudgesTheListedAnswersWholeAndByteByByte) {
    QFile file(u":/tests/answers.txt"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    while (!file.atEnd()) {
        const QByteArray row = file.readLine().chopped(1);
        const qsizetype blank = row.indexOf(' ');
        QByteArray answer = row.mid(blank + 1);
        answer.replace("\\r", "\r").replace("\\n", "\n").replace("\\t", "\t").replace("\\0", {"\0", 1});
        if (row.startsWith('#'))
            continue;
        EXPECT_EQ(Word(ReadWhole(answer)), row.first(blank)) << row.toStdString();
        EXPECT_EQ(Word(ReadAnswer(answer, 1, End::Orderly)), row.first(blank)) << row.toStdString();
    }
}

TEST(AnswerReader, OnlyAnAnswerThatTellsItsLengthMayEndBroken) {
    const Outcome broken = ReadWhole("HTTP/1.1 200 OK\r\n\r\nhello body\n", End::Broken);
    EXPECT_FALSE(broken.complete);
    EXPECT_EQ(broken.problem, u"The connection was closed in the middle of the answer"_s);
    for (const char *status : {"204 No Content", "304 Not Modified"}) { // these have no body
        const Outcome outcome =
            ReadWhole(QByteArray("HTTP/1.1 ") + status + "\r\nContent-Length: 9\r\n\r\nhello", End::Broken);
        EXPECT_TRUE(outcome.complete && outcome.body.isEmpty()) << status;
    }
}

TEST(AnswerReader, HeaderTextIsTheFinalAnswersOwnAsItCame) {
    EXPECT_EQ(ReadWhole("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 302 Found\nLOCATION: x\n y\n\nbody").header,
              "HTTP/1.1 302 Found\nLOCATION: x\n y\n\n");
}

TEST(AnswerReader, BoundsHoldAgainstAnswersWithoutEnd) {
    const QByteArray status = "HTTP/1.1 200 OK\r\n";
    const QByteArray chunks = status + "Transfer-Encoding: chunked\r\n\r\n";
    const QByteArray kilo(kilobyte, 'x');
    const std::pair<QByteArray, QString> cases[] = {
        {status + "A: " + kilo.repeated(99) + "\r\n\r\n", u""_s},
        {status + "A: " + kilo.repeated(100), u"A header line of the answer is too long"_s},
        {status + ("A: " + kilo + "\r\n").repeated(300), u"The headers of the answer are too long"_s},
        {QByteArray("HTTP/1.1 103 Early\r\n\r\n").repeated(20 * kilobyte),
         u"The answer has too many header lines"_s},
        {chunks + "0;" + kilo.repeated(16), u"A chunk line of the answer is too long"_s},
        {chunks + "0\r\n" + QByteArray("T: x\r\n").repeated(11 * kilobyte),
         u"The trailers of the answer are too long"_s}};
    for (const auto &[answer, problem] : cases)
        EXPECT_EQ(ReadWhole(answer).problem, problem);
}

TEST(AnswerReader, ABodyOf64MebibytesIsTheLargest) {
    using Step = AnswerReader::Step;
    const QByteArray block(kilobyte * kilobyte, 'x');
    AnswerReader reader;
    QByteArrayView header("HTTP/1.1 200 OK\r\n\r\n");
    ASSERT_EQ(reader.Read(header), Step::Header);
    for (int i = 0; i <= 64; ++i) {
        QByteArrayView rest(i < 64 ? block : block.first(1));
        ASSERT_EQ(reader.Read(rest), i < 64 ? Step::Body : Step::Failed) << i;
    }
}

} // namespace
