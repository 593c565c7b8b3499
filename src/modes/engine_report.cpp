#include "modes/engine_report.h"

#include "reports/date_texts.h"
#include "reports/report_link.h"
#include "support/numbers.h"
#include "support/product_values.h"
#include "support/text_file.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct Placeholder {
    QLatin1StringView name;
    QString value;
};

// One after the other over the whole text, so that a value which holds a later placeholder is expanded too.
QString Expand(QString text, const std::vector<Placeholder> &placeholders) {
    for (const Placeholder &placeholder : placeholders)
        text.replace(placeholder.name, placeholder.value, Qt::CaseInsensitive);
    return text;
}

} // namespace

bool EngineReport::WriteEngineReport(const QString &reportFile, int urlStart) {
    parts.frame.SetPointer(MousePointer::WaitingArrow);
    CollectEngineResults();
    QString page = parts.templates.TemplateTop + parts.templates.TemplateLoopTop;
    for (const EngineRow &engine : parts.form.engines.rows) {
        if (parts.form.IsEngineSelected(engine.name) && !engine.result.isEmpty())
            page += Row(engine);
    }
    page += parts.templates.TemplateBottom;
    const bool written = WriteFileText(reportFile, ExpandReportPlaceholders(page, urlStart));
    parts.frame.SetPointer(MousePointer::Default);
    return written;
}

// An engine without a task was selected too late. It has no result, least of all that of an earlier job, and
// so no row: its links would lead nowhere.
void EngineReport::CollectEngineResults() {
    for (EngineRow &engine : parts.form.engines.rows)
        engine.resultImage = engine.answerFile = engine.result = QString();
    Spider &spider = parts.form.Spider1;
    spider.RewindTasks();
    for (int task = 0; task < spider.TaskCount(); ++task) {
        spider.SetCurrentTask(task);
        EngineRow &engine = parts.form.engines.rows.at(spider.TaskItem(u"EngineNo"_s).toUInt());
        const QString result = spider.TaskItem(u"Result"_s);
        const bool successful = result.contains("SUCCESS"_L1, Qt::CaseInsensitive);
        engine.resultImage =
            ReportLink(successful ? parts.templates.img_successful : parts.templates.img_red_ball);
        engine.answerFile = spider.TaskItem(u"FileName"_s);
        engine.result = IsBlank(result) ? u"Canceled"_s : result;
    }
}

QString EngineReport::Row(const EngineRow &engine) const {
    return Expand(
        parts.templates.TemplateLoop,
        {{"[engine_search_url]"_L1, engine.searchPage},
         {"[engine_name]"_L1, engine.name},
         {"[img_red_ball]"_L1, engine.resultImage}, // in a row it is the result's image, of any colour
         {"[result]"_L1, engine.result},
         {"[engine_response]"_L1, ReportLink(engine.answerFile)},
         {"[img_green_ball]"_L1, ReportLink(parts.templates.img_green_ball)},
         {"[engine_submit_url]"_L1, engine.referrer}});
}

bool EngineReport::WriteEngineIndex(const QString &indexFile, const QStringList &reportFiles, int jobStart) {
    QString list =
        u"<center><p>&nbsp;</p>\r\n"
        u"<p><strong><font size=\"2\">Click on any URL below to see details.</font></strong></p>\r\n"_s;
    const ProjectRecord &record = parts.project.record;
    for (int i = 0; i <= record.MultiUrlUpper; ++i) {
        list += u"<p><font size=\"2\"><a href=\""_s + ReportLink(reportFiles.value(i)) + u"\">"_s +
                record.multiUrlTable.Cell(i, MultiUrlTable::urlColumn) + u"</a></font></p>\r\n"_s;
        parts.queue.Yield();
    }
    const QString page = parts.templates.TemplateTop + list + u"</center>"_s + parts.templates.TemplateBottom;
    return WriteFileText(indexFile, ExpandReportPlaceholders(page, jobStart));
}

QString EngineReport::ExpandReportPlaceholders(const QString &page, int start) const {
    const ProjectRecord &record = parts.project.record;
    const QDateTime now = parts.clock.Now();
    // Across midnight the difference is negative, as the clock of the day starts anew.
    const int seconds = static_cast<int>(std::floor(parts.clock.Timer() - static_cast<float>(start)));
    return Expand(page, {{"[url]"_L1, record.txtURL.Text()},
                         {"[email]"_L1, record.txtEmail.Text()},
                         {"[app_website]"_L1, ProductValue(u"app_website"_s)},
                         {"[app_name]"_L1, ProductValue(u"app_name"_s)},
                         {"[app_version]"_L1, QStringLiteral(LANTERRA_VERSION)},
                         {"[company_website]"_L1, ProductValue(u"company_website"_s)},
                         {"[company_name]"_L1, ProductValue(u"company_name"_s)},
                         {"[CGI_SENDMAIL]"_L1, ProductValue(u"CGI_SENDMAIL"_s)},
                         {"[service_name]"_L1, u"Top search engines submission"_s},
                         {"[no_of_doc]"_L1, QString::number(record.MultiUrlUpper + 1)},
                         {"[service_description]"_L1, u"Top search engines submission"_s},
                         {"[Date]"_L1, ShortDate(now)},
                         {"[Now]"_L1, ShortDate(now) + u' ' + ShortTime(now)},
                         {"[time_used]"_L1, QString::number(seconds)},
                         {"[Year]"_L1, QString::number(now.date().year())},
                         {"[img_successful]"_L1, ReportLink(parts.templates.img_successful)},
                         {"[img_red_ball]"_L1, ReportLink(parts.templates.img_red_ball)},
                         {"[img_green_ball]"_L1, ReportLink(parts.templates.img_green_ball)},
                         {"[img_arrow]"_L1, ReportLink(parts.templates.img_arrow)}});
}

} // namespace lanterra
