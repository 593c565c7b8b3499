#include "reports/submission_report.h"

#include "reports/date_texts.h"
#include "reports/report_link.h"
#include "reports/site_pages.h"
#include "support/code_page.h"
#include "support/product.h"
#include "support/text_file.h"
#include "support/text_template.h"
#include "support/whole_file.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lanterra {

SubmissionReport::SubmissionReport(Project &openProject, const RunResult &runResult, const Clock &systemClock,
                                   EventQueue &eventQueue)
    : project(openProject), result(runResult), clock(systemClock), queue(eventQueue) {}

bool SubmissionReport::WriteSubmissionReport() {
    project.path.SplitProjectPath();
    CreateReportFolders(project.path, result.reportFolder);
    WriteNotSelectedPages();

    WholeFile file(result.reportFile);
    const Values values = HeadValues();
    bool good = true;
    for (const QString &line :
         ReadFileText(u":/reports/submission_report.txt"_s).split(u'\n', Qt::SkipEmptyParts))
        good = (line.startsWith(u'@') ? WriteRows(file, line) : WriteRecord(file, line, values)) && good;
    return good && file.Commit();
}

// One page more than there are names: the entry behind the list is empty on a first run, and later can be a
// name left from an earlier run, whose page is lost that way even if the site was selected this time. Kept,
// as the report links to that page.
void SubmissionReport::WriteNotSelectedPages() const {
    const QString html = NotSelectedPage();
    for (int index = 0; index <= result.NotSelectedCount() && NameList::Holds(index); ++index)
        WriteSitePage(result.reportFolder, result.NotSelectedNames.At(index), html);
}

SubmissionReport::Values SubmissionReport::HeadValues() const {
    const QDateTime now = clock.Now();
    return {{u"URL"_s, project.record.txtURL.Text()},
            {u"NAME"_s, project.record.txtName.Text()},
            {u"EMAIL"_s, project.record.txtEmail.Text()},
            {u"DATE"_s, ShortDate(now)},
            {u"TIME"_s, ShortTime(now)},
            {u"SECONDS"_s, QString::number(result.elapsedSeconds)},
            {u"OK"_s, QString::number(result.SuccessfulCount())},
            {u"BAD"_s, QString::number(result.FailedCount())},
            {u"NOT"_s, QString::number(result.NotSelectedCount())},
            {u"PRODUCT"_s, ProductAddress()},
            {u"PROGRAM"_s, ReportFolderPath(project.path.AppPath())}};
}

bool SubmissionReport::WriteRecord(WholeFile &file, const QString &record, const Values &values) const {
    const bool ownLineEnd = record.endsWith("\\n"_L1);
    const QString text = FillTemplate(ownLineEnd ? record.chopped(2) : record, values);
    return file.Write(CodePage::Encode(text + (ownLineEnd ? u"\r\n\r\n"_s : u"\r\n"_s)));
}

bool SubmissionReport::WriteRows(WholeFile &file, const QString &loop) {
    struct List {
        QString name;
        const NameList &names;
        int rows;
    };
    const std::array lists{
        List{u"@SuccessfulNames"_s, result.SuccessfulNames, result.SuccessfulCount()},
        List{u"@FailedNames"_s, result.FailedNames, result.FailedCount()},
        // with the row behind the last name
        List{u"@NotSelectedNames"_s, result.NotSelectedNames, result.NotSelectedCount() + 1}};
    const QString record = loop.mid(loop.indexOf(u' ') + 1);
    const auto list = std::find_if(lists.begin(), lists.end(), [&](const List &one) {
        return one.name == QStringView(loop).left(loop.indexOf(u' '));
    });
    Q_ASSERT(list != lists.end());
    bool good = true;
    for (int index = 0; index < list->rows && NameList::Holds(index); ++index) {
        const QString site = list->names.At(index);
        const QString href = ReportLink(SitePagePath(result.reportFolder, site));
        good = WriteRecord(file, record, {{u"HREF"_s, href}, {u"SITE"_s, site}}) && good;
        queue.Yield();
    }
    return good;
}

} // namespace lanterra
