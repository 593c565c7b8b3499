#include "cli/top_output.h"

#include "cli/text_table.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

int CountOf(const QJsonArray &engines, const QString &result) {
    int count = 0;
    for (const QJsonValueConstRef &engine : engines)
        count += engine[u"result"_s].toString() == result ? 1 : 0;
    return count;
}

} // namespace

TopOutput::TopOutput(const CommandCall &commandCall, Program &theProgram)
    : call(commandCall), program(theProgram), began(call.doors.clock.Elapsed()),
      drawing(std::make_unique<LiveLines>(
          call.console, [this] { return ProgressLines(); }, u"Success"_s)) {
    connect(&program.topEngines, &TopEngines::UrlEnded, this, &TopOutput::TakeUrl);
    connect(&program.frmTop9.StatusBar1, &StatusBar::PanelTextChanged, drawing.get(), &LiveLines::Schedule);
}

QStringList TopOutput::ProgressLines() const {
    const StatusBar &bar = program.frmTop9.StatusBar1;
    const Spider &spider = program.frmTop9.Spider1;
    QStringList lines;
    for (int panel = 1; panel < bar.PanelCount(); ++panel)
        lines << QString::number(panel) + u"  "_s + bar.PanelText(panel);
    const double fraction = spider.TaskCount() > 0 ? double(spider.EndedCount()) / spider.TaskCount() : 0;
    return lines << Bar(fraction) + u' ' + bar.PanelText(0);
}

void TopOutput::TakeUrl(int slot) {
    urls.append(
        QJsonObject{{u"url"_s, program.project.record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn)},
                    {u"report"_s, program.result.reportFile},
                    {u"engines"_s, Engines()}});
}

QJsonArray TopOutput::Engines() const {
    Spider &spider = program.frmTop9.Spider1;
    QJsonArray engines;
    for (int task = 0; task < spider.TaskCount(); ++task) {
        spider.SetCurrentTask(task);
        const EngineRow &engine = program.frmTop9.engines.rows.at(spider.TaskItem(u"EngineNo"_s).toUInt());
        engines.append(QJsonObject{{u"name"_s, engine.name},
                                   {u"result"_s, engine.result},
                                   {u"status"_s, spider.TaskItem(u"status"_s)},
                                   {u"file"_s, engine.answerFile}});
    }
    return engines;
}

void TopOutput::Print() {
    drawing.reset();
    const QString index = program.topEngines.AllUrls() ? program.topEngines.EngineIndexFile : QString();
    if (call.options.isSet(u"json"_s)) {
        const auto duration = call.doors.clock.Elapsed() - began;
        call.console.PrintJson(
            QJsonDocument(QJsonObject{{u"milliseconds"_s, static_cast<qint64>(duration.count())},
                                      {u"index"_s, index.isEmpty() ? QJsonValue() : QJsonValue(index)},
                                      {u"urls"_s, urls}}));
        return;
    }
    for (const QJsonValueConstRef &url : urls)
        PrintUrl(url.toObject());
    if (!index.isEmpty())
        call.console.Print(u"All reports: "_s + index);
}

void TopOutput::PrintUrl(const QJsonObject &url) const {
    const QJsonArray engines = url[u"engines"_s].toArray();
    QList<QStringList> rows;
    for (const QJsonValueConstRef &engine : engines) {
        const QString status = engine[u"status"_s].toString();
        rows << QStringList{engine[u"name"_s].toString(), engine[u"result"_s].toString(),
                            status == "Success"_L1 ? QString() : status};
    }
    if (program.topEngines.AllUrls())
        call.console.Print(url[u"url"_s].toString());
    for (const QString &line : AlignedLines(rows))
        call.console.Print(line);
    const QString count = engines.size() == 1 ? u"1 engine"_s : u"%1 engines"_s.arg(engines.size());
    call.console.Print(u"%1: %2 successful, %3 failed, %4 canceled"_s.arg(count)
                           .arg(CountOf(engines, u"Successful submission"_s))
                           .arg(CountOf(engines, u"Failed submission"_s))
                           .arg(CountOf(engines, u"Canceled"_s)));
    call.console.Print(u"Report: "_s + url[u"report"_s].toString());
}

} // namespace lanterra
