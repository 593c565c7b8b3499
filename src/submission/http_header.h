#pragma once

#include <QString>
#include <optional>

namespace lanterra {

/// Reads what a channel needs from the header of an answer. It keeps its last result until the next Parse,
/// also when a later exchange ends without a header.
class HttpHeader {
public:
    void SetRawHeader(const QString &text) { rawHeader = text; }

    /// Reads the raw header up to its first empty line. Line ends may be CR LF or LF alone.
    void Parse();

    /// "Informational", "Success", "Redirection", "Client Error" or "Server Error" for status 100 to 599;
    /// empty for any other status and before the first Parse.
    const QString &StatusClass() const { return statusClass; }

    /// The number of the status line, nothing if it has none.
    std::optional<int> StatusCode() const { return statusCode; }

    /// The number and the words behind it ("404 Not Found").
    const QString &StatusText() const { return statusText; }

    /// The value of the first Location line, with its continuation lines joined by a blank; empty if there is
    /// none.
    const QString &LocationValue() const { return locationValue; }

private:
    void ReadStatusLine(const QString &line);

    QString rawHeader;
    QString statusClass;
    std::optional<int> statusCode;
    QString statusText;
    QString locationValue;
};

} // namespace lanterra
