#include "project/site_source.h"

#include "support/whole_file.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SiteSourceTest : public testing::Test {
protected:
    SiteSourceReading Read(const QByteArray &text) {
        WriteWholeFile(path, text);
        return ReadSiteSource(path);
    }

    /// "row: reason" of each finding.
    QStringList FindingsOf(const QByteArray &text) {
        QStringList lines;
        for (const SiteFinding &finding : Read(text).findings)
            lines.append(u"%1: %2"_s.arg(QString::number(finding.row), finding.reason));
        return lines;
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"sites.json"_s);
};

TEST_F(SiteSourceTest, ReadsBackWhatItWrites) {
    SiteSource source{7, {}};
    source.sites.append({u"O'Mallory \"&\" Söhne"_s,
                         u"link list"_s,
                         u"http://127.0.0.1/a?b=1"_s,
                         u"post"_s,
                         u"\"url=\" & txtUrlText"_s,
                         {}});
    source.sites.append({u"Alta"_s,
                         u"directory"_s,
                         u"https://alta.example/"_s,
                         u"get"_s,
                         u"\"cat=\" & CCCAAATTT & \"\\\""_s,
                         {u"Other"_s, u"Arts [old], new"_s, u"日本"_s}});
    const SiteSourceReading reading = Read(SiteSourceText(source).toUtf8());
    EXPECT_TRUE(reading.findings.isEmpty());
    EXPECT_EQ(reading.source, source);
}

TEST_F(SiteSourceTest, AByteOrderMarkInFrontOfATextComesBack) {
    const QString marked = u"\xFEFF text"_s;
    const SiteSource source{1, {{marked, marked, marked, marked, marked, {marked, marked}}}};
    EXPECT_EQ(Read(SiteSourceText(source).toUtf8()).source, source);
}

TEST_F(SiteSourceTest, TellsTheRowAndTheReasonOfEachFault) {
    EXPECT_EQ(
        FindingsOf(R"({"version": 1.5, "sites": [
        7,
        {"name": 3, "type": "t", "action": "a", "query": "q"},
        {"name": "n", "type": "t", "action": "a", "query": "q", "method": "m", "quary": "", "categories": []},
        {"name": "n", "type": "t", "action": "a", "query": "q", "method": "m", "categories": ["a", 1]}]})"),
        QStringList({u"0: \"version\" is no whole number from 1."_s, u"1: The entry is no site."_s,
                     u"2: \"name\" is no text."_s, u"2: \"method\" is missing."_s,
                     u"3: Unknown key \"quary\"."_s, u"3: \"categories\" is no list of at least one text."_s,
                     u"4: \"categories\" is no text."_s}));
}

TEST_F(SiteSourceTest, TellsWhatIsWrongWithTheWholeFile) {
    EXPECT_EQ(FindingsOf("[]"),
              QStringList({u"0: \"version\" is no whole number from 1."_s, u"0: \"sites\" is no list."_s}));
    EXPECT_TRUE(
        FindingsOf("{\n\"version\": 1,\n\"sites\": oops}").value(0).startsWith("0: Line 3 is no JSON: "_L1));
    EXPECT_EQ(ReadSiteSource(u"none"_s).findings.value(0).Text(), u"none: The file can't be read."_s);
}

} // namespace
