#include "platform/process_document_opener.h"

#include <QProcess>
#include <memory>
#include <unistd.h>

using namespace std::chrono_literals;

namespace lanterra {

namespace {

constexpr auto patience = 2s;    ///< a program that runs longer has worked
constexpr int success = 0;       ///< exit code
constexpr int noMethodFound = 3; ///< exit code of xdg-open, from its manual page
constexpr int couldNotRun = -1;  ///< no program ends with this code

std::unique_ptr<QProcess> Prepared(const QString &program, const QStringList &arguments) {
    auto process = std::make_unique<QProcess>();
    process->setProgram(program);
    process->setArguments(arguments);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { setsid(); });
    return process;
}

/// Deleting the object would end its program. It deletes itself behind the program's end; if this process
/// ends first, the object is left to the system so that the program runs on.
void LeaveRunning(std::unique_ptr<QProcess> process) {
    QProcess *left = process.release();
    QObject::connect(left, &QProcess::finished, left, &QObject::deleteLater);
}

int ExitCode(const QProcess &process) {
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : couldNotRun;
}

} // namespace

ProcessDocumentOpener::ProcessDocumentOpener(EventQueue &eventQueue, const Clock &steadyClock,
                                             QString openerProgram)
    : queue(eventQueue), clock(steadyClock), opener(std::move(openerProgram)) {}

OpenResult ProcessDocumentOpener::OpenWithDefault(const QString &document) {
    const int exitCode = Run(opener, {document});
    if (exitCode == noMethodFound)
        return OpenResult::NoApplication;
    return exitCode == success ? OpenResult::Opened : OpenResult::Failed;
}

OpenResult ProcessDocumentOpener::Start(const QString &program, const QStringList &arguments) {
    return Run(program, arguments) == success ? OpenResult::Opened : OpenResult::Failed;
}

int ProcessDocumentOpener::Run(const QString &program, const QStringList &arguments) {
    std::unique_ptr<QProcess> process = Prepared(program, arguments);
    process->start();
    if (!process->waitForStarted())
        return couldNotRun;
    WaitFor(*process);
    if (process->state() == QProcess::NotRunning)
        return ExitCode(*process);
    LeaveRunning(std::move(process));
    return success;
}

void ProcessDocumentOpener::WaitFor(const QProcess &process) {
    const auto deadline = clock.Elapsed() + patience;
    while (process.state() != QProcess::NotRunning && clock.Elapsed() < deadline && !queue.Closing())
        queue.Wait(deadline - clock.Elapsed());
}

} // namespace lanterra
