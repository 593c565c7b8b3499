#pragma once

#include <QString>
#include <vector>

namespace lanterra {

/// One search engine: what the engine file says of it, and what its last submission came to.
struct EngineRow {
    QString name;
    QString searchPage;     ///< address of the engine's search page, for the report
    QString referrer;       ///< page that the request names as the one it comes from; the report links it too
    QString submitTemplate; ///< address with the whole request, its placeholders unexpanded

    QString request;     ///< submitTemplate expanded for the current URL
    QString resultImage; ///< address of the image that tells the result
    QString answerFile;  ///< path of the engine's answer, empty for none
    QString result;      ///< in words
};

/// The engines of the file engine.dat, which is enciphered as a whole under the key "plavac". Deciphered it
/// is lines with CR LF between them. A line that holds "search engine" anywhere, in whatever case, opens a
/// record; the four lines behind it are taken by their position:
///
///     [Search engine]
///     Name=Plainseek
///     Search=http://www.plainseek.example/
///     Referer=http://www.plainseek.example/addurl.html
///     Submit=http://www.plainseek.example/add?u=[url]&mail=[email]&who=[name]
///     (a sixth line, which nothing reads)
///
/// Every occurrence of its key is removed from each of the four, so no value can hold its own key, not even
/// in a query; a missing key is fine. A line that is missing at the end of the file reads as empty. All other
/// lines are passed over. Six lines are reckoned for a record: a file of denser records holds more than its
/// table takes, and the rest of it is not read.
class EngineTable {
public:
    /// Reads and deciphers the file, then does as Load. A file that can't be read is an empty text.
    bool Read(const QString &path);

    /// Rebuilds the table from a deciphered text. False, with no rows, if the text has fewer than three
    /// lines, and false with the rows so far if there are more records than the table takes.
    bool Load(const QString &text);

    std::vector<EngineRow> rows;
};

} // namespace lanterra
