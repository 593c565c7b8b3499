#include "tests/window/window_fixture.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableView>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class FirstUserTest : public WindowFixture {
protected:
    /// Fills in one box after the other, as Tab leads through them.
    static std::vector<Step> Fills(const QList<std::pair<QString, QString>> &entries) {
        std::vector<Step> steps;
        for (const auto &[box, text] : entries)
            steps.push_back({At(box), Types(text + u'\t')});
        return steps;
    }

    Condition RunEnded(int sessions) const {
        return {"end of the run", [this, sessions] {
                    return !program->program.run.RunActive() && program->program.run.urlCounter == sessions &&
                           !QApplication::activePopupWidget();
                }};
    }

    static Condition ReportBuilt() {
        return {"report text", [] {
                    return Up(u"ReportDialog"_s).holds() &&
                           Find<QPlainTextEdit>(u"ReportDialog"_s, u"Text1"_s)
                               .toPlainText()
                               .contains(u"\nTime: "_s);
                }};
    }

    QStringList Column(OutcomeTable::Column column) const {
        QStringList texts;
        const OutcomeTable &table = program->program.outcomes;
        for (int row = 0; row < table.rowCount(); ++row)
            texts << table.index(row, column).data().toString();
        return texts;
    }

    QString ReadPage(const QString &name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    }
};

void Append(std::vector<Step> &steps, const std::vector<Step> &more) {
    steps.insert(steps.end(), more.begin(), more.end());
}

