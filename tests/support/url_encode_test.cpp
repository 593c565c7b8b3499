#include "support/url_encode.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

TEST(UrlEncodeTest, ReplacesTheCharactersOfTheTableAndLeavesTheOthers) {
    EXPECT_EQ(UrlEncode(u"%!#$~^&>()+|`=\\[]{};':\",?/< \u00A0"),
              u"%25%21%23%24%7E%5E%26%3E%28%29%2B%7C%60%3D%5C%5B%5D%7B%7D%3B%27%3A%22%2C%3F%2F%3C++"_s);
    const QString untouched = u"AZaz09-_.*@\r\n\t\u007F\u0081é\u00A1Ω😀"_s + QChar(0);
    EXPECT_EQ(UrlEncode(untouched), untouched);
}

TEST(UrlEncodeTest, NeverEncodesWhatItPutIn) {
    EXPECT_EQ(UrlEncode(u"a b+c"), u"a+b%2Bc"_s);
    EXPECT_EQ(UrlEncode(u"%2B %"), u"%252B+%25"_s);
}
