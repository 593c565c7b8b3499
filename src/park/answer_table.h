#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace lanterra {

/// An answer of the practice web in words. Texts and location hold slots like "{{url}}".
struct AnswerText {
    int status = 500;
    QByteArray reason = "Internal Server Error";
    bool refuses = false; ///< says no, whatever the status says
    QString location;     ///< of a redirection; empty for none
    QString title;
    QStringList paragraphs;

    /// "accepted", "refused", or the status in figures.
    QString Outcome() const;
};

/// The answers by key, from the table that is built into the program.
class AnswerTable {
public:
    AnswerTable();

    /// An unknown key gives an internal server error without words.
    AnswerText Find(const QString &key) const { return answers.value(key); }
    bool Contains(const QString &key) const { return answers.contains(key); }

private:
    QHash<QString, AnswerText> answers;
};

} // namespace lanterra
