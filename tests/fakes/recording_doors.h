#pragma once

#include "ports/clipboard.h"
#include "ports/document_opener.h"
#include "ports/forms.h"
#include "ports/printer.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

// The doors that only let something out: each keeps what came through it, for the test to look at.

namespace lanterra {

/// A clipboard that holds what some other program has put there until it is changed.
class FakeClipboard final : public Clipboard {
public:
    void Clear() override { text.clear(); }
    void SetText(const QString &newText) override { text = newText; }

    QString text = QStringLiteral("of another program");
};

/// Keeps each printed document.
class FakePrinter final : public Printer {
public:
    void PrintText(const QString &text) override { documents.append(text); }

    QStringList documents;
};

/// Records what would have been opened and gives `result`.
class FakeDocumentOpener final : public DocumentOpener {
public:
    OpenResult OpenWithDefault(const QString &document) override { return Start(QString(), {document}); }
    OpenResult Start(const QString &program, const QStringList &arguments) override {
        opened.push_back({program, arguments});
        return result;
    }

    /// What was opened since the last call, a line each: "PROGRAM|ARGUMENT|ARGUMENT ...", with nothing in
    /// place of the program if it is the desktop's application.
    QString Opened() {
        QStringList lines;
        for (const Call &call : std::exchange(opened, {}))
            lines << (QStringList(call.program) << call.arguments).join(u'|');
        return lines.join(u'\n');
    }

    struct Call {
        QString program; ///< empty for the desktop's application
        QStringList arguments;
    };
    std::vector<Call> opened;
    OpenResult result = OpenResult::Opened;
};

/// Forms and menus that a test works by a function each; one without a function is dismissed.
class FakeForms final : public Forms {
public:
    void ShowModal(ModalForm form) override {
        shown.push_back(form);
        if (const auto found = onForm.find(form); found != onForm.end())
            found->second();
    }
    void PopUp(PopupMenu menu) override {
        poppedUp.push_back(menu);
        if (const auto found = onMenu.find(menu); found != onMenu.end())
            found->second();
    }

    std::map<ModalForm, std::function<void()>> onForm;
    std::map<PopupMenu, std::function<void()>> onMenu;
    std::vector<ModalForm> shown;
    std::vector<PopupMenu> poppedUp;
};

} // namespace lanterra
