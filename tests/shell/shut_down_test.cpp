#include "tests/shell/start_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using ShutDownTest = StartFixture;

TEST_F(ShutDownTest, RunsItsStepsInOrderAndOnce) {
    GivenStartedProgram();
    program->shutDown.Run();
    EXPECT_EQ(Traced(), u"SnimiNaIzlazu? frmStatus1 frmStatus0 ms=0 chh1=5 chh2=6 chh4=6 chh5=6 chh3=5 "
                        "Base=Shop.rts visible0"_s);
    program->shutDown.Run();
    EXPECT_EQ(Traced(), QString());
}

TEST_F(ShutDownTest, TellsWhyTheProjectCouldNotBeSavedAndOffersAnotherName) {
    GivenStartedProgram();
    program->project.path.Base = InProjects(u"Gone.rts"_s);
    program->project.record.txtTitle.SetText(u"Not lost"_s);
    dialogs.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    dialogs.files = {std::nullopt, InProjects(u"Other.rts"_s)};
    program->shutDown.Run();
    EXPECT_EQ(dialogs.boxes[0].text, u"The project could not be saved. Save it under another name ?"_s);
    EXPECT_FALSE(dialogs.boxes[0].detail.isEmpty());
    program->files.OpenProject(InProjects(u"Other.rts"_s));
    EXPECT_EQ(program->project.record.txtTitle.Text(), u"Not lost"_s);
}

TEST_F(ShutDownTest, FollowsACloseInTheMiddleOfAnyWait) {
    const auto close = [this] { program->frame.RequestClose(); };
    const auto pause = [&] {
        queue.WhenIdle(close);
        program->run.Command1_Click();
    };
    forms.onForm[ModalForm::Settings] = close;
    const std::map<QString, std::function<void()>> waits{
        {u"Run"_s, [&] { queue.WhenIdle(close); }},
        {u"Pause"_s, [&] { queue.WhenIdle(pause); }},
        {u"Form"_s, [&] { queue.WhenIdle([&] { program->frmMain.mnuSettings_Click(); }); }},
        {u"Collection"_s, [&] { queue.AtYield(3, close); }}}; // behind two saves of the one mark
    for (const auto &[name, prepare] : waits) {
        queue.Close(false);
        MakeProgram();
        GivenStartedProgram(name);
        prepare();
        program->project.record.txtTitle.SetText(u"Typed last"_s);
        program->run.cmdStart_Click();
        EXPECT_TRUE(queue.Closing() && !program->run.RunActive()) << name.toStdString();
        program->shutDown.Run();
        for (const QString &left : {u"/report.htm"_s, u".rts.bak"_s})
            EXPECT_TRUE(QFile::exists(InProjects(name + left))) << name.toStdString();
        program->files.OpenProject(InProjects(name + u".rts"_s));
        EXPECT_EQ(program->project.record.txtTitle.Text(), u"Typed last"_s) << name.toStdString();
        EXPECT_TRUE(dialogs.boxes.empty()) << name.toStdString();
    }
}

} // namespace
