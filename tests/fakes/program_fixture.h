#pragma once

#include "support/whole_file.h"
#include "tests/fakes/fake_doors.h"
#include "tests/fakes/site_database_builder.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>

namespace lanterra {

/// A whole program on fakes, in a folder of its own.
class ProgramFixture : public testing::Test, protected FakeDoors {
protected:
    /// A master of these sites, and a project made from it, loaded, filled in and with all sites selected.
    void GivenSites(const QStringList &names) {
        SiteDatabaseBuilder master;
        for (const QString &name : names)
            master.Site(name);
        GivenMaster(master);
        GivenOpenProject();
    }

    void GivenMaster(const SiteDatabaseBuilder &master) {
        ASSERT_TRUE(master.Write(home.filePath(QStringLiteral("ng.dll"))));
        if (!program)
            StartProgram();
    }

    /// The program again, as after a new start, on the same folder and the same settings.
    void StartProgram() {
        program.reset();
        program = std::make_unique<Program>(All(), home.path());
        program->frmSettings.Load();
        forms.onMenu[PopupMenu::Submit] = [this] { program->run.mnuAuto_Click(); };
    }

    void GivenOpenProject(const QString &name = QStringLiteral("Project1")) {
        ASSERT_TRUE(program->startProject.CreateProject(name));
        program->files.LoadProject();
        FillIn(program->project.record);
        program->project.lists.List1.SetAllSelected(true);
    }

    static void FillIn(ProjectRecord &record) {
        for (const ProjectRecord::TextField &field : record.TextFields()) {
            if (field.box->Text().isEmpty())
                field.box->SetText(QStringLiteral("x"));
        }
        record.txtURL.SetText(QStringLiteral("http://www.page.example/"));
        record.txtLimit.SetText(QStringLiteral("45"));
        record.Combo2.SetText(QStringLiteral("Business"));
    }

    /// The client of a channel, 1 to 5. The one of the hit counter is 6.
    FakeHttpClient &Client(int number) { return *clients.at(static_cast<std::size_t>(number - 1)); }

    /// For the program that is started next.
    void GivenHosts(const QByteArray &lines) const {
        ASSERT_TRUE(WriteWholeFile(home.filePath(QStringLiteral("hosts.ini")), lines));
    }

    /// The client to which this applies.
    template <class Condition>
    FakeHttpClient &ClientThat(Condition applies) {
        return **std::find_if(clients.begin(), clients.end(), applies);
    }

    QString InProjects(const QString &file) const {
        return home.filePath(QStringLiteral("Projects/") + file);
    }
    ProjectRecord &Record() { return program->project.record; }
    ListBox &List1() { return program->project.lists.List1; }

    QString ReadPage(const QString &site) const {
        QFile file(program->result.reportFolder + site + QStringLiteral(".htm"));
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    }

    QTemporaryDir home;
    std::unique_ptr<Program> program;
};

} // namespace lanterra
