#include "reports/site_pages.h"

#include "support/code_page.h"
#include "support/file_names.h"
#include "support/page_file.h"
#include "support/text_file.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

void CreateReportFolders(const ProjectPath &path, const QString &reportFolder) {
    QDir().mkpath(path.OwnFolder());
    QDir().mkpath(reportFolder);
}

QString SitePagePath(const QString &reportFolder, const QString &siteName) {
    return reportFolder + siteName + u".htm"_s;
}

bool CanHavePage(const QString &siteName) { return siteName.isEmpty() || CanBeFileName(siteName); }

void WriteSitePage(const QString &reportFolder, const QString &siteName, const QString &html) {
    if (!CanHavePage(siteName))
        return;
    PageFile page;
    page.Open(SitePagePath(reportFolder, siteName));
    page.Write(CodePage::Encode(html));
}

// Both pages are fixed texts. The blank that is missing before "vlink" in the first one belongs to it.
QString BusySitePage() { return ReadFileText(u":/reports/busy_site.htm"_s).trimmed() + u"\r\n"_s; }

QString NotSelectedPage() { return ReadFileText(u":/reports/not_selected.htm"_s).trimmed() + u"\r\n"_s; }

QString RedirectionPage(const QString &redirectTarget, const QString &siteName) {
    return u"<html><head><title>Your entry has been submitted! </title></head><body bgcolor=#FFFFFF "
           u"text=#000000>"
           u"<center><h1>Your entry has been submitted! </h1><a href="_s +
           redirectTarget + u">"_s + siteName + u"</a></body></html>\r\n"_s;
}

} // namespace lanterra
