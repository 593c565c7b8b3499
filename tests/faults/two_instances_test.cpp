#include "database/maintenance.h"
#include "project/site_schema.h"
#include "tests/faults/faults_fixture.h"

#include <QElapsedTimer>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class TwoInstancesTest : public FaultsFixture {
protected:
    TwoInstancesTest() {
        GivenEditedProject(folder.path());
        second = std::make_unique<FaultedProgram>(folder.path());
        second->OpenAndEdit();
    }

    std::unique_ptr<FaultedProgram> second;
};

TEST_F(TwoInstancesTest, AFileInUseFailsSoonWithTheReasonAndBothStayUsable) {
    const QStringList operations{u"category"_s, u"stats-row"_s, u"save"_s};
    for (const QString &lock : {u"BEGIN IMMEDIATE"_s, u"BEGIN EXCLUSIVE"_s}) {
        SqliteConnection other(Site(), SqliteConnection::Mode::ReadWrite);
        ASSERT_TRUE(other.Run(lock));
        for (const QString &operation : operations) {
            QElapsedTimer timer;
            timer.start();
            EXPECT_TRUE(Do(operation).endsWith(u"The file is in use by another program."_s));
            EXPECT_LT(timer.elapsed(), 200) << operation.toStdString();
        }
        ASSERT_TRUE(other.Run(u"ROLLBACK"_s));
        for (const QString &operation : operations)
            EXPECT_EQ(Do(operation), QString()) << operation.toStdString();
    }
    EXPECT_EQ(Do(u"save"_s, *second), QString());
}

TEST_F(TwoInstancesTest, AProjectInUseIsNotOpenedAndTheReasonIsShown) {
    SqliteConnection other(Site(), SqliteConnection::Mode::ReadWrite);
    ASSERT_TRUE(other.Run(u"BEGIN EXCLUSIVE"_s));
    QElapsedTimer timer;
    timer.start();
    second->program.files.OpenProject(Site());
    EXPECT_LT(timer.elapsed(), 200);
    EXPECT_EQ(second->Told(), u"Error! Invalid project file. The file is in use by another program."_s);
    EXPECT_EQ(second->program.project.lists.List1.ListCount(), 0);
    EXPECT_EQ(second->program.project.record.txtTitle.Text(), u"Edited"_s) << "the fields stay";
}

TEST_F(TwoInstancesTest, WhatOneStoresAfterTheOtherHasEndedReachesTheFile) {
    Do(u"close"_s, *second);
    second.reset();
    EXPECT_EQ(Do(u"category"_s), QString());
    EXPECT_TRUE(StateOf(Site()).contains(u"Business|\n"_s));
    EXPECT_EQ(Do(u"stats-row"_s), QString());
    EXPECT_TRUE(StateOf(Site()).contains(u"Alta\r\n"_s));
}

TEST_F(TwoInstancesTest, CompactionGivesWayToAnotherOnesWrite) {
    SqliteConnection other(Site(), SqliteConnection::Mode::ReadWrite);
    ASSERT_TRUE(other.Run(u"BEGIN IMMEDIATE"_s));
    second->program.project.database.Unbind();
    EXPECT_EQ(CompactThroughBackup(Site(), Site() + u".bak"_s, SiteSchema()),
              u"The file is in use by another program."_s);
    ASSERT_TRUE(other.Run(u"UPDATE Project SET txtTitle = 'Other'"_s) && other.Run(u"COMMIT"_s));
    EXPECT_TRUE(StateOf(Site()).contains(u"|Other|"_s));
}

} // namespace
