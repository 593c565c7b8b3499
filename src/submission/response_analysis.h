#pragma once

#include "ports/event_queue.h"

#include <QString>
#include <QStringList>

namespace lanterra {

/// Judges the first block of a download by its words. No verdict of a run depends on it: those look at the
/// class of the status alone.
class ResponseAnalysis {
public:
    /// The queue must outlive this.
    explicit ResponseAnalysis(EventQueue &eventQueue);

    /// "Error: " and the first failure phrase that the text holds; "Error: unknown" for a text without a
    /// status line; "Redirection"; "Done" for a text answer with a length; otherwise the empty text, which is
    /// good, too. Sets the three values. Yields after each phrase.
    QString AnalyseResponseHeader(QString text);

    /// "", "Redirection" or "Error: No redirection URL". Only the first line is looked at, so an ordinary
    /// redirection, whose Location stands further down, gives the last.
    QString ReadRedirection(const QString &text);

    /// The redirection target in the header, "" without one or if a failure phrase occurs, and "Error:
    /// unknown" without a status line. Yields after each phrase.
    QString ScanLocation(QString text);

    QString lastModified;
    QString contentLength;
    QString contentType;

private:
    QString FirstFailure(const QString &text);

    EventQueue &queue;
    QStringList failurePhrases; ///< in the order of the search, the first hit counts
};

} // namespace lanterra
