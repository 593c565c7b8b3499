#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ReportFormTest : public RunFixture {
protected:
    ReportForm &Report() { return program->frmReport; }

    static QString Expected(const QString &dateAndTime) {
        return u"\nTitle: My page\nURL: http://www.page.example/\nPerson Name: x x\nE-mail: x\n"_s +
               dateAndTime +
               u"\n\nSuccesful Registration: \nAlta\n\nFailed: \nBeta\n\nNot Selected: \nGamma\n\n"
               u"\nSuccesful Registration: 1 / 2\nFailed Registration: 1 / 2\nNot Selected: 1 sites.\n"
               u"Time: 3 seconds.\n\n\n"_s;
    }
};

TEST_F(ReportFormTest, TellsTheLastRunAndThePresentFields) {
    GivenSites({u"Alta"_s, u"Beta"_s, u"Gamma"_s});
    List1().SetSelected(2, false);
    WhenWaiting([&] {
        clock.Advance(std::chrono::seconds(3));
        Answer(1, "200 OK");
        Fail(2);
    });
    PressSubmit();
    Record().txtTitle.SetText(u"My page"_s);
    forms.onForm[ModalForm::Report] = [&] {
        const QString first = Report().PlainText();
        EXPECT_EQ(first, Expected(first.section(u'\n', 5, 5)));
        EXPECT_TRUE(first.section(u'\n', 5, 5).contains(u", "_s));
        EXPECT_EQ(Report().Text1.Text(), QString(first).replace(u"\n"_s, u"\r\n"_s));
        Report().Command1_Click();
        Report().cmdprint_Click();
        EXPECT_EQ(clipboard.text, first);
        EXPECT_EQ(printer.documents, QStringList{first});
        EXPECT_EQ(Report().Text1.SelLength(), 0);

        Report().Text1.SetText(u"typed"_s);
        List1().SetAllSelected(true);
        queue.AtYield(1, [&] { Report().Form_Activate(); }); // while the text is being built
        Report().Form_Activate();
        EXPECT_EQ(Report().PlainText(), QString(first).replace(u" / 2"_s, u" / 3"_s));
        EXPECT_EQ(program->frame.Pointer(), MousePointer::Default);
        Report().cmdOk_Click();
        EXPECT_FALSE(Report().Visible());
    };
    Report().mnuViewReport_Click();
    EXPECT_EQ(forms.shown, std::vector{ModalForm::Report});

    program->siteListPrint.mnuFilePrintPreview_Click();
    EXPECT_EQ(printer.documents.last(), u"Alta\nBeta\nGamma\n"_s);
}

TEST_F(ReportFormTest, LeavesOutTheNamesBehindTheFiveHundredth) {
    GivenSites({u"Alta"_s});
    RunResult &result = program->result;
    for (int i = 0; i < 503; ++i)
        result.AddFailure(u"Site %1"_s.arg(i), 0);
    Report().BuildReportText();
    const QString text = Report().PlainText();
    EXPECT_TRUE(text.contains(u"\nSite 500\n\nNot Selected: \n\n\nSuccesful Registration: 0 / 1\n"
                              u"Failed Registration: 503 / 1\n"_s));
}

TEST_F(ReportFormTest, OffersTheFailedSitesOnlyOnceSomebodyRaisesTheFlag) {
    GivenSites({u"Alta"_s, u"Beta"_s, u"Gamma"_s});
    program->result.AddFailure(u"Beta"_s, 1);
    Report().ReselectFailed = true;
    dialogs.answers = {BoxAnswer::Yes};
    Report().cmdOk_Click();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, u"Select unsuccessful registration ?"_s);
    EXPECT_EQ(dialogs.boxes[0].defaultAnswer, BoxAnswer::No);
    EXPECT_EQ(List1().SelCount(), 1);
    EXPECT_TRUE(List1().Selected(1));
    Report().cmdOk_Click(); // the flag is lowered again; a question would fail here
    EXPECT_TRUE(program->result.FailedIndex.empty());
}

} // namespace
