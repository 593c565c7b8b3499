#include "park/park_pages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int receiptsPerPage = 50;

Html Number(qint64 number) { return Html::Raw(QString::number(number)); }

/// What the site makes of a good submission.
QString OutcomeOf(const PracticeSite &site, const AnswerTable &answers) {
    return site.behaviour.isEmpty() ? answers.Find(site.answer).Outcome() : site.behaviour;
}

/// The class of the badge that shows an outcome.
QString MoodOf(const QString &outcome) {
    if (outcome == u"accepted" || outcome == u"counted" || outcome == u"searched")
        return u"good"_s;
    return outcome == u"refused" || outcome.startsWith(u'3') ? u"odd"_s : u"bad"_s;
}

} // namespace

ParkPages::ParkPages() : templates(u":/park/park_pages.html"_s) {}

QByteArray ParkPages::FrontPage(const SiteTable &sites, const AnswerTable &answers,
                                qsizetype behaviourCount) const {
    static const std::pair<QString, QString> kinds[] = {
        {u"search engine"_s, u"Search engines"_s},
        {u"directory"_s, u"Directories"_s},
        {u"link list"_s, u"Link lists"_s},
        {u"semi-automated site"_s, u"Semi-automated sites"_s},
        {u"top engine"_s, u"Top search engines"_s}};
    Html groups;
    for (const auto &[kind, heading] : kinds) {
        Html cards;
        int count = 0;
        for (const PracticeSite &site : sites.Sites()) {
            if (site.kind != kind)
                continue;
            cards += SiteCard(site, answers);
            ++count;
        }
        groups += templates.Fill(
            u"group"_s, {{u"heading", Html::Text(heading)}, {u"count", Number(count)}, {u"cards", cards}});
    }
    const Html content =
        templates.Fill(u"front"_s, {{u"sites", Number(static_cast<qint64>(sites.Sites().size()))},
                                    {u"behaviours", Number(behaviourCount)},
                                    {u"groups", groups}});
    return Frame(
        u"Practice web"_s,
        u"Sites to submit pages to, without troubling anybody. Everything here runs on this computer."_s,
        content);
}

Html ParkPages::SiteCard(const PracticeSite &site, const AnswerTable &answers) const {
    const QString outcome = OutcomeOf(site, answers);
    const Html categories =
        site.categories.isEmpty()
            ? Html()
            : templates.Fill(u"card-categories"_s, {{u"count", Number(site.categories.size())}});
    return templates.Fill(u"card"_s, {{u"home", Html::Text(site.Home())},
                                      {u"name", Html::Text(site.name)},
                                      {u"line", Html::Text(site.line)},
                                      {u"method", Html::Raw(site.post ? u"post"_s : u"get"_s)},
                                      {u"fields", Number(site.fields.size())},
                                      {u"categories", categories},
                                      {u"mood", Html::Raw(MoodOf(outcome))},
                                      {u"outcome", Html::Text(outcome)},
                                      {u"slow", Html::Raw(site.delay > 0 ? u"slow"_s : QString())}});
}

QByteArray ParkPages::ReceivedPage(const ReceivedLog &log, int page) const {
    const int kept = static_cast<int>(log.Receipts().size());
    const int pageCount = qMax((kept + receiptsPerPage - 1) / receiptsPerPage, 1);
    const int shown = qBound(1, page, pageCount);
    const int first = (shown - 1) * receiptsPerPage;
    Html cards = kept == 0 ? templates.Fill(u"nothing-received"_s) : Html();
    for (int i = first; i < qMin(first + receiptsPerPage, kept); ++i)
        cards += ReceiptCard(log.Receipts()[static_cast<size_t>(i)]);
    cards += PageLinks(shown, pageCount);
    return Frame(u"Received"_s,
                 u"%1 since the start, newest first. The last %2 are kept."_s.arg(log.Total())
                     .arg(ReceivedLog::capacity),
                 cards);
}

