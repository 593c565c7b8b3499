#include "tests/window/window_fixture.h"

#include "project/site_source_build.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <deque>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lanterra {

namespace {

QWidget *FindForm(const QString &name) {
    for (QWidget *top : QApplication::topLevelWidgets()) {
        QWidget *const form = top->objectName() == name ? top : top->findChild<QWidget *>(name);
        if (form)
            return form;
    }
    return nullptr;
}

template <class Dialog>
Dialog *ActiveModal() {
    auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
    return dialog && dialog->isActiveWindow() ? dialog : nullptr;
}

QMenu *ActiveMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QWidget *const popup = QApplication::activePopupWidget();
    QTest::keyClick(popup ? popup->windowHandle() : QGuiApplication::focusWindow(), key, modifiers);
}

// By the window, so that the click goes astray if the widget isn't where it can be seen.
void ClickAt(const QWidget &widget, QPoint place) {
    const QWidget &window = *widget.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, place));
}

// No window manager gives the focus back here when a window closes.
void GiveFocusBack() {
    const QWidget *const active = QApplication::activeWindow();
    if ((active && active->isVisible()) || QApplication::activePopupWidget())
        return;
    QWidget *next = QApplication::activeModalWidget();
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (!next && top->isVisible() && top->inherits("QMainWindow"))
            next = top;
    }
    if (next)
        next->activateWindow();
}

/// Works a program as a user does who waits for each thing to come up: looks whenever the event queue is
/// about to sleep, in whatever dialog or wait that is, and acts in an event of its own. Nothing wakes the
/// queue for its sake, so a program that forgets to wake up is found out.
class StepPlayer : public QObject {
public:
    StepPlayer(const std::vector<Step> &theSteps, Action giveUp);

    bool Done() const { return steps.empty(); }

private:
    void Look();
    void Act();
    void GiveUp();

    std::deque<Step> steps;
    Action end;
    QTimer deadline;
    bool acting = false; ///< an event to act is on its way
    bool gaveUp = false;
};

StepPlayer::StepPlayer(const std::vector<Step> &theSteps, Action giveUp)
    : steps(theSteps.begin(), theSteps.end()), end(std::move(giveUp)) {
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &StepPlayer::Look);
    connect(&deadline, &QTimer::timeout, this, &StepPlayer::GiveUp);
    deadline.start(30s);
}

void StepPlayer::Look() {
    GiveFocusBack();
    if (gaveUp && QApplication::activeModalWidget())
        QMetaObject::invokeMethod(QApplication::activeModalWidget(), &QWidget::close, Qt::QueuedConnection);
    if (acting || steps.empty() || !steps.front().when.holds())
        return;
    acting = true;
    QMetaObject::invokeMethod(this, &StepPlayer::Act, Qt::QueuedConnection);
}

void StepPlayer::Act() {
    acting = false;
    if (steps.empty() || !steps.front().when.holds())
        return;
    const Action act = steps.front().act;
    steps.pop_front();
    deadline.start();
    act();
}

void StepPlayer::GiveUp() {
    const auto name = [](const QObject *object) {
        return object ? object->metaObject()->className() + (' ' + object->objectName().toStdString())
                      : "none";
    };
    ADD_FAILURE() << "This never came: "
                  << (steps.empty() ? "the end" : steps.front().when.what.toStdString())
                  << ". Active window: " << name(QApplication::activeWindow())
                  << ", popup: " << name(QApplication::activePopupWidget())
                  << ", focus: " << name(QApplication::focusWidget());
    steps.clear();
    gaveUp = true;
    end();
}

} // namespace

WindowFixture::WindowFixture() {
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", Path("config").toUtf8());
    EXPECT_TRUE(park.Start(0));
}

void WindowFixture::GivenMaster(const QStringList &names) {
    SiteSource source = ReadSiteSource(QStringLiteral(SITES)).source;
    source.sites.removeIf([&](const SiteEntry &site) { return !names.contains(site.name); });
    ASSERT_EQ(source.sites.size(), names.size());
    for (SiteEntry &site : source.sites)
        site.action.replace(u"http://127.0.0.1:8571"_s, park.Origin());
    ASSERT_TRUE(BuildSiteDatabase(source, Path("ng.dll")));
}

void WindowFixture::GivenProject(const QStringList &sites, const QString &browser) {
    GivenMaster(sites);
    WindowProgram maker(home.path());
    Program &parts = maker.program;
    parts.options.Set(option::welcomeSeen, u"1"_s);
    parts.options.Set(option::browser, browser);
    ASSERT_TRUE(parts.startProject.CreateProject(u"Shop"_s));
    parts.files.LoadProject();
    for (const ProjectRecord::TextField &field : parts.project.record.TextFields())
        field.box->SetText(u"45"_s);
    parts.project.record.txtURL.SetText(u"http://www.shop.example/"_s);
    parts.project.lists.List1.SetAllSelected(true);
    ASSERT_TRUE(parts.files.SaveProject(QString()).stored);
}

