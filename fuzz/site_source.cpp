#include "fuzz/promise.h"
#include "project/site_source_build.h"
#include "project/site_source_check.h"
#include "support/whole_file.h"

#include <QTemporaryDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

void ComesBack(const SiteSourceReading &reading, const SiteSource &source) {
    Promise(reading.findings.isEmpty() && reading.source == source, "what was written is read back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QTemporaryDir folder;
    const QString list = folder.filePath(u"sites.json"_s);
    const QString database = folder.filePath(u"ng.dll"_s);
    WriteWholeFile(list, QByteArrayView(data, static_cast<qsizetype>(size)).toByteArray());
    const SiteSourceReading reading = ReadSiteSource(list);
    if (!reading.findings.isEmpty())
        return 0;
    WriteWholeFile(list, SiteSourceText(reading.source).toUtf8());
    ComesBack(ReadSiteSource(list), reading.source);
    if (!CheckSiteSource(reading.source, list).isEmpty())
        return 0;
    Promise(BuildSiteDatabase(reading.source, database), "a list that passes the check can be built");
    ComesBack(ReadSiteDatabase(database), reading.source);
    return 0;
}
