#pragma once

#include "ports/dialogs.h"

#include <QStringList>
#include <deque>
#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace lanterra {

/// Message boxes without buttons to press: OK boxes are recorded and pass; every question must have been
/// answered beforehand, and one that wasn't fails the test.
class FakeDialogs final : public Dialogs {
public:
    BoxAnswer Show(const MessageBox &box) override {
        boxes.push_back(box);
        onShow();
        return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : Next(answers, box.text);
    }
    QString Ask(const InputBox &box) override {
        inputBoxes.push_back(box);
        onAsk();
        return Next(lines, box.title);
    }
    std::optional<QString> OpenFile(const FileDialog &dialog) override {
        fileDialogs.push_back(dialog);
        return Next(files, dialog.filter);
    }
    std::optional<QString> SaveFile(const FileDialog &dialog) override { return OpenFile(dialog); }

    /// The boxes since the last call, a line each: "TITLE: TEXT", with " | DETAIL" behind it if there is one.
    QString Told() {
        QStringList told;
        for (const MessageBox &box : std::exchange(boxes, {}))
            told << box.title + QStringLiteral(": ") + box.text +
                        (box.detail.isEmpty() ? QString() : QStringLiteral(" | ") + box.detail);
        return told.join(u'\n');
    }

    std::deque<BoxAnswer> answers;
    std::deque<QString> lines;
    std::deque<std::optional<QString>> files;
    std::function<void()> onShow = [] {}; ///< runs while a message box is up
    std::function<void()> onAsk = [] {};  ///< runs while the input box is up

    std::vector<MessageBox> boxes;
    std::vector<InputBox> inputBoxes;
    std::vector<FileDialog> fileDialogs;

private:
    template <class T>
    static T Next(std::deque<T> &prepared, const QString &question) {
        if (prepared.empty())
            throw std::logic_error("unexpected question: " + question.toStdString());
        T answer = prepared.front();
        prepared.pop_front();
        return answer;
    }
};

} // namespace lanterra
