#include "reports/statistics.h"

#include "reports/date_texts.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString JoinedNames(const NameList &names, int count) {
    QString joined;
    for (int index = 0; index < count && NameList::Holds(index); ++index)
        joined += names.At(index) + u"\r\n"_s;
    return joined;
}

} // namespace

Statistics::Statistics(Project &openProject, MainFrame &mainFrame, Dialogs &messageDialogs,
                       EventQueue &eventQueue, const Clock &systemClock)
    : project(openProject), frame(mainFrame), dialogs(messageDialogs), queue(eventQueue), clock(systemClock) {
    AddToForm(*this, Label42, u"Label42"_s);
    AddToForm(*this, Label44, u"Label44"_s);
    AddToForm(*this, Label45, u"Label45"_s);
    AddToForm(*this, Label46, u"Label46"_s);
    AddToForm(*this, Label47, u"Label47"_s);
    AddToForm(*this, Command10, u"Command10"_s);
    AddToForm(*this, DBGrid1, u"DBGrid1"_s);
}

bool Statistics::AppendSessionRow(const RunResult &result) {
    project.database.BindStats();
    frame.SetPointer(MousePointer::Busy);
    LeaveReplacedFile(project.database.Data3);
    const bool stored = EnsureRecordSource(project.database.Data3, u"Stats"_s) && AddRow(result);
    frame.SetPointer(MousePointer::Default);
    return stored;
}

bool Statistics::AddRow(const RunResult &result) {
    DataControl &sessions = project.database.Data3;
    const QDateTime now = clock.Now();
    const ProjectRecord &record = project.record;
    return sessions.AddNew() && sessions.SetText(u"Date"_s, ShortDate(now) + u", "_s + ShortTime(now)) &&
           sessions.SetText(u"PageUrl"_s, record.txtURL.Text()) &&
           sessions.SetText(u"Email"_s, record.txtEmail.Text()) &&
           // Sites that got no verdict, because of Cancel, don't count as selected here.
           sessions.SetNumber(u"Selected"_s, result.SuccessfulCount() + result.FailedCount()) &&
           sessions.SetNumber(u"Successful"_s, result.SuccessfulCount()) &&
           sessions.SetNumber(u"Failed"_s, result.FailedCount()) &&
           sessions.SetNumber(u"Time"_s, result.elapsedSeconds) &&
           sessions.SetText(u"Successful Submissions"_s,
                            JoinedNames(result.SuccessfulNames, result.SuccessfulCount())) &&
           sessions.SetText(u"Failed Submissions"_s, JoinedNames(result.FailedNames, result.FailedCount())) &&
           sessions.Update();
}

void Statistics::cmdOrder_Click() {
    project.database.BindStats();
    frame.SetPointer(MousePointer::Busy);
    ShowTotals();
    frame.ShowPane(Pane::FraSta);
    DBGrid1.Rebind(project.database.Data3);
    frame.SetPointer(MousePointer::Default);
}

void Statistics::ShowTotals() {
    DataControl &sessions = project.database.Data3;
    TableWalk walk(sessions, u"Stats"_s);
    const int rows = walk.RowCount();
    Label42.SetCaption(QString::number(rows));
    if (sessions.MoveLast())
        Label47.SetCaption(sessions.Text(u"Date"_s));
    qint64 successful = 0;
    qint64 failed = 0;
    qint64 total = 0;
    for (int row = 0; row < rows && walk.GoTo(row) && !queue.Closing(); ++row) {
        successful += sessions.Number(u"Successful"_s);
        failed += sessions.Number(u"Failed"_s);
        total += sessions.Number(u"Selected"_s);
        queue.Yield();
    }
    Label44.SetCaption(QString::number(successful));
    Label45.SetCaption(QString::number(failed));
    Label46.SetCaption(QString::number(total));
}

void Statistics::Command10_Click() {
    if (!Command10.Enabled())
        return;
    const MessageBox question{u"Are you sure you want to delete project statistics ?"_s,
                              u"Zephyrine Lanterra"_s, BoxIcon::Critical, BoxButtons::YesNo, BoxAnswer::No};
    if (dialogs.Show(question) == BoxAnswer::Yes && Command10.Enabled())
        TellUnlessDeleted(DeleteAllRows());
    project.database.BindStats();
    DBGrid1.Rebind(project.database.Data3);
}

// Data2 stays on "Stats": whoever needs it on another table tests its record source.
bool Statistics::DeleteAllRows() {
    DataControl &rows = project.database.Data2;
    rows.SetRecordSource(u"Stats"_s);
    return rows.Refresh() && EmptyTable(rows, u"Stats"_s);
}

void Statistics::TellUnlessDeleted(bool deleted) {
    if (!deleted)
        dialogs.Show({.text = u"The statistics could not be deleted. "_s,
                      .title = u"Error"_s,
                      .icon = BoxIcon::Critical,
                      .detail = project.database.Data2.Failure()});
}

} // namespace lanterra