Html ParkPages::ReceiptCard(const Receipt &receipt) const {
    return templates.Fill(u"receipt"_s,
                          {{u"number", Number(receipt.number)},
                           {u"time", Html::Text(receipt.time.toString(u"yyyy-MM-dd hh:mm:ss.zzz"_s))},
                           {u"site", Html::Text(receipt.site)},
                           {u"mood", Html::Raw(MoodOf(receipt.outcome))},
                           {u"outcome", Html::Text(receipt.outcome)},
                           {u"method", Html::Text(QString::fromLatin1(receipt.method))},
                           {u"target", Html::Text(receipt.target)},
                           {u"fields", FieldRows(receipt.fields)},
                           {u"count", Number(receipt.headers.size())},
                           {u"headers", FieldRows(receipt.headers)},
                           {u"cut", receipt.cut ? templates.Fill(u"receipt-cut"_s) : Html()}});
}

Html ParkPages::FieldRows(const QList<FormField> &fields) const {
    Html rows;
    for (const FormField &field : fields)
        rows += templates.Fill(u"field"_s,
                               {{u"name", Html::Text(field.name)}, {u"value", Html::Text(field.value)}});
    return rows;
}

Html ParkPages::PageLinks(int page, int pageCount) const {
    if (pageCount == 1)
        return {};
    Html links;
    for (int i = 1; i <= pageCount; ++i)
        links += templates.Fill(i == page ? u"page-here"_s : u"page-link"_s, {{u"page", Number(i)}});
    return templates.Fill(u"page-links"_s, {{u"links", links}});
}

QByteArray ParkPages::BehaviourPage(const BehaviourTable &behaviours, const GateTable &gates,
                                    const QList<OpenGate> &openGates) const {
    Html rows;
    for (const Behaviour &row : behaviours.Rows())
        rows += templates.Fill(u"behaviour"_s, {{u"name", Html::Text(row.name)},
                                                {u"what", Html::Text(row.what)},
                                                {u"outcome", Html::Text(row.outcome)},
                                                {u"disk", Html::Text(row.disk)}});
    Html gateRows;
    for (const Gate &gate : gates.Rows())
        gateRows += GateRows(gate, openGates);
    return Frame(u"Behaviours"_s,
                 u"What a server can do to a client, byte for byte, and what a good client makes of it."_s,
                 templates.Fill(u"behaviours"_s, {{u"rows", rows}, {u"gates", gateRows}}));
}

// One row a case, with a link where a browser can follow it.
Html ParkPages::GateRows(const Gate &gate, const QList<OpenGate> &openGates) const {
    const auto open = std::find_if(openGates.begin(), openGates.end(),
                                   [&gate](const OpenGate &row) { return row.gate.name == gate.name; });
    Html rows;
    for (const GateCase &row : gate.cases) {
        const QString page = u"/behave/"_s + row.page;
        Html where = Html::Text(row.scheme + u": "_s + page);
        if (open != openGates.end() && gate.group == Gate::Group::Tls)
            where = templates.Fill(u"gate-link"_s, {{u"address", Html::Text(open->AddressOf(row))}});
        rows += templates.Fill(u"gate"_s, {{u"name", Html::Text(gate.name)},
                                           {u"port", open == openGates.end() ? Html() : Number(open->port)},
                                           {u"where", where},
                                           {u"what", Html::Text(gate.what)},
                                           {u"outcome", Html::Text(row.outcome)},
                                           {u"disk", Html::Text(row.disk)}});
    }
    return rows;
}

QByteArray ParkPages::MessagePage(const AnswerText &answer) const {
    Html paragraphs;
    for (const QString &paragraph : answer.paragraphs)
        paragraphs += templates.Fill(u"paragraph"_s, {{u"text", Html::Text(paragraph)}});
    return Frame(answer.title, QString::number(answer.status), paragraphs);
}

QByteArray ParkPages::Frame(const QString &title, const QString &lead, const Html &content) const {
    const Html page = templates.Fill(u"page"_s, {{u"title", Html::Text(title)},
                                                 {u"lead", Html::Text(lead)},
                                                 {u"style", templates.Fill(u"style"_s)},
                                                 {u"content", content}});
    return page.Markup().toUtf8();
}

} // namespace lanterra