TEST_F(FirstUserTest, GetsFromTheWelcomeToAReportAndFindsAllAgain) {
    GivenMaster({u"Quillfind"_s, u"Harbor"_s, u"Foxgloam"_s, u"Marrowind"_s, u"Cindertrail"_s, u"Wickerbot"_s,
                 u"Kestrelweb"_s, u"Gablewood"_s, u"Brindle's Guide"_s, u"Link Lagoon"_s});
    QString report;
    QStringList results;
    QStringList reasons;

    std::vector<Step> steps{{Up(u"WelcomeDialog"_s), Presses(Qt::Key_Return)},
                            {Up(u"ProjectStartDialog"_s), Presses(Qt::Key_Return)},
                            {Asked(u"Create a new project"_s), Types(u"Shop\n"_s)},
                            {Up(u"MainWindow"_s), Presses(Qt::Key_D, Qt::AltModifier)},
                            {Up(u"DescriptionPane"_s), Presses(Qt::Key_L, Qt::AltModifier)}};
    Append(steps, Fills({{u"txtURL"_s, u"www.shop.example/"_s},
                         {u"txtTitle"_s, u"Hats & more"_s},
                         {u"txtKey1"_s, u"hats"_s},
                         {u"txtKey2"_s, u"caps"_s},
                         {u"txtKey3"_s, u"felt"_s},
                         {u"txtKey4"_s, u"wool"_s},
                         {u"txtKey5"_s, u"straw"_s},
                         {u"txtKey6"_s, u"brims"_s},
                         {u"txtDesc"_s, u"Hats for all heads"_s}}));
    Append(steps, {{At(u"SSCommand7"_s), Presses(Qt::Key_E, Qt::AltModifier)},
                   {Up(u"OtherDataPane"_s), Presses(Qt::Key_M, Qt::AltModifier)}});
    Append(steps, Fills({{u"txtEmail"_s, u"ann@shop.example"_s},
                         {u"txtName1"_s, u"Ann"_s},
                         {u"txtName2"_s, u"Smith"_s},
                         {u"txtCompany"_s, u"Shop"_s},
                         {u"txtStreet"_s, u"1 Lane"_s},
                         {u"txtState"_s, u"Kent"_s},
                         {u"txtCountry"_s, u"UK"_s},
                         {u"txtCity"_s, u"Dover"_s},
                         {u"txtZip"_s, u"12345"_s},
                         {u"txtPhone"_s, u"555"_s}}));
    Append(steps, {{At(u"txtFax"_s), Presses(Qt::Key_I, Qt::AltModifier)},
                   {Up(u"SitesPane"_s), Clicks(u"SitesPane"_s, u"Command2"_s)},
                   {Menu(u"Select Sites"_s), Chooses(u"Search Engines"_s)},
                   {Up(u"SitesPane"_s), ClicksMark(u"SitesPane"_s, u"List1"_s, u"Gablewood"_s)},
                   {Up(u"SitesPane"_s), Presses(Qt::Key_U, Qt::AltModifier)},
                   {Up(u"SubmitPane"_s), Presses(Qt::Key_B, Qt::AltModifier)},
                   {Menu(u"Submit"_s), Presses(Qt::Key_U)},
                   {Box(u"You must select a valid category for Gablewood"_s), Presses(Qt::Key_Return)},
                   {Up(u"CategoryPane"_s), Clicks(u"CategoryPane"_s, u"txttrazim"_s)},
                   {At(u"txttrazim"_s), Types(u"business\n"_s)},
                   {Up(u"CategoryPane"_s), Presses(Qt::Key_U, Qt::AltModifier)},
                   {Up(u"SubmitPane"_s), Clicks(u"SubmitPane"_s, u"cmdStart"_s)},
                   {Menu(u"Submit"_s), Chooses(u"Automated Search Engines"_s)},
                   {RunEnded(1), Presses(Qt::Key_V, Qt::AltModifier)},
                   {Menu(u"View"_s), Presses(Qt::Key_R)},
                   {ReportBuilt(),
                    [&] {
                        report = Find<QPlainTextEdit>(u"ReportDialog"_s, u"Text1"_s).toPlainText();
                        results = Column(OutcomeTable::Result);
                        reasons = Column(OutcomeTable::Reason);
                        Presses(Qt::Key_Return)();
                    }},
                   {Up(u"MainWindow"_s), ClosesWindow()}});
    Play(steps);

    EXPECT_EQ(results.join(u' '),
              u"Successful Successful Successful Failed Failed Failed Successful Successful"_s);
    EXPECT_EQ(reasons.join(u'|'), u"|||500 Internal Server Error|The connection was closed without an answer|"
                                  "The connection was closed without an answer||"_s);
    EXPECT_TRUE(report.startsWith(u"\nTitle: Hats & more\nURL: http://www.shop.example/\n"
                                  "Person Name: Ann Smith\nE-mail: ann@shop.example\n"_s));
    EXPECT_TRUE(report.contains(u"\nSuccesful Registration: \nHarbor\nQuillfind\nFoxgloam\nKestrelweb\n"
                                "Gablewood\n\nFailed: \nMarrowind\nCindertrail\nWickerbot\n\n"
                                "Not Selected: \nBrindle's Guide\nLink Lagoon\n"_s));
    EXPECT_TRUE(report.contains(u"\nSuccesful Registration: 5 / 8\n"_s));
    EXPECT_TRUE(ReadPage(u"Projects/Shop/report.htm"_s).contains(u"Wickerbot"_s));
    EXPECT_TRUE(ReadPage(u"Projects/Shop/report/Harbor.htm"_s).contains(u"http://www.shop.example/"_s));
    QStringList sentToGablewood;
    for (const Receipt &receipt : park.Content()->Received().Receipts()) {
        for (const FormField &field : receipt.fields) {
            if (receipt.site == "Gablewood"_L1)
                sentToGablewood << field.value;
        }
    }
    EXPECT_TRUE(sentToGablewood.contains(u"Business and Trade"_s))
        << sentToGablewood.join(u'|').toStdString();

    QStringList found;
    const auto look = [&](const QString &pane, const QString &widget, const char *property) {
        found << Widget(pane, widget).property(property).toString();
    };
    Play({{Up(u"MainWindow"_s), Presses(Qt::Key_T, Qt::AltModifier)},
          {Up(u"StatisticsPane"_s), [&] {
               found << Form(u"MainWindow"_s).windowTitle();
               for (const auto *label : {"Label42", "Label44", "Label45", "Label46"})
                   look(u"StatisticsPane"_s, QLatin1String(label), "text");
               look(u"DescriptionPane"_s, u"txtURL"_s, "text");
               look(u"DescriptionPane"_s, u"txtDesc"_s, "plainText");
               look(u"OtherDataPane"_s, u"txtZip"_s, "text");
               look(u"CategoryPane"_s, u"txttrazim"_s, "text");
               look(u"SitesPane"_s, u"lblSelected"_s, "text");
               ClosesWindow()();
           }}});
    EXPECT_EQ(found.join(u'|'),
              u"Zephyrine Lanterra 2 - Shop|1|5|3|8|http://www.shop.example/|Hats for all heads|"
              "12345|business|Selected 29/31"_s);
}

} // namespace
} // namespace lanterra
