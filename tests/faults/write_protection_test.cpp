#include "database/maintenance.h"
#include "project/site_schema.h"
#include "tests/faults/faults_fixture.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// Makes this process one that permissions bind: root is asked for none.
class OrdinaryUser {
public:
    OrdinaryUser() : old(geteuid()) {
        if (old == 0 && setresuid(nobody, nobody, old) != 0)
            throw std::runtime_error("the user can't be changed");
    }
    ~OrdinaryUser() {
        if (old == 0 && setresuid(old, old, old) != 0)
            std::abort();
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    static constexpr uid_t nobody = 65534;
    uid_t old;
};

class WriteProtectionTest : public FaultsFixture {
protected:
    WriteProtectionTest() { GivenEditedProject(folder.path()); }
    ~WriteProtectionTest() override { Protect(0755, 0644); }

    void Protect(mode_t folders, mode_t files) const {
        const auto set = [](const QString &path, mode_t mode) {
            chmod(path.toLocal8Bit().constData(), mode);
        };
        for (const QString &name : {u"."_s, u"Projects"_s, u"config"_s})
            set(folder.filePath(name), folders);
        for (const QString &name :
             {u"ng.dll"_s, u"Projects/Site.rts"_s, u"Projects/Other.rts"_s, u"config/Lanterra.ini"_s})
            set(folder.filePath(name), files);
    }
};

TEST_F(WriteProtectionTest, WhatCanOnlyBeReadOrHasNoRoomForAJournalIsOpenedAndNeverChanged) {
    for (const mode_t filesMode : {0444U, 0666U}) {
        Protect(0555, filesMode);
        const OrdinaryUser user;
        for (const Operation &operation : Operations()) {
            if (operation.mainFile.isEmpty())
                continue;
            SCOPED_TRACE(operation.name.toStdString());
            faulted = std::make_unique<FaultedProgram>(folder.path()); // starts under the protection
            operation.prepare(*faulted);
            EXPECT_EQ(faulted->Told(), QString()) << "what may be read can be opened";
            const QString before = StateOf(faulted->Path(operation.mainFile));
            EXPECT_NE(Do(operation.name), QString());
            EXPECT_EQ(StateOf(faulted->Path(operation.mainFile)), before);
        }
    }
}

TEST_F(WriteProtectionTest, AWriteProtectedProjectTellsWhy) {
    Protect(0777, 0444);
    const OrdinaryUser user;
    faulted = std::make_unique<FaultedProgram>(folder.path());
    faulted->OpenAndEdit();
    EXPECT_EQ(Do(u"save"_s), u"The project could not be saved: The file or its folder is write-protected."_s);
    const QByteArray before = BytesOf(Site());
    faulted->program.project.database.Unbind();
    EXPECT_NE(CompactThroughBackup(Site(), Site() + u".bak"_s, SiteSchema()), QString());
    EXPECT_TRUE(BytesOf(Site()) == before);
}

} // namespace
