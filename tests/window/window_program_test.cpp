#include "tests/window/window_fixture.h"

#include "support/whole_file.h"

#include <QDir>
#include <QFileInfo>
#include <QListView>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace lanterra {
namespace {

class WindowProgramTest : public WindowFixture {
protected:
    /// A new project, and then this.
    std::vector<Step> Started(const Action &next) const {
        return {{Up(u"WelcomeDialog"_s), Presses(Qt::Key_Return)},
                {Up(u"ProjectStartDialog"_s), Presses(Qt::Key_Return)},
                {Asked(u"Create a new project"_s), Types(u"Shop\n"_s)},
                {Up(u"MainWindow"_s), next}};
    }
};

TEST_F(WindowProgramTest, AnEndInTheMiddleOfASaveDoesNotCutItShort) {
    GivenMaster({u"Quillfind"_s, u"Harbor"_s, u"Foxgloam"_s});
    const auto endInSave = [this] {
        Program &parts = program->program;
        parts.options.Set(option::saveOnExit, 0);
        parts.project.lists.List1.SetAllSelected(true);
        QObject::connect(
            &parts.frmStatus, &StatusForm::ValueChanged, program.get(),
            [this] {
                Form(u"StatusDialog"_s).show();
                program->End();
            },
            Qt::SingleShotConnection);
        parts.files.mnuFileSave_Click();
    };
    Play(Started(endInSave));
    program->program.files.OpenProject(Path(u"Projects/Shop.rts"_s));
    EXPECT_EQ(program->program.project.lists.List1.SelCount(), 3);
}

TEST_F(WindowProgramTest, WhoEndsItTwiceIsAskedAllTheSame) {
    GivenMaster({u"Quillfind"_s});
    std::vector<Step> steps = Started([this] {
        Program &parts = program->program;
        QFile::remove(parts.project.path.Base);
        QObject::connect(&parts.frame.Notice, &Label::CaptionChanged, program.get(), &WindowProgram::End);
        program->End();
    });
    steps.push_back({Box(u"The project could not be saved."_s), Presses(Qt::Key_Return)});
    Play(steps);
}

TEST_F(WindowProgramTest, TheHelpIsShownOrABoxTellsWhyNot) {
    GivenMaster({u"Quillfind"_s});
    std::vector<Step> steps = Started(Presses(Qt::Key_F1));
    const auto findHelp = [this] {
        const QString pages = QFileInfo(QStringLiteral(SITES)).dir().filePath(u"../docs/help/index.md"_s);
        EXPECT_TRUE(WriteWholeFile(Path(u"lanterra.hlp"_s), pages.toUtf8()));
        Presses(Qt::Key_F1)();
    };
    const auto turnPages = [this] {
        auto &index = Find<QListView>(u"HelpWindow"_s, u"index"_s);
        EXPECT_GT(index.model()->rowCount(), 3);
        index.setCurrentIndex(index.model()->index(1, 0));
        auto &page = Find<QTextBrowser>(u"HelpWindow"_s, u"page"_s);
        EXPECT_FALSE(page.toPlainText().isEmpty());
        page.backward();
        EXPECT_FALSE(index.currentIndex().isValid()) << "the index page stands in no list of pages";
        program->program.frmMain.helpFile.clear();
        Presses(Qt::Key_Escape)();
        program->program.frmMain.mnuHelpContents_Click();
    };
    steps.push_back({Box(u"can't be read"_s), Presses(Qt::Key_Return)});
    steps.push_back({Up(u"MainWindow"_s), findHelp});
    steps.push_back({Up(u"HelpWindow"_s), turnPages});
    steps.push_back({Box(u"There is no Help associated with this project."_s), Presses(Qt::Key_Return)});
    steps.push_back({Up(u"MainWindow"_s), ClosesWindow()});
    Play(steps);
}

} // namespace
} // namespace lanterra
