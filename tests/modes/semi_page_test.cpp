#include "park/park.h"
#include "support/code_page.h"
#include "support/whole_file.h"
#include "tests/fakes/program_fixture.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using Attributes = QHash<QString, QString>;

/// The attributes of a tag as a browser reads them, also bare ones and such without quotes.
Attributes AttributesOf(const QString &tag) {
    static const QRegularExpression attribute(u"\\s([^\\s=]+)(?:=(?:\"([^\"]*)\"|(\\S*)))?"_s);
    Attributes attributes;
    for (const QRegularExpressionMatch &match : attribute.globalMatch(tag))
        attributes.insert(match.captured(1), match.captured(2) + match.captured(3));
    return attributes;
}

/// A form of the page: what a browser sends of it, and its lists.
struct PageForm {
    Attributes attributes;
    QList<FormField> fields; ///< with the last option chosen in each list
    QStringList lists;       ///< "name size options"
};

QList<PageForm> FormsOf(const QString &page) {
    static const QRegularExpression tags(u"<(/?(?:form|input|select|option))\\b([^>]*)>([^<]*)"_s);
    QList<PageForm> forms;
    for (const QRegularExpressionMatch &match : tags.globalMatch(page)) {
        const QString tag = match.captured(1);
        const Attributes has = AttributesOf(match.captured(2));
        if (tag == u"form")
            forms.append({has, {}, {}});
        else if (tag == u"input" && has.contains(u"name"_s) &&
                 (has[u"type"_s] != u"radio" || has.contains(u"checked"_s)))
            forms.last().fields.append({has[u"name"_s], has[u"value"_s]});
        else if (tag == u"select") {
            forms.last().fields.append({has[u"name"_s], {}});
            forms.last().lists.append(u"%1 %2 0"_s.arg(has[u"name"_s], has[u"size"_s]));
        } else if (tag == u"option") {
            QString &list = forms.last().lists.last();
            list = list.section(u' ', 0, 1) + u" %1"_s.arg(list.section(u' ', 2).toInt() + 1);
            const QString text = match.captured(3).trimmed().replace(u"&amp;"_s, u"&"_s);
            forms.last().fields.last().value = has.value(u"value"_s, text);
        }
    }
    return forms;
}

class SemiPageTest : public ProgramFixture {
protected:
    SemiPageTest() {
        EXPECT_TRUE(
            CopyWholeFile(QStringLiteral(LANTERRA_DATA_DIR "/hosts.ini"), home.filePath(u"hosts.ini"_s)));
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

    QString PagePath() const { return home.filePath(u"Projects/Project1/semi.htm"_s); }

    /// The page that SUBMIT leads to.
    QByteArray Written() {
        program->run.cmdStart_Click();
        QFile file(PagePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Sends a form as a browser would. What the practice web makes of it.
    Receipt Send(const PageForm &form) {
        const QUrl action(form.attributes[u"action"_s]);
        QByteArray body;
        for (const FormField &field : form.fields)
            body += (body.isEmpty() ? "" : "&") + field.name.toLatin1() + '=' +
                    CodePage::Encode(field.value).toPercentEncoding().replace("%20", "+");
        HttpRequest request;
        request.method = form.attributes[u"method"_s].toUpper().toLatin1();
        request.path = action.path().toLatin1();
        request.query = action.query().toLatin1();
        (request.method == "POST" ? request.body : request.query) = body;
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
    QFile golden(QStringLiteral(GOLDEN_FOLDER "/semi.htm"));
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page == golden.readAll());
    EXPECT_FALSE(program->run.RunActive());
    ASSERT_EQ(documents.opened.size(), 1U);
    EXPECT_EQ(documents.opened[0].arguments, QStringList(PagePath()));
}

TEST_F(SemiPageTest, OffersAllOptionsOfEachSite) {
    ListBox &sites = program->project.lists.List5;
    sites.SetItems(sites.Items() + QStringList{u"Yahoo"_s});
    QStringList lists;
    for (const PageForm &form : FormsOf(CodePage::Decode(Written())))
        lists += form.lists;
    EXPECT_EQ(lists, (QStringList{u"category 1 183"_s, u"CATEGORY 1 39"_s, u"category 1 49"_s, u"cat 1 31"_s,
                                  u"category 1 13"_s, u"state 5 54"_s, u"category 5 125"_s,
                                  u"category 1 29"_s, u"category 1 123"_s}));
}

// The values stand in the golden page; here is what the sites make of them.
TEST_F(SemiPageTest, EachFormReachesItsSiteWithItsFields) {
    program->collector.txtEmailText = u"ann%2B1@a.example"_s;
    program->collector.AllKeywords = u"x%2C+y"_s;
    QStringList received;
    for (const PageForm &form : FormsOf(CodePage::Decode(Written()))) {
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

TEST_F(SemiPageTest, IsNotWrittenWhileAFieldIsEmpty) {
    program->project.record.txtEmail.SetText(u" "_s);
    EXPECT_TRUE(Written().isEmpty());
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, u"You must fill all text fields"_s);
    EXPECT_TRUE(documents.opened.empty());
}

} // namespace
