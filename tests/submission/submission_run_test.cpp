#include "tests/file_bytes.h"
#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SubmissionRunTest : public RunFixture {
protected:
    QString SessionsInStatistics() {
        program->statistics.cmdOrder_Click();
        return program->statistics.Label42.Caption();
    }
    bool ReportExists() const { return QFile::exists(InProjects(u"Project1/report.htm"_s)); }
    bool IsCollecting() const {
        return program->frmStatus.Label1.Caption() == "Collecting submission data ..."_L1;
    }
    /// What happens once, when the progress form first shows progress under the condition.
    void AtProgress(std::function<bool(int)> condition, std::function<void()> step) {
        QObject::connect(
            &program->frmStatus, &StatusForm::ValueChanged, &program->frmStatus,
            [condition = std::move(condition), step = std::move(step), done = false](int value) mutable {
                if (condition(value) && !std::exchange(done, true))
                    step();
            });
    }
};

TEST_F(SubmissionRunTest, AWholeRunLocksCountsReportsAndUnlocks) {
    GivenSites(Numbered(7));
    List1().SetSelected(3, false);
    WhenWaiting([&] {
        EXPECT_TRUE(Run().RunActive());
        EXPECT_FALSE(Record().txtURL.Enabled() || Record().txtLimit.Enabled() || List1().Enabled());
        EXPECT_TRUE(Record().txtDesc.Enabled());
        EXPECT_FALSE(program->statistics.Command10.Enabled());
        EXPECT_FALSE(program->files.mnuFileNew.Enabled() || program->files.mnuFileMRU[0].Enabled());
        program->siteSelection.Command3_Click();
        EXPECT_EQ(List1().SelCount(), 6);
        SubmitAnswered("200 OK"); // a second press starts nothing and is counted
        EXPECT_EQ(Run().urlCounter, 1);
        EXPECT_TRUE(Run().RunActive());
        for (int channel = 1; channel <= channelCount; ++channel)
            Answer(channel, "200 OK");
    });
    PressSubmit();
    QStringList expected = Numbered(7);
    expected.removeAt(3);
    EXPECT_EQ(Successful(), expected);
    EXPECT_EQ(Failed(), QStringList());
    EXPECT_EQ(Result().NotSelectedCount(), 1);
    EXPECT_EQ(Form().Label30.Caption() + Form().Label31.Caption(), u"60"_s);
    EXPECT_EQ(Form().Label2.Caption(), Record().txtURL.Text());
    EXPECT_EQ(Record().txtName.Text(), Record().txtName1.Text() + u' ' + Record().txtName2.Text());
    EXPECT_TRUE(ReadPage(u"Site 4."_s).contains(u"<strong>NOTSELECTED</strong>"_s));
    EXPECT_TRUE(ReportExists());
    EXPECT_FALSE(Run().RunActive());
    EXPECT_TRUE(Record().txtURL.Enabled() && Record().txtZip.Enabled() && List1().Enabled());
    EXPECT_TRUE(program->files.mnuFileOpen.Enabled());
    EXPECT_EQ(dialogs.Told(), QString());
    EXPECT_EQ(Run().urlCounter, 2);
    EXPECT_EQ(forms.poppedUp.size(), 1U);
    EXPECT_EQ(SessionsInStatistics(), u"1"_s);
    program->frmSettings.CreateStatistic.SetValue(0);
    PressSubmit();
    EXPECT_EQ(SessionsInStatistics(), u"1"_s);
}

