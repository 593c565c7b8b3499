#include "cli/commands.h"
#include "cli/name_lookup.h"
#include "cli/project_session.h"
#include "cli/run_output.h"
#include "cli/top_output.h"
#include "platform/interrupt.h"
#include "submission/required_fields.h"
#include "support/numbers.h"

#include <algorithm>

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
            return Outcome::Failed(
                u"There is no engine %1, but these: %2."_s.arg(name, form.List1.Items().join(", "_L1)));
        form.List1.SetSelected(static_cast<int>(row), true);
    }
    if (form.List1.SelCount() == 0)
        return Outcome::Failed(u"The engine file is damaged: name the engines that are wanted."_s);
    return {};
}

/// Nobody is there to answer the form, so its appearance is answered with Submit.
void AnswerForm(TopEnginesForm &form) {
    QObject::connect(&form, &Control::VisibleChanged, &form, [&form](bool visible) {
        if (visible && !form.TopEnginesGo)
            form.cmdSubmit_Click();
    });
}

Outcome Refusal(ProjectRecord &record) {
    const auto fields = BindRequiredFields(record);
    const bool lacksField = IsBlank(record.txtURL.Text()) ||
                            std::any_of(fields.begin(), fields.end(),
                                        [](const TextBox *field) { return IsBlank(field->Text()); });
    return lacksField ? ChecksRefusal(record) : Outcome{ExitCode::Refused};
}

Outcome RunTop(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    Program &program = session.program;
    if (Outcome chosen = ChooseEngines(program.frmTop9, call.arguments.mid(1)); !chosen.Good())
        return chosen;
    if (call.options.isSet(u"timeout"_s))
        program.frmTop9.TimeOut.SetText(call.options.value(u"timeout"_s));
    program.reportTemplates.Read(program.project.path.AppPath());
    program.proxy.ApplyProxySettings();
    AnswerForm(program.frmTop9);
    Interrupt interrupt;
    interrupt.Watch();
    QObject::connect(&interrupt, &Interrupt::Pressed, &program.frmTop9, &TopEnginesForm::SSCommand1_Click);
    TopOutput output(call, program);
    program.topEngines.SubmitTopEngines();
    if (!output.HasReports() && !interrupt.WasPressed())
        return Refusal(program.project.record);
    output.Print();
    for (const QString &trouble : program.topEngines.NotStored())
        call.console.Tell(trouble);
    if (interrupt.WasPressed())
        return {ExitCode::Cancelled};
    return {program.topEngines.NotStored().isEmpty() ? ExitCode::Done : ExitCode::Failed};
}

Outcome RunTopIfNumeric(const CommandCall &call) {
    const QString limit = call.options.value(u"timeout"_s);
    if (call.options.isSet(u"timeout"_s) && !IsNumeric(limit))
        return Outcome::WrongUse(u"--timeout takes a number of seconds, not %1."_s.arg(limit));
    return RunTop(call);
}

} // namespace

Command TopCommand() {
    return {.name = u"top"_s,
            .usage = u"FILE [ENGINE ...] [--timeout SECONDS] [--json]"_s,
            .summary = u"submit the page to the top search engines"_s,
            .options = {{u"timeout"_s, u"give an engine up after this time (100)"_s, u"SECONDS"_s},
                        {u"json"_s, u"print one JSON object with the result of every engine"_s}},
            .run = RunTopIfNumeric};
}

} // namespace lanterra
