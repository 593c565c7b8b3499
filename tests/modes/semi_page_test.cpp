#include "park/park.h"
#include "support/code_page.h"
#include "tests/fakes/program_fixture.h"
#include "tests/file_bytes.h"

#include <QRegularExpression>
#include <QUrl>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// An attribute of a tag as a browser reads it, also without quotes.
QString Attribute(const QString &tag, const QString &name) {
    const QRegularExpression pattern(u"\\s%1=(?:\"([^\"]*)\"|(\\S*))"_s.arg(name));
    const QRegularExpressionMatch match = pattern.match(tag);
    return match.captured(1) + match.captured(2);
}

/// What a browser sends of a form, with the last option chosen in each list.
QByteArray Encoded(const QString &form) {
    static const QRegularExpression tags(u"<(input|select|option)\\b([^>]*)>([^<]*)"_s);
    QList<QStringList> fields;
    for (const QRegularExpressionMatch &match : tags.globalMatch(form)) {
        const QString has = match.captured(2);
        const QString value = Attribute(has, u"value"_s);
        if (match.captured(1) == u"option")
            fields.last()[1] = has.contains(u"value"_s) ? value : match.captured(3).trimmed();
        else if (has.contains(u" name="_s) && (!has.contains(u"radio"_s) || has.contains(u"checked"_s)))
            fields.append({Attribute(has, u"name"_s), value});
    }
    QByteArrayList pairs;
    for (const QStringList &field : fields)
        pairs << field[0].toLatin1() + '=' + CodePage::Encode(field[1]).toPercentEncoding(" ");
    return pairs.join('&').replace(' ', '+');
}

class SemiPageTest : public ProgramFixture {
protected:
    SemiPageTest() {
        GivenHosts(BytesOf(QStringLiteral(LANTERRA_DATA_DIR "/hosts.ini")));
        GivenSites({u"Alta"_s});
        ProjectRecord &record = program->project.record;
        record.txtTitle.SetText(u"Caf\u00e9 & Co"_s);
        record.txtDesc.SetText(u"All \u0416 {txtURL}"_s);
        record.txtFax.SetText(u"555"_s);
        record.txtName1.SetText(u"Ann"_s);
        record.txtName2.SetText(u"Oak"_s);
        record.txtEmail.SetText(u"ann+1@a.example"_s);
        record.txtPhone.SetText(u"01632 960"_s);
        forms.onMenu[PopupMenu::Submit] = [this] { program->run.mnuSemi_Click(); };
    }

    /// The page that SUBMIT leads to.
    QByteArray Written() {
        program->run.cmdStart_Click();
        return BytesOf(InProjects(u"Project1/semi.htm"_s));
    }

    /// Sends a form as a browser would. What the practice web makes of it.
    Receipt Send(const QString &form) {
        const QString tag = form.section(u'>', 0, 0);
        const QUrl action(Attribute(tag, u"action"_s));
        HttpRequest request;
        request.method = Attribute(tag, u"method"_s).toUpper().toLatin1();
        request.path = action.path().toLatin1();
        request.query = action.query().toLatin1();
        (request.method == "POST" ? request.body : request.query) = Encoded(form);
        park.Answer(request);
        return park.Received().Receipts().front();
    }

    Park park{u"http://127.0.0.1:1"_s};
};

// All eight sites of the list in its order, selected or not, then those that are only kept ready. A quote in
// the title breaks the forms.
TEST_F(SemiPageTest, IsTheGoldenPageByteForByte) {
    ListBox &sites = program->project.lists.List5;
    sites.SetItems(sites.Items() + QStringList{u"YAHOO"_s, u"What-U-Seek"_s, u"nobody"_s});
    sites.SetAllSelected(false);
    program->project.record.txtTitle.SetText(u"The \"best\" \u00e9"_s);
    program->collector.txtEmailText = u"stale@a"_s;
    program->collector.AllKeywords = u"k1%2C+k2"_s;
    const QByteArray page = Written();
    EXPECT_TRUE(page == BytesOf(QStringLiteral(GOLDEN_FOLDER "/semi.htm")));
    EXPECT_FALSE(program->run.RunActive());
    EXPECT_EQ(documents.Opened(), u'|' + InProjects(u"Project1/semi.htm"_s));
}

// The values stand in the golden page; here is what the sites make of them.
TEST_F(SemiPageTest, EachFormReachesItsSiteWithItsFields) {
    program->collector.txtEmailText = u"ann%2B1@a.example"_s;
    program->collector.AllKeywords = u"x%2C+y"_s;
    QStringList received;
    for (const QString &form : CodePage::Decode(Written()).split(u"<form"_s).mid(1)) {
        const Receipt receipt = Send(form);
        received << u"%1 %2 %3 %4"_s.arg(receipt.site, receipt.outcome)
                        .arg(receipt.fields.size())
                        .arg(receipt.fields.last().value);
    }
    EXPECT_EQ(received,
              (QStringList{u"BizWeb accepted 8 other"_s, u"InfoSpace accepted 14 All ? {txtURL}"_s,
                           u"LinkMonster accepted 6 Windows95"_s, u"Questfinder 302 6 catx3dx=Wholesale"_s,
                           u"Scrub The Web accepted 7 Travel"_s, u"Starting Point accepted 19 yes"_s,
                           u"USA Online accepted 7 142"_s, u"What's New accepted 7 Other"_s}));
}

TEST_F(SemiPageTest, TwoValuesAreThoseOfTheLastRunWhateverTheFieldsSayNow) {
    EXPECT_TRUE(Written().contains("name=\"email\" value=>\r\n"));
    EXPECT_TRUE(Written().contains("name=\"keywords\" value=\"\">\r\n"));
    program->collector.CollectSubmissionData();
    program->project.record.txtEmail.SetText(u"new@a.example"_s);
    const QByteArray page = Written();
    EXPECT_TRUE(page.contains("name=\"email\" value=ann%2B1@a.example>\r\n"));
    EXPECT_TRUE(page.contains("name=\"keywords\" value=\"x%2C+x%2C+x%2C+x%2C+x%2C+x\">\r\n"));
}

} // namespace
