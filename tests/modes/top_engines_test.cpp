#include "support/sifrant.h"
#include "support/text_file.h"
#include "support/whole_file.h"
#include "tests/fakes/program_fixture.h"

#include <QDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class TopEnginesTest : public ProgramFixture {
protected:
    void GivenProgram(const QStringList &engines) {
        QString text;
        for (const QString &name : engines)
            text += u"Search engine\r\nName=%1\r\nSearch=S %1\r\nReferer=R %1\r\n"
                    "Submit=http://e.example/?u=[URL]&m=[email]&n=[name]\r\n\r\n"_s.arg(name);
        QByteArray key = "plavac";
        WriteWholeFile(home.filePath(u"engine.dat"_s), Sifrant().Sifriraj(text.toLatin1(), key));
        GivenSites({u"Site"_s});
        Record().txtURL.SetText(u"http://www.page.example/#top"_s);
        Record().txtEmail.SetText(u"me@page.example"_s);
        program->reportTemplates = {.img_successful = u"/good"_s,
                                    .img_red_ball = u"/bad"_s,
                                    .img_green_ball = u"/ball"_s,
                                    .img_arrow = u"/arrow"_s,
                                    .TemplateBottom = u"[NO_OF_DOC] [img_red_ball]\r\n"_s,
                                    .TemplateTop = u"[service_name] [url] [time_used] [Year]\r\n"_s,
                                    .TemplateLoopTop = u"[email] [app_name] [app_version] [other]\r\n"_s,
                                    .TemplateLoop = u"[engine_name],[engine_search_url],[engine_submit_url],"
                                                    "[img_red_ball],[result],[engine_response]\r\n"_s};
    }
    void GivenTwoUrls() {
        program->frmMulti.ListedURLs.AddItem(u"http://one.example/"_s);
        program->frmMulti.ListedURLs.AddItem(u"http://two.example/"_s);
        program->frmMulti.cmdOK_Click();
        Record().chkMultiSameDesc.SetValue(1);
    }
    /// The five clients of the spider are the last that the program makes.
    FakeHttpClient &SpiderClient(std::size_t number) { return *clients[clients.size() - 5 + number]; }
    void EveryEngineAnswers() {
        for (std::size_t i = 0; i < 5; ++i)
            SpiderClient(i).onConnect = [this](FakeHttpClient &client) {
                queue.Post([&] { Answer(client); });
            };
    }
    static void Answer(FakeHttpClient &client) {
        emit client.Connected();
        client.Receive("HTTP/1.1 200 OK\r\n\r\n", "hello");
        emit client.Done();
    }
    void Submit() {
        queue.WhenIdle([this] { Form().cmdSubmit_Click(); });
        program->run.mnuTop9_Click();
    }
    QString Page(const QString &name) const { return ReadFileText(InProjects(u"Project1/report/"_s + name)); }
    QString Link(const QString &name) const {
        return u"file://"_s + InProjects(u"Project1/report/"_s + name);
    }
    TopEnginesForm &Form() { return program->frmTop9; }
};

TEST_F(TopEnginesTest, ReportsEachSelectedEngineInTheOrderOfTheFile) {
    GivenProgram({u"Caf\u00E9"_s, u"New Northern Light"_s, u"Off"_s, u"Silent"_s});
    Form().Load();
    Form().List1.SetSelected(2, false);
    Form().TimeOut.SetText(u"3"_s);
    EveryEngineAnswers();
    SpiderClient(2).onConnect = nullptr;
    Submit();
    EXPECT_EQ(SpiderClient(0).Target(),
              u"http://e.example/?u=http%3A%2F%2Fwww.page.example%2F%23top&m=me@page.example&n=x+x"_s);
    EXPECT_EQ(SpiderClient(0).sentMethod + SpiderClient(1).sentMethod, u"GETPOST"_s);
    EXPECT_EQ(Record().txtURL.Text(), u"http://www.page.example/"_s) << "cut off behind the requests";
    EXPECT_EQ(Page(u"URL0/report.html"_s),
              u"Top search engines submission http://www.page.example/ 3 2024\r\n"
              "me@page.example Zephyrine Lanterra 2.14 [other]\r\n"
              "Caf\u00E9,S Caf\u00E9,R Caf\u00E9,file:///good,Successful submission,%1\r\n"
              "New Northern Light,S New Northern Light,R New Northern Light,file:///good,Successful "
              "submission,%2\r\n"
              "Silent,S Silent,R Silent,file:///bad,Failed submission,%3\r\n"
              "1 file:///bad\r\n"_s.arg(Link(u"URL0/engine0.htm"_s), Link(u"URL0/engine1.htm"_s),
                                        Link(u"URL0/engine3.htm"_s)));
    ASSERT_EQ(documents.opened.size(), 1U);
    EXPECT_EQ(u"file://"_s + documents.opened[0].arguments[0], Link(u"URL0/report.html"_s));
    EXPECT_FALSE(Form().Visible());
}

