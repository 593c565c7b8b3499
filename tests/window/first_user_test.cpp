#include "tests/window/window_fixture.h"

#include "support/whole_file.h"
#include "tests/file_bytes.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class FirstUserTest : public WindowFixture {
protected:
    /// Fills in the boxes, "name=text", as Tab leads from one to the next.
    static std::vector<Step> Fills(const QString &entries) {
        std::vector<Step> steps;
        for (const QString &entry : entries.split(u';'))
            steps.push_back({At(entry.section(u'=', 0, 0)), Types(entry.section(u'=', 1) + u'\t')});
        return steps;
    }

    /// The screen is filled behind its opening.
    static Condition ReportUp() {
        return {u"report text"_s,
                [] { return Up("ReportDialog").holds() && ReportText().contains(u"\nTime: "_s); }};
    }
    static QString ReportText() { return Find<QPlainTextEdit>("ReportDialog", "Text1").toPlainText(); }

    Condition RunEnded() const {
        return {u"end of the run"_s,
                [this] { return program->program.run.urlCounter == 1 && Up("SubmitPane").holds(); }};
    }

    QStringList SentTo(const QString &site) const {
        QStringList values;
        for (const Receipt &receipt : park.Content()->Received().Receipts()) {
            for (const FormField &field : receipt.fields)
                values << (receipt.site == site ? field.value : QString());
        }
        return values;
    }

    const std::vector<Step> typesTheProject =
        std::vector<Step>{{Up("MainWindow"), Presses(Qt::Key_D, Qt::AltModifier)},
                          {Up("DescriptionPane"), Presses(Qt::Key_L, Qt::AltModifier)}} +
        Fills(u"txtURL=www.shop.example/;txtTitle=Hats & more;txtKey1=hats;txtKey2=caps;txtKey3=felt;"
              "txtKey4=wool;txtKey5=straw;txtKey6=brims;txtDesc=Hats for all heads"_s) +
        std::vector<Step>{{At("SSCommand7"), Presses(Qt::Key_E, Qt::AltModifier)},
                          {Up("OtherDataPane"), Presses(Qt::Key_M, Qt::AltModifier)}} +
        Fills(u"txtEmail=ann@shop.example;txtName1=Ann;txtName2=Smith;txtCompany=Shop;txtStreet=1 Lane;"
              "txtState=Kent;txtCountry=UK;txtCity=Dover;txtZip=12345;txtPhone=555"_s);
    const std::vector<Step> submits{
        {At("txtFax"), Presses(Qt::Key_I, Qt::AltModifier)},
        {Up("SitesPane"), Clicks("SitesPane", "Command2")},
        {Menu("Select Sites"), Chooses("Search Engines")},
        {Up("SitesPane"), ClicksMark("SitesPane", "List1", "Gablewood")},
        {Up("SitesPane"),
         [] {
             Presses(Qt::Key_U, Qt::AltModifier)();
             Presses(Qt::Key_B, Qt::AltModifier)();
         }},
        {Menu("Submit"), Presses(Qt::Key_U)},
        {Box("You must select a valid category for Gablewood"), Presses(Qt::Key_Return)},
        {Up("CategoryPane"), Clicks("CategoryPane", "txttrazim")},
        {At("txttrazim"), Types("business\n")},
        {Up("CategoryPane"), Presses(Qt::Key_U, Qt::AltModifier)},
        {At("cmdStart"), Presses(Qt::Key_Space)},
        {Menu("Submit"), Chooses("Automated Search Engines")}};
};

