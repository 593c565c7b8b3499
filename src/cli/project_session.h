#pragma once

#include "cli/command.h"
#include "cli/console_dialogs.h"
#include "cli/console_forms.h"
#include "cli/no_clipboard.h"
#include "cli/no_printer.h"
#include "cli/unopened_documents.h"
#include "shell/program.h"

namespace lanterra {

/// A whole program for one command, with one project open in it. Its files are closed with it.
class ProjectSession {
public:
    /// The call must outlive this. Makes the program's folder ready and loads the user's options.
    explicit ProjectSession(const CommandCall &commandCall);

    /// Opens an existing project; nothing is created and nothing is changed, unless the master is newer: the
    /// project then takes over its sites, and the command must be given again. Refuses a file that is no
    /// project. Yields.
    Outcome Open(const QString &file);

    /// Makes a new project from the master and opens it. Refuses to replace a file without --yes. Yields.
    Outcome Create(const QString &file);

    /// Stores the open project. Texts that are too long are told one by one, and make it fail when all else
    /// has been stored. Yields.
    Outcome Save();

    /// The message boxes that have come up so far.
    int BoxCount() const { return dialogs.BoxCount(); }
    bool HasShownBox() const { return BoxCount() > 0; }

    /// What is taken from the popup that SUBMIT opens; the automated entry unless another one is named.
    void ChooseInPopup(ConsoleForms::Entry entry) { forms.SetSubmitEntry(entry); }

private:
    Outcome NotStored(const StoreResult &result) const;

    const CommandCall &call;
    ConsoleDialogs dialogs;
    ConsoleForms forms;
    UnopenedDocuments documents;
    NoPrinter printer;
    NoClipboard clipboard;

public:
    Program program; ///< made behind the doors that it uses
};

} // namespace lanterra