void WindowFixture::Play(const std::vector<Step> &steps, const QString &commandLine) {
    // An end in the middle of the last start has told a loop to quit that had not begun.
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QCoreApplication::exec();
    program.reset();
    program = std::make_unique<WindowProgram>(home.path());
    const StepPlayer player(steps, [this] { program->End(); });
    program->Run(commandLine);
    EXPECT_TRUE(player.Done()) << "The program ended too early.";
    for (const QWidget *top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->isVisible()) << top->objectName().toStdString();
}

QWidget &WindowFixture::Form(QAnyStringView name) {
    QWidget *const form = FindForm(name.toString());
    if (!form)
        qFatal("There is no form %s.", qUtf8Printable(name.toString()));
    return *form;
}

QWidget &WindowFixture::Widget(QAnyStringView form, QAnyStringView name) {
    auto *const widget = Form(form).findChild<QWidget *>(name.toString());
    if (!widget)
        qFatal("The form has no %s.", qUtf8Printable(name.toString()));
    return *widget;
}

QString WindowFixture::Outcome(QAnyStringView site) const {
    const OutcomeTable &table = program->program.outcomes;
    const auto found = table.match(table.index(0, OutcomeTable::Site), Qt::DisplayRole, site.toString());
    if (found.isEmpty())
        return {};
    return found.first().siblingAtColumn(OutcomeTable::Result).data().toString() + u": "_s +
           found.first().siblingAtColumn(OutcomeTable::Reason).data().toString();
}

Condition WindowFixture::Up(QAnyStringView form) {
    return {form.toString(), [name = form.toString()] {
                const QWidget *const widget = FindForm(name);
                return widget && widget->isVisible() && widget->window()->isActiveWindow() &&
                       !QApplication::activePopupWidget();
            }};
}

Condition WindowFixture::Menu(QAnyStringView title) {
    return {title.toString(), [wanted = title.toString()] {
                return ActiveMenu() && ActiveMenu()->title().remove(u'&') == wanted;
            }};
}

Condition WindowFixture::Box(QAnyStringView text) {
    return {text.toString(), [wanted = text.toString()] {
                const auto *const box = ActiveModal<QMessageBox>();
                return box && box->text().contains(wanted);
            }};
}

Condition WindowFixture::Asked(QAnyStringView title) {
    return {title.toString(), [wanted = title.toString()] {
                const auto *const input = ActiveModal<QInputDialog>();
                return input && input->windowTitle() == wanted;
            }};
}

Condition WindowFixture::At(QAnyStringView widget) {
    return {widget.toString(), [name = widget.toString()] {
                const QWidget *const focus = QApplication::focusWidget();
                return focus && focus->objectName() == name;
            }};
}

Action WindowFixture::Types(QAnyStringView text) {
    return [keys = text.toString().toLatin1()] {
        for (const char key : keys) {
            if (key == '\n' || key == '\t')
                Press(key == '\n' ? Qt::Key_Return : Qt::Key_Tab);
            else
                QTest::keyClick(QGuiApplication::focusWindow(), key);
        }
    };
}

Action WindowFixture::Presses(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    return [key, modifiers] { Press(key, modifiers); };
}

Action WindowFixture::Clicks(QAnyStringView form, QAnyStringView name) {
    return [formName = form.toString(), widgetName = name.toString()] {
        const QWidget &widget = Widget(formName, widgetName);
        ClickAt(widget, widget.rect().center());
    };
}

Action WindowFixture::ClicksMark(QAnyStringView form, QAnyStringView list, QAnyStringView entry) {
    return [formName = form.toString(), listName = list.toString(), text = entry.toString()] {
        const auto &view = Find<QListView>(formName, listName);
        const QRect place =
            view.visualRect(view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text).value(0));
        ClickAt(*view.viewport(), {place.left() + place.height() / 2, place.center().y()});
    };
}

Action WindowFixture::Chooses(QAnyStringView entry) {
    return [text = entry.toString()] {
        const QMenu &menu = *ActiveMenu();
        for (QAction *action : menu.actions()) {
            if (action->text().remove(u'&') == text)
                return ClickAt(menu, menu.actionGeometry(action).center());
        }
        ADD_FAILURE() << "The menu has no " << text.toStdString();
    };
}

Action WindowFixture::ClosesWindow() {
    return [] { Form("MainWindow").close(); };
}

std::vector<Step> operator+(std::vector<Step> first, const std::vector<Step> &second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace lanterra
