#include "cli/commands.h"
#include "cli/field_values.h"
#include "cli/project_session.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome RunNew(const CommandCall &call) {
    ProjectSession session(call);
    QList<FieldValue> values;
    if (Outcome read = ReadFieldValues(call.arguments.mid(1), session.program.project.record, values);
        !read.Good())
        return read;
    if (Outcome created = session.Create(call.arguments.first()); !created.Good())
        return created;
    EnterFieldValues(values, session.program, call.console);
    call.console.Print(session.program.project.path.Base);
    return session.Save();
}

} // namespace

Command NewCommand() {
    return {.name = u"new"_s,
            .usage = u"FILE [FIELD=VALUE ...]"_s,
            .summary = u"create a project"_s,
            .options = {},
            .run = RunNew};
}

} // namespace lanterra
