#include "tests/faults/faults_fixture.h"
#include "tests/file_size_limit.h"

#include <optional>
#include <sys/mount.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// A disk of one megabyte in memory. Where nothing may be mounted, no file may grow instead once it is full.
class SmallDisk {
public:
    explicit SmallDisk(const QString &folder)
        : path(folder.toLocal8Bit()), mounted(mount("tmpfs", path.constData(), "tmpfs", 0, "size=1m") == 0) {}
    ~SmallDisk() {
        if (mounted)
            umount2(path.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    void Fill() {
        if (!mounted) {
            limit.emplace(0);
            return;
        }
        QFile filler(QString::fromLocal8Bit(path + "/filler"));
        filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        while (filler.write(QByteArray(512, 'x')) > 0) {
        }
    }
    void MakeRoom() {
        limit.reset();
        QFile::remove(QString::fromLocal8Bit(path + "/filler"));
    }

private:
    QByteArray path;
    bool mounted;
    std::optional<FileSizeLimit> limit;
};

class FullDiskTest : public FaultsFixture {
protected:
    SmallDisk disk{folder.path()};
};

TEST_F(FullDiskTest, EveryOperationTellsItLosesNothingAndWorksOnceThereIsRoom) {
    for (const Operation &operation : Operations()) {
        if (operation.mainFile.isEmpty())
            continue;
        GivenEditedProject(folder.path());
        const QString file = faulted->Path(operation.mainFile);
        const QString before = StateOf(file);
        disk.Fill();
        EXPECT_NE(Do(operation.name), QString()) << operation.name.toStdString();
        EXPECT_EQ(StateOf(file), before) << operation.name.toStdString();
        disk.MakeRoom();
        EXPECT_EQ(Do(operation.name), QString()) << operation.name.toStdString();
        EXPECT_NE(StateOf(file), before) << operation.name.toStdString();
        faulted.reset();
    }
}

TEST_F(FullDiskTest, ARunNamesWhatItCouldNotWrite) {
    GivenEditedProject(folder.path());
    RunResult &result = faulted->program.result;
    result.reportFolder = faulted->Path(u"report/"_s);
    result.reportFile = faulted->Path(u"report.htm"_s);
    ASSERT_TRUE(faulted->program.report.WriteSubmissionReport());
    const QByteArray report = BytesOf(result.reportFile);
    disk.Fill();
    EXPECT_FALSE(faulted->program.report.WriteSubmissionReport());
    EXPECT_EQ(BytesOf(result.reportFile), report);
    EXPECT_FALSE(SaveSiteSelection(faulted->program.project, faulted->program.frmStatus, faulted->queue));
    EXPECT_EQ(faulted->program.project.database.Data2.Failure(), u"The disk is full."_s);
}

} // namespace
