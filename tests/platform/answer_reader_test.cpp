#include "tests/platform/read_answer.h"
#include "tests/qt_printing.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

// A row of answers.txt in its own words.
QByteArray Word(const AnswerOutcome &outcome) {
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
        for (const qsizetype blockSize : {answer.size(), qsizetype(1)})
            EXPECT_EQ(Word(ReadAnswer(answer, blockSize, AnswerReader::End::Orderly)), row.first(blank))
                << row.toStdString();
    }
}

TEST(AnswerReader, BoundsHoldAgainstAnswersWithoutEnd) {
    const QByteArray status = "HTTP/1.1 200 OK\r\n";
    const QByteArray chunks = status + "Transfer-Encoding: chunked\r\n\r\n";
    const QByteArray kilo(1024, 'x');
    const std::pair<QByteArray, QString> cases[] = {
        {status + "A: " + kilo.repeated(99) + "\r\n\r\n", u""_s},
        {status + "A: " + kilo.repeated(100), u"A header line of the answer is too long"_s},
        {status + ("A: " + kilo + "\r\n").repeated(300), u"The headers of the answer are too long"_s},
        {QByteArray("HTTP/1.1 103 Early\r\n\r\n").repeated(20 * 1024),
         u"The answer has too many header lines"_s},
        {chunks + "0;" + kilo.repeated(16), u"A chunk line of the answer is too long"_s},
        {chunks + "0\r\n" + QByteArray("T: x\r\n").repeated(11 * 1024),
         u"The trailers of the answer are too long"_s}};
    for (const auto &[answer, problem] : cases)
        EXPECT_EQ(ReadAnswer(answer, answer.size(), AnswerReader::End::Orderly).problem, problem);
}

} // namespace
