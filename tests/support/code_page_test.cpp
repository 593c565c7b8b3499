#include "support/code_page.h"
#include "support/url_encode.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

TEST(CodePageTest, EveryByteComesBackAsItself) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const QString text = CodePage::Decode(bytes);
    EXPECT_EQ(CodePage::Encode(text), bytes);
    EXPECT_EQ(text.sliced(0x80, 2) + text[0x9F] + text[0xE9], u"\u20AC\u0081\u0178é"_s);
}

TEST(CodePageTest, WhatThePageCannotHoldBecomesOneQuestionMark) {
    EXPECT_EQ(CodePage::Encode(u"aΩb😀c"), QByteArray("a?b?c"));
    EXPECT_EQ(CodePage::Encode(u"\u0080"), QByteArray("?")); // that byte is the euro sign
    EXPECT_EQ(CodePage::Encode(QString(QChar(0xD83D)) + u'b'), QByteArray("?b"));
    EXPECT_TRUE(CodePage::Holds(U'€') && !CodePage::Holds(U'😀'));
}

TEST(UrlEncodeTest, ReplacesTheCharactersOfTheTableOnceAndLeavesTheOthers) {
    EXPECT_EQ(UrlEncode(u"%!#$~^&>()+|`=\\[]{};':\",?/< \u00A0"),
              u"%25%21%23%24%7E%5E%26%3E%28%29%2B%7C%60%3D%5C%5B%5D%7B%7D%3B%27%3A%22%2C%3F%2F%3C++"_s);
    EXPECT_EQ(UrlEncode(u"%2B % b+c"), u"%252B+%25+b%2Bc"_s);
    const QString untouched = u"AZaz09-_.*@\r\n\t\u007F\u0081é\u00A1Ω😀"_s + QChar(0);
    EXPECT_EQ(UrlEncode(untouched), untouched);
}
