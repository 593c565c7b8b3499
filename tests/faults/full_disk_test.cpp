#include "tests/faults/faults_fixture.h"
#include "tests/file_size_limit.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using FullDiskTest = FaultsFixture;

TEST_F(FullDiskTest, EveryOperationTellsItLosesNothingAndWorksOnceThereIsRoom) {
    for (const Operation &operation : Operations()) {
        if (operation.mainFile.isEmpty())
            continue;
        SCOPED_TRACE(operation.name.toStdString());
        const QTemporaryDir own;
        GivenEditedProject(own.path());
        const QString file = faulted->Path(operation.mainFile);
        const QString before = StateOf(file);
        {
            const FileSizeLimit full(0);
            EXPECT_NE(Do(operation.name), QString());
            EXPECT_EQ(StateOf(file), before);
        }
        EXPECT_EQ(Do(operation.name), QString());
        EXPECT_NE(StateOf(file), before);
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
    const FileSizeLimit full(0);
    EXPECT_FALSE(faulted->program.report.WriteSubmissionReport());
    EXPECT_EQ(BytesOf(result.reportFile), report);
    EXPECT_FALSE(SaveSiteSelection(faulted->program.project, faulted->program.frmStatus, faulted->queue));
    EXPECT_NE(faulted->program.project.database.Data2.Failure(), QString());
}

} // namespace
