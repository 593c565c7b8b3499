#include "window/control_bindings.h"

#include "controls/list_box.h"
#include "controls/text_box.h"
#include "tests/qt_printing.h"

#include <QListView>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(ControlBindingsTest, TheFocusAloneChoosesNothingInAList) {
    ListBox list{ListBox::Marks::None};
    list.SetItems({u"Arts"_s, u"Business"_s});
    QStringList chosen;
    QObject::connect(&list, &ListBox::Clicked, &list, [&] { chosen << list.Text(); });
    QListView view;
    ASSERT_TRUE(JoinList(list, view));
    view.show();
    view.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    EXPECT_TRUE(view.currentIndex().isValid()) << "else there is nothing to mistake for a choice";
    EXPECT_EQ(list.ListIndex(), ListBox::noEntry);
    QTest::keyClick(&view, Qt::Key_Down);
    list.SetListIndex(0);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(chosen.join(u' '), u"Business Business"_s);
}

TEST(ControlBindingsTest, TypedLinesEndInCrLfAndStoredOnesStayAsTheyAre) {
    TextBox box;
    QPlainTextEdit edit;
    ASSERT_TRUE(JoinText(box, edit));
    box.SetText(u"one\ntwo"_s);
    EXPECT_EQ(box.Text(), u"one\ntwo"_s);
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, '3');
    EXPECT_EQ(box.Text(), u"one\r\ntwo\r\n3"_s);
    EXPECT_TRUE(edit.textCursor().atEnd()) << "the text was written anew under the cursor";
}

} // namespace