TEST_F(SubmissionRunTest, RefusesAProjectWithAnEmptyFieldAndShowsItsPane) {
    GivenSites(Numbered(1));
    ProjectRecord &record = Record();
    const struct {
        TextBox &box;
        QString text;
        Pane pane;
    } cases[] = {
        {record.txtURL, u""_s, Pane::FrameOtherData},
        {record.txtEmail, u" "_s, Pane::FrameOtherData},
        {record.txtZip, u""_s, Pane::FrameOtherData},
        // phone stands among the other data, the pane is told
        {record.txtPhone, u" "_s, Pane::FrameDescription},
        {record.txtTitle, u""_s, Pane::FrameDescription},
        {record.txtKey[5], u" "_s, Pane::FrameDescription},
        {record.txtLimit, u""_s, Pane::FrameDescription},
    };
    for (const auto &bad : cases) {
        SCOPED_TRACE(bad.box.objectName().toStdString());
        const QString old = bad.box.Text();
        bad.box.SetText(bad.text);
        PressSubmit();
        EXPECT_EQ(dialogs.Told(), u"Error!: You must fill all text fields"_s);
        EXPECT_EQ(program->frame.ShownPane(), bad.pane);
        EXPECT_EQ(program->frame.Pointer(), MousePointer::Default);
        EXPECT_FALSE(Run().RunActive());
        bad.box.SetText(old);
    }
    EXPECT_EQ(Client(1).connects, 0);
}

TEST_F(SubmissionRunTest, CorrectsLimitSubjectAndFaxAndTakesAnEmptyDescription) {
    GivenSites(Numbered(1));
    Record().txtDesc.SetText(QString());
    Record().txtPhone.SetText(u"555-0100"_s);
    const QList<QStringList> limits{{u"5000abc"_s, u"1000"_s},
                                    {u"1001"_s, u"1000"_s},
                                    {u"12 s"_s, u"45"_s},
                                    {u"abc"_s, u"45"_s},
                                    {u" 7 "_s, u" 7 "_s}};
    for (const QStringList &row : limits) {
        Record().txtLimit.SetText(row[0]);
        Record().Combo2.SetText(u"business"_s);
        Record().txtFax.SetText(u" "_s);
        SubmitAnswered("200 OK");
        EXPECT_EQ(Record().txtLimit.Text(), row[1]);
        EXPECT_EQ(Record().Combo2.Text(), u"Miscellaneous"_s);
        EXPECT_EQ(Record().txtFax.Text(), u"555-0100"_s);
        EXPECT_EQ(Successful().size(), 1);
    }
}

TEST_F(SubmissionRunTest, RefusesASelectedDirectoryWithoutACategory) {
    SiteDatabaseBuilder master;
    master.Site(u"Tree"_s).Categories({u"All"_s, u"Arts"_s});
    master.Site(u"Treetop"_s);
    GivenMaster(master);
    GivenOpenProject();
    // The directory itself isn't selected, but its name is part of a selected site's.
    List1().SetSelected(0, false);
    PressSubmit();
    EXPECT_EQ(dialogs.Told(), u"Error!: You must select a valid category for Tree"_s);
    EXPECT_EQ(program->frame.ShownPane(), Pane::fraCat);
    EXPECT_EQ(program->project.lists.List2.Text(), u"Tree"_s);
    EXPECT_FALSE(Run().RunActive());
    program->categorySelection.SelectByKeyword(u"art"_s);
    SubmitAnswered("200 OK");
    EXPECT_EQ(Successful(), QStringList{u"Treetop"_s});
}

TEST_F(SubmissionRunTest, ARunWithoutSelectedSitesGoesThroughAllSteps) {
    GivenSites(Numbered(3));
    List1().SetAllSelected(false);
    PressSubmit();
    EXPECT_EQ(Client(1).connects, 0);
    EXPECT_EQ(Result().NotSelectedCount(), 3);
    EXPECT_EQ(Form().Label29.Caption(), u"0"_s);
    EXPECT_TRUE(ReportExists());
    // The entry behind the list has a page, too.
    EXPECT_TRUE(QFile::exists(Result().reportFolder + u".htm"_s));
}

TEST_F(SubmissionRunTest, PauseHoldsDispatchAndWatchdogUntilTheNextPress) {
    GivenSites(Numbered(6));
    WhenWaiting([&] { Run().Command1_Click(); }); // all five channels are busy
    WhenWaiting([&] { Answer(2, "200 OK"); });    // an answer in the pause is taken
    WhenWaiting([&] {
        clock.Advance(std::chrono::seconds(300));
        EXPECT_EQ(Client(2).connects, 1);
        EXPECT_EQ(Result().FailedCount(), 0);
        EXPECT_TRUE(program->submitForm.Command1.Marked());
        PressSubmit();
        EXPECT_FALSE(program->submitForm.Command1.Marked());
    });
    WhenWaiting([&] {
        EXPECT_EQ(Client(1).connects, 2); // released: the others have timed out, and the sixth site goes out
        EXPECT_EQ(Result().FailedCount(), 4);
        Answer(1, "200 OK");
    });
    PressSubmit();
    EXPECT_EQ(Result().SuccessfulCount(), 2);
    EXPECT_EQ(Result().FailedCount(), 4);

    WhenWaiting([&] { SubmitAnswered("200 OK"); });
    Run().Command1_Click(); // while idle it runs the next press inside
    EXPECT_EQ(Successful().size(), 6);
}

