#include "cli/console_dialogs.h"

using namespace Qt::StringLiterals;

namespace lanterra {

BoxAnswer ConsoleDialogs::Show(const MessageBox &box) {
    ++boxCount;
    QString text = box.title + u": "_s + box.text;
    if (!box.detail.isEmpty())
        text = text.trimmed() + u' ' + box.detail;
    console.TellLine(text.replace("\r\n"_L1, " "_L1));
    return box.buttons == BoxButtons::YesNo ? givenAnswer.value_or(box.defaultAnswer) : box.defaultAnswer;
}

QString ConsoleDialogs::Ask(const InputBox &) { return {}; }

std::optional<QString> ConsoleDialogs::OpenFile(const FileDialog &) { return {}; }

std::optional<QString> ConsoleDialogs::SaveFile(const FileDialog &) { return {}; }

} // namespace lanterra
