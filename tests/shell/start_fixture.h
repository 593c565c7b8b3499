#pragma once

#include "tests/fakes/program_fixture.h"

namespace lanterra {

using namespace Qt::StringLiterals;

/// A program that starts and stops under a trace. Its welcome and its choice of a project are continued.
class StartFixture : public ProgramFixture {
protected:
    StartFixture() {
        EXPECT_TRUE(SiteDatabaseBuilder().Site(u"Alta"_s).Write(home.filePath(u"ng.dll"_s)));
        settings.onAccess = [this](const QString &access) {
            if (!access.startsWith(u"File"_s))
                trace.append(QString(access).remove(home.filePath(u"Projects/"_s)));
        };
        forms.onForm[ModalForm::Welcome] = [this] {
            trace.append(u"frmWelcome"_s);
            program->frmWelcome.Command1_Click();
        };
        forms.onForm[ModalForm::ProjectDialog] = [this] {
            trace.append(u"frmProjectDialog"_s);
            program->frmProjectDialog.Load();
            program->frmProjectDialog.cmdOK_Click();
        };
        MakeProgram();
    }

    void MakeProgram() {
        forms.onMenu[PopupMenu::Submit] = [this] { program->run.mnuAuto_Click(); };
        program = std::make_unique<Program>(All(), home.path());
        Follow(program->frame, &MainFrame::PointerChanged, "pointer");
        Follow(program->frame, &MainFrame::PaneShown, "pane");
        Follow(program->frame, &MainFrame::VisibleChanged, "visible");
        Follow(program->frmSplash, &Control::VisibleChanged, "splash");
        Follow(program->frmStatus, &StatusForm::VisibleChanged, "frmStatus");
        Follow(program->project.lists.List1, &ListBox::ListIndexChanged, "List1:");
        QObject::connect(&program->frame, &MainFrame::CloseRequested, [this] { queue.Close(); });
    }

    /// A start that makes a project of this name, ready for a run, and nothing of it in the trace.
    void GivenStartedProgram(const QString &name = u"Shop"_s) {
        settings.values.clear();
        dialogs.lines = {name};
        EXPECT_TRUE(program->startUp.Run(QString()));
        FillIn(Record());
        List1().SetSelected(0, true);
        trace.clear();
    }
    /// What was done since the last call.
    QString Traced() { return std::exchange(trace, {}).join(u' '); }

    QStringList trace;

private:
    void Follow(auto &sender, auto signal, const char *name) {
        QObject::connect(&sender, signal, [this, name](auto value) {
            trace.append(QString::fromLatin1(name) + QString::number(static_cast<int>(value)));
        });
    }
};

} // namespace lanterra
