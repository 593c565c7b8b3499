#pragma once

#include "controls/text_box.h"
#include "ports/dialogs.h"
#include "ports/document_opener.h"

namespace lanterra {

/// Shows reports, logs, search results and web addresses, in the browser that the user chose.
class DocumentViewer {
public:
    /// `path` is the BrowserPath of the browser form. All must outlive this.
    DocumentViewer(const TextBox &path, DocumentOpener &documentOpener, Dialogs &messageBoxes);

    /// Shows a file or an address. A BrowserPath without text leaves it to the desktop. Otherwise BrowserPath
    /// is one program if a file of that name exists, and else a program and its arguments, split as a shell
    /// would; the document is one more argument. Only a missing application is told to the user. Yields.
    void OpenDocument(const QString &document);

private:
    OpenResult Open(const QString &document);

    const TextBox &browserPath;
    DocumentOpener &opener;
    Dialogs &dialogs;
};

} // namespace lanterra
