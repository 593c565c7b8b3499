#include "modes/engine_table.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

const QString record =
    u"Search engine\r\nName=Plain\r\nSearch=s\r\nReferer=r\r\nSubmit=http://p/?u=[url]\r\n"_s;

QString Shown(const EngineTable &table) {
    QStringList rows;
    for (const EngineRow &row : table.rows)
        rows << QStringList{row.name, row.searchPage, row.referrer, row.submitTemplate}.join(u'|');
    return rows.join(u' ');
}

TEST(EngineTableTest, TakesFourLinesBehindEachOpeningLineByPosition) {
    const struct {
        const char *what;
        QString text;
        bool complete;
        QString rows;
    } cases[] = {
        {"a record", record + u"\r\n"_s, true, u"Plain|s|r|http://p/?u=[url]"_s},
        {"comments and capitals", u"; list\r\n[SEARCH ENGINE 1]\r\nNAME=A\r\nb\r\nc\r\nd"_s, true,
         u"A|b|c|d"_s},
        {"a key is removed wherever it stands",
         u"search engine\r\nmy name=Name=A\r\nx?SEARCH=1\r\n\r\n\r\n\r\n"_s, true, u"my A|x?1||"_s},
        {"missing lines are empty", u"a\r\nb\r\nsearch engine\r\nName=A"_s, true, u"A|||"_s},
        {"two lines are no file", u"search engine\r\nName=A"_s, false, QString()},
        {"bare line feeds don't count", QString(record).remove(u'\r'), false, QString()},
        {"five lines a record are too dense", record.repeated(7), false,
         QStringList(6, u"Plain|s|r|http://p/?u=[url]"_s).join(u' ')},
    };
    for (const auto &[what, text, complete, rows] : cases) {
        EngineTable table;
        EXPECT_EQ(table.Load(text), complete) << what;
        EXPECT_EQ(Shown(table), rows) << what;
    }
}

} // namespace
