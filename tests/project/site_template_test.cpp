#include "project/site_template.h"

#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(SiteTemplateTest, TakesTemplatesOfTheLanguage) {
    const QStringList templates{u"\"url=\" & txtUrlText & \"&mail=\" & txtEmailText"_s,
                                u"\"url=\" & TXTURLTEXT"_s,
                                u"\"a=1\" & \"&b=2\""_s,
                                u"\"\" & AllKeywords & \"\" & Combo2.Text & \"&x=a & b \""_s,
                                u"\"q=\" & cccaaattt"_s,
                                u"\"\""_s};
    for (const QString &text : templates)
        EXPECT_EQ(TemplateRefusal(text), QString());
}

TEST(SiteTemplateTest, RefusesEverythingElse) {
    const QList<QStringList> cases{
        {u""_s, u"A quoted text is missing before: "_s},
        {u"txtUrlText & \"x\""_s, u"A quoted text is missing before: txtUrlText & \"x\""_s},
        {u"\"url="_s, u"A quote is not closed: \"url="_s},
        {u"\"a\" & txtUrlText & "_s, u"A quoted text is missing before: "_s},
        {u"\"a\" & txtUrlText & txtEmailText"_s, u"A quoted text is missing before: txtEmailText"_s},
        {u"\"a\" & txtUrlText.Text"_s, u"Unknown placeholder: txtUrlText.Text"_s},
        {u"\"a\"&txtUrlText"_s, u"\" & \" is missing before: &txtUrlText"_s},
        {u"\"a\" &  txtUrlText"_s, u"Unknown placeholder: "_s},
        {u"\"a\" & txtUrlText "_s, u"\" & \" is missing behind: txtUrlText"_s},
        {u"\"a\" & \" & txtUrlText & \""_s, u"A quoted text begins with \" & \": \" & txtUrlText & \""_s},
        {u"\"a\r\n\" & txtUrlText"_s, u"The template holds a control character."_s}};
    for (const QStringList &row : cases)
        EXPECT_EQ(TemplateRefusal(row[0]), row[1]);
}

TEST(SiteTemplateTest, OnlyAPlaceholderAsksForTheCategory) {
    EXPECT_TRUE(AsksForCategory(u"\"cat=\" & CccAaaTtt & \"&x=1\""_s));
    EXPECT_TRUE(AsksForCategory(u"\"cat=\" & CCCAAATTT"_s));
    EXPECT_FALSE(AsksForCategory(u"\"cat=CCCAAATTT\""_s));
}

} // namespace
