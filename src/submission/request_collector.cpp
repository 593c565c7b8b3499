#include "submission/request_collector.h"

#include "support/url_encode.h"

using namespace Qt::StringLiterals;

namespace lanterra {

bool RequestCollector::CollectSubmissionData() {
    EnsureRecordSource(project.database.Data2, u"Data"_s);
    const RequestTemplate values(project.record);
    txtEmailText = values.Value(u"txtEmailText");
    AllKeywords = values.Value(u"AllKeywords");
    files.mnuFileSave_Click();

    requests.assign(static_cast<std::size_t>(project.lists.List1.ListCount()), {});
    const bool complete = CollectRows(values);
    if (project.database.Data1.DatabaseName() != project.path.MasterFile())
        project.database.BindMaster();
    return complete;
}

// False if the user cancelled.
bool RequestCollector::CollectRows(const RequestTemplate &values) {
    DataControl &table = project.database.Data2;
    TableWalk sites(table, u"Data"_s);
    const int rows = sites.RowCount();
    status.Show(u"Collecting submission data ..."_s, rows - 1);
    bool cancelled = false;
    for (int row = 0; row < rows && !cancelled && !queue.Closing(); ++row) {
        // Sites behind the end of List1 have no place in the table of requests.
        if (row < static_cast<int>(requests.size()) && sites.GoTo(row) && table.Boolean(u"Selected"_s))
            requests[static_cast<std::size_t>(row)] = RequestOfRow(row, values);
        status.Advance(row);
        cancelled = status.StatusCancel;
        if (!cancelled)
            queue.Yield();
    }
    status.Finish();
    return !cancelled;
}

SiteRequest RequestCollector::RequestOfRow(int row, const RequestTemplate &values) {
    DataControl &site = project.database.Data2;
    if (!EnsureRecordSource(site, u"Data"_s) || !site.MoveTo(row))
        return {};
    const QString name = site.Text(u"Name"_s);
    QString query = site.Text(u"Query"_s);
    data_parsiraj_query(query, name, values);
    return {name, site.Text(u"Action"_s), query, site.Text(u"Method"_s)};
}

QString RequestCollector::data_parsiraj_query(QString &query, const QString &name,
                                              const RequestTemplate &values) {
    query = values.Expand(query, [&] { return data_parsiraj_query_kategorije(name); });
    return query;
}

QString RequestCollector::data_parsiraj_query_kategorije(const QString &name) {
    DataControl &table = project.database.Data1;
    if (table.DatabaseName() != project.database.Data2.DatabaseName()) {
        table.Close();
        table.SetDatabaseName(project.database.Data2.DatabaseName());
        table.SetRecordSource(QString());
    }
    EnsureRecordSource(table, u"Categories"_s);
    for (bool here = table.MoveFirst(); here; here = table.MoveNext()) {
        if (table.Text(u"Name"_s) == name)
            return UrlEncode(table.Text(u"Selected"_s));
    }
    return {};
}

QString RequestCollector::data_proveri_selektovane_kategorije(const QString &selectedNames) {
    DataControl &table = project.database.Data2;
    TableWalk directories(table, u"Categories"_s);
    const int rows = directories.RowCount();
    for (int row = 0; row < rows && directories.GoTo(row) && !queue.Closing(); ++row) {
        QString name = table.Text(u"Name"_s);
        // A category that was never written (Null) passes; only one that is the empty text is missing.
        const bool missing = !table.IsNull(u"Selected"_s) && table.Text(u"Selected"_s).isEmpty();
        if (missing && selectedNames.contains(name, Qt::CaseInsensitive)) {
            project.lists.List2.SetText(name);
            return name;
        }
        queue.Yield();
    }
    return {};
}

} // namespace lanterra
