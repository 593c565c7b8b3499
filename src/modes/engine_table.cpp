#include "modes/engine_table.h"

#include "support/code_page.h"
#include "support/sifrant.h"
#include "support/text_file.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr qsizetype linesOfRecord = 6;

EngineRow ReadRecord(const QStringList &lines, qsizetype opening) {
    const auto valueOf = [&](qsizetype line, QLatin1StringView key) {
        return lines.value(opening + line).remove(key, Qt::CaseInsensitive);
    };
    EngineRow row;
    row.name = valueOf(1, "Name="_L1);
    row.searchPage = valueOf(2, "Search="_L1);
    row.referrer = valueOf(3, "Referer="_L1);
    row.submitTemplate = valueOf(4, "Submit="_L1);
    return row;
}

} // namespace

bool EngineTable::Read(const QString &path) {
    QByteArray key = "plavac";
    return Load(CodePage::Decode(Sifrant().DeSifriraj(CodePage::Encode(ReadFileText(path)), key)));
}

bool EngineTable::Load(const QString &text) {
    rows.clear();
    const QStringList lines = text.split("\r\n"_L1);
    const qsizetype highestLine = lines.size() - 1;
    if (highestLine <= 1)
        return false;
    const auto capacity = static_cast<std::size_t>(highestLine / linesOfRecord + 1);
    for (qsizetype i = 0; i <= highestLine; ++i) {
        if (!lines[i].contains("search engine"_L1, Qt::CaseInsensitive))
            continue;
        if (rows.size() == capacity)
            return false;
        rows.push_back(ReadRecord(lines, i));
    }
    return true;
}

} // namespace lanterra
