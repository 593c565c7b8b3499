#include "database/sqlite_connection.h"
#include "tests/cli/cli_fixture.h"

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class ProjectCommandsTest : public CliFixture {
protected:
    ProjectCommandsTest() { GivenMaster(SiteDatabaseBuilder().Site(u"Alta"_s).Site(u"Beta"_s)); }

    QString Field(const QString &name) const {
        return Run({u"show"_s, u"p.rts"_s, u"--json"_s}).Json()[name].toString();
    }
    QString Urls() const { return Run({u"urls"_s, u"p.rts"_s}).Text(); }
    QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }
};

TEST_F(ProjectCommandsTest, NewHasTheValuesOfANewProject) {
    const CommandResult made = Run({u"new"_s, u"p.rts"_s});
    EXPECT_EQ(made.exitCode, 0);
    EXPECT_EQ(made.Text(), Path(u"p.rts"_s) + u'\n');
    EXPECT_EQ(made.errors, u""_s);
    const QString fields = Run({u"show"_s, u"p.rts"_s}).Text();
    EXPECT_TRUE(fields.startsWith(u"txtURL=http://\ntxtEmail=\n"_s));
    EXPECT_TRUE(fields.contains(u"\ntxtLimit=45\ntxtDesc=\nCombo2=Business\n"_s));
    EXPECT_TRUE(fields.endsWith(u"\nchkMultiSameDesc=0\nCheck1=0\nCheck3=0\n"_s));
    EXPECT_EQ(Files(), (QStringList{u"p.rts"_s, u"sites.json"_s})) << "a side file was left";
}

TEST_F(ProjectCommandsTest, SetActsLikeTypingAndLeavingTheBox) {
    GivenProject();
    const CommandResult set = Run({u"set"_s, u"p.rts"_s, u"txtURL=ftp://a.example/"_s,
                                   u"txtTitle=Zoë's = \u65E5"_s, u"Check3=1"_s, u"Combo2=Cats"_s});
    EXPECT_EQ(set.exitCode, 0);
    EXPECT_EQ(set.errors,
              u"lanterra-cli: Sites know no subject 'Cats', so a run makes it Miscellaneous. They know "
              "Miscellaneous, Business, Computers, Education, Entertainment, Government, Personal.\n"_s);
    EXPECT_EQ(Field(u"txtURL"_s), u"http://ftp://a.example/"_s);
    EXPECT_EQ(Field(u"txtTitle"_s), u"Zoë's = \u65E5"_s);
    EXPECT_EQ(Run({u"show"_s, u"p.rts"_s, u"--json"_s}).Json()[u"Check3"_s], QJsonValue(1));
    EXPECT_EQ(Files(), (QStringList{u"p.rts"_s, u"sites.json"_s})) << "a side file was left";
}

TEST_F(ProjectCommandsTest, TooLongATextIsToldAndTheOthersAreStored) {
    GivenProject();
    const QString longText(256, u'k');
    const CommandResult refused = Run({u"set"_s, u"p.rts"_s, u"txtKey1="_s + longText, u"txtCity=Wells"_s});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.errors,
              u"lanterra-cli: txtKey1 holds more than 255 characters and was not stored.\n"_s);
    EXPECT_EQ(Field(u"txtKey1"_s), u"x"_s);
    EXPECT_EQ(Field(u"txtCity"_s), u"Wells"_s);

    const CommandResult cut = Run({u"set"_s, u"p.rts"_s, u"txtDesc="_s + longText});
    EXPECT_EQ(cut.exitCode, 1);
    EXPECT_EQ(cut.errors, u"Error: Descriptions should not exceed 255 characters \n"
                          "lanterra-cli: txtDesc was cut to 255 characters.\n"_s);
    EXPECT_EQ(Field(u"txtDesc"_s).size(), 255);
}

TEST_F(ProjectCommandsTest, WrongFieldsChangeNothing) {
    for (const QString &word : {u"txtFoo=1"_s, u"txtCity"_s, u"Check1=7"_s}) {
        EXPECT_EQ(Run({u"new"_s, u"p.rts"_s, u"txtCity=Wells"_s, word}).exitCode, 2);
        EXPECT_FALSE(QFile::exists(Path(u"p.rts"_s)));
    }
    const QString errors = Run({u"new"_s, u"p.rts"_s, u"txtFoo=1"_s}).errors;
    EXPECT_TRUE(errors.contains(u"'txtFoo'; the fields are txtURL, txtEmail, "_s));
    EXPECT_TRUE(errors.contains(u", txttrazim, chkMultiSameDesc, Check1, Check3."_s));
}

TEST_F(ProjectCommandsTest, NewReplacesAFileOnlyWithYes) {
    GivenProject();
    const CommandResult refused = Run({u"new"_s, u"p.rts"_s});
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.errors, u"lanterra-cli: "_s + Path(u"p.rts"_s) + u" exists; --yes replaces it.\n"_s);
    EXPECT_EQ(Field(u"txtCity"_s), u"x"_s);
    EXPECT_EQ(Run({u"new"_s, u"--yes"_s, u"p.rts"_s}).exitCode, 0);
    EXPECT_EQ(Field(u"txtCity"_s), u""_s);
}

