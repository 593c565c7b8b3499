#include "park/query_fields.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

TEST(QueryFields, AreReadFromBothShapesAndFromLiterals) {
    const QList<QueryField> fields = QueryFields(
        uR"("lang=en&who=" & txtName1Text & "+" & txtName2Text & "&go=Send+it&url=" & txtUrlText)"_s);
    ASSERT_EQ(fields.size(), 4);
    EXPECT_EQ(fields[0].name, u"lang"_s);
    EXPECT_EQ(fields[0].fixedValue, u"en"_s);
    EXPECT_EQ(fields[1].name, u"who"_s);
    EXPECT_EQ(fields[1].words, QStringList({u"txtName1Text"_s, u"txtName2Text"_s}));
    EXPECT_EQ(fields[2].fixedValue, u"Send+it"_s);
    EXPECT_EQ(fields[3].words, QStringList{u"txtUrlText"_s});
    EXPECT_TRUE(QueryFields(QString()).isEmpty());
}