TEST_F(FirstUserTest, GetsFromTheWelcomeToAReportAndFindsAllAgain) {
    GivenMaster({u"Quillfind"_s, u"Harbor"_s, u"Foxgloam"_s, u"Marrowind"_s, u"Cindertrail"_s, u"Wickerbot"_s,
                 u"Kestrelweb"_s, u"Gablewood"_s, u"Brindle's Guide"_s, u"Link Lagoon"_s});
    QString report;
    Play(makesAProject + typesTheProject + submits +
         std::vector<Step>{{RunEnded(), Presses(Qt::Key_V, Qt::AltModifier)},
                           {Menu("View"), Presses(Qt::Key_R)},
                           {ReportUp(), [&] { report = ReportText(); }},
                           {ReportUp(), Presses(Qt::Key_Return)},
                           {Up("SubmitPane"), ClosesWindow()}});
    EXPECT_EQ(Outcome("Kestrelweb"), u"Successful: "_s);
    EXPECT_EQ(Outcome("Marrowind"), u"Failed: 500 Internal Server Error"_s);
    EXPECT_EQ(Outcome("Wickerbot"), u"Failed: The connection was closed without an answer"_s);
    EXPECT_TRUE(report.startsWith(u"\nTitle: Hats & more\nURL: http://www.shop.example/\n"
                                  "Person Name: Ann Smith\nE-mail: ann@shop.example\n"_s));
    EXPECT_TRUE(report.contains(u"\nSuccesful Registration: \nHarbor\nQuillfind\nFoxgloam\nKestrelweb\n"
                                "Gablewood\n\nFailed: \nMarrowind\nCindertrail\nWickerbot\n\n"
                                "Not Selected: \nBrindle's Guide\nLink Lagoon\n\n\n"
                                "Succesful Registration: 5 / 8\n"_s))
        << report.toStdString();
    EXPECT_TRUE(BytesOf(Path("Projects/Shop/report.htm")).contains("Wickerbot"));
    EXPECT_TRUE(BytesOf(Path("Projects/Shop/report/Harbor.htm")).contains("http://www.shop.example/"));
    EXPECT_TRUE(SentTo(u"Gablewood"_s).contains(u"Business and Trade"_s));

    QString found;
    const auto lookAround = [&found] {
        for (const char *total : {"Label42", "Label44", "Label45", "Label46"})
            found += Find<QLabel>("StatisticsPane", total).text() + u'|';
        for (const char *box : {"txtURL", "txtFax", "txttrazim"})
            found += Find<QLineEdit>("MainWindow", box).text() + u'|';
        found += Find<QPlainTextEdit>("DescriptionPane", "txtDesc").toPlainText() + u'|' +
                 Find<QLabel>("SitesPane", "lblSelected").text() + u'|' + Form("MainWindow").windowTitle();
        ClosesWindow()();
    };
    Play({{Up("MainWindow"), Presses(Qt::Key_T, Qt::AltModifier)}, {Up("StatisticsPane"), lookAround}});
    EXPECT_EQ(found, u"1|5|3|8|http://www.shop.example/|555|business|Hats for all heads|Selected 29/31|"
                     "Zephyrine Lanterra 2 - Shop"_s);
}

TEST_F(FirstUserTest, WritesToTheSupport) {
    GivenMaster({u"Quillfind"_s});
    ASSERT_TRUE(WriteWholeFile(Path("hosts.ini"),
                               "[Maker]\nSupportMail=help@maker.example\nFormMail=" + park.Origin().toUtf8() +
                                   "/cgi-bin/cgiwrap/lanterra/programs/formmail_real.cgi\n"));
    const Action submit = Presses(Qt::Key_S, Qt::AltModifier);
    Play(makesAProject +
         std::vector<Step>{{Up("MainWindow"), Presses(Qt::Key_H, Qt::AltModifier)},
                           {Menu("Help"), Presses(Qt::Key_T)}} +
         Fills(u"usName=Ann;Email=ann"_s) +
         std::vector<Step>{{At("Problem"), submit},
                           {Box("Please fill all text fields !"), Presses(Qt::Key_Return)}} +
         Fills(u"Problem=It stops & waits;OS=NT;Computer=486"_s) +
         std::vector<Step>{{At("Other"), submit},
                           {Box("Please enter your full e-mail address!"), Presses(Qt::Key_Return)},
                           {At("Other"), Presses(Qt::Key_E, Qt::AltModifier)},
                           {At("Email"), Types("ann@shop.example")},
                           {At("Email"), submit},
                           {Box("Thank you for your message!"), Presses(Qt::Key_Return)},
                           {At("Email"), Presses(Qt::Key_Escape)},
                           {Up("MainWindow"), ClosesWindow()}});
    EXPECT_EQ(SentTo(u"Form mail"_s).join(u'|'),
              u"help@maker.example|LT Technical Support Version 2.14||Ann|ann@shop.example|It stops & waits|"
              "NT|486|No comments|Ann"_s);
}

} // namespace
} // namespace lanterra
