#pragma once

#include "cli/command.h"
#include "cli/live_lines.h"
#include "shell/program.h"

#include <QJsonArray>

namespace lanterra {

/// What a job of the top engines shows: its progress while it goes on, then the engines of each URL with
/// their results and the path of the report, or with --json all of it as one object.
class TopOutput final : public QObject {
    Q_OBJECT

public:
    /// All must outlive this.
    TopOutput(const CommandCall &commandCall, Program &theProgram);

    /// Whether the report of any URL has been written.
    bool HasReports() const { return !urls.isEmpty(); }

    /// Ends the progress and prints what the job came to.
    void Print();

private:
    void TakeUrl(int slot);
    QJsonArray Engines() const;
    QStringList ProgressLines() const;
    void PrintUrl(const QJsonObject &url) const;

    const CommandCall &call;
    Program &program;
    std::chrono::milliseconds began;
    QJsonArray urls;
    std::unique_ptr<LiveLines> drawing;
};

} // namespace lanterra