TEST_F(ProjectCommandsTest, AFileThatIsNoProjectIsLeftAlone) {
    WriteFile(u"p.rts"_s,
              "not a database, but long enough to be read as a header of one, or so it seems at first...");
    const QByteArray before = ReadFile(u"p.rts"_s);
    for (const QStringList &rest :
         QList<QStringList>{{u"show"_s}, {u"set"_s, u"txtCity=x"_s}, {u"submit"_s}, {u"stats"_s}}) {
        const CommandResult result = Run(QStringList{rest.first(), u"p.rts"_s} + rest.mid(1));
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.errors, u"lanterra-cli: p.rts can't be opened: The file is no database.\n"_s);
        EXPECT_EQ(ReadFile(u"p.rts"_s), before);
        EXPECT_EQ(Run(QStringList{rest.first(), u"gone.rts"_s} + rest.mid(1)).errors,
                  u"lanterra-cli: There is no project gone.rts.\n"_s);
    }
    EXPECT_FALSE(QFile::exists(Path(u"gone.rts"_s)));
}

TEST_F(ProjectCommandsTest, AFolderWithoutSiteDatabaseIsExplained) {
    const CommandResult result = Run({u"--home"_s, u"elsewhere"_s, u"new"_s, u"p.rts"_s});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              u"lanterra-cli: The site database "_s + Path(u"elsewhere/ng.dll"_s) +
                  u" can't be used: There is no such file. Name its folder with --home DIR, or make "
                  "one with \"lanterra-cli sitedb build\".\n"_s);
}

TEST_F(ProjectCommandsTest, AProjectInUseFailsWithTheReason) {
    GivenProject();
    SqliteConnection other(Path(u"p.rts"_s), SqliteConnection::Mode::ReadWrite);
    ASSERT_TRUE(other.Run(u"BEGIN IMMEDIATE"_s));
    const CommandResult result = Run({u"set"_s, u"p.rts"_s, u"txtCity=Wells"_s});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(
        result.errors.startsWith(u"lanterra-cli: "_s + Path(u"p.rts"_s) + u" could not be saved: "_s));
    EXPECT_GT(result.errors.size(), (Path(u"p.rts"_s) + u"lanterra-cli:  could not be saved: \n"_s).size());
}

TEST_F(ProjectCommandsTest, ControlCharactersNeverReachTheTerminal) {
    GivenProject({u"txtTitle=a\x1B[31mb\nc\u009Bd"_s});
    EXPECT_TRUE(Run({u"show"_s, u"p.rts"_s}).Text().contains(u"\ntxtTitle=a?[31mb?c?d\n"_s));
    EXPECT_EQ(Field(u"txtTitle"_s), u"a\x1B[31mb\nc\u009Bd"_s);
    EXPECT_FALSE(Run({u"show"_s, u"p.rts"_s, u"--json"_s}).Text().contains(u'\u009B'));
}

TEST_F(ProjectCommandsTest, UrlsReadBackAsTheyWereSet) {
    GivenProject({u"txtTitle=Hats"_s});
    EXPECT_EQ(Urls(), u""_s);
    EXPECT_EQ(Run({u"urls"_s, u"p.rts"_s, u"http://a.example/1"_s, u"b.example/2"_s, u"HTTP://A.EXAMPLE/1"_s,
                   u"http://c.example"_s})
                  .exitCode,
              0);
    // A scheme in capitals gets the prefix, which makes it an address of its own.
    EXPECT_EQ(Urls(),
              u"http://a.example/1\nhttp://b.example/2\nhttp://HTTP://A.EXAMPLE/1\nhttp://c.example\n"_s);
    EXPECT_EQ(Run({u"urls"_s, u"p.rts"_s, u"http://a.example/1"_s, u"http://b.example/2"_s,
                   u"http://A.example/1"_s})
                  .exitCode,
              0);
    EXPECT_EQ(Urls(), u"http://b.example/2\nhttp://A.example/1\n"_s);
    EXPECT_EQ(Field(u"txtURL"_s), u"http://b.example/2"_s);
    EXPECT_EQ(Run({u"set"_s, u"p.rts"_s, u"txtCity=Wells"_s}).exitCode, 0);
    EXPECT_EQ(Urls(), u"http://b.example/2\nhttp://A.example/1\n"_s);
    EXPECT_EQ(Field(u"txtTitle"_s), u"Hats"_s);

    EXPECT_EQ(Run({u"urls"_s, u"p.rts"_s, u"http://c.example/"_s, u"http://C.example/"_s}).exitCode, 0);
    const CommandResult one = Run({u"urls"_s, u"p.rts"_s});
    EXPECT_EQ(one.output, "");
    EXPECT_EQ(one.errors, u"lanterra-cli: The project has one address, the field txtURL.\n"_s);
    EXPECT_EQ(Field(u"txtURL"_s), u"http://C.example/"_s);
}

TEST_F(ProjectCommandsTest, UrlsThatAProjectCantHoldAreRefused) {
    GivenProject();
    QStringList eleven;
    for (int i = 1; i <= 11; ++i)
        eleven << u"http://www.page.example/%1"_s.arg(i);
    const CommandResult many = Run(QStringList{u"urls"_s, u"p.rts"_s} + eleven);
    EXPECT_EQ(many.exitCode, 2);
    EXPECT_TRUE(many.errors.contains(u"too many are http://www.page.example/11."_s));
    EXPECT_EQ(Run({u"urls"_s, u"p.rts"_s, u"http://a.b"_s, u"http://www.page.example/"_s}).exitCode, 2);
    EXPECT_EQ(Urls(), u""_s);
    EXPECT_EQ(Run(QStringList{u"urls"_s, u"p.rts"_s} + eleven.first(10)).exitCode, 0);
    EXPECT_EQ(Urls(), eleven.first(10).join(u'\n') + u'\n');
}

} // namespace
} // namespace lanterra
