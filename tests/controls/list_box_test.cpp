#include "controls/list_box.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;

namespace {

class ListBoxTest : public testing::Test {
protected:
    ListBoxTest() {
        for (const char *name : {"Alta", "Beta", "Gamma"})
            list.AddItem(QString::fromLatin1(name));
        QObject::connect(&list, &ListBox::MarksChanged, &list, [this] { ++marksChanged; });
    }

    ListBox list;
    int marksChanged = 0;
};

TEST_F(ListBoxTest, CountsMarksThroughEveryWayOfChangingThem) {
    list.SetSelected(1, true);
    list.SetSelected(1, true);
    EXPECT_EQ(list.SelCount(), 1);
    list.InvertSelected();
    EXPECT_EQ(list.SelCount(), 2);
    EXPECT_FALSE(list.Selected(1));
    list.SetMarks({true, true, false, true});
    EXPECT_EQ(list.SelCount(), 2);
    list.SetAllSelected(false);
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_EQ(marksChanged, 4);
}

TEST_F(ListBoxTest, PassesOverIndexesOutsideTheList) {
    list.SetSelected(3, true);
    list.SetSelected(-1, true);
    list.SetListIndex(7);
    EXPECT_EQ(list.SelCount(), 0);
    EXPECT_FALSE(list.Selected(3));
    EXPECT_EQ(list.ListIndex(), ListBox::noEntry);
    EXPECT_EQ(list.Item(3) + list.Text(), QString());
    list.SetText(QStringLiteral("Gamma"));
    EXPECT_EQ(list.ListIndex(), 2);
    list.SetText(QStringLiteral("gamma"));
    EXPECT_EQ(list.ListIndex(), ListBox::noEntry);
}

TEST_F(ListBoxTest, ADisabledListKeepsItsMarksFromThePersonButNotFromTheProgram) {
    list.SetEnabled(false);
    EXPECT_FALSE(list.setData(list.index(0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(list.flags(list.index(0)).testFlag(Qt::ItemIsUserCheckable));
    EXPECT_EQ(list.SelCount(), 0);
    list.SetSelected(0, true);
    EXPECT_EQ(list.SelCount(), 1);
}

} // namespace
