#include "tests/window/window_fixture.h"

#include "project/site_source_build.h"

#include <QApplication>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QWindow *InputWindow() {
    QWidget *const popup = QApplication::activePopupWidget();
    return popup ? popup->windowHandle() : QGuiApplication::focusWindow();
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(InputWindow(), key, modifiers);
}

// By the window, so that the click goes astray if the widget isn't where it can be seen.
void ClickAt(QWidget &widget, QPoint place) {
    QWidget &window = *widget.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, place));
}

QWidget *FindForm(const QString &name) {
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (top->objectName() == name)
            return top;
        if (auto *const child = top->findChild<QWidget *>(name))
            return child;
    }
    return nullptr;
}

QMenu *ActiveMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

} // namespace

WindowFixture::WindowFixture() {
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.filePath(u"config"_s).toUtf8());
    EXPECT_TRUE(park.Start(0));
}

void WindowFixture::GivenMaster(const QStringList &names) {
    SiteSource source = ReadSiteSource(QStringLiteral(SITES)).source;
    source.sites.removeIf([&](const SiteEntry &site) { return !names.contains(site.name); });
    ASSERT_EQ(source.sites.size(), names.size());
    for (SiteEntry &site : source.sites)
        site.action.replace(u"http://127.0.0.1:8571"_s, park.Origin());
    ASSERT_TRUE(BuildSiteDatabase(source, Path(u"ng.dll"_s)));
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

QWidget &WindowFixture::Form(const QString &name) {
    QWidget *const form = FindForm(name);
    if (!form)
        qFatal("There is no form %s.", qUtf8Printable(name));
    return *form;
}

QWidget &WindowFixture::Widget(const QString &form, const QString &name) {
    auto *const widget = Form(form).findChild<QWidget *>(name);
    if (!widget)
        qFatal("There is no %s on %s.", qUtf8Printable(name), qUtf8Printable(form));
    return *widget;
}

Condition WindowFixture::Up(const QString &form) {
    return {form.toStdString(), [form] {
                const QWidget *const widget = FindForm(form);
                return widget && widget->isVisible() && widget->window()->isActiveWindow() &&
                       !QApplication::activePopupWidget();
            }};
}

Condition WindowFixture::Menu(const QString &title) {
    return {"menu " + title.toStdString(),
            [title] { return ActiveMenu() && ActiveMenu()->title().remove(u'&') == title; }};
}

Condition WindowFixture::Box(const QString &text) {
    return {"box " + text.toStdString(), [text] {
                const auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                return box && box->isActiveWindow() && box->text().contains(text);
            }};
}

Condition WindowFixture::Asked(const QString &title) {
    return {"question " + title.toStdString(), [title] {
                const auto *const input = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
                return input && input->isActiveWindow() && input->windowTitle() == title;
            }};
}

Condition WindowFixture::At(const QString &widget) {
    return {"focus on " + widget.toStdString(), [widget] {
                const QWidget *const focus = QApplication::focusWidget();
                return focus && focus->objectName() == widget;
            }};
}

Action WindowFixture::Types(const QString &text) {
    return [text] {
        for (const QChar character : text) {
            if (character == u'\n')
                Press(Qt::Key_Return);
            else if (character == u'\t')
                Press(Qt::Key_Tab);
            else
                QTest::keyClick(InputWindow(), character.toLatin1());
        }
    };
}

Action WindowFixture::Presses(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    return [key, modifiers] { Press(key, modifiers); };
}

Action WindowFixture::Clicks(const QString &form, const QString &name) {
    return [form, name] {
        QWidget &widget = Widget(form, name);
        ClickAt(widget, widget.rect().center());
    };
}

Action WindowFixture::ClicksMark(const QString &form, const QString &list, const QString &entry) {
    return [form, list, entry] {
        auto &view = Find<QListView>(form, list);
        const QModelIndexList found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, entry);
        ASSERT_FALSE(found.isEmpty()) << entry.toStdString();
        const QRect place = view.visualRect(found.first());
        ClickAt(*view.viewport(), QPoint(place.left() + place.height() / 2, place.center().y()));
    };
}

Action WindowFixture::Chooses(const QString &entry) {
    return [entry] {
        QMenu &menu = *ActiveMenu();
        for (QAction *action : menu.actions()) {
            if (action->text().remove(u'&') == entry)
                return ClickAt(menu, menu.actionGeometry(action).center());
        }
        ADD_FAILURE() << "The menu has no " << entry.toStdString();
    };
}

Action WindowFixture::ClosesWindow() {
    return [] { Form(u"MainWindow"_s).close(); };
}

} // namespace lanterra
