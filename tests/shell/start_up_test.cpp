#include "tests/shell/start_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class StartUpTest : public StartFixture {
protected:
    QString Start(const QString &commandLine = {}) {
        MakeProgram();
        EXPECT_TRUE(program->startUp.Run(commandLine));
        return Traced();
    }
    QString Base() const { return QFileInfo(program->project.path.Base).fileName(); }
};

TEST_F(StartUpTest, FollowsItsOrderAtEveryKindOfStart) {
    const QString laterOptions =
        u"pointer11 splash1 ms? ch? GB? GB=10 pointer0 splash0 pane0 UseProxy? NB? LoadLastProject? "
        "SnimiNaIzlazu? CreateStatistic? check_for_program_upgrade? Browser? LoadLastProject? "_s;
    dialogs.lines = {u"Shop"_s, u"New"_s};
    EXPECT_EQ(Start(), u"pointer11 splash1 ms? ch? frmWelcome ch=1 GB? -Startup GB=10 pointer0 splash0 pane0 "
                       "UseProxy? NB? NB=10 LoadLastProject=1 SnimiNaIzlazu=1 CreateStatistic=1 "
                       "check_for_program_upgrade=1 Browser? LoadLastProject? Base? pointer99 "
                       "frmProjectDialog List1:-1 List1:-1 pane1 pointer0 visible1 chh1? List1:0"_s);
    program->shutDown.Run();
    trace.clear();

    EXPECT_EQ(Start(), laterOptions + u"Base? pointer99 List1:-1 pane1 pointer0 visible1 chh1? chh1? chh2? "
                                      "chh3? chh4? chh5? PSN? List1:0"_s);
    EXPECT_EQ(Base(), u"Shop.rts"_s);

    QFile::rename(InProjects(u"Shop.rts"_s), InProjects(u"Moved.rts"_s));
    settings.values[{u"Settings"_s, u"chh1"_s}] = u"7"_s; // what follows from the window is not read then
    EXPECT_EQ(Start(), laterOptions + u"Base? pointer99 frmProjectDialog List1:-1 List1:-1 pane1 pointer0 "
                                      "visible1 chh1? List1:0"_s);

    settings.values[{u"Settings"_s, u"LoadLastProject"_s}] = u"2"_s;
    EXPECT_EQ(Start(InProjects(u"Moved.rts"_s)),
              laterOptions + u"LoadLastProject=0 pointer99 List1:-1 pane1 pointer0 List1:-1 pane1 visible1 "
                             "chh1? List1:0"_s);
    EXPECT_EQ(Base(), u"Moved.rts"_s);

    ASSERT_TRUE(SiteDatabaseBuilder().Version(2).Site(u"Newer"_s).Write(home.filePath(u"ng.dll"_s)));
    MakeProgram();
    EXPECT_FALSE(
        program->startUp.Run(InProjects(u"Moved.rts"_s))); // an import ends it and has stored everything
    trace.clear();
    program->shutDown.Run();
    EXPECT_EQ(Traced(), QString());
}

TEST_F(StartUpTest, ACloseEndsItBehindTheFormThatWasUpAndNothingIsStored) {
    forms.onForm[ModalForm::ProjectDialog] = [this] { program->frame.RequestClose(); };
    EXPECT_FALSE(program->startUp.Run(QString()));
    EXPECT_TRUE(Traced().endsWith(u"Base? pointer99 pointer0"_s));
    program->shutDown.Run();
    EXPECT_EQ(Traced(), QString());
    settings.values.clear();
    EXPECT_FALSE(program->startUp.Run(QString()));
    EXPECT_EQ(Traced(), u"pointer11 splash1 ms? ch? frmWelcome ch=1 splash0 pointer0"_s);
}

} // namespace
