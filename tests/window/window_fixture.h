#pragma once

#include "app/window_program.h"
#include "park/park_server.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace lanterra {

/// What a user waits for, with words for the case that it never comes.
struct Condition {
    QString what;
    std::function<bool()> holds;
};

/// What a user then does. It may open a dialog or a menu and so return late.
using Action = std::function<void()>;

struct Step {
    Condition when;
    Action act;
};

/// Both, one after the other.
std::vector<Step> operator+(std::vector<Step> first, const std::vector<Step> &second);

/// The whole program with its windows and real doors, in a home and with settings of its own, and the
/// practice web in the same process.
class WindowFixture : public testing::Test {
protected:
    WindowFixture();

    /// A master of these sites of the practice web, in the order in which they stand there.
    void GivenMaster(const QStringList &names);

    /// The project "Shop" on such a master, filled in, with all sites selected, and a user who has been
    /// welcomed. `browser` is the command that opens pages, empty for the desktop's.
    void GivenProject(const QStringList &sites, const QString &browser = {});

    /// The program, new on what the last one left behind, until its end. A step that doesn't come in time is
    /// a failure; all that is up is dismissed then.
    void Play(const std::vector<Step> &steps, const QString &commandLine = {});
    void PlayOnProject(const std::vector<Step> &steps) { Play(steps, Path("Projects/Shop.rts")); }

    /// A form or pane and what is on it, by object name; the program ends over one that isn't there.
    static QWidget &Form(QAnyStringView name);
    static QWidget &Widget(QAnyStringView form, QAnyStringView name);
    template <class Kind>
    static Kind &Find(QAnyStringView form, QAnyStringView name) {
        return dynamic_cast<Kind &>(Widget(form, name));
    }
    /// What the last run tells of a site: result and reason.
    QString Outcome(QAnyStringView site) const;
    QString Path(QAnyStringView name) const { return home.filePath(name.toString()); }

    // What a user waits for.
    static Condition Up(QAnyStringView form);     ///< on view in the window that takes the keys
    static Condition Menu(QAnyStringView title);  ///< a popup menu or one of the menu bar
    static Condition Box(QAnyStringView text);    ///< a message box with this text in it
    static Condition Asked(QAnyStringView title); ///< a box for a line of text
    static Condition At(QAnyStringView widget);   ///< which has the focus

    // What a user does. "\n" and "\t" in a text are the Return and the Tab key.
    static Action Types(QAnyStringView text);
    static Action Presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static Action Clicks(QAnyStringView form, QAnyStringView name);
    static Action ClicksMark(QAnyStringView form, QAnyStringView list, QAnyStringView entry);
    static Action Chooses(QAnyStringView entry); ///< of the menu that is up
    static Action ClosesWindow();

    /// From the first start to the window with the new project "Shop".
    const std::vector<Step> makesAProject{{Up("WelcomeDialog"), Presses(Qt::Key_Return)},
                                          {Up("ProjectStartDialog"), Presses(Qt::Key_Return)},
                                          {Asked("Create a new project"), Types("Shop\n")}};

    QTemporaryDir home;
    AccessLog log{QString()};
    ParkServer park{0, log};
    std::unique_ptr<WindowProgram> program;
};

} // namespace lanterra
