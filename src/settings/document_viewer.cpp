#include "settings/document_viewer.h"

#include "support/file_names.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace lanterra {

DocumentViewer::DocumentViewer(const TextBox &path, DocumentOpener &documentOpener, Dialogs &messageBoxes)
    : browserPath(path), opener(documentOpener), dialogs(messageBoxes) {}

void DocumentViewer::OpenDocument(const QString &document) {
    if (Open(document) != OpenResult::NoApplication)
        return;
    dialogs.Show({.text = u"There is no application for this type of file!"_s, .title = u"Error"_s});
}

OpenResult DocumentViewer::Open(const QString &document) {
    const QString browser = browserPath.Text().trimmed();
    if (FileExists(browser))
        return opener.Start(browser, {document});
    QStringList words = QProcess::splitCommand(browser);
    if (words.isEmpty())
        return opener.OpenWithDefault(document);
    const QString program = words.takeFirst();
    return opener.Start(program, words << document);
}

} // namespace lanterra
