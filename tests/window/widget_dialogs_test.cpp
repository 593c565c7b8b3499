#include "window/widget_dialogs.h"

#include "tests/qt_printing.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

TEST(WidgetDialogsTest, AProgramWithoutAnExtensionCanBeChosen) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile(folder.filePath(u"browser"_s)).open(QIODevice::WriteOnly));
    for (const auto &[typed, chosen] : {std::pair{u"browser"_s, u"browser"_s}, {u"new"_s, u"new.exe"_s}}) {
        QTimer::singleShot(0, [&typed] {
            QWidget *const box = QApplication::activeModalWidget()->focusWidget();
            QTest::keyClicks(box, typed);
            QTest::keyClick(box, Qt::Key_Return);
        });
        const auto path =
            WidgetDialogs().OpenFile({u"(*.exe)|*.exe|All files|*"_s, folder.path(), {}, u"exe"_s});
        EXPECT_EQ(path, folder.filePath(chosen));
    }
}

} // namespace