TEST_F(TopEnginesTest, StopEndsTheUrlWhileCancelAndCloseEndTheJob) {
    const struct {
        void (TopEnginesForm::*press)();
        bool early; ///< while the tasks are still being made
        bool goesOn;
    } cases[] = {{&TopEnginesForm::cmdStop_Click, false, true},
                 {&TopEnginesForm::cmdStop_Click, true, true},
                 {&TopEnginesForm::SSCommand1_Click, false, false},
                 {&TopEnginesForm::SSCommand1_Click, true, false},
                 {&TopEnginesForm::Close, false, false},
                 {&TopEnginesForm::Close, true, false}};
    GivenProgram({u"One"_s});
    GivenTwoUrls();
    const auto showsTheNext = [this] {
        EXPECT_TRUE(Form().Visible()) << "the next URL brings the form back";
        Answer(SpiderClient(0));
    };
    for (const auto &[press, early, goesOn] : cases) {
        QDir(InProjects(u"Project1/report"_s)).removeRecursively();
        dialogs.answers.push_back(BoxAnswer::Yes);
        const auto presses = [this, button = press] { (Form().*button)(); };
        queue.WhenIdle([&, atOnce = early] {
            Form().cmdSubmit_Click();
            if (atOnce)
                queue.AtYield(1, presses);
        });
        if (!early)
            queue.WhenIdle(presses);
        if (goesOn)
            queue.WhenIdle(showsTheNext);
        program->run.mnuTop9_Click();
        EXPECT_TRUE(
            Page(u"URL0/report.html"_s).contains(u"file:///bad,Canceled,"_s + Link(u"URL0/engine0.htm"_s)));
        EXPECT_TRUE(Page(u"URL0/engine0.htm"_s).contains(u"The submission was canceled."_s));
        EXPECT_EQ(Page(u"URL1/report.html"_s).contains(u"Successful"_s), goesOn);
        EXPECT_TRUE(Page(u"top_engines_report.html"_s)
                        .contains(u"<p><font size=\"2\"><a href=\"%1\">http://two.example/</a></font></p>\r\n"
                                  "</center>2 "_s.arg(Link(u"URL1/report.html"_s))));
        EXPECT_EQ(Record().txtURL.Text(), u"http://one.example/"_s);
        EXPECT_EQ(Record().multiUrlTable.Cell(1, MultiUrlTable::urlColumn), u"http://two.example/"_s);
    }
}

TEST_F(TopEnginesTest, ANoSubmitsTheFirstUrlAndEmptiesItsFolder) {
    GivenProgram({u"One"_s});
    GivenTwoUrls();
    Record().HScroll1.SetValue(1);
    const QDir folder(InProjects(u"Project1/report/URL0"_s));
    folder.mkpath(u"kept"_s);
    ASSERT_TRUE(WriteWholeFile(folder.filePath(u"engine7.htm"_s), "old"));
    EveryEngineAnswers();
    dialogs.answers.push_back(BoxAnswer::No);
    Submit();
    EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{u"engine0.htm"_s, u"kept"_s, u"report.html"_s}));
    EXPECT_TRUE(Page(u"URL0/report.html"_s).contains(u"http://one.example/ 0 2024"_s));
    EXPECT_TRUE(Page(u"URL0/report.html"_s).endsWith(u"\r\n2 file:///bad\r\n"_s)) << "all URLs count";
    EXPECT_FALSE(QDir(InProjects(u"Project1/report/URL1"_s)).exists());
}

