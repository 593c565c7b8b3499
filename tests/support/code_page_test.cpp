#include "support/code_page.h"
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
    EXPECT_EQ(CodePage::Encode(u"aΩb"), QByteArray("a?b"));
    EXPECT_EQ(CodePage::Encode(u"a😀b"), QByteArray("a?b"));
    EXPECT_EQ(CodePage::Encode(u"\u0080"), QByteArray("?")); // that byte is the euro sign
    const QString loneHalf = QString(QChar(0xD83D)) + u'b';
    EXPECT_EQ(CodePage::Encode(loneHalf), QByteArray("?b"));
    EXPECT_TRUE(CodePage::Holds(U'€') && !CodePage::Holds(U'😀'));
}
