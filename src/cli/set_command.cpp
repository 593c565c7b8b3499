#include "cli/commands.h"
#include "cli/field_values.h"
#include "cli/project_session.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

Outcome RunSet(const CommandCall &call) {
    ProjectSession session(call);
    QList<FieldValue> values;
    if (Outcome read = ReadFieldValues(call.arguments.mid(1), session.program.project.record, values);
        !read.Good())
        return read;
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    EnterFieldValues(values, session.program, call.console);
    return session.Save();
}

} // namespace

Command SetCommand() {
    return {.name = u"set"_s,
            .usage = u"FILE FIELD=VALUE ..."_s,
            .summary = u"change fields of a project"_s,
            .options = {},
            .leastArguments = 2,
            .run = RunSet};
}

} // namespace lanterra
