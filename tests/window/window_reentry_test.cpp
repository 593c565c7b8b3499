#include "tests/window/window_fixture.h"

#include <QApplication>
#include <QFile>
#include <QLabel>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class WindowReentryTest : public WindowFixture {
protected:
    /// A project with a site that answers at once, one that never does and one more, all selected.
    void GivenProject() {
        GivenMaster({u"Quillfind"_s, u"Drumlinfind"_s, u"Harbor"_s});
        WindowProgram maker(home.path());
        Program &parts = maker.program;
        parts.options.Set(option::welcomeSeen, u"1"_s);
        parts.frmSettings.Load();
        ASSERT_TRUE(parts.startProject.CreateProject(u"Shop"_s));
        parts.files.LoadProject();
        for (const ProjectRecord::TextField &field : parts.project.record.TextFields())
            field.box->SetText(u"x"_s);
        parts.project.record.txtURL.SetText(u"http://www.page.example/"_s);
        parts.project.record.txtLimit.SetText(u"45"_s);
        parts.project.lists.List1.SetAllSelected(true);
        ASSERT_TRUE(parts.files.SaveProject(QString()).stored);
        parts.project.database.Unbind();
    }

    void PlayOnProject(const std::vector<Step> &steps) { Play(steps, Path(u"Projects/Shop.rts"_s)); }

    Condition When(const std::string &what, const std::function<bool(const Program &)> &holds) const {
        return {what, [this, holds] { return holds(program->program); }};
    }
    /// Two sites have answered and the third holds its channel.
    Condition Held() const {
        return When("a run that waits", [](const Program &parts) {
            return parts.run.RunActive() && parts.result.SuccessfulCount() == 2;
        });
    }
    Condition Idle() const {
        return When("no run", [](const Program &parts) { return !parts.run.RunActive(); });
    }
    /// To the pane and into a run that doesn't end by itself.
    std::vector<Step> IntoRun() const {
        return {{Up(u"MainWindow"_s), Clicks(u"MainWindow"_s, u"cmdSubmit"_s)},
                {Up(u"SubmitPane"_s), Clicks(u"SubmitPane"_s, u"cmdStart"_s)},
                {Menu(u"Submit"_s), Chooses(u"Automated Search Engines"_s)},
                {Held(), [] {}}};
    }
    std::vector<Step> IntoRun(const std::vector<Step> &more) const {
        std::vector<Step> steps = IntoRun();
        steps.insert(steps.end(), more.begin(), more.end());
        return steps;
    }

    QString Outcome(const QString &site) const {
        const OutcomeTable &table = program->program.outcomes;
        for (int row = 0; row < table.rowCount(); ++row) {
            if (table.index(row, OutcomeTable::Site).data() == site)
                return table.index(row, OutcomeTable::Result).data().toString() + u": "_s +
                       table.index(row, OutcomeTable::Reason).data().toString();
        }
        return {};
    }

    const QString pane = u"SubmitPane"_s;
};

TEST_F(WindowReentryTest, ARunGoesOnUnderAllThatIsPressedMeanwhile) {
    GivenProject();
    QStringList seen;
    const auto see = [&](const QString &text) { seen << text; };
    PlayOnProject(IntoRun({
        {Up(pane), Clicks(pane, u"cmdStart"_s)},
        {When("a press more", [](const Program &parts) { return parts.run.urlCounter == 1; }),
         Clicks(u"MainWindow"_s, u"cmdOrder"_s)},
        {Up(u"StatisticsPane"_s),
         [&] {
             see(u"clear %1"_s.arg(Widget(u"StatisticsPane"_s, u"Command10"_s).isEnabled()));
             Clicks(u"MainWindow"_s, u"cmdEngines"_s)();
         }},
        {Up(u"SitesPane"_s), Clicks(u"SitesPane"_s, u"Command3"_s)},
        {Up(u"SitesPane"_s), Clicks(u"MainWindow"_s, u"Command14"_s)},
        {Up(u"CategoryPane"_s),
         [&] {
             see(Find<QLabel>(u"SitesPane"_s, u"lblSelected"_s).text());
             Clicks(u"MainWindow"_s, u"cmdSubmit"_s)();
         }},
        {Up(pane), Clicks(pane, u"kan2"_s)},
        {Menu(u"Channel 2"_s), Chooses(u"Disable"_s)},
        {Up(pane), Clicks(pane, u"kan2"_s)},
        {Menu(u"Channel 2"_s),
         [&] {
             see(u"disabled %1"_s.arg(
                 static_cast<QMenu *>(QApplication::activePopupWidget())->actions().last()->isChecked()));
             Presses(Qt::Key_Escape)();
         }},
        {Up(pane), Clicks(pane, u"kan3"_s)},
        {Menu(u"Channel 3"_s), Chooses(u"Abort"_s)},
        {Idle(), ClosesWindow()},
    }));
    EXPECT_EQ(seen, QStringList({u"clear 0"_s, u"Selected 24/24"_s, u"disabled 1"_s}));
    EXPECT_EQ(Outcome(u"Drumlinfind"_s), u"Failed: The request was aborted"_s);
    EXPECT_TRUE(QFile::exists(Path(u"Projects/Shop/report.htm"_s)));
}

