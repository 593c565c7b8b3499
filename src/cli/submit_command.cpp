#include "cli/cancel_on_interrupt.h"
#include "cli/commands.h"
#include "cli/project_session.h"
#include "cli/run_output.h"
#include "cli/run_progress.h"
#include "cli/run_summary.h"
#include "cli/url_job_output.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome Finished(const CommandCall &call, Program &program, bool cancelled) {
    if (call.options.isSet(u"json"_s))
        call.console.PrintJson(RunSummaryJson(program));
    else
        PrintRun(call, program);
    for (const QString &trouble : program.result.notStored)
        call.console.Tell(trouble);
    if (cancelled)
        return {ExitCode::Cancelled};
    return {program.result.notStored.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome SubmitUrls(const CommandCall &call, ProjectSession &session) {
    session.ChooseInPopup(&SubmissionRun::mnuMultiple_Click);
    const CancelOnInterrupt cancel(session.program.run);
    UrlJobOutput output(call, session);
    session.program.run.cmdStart_Click();
    const Outcome outcome = output.Finish();
    return cancel.WasPressed() ? Outcome{ExitCode::Cancelled} : outcome;
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
    if (call.options.isSet(u"urls"_s))
        return SubmitUrls(call, session);
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
            .usage = u"FILE [--urls] [--json | --text]"_s,
            .summary = u"submit the page to all selected sites"_s,
            .options = {{u"urls"_s, u"submit each URL of a several-URL project in a run of its own"_s},
                        {u"json"_s, u"print one JSON object with the outcome of every site"_s},
                        {u"text"_s, u"print the text of the report screen instead of the summary"_s}},
            .mostArguments = 1,
            .run = RunSubmit};
}

} // namespace lanterra
