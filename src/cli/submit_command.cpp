#include "cli/commands.h"
#include "cli/interrupt.h"
#include "cli/project_session.h"
#include "cli/run_progress.h"
#include "cli/run_summary.h"
#include "submission/required_fields.h"
#include "support/numbers.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lanterra {

namespace {

/// Holds the button Cancel down from Ctrl-C to the end of the run. One press isn't enough: a site that is
/// handed out behind it would be waited for.
class CancelOnInterrupt {
public:
    explicit CancelOnInterrupt(SubmissionRun &submissionRun) : run(submissionRun) {
        again.setInterval(pace);
        QObject::connect(&again, &QTimer::timeout, &again, [this] { Press(); });
        QObject::connect(&interrupt, &Interrupt::Pressed, &again, [this] {
            Press();
            again.start();
        });
    }

    bool WasPressed() const { return interrupt.WasPressed(); }

private:
    static constexpr auto pace = 50ms;

    void Press() {
        if (run.RunActive())
            run.cmdCancel_Click();
    }

    SubmissionRun &run;
    Interrupt interrupt;
    QTimer again;
};

/// What the checks of a run refuse, in more words than their box has.
Outcome ChecksRefusal(ProjectRecord &record) {
    QStringList empty;
    if (IsBlank(record.txtURL.Text()))
        empty << record.txtURL.objectName();
    for (const TextBox *field : BindRequiredFields(record)) {
        if (IsBlank(field->Text()) && !empty.contains(field->objectName()))
            empty << field->objectName();
    }
    return Outcome::Refused(empty.isEmpty() ? u"Choose one with: lanterra-cli category"_s
                                            : u"These are empty: %1."_s.arg(empty.join(", "_L1)));
}

/// The text of the report screen, line by line as it stands there.
void PrintReportText(ReportForm &form, Console &console) {
    form.BuildReportText();
    for (const QString &line : form.PlainText().chopped(1).split(u'\n'))
        console.Print(line);
}

Outcome Finished(const CommandCall &call, Program &program, bool cancelled) {
    if (call.options.isSet(u"json"_s)) {
        call.console.PrintJson(RunSummaryJson(program));
    } else if (call.options.isSet(u"text"_s)) {
        PrintReportText(program.frmReport, call.console);
    } else {
        for (const QString &line : RunSummaryLines(program))
            call.console.Print(line);
    }
    for (const QString &trouble : program.result.notStored)
        call.console.Tell(trouble);
    if (cancelled)
        return {ExitCode::Cancelled};
    return {program.result.notStored.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome RunSubmit(const CommandCall &call) {
    if (call.options.isSet(u"json"_s) && call.options.isSet(u"text"_s))
        return Outcome::WrongUse(u"--json and --text exclude each other."_s);
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    Program &program = session.program;
    if (program.project.lists.List1.SelCount() == 0)
        call.console.Tell(u"No site is selected; choose some with: lanterra-cli select"_s);
    const CancelOnInterrupt cancel(program.run);
    {
        const RunProgress progress(program.submitForm, program.result, program.runEstimate, call.console);
        program.run.cmdStart_Click();
    }
    if (session.HasShownBox())
        return ChecksRefusal(program.project.record);
    return Finished(call, program, cancel.WasPressed());
}

} // namespace

Command SubmitCommand() {
    return {.name = u"submit"_s,
            .usage = u"FILE [--json | --text]"_s,
            .summary = u"submit the page to all selected sites"_s,
            .options = {{u"json"_s, u"print one JSON object with the outcome of every site"_s},
                        {u"text"_s, u"print the text of the report screen instead of the summary"_s}},
            .mostArguments = 1,
            .run = RunSubmit};
}

} // namespace lanterra
