#pragma once

#include "app/window_program.h"
#include "park/park_server.h"
#include "tests/qt_printing.h"
#include "tests/window/step_player.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace lanterra {

/// The whole program with its windows and real doors, in a home and with settings of its own, and the
/// practice web in the same process.
class WindowFixture : public testing::Test {
protected:
    WindowFixture();

    /// A master of these sites of the practice web, in the order in which they stand there.
    void GivenMaster(const QStringList &names);

    /// The program, new on what the last one left behind, until its end.
    void Play(const std::vector<Step> &steps, const QString &commandLine = {});

    /// A form or pane and what is on it, by object name; a test that asks for more ends.
    static QWidget &Form(const QString &name);
    static QWidget &Widget(const QString &form, const QString &name);
    template <class Kind>
    static Kind &Find(const QString &form, const QString &name) {
        return *qobject_cast<Kind *>(&Widget(form, name));
    }

    // What a user waits for.
    static Condition Up(const QString &form);     ///< on top, and the keys go there
    static Condition Menu(const QString &title);  ///< a popup menu or one of the menu bar
    static Condition Box(const QString &text);    ///< a message box with this text in it
    static Condition Asked(const QString &title); ///< a box for a line of text
    static Condition At(const QString &widget);   ///< which has the focus

    // What a user does. "\n" and "\t" in a text are the Return and the Tab key.
    static Action Types(const QString &text);
    static Action Presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static Action Clicks(const QString &form, const QString &name);
    static Action ClicksMark(const QString &form, const QString &list, const QString &entry);
    static Action Chooses(const QString &entry); ///< of the menu that is up
    static Action ClosesWindow();

    QString Path(const QString &name) const { return home.filePath(name); }

    QTemporaryDir home;
    AccessLog log{QString()};
    ParkServer park{0, log};
    std::unique_ptr<WindowProgram> program;
};

} // namespace lanterra
