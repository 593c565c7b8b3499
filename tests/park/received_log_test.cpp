#include "park/received_log.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

TEST(ReceivedLog, KeepsTheLastThousandNewestFirstAndCutsWhatIsTooLarge) {
    ReceivedLog log;
    log.Add(u"Harbor"_s, u"accepted"_s, {}, {{u"a"_s, QString(40'000, u'x')}, {u"b"_s, u"y"_s}});
    EXPECT_EQ(log.Receipts().front().fields[0].value.size(), 32 * 1024 - 1);
    EXPECT_EQ(log.Receipts().front().fields[1].value, QString());
    EXPECT_TRUE(log.Receipts().front().cut);
    for (int i = 2; i <= 1003; ++i)
        log.Add(u"Harbor"_s, u"accepted"_s, {}, {{u"url"_s, QString::number(i)}});
    EXPECT_EQ(log.Total(), 1003);
    EXPECT_EQ(log.Receipts().size(), 1000U);
    EXPECT_EQ(log.Receipts().front().number, 1003);
    EXPECT_TRUE(log.Holds(u"Harbor"_s, {u"url"_s, u"4"_s}));
    EXPECT_FALSE(log.Holds(u"Harbor"_s, {u"url"_s, u"3"_s}));
    EXPECT_FALSE(log.Holds(u"Harbor Search"_s, {u"url"_s, u"4"_s}));
}
