#include "support/text_file.h"
#include "tests/submission/run_fixture.h"

#include <QLocale>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class MultiUrlJobTest : public RunFixture {
protected:
    void GivenProject(int sites, int urls) {
        GivenSites(Numbered(sites));
        forms.onMenu[PopupMenu::Submit] = [this] { Run().mnuMultiple_Click(); };
        Record().txtURL.SetText(QString());
        program->frmMulti.Activate();
        for (int i = 0; i < urls; ++i)
            program->frmMulti.ListedURLs.AddItem(u"http://%1.example/"_s.arg(i));
        program->frmMulti.cmdOK_Click();
        Record().chkMultiSameDesc.SetValue(1);
        QObject::connect(&program->multiUrlJob, &MultiUrlJob::UrlStarted,
                         [this](int slot) { Started(slot); });
        QObject::connect(&program->multiUrlJob, &MultiUrlJob::UrlEnded, [this](int slot) { ended << slot; });
    }

    /// The sites don't answer the first run of this slot; this happens instead.
    void DuringRunOf(int slot, const ScriptedEventQueue::Step &step) {
        silentSlot = slot;
        WhenWaiting(step);
    }
    void Started(int slot) {
        if (std::exchange(silentSlot, slot == silentSlot ? -1 : silentSlot) == slot)
            NoSiteAnswers();
        else
            EverySiteAnswers("200 OK");
    }

    QString Report(const QString &name) const { return ReadFileText(InProjects(u"Project1/"_s + name)); }
    void Cancel(void (SubmissionRun::*entry)()) {
        forms.onMenu[PopupMenu::Cancel2] = [this, entry] { entry ? (Run().*entry)() : void(); };
        Run().cmdCancel_Click();
    }

    int silentSlot = -1;
    QList<int> ended;
};

TEST_F(MultiUrlJobTest, TenUrlsOneCancelledAndOneEmptyLeaveReportsAndAnIndex) {
    GivenProject(2, 10);
    Record().multiUrlTable.SetCell(5, MultiUrlTable::urlColumn, u" "_s);
    DuringRunOf(3, [&] { Cancel(&SubmissionRun::mnuCancelCurrent_Click); });
    PressSubmit();
    EXPECT_EQ(ended, (QList<int>{0, 1, 2, 3, 4, 6, 7, 8, 9}));
    EXPECT_TRUE(Report(u"report/URL3/report.htm"_s).contains(u"Successful Registrations:  0"_s));
    EXPECT_TRUE(Report(u"report/URL5/report.htm"_s).isEmpty());
    EXPECT_TRUE(Report(u"report/URL9/report.htm"_s).contains(u">http://9.example/<"_s));
    EXPECT_EQ(Report(u"report/URL9/Site 2..htm"_s), u"hello body\n"_s);

    QString golden = ReadFileText(QStringLiteral(GOLDEN_FOLDER "/multi_index.htm"));
    const QString date = QLocale::system().toString(clock.Now().date(), QLocale::ShortFormat);
    EXPECT_EQ(Report(u"report.htm"_s), golden.replace(u"@HOME@"_s, home.path()).replace(u"@DATE@"_s, date));
    EXPECT_EQ(documents.opened.at(0).arguments, QStringList{Result().reportFile});
    EXPECT_EQ(Record().HScroll1.Value(), 0);
    EXPECT_EQ(Record().txtURL.Text(), u"http://0.example/"_s);
    EXPECT_TRUE(Run().multiIdle && !Run().multiActive && !Run().RunActive());
}

TEST_F(MultiUrlJobTest, PressesDuringARunDecideWhichUrlsFollow) {
    const auto pressByHand = [&] {
        PressSubmit();
        EverySiteAnswers("200 OK");
        for (int channel = 1; channel <= std::min(channelCount, List1().ListCount()); ++channel)
            Answer(channel, "200 OK");
    };
    const struct {
        const char *press;
        ScriptedEventQueue::Step step;
        QList<int> runs;
    } cases[] = {
        {"cancel current", [&] { Cancel(&SubmissionRun::mnuCancelCurrent_Click); }, {0, 1, 2, 3}},
        {"cancel entire", [&] { Cancel(&SubmissionRun::mnuCancelEntire_Click); }, {0, 1}},
        {"dismissed popup", [&] { Cancel(nullptr); }, {0, 1, 1, 2, 3}},
        {"submit by hand", pressByHand, {0, 1, 3}},
        {"end of the program", [&] { queue.Close(); }, {0, 1}},
    };
    // With two sites all are handed out by then, with seven they wait for a channel.
    for (const int sites : {2, 7}) {
        GivenProject(sites, 4);
        for (const auto &entry : cases) {
            ended.clear();
            DuringRunOf(1, entry.step);
            PressSubmit();
            EXPECT_EQ(ended, entry.runs) << entry.press << " with " << sites << " sites";
            EXPECT_EQ(Report(u"report.htm"_s).count(u"/report/URL"_s),
                      std::min<qsizetype>(entry.runs.size(), 4))
                << entry.press;
        }
        queue.Close(false);
        program.reset();
        dialogs.answers = {BoxAnswer::Yes}; // the next project replaces this one
    }
}

TEST_F(MultiUrlJobTest, EachUrlNeedsItsTextsUnlessAllShareThem) {
    GivenProject(1, 4);
    ProjectRecord &record = Record();
    record.chkMultiSameDesc.SetValue(0);
    for (int column = 1; column < MultiUrlTable::columnCount; ++column) {
        for (const int slot : {1, 2})
            record.multiUrlTable.SetCell(slot, column, u"x"_s);
    }
    record.multiUrlTable.SetCell(3, MultiUrlTable::urlColumn, QString()); // emptied behind the last address
    record.multiUrlTable.SetCell(1, MultiUrlTable::titleColumn, QString());
    record.multiUrlTable.SetCell(2, MultiUrlTable::descColumn, u" "_s);
    program->frame.ShowPane(Pane::FrameSUBMIT);
    PressSubmit();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, u" Please fill all text fields for each URL separately "_s);
    EXPECT_EQ(record.HScroll1.Value(), 2);
    EXPECT_EQ(program->frame.ShownPane(), Pane::FrameDescription);
    EXPECT_TRUE(ended.isEmpty());

    // A gap in slot 0 alone is found by the checks of its run, and the job goes on behind it.
    record.multiUrlTable.SetCell(1, MultiUrlTable::titleColumn, u"One"_s);
    record.multiUrlTable.SetCell(2, MultiUrlTable::descColumn, u"Two"_s);
    record.multiUrlTable.SetCell(0, MultiUrlTable::titleColumn, QString());
    PressSubmit();
    EXPECT_EQ(dialogs.boxes.back().text, u"You must fill all text fields"_s);
    EXPECT_EQ(ended, (QList<int>{0, 1, 2}));
    EXPECT_TRUE(Report(u"report/URL0/report.htm"_s).isEmpty());
}

} // namespace
