#include "window/widget_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton ButtonOf(BoxAnswer answer) {
    switch (answer) {
    case BoxAnswer::Yes:
        return QMessageBox::Yes;
    case BoxAnswer::No:
        return QMessageBox::No;
    case BoxAnswer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

// The system's texts end their lines with CR LF and some end in blanks, which a label would show.
QString ForScreen(QString text) { return text.replace("\r\n"_L1, "\n"_L1).trimmed(); }

/// "Text (*.a)|*.a|All|*" as Qt writes it.
QStringList NameFilters(const QString &filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts.at(i).section(u'(', 0, 0).trimmed();
        filters << u"%1 (%2)"_s.arg(name, parts.at(i + 1));
    }
    return filters;
}

// The chooser's own default suffix also goes to a file that is there without one, such as a program.
QString WithExtension(const QString &path, const QString &extension) {
    const QFileInfo file(path);
    const bool complete = extension.isEmpty() || file.fileName().contains(u'.') || file.exists();
    return complete ? path : path + u'.' + extension;
}

std::optional<QString> Chosen(QFileDialog &chooser, const FileDialog &dialog) {
    chooser.setNameFilters(NameFilters(dialog.filter));
    if (!dialog.folder.isEmpty())
        chooser.setDirectory(dialog.folder);
    chooser.selectFile(dialog.fileName);
    if (chooser.exec() != QDialog::Accepted)
        return std::nullopt;
    return WithExtension(chooser.selectedFiles().value(0), dialog.defaultExtension);
}

// A form that blocks the others comes first. Otherwise the main window is what a box blocks, not a form that
// stands beside it.
QWidget *ParentOfBox() {
    if (QWidget *const modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget *const top : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow *>(top) && top->isVisible())
            return top;
    }
    return nullptr;
}

} // namespace

BoxAnswer WidgetDialogs::Show(const MessageBox &box) {
    QMessageBox message(ParentOfBox());
    message.setWindowModality(Qt::WindowModal);
    message.setWindowTitle(box.title);
    message.setIcon(IconOf(box.icon));
    message.setTextFormat(Qt::PlainText);
    message.setText(ForScreen(box.text));
    message.setInformativeText(ForScreen(box.detail));
    for (QLabel *label : message.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText); // setTextFormat leaves the informative text out
    const auto buttons = box.buttons == BoxButtons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                                          : QMessageBox::StandardButtons(QMessageBox::Ok);
    message.setStandardButtons(buttons);
    message.setDefaultButton(ButtonOf(box.defaultAnswer));
    message.setEscapeButton(ButtonOf(box.defaultAnswer));
    switch (message.exec()) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    default: // also for a box that the end of the program closes
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : box.defaultAnswer;
    }
}

QString WidgetDialogs::Ask(const InputBox &box) {
    QInputDialog input(ParentOfBox());
    input.setWindowTitle(box.title);
    input.setLabelText(ForScreen(box.prompt));
    input.setTextValue(box.defaultText);
    for (QLabel *label : input.findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    input.setMinimumWidth(input.fontMetrics().averageCharWidth() * 70);
    return input.exec() == QDialog::Accepted ? input.textValue() : QString();
}

std::optional<QString> WidgetDialogs::OpenFile(const FileDialog &dialog) {
    QFileDialog chooser(ParentOfBox(), QObject::tr("Open"));
    chooser.setFileMode(QFileDialog::AnyFile); // a name that is not there yet is an answer, too
    chooser.setAcceptMode(QFileDialog::AcceptOpen);
    return Chosen(chooser, dialog);
}

std::optional<QString> WidgetDialogs::SaveFile(const FileDialog &dialog) {
    QFileDialog chooser(ParentOfBox(), QObject::tr("Save As"));
    chooser.setFileMode(QFileDialog::AnyFile);
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    return Chosen(chooser, dialog);
}

} // namespace lanterra
