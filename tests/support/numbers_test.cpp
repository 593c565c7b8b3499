#include "support/numbers.h"

#include <QString>
#include <gtest/gtest.h>
#include <limits>

using namespace lanterra;

TEST(NumbersTest, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(LeadingNumber(u"5000abc"), 5000);
    EXPECT_EQ(LeadingNumber(u"  -12 s"), -12);
    EXPECT_EQ(LeadingNumber(u"+.5.6"), 0.5);
    EXPECT_EQ(LeadingNumber(u"2e3x"), 2000);
    EXPECT_EQ(LeadingNumber(u"2e+"), 2);
    EXPECT_EQ(LeadingNumber(u"-1e999"), -std::numeric_limits<double>::max());
    for (const QStringView text : {u"", u"   ", u"twelve", u"-", u".", u"e5", u"inf", u"0x1F", u"٣"})
        EXPECT_EQ(LeadingNumber(text), 0) << text.toString().toStdString();
}

TEST(NumbersTest, TellsWhetherTheWholeTextIsANumber) {
    for (const QStringView text : {u"45", u" 45 ", u"-3.", u".5", u"1E-3", u"1e999"})
        EXPECT_TRUE(IsNumeric(text)) << text.toString().toStdString();
    for (const QStringView text :
         {u"", u" ", u"5000abc", u"12 s", u"1 2", u"1.2.3", u"1e", u"0x10", u"inf", u"1,5"})
        EXPECT_FALSE(IsNumeric(text)) << text.toString().toStdString();
}

TEST(NumbersTest, RoundsAHalfToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5F), 0);
    EXPECT_EQ(RoundHalfEven(1.5F), 2);
    EXPECT_EQ(RoundHalfEven(-2.5F), -2);
}
