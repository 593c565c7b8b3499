#include "submission/request_template.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(RequestTemplateTest, ReplacesTheWordsOfARecord) {
    ProjectRecord record;
    record.txtURL.SetText(u"http://a.example/?x=1"_s);
    record.txtEmail.SetText(u"me@a.example"_s);
    record.txtName1.SetText(u"Ann & Co"_s);
    record.txtName2.SetText(u"O'Hara"_s);
    record.txtDesc.SetText(u"100% \"good\""_s);
    record.txtTitle.SetText(u"\" & txtEmailText & \""_s);
    record.Combo2.SetText(u"Business"_s);
    for (std::size_t i = 0; i < record.txtKey.size(); ++i)
        record.txtKey[i].SetText(u"k%1"_s.arg(i + 1));
    const QList<QStringList> cases{
        {u"\"url=\" & txtUrlText & \"&mail=\" & txtEmailText"_s,
         u"url=http%3A%2F%2Fa.example%2F%3Fx%3D1&mail=me@a.example"_s},
        {u"\"n=\" & txtNameText & \"&d=\" & txtDescText & \"&s=1\""_s,
         u"n=Ann+%26+Co+O%27Hara&d=100%25+%22good%22&s=1"_s},
        {u"\"k=\" & AllKeywords & \"&c=\" & Combo2.Text"_s,
         u"k=k1%2C+k2%2C+k3%2C+k4%2C+k5%2C+k6&c=Business"_s},
        // whatever the case, and each time that it occurs
        {u"\"a=\" & TXTEMAILTEXT & \"&b=\" & txtemailtext & \"&c=\" & TxtKey2Text"_s,
         u"a=me@a.example&b=me@a.example&c=k2"_s},
        // a value that looks like a template is not expanded again
        {u"\"d=\" & txtTitleText & \"&x=1\""_s, u"d=%22+%26+txtEmailText+%26+%22&x=1"_s},
        // unknown words stay
        {u"plain text"_s, u"plain text"_s},
        {u"\"a=\" & txtWrong & \"&b=1\""_s, u"a= & txtWrong & &b=1"_s},
        {u"\"a=1\" & \"&b=2\""_s, u"a=1&b=2"_s},
        {u""_s, u""_s},
        {u"\"c=\" & CCCAAATTT & \"&d=\" & CCCAAATTT & \"&e=\" & CCCAAATTT"_s, u"c=Arts&d=Arts&e=Arts"_s}};
    int asked = 0;
    const auto category = [&] {
        ++asked;
        return u"Arts"_s;
    };
    for (const QStringList &row : cases)
        EXPECT_EQ(RequestTemplate(record).Expand(row[0], category), row[1]);
    EXPECT_EQ(asked, 2) << "once for each shape of a word";
}

} // namespace
