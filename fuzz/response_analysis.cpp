#include "submission/response_analysis.h"

#include "fuzz/promise.h"
#include "support/code_page.h"
#include "support/numbers.h"
#include "tests/fakes/scripted_event_queue.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

void KeepItsPromises(ResponseAnalysis &analysis, const QString &text) {
    const QString verdict = analysis.AnalyseResponseHeader(text);
    const bool failed = verdict.startsWith(u"Error: "_s);
    Promise(failed || verdict.isEmpty() || verdict == "Redirection"_L1 || verdict == "Done"_L1,
            "there are four kinds of verdict");
    Promise(verdict == "Redirection"_L1 || IsNumeric(analysis.contentLength), "the length is a number");
    Promise(!failed || (analysis.lastModified == "n/a"_L1 && analysis.contentType == "n/a"_L1),
            "a failure has no values");
    Promise(verdict != "Done"_L1 || LeadingNumber(analysis.contentLength) > 0,
            "a text that is done has a length");
    Promise(!analysis.lastModified.contains(u'\n'), "a value stays within its line");
    Promise(!analysis.ScanLocation(text).contains(u'\r'), "a location ends before its line does");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    FakeClock clock;
    ScriptedEventQueue queue(clock);
    ResponseAnalysis analysis(queue);
    KeepItsPromises(analysis, CodePage::Decode(QByteArrayView(data, static_cast<qsizetype>(size))));
    return 0;
}
