#pragma once

#include "ports/clock.h"
#include "ports/document_opener.h"
#include "ports/event_queue.h"

class QProcess;

namespace lanterra {

/// Opens documents by starting programs, each in a session of its own and without standard streams. A program
/// that still runs when a call returns runs on, also beyond the end of this process.
class ProcessDocumentOpener final : public DocumentOpener {
public:
    /// `openerProgram` opens a document with the desktop's application for it, and ends with exit code 3 if
    /// it finds none, as xdg-open does. A name without a folder is looked for in the PATH. Queue and clock
    /// must outlive this.
    ProcessDocumentOpener(EventQueue &eventQueue, const Clock &steadyClock,
                          QString openerProgram = QStringLiteral("xdg-open"));

    OpenResult OpenWithDefault(const QString &document) override;
    OpenResult Start(const QString &program, const QStringList &arguments) override;

private:
    /// The exit code, 0 also for a program that runs on, negative for one that could not be started or was
    /// killed.
    int Run(const QString &program, const QStringList &arguments);
    void WaitFor(const QProcess &process);

    EventQueue &queue;
    const Clock &clock;
    QString opener;
};

} // namespace lanterra
