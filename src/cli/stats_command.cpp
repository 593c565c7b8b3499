#include "cli/commands.h"
#include "cli/project_session.h"
#include "cli/text_table.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QStringList NamesIn(const QString &field) { return field.split(u"\r\n"_s, Qt::SkipEmptyParts); }

QJsonObject SessionAsJson(const DataControl &row) {
    return {
        {u"date"_s, row.Text(u"Date"_s)},
        {u"url"_s, row.Text(u"PageUrl"_s)},
        {u"email"_s, row.Text(u"Email"_s)},
        {u"covered"_s, row.Number(u"Selected"_s)},
        {u"successful"_s, row.Number(u"Successful"_s)},
        {u"failed"_s, row.Number(u"Failed"_s)},
        {u"seconds"_s, row.Number(u"Time"_s)},
        {u"successfulSites"_s, QJsonArray::fromStringList(NamesIn(row.Text(u"Successful Submissions"_s)))},
        {u"failedSites"_s, QJsonArray::fromStringList(NamesIn(row.Text(u"Failed Submissions"_s)))}};
}

QJsonDocument StatisticsJson(const Statistics &statistics, DataControl &sessions) {
    QJsonArray runs;
    for (bool here = sessions.MoveFirst(); here; here = sessions.MoveNext())
        runs.append(SessionAsJson(sessions));
    return QJsonDocument(QJsonObject{{u"sessions"_s, statistics.Label42.Caption().toInt()},
                                     {u"registrations"_s, statistics.Label46.Caption().toInt()},
                                     {u"successful"_s, statistics.Label44.Caption().toInt()},
                                     {u"failed"_s, statistics.Label45.Caption().toInt()},
                                     {u"lastRun"_s, statistics.Label47.Caption()},
                                     {u"runs"_s, runs}});
}

void PrintStatistics(const Statistics &statistics, DataControl &sessions, Console &console) {
    QList<QStringList> rows{{u"Number of sessions:"_s, statistics.Label42.Caption()},
                            {u"Last run:"_s, statistics.Label47.Caption()},
                            {u"Total registrations:"_s, statistics.Label46.Caption()},
                            {u"Succ. registrations:"_s, statistics.Label44.Caption()},
                            {u"Failed registrations:"_s, statistics.Label45.Caption()}};
    for (const QString &line : AlignedLines(rows))
        console.Print(line);
    if (!sessions.MoveFirst())
        return;
    rows = {{u"Date"_s, u"Covered"_s, u"Successful"_s, u"Failed"_s, u"Seconds"_s, u"Address"_s}};
    for (bool here = true; here; here = sessions.MoveNext())
        rows << QStringList{sessions.Text(u"Date"_s),       sessions.Text(u"Selected"_s),
                            sessions.Text(u"Successful"_s), sessions.Text(u"Failed"_s),
                            sessions.Text(u"Time"_s),       sessions.Text(u"PageUrl"_s)};
    console.Print(QString());
    for (const QString &line : AlignedLines(rows))
        console.Print(line);
}

Outcome Clear(const CommandCall &call, Program &program) {
    program.statistics.Command10_Click();
    if (call.answer != BoxAnswer::Yes)
        return Outcome::Refused(u"Nothing was deleted; --yes deletes the statistics."_s);
    if (program.statistics.DBGrid1.rowCount() > 0)
        return {ExitCode::Failed}; // the box has told why
    return {};
}

Outcome RunStats(const CommandCall &call) {
    ProjectSession session(call);
    if (Outcome opened = session.Open(call.arguments.first()); !opened.Good())
        return opened;
    Program &program = session.program;
    if (call.options.isSet(u"clear"_s)) {
        if (Outcome cleared = Clear(call, program); !cleared.Good())
            return cleared;
    }
    program.statistics.cmdOrder_Click();
    DataControl &sessions = program.project.database.Data3;
    if (call.options.isSet(u"json"_s))
        call.console.PrintJson(StatisticsJson(program.statistics, sessions));
    else
        PrintStatistics(program.statistics, sessions, call.console);
    return {};
}

} // namespace

Command StatsCommand() {
    return {.name = u"stats"_s,
            .usage = u"FILE [--clear] [--json]"_s,
            .summary = u"print or clear the statistics of a project"_s,
            .options = {{u"clear"_s, u"delete the statistics; asks, so it needs --yes"_s},
                        {u"json"_s, u"print one JSON object with every run"_s}},
            .mostArguments = 1,
            .run = RunStats};
}

} // namespace lanterra
