#include "tests/window/window_fixture.h"

#include <QApplication>
#include <QFile>
#include <QLabel>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class WindowReentryTest : public WindowFixture {
protected:
    /// Two sites that answer at once and one that never does.
    WindowReentryTest() { GivenProject({u"Quillfind"_s, u"Drumlinfind"_s, u"Harbor"_s}); }

    bool Exists(QAnyStringView name) const { return QFile::exists(Path(name)); }

    Condition When(const QString &what, const std::function<bool(const Program &)> &holds) const {
        return {what, [this, holds] { return holds(program->program); }};
    }
    const Condition held = When(u"run that waits"_s, [](const Program &parts) {
        return parts.run.RunActive() && parts.result.SuccessfulCount() == 2;
    });
    const Condition idle = When(u"no run"_s, [](const Program &parts) { return !parts.run.RunActive(); });
    const Condition window = Up("MainWindow");
    const Condition pane = Up("SubmitPane");
    const Action close = ClosesWindow();

    static Action Alt(Qt::Key letter) { return Presses(letter, Qt::AltModifier); }
    static Action ClicksSubmit(QAnyStringView name) { return Clicks("SubmitPane", name); }

    /// Into a run that doesn't end by itself: its third channel waits.
    const std::vector<Step> run{{window, Alt(Qt::Key_U)},
                                {pane, ClicksSubmit("cmdStart")},
                                {Menu("Submit"), Chooses("Automated Search Engines")},
                                {held, [] {}}};
};

TEST_F(WindowReentryTest, ARunGoesOnUnderAllThatIsPressedMeanwhile) {
    QStringList seen;
    const auto seeMark = [&] {
        seen << (QApplication::activePopupWidget()->actions().last()->isChecked() ? u"disabled"_s
                                                                                  : u"enabled"_s);
        Presses(Qt::Key_Escape)();
    };
    PlayOnProject(run +
                  std::vector<Step>{
                      {pane, ClicksSubmit("cmdStart")},
                      {When(u"press more"_s, [](const Program &parts) { return parts.run.urlCounter == 1; }),
                       Alt(Qt::Key_T)},
                      {Up("StatisticsPane"), Alt(Qt::Key_I)},
                      {Up("SitesPane"), Clicks("SitesPane", "Command3")},
                      {Up("SitesPane"), Alt(Qt::Key_C)},
                      {Up("CategoryPane"), Alt(Qt::Key_U)},
                      {pane, ClicksSubmit("kan2")},
                      {Menu("Channel 2"), Chooses("Disable")},
                      {pane, ClicksSubmit("kan2")},
                      {Menu("Channel 2"), seeMark},
                      {pane, ClicksSubmit("kan3")},
                      {Menu("Channel 3"), Chooses("Abort")},
                      {idle, close}});
    EXPECT_EQ(seen, QStringList(u"disabled"_s));
    EXPECT_EQ(Find<QLabel>("SitesPane", "lblSelected").text(), u"Selected 24/24"_s);
    EXPECT_EQ(Outcome("Drumlinfind"), u"Failed: The request was aborted"_s);
    EXPECT_TRUE(Exists("Projects/Shop/report.htm"));
}

TEST_F(WindowReentryTest, PauseHoldsARunAndOneThatItsReleaseBegins) {
    PlayOnProject({{window, Alt(Qt::Key_U)},
                   {pane, ClicksSubmit("Command1")},
                   {pane, Alt(Qt::Key_B)},
                   {Menu("Submit"), Presses(Qt::Key_U)},
                   {held, ClicksSubmit("Command1")},
                   {pane, ClicksSubmit("cmdCancel")},
                   {pane, ClicksSubmit("cmdStart")},
                   {idle, close}});
    EXPECT_EQ(Outcome("Drumlinfind"), u"No verdict: the run was cancelled"_s);
}

TEST_F(WindowReentryTest, ClosingTheWindowEndsAllThatWaits) {
    // Behind the start of the collection, in the first of its yields.
    const auto closeInCollection = [this] {
        QObject::connect(&program->program.frmStatus, &StatusForm::VisibleChanged, &Form("MainWindow"),
                         &QWidget::close, Qt::QueuedConnection);
        Alt(Qt::Key_B)();
    };
    const Condition list{u"list"_s, [] { return QApplication::activePopupWidget() != nullptr; }};
    const std::vector<Step> submit{{window, Alt(Qt::Key_U)}, {pane, Alt(Qt::Key_B)}};
    for (const auto &[name, way, leavesReport] :
         std::vector<std::tuple<const char *, std::vector<Step>, bool>>{
             {"run", run + std::vector<Step>{{pane, close}}, true},
             {"Pause in a run", run + std::vector<Step>{{pane, ClicksSubmit("Command1")}, {pane, close}},
              true},
             {"Pause without a run",
              {{window, Alt(Qt::Key_U)}, {pane, ClicksSubmit("Command1")}, {pane, close}},
              false},
             {"collection",
              {{window, Alt(Qt::Key_U)}, {pane, closeInCollection}, {Menu("Submit"), Presses(Qt::Key_U)}},
              true},
             {"channel's popup",
              run + std::vector<Step>{{pane, ClicksSubmit("kan3")}, {Menu("Channel 3"), close}}, true},
             {"dialog over a run",
              run + std::vector<Step>{{pane, Alt(Qt::Key_O)},
                                      {Menu("Options"), Chooses("Settings")},
                                      {Up("SettingsDialog"), close}},
              true},
             {"popup of SUBMIT", submit + std::vector<Step>{{Menu("Submit"), close}}, false},
             {"menu", {{window, Alt(Qt::Key_F)}, {Menu("File"), close}}, false},
             {"list that is down",
              {{window, Alt(Qt::Key_C)},
               {Up("CategoryPane"), Clicks("CategoryPane", "Combo2")},
               {list, close}},
              false},
             {"file dialog",
              {{window, Presses(Qt::Key_O, Qt::ControlModifier)}, {Up("QFileDialog"), close}},
              false},
             {"box",
              std::vector<Step>{{window, Alt(Qt::Key_D)},
                                {Up("DescriptionPane"), Clicks("DescriptionPane", "txtKey6")},
                                {At("txtKey6"), Presses(Qt::Key_Delete)}} +
                  submit +
                  std::vector<Step>{{Menu("Submit"), Presses(Qt::Key_U)},
                                    {Box("You must fill all text fields"), close}},
              false}}) {
        SCOPED_TRACE(name);
        QFile::remove(Path("Projects/Shop/report.htm"));
        QFile::remove(Path("Projects/Shop.rts.bak"));
        PlayOnProject(way);
        EXPECT_EQ(Exists("Projects/Shop/report.htm"), leavesReport);
        EXPECT_EQ(Outcome("Drumlinfind"), leavesReport ? u"No verdict: the program was closed"_s : QString());
        EXPECT_TRUE(Exists("Projects/Shop.rts.bak")) << "not stored";
    }
}

TEST_F(WindowReentryTest, AnEndFromOutsideIsTakenWhileTheStartStillAsks) {
    GivenMaster({u"Quillfind"_s});
    for (std::ptrdiff_t last : {0, 1, 2}) {
        std::vector<Step> steps(makesAProject.begin(), makesAProject.begin() + last + 1);
        steps.back().act = [this] { program->End(); };
        QFile::remove(Path("config/Lanterra.ini"));
        Play(steps);
        EXPECT_FALSE(Exists("Projects/Project1.rts"));
    }
}

} // namespace
} // namespace lanterra
