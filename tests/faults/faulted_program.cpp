#include "tests/faults/faulted_program.h"

#include "database/maintenance.h"
#include "project/site_schema.h"
#include "support/whole_file.h"
#include "tests/fakes/site_database_builder.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString site = u"Projects/Site.rts"_s;
const QString other = u"Projects/Other.rts"_s;

void Nothing(FaultedProgram &) {}
void OpenAndEdit(FaultedProgram &faulted) { faulted.OpenAndEdit(); }

void Create(FaultedProgram &faulted) {
    faulted.dialogs.answers = {BoxAnswer::Yes}; // for a second try on a file that is there
    faulted.program.startProject.CreateProject(u"Fresh"_s);
}

void SaveAs(FaultedProgram &faulted) {
    faulted.dialogs.files = {faulted.Path(other)};
    faulted.program.files.mnuFileSaveAs_Click();
}

void ChooseCategory(FaultedProgram &faulted) {
    SiteLists &lists = faulted.program.project.lists;
    lists.List2.SetListIndex(0);
    faulted.program.categorySelection.List2_Click();
    lists.List3.SetListIndex(1);
    faulted.program.categorySelection.List3_Click();
}

void AppendSession(FaultedProgram &faulted) {
    RunResult result;
    result.Begin(3);
    result.AddSuccess(u"Alta"_s, 0);
    if (!faulted.program.statistics.AppendSessionRow(result))
        faulted.program.frame.Notice.SetCaption(faulted.program.project.database.Data3.Failure());
}

void ConfirmSettings(FaultedProgram &faulted) {
    SettingsForm &form = faulted.program.frmSettings;
    form.CreateStatistic.SetValue(0);
    form.chkProxy.SetValue(1);
    form.Text1.SetText(u"proxy.example"_s);
    form.Text2.SetText(u"3128"_s);
    form.cmdOK_Click();
}

// As the program ends: save, close, compact through the backup.
void Close(FaultedProgram &faulted) {
    faulted.program.files.mnuFileSave_Click();
    const QString base = faulted.Path(site);
    faulted.program.project.database.Unbind();
    CompactThroughBackup(base, base + u".bak"_s, SiteSchema());
}

QString RowsOf(DataControl &table, const TableSchema &schema) {
    QString text;
    for (bool here = table.MoveFirst(); here; here = table.MoveNext()) {
        for (const FieldSchema &field : schema.fields)
            text += (table.IsNull(field.name) ? u"NULL"_s : table.Text(field.name)) + u'|';
        text += u'\n';
    }
    return text;
}

QString DatabaseState(const QString &path) {
    DatabaseFiles files(SiteSchema());
    DataControl table(files, DataControl::Access::ReadWrite);
    table.SetDatabaseName(path);
    QString text;
    for (const TableSchema &schema : SiteSchema()) {
        table.SetRecordSource(schema.name);
        if (!table.Refresh())
            return u"refused: "_s + table.Failure();
        text += schema.name + u'\n' + RowsOf(table, schema);
    }
    return text;
}

} // namespace

void FaultedProgram::OpenAndEdit() {
    program.recentFile.Load();
    program.frmSettings.Load();
    program.files.OpenProject(Path(site));
    ProjectRecord &record = program.project.record;
    record.txtTitle.SetText(u"Edited"_s);
    record.txtDesc.SetText(QString(200, u'd'));
    record.SetMultiUrlMode(true);
    record.MultiUrlUpper = 2;
    for (int slot = 0; slot < 3; ++slot)
        record.multiUrlTable.SetCell(slot, 0, u"http://www.page.example/%1"_s.arg(slot));
    program.project.lists.List1.InvertSelected();
}

QString FaultedProgram::Told() {
    QString told = program.frame.Notice.Caption();
    for (const MessageBox &box : dialogs.boxes) {
        if (box.buttons == BoxButtons::Ok)
            told += box.text + box.detail;
    }
    program.frame.Notice.SetCaption(QString());
    dialogs.boxes.clear();
    return told;
}

bool MakePristineFolder(const QString &folder) {
    SiteDatabaseBuilder master;
    master.Site(u"Alta"_s);
    master.Site(u"Beta"_s, u"directory"_s).Categories({u"Default"_s, u"Arts"_s, u"Business"_s});
    for (int i = 0; i < 20; ++i)
        master.Site(u"Site %1"_s.arg(i)).Query(QString(400, u'q'));
    FaultedProgram faulted(folder);
    if (!QDir().mkpath(faulted.InProjects(QString())) || !master.Write(faulted.Path(u"ng.dll"_s)))
        return false;
    for (const QString &name : {other, site}) {
        if (!faulted.program.files.CreateProject(faulted.Path(name)).stored)
            return false;
        faulted.program.project.record.txtTitle.SetText(u"Title of "_s + name);
        faulted.program.files.SaveProject(QString());
    }
    faulted.program.frmSettings.Load();
    faulted.program.project.database.Unbind();
    return WriteWholeFile(faulted.Path(site + u".bak"_s), "an older backup");
}

const std::vector<Operation> &Operations() {
    static const std::vector<Operation> operations{
        {u"create"_s, u"Projects/Fresh.rts"_s, Nothing, Create},
        {u"save"_s, site, OpenAndEdit,
         [](FaultedProgram &faulted) { faulted.program.files.mnuFileSave_Click(); }},
        {u"save-as"_s, other, OpenAndEdit, SaveAs},
        {u"category"_s, site, OpenAndEdit, ChooseCategory},
        {u"stats-row"_s, site, OpenAndEdit, AppendSession},
        {u"close"_s, site, OpenAndEdit, Close},
        {u"settings"_s, u"config/Lanterra.ini"_s, OpenAndEdit, ConfirmSettings},
        // A list that can't be stored is no reason to stop anybody, so no file has to be new.
        {u"recent"_s, QString(), OpenAndEdit,
         [](FaultedProgram &faulted) { faulted.program.recentFile.Add(faulted.Path(other)); }},
    };
    return operations;
}

QString StateOf(const QString &path) {
    QFile file(path);
    if (!file.exists())
        return u"no file"_s;
    if (path.endsWith(".rts"_L1) || path.endsWith(".dll"_L1))
        return DatabaseState(path);
    if (!file.open(QIODevice::ReadOnly))
        return u"refused: "_s + file.errorString();
    const QByteArray bytes = file.readAll();
    // A backup is a project under another name.
    return bytes.startsWith("SQLite") ? DatabaseState(path) : QString::fromUtf8(bytes);
}

} // namespace lanterra
