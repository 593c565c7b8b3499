#include "tests/fakes/program_fixture.h"
#include "tests/hostile/hostile_texts.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class StoredTextTest : public ProgramFixture {
protected:
    /// A new start of the program on the file that was saved.
    void OpenAgain() {
        const QString file = program->project.path.Base;
        program->project.database.Unbind();
        StartProgram();
        program->files.OpenProject(file);
    }
    SiteLists &Lists() { return program->project.lists; }
};

TEST_F(StoredTextTest, ComesBackUnchangedInEveryField) {
    GivenSites({u"Alta"_s});
    for (const QString &text : HostileTexts()) {
        for (const ProjectRecord::TextField &field : program->project.record.TextFields())
            field.box->SetText(text);
        program->files.mnuFileSave_Click();
        OpenAgain();
        for (const ProjectRecord::TextField &field : program->project.record.TextFields())
            EXPECT_EQ(field.box->Text(), text) << field.name.toStdString();
    }
}

TEST_F(StoredTextTest, ComesBackUnchangedInEverySlotOfSeveralUrls) {
    GivenSites({u"Alta"_s});
    ProjectRecord &record = program->project.record;
    record.SetMultiUrlMode(true);
    record.MultiUrlUpper = 1;
    program->files.mnuFileSave_Click(); // the first save in this mode adds slot 0 twice
    for (const QString &text : HostileTexts()) {
        for (int column = 0; column < MultiUrlTable::columnCount; ++column)
            program->project.record.multiUrlTable.SetCell(1, column, text);
        program->files.mnuFileSave_Click();
        OpenAgain();
        for (int column = 0; column < MultiUrlTable::columnCount; ++column)
            EXPECT_EQ(program->project.record.multiUrlTable.Cell(1, column), text) << column;
    }
}

TEST_F(StoredTextTest, ComesBackUnchangedAsSiteDirectoryAndCategory) {
    // Line breaks part the categories of a directory, so a category has none.
    QStringList categories = HostileTexts();
    categories.removeIf([](const QString &text) { return text.contains(u'\n'); });
    SiteDatabaseBuilder master;
    for (const QString &name : HostileTexts())
        master.Site(name, u"directory"_s)
            .Query(u"\"c=\" & CCCAAATTT"_s)
            .Categories(QStringList{u"Other"_s} + categories);
    GivenMaster(master);
    GivenOpenProject();
    EXPECT_EQ(Lists().List1.Items(), HostileTexts());
    EXPECT_EQ(Lists().List2.Items(), HostileTexts());
    for (const QString &name : HostileTexts()) {
        const QString category = categories[HostileTexts().indexOf(name) % categories.size()];
        Lists().List2.SetText(name);
        program->categorySelection.List2_Click();
        EXPECT_EQ(Lists().List3.Items(), categories) << name.toStdString();
        Lists().List3.SetText(category);
        program->categorySelection.List3_Click();
        OpenAgain();
        Lists().List2.SetText(name);
        program->categorySelection.List2_Click();
        EXPECT_EQ(Lists().List3.Text(), category);
    }
}

} // namespace
