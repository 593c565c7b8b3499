#include "park/maker_pages.h"

#include "park/json_resource.h"

#include <QJsonObject>
#include <QVariant>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

MakerPage MakePage(const QJsonObject &row) {
    MakerPage page;
    page.answer = row["answer"_L1].toString();
    for (const QString &line : row["text"_L1].toVariant().toStringList())
        page.text += line.toUtf8() + '\n';
    page.receives = row["receives"_L1].toString();
    page.needs = row["needs"_L1].toVariant().toStringList();
    page.refusal = row["refusal"_L1].toString();
    page.remembers = row["remembers"_L1].toString();
    page.known = row["known"_L1].toString();
    return page;
}

} // namespace

QString MakerPage::Judge(const QList<FormField> &fields, const ReceivedLog &log) const {
    const bool complete = std::all_of(needs.begin(), needs.end(), [&fields](const QString &name) {
        return !ValueOf(fields, name).isEmpty();
    });
    if (!complete)
        return refusal;
    const bool again = !remembers.isEmpty() && log.Holds(receives, {remembers, ValueOf(fields, remembers)});
    return again ? known : answer;
}

MakerPages::MakerPages() {
    const QJsonObject rows = ReadJsonResource(u":/park/maker_pages.json"_s).object();
    for (auto row = rows.begin(); row != rows.end(); ++row)
        pages.insert(row.key().toLatin1(), MakePage(row->toObject()));
}

const MakerPage *MakerPages::Find(const QByteArray &path) const {
    const auto found = pages.constFind(path);
    return found == pages.constEnd() ? nullptr : &*found;
}

} // namespace lanterra
