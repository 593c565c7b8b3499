#include "window/entry_events.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QWidget>

namespace lanterra {

namespace {

// The focus only moves for good inside the program: a menu or another program gives it back.
bool MovesForGood(const QEvent &event) {
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

bool IsReturn(const QEvent &event) {
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// A line does so by itself.
void Deselect(QObject &widget) {
    if (auto *const lines = qobject_cast<QPlainTextEdit *>(&widget)) {
        QTextCursor cursor = lines->textCursor();
        cursor.clearSelection();
        lines->setTextCursor(cursor);
    }
}

} // namespace

EntryEvents::EntryEvents(ProjectRecord &projectRecord, EntryHandlers &entryHandlers, QWidget &pane)
    : QObject(&pane), record(projectRecord), entry(entryHandlers) {
    for (const ProjectRecord::TextField &field : record.TextFields()) {
        if (auto *widget = pane.findChild<QWidget *>(field.name))
            Watch(*widget, *field.box);
    }
}

void EntryEvents::Watch(QWidget &widget, TextBox &box) {
    boxes.insert(&widget, &box);
    widget.installEventFilter(this);
}

bool EntryEvents::eventFilter(QObject *watched, QEvent *event) {
    TextBox *const box = boxes.value(watched);
    if (!box)
        return false;
    if (event->type() == QEvent::KeyPress)
        return IsReturn(*event) && entry.ReturnPressed(*box);
    if (event->type() == QEvent::FocusIn && MovesForGood(*event))
        GotFocus(*box);
    if (event->type() == QEvent::FocusOut && MovesForGood(*event)) {
        Deselect(*watched);
        LostFocus(*box);
    }
    return false;
}

// Behind the event, because the press of the mouse that brought the focus would take the selection back.
void EntryEvents::GotFocus(TextBox &box) {
    QMetaObject::invokeMethod(
        this, [this, &box] { entry.GotFocus(box); }, Qt::QueuedConnection);
}

// The warnings are boxes of their own, which must not come up while the focus is on its way.
void EntryEvents::LostFocus(const TextBox &box) {
    if (&box == &record.txtURL)
        entry.txtURL_LostFocus();
    else if (&box == &record.txtTitle)
        QMetaObject::invokeMethod(
            this, [this] { entry.txtTitle_LostFocus(); }, Qt::QueuedConnection);
    else if (&box == &record.txtDesc)
        QMetaObject::invokeMethod(
            this, [this] { entry.txtDesc_LostFocus(); }, Qt::QueuedConnection);
}

} // namespace lanterra
