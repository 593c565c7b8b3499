#include "cli/commands.h"
#include "cli/project_session.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QJsonObject FieldsAsJson(const ProjectRecord &record) {
    QJsonObject fields;
    for (const ProjectRecord::TextField &field : record.TextFields())
        fields[field.name] = field.box->Text();
    for (const ProjectRecord::CheckField &field : record.CheckFields())
        fields[field.name] = field.box->Value();
    return fields;
}

void PrintFields(const ProjectRecord &record, Console &console) {
    for (const ProjectRecord::TextField &field : record.TextFields())
        console.Print(field.name + u'=' + field.box->Text());
    for (const ProjectRecord::CheckField &field : record.CheckFields())
        console.Print(field.name + u'=' + QString::number(field.box->Value()));
}

Outcome RunShow(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    const ProjectRecord &record = session.program.project.record;
    if (call.options.isSet(u"json"_s))
        call.console.PrintJson(QJsonDocument(FieldsAsJson(record)));
    else
        PrintFields(record, call.console);
    return {};
}

} // namespace

Command ShowCommand() {
    return {.name = u"show"_s,
            .usage = u"FILE [--json]"_s,
            .summary = u"print the fields of a project"_s,
            .options = {{u"json"_s, u"print one JSON object"_s}},
            .mostArguments = 1,
            .run = RunShow};
}

} // namespace lanterra
