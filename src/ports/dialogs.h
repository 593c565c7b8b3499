#pragma once

#include <QString>
#include <optional>

namespace lanterra {

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

/// One message box. `text`, `title` and `detail` are shown as plain text, never as markup.
struct MessageBox {
    QString text;
    QString title;
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::Ok;
    BoxAnswer defaultAnswer =
        BoxAnswer::Ok;   ///< the button that Return presses and that closing the box means
    QString detail = {}; ///< the reason, shown below the text; empty for none
};

/// One line asked of the user.
struct InputBox {
    QString prompt;
    QString title;
    QString defaultText;
};

/// A file dialog. It starts in `folder` with `fileName` filled in and offers `filter` ("Text|*.pattern|...").
struct FileDialog {
    QString filter;
    QString folder;
    QString fileName;
    QString defaultExtension; ///< added to a typed name without one; empty for none
};

/// Everything that stops the user with a question. Each call blocks while events go on, and returns the
/// answer.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual BoxAnswer Show(const MessageBox &box) = 0;

    /// The typed line. A cancelled box gives the empty text.
    virtual QString Ask(const InputBox &box) = 0;

    /// The chosen path, absolute, or nothing when the user cancelled. The file need not exist.
    virtual std::optional<QString> OpenFile(const FileDialog &dialog) = 0;

    /// As OpenFile, and the user has agreed that an existing file of that name is replaced.
    virtual std::optional<QString> SaveFile(const FileDialog &dialog) = 0;
};

} // namespace lanterra
