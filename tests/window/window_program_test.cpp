#include "tests/window/window_fixture.h"

#include "support/whole_file.h"
#include "window/widget_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QListView>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lanterra {
namespace {

using WindowProgramTest = WindowFixture;

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
    Play(makesAProject + std::vector<Step>{{Up("MainWindow"), endInSave}});
    program->program.files.OpenProject(Path(u"Projects/Shop.rts"_s));
    EXPECT_EQ(program->program.project.lists.List1.SelCount(), 3);
}

TEST_F(WindowProgramTest, WhoEndsItTwiceIsAskedAllTheSame) {
    GivenMaster({u"Quillfind"_s});
    const auto endTwice = [this] {
        Program &parts = program->program;
        QFile::remove(parts.project.path.Base);
        QObject::connect(&parts.frame.Notice, &Label::CaptionChanged, program.get(), &WindowProgram::End);
        program->End();
    };
    Play(makesAProject +
         std::vector<Step>{{Up("MainWindow"), endTwice},
                           {Box("The project could not be saved."), Presses(Qt::Key_Return)}});
}

TEST_F(WindowProgramTest, TheHelpIsShownOrABoxTellsWhyNot) {
    GivenMaster({u"Quillfind"_s});
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
    Play(makesAProject +
         std::vector<Step>{{Up("MainWindow"), Presses(Qt::Key_F1)},
                           {Box("can't be read"), Presses(Qt::Key_Return)},
                           {Up("MainWindow"), findHelp},
                           {Up("HelpWindow"), turnPages},
                           {Box("There is no Help associated with this project."), Presses(Qt::Key_Return)},
                           {Up("MainWindow"), ClosesWindow()}});
}

TEST_F(WindowProgramTest, TheListOfUrlsTakesTheLineThatIsStillBeingTyped) {
    GivenMaster({u"Quillfind"_s});
    const auto showForm = [this] {
        program->program.project.record.txtURL.SetText(u"http://a.example/"_s);
        program->program.run.SSCommand7_Click();
    };
    Play(makesAProject +
         std::vector<Step>{{Up("MainWindow"), showForm},
                           {Up("MultiDialog"), Types("\n")}, // behind the line that is there already
                           {Up("MultiDialog"), Types("http://b.example/")},
                           {Up("MultiDialog"), Presses(Qt::Key_O, Qt::AltModifier)},
                           {Up("MainWindow"), ClosesWindow()}});
    EXPECT_EQ(program->program.project.record.multiUrlTable.Cell(1, MultiUrlTable::urlColumn),
              u"http://b.example/"_s);
}

TEST_F(WindowProgramTest, AFileDialogTakesAProgramWithoutAnExtension) {
    ASSERT_TRUE(QFile(Path("browser")).open(QIODevice::WriteOnly));
    for (const auto &[typed, chosen] : {std::pair{u"browser"_s, u"browser"_s}, {u"new"_s, u"new.exe"_s}}) {
        QTimer::singleShot(0, [&typed] {
            QWidget *const box = QApplication::activeModalWidget()->focusWidget();
            QTest::keyClicks(box, typed);
            QTest::keyClick(box, Qt::Key_Return);
        });
        const auto path =
            WidgetDialogs().OpenFile({u"(*.exe)|*.exe|All files|*"_s, home.path(), {}, u"exe"_s});
        EXPECT_EQ(path, Path(chosen));
    }
}

} // namespace
} // namespace lanterra
