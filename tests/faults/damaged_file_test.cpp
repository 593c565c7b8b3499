#include "database/maintenance.h"
#include "project/site_schema.h"
#include "support/whole_file.h"
#include "tests/faults/faults_fixture.h"

#include <QRandomGenerator>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

constexpr int damages = 2000;

class DamagedFileTest : public FaultsFixture {
protected:
    DamagedFileTest() { GivenEditedProject(folder.path()); }

    // One to four bytes, as a bad disk or a bad transfer changes them.
    QByteArray Damaged(QByteArray bytes) {
        const int changes = random.bounded(1, 5);
        for (int change = 0; change < changes; ++change)
            bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
        return bytes;
    }

    QRandomGenerator random{20240305};
};

TEST_F(DamagedFileTest, AProjectCutAtAnyLengthIsRefusedAndLeftAlone) {
    faulted->program.project.database.Unbind();
    const QByteArray sound = BytesOf(Site());
    for (qsizetype length = sound.size() - 1; length >= 0; length -= 511) {
        ASSERT_TRUE(QFile::resize(Site(), length));
        faulted->program.files.OpenProject(Site());
        const QString told = faulted->Told();
        ASSERT_TRUE(told.startsWith(u"Error! Invalid project file. The "_s)) << length << told.toStdString();
        ASSERT_NE(Do(u"save"_s), QString()) << length;
        faulted->program.project.database.Unbind();
        ASSERT_TRUE(BytesOf(Site()) == sound.first(length)) << length;
    }
}

TEST_F(DamagedFileTest, AProjectWithChangedBytesIsRefusedOrConsistent) {
    faulted->program.project.database.Unbind();
    const QByteArray sound = BytesOf(Site());
    int loaded = 0;
    for (int round = 0; round < damages; ++round) {
        const QByteArray bytes = Damaged(sound);
        Overwrite(Site(), bytes);
        faulted->program.files.OpenProject(Site());
        const bool refused = !faulted->Told().isEmpty();
        ASSERT_TRUE(BytesOf(Site()) == bytes) << "opening changed the file in round " << round;
        faulted->program.project.record.txtTitle.SetText(u"Saved %1"_s.arg(round));
        const bool saved = Do(u"save"_s).isEmpty();
        faulted->program.project.database.Unbind();
        const bool compacted = CompactThroughBackup(Site(), Site() + u".bak"_s, SiteSchema()).isEmpty();
        ASSERT_NE(saved, refused) << round;
        ASSERT_TRUE(compacted || refused) << round;
        if (saved)
            ASSERT_TRUE(StateOf(Site()).contains(u"|Saved %1|"_s.arg(round))) << round;
        else
            ASSERT_TRUE(BytesOf(Site()) == bytes) << round;
        loaded += saved ? 1 : 0;
    }
    // Most bytes are those of texts, where a change can't be told from an edit.
    EXPECT_GT(loaded, damages / 2);
    EXPECT_LT(loaded, damages);
}

TEST_F(DamagedFileTest, ADamagedMasterMakesAWholeProjectOrNone) {
    const QString master = faulted->Path(u"ng.dll"_s);
    const QByteArray sound = BytesOf(master);
    for (int round = 0; round < damages / 10; ++round) {
        const QByteArray bytes = Damaged(sound);
        Overwrite(master, bytes);
        QFile::remove(faulted->InProjects(u"Fresh.rts"_s));
        const bool made = Do(u"create"_s).isEmpty();
        const QString state = StateOf(faulted->InProjects(u"Fresh.rts"_s));
        ASSERT_EQ(state == u"no file", !made) << round;
        ASSERT_FALSE(state.startsWith(u"refused")) << state.toStdString();
        ASSERT_TRUE(BytesOf(master) == bytes) << round;
    }
}

TEST_F(DamagedFileTest, ADamagedSettingsFileIsReadAsFarAsItGoesAndCanBeWritten) {
    const QString path = faulted->Path(u"config/Lanterra.ini"_s);
    const QByteArray sound = BytesOf(path);
    for (int round = 0; round < damages + sound.size(); ++round) {
        Overwrite(path, round < damages ? Damaged(sound) : sound.first(round - damages));
        faulted->program.recentFile.Load();
        faulted->program.frmSettings.Load();
        ASSERT_TRUE(faulted->iniFile.Set(u"Settings"_s, u"PSN"_s, u"after"_s));
        ASSERT_EQ(faulted->iniFile.Get(u"Settings"_s, u"PSN"_s), u"after"_s);
    }
}

} // namespace