TEST_F(WindowReentryTest, PauseHoldsARunThatItsOwnReleaseBegins) {
    GivenProject();
    PlayOnProject({{Up(u"MainWindow"_s), Clicks(u"MainWindow"_s, u"cmdSubmit"_s)},
                   {Up(pane), Clicks(pane, u"Command1"_s)},
                   {Up(pane), Clicks(pane, u"cmdStart"_s)},
                   {Menu(u"Submit"_s), Chooses(u"Automated Search Engines"_s)},
                   {Held(), Clicks(pane, u"Command1"_s)},
                   {Up(pane), Clicks(pane, u"cmdCancel"_s)},
                   {Up(pane), Clicks(pane, u"cmdStart"_s)},
                   {Idle(), ClosesWindow()}});
    EXPECT_EQ(Outcome(u"Drumlinfind"_s), u"No verdict: the run was cancelled"_s);
}

/// A way to something that waits, and the close of the window there.
struct Wait {
    const char *name;
    bool inRun; ///< the way begins in a run that doesn't end by itself
    std::vector<Step> way;
    bool leavesReport = inRun;
};

TEST_F(WindowReentryTest, ClosingTheWindowEndsAllThatWaits) {
    const auto alt = [](Qt::Key letter) { return Presses(letter, Qt::AltModifier); };
    const Condition main = Up(u"MainWindow"_s);
    const Action close = ClosesWindow();
    // As if the user were quick: behind the start of the collection, in the first of its yields.
    const auto closeInCollection = [this] {
        QObject::connect(&program->program.frmStatus, &StatusForm::VisibleChanged, program.get(), [] {
            QMetaObject::invokeMethod(&Form(u"MainWindow"_s), &QWidget::close, Qt::QueuedConnection);
        });
        Presses(Qt::Key_B, Qt::AltModifier)();
    };
    const std::vector<Wait> waits{
        {"a run", true, {{Up(pane), close}}},
        {"Pause in a run", true, {{Up(pane), Clicks(pane, u"Command1"_s)}, {Up(pane), close}}},
        {"Pause without a run",
         false,
         {{main, alt(Qt::Key_U)}, {Up(pane), Clicks(pane, u"Command1"_s)}, {Up(pane), close}}},
        {"the collection",
         false,
         {{main, alt(Qt::Key_U)}, {Up(pane), closeInCollection}, {Menu(u"Submit"_s), Presses(Qt::Key_U)}},
         true},
        {"a channel's popup", true, {{Up(pane), Clicks(pane, u"kan3"_s)}, {Menu(u"Channel 3"_s), close}}},
        {"a dialog over a run",
         true,
         {{Up(pane), alt(Qt::Key_O)},
          {Menu(u"Options"_s), Chooses(u"Settings"_s)},
          {Up(u"SettingsDialog"_s), close}}},
        {"the popup of SUBMIT",
         false,
         {{main, alt(Qt::Key_U)}, {Up(pane), alt(Qt::Key_B)}, {Menu(u"Submit"_s), close}}},
        {"a menu", false, {{main, alt(Qt::Key_F)}, {Menu(u"File"_s), close}}},
        {"a list that is down",
         false,
         {{main, alt(Qt::Key_C)},
          {Up(u"CategoryPane"_s), Clicks(u"CategoryPane"_s, u"Combo2"_s)},
          {{"list", [] { return QApplication::activePopupWidget() != nullptr; }}, close}}},
        {"a file dialog",
         false,
         {{main, Presses(Qt::Key_O, Qt::ControlModifier)}, {Up(u"QFileDialog"_s), close}}},
        {"a box",
         false,
         {{main, alt(Qt::Key_D)},
          {Up(u"DescriptionPane"_s), Clicks(u"DescriptionPane"_s, u"txtKey6"_s)},
          {At(u"txtKey6"_s), Presses(Qt::Key_Delete)},
          {At(u"txtKey6"_s), alt(Qt::Key_U)},
          {Up(pane), alt(Qt::Key_B)},
          {Menu(u"Submit"_s), Presses(Qt::Key_U)},
          {Box(u"You must fill all text fields"_s), close}}},
    };
    GivenProject();
    for (const Wait &wait : waits) {
        SCOPED_TRACE(wait.name);
        QFile::remove(Path(u"Projects/Shop/report.htm"_s));
        QFile::remove(Path(u"Projects/Shop.rts.bak"_s));
        PlayOnProject(wait.inRun ? IntoRun(wait.way) : wait.way);
        EXPECT_EQ(QFile::exists(Path(u"Projects/Shop/report.htm"_s)), wait.leavesReport);
        EXPECT_TRUE(QFile::exists(Path(u"Projects/Shop.rts.bak"_s))) << "not stored";
        if (wait.leavesReport) {
            EXPECT_EQ(Outcome(u"Drumlinfind"_s), u"No verdict: the program was closed"_s);
        }
    }
}

TEST_F(WindowReentryTest, AnEndFromOutsideIsTakenWhileTheStartStillAsks) {
    GivenMaster({u"Quillfind"_s});
    const std::vector<Step> start{{Up(u"WelcomeDialog"_s), Presses(Qt::Key_Return)},
                                  {Up(u"ProjectStartDialog"_s), Presses(Qt::Key_Return)},
                                  {Asked(u"Create a new project"_s), Presses(Qt::Key_Return)}};
    for (std::ptrdiff_t asked : {2, 1, 0}) {
        std::vector<Step> steps(start.begin(), start.begin() + asked + 1);
        steps.back().act = [this] { program->End(); };
        QFile::remove(Path(u"config/Lanterra.ini"_s));
        Play(steps);
        EXPECT_FALSE(QFile::exists(Path(u"Projects/Project1.rts"_s)));
    }
}

} // namespace
} // namespace lanterra