TEST_F(TopEnginesTest, AnEngineThatIsSelectedTooLateHasNoRow) {
    GivenProgram({u"One"_s, u"Two"_s});
    EveryEngineAnswers();
    Submit();
    Form().List1.SetSelected(1, false);
    SpiderClient(0).onConnect = nullptr;
    queue.WhenIdle([this] { Form().cmdSubmit_Click(); });
    queue.WhenIdle([this] {
        Form().List1.SetSelected(1, true);
        Answer(SpiderClient(0));
    });
    program->run.mnuTop9_Click();
    EXPECT_TRUE(Page(u"URL0/report.html"_s).contains(Link(u"URL0/engine0.htm"_s) + u"\r\n1 file"_s));
}

TEST_F(TopEnginesTest, ARunBesideItTakesNeitherItsUrlsNorItsReports) {
    GivenProgram({u"One"_s});
    GivenTwoUrls();
    program->project.lists.List1.SetAllSelected(false);
    const QString runReport = InProjects(u"Project1/report.htm"_s);
    const auto run = [&] {
        EXPECT_FALSE(program->files.mnuFileOpen.Enabled()) << "the next URLs would be another project's";
        EveryEngineAnswers();
        program->run.cmdStart_Click();
        EXPECT_FALSE(program->files.mnuFileOpen.Enabled());
        Answer(SpiderClient(0));
    };
    queue.WhenIdle([this] { Form().cmdSubmit_Click(); });
    queue.WhenIdle(run);
    dialogs.answers.push_back(BoxAnswer::Yes);
    program->modes.mnuTopEngines_Click();
    EXPECT_TRUE(QFile::remove(runReport));
    EXPECT_TRUE(Page(u"URL1/report.html"_s).contains(u"Successful"_s));
    EXPECT_TRUE(program->files.mnuFileOpen.Enabled());

    dialogs.answers.push_back(BoxAnswer::Yes);
    queue.AtYield(1, [this] {
        Record().txtTitle.SetText(u" "_s);
        program->modes.mnuTopEngines_Click();
        EXPECT_TRUE(program->run.RunActive()) << "although the mode was refused";
        Record().txtTitle.SetText(u"x"_s);
        Submit();
    });
    program->run.cmdStart_Click();
    EXPECT_TRUE(QFile::exists(runReport));
    EXPECT_TRUE(Page(u"URL1/report.html"_s).contains(u"Successful"_s));
}

TEST_F(TopEnginesTest, WithoutAnEngineFileTheModeWaitsUntilItsFormIsCancelled) {
    GivenProgram({});
    QFile::remove(home.filePath(u"engine.dat"_s));
    queue.WhenIdle([this] { Form().cmdSubmit_Click(); });
    queue.WhenIdle([this] {
        EXPECT_FALSE(Form().Visible());
        program->run.mnuTop9_Click();
        EXPECT_TRUE(Form().Visible());
        Form().SSCommand1_Click();
    });
    program->run.mnuTop9_Click();
    ASSERT_EQ(dialogs.boxes.size(), 2U);
    for (const MessageBox &box : dialogs.boxes)
        EXPECT_EQ(box.text, u"Some files are corrupted. Please reinstall your copy of the program"_s);
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(TopEnginesTest, ATimeOutThatIsNoNumberIsThreeMinutes) {
    GivenProgram({u"One"_s});
    EveryEngineAnswers();
    for (const auto &[text, seconds] :
         {std::pair(u"soon"_s, 180), {u"12.5"_s, 12}, {u" 7 "_s, 7}, {u"1e9"_s, 32767}}) {
        Form().Load();
        Form().TimeOut.SetText(text);
        Submit();
        EXPECT_EQ(Form().Spider1.TimeOut(), seconds) << text.toStdString();
    }
    EXPECT_EQ(Form().TimeOut.Text(), u"1e9"_s);
}

} // namespace
