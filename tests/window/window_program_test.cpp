#include "tests/window/window_fixture.h"

#include <QFile>

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

} // namespace
} // namespace lanterra
