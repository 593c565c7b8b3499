#pragma once

#include "cli/console.h"
#include "ports/dialogs.h"

namespace lanterra {

/// Message boxes as lines on standard error. Nobody is there to ask, so a question takes the answer that was
/// given on the command line, or else its box's default.
class ConsoleDialogs final : public Dialogs {
public:
    /// `answer` is Yes or No, or nothing if neither was given. The console must outlive this.
    ConsoleDialogs(Console &standardStreams, std::optional<BoxAnswer> answer)
        : console(standardStreams), givenAnswer(answer) {}

    /// Tells "TITLE: TEXT".
    BoxAnswer Show(const MessageBox &box) override;
    /// Gives the empty text.
    QString Ask(const InputBox &box) override;
    /// Both cancel.
    std::optional<QString> OpenFile(const FileDialog &dialog) override;
    std::optional<QString> SaveFile(const FileDialog &dialog) override;

    /// The number of message boxes that have come up.
    int BoxCount() const { return boxCount; }

private:
    Console &console;
    std::optional<BoxAnswer> givenAnswer;
    int boxCount = 0;
};

} // namespace lanterra
