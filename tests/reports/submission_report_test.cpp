#include "tests/fakes/program_fixture.h"
#include "tests/file_bytes.h"

#include <QDir>
#include <QLocale>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SubmissionReportTest : public ProgramFixture {
protected:
    SubmissionReportTest() {
        GivenSites({u"Alta"_s, u"Beta <b>"_s});
        program->run.mnuAuto_Click();
        program->result.reportFolder = home.filePath(u"Projects/Project1/report/"_s);
        program->result.reportFile = home.filePath(u"Projects/Project1/report.htm"_s);
        program->result.Begin(2);
    }
    QByteArray Written() {
        EXPECT_TRUE(program->report.WriteSubmissionReport());
        return BytesOf(program->result.reportFile);
    }
    bool PageExists(const QString &name) {
        return QFile::exists(program->result.reportFolder + name + u".htm"_s);
    }
};

TEST_F(SubmissionReportTest, IsTheGoldenPageByteForByte) {
    program->project.record.txtURL.SetText(u"http://caf\u00e9.example/{NAME}"_s);
    program->project.record.txtName.SetText(u"Ann \u0416"_s);
    program->project.record.txtEmail.SetText(u"ann@a.example"_s);
    program->result.AddSuccess(u"Alta \u0416"_s, 0);
    program->result.AddFailure(u"Beta <b>"_s, 1);
    program->result.AddNotSelected(u"Gamma"_s);
    program->result.elapsedSeconds = -86340;
    const int yieldsBefore = queue.Yields();

    const QLocale locale = QLocale::system();
    const QByteArray expected =
        BytesOf(QStringLiteral(GOLDEN_FOLDER "/submission_report.htm"))
            .replace("@HOME@", home.path().mid(1).toLatin1())
            .replace("@DATE@", locale.toString(clock.Now().date(), QLocale::ShortFormat).toLatin1())
            .replace("@TIME@", locale.toString(clock.Now().time(), QLocale::ShortFormat).toLatin1());
    EXPECT_EQ(Written(), expected);
    EXPECT_EQ(queue.Yields() - yieldsBefore, 4) << "one behind each row";
}

TEST_F(SubmissionReportTest, ListsTheEntryBehindTheNamesAndOverwritesItsPage) {
    program->result.AddNotSelected(u"Alta"_s);
    program->result.AddNotSelected(u"Stale"_s);
    Written();
    program->result.BeginNotSelected();
    program->result.AddNotSelected(u"Alta"_s);
    QDir().remove(program->result.reportFolder + u"Stale.htm"_s);
    // "Stale" stands behind the one name of this run: it has a row and its page is written over.
    EXPECT_EQ(Written().count(".htm\">Stale</A>"), 1);
    EXPECT_TRUE(PageExists(u"Stale"_s));
}

} // namespace
