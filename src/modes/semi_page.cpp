#include "modes/semi_page.h"

#include "support/product.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct SemiSite {
    QStringView row;  ///< of List5, in lower case
    QStringView form; ///< the resource
    QStringView host; ///< the key in hosts.ini
    bool ruled;       ///< stands below a rule of its own
};

// Yahoo and What-U-Seek are in no list that comes with the program; they are ready for rows of those names.
constexpr std::array semiSites{SemiSite{u"yahoo", u"yahoo", u"Yahoo", false},
                               SemiSite{u"scrub the web", u"scrub_the_web", u"ScrubTheWeb", false},
                               SemiSite{u"starting point", u"starting_point", u"StartingPoint", false},
                               SemiSite{u"usa online", u"usa_online", u"USAOnline", false},
                               SemiSite{u"what's new", u"whats_new", u"WhatsNew", false},
                               SemiSite{u"what-u-seek", u"what_u_seek", u"WhatUSeek", true},
                               SemiSite{u"bizweb", u"bizweb", u"BizWeb", true},
                               SemiSite{u"infospace", u"infospace", u"InfoSpace", true},
                               SemiSite{u"linkmonster", u"linkmonster", u"LinkMonster", true},
                               SemiSite{u"questfinder", u"questfinder", u"Questfinder", true}};

const QString rule = u"<hr size=\"1\" width=\"40%\" color=\"#008000\">"_s;

PageTemplate Piece(QStringView name) { return PageTemplate(u":/modes/semi/%1.htm"_s.arg(name)); }

} // namespace

SemiPage::SemiPage(const Parts &theParts)
    : parts(theParts), page(u"semi.htm"_s, parts.project, parts.frame, parts.result, parts.viewer) {}

bool SemiPage::RunMode() {
    if (parts.run.Pripremi_Submission() == u"zaustavi")
        return false;
    const bool written = WriteSemiPage();
    parts.run.ClearRunActive();
    return written;
}

bool SemiPage::WriteSemiPage() { return page.Publish(Html()); }

QString SemiPage::Html() const {
    const PageTemplate::Values values = FieldValues();
    QString html = Piece(u"head").Fill({});
    for (const QString &site : parts.project.lists.List5.Items())
        html += FormOf(site, values);
    return html + rule + u"\r\n"_s + Piece(u"foot").Fill({{u"PRODUCT"_s, ProductAddress()}});
}

QString SemiPage::FormOf(const QString &site, PageTemplate::Values values) const {
    const auto found = std::find_if(semiSites.begin(), semiSites.end(),
                                    [row = site.toLower()](const SemiSite &each) { return each.row == row; });
    if (found == semiSites.end())
        return {};
    values[u"HOST"_s] = parts.hosts.Address(u"SemiAutomated"_s, found->host.toString());
    const QString form = Piece(found->form).Fill(values);
    return found->ruled ? rule + form + u"</hr>"_s : form;
}

// Two values are those of the last run, encoded for a request: empty before the first one, and stale once the
// boxes have changed.
PageTemplate::Values SemiPage::FieldValues() const {
    PageTemplate::Values values{{u"txtEmailText"_s, parts.collector.txtEmailText},
                                {u"AllKeywords"_s, parts.collector.AllKeywords}};
    for (const ProjectRecord::TextField &field : parts.project.record.TextFields())
        values[field.name] = field.box->Text();
    return values;
}

} // namespace lanterra
