#include "project/site_source.h"

#include "support/whole_file.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(SiteSourceTest, ReadsBackWhatItWrites) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"sites.json"_s);
    const QString marked = u"\xFEFF text"_s; // a byte order mark in front of it
    const SiteSource source{7,
                            {{u"O'Mallory \"&\" Söhne"_s,
                              u"link list"_s,
                              u"http://127.0.0.1/a?b=1"_s,
                              u"post"_s,
                              u"\"\\\""_s,
                              {}},
                             {u"Alta"_s,
                              u"directory"_s,
                              u"https://alta.example/"_s,
                              u"get"_s,
                              u"\"c=\" & CCCAAATTT"_s,
                              {u"Other"_s, u"Arts [old], new"_s, u"日本"_s}},
                             {marked, marked, marked, marked, marked, {marked, marked}}}};
    WriteWholeFile(path, SiteSourceText(source).toUtf8());
    EXPECT_TRUE(ReadSiteSource(path).findings.isEmpty());
    EXPECT_EQ(ReadSiteSource(path).source, source);
}

} // namespace
