#include "modes/top9_page.h"

#include "modes/page_template.h"
#include "support/code_page.h"
#include "support/text_template.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct EngineAddress {
    QString engine;  ///< its on/off name, which is also its key in hosts.ini
    QString address; ///< with {HOST} and the values of the project
};

QList<EngineAddress> EngineAddresses() {
    QList<EngineAddress> addresses;
    for (const QString &row : ResourceLines(u":/modes/top9/engines.txt"_s))
        addresses.append({row.section(u'|', 0, 0), row.section(u'|', 1)});
    return addresses;
}

} // namespace

Top9Page::Top9Page(const Parts &theParts)
    : parts(theParts), page(u"top9single.htm"_s, parts.project, parts.frame, parts.result, parts.viewer) {
    for (const EngineAddress &each : EngineAddresses())
        checks[each.engine] = 1;
}

bool Top9Page::WriteTop9Page() { return page.Publish(Html(parts.project.record.txtURL.Text())); }

bool Top9Page::WriteTop9Body(int slot, WholeFile &file) const {
    const QString url = parts.project.record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
    return file.Write(CodePage::Encode(Html(url)));
}

QString Top9Page::Html(const QString &url) const {
    const ProjectRecord &record = parts.project.record;
    PageTemplate::Values values{{u"U"_s, url},
                                {u"E"_s, record.txtEmail.Text()},
                                {u"N1"_s, record.txtName1.Text()},
                                {u"N2"_s, record.txtName2.Text()}};
    PageTemplate::Values addresses{{u"MAKER"_s, parts.hosts.Address(u"Top9"_s, u"maker"_s)}};
    for (const EngineAddress &each : EngineAddresses()) {
        values[u"HOST"_s] = parts.hosts.Address(u"Top9"_s, each.engine);
        addresses[each.engine] = FillTemplate(each.address, values);
    }
    return PageTemplate(u":/modes/top9/page.htm"_s).Fill(addresses, [this](const QString &engine) {
        return checks.value(engine) == 1;
    });
}

} // namespace lanterra
