#include "tests/window/window_fixture.h"

using namespace Qt::StringLiterals;

namespace lanterra {
namespace {

using MultiDialogTest = WindowFixture;

TEST_F(MultiDialogTest, ItsKeyTakesTheLineThatIsStillBeingTyped) {
    GivenMaster({u"Quillfind"_s});
    const auto showForm = [this] {
        program->program.project.record.txtURL.SetText(u"http://a.example/"_s);
        program->program.run.SSCommand7_Click();
    };
    Play({{Up(u"WelcomeDialog"_s), Presses(Qt::Key_Return)},
          {Up(u"ProjectStartDialog"_s), Presses(Qt::Key_Return)},
          {Asked(u"Create a new project"_s), Types(u"Shop\n"_s)},
          {Up(u"MainWindow"_s), showForm},
          {Up(u"MultiDialog"_s), Types(u"\n"_s)}, // behind the line that is there already
          {Up(u"MultiDialog"_s), Types(u"http://b.example/"_s)},
          {Up(u"MultiDialog"_s), Presses(Qt::Key_O, Qt::AltModifier)},
          {Up(u"MainWindow"_s), ClosesWindow()}});
    EXPECT_EQ(program->program.project.record.multiUrlTable.Cell(1, MultiUrlTable::urlColumn),
              u"http://b.example/"_s);
}

} // namespace
} // namespace lanterra
