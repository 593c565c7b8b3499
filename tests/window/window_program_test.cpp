#include "tests/window/window_fixture.h"

using namespace Qt::StringLiterals;

namespace lanterra {
namespace {

class WindowProgramTest : public WindowFixture {};

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
    Play({{Up(u"WelcomeDialog"_s), Presses(Qt::Key_Return)},
          {Up(u"ProjectStartDialog"_s), Presses(Qt::Key_Return)},
          {Asked(u"Create a new project"_s), Types(u"Shop\n"_s)},
          {Up(u"MainWindow"_s), endInSave}});
    program->program.files.OpenProject(Path(u"Projects/Shop.rts"_s));
    EXPECT_EQ(program->program.project.lists.List1.SelCount(), 3);
}

} // namespace
} // namespace lanterra
