#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QString>

namespace lanterra {

/// Standard output and standard error of the process, in UTF-8. Texts come from sites, projects and answers,
/// so control characters are replaced before they could command a terminal.
class Console {
public:
    Console();

    /// One line of output; a line break inside becomes "?" like any control character.
    void Print(const QString &line);

    /// A text of this program's own, whose line breaks count.
    void PrintText(const QString &text);

    /// JSON of several lines. Control characters that JSON allows in a text are escaped.
    void PrintJson(const QString &json);
    void PrintJson(const QJsonDocument &document);

    /// Bytes in the code page, as they are; on a terminal as readable text.
    void PrintBytes(const QByteArray &bytes);

    /// A sentence to the user on standard error, behind all output so far, with the program's name in front.
    void Tell(const QString &sentence);
    /// A line on standard error that speaks for itself.
    void TellLine(const QString &line);

    /// Whether progress can be drawn: standard error is a terminal that moves its cursor.
    bool CanDraw() const;
    /// Characters across that terminal, 80 if it doesn't say.
    int Columns() const;
    /// Whether colours are wanted there: NO_COLOR is not set.
    bool HasColour() const;
    /// Sends a drawing with its cursor commands to standard error.
    void Draw(const QString &drawing);

    /// Flushes. False if any output was lost, as on a full disk.
    bool Finish();

private:
    void Write(QFile &stream, const QByteArray &bytes);

    QFile output;
    QFile error;
    bool lost = false;
};

/// The text with every control character, line breaks included, replaced by "?".
QString WithoutControls(QString text);

} // namespace lanterra