TEST_F(SubmissionRunTest, APressThatReleasesPauseTakesACancelBack) {
    GivenSites(Numbered(7));
    WhenWaiting([&] { Run().Command1_Click(); });
    WhenWaiting([&] {
        Answer(2, "200 OK");
        Run().cmdCancel_Click();
        SubmitAnswered("200 OK");
    });
    PressSubmit();
    EXPECT_EQ(Successful(), (QStringList{u"Site 2."_s, u"Site 6."_s, u"Site 7."_s}));
}

TEST_F(SubmissionRunTest, CancelWhileAllAreBusyLeavesSitesWithoutAVerdict) {
    GivenSites(Numbered(7));
    WhenWaiting([&] {
        Run().cmdCancel_Click();
        emit Client(5).Connected(); // was on its way: the run waits for this one, and the watchdog ends it
    });
    PressSubmit();
    for (int channel = 1; channel <= channelCount; ++channel) {
        EXPECT_EQ(Client(channel).connects, 1);
        EXPECT_EQ(Client(channel).aborts, channel == 5 ? 2 : 1);
    }
    EXPECT_EQ(Failed(), QStringList{u"Site 5."_s});
    EXPECT_EQ(Form().Label29.Caption(), u"0"_s); // as it stood when the cancel was seen
    EXPECT_EQ(Outcome(0).verdict, Verdict::None);
    EXPECT_EQ(Outcome(6).reason, u"the run was cancelled"_s);
    EXPECT_TRUE(ReadPage(u"Site 7."_s).contains(u"<strong>ERROR!</strong>"_s));
    EXPECT_EQ(Run().urlCounter, 0); // a cancelled run leaves without its closing step
    EXPECT_EQ(SessionsInStatistics(), u"1"_s);
}

TEST_F(SubmissionRunTest, CancelInTheProgressFormStopsTheWalkThatItShows) {
    GivenSites(Numbered(4));
    AtProgress([this](int value) { return value == 1 && IsCollecting(); },
               [this] { program->frmStatus.SSCommand1_Click(); });
    SubmitAnswered("200 OK");
    // The first site was collected and goes out before the flag is looked at; nothing follows it.
    EXPECT_EQ(Client(1).connects, 1);
    EXPECT_EQ(Client(2).connects, 0);
    EXPECT_FALSE(Run().RunActive());
    EXPECT_TRUE(ReportExists());

    // While marks are saved it stops that walk alone.
    AtProgress([](int) { return true; }, [this] { program->frmStatus.SSCommand1_Click(); });
    SubmitAnswered("200 OK");
    EXPECT_EQ(Successful().size(), 4);

    // A save in the middle of the collection has the form to itself.
    bool saved = false;
    AtProgress([this](int value) { return value == 1 && IsCollecting(); },
               [&] {
                   queue.Post([&] {
                       queue.Post([&] { program->frmStatus.SSCommand1_Click(); }); // in the save's own walk
                       program->files.mnuFileSave_Click();
                       saved = program->frmStatus.Visible() && IsCollecting();
                   });
               });
    SubmitAnswered("200 OK");
    EXPECT_TRUE(saved);
    EXPECT_EQ(Successful().size(), 4);
}

TEST_F(SubmissionRunTest, ARunAcrossMidnightTakesNegativeTimeAndTimesNothingOut) {
    GivenSites(Numbered(1));
    clock.SetTime(QTime(23, 59, 50));
    WhenWaiting([&] { clock.Advance(std::chrono::seconds(60)); });
    WhenWaiting([&] { Answer(1, "200 OK"); });
    PressSubmit();
    EXPECT_EQ(Successful().size(), 1);
    EXPECT_EQ(Result().elapsedSeconds, 60 - 86400);
    EXPECT_EQ(Result().Duration(), std::chrono::seconds(60));
}

