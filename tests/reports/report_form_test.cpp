#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ReportFormTest : public RunFixture {
protected:
    ReportFormTest() { GivenSites({u"Alta"_s, u"Beta"_s, u"Gamma"_s}); }
    ReportForm &Report() { return program->frmReport; }
};

TEST_F(ReportFormTest, TellsTheLastRunAndThePresentFields) {
    List1().SetSelected(2, false);
    WhenWaiting([&] {
        clock.Advance(std::chrono::seconds(3));
        Answer(1, "200 OK");
        Fail(2);
    });
    PressSubmit();
    Record().txtTitle.SetText(u"My page"_s);
    forms.onForm[ModalForm::Report] = [&] {
        const QString text = Report().PlainText();
        const QString dateAndTime = text.section(u'\n', 5, 5);
        EXPECT_TRUE(dateAndTime.contains(u", "_s));
        EXPECT_EQ(text, u"\nTitle: My page\nURL: http://www.page.example/\nPerson Name: x x\nE-mail: x\n"_s +
                            dateAndTime +
                            u"\n\nSuccesful Registration: \nAlta\n\nFailed: \nBeta\n\nNot Selected: \nGamma\n"
                            u"\n\nSuccesful Registration: 1 / 2\nFailed Registration: 1 / 2\n"
                            u"Not Selected: 1 sites.\nTime: 3 seconds.\n\n\n"_s);
        EXPECT_EQ(Report().Text1.Text(), QString(text).replace(u"\n"_s, u"\r\n"_s));
        Report().Command1_Click();
        Report().cmdprint_Click();
        EXPECT_EQ(clipboard.text, text);
        EXPECT_EQ(printer.documents, QStringList{text});

        Report().Text1.SetText(u"typed"_s);
        List1().SetAllSelected(true);
        queue.AtYield(1, [&] { Report().Form_Activate(); }); // while the text is being built
        Report().Form_Activate();
        EXPECT_EQ(Report().PlainText(), QString(text).replace(u" / 2"_s, u" / 3"_s));
    };
    Report().mnuViewReport_Click();
    program->siteListPrint.mnuFilePrintPreview_Click();
    ASSERT_EQ(printer.documents.size(), 2);
    EXPECT_EQ(printer.documents[1], u"Alta\nBeta\nGamma\n"_s);
}

TEST_F(ReportFormTest, OffersTheFailedSitesOnlyOnceSomebodyRaisesTheFlag) {
    program->result.AddFailure(u"Beta"_s, 1);
    Report().ReselectFailed = true;
    dialogs.answers = {BoxAnswer::Yes};
    Report().cmdOk_Click();
    Report().cmdOk_Click(); // a second question would find no answer
    EXPECT_EQ(dialogs.boxes.at(0).text, u"Select unsuccessful registration ?"_s);
    EXPECT_EQ(List1().SelCount(), 1);
    EXPECT_TRUE(List1().Selected(1));
}

} // namespace
