#include "window/control_bindings.h"

#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/scroll_bar.h"
#include "controls/status_bar.h"
#include "window/icons.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>

namespace lanterra {

namespace {

void JoinState(Control &control, QWidget &widget) {
    widget.setEnabled(control.Enabled());
    // A widget that is to be seen becomes so with its form; only a hidden one needs to be told.
    if (!control.Visible())
        widget.hide();
    QObject::connect(&control, &Control::EnabledChanged, &widget, &QWidget::setEnabled);
    QObject::connect(&control, &Control::VisibleChanged, &widget, &QWidget::setVisible);
    QObject::connect(&control, &Control::FocusRequested, &widget,
                     [&widget] { widget.setFocus(Qt::OtherFocusReason); });
}

void JoinState(Control &control, QAction &action) {
    action.setEnabled(control.Enabled());
    action.setVisible(control.Visible());
    QObject::connect(&control, &Control::EnabledChanged, &action, &QAction::setEnabled);
    QObject::connect(&control, &Control::VisibleChanged, &action, &QAction::setVisible);
}

// A file name may hold "&", which would become a mnemonic.
QString WithoutMnemonic(QString text) { return text.replace(u'&', QLatin1String("&&")); }

// Only what a person types goes to the control: the widget's own form of a text, without line breaks for
// example, never overwrites what a project holds.
void JoinLine(TextBox &box, QLineEdit &edit) {
    edit.setText(box.Text());
    QObject::connect(&edit, &QLineEdit::textEdited, &box, &TextBox::SetText);
    QObject::connect(&box, &TextBox::TextChanged, &edit, [&edit](const QString &text) {
        if (edit.text() != text)
            edit.setText(text);
    });
    // A selection is only seen where the keys go; elsewhere its start comes into view.
    QObject::connect(&box, &TextBox::SelectionChanged, &edit, [&edit](qsizetype start, qsizetype length) {
        const int place = static_cast<int>(std::min(start, edit.text().size()));
        if (edit.hasFocus())
            edit.setSelection(place, static_cast<int>(length));
        else
            edit.setCursorPosition(place);
    });
}

void SelectIn(QPlainTextEdit &edit, qsizetype start, qsizetype length) {
    const int size = edit.document()->characterCount() - 1;
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(std::min(static_cast<int>(start), size));
    cursor.setPosition(std::min(static_cast<int>(start + length), size), QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
}

// Texts of several lines go to the sites with CR LF, as those of a form in a browser do.
QString TypedLines(const QPlainTextEdit &edit) {
    return edit.toPlainText().replace(u'\n', QLatin1String("\r\n"));
}

void JoinLines(TextBox &box, QPlainTextEdit &edit) {
    edit.setPlainText(box.Text());
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &box,
                     [&box, &edit] { box.SetText(TypedLines(edit)); });
    QObject::connect(&box, &TextBox::TextChanged, &edit, [&edit](const QString &text) {
        if (TypedLines(edit) == text)
            return;
        const QSignalBlocker quiet(edit);
        edit.setPlainText(text);
    });
    QObject::connect(&box, &TextBox::SelectionChanged, &edit,
                     [&edit](qsizetype start, qsizetype length) { SelectIn(edit, start, length); });
}

QString PictureName(ButtonPicture picture) {
    switch (picture) {
    case ButtonPicture::Idle:
        return QStringLiteral("channel-idle");
    case ButtonPicture::Dispatched:
        return QStringLiteral("channel-dispatched");
    case ButtonPicture::Connected:
        return QStringLiteral("channel-connected");
    case ButtonPicture::None:
        break;
    }
    return {};
}

// The style sheet tells a marked button by this property.
void ShowMark(QAbstractButton &widget, bool marked) {
    widget.setProperty("marked", marked);
    ApplyIcon(widget);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

} // namespace

bool JoinCombo(QObject &control, QObject &face) {
    auto *const box = qobject_cast<ComboBox *>(&control);
    auto *const combo = qobject_cast<QComboBox *>(&face);
    if (!box || !combo)
        return false;
    combo->addItems(box->Entries());
    const auto show = [combo](const QString &text) {
        // A text that is no entry is shown all the same, though it can't be chosen again.
        combo->setPlaceholderText(text);
        combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    };
    show(box->Text());
    QObject::connect(combo, &QComboBox::textActivated, box, &TextBox::SetText);
    QObject::connect(box, &TextBox::TextChanged, combo, show);
    JoinState(*box, *combo);
    return true;
}

bool JoinText(QObject &control, QObject &face) {
    auto *const box = qobject_cast<TextBox *>(&control);
    if (!box)
        return false;
    if (auto *const line = qobject_cast<QLineEdit *>(&face)) {
        JoinLine(*box, *line);
        JoinState(*box, *line);
        return true;
    }
    if (auto *const lines = qobject_cast<QPlainTextEdit *>(&face)) {
        JoinLines(*box, *lines);
        JoinState(*box, *lines);
        return true;
    }
    return false;
}

namespace {

template <class Face>
bool JoinCheckTo(CheckBox &box, Face *face) {
    if (!face || !face->isCheckable())
        return false;
    face->setChecked(box.Checked());
    QObject::connect(&box, &CheckBox::ValueChanged, face,
                     [face](int value) { face->setChecked(value == 1); });
    QObject::connect(face, &Face::clicked, &box, [&box](bool on) { box.SetValue(on ? 1 : 0); });
    JoinState(box, *face);
    return true;
}

} // namespace

bool JoinCheck(QObject &control, QObject &face) {
    auto *const box = qobject_cast<CheckBox *>(&control);
    if (!box)
        return false;
    if (auto *const action = qobject_cast<QAction *>(&face)) {
        // The handler of the entry inverts the mark itself, so the action only shows it.
        action->setCheckable(true);
        const auto show = [action, box] { action->setChecked(box->Checked()); };
        show();
        QObject::connect(box, &CheckBox::ValueChanged, action, show);
        return true;
    }
    return JoinCheckTo(*box, qobject_cast<QAbstractButton *>(&face));
}

bool JoinLabel(QObject &control, QObject &face) {
    auto *const label = qobject_cast<Label *>(&control);
    if (!label)
        return false;
    if (auto *const widget = qobject_cast<QLabel *>(&face)) {
        widget->setTextFormat(Qt::PlainText);
        widget->setText(label->Caption());
        QObject::connect(label, &Label::CaptionChanged, widget, &QLabel::setText);
        JoinState(*label, *widget);
        return true;
    }
    if (auto *const action = qobject_cast<QAction *>(&face)) {
        const auto show = [action](const QString &text) { action->setText(WithoutMnemonic(text)); };
        show(label->Caption());
        QObject::connect(label, &Label::CaptionChanged, action, show);
        JoinState(*label, *action);
        return true;
    }
    return false;
}

bool JoinButton(QObject &control, QObject &face) {
    auto *const button = qobject_cast<Button *>(&control);
    if (!button)
        return false;
    if (auto *const action = qobject_cast<QAction *>(&face)) {
        JoinState(*button, *action);
        return true;
    }
    auto *const widget = qobject_cast<QAbstractButton *>(&face);
    if (!widget)
        return false;
    const auto showPicture = [widget](ButtonPicture picture) {
        if (picture != ButtonPicture::None)
            widget->setIcon(ThemedIcon(PictureName(picture)));
    };
    showPicture(button->Picture());
    ShowMark(*widget, button->Marked());
    QObject::connect(button, &Button::PictureChanged, widget, showPicture);
    QObject::connect(button, &Button::MarkedChanged, widget, [widget](bool on) { ShowMark(*widget, on); });
    JoinState(*button, *widget);
    return true;
}

bool JoinList(QObject &control, QObject &face) {
    auto *const model = qobject_cast<QAbstractItemModel *>(&control);
    auto *const view = qobject_cast<QAbstractItemView *>(&face);
    if (!model || !view)
        return false;
    view->setModel(model);
    auto *const list = qobject_cast<ListBox *>(model);
    if (!list)
        return true;
    const auto showCurrent = [view, list](int index) {
        view->selectionModel()->setCurrentIndex(list->index(index), QItemSelectionModel::ClearAndSelect);
    };
    showCurrent(list->ListIndex());
    QObject::connect(list, &ListBox::ListIndexChanged, view, showCurrent);
    // Not by what is current: the focus alone makes the first entry that, without selecting it. And what the
    // program has made current comes back as what is current already.
    QObject::connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, list,
                     [list](const QItemSelection &selected) {
                         const QModelIndexList entries = selected.indexes();
                         if (!entries.isEmpty() && entries.first().row() != list->ListIndex())
                             list->Click(entries.first().row());
                     });
    return true;
}

bool JoinScroll(QObject &control, QObject &face) {
    auto *const bar = qobject_cast<ScrollBar *>(&control);
    auto *const slider = qobject_cast<QAbstractSlider *>(&face);
    if (!bar || !slider)
        return false;
    slider->setRange(0, bar->Maximum());
    slider->setValue(bar->Value());
    QObject::connect(bar, &ScrollBar::MaximumChanged, slider, &QAbstractSlider::setMaximum);
    QObject::connect(bar, &ScrollBar::ValueChanged, slider, &QAbstractSlider::setValue);
    QObject::connect(slider, &QAbstractSlider::valueChanged, bar, &ScrollBar::SetValue);
    JoinState(*bar, *slider);
    return true;
}

bool JoinPlain(QObject &control, QObject &face) {
    // A row of panels is drawn by its own form.
    if (control.metaObject() != &Control::staticMetaObject && !qobject_cast<StatusBar *>(&control))
        return false;
    auto *const plain = static_cast<Control *>(&control);
    if (auto *const widget = qobject_cast<QWidget *>(&face))
        JoinState(*plain, *widget);
    else if (auto *const action = qobject_cast<QAction *>(&face))
        JoinState(*plain, *action);
    return true;
}

} // namespace lanterra
