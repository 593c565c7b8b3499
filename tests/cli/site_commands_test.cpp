#include "tests/cli/cli_fixture.h"

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class SiteCommandsTest : public CliFixture {
protected:
    SiteCommandsTest() {
        const QString asksCategory = u"\"cat=\" & CCCAAATTT"_s;
        GivenMaster(SiteDatabaseBuilder()
                        .Site(u"Alta"_s)
                        .Site(u"Atlas=One"_s, u"directory"_s)
                        .Query(asksCategory)
                        .Categories({u"Top"_s, u"Shops"_s, u"Arts=Crafts"_s})
                        .Site(u"Links \u00E9"_s, u"link list"_s));
        GivenProject();
    }

    QString Selected() const {
        QStringList names;
        const QByteArray sites = Run({u"sites"_s, u"p.rts"_s, u"--json"_s}).output;
        for (const auto &site : QJsonDocument::fromJson(sites).array()) {
            if (site[u"selected"_s].toBool())
                names << site[u"name"_s].toString();
        }
        return names.join(u'|');
    }
};

TEST_F(SiteCommandsTest, ListsSitesInAlignedColumns) {
    Run({u"select"_s, u"p.rts"_s, u"alta"_s});
    EXPECT_EQ(Run({u"sites"_s, u"p.rts"_s}).Text(), u"1  [x]  search engine  Alta\n"
                                                    "2  [ ]  directory      Atlas=One\n"
                                                    "3  [ ]  link list      Links \u00E9\n"_s);
}

struct Selection {
    QStringList arguments;
    QString selected;
};

TEST_F(SiteCommandsTest, EachChoiceReplacesTheSelection) {
    const QList<Selection> steps{{{u"--all"_s}, u"Alta|Atlas=One|Links \u00E9"_s},
                                 {{u"--engines"_s}, u"Alta"_s},
                                 {{u"--invert"_s}, u"Atlas=One|Links \u00E9"_s},
                                 {{u"--lists"_s}, u"Links \u00E9"_s},
                                 {{u"--directories"_s}, u"Atlas=One"_s},
                                 {{u"--not-registered"_s}, u"Alta|Atlas=One|Links \u00E9"_s},
                                 {{u"--registered"_s}, u""_s},
                                 {{u"LINKS \u00E9"_s, u"Alta"_s}, u"Alta|Links \u00E9"_s},
                                 {{u"--none"_s}, u""_s}};
    for (const Selection &step : steps) {
        EXPECT_EQ(Run(QStringList{u"select"_s, u"p.rts"_s} + step.arguments).exitCode, 0);
        EXPECT_EQ(Selected(), step.selected) << step.arguments.join(u' ').toStdString();
    }
    // The count takes in the 21 sites of the two fixed lists.
    EXPECT_EQ(Run({u"select"_s, u"p.rts"_s, u"Alta"_s}).Text(), u"Selected 22/24\n"_s);
    const CommandResult unknown = Run({u"select"_s, u"p.rts"_s, u"Atlas=One"_s, u"Nowhere"_s});
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_EQ(unknown.errors,
              u"lanterra-cli: There is no site 'Nowhere'; \"lanterra-cli sites\" lists all.\n"_s);
    EXPECT_EQ(Selected(), u"Alta"_s);
}

TEST_F(SiteCommandsTest, CategoriesAreChosenByNameOrKeyword) {
    EXPECT_EQ(Run({u"category"_s, u"p.rts"_s}).Text(), u"Atlas=One  -\n"_s);
    EXPECT_EQ(Run({u"category"_s, u"p.rts"_s, u"atlas=one=arts=crafts"_s}).exitCode, 0);
    EXPECT_EQ(Run({u"category"_s, u"p.rts"_s}).Text(), u"Atlas=One  Arts=Crafts\n"_s);
    EXPECT_EQ(Run({u"category"_s, u"p.rts"_s, u"--keyword"_s, u"SHOP"_s}).Text(), u"Atlas=One  Shops\n"_s);
    for (const auto &[word, sentence] : QList<std::pair<QString, QString>>{
             {u"Nowhere=Shops"_s, u"There is no directory 'Nowhere'; the directories are Atlas=One.\n"_s},
             {u"Atlas=One=Top"_s, u"Atlas=One has no category 'Top'; it offers Shops, Arts=Crafts.\n"_s}}) {
        const CommandResult refused = Run({u"category"_s, u"p.rts"_s, u"Atlas=One=Arts=Crafts"_s, word});
        EXPECT_EQ(refused.exitCode, 1);
        EXPECT_EQ(refused.errors, u"lanterra-cli: "_s + sentence);
    }
    EXPECT_EQ(Run({u"category"_s, u"p.rts"_s}).Text(), u"Atlas=One  Shops\n"_s);
}

TEST_F(SiteCommandsTest, ASiteDatabaseIsDumpedAsItsSource) {
    const QByteArray source = ReadFile(u"sites.json"_s);
    EXPECT_EQ(Run({u"sitedb"_s, u"dump"_s, u"home/ng.dll"_s}).output, source);
    EXPECT_EQ(Run({u"sitedb"_s, u"check"_s, u"home/ng.dll"_s}).exitCode, 0);
    EXPECT_EQ(Run({u"sitedb"_s, u"dump"_s, u"sites.json"_s}).exitCode, 1);
}

TEST_F(SiteCommandsTest, FindingsStandBehindTheirFileAndRow) {
    WriteFile(u"bad.json"_s,
              "{\"version\": 1, \"sites\": [{\"name\": \"A\", \"type\": \"list\", \"method\": \"put\", "
              "\"action\": \"http://a.example/\", \"query\": \"\\\"u=\\\" & txtUrlText\"}]}");
    const QString finding = u"bad.json:1: The method is not get or post: put\n"_s;
    const CommandResult checked = Run({u"sitedb"_s, u"check"_s, u"bad.json"_s});
    EXPECT_EQ(checked.exitCode, 1);
    EXPECT_EQ(checked.Text(), finding);
    const CommandResult built = Run({u"sitedb"_s, u"build"_s, u"bad.json"_s, u"bad.dll"_s});
    EXPECT_EQ(built.exitCode, 1);
    EXPECT_EQ(built.errors, finding);
    EXPECT_FALSE(QFile::exists(Path(u"bad.dll"_s)));
    EXPECT_EQ(Run({u"sitedb"_s, u"check"_s, u"gone.json"_s}).Text(),
              u"gone.json: The file can't be read.\n"_s);
}

} // namespace
} // namespace lanterra
