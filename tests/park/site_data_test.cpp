#include "park/park.h"
#include "project/site_source_check.h"
#include "submission/request_template.h"
#include "support/code_page.h"
#include "support/url_encode.h"
#include "tests/example_project.h"
#include "tests/qt_printing.h"

#include <QUrl>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// The sites of the database's source, each submitted to the practice web with the example project.
class SiteDataTest : public testing::Test {
protected:
    SiteDataTest() { FillInExample(record, data + u"example_project.txt"_s); }

    /// What the program sends to the site.
    QStringList PairsOf(const SiteEntry &site) const {
        return RequestTemplate(record)
            .Expand(site.query, [&site] { return UrlEncode(site.categories.value(1)); })
            .split(u'&');
    }

    QString Submit(const SiteEntry &site, const QStringList &pairs) {
        HttpRequest request;
        request.method = site.method.toUpper().toLatin1();
        request.path = request.target = QUrl(site.action).path().toLatin1();
        (request.method == "POST" ? request.body : request.query) = CodePage::Encode(pairs.join(u'&'));
        const qint64 before = park.Received().Total();
        answer = park.Answer(request);
        return park.Received().Total() == before ? QString() : park.Received().Receipts().front().outcome;
    }

    const QString data = QStringLiteral(LANTERRA_DATA_DIR "/");
    const SiteSource source = ReadSiteSource(data + u"sites.json"_s).source;
    Park park{u"http://127.0.0.1:1"_s};
    ProjectRecord record;
    HttpAnswer answer;
};

TEST_F(SiteDataTest, EverySiteTakesExactlyTheFieldsOfItsTemplate) {
    EXPECT_TRUE(CheckSiteSource(source, u"sites.json"_s).isEmpty());
    EXPECT_GE(source.sites.size(), 120);
    const SiteTable table;
    qsizetype accepted = 0;
    for (const SiteEntry &site : source.sites) {
        SCOPED_TRACE(site.name.toStdString());
        const PracticeSite *practice = table.FindByPath(QUrl(site.action).path().toLatin1());
        ASSERT_NE(practice, nullptr);
        EXPECT_EQ(practice->name, site.name);
        EXPECT_EQ(practice->kind, site.type);
        const QStringList pairs = PairsOf(site);
        const QString outcome = Submit(site, pairs);
        EXPECT_EQ(outcome, practice->behaviour.isEmpty() ? AnswerTable().Find(practice->answer).Outcome()
                                                         : practice->behaviour);
        ASSERT_EQ(park.Received().Receipts().front().fields.size(), practice->fields.size());
        if (outcome != u"accepted")
            continue;
        ++accepted;
        for (const SiteField &field : practice->fields) {
            QStringList rest = pairs;
            rest.removeIf([&field](const QString &pair) { return pair.section(u'=', 0, 0) == field.name; });
            const bool known = practice->remembers && field.word != u"txtUrlText";
            EXPECT_EQ(Submit(site, rest), field.required || known ? u"refused"_s : u"accepted"_s)
                << field.name.toStdString();
        }
    }
    EXPECT_GT(accepted, source.sites.size() / 2);
}

TEST_F(SiteDataTest, RefusesValuesThatAreNotWhatTheyClaim) {
    const auto site = std::find_if(source.sites.begin(), source.sites.end(),
                                   [](const SiteEntry &each) { return each.name == u"Rowan & Teal"; });
    ASSERT_NE(site, source.sites.end());
    ASSERT_EQ(Submit(*site, PairsOf(*site)), u"accepted"_s);
    const std::pair<TextBox &, QString> faults[] = {{record.txtURL, u"www.orrell-lanterns.example"_s},
                                                    {record.txtURL, u"http:///page"_s},
                                                    {record.txtEmail, u"tamsin"_s}};
    for (const auto &[box, value] : faults) {
        const QString good = box.Text();
        box.SetText(value);
        EXPECT_EQ(Submit(*site, PairsOf(*site)), u"refused"_s) << value.toStdString();
        box.SetText(good);
    }
    EXPECT_EQ(Submit(*site, PairsOf(*site).replaceInStrings(u"Art"_s, u"Tra"_s)), u"refused"_s);
    EXPECT_TRUE(
        answer.body.contains("<p>Your entry was not accepted: Rowan &amp; Teal has no such category.</p>"));
}

} // namespace
