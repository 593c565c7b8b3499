#include "cli/commands.h"
#include "cli/name_lookup.h"
#include "cli/project_session.h"
#include "cli/run_output.h"
#include "cli/top_output.h"
#include "platform/interrupt.h"
#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

/// Loads the engines and marks those that are named, all if none is.
Outcome ChooseEngines(TopEnginesForm &form, const QStringList &names) {
    form.Load();
    if (form.EngineFileMissing)
        return {ExitCode::Failed}; // a box has told it
    if (form.List1.ListCount() == 0)
        return Outcome::Failed(u"The engine file holds no engines."_s);
    if (!names.isEmpty())
        form.List1.SetAllSelected(false);
    for (const QString &name : names) {
        const qsizetype row = IndexOfName(form.List1.Items(), name);
        if (row < 0)
            return Outcome::Failed(UnknownName(u"engine"_s, name, form.List1.Items()));
        form.List1.SetSelected(static_cast<int>(row), true);
    }
    if (form.List1.SelCount() == 0)
        return Outcome::Failed(u"The engine file is damaged: name the engines that are wanted."_s);
    return {};
}

/// Nobody is there to answer the form, so its appearance is answered with Submit, or with Cancel if Ctrl-C
/// came before it, which the mode would forget.
void AnswerForm(TopEnginesForm &form, const Interrupt &interrupt) {
    QObject::connect(&form, &Control::VisibleChanged, &interrupt, [&](bool visible) {
        if (!visible || form.TopEnginesGo)
            return;
        if (interrupt.WasPressed())
            form.SSCommand1_Click();
        else
            form.cmdSubmit_Click();
    });
}

Outcome SubmitToEngines(const CommandCall &call, Program &program) {
    program.reportTemplates.Read(program.project.path.AppPath());
    program.proxy.ApplyProxySettings();
    Interrupt interrupt;
    interrupt.Watch();
    AnswerForm(program.frmTop9, interrupt);
    QObject::connect(&interrupt, &Interrupt::Pressed, &program.frmTop9, &TopEnginesForm::SSCommand1_Click);
    TopOutput output(call, program);
    program.topEngines.SubmitTopEngines();
    if (!output.HasReports() && !interrupt.WasPressed())
        return ChecksRefusal(program.project.record, QString());
    output.Print();
    const QStringList &troubles = program.topEngines.NotStored();
    for (const QString &trouble : troubles)
        call.console.Tell(trouble);
    if (interrupt.WasPressed())
        return {ExitCode::Cancelled};
    return {troubles.isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome RunTop(const CommandCall &call) {
    const QString limit = call.options.value(u"timeout"_s);
    const bool limited = call.options.isSet(u"timeout"_s);
    if (limited && !IsNumeric(limit))
        return Outcome::WrongUse(u"--timeout takes a number of seconds, not %1."_s.arg(limit));
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    TopEnginesForm &form = session.program.frmTop9;
    if (Outcome chosen = ChooseEngines(form, call.arguments.mid(1)); !chosen.Good())
        return chosen;
    if (limited)
        form.TimeOut.SetText(limit);
    return SubmitToEngines(call, session.program);
}

} // namespace

Command TopCommand() {
    return {.name = u"top"_s,
            .usage = u"FILE [ENGINE ...] [--timeout SECONDS] [--json]"_s,
            .summary = u"submit the page to the top search engines"_s,
            .options = {{u"timeout"_s, u"give an engine up after this time (100)"_s, u"SECONDS"_s},
                        {u"json"_s, u"print one JSON object with the result of every engine"_s}},
            .run = RunTop};
}

} // namespace lanterra
