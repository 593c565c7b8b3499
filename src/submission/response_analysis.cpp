#include "submission/response_analysis.h"

#include "support/numbers.h"
#include "support/text_file.h"

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString unknownError = u"Error: unknown"_s;
const QString notAvailable = u"n/a"_s;

bool Holds(const QString &text, QLatin1StringView part) { return text.contains(part, Qt::CaseInsensitive); }

bool HasStatusLine(const QString &text) { return Holds(text, "HTTP/1."_L1) || Holds(text, "HTTP/0."_L1); }

// The text behind a label up to its line feed, without the CR before it.
QString LabelledValue(const QString &text, QLatin1StringView label) {
    const qsizetype found = text.indexOf(label, 0, Qt::CaseInsensitive);
    const qsizetype lineEnd = found < 0 ? -1 : text.indexOf(u'\n', found);
    if (lineEnd < 0)
        return notAvailable;
    const QString value = text.mid(found + label.size(), lineEnd - found - label.size());
    return value.endsWith(u'\r') ? value.chopped(1) : value;
}

// The value of "Location: " up to the CR of its line; nothing without the label or the CR. Found in one step,
// without the turns of the queue that a walk by characters would take: the yields between the phrases are
// enough.
std::optional<QString> LocationUpToCr(const QString &text) {
    constexpr QLatin1StringView label = "Location: "_L1;
    const qsizetype found = text.indexOf(label, 0, Qt::CaseInsensitive);
    const qsizetype lineEnd = found < 0 ? -1 : text.indexOf(u'\r', found);
    if (lineEnd < 0)
        return {};
    return text.mid(found + label.size(), lineEnd - found - label.size());
}

} // namespace

ResponseAnalysis::ResponseAnalysis(EventQueue &eventQueue)
    : queue(eventQueue),
      failurePhrases(ReadFileText(u":/submission/failure_phrases.txt"_s).split(u'\n', Qt::SkipEmptyParts)) {}

QString ResponseAnalysis::FirstFailure(const QString &text) {
    for (const QString &phrase : failurePhrases) {
        const bool hit = text.contains(phrase, Qt::CaseInsensitive);
        queue.Yield();
        if (hit)
            return u"Error: "_s + phrase;
    }
    return {};
}

QString ResponseAnalysis::AnalyseResponseHeader(QString text) {
    text += u"\r\n"_s;
    QString verdict = FirstFailure(text);
    if (verdict.isEmpty() && !HasStatusLine(text))
        verdict = unknownError;
    if (!verdict.isEmpty()) {
        lastModified = notAvailable;
        contentLength = u"0"_s;
        contentType = notAvailable;
        return verdict;
    }
    // "Error: No redirection URL" is not handed on: such an answer is judged by its other lines.
    if (QString redirection = ReadRedirection(text); redirection == "Redirection"_L1)
        return redirection;
    lastModified = LabelledValue(text, "Last-Modified: "_L1);
    contentLength = LabelledValue(text, "Content-Length: "_L1);
    if (!IsNumeric(contentLength))
        contentLength = u"0"_s;
    contentType =
        Holds(text, "Content-Type: text/html"_L1) ? u"text/html"_s : LabelledValue(text, "Content-Type: "_L1);
    return LeadingNumber(contentLength) > 0 && Holds(contentType, "text/"_L1) ? u"Done"_s : QString();
}

QString ResponseAnalysis::ReadRedirection(const QString &text) {
    const QString line = text.left(text.indexOf(u'\n'));
    constexpr std::array marks{"300 "_L1, "301 "_L1,      "302 "_L1,   "303 "_L1,
                               "304 "_L1, " multiple"_L1, " moved"_L1, " Redirection"_L1};
    if (std::none_of(marks.begin(), marks.end(), [&](QLatin1StringView mark) { return Holds(line, mark); }))
        return {};
    return LocationUpToCr(line) ? u"Redirection"_s : u"Error: No redirection URL"_s;
}

QString ResponseAnalysis::ScanLocation(QString text) {
    text += u"\r\n"_s;
    if (!FirstFailure(text).isEmpty())
        return {};
    if (!HasStatusLine(text))
        return unknownError;
    return LocationUpToCr(text).value_or(QString());
}

} // namespace lanterra
