#pragma once

#include <QString>

namespace lanterra {

/// What the program tells the shell at its end.
enum class ExitCode {
    Done = 0,
    Failed = 1,
    WrongUse = 2,
    Refused = 3,    ///< by a check or an unanswered question
    Cancelled = 130 ///< as shells report an end by Ctrl-C
};

/// How a command ended, with what the user should be told beyond its output.
struct Outcome {
    ExitCode code = ExitCode::Done;
    QString sentence = {}; ///< for standard error, empty for none

    bool Good() const { return code == ExitCode::Done; }

    static Outcome Failed(const QString &sentence) { return {ExitCode::Failed, sentence}; }
    static Outcome WrongUse(const QString &sentence) { return {ExitCode::WrongUse, sentence}; }
    static Outcome Refused(const QString &sentence) { return {ExitCode::Refused, sentence}; }
};

} // namespace lanterra
