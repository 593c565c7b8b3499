#include "cli/run_output.h"

#include "cli/run_summary.h"
#include "submission/required_fields.h"
#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QStringList ReportScreenLines(ReportForm &form) {
    form.BuildReportText();
    return form.PlainText().chopped(1).split(u'\n');
}

} // namespace

void PrintRun(const CommandCall &call, Program &program) {
    const bool asText = call.options.isSet(u"text"_s);
    for (const QString &line : asText ? ReportScreenLines(program.frmReport) : RunSummaryLines(program))
        call.console.Print(line);
}

Outcome ChecksRefusal(ProjectRecord &record, const QString &advice) {
    QStringList empty;
    if (IsBlank(record.txtURL.Text()))
        empty << record.txtURL.objectName();
    for (const TextBox *field : BindRequiredFields(record)) {
        if (IsBlank(field->Text()) && !empty.contains(field->objectName()))
            empty << field->objectName();
    }
    return Outcome::Refused(empty.isEmpty() ? advice : u"These are empty: %1."_s.arg(empty.join(", "_L1)));
}

} // namespace lanterra
