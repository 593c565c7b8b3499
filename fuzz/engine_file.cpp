#include "fuzz/promise.h"
#include "modes/engine_table.h"
#include "support/code_page.h"
#include "support/sifrant.h"
#include "support/whole_file.h"

#include <QTemporaryDir>
#include <algorithm>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

bool SameRows(const EngineTable &first, const EngineTable &second) {
    return std::equal(first.rows.begin(), first.rows.end(), second.rows.begin(), second.rows.end(),
                      [](const EngineRow &a, const EngineRow &b) {
                          return a.name == b.name && a.searchPage == b.searchPage &&
                                 a.referrer == b.referrer && a.submitTemplate == b.submitTemplate;
                      });
}

void KeepItsPromises(const QString &text) {
    EngineTable table;
    const bool complete = table.Load(text);
    const qsizetype highestLine = text.count(u"\r\n"_s);
    Promise(static_cast<qsizetype>(table.rows.size()) <= highestLine / 6 + 1, "six lines make a record");
    Promise(!complete || highestLine > 1, "a text of two lines is no engine file");
    for (const EngineRow &row : table.rows)
        Promise(row.request.isEmpty() && row.result.isEmpty(), "nothing was submitted yet");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray bytes = QByteArrayView(data, static_cast<qsizetype>(size)).toByteArray();
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"engine.dat"_s);
    EngineTable fromFile;
    WriteWholeFile(file, bytes);
    fromFile.Read(file); // most likely garbage, as from a damaged file

    const QString text = CodePage::Decode(bytes);
    KeepItsPromises(text);
    QByteArray key = "plavac";
    WriteWholeFile(file, Sifrant().Sifriraj(bytes, key));
    EngineTable fromText;
    Promise(fromFile.Read(file) == fromText.Load(text) && SameRows(fromFile, fromText),
            "an enciphered text is read as the text itself");
    return 0;
}