TEST_F(SubmissionRunTest, CountsOnBeyondTheRoomOfTheNameLists) {
    GivenSites(Numbered(505));
    SubmitAnswered("500 Broken");
    EXPECT_EQ(Result().FailedCount(), 505);
    EXPECT_EQ(Result().FailedNames.At(500), u"Site 501."_s);
    EXPECT_EQ(Result().FailedNames.At(501), QString());
    EXPECT_EQ(Outcome(504).verdict, Verdict::Failed);
    EXPECT_TRUE(Result().notStored.isEmpty()) << "the session's names take any length";
    const QByteArray html = BytesOf(Result().reportFile);
    EXPECT_EQ(html.count("size=1><a href="), 501 + 1); // and the row behind the sites that were not selected
    EXPECT_TRUE(html.contains("Failed Registrations:  505"));
}

TEST_F(SubmissionRunTest, ANewProjectIsSavedFirstAndACancelledDialogLetsTheRunGoOn) {
    GivenSites(Numbered(1));
    program->project.path.Base.clear();
    dialogs.files = {std::nullopt, std::nullopt}; // the press asks, and so does the collection, which saves
    SubmitAnswered("200 OK");
    EXPECT_EQ(dialogs.fileDialogs.size(), 2U);
    EXPECT_FALSE(Run().RunActive());
    EXPECT_TRUE(ReportExists());
    dialogs.files = {home.filePath(u"New.rts"_s)};
    PressSubmit();
    EXPECT_EQ(Result().reportFile, home.filePath(u"New/report.htm"_s));
}

TEST_F(SubmissionRunTest, OpensTheReportOnlyIfAskedAndNotWhenTheProgramCloses) {
    GivenSites(Numbered(8));
    SubmitAnswered("200 OK");
    EXPECT_TRUE(documents.opened.empty());
    Record().Check3.SetValue(1);
    PressSubmit();
    EXPECT_EQ(documents.Opened(), u'|' + Result().reportFile);
    NoSiteAnswers();
    QFile::remove(Result().reportFile);
    WhenWaiting([&] { queue.Close(); });
    PressSubmit();
    EXPECT_FALSE(Run().RunActive());
    EXPECT_GE(Client(1).aborts, 1);
    EXPECT_TRUE(ReportExists());
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(SubmissionRunTest, TheCounterIsCalledAtItsFirstAddressUntilAnExchangeHasEnded) {
    GivenHosts("[Counter]\nFirst=http://127.0.0.1/first\nLater=http://127.0.0.1/later\n");
    GivenSites(Numbered(1));
    EverySiteAnswers("200 OK");
    PressSubmit();
    emit Client(6).Connected();
    EXPECT_EQ(Client(6).sentMethod, u"GET"_s);
    emit Client(6).Error(61);
    PressSubmit();
    EXPECT_EQ(Client(6).Target(), u"http://127.0.0.1/first"_s);
    EXPECT_EQ(Client(6).aborts, 2);
    emit Client(6).Done();
    EXPECT_EQ(settings.Get(u"Settings"_s, u"N"_s), QString());
    Client(6).Receive("HTTP/1.1 200 OK\r\n\r\n", "1"); // the run has ended, so the scratch file goes, too
    emit Client(6).Closing();
    EXPECT_FALSE(QFile::exists(home.filePath(u"tmp.mth"_s)));
    PressSubmit();
    EXPECT_EQ(Client(6).Target(), u"http://127.0.0.1/later"_s);
}

TEST_F(SubmissionRunTest, AProjectFileThatIsGoneFailsEverySiteUnderItsName) {
    GivenSites({u"Alta"_s, u"Beta"_s});
    QFile::remove(program->project.path.Base);
    WhenWaiting([&] {
        Fail(1);
        Fail(2);
    });
    PressSubmit();
    EXPECT_EQ(Failed(), (QStringList{u"Alta"_s, u"Beta"_s}));
    EXPECT_FALSE(Result().notStored.isEmpty());
}

} // namespace
