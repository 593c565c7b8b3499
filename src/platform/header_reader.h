#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace lanterra {

/// One header line, without blanks around name and value. A folded value is joined by single blanks.
struct HeaderField {
    QByteArray name; ///< lower case
    QByteArray value;
};

/// The status line and header lines of one answer.
struct AnswerHeader {
    int status = 0; ///< 100 to 999
    QList<HeaderField> fields;
};

/// Reads the header of an HTTP/1.0 or HTTP/1.1 answer as its bytes arrive, without a socket. Interim answers
/// (100 and 102 to 199) are skipped; a bare LF is a line end. It fails, for good, at what is no such header
/// (a line without a colon, a bare CR or NUL, an answer 101 that nobody asked for) and at these bounds: 100
/// KB a line, 300 KB and 5,000 lines in all, interim answers included.
class HeaderReader {
public:
    enum class State { Reading, Complete, Failed };

    /// Takes bytes from the front of `input`, up to the empty line that ends the header.
    State Read(QByteArrayView &input);

    bool HasBegun() const { return bytesRead > 0; }
    const AnswerHeader &Header() const { return header; }

    /// Once complete: the header as it came, from its status line to its empty line.
    const QByteArray &Text() const { return text; }

    /// Once failed: a sentence that says why.
    const QString &Problem() const { return problem; }

private:
    void TakeLine(QByteArrayView line);
    void TakeStatusLine(QByteArrayView line);
    void TakeField(QByteArrayView line);
    void TakeEmptyLine();
    void Fail(const QString &reason);

    State state = State::Reading;
    AnswerHeader header;
    QByteArray text;
    QString problem;
    qsizetype lineStart = 0; ///< of the unfinished line in text
    qsizetype bytesRead = 0;
    int linesRead = 0;
};

} // namespace lanterra
