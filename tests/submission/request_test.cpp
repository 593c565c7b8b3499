#include "submission/request_headers.h"
#include "submission/request_template.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class RequestTemplateTest : public testing::Test {
protected:
    RequestTemplateTest() {
        record.txtURL.SetText(u"http://a.example/?x=1"_s);
        record.txtEmail.SetText(u"me@a.example"_s);
        record.txtName1.SetText(u"Ann & Co"_s);
        record.txtName2.SetText(u"O'Hara"_s);
        record.txtDesc.SetText(u"100% \"good\""_s);
        record.Combo2.SetText(u"Business"_s);
        for (std::size_t i = 0; i < record.txtKey.size(); ++i)
            record.txtKey[i].SetText(u"k%1"_s.arg(i + 1));
    }
    QString Expand(const QString &query) {
        return RequestTemplate(record).Expand(query, [this] {
            ++categoriesAsked;
            return u"Arts"_s;
        });
    }

    ProjectRecord record;
    int categoriesAsked = 0;
};

TEST_F(RequestTemplateTest, ReplacesWordsInsideAndAtTheEnd) {
    EXPECT_EQ(Expand(u"\"url=\" & txtUrlText & \"&mail=\" & txtEmailText"_s),
              u"url=http%3A%2F%2Fa.example%2F%3Fx%3D1&mail=me@a.example"_s);
    EXPECT_EQ(Expand(u"\"n=\" & txtNameText & \"&d=\" & txtDescText & \"&s=1\""_s),
              u"n=Ann+%26+Co+O%27Hara&d=100%25+%22good%22&s=1"_s);
    EXPECT_EQ(Expand(u"\"k=\" & AllKeywords & \"&c=\" & Combo2.Text"_s),
              u"k=k1%2C+k2%2C+k3%2C+k4%2C+k5%2C+k6&c=Business"_s);
}

TEST_F(RequestTemplateTest, IgnoresCaseAndReplacesEveryOccurrence) {
    EXPECT_EQ(Expand(u"\"a=\" & TXTEMAILTEXT & \"&b=\" & txtemailtext & \"&c=\" & TxtKey2Text"_s),
              u"a=me@a.example&b=me@a.example&c=k2"_s);
}

TEST_F(RequestTemplateTest, AsksForTheCategoryOnceAShape) {
    EXPECT_EQ(Expand(u"\"c=\" & CCCAAATTT & \"&d=\" & CCCAAATTT & \"&e=\" & CCCAAATTT"_s),
              u"c=Arts&d=Arts&e=Arts"_s);
    EXPECT_EQ(categoriesAsked, 2);
}

TEST_F(RequestTemplateTest, LeavesWhatItDoesNotKnow) {
    EXPECT_EQ(Expand(u"plain text"_s), u"plain text"_s);
    EXPECT_EQ(Expand(u"\"a=\" & txtWrong & \"&b=1\""_s), u"a= & txtWrong & &b=1"_s);
    EXPECT_EQ(Expand(u"\"a=1\" & \"&b=2\""_s), u"a=1&b=2"_s);
    EXPECT_EQ(Expand(QString()), QString());
}

TEST_F(RequestTemplateTest, AValueThatLooksLikeATemplateIsNotExpandedAgain) {
    record.txtDesc.SetText(u"\" & txtEmailText & \""_s);
    EXPECT_EQ(Expand(u"\"d=\" & txtDescText & \"&x=1\""_s), u"d=%22+%26+txtEmailText+%26+%22&x=1"_s);
}

TEST(RequestHeadersTest, WritesTheFixedLinesInTheirOrder) {
    const SiteRequest request{u"Site"_s, u"http://a.example/add"_s, u"url=x&t=caf\u00e9"_s, u"Get"_s};
    EXPECT_EQ(SubmissionHeaders(request, u"a.example"_s),
              "HOST: a.example\r\n"
              "USER_AGENT: Mozilla/4.0 (compatible; MSIE 4.01; Windows 98)\r\n"
              "PRAGMA: no-cache\r\n"
              "ACCEPT_CHARSET: iso-8859-1,*,utf-8\r\n"
              "ACCEPT: */*\r\n"
              "ACCEPT_LANGUAGE: en\r\n"
              "CONNECTION: Keep-Alive\r\n"
              "REFERER: http://a.example/add?url=x&t=caf\xe9\r\n");
}

TEST(RequestHeadersTest, PutsThePostBodyBehindItsLengthInBytes) {
    // One byte a character: the letter outside the code page becomes one "?", the pair of surrogates too.
    const SiteRequest request{u"Site"_s, u"http://a.example/add"_s, u"t=\u20ac\u0416\U0001F600&u=\r\nX: y"_s,
                              u"POST"_s};
    const QByteArray headers = SubmissionHeaders(request, u"a.example"_s);
    EXPECT_TRUE(headers.endsWith("REFERER: http://a.example/add\r\n"
                                 "CONTENT-TYPE: application/x-www-form-urlencoded\r\n"
                                 "CONTENT-LENGTH: 14\r\n"
                                 "\r\n"
                                 "t=\x80??&u=\r\nX: y"))
        << headers.toStdString();
}

TEST(RequestHeadersTest, ALineBreakInTheAddressStartsNoLine) {
    const SiteRequest request{u"Site"_s, u"http://a.example/add"_s, u"t=a\r\nX-Evil: 1"_s, u"get"_s};
    const QByteArray headers = SubmissionHeaders(request, u"a.example\r\nX-Evil: 2"_s);
    EXPECT_FALSE(headers.contains("\nX-Evil"));
    EXPECT_TRUE(headers.contains("REFERER: http://a.example/add?t=a%0D%0AX-Evil: 1\r\n"));
}

} // namespace
