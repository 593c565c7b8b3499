#include "park/site_pages.h"

#include "park/slot_text.h"
#include "park/submission_verdict.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SitePages::SitePages() : templates(u":/park/site_pages.html"_s) {}

QByteArray SitePages::FormPage(const PracticeSite &site) const {
    Html rows;
    for (const SiteField &field : site.fields)
        rows += Row(site, field);
    const Html form = templates.Fill(u"form"_s, {{u"action", Html::Text(QString::fromLatin1(site.path))},
                                                 {u"method", Html::Raw(site.post ? u"post"_s : u"get"_s)},
                                                 {u"site", Html::Text(site.name)},
                                                 {u"rows", rows}});
    return Frame(site, u"Add your page"_s, form);
}

QByteArray SitePages::AnswerPage(const PracticeSite &site, const AnswerText &answer,
                                 const QHash<QString, QString> &values) const {
    const auto fill = [&values](const QString &text) {
        return FillSlots(text, [&values](QStringView name) { return values.value(name.toString()); });
    };
    Html paragraphs;
    for (const QString &paragraph : answer.paragraphs)
        paragraphs += templates.Fill(u"paragraph"_s, {{u"text", Html::Text(fill(paragraph))}});
    return Frame(site, fill(answer.title), paragraphs);
}

QByteArray SitePages::ResultPage(const PracticeSite &engine, const QString &title,
                                 const QList<SearchHit> &hits) const {
    Html rows;
    for (const SearchHit &hit : hits)
        rows += templates.Fill(u"hit"_s, {{u"name", Html::Text(hit.name)},
                                          {u"line", Html::Text(hit.line)},
                                          {u"address", Html::Text(hit.address)},
                                          {u"link", Html::Text(hit.link)}});
    return Frame(engine, title, templates.Fill(u"hits"_s, {{u"rows", rows}}));
}

Html SitePages::Row(const PracticeSite &site, const SiteField &field) const {
    if (field.word.isEmpty())
        return templates.Fill(u"hidden"_s,
                              {{u"name", Html::Text(field.name)}, {u"value", Html::Text(field.fixedValue)}});
    if (field.check == u"category")
        return Choice(field, site.categories);
    if (field.check == u"subject")
        return Choice(field, Subjects());
    const Html required = Html::Raw(field.required ? u" required"_s : QString());
    const Html limit = Html::Raw(field.limit > 0 ? u" maxlength=\"%1\""_s.arg(field.limit) : QString());
    return templates.Fill(field.check == u"long" ? u"area"_s : u"box"_s,
                          {{u"name", Html::Text(field.name)},
                           {u"label", Html::Text(field.label)},
                           {u"example", Html::Text(field.example)},
                           {u"note", Html::Raw(field.required ? QString() : u" (optional)"_s)},
                           {u"required", required},
                           {u"limit", limit}});
}

Html SitePages::Choice(const SiteField &field, const QStringList &options) const {
    Html entries;
    for (const QString &option : options)
        entries += templates.Fill(u"option"_s, {{u"text", Html::Text(option)}});
    return templates.Fill(
        u"choice"_s,
        {{u"name", Html::Text(field.name)}, {u"label", Html::Text(field.label)}, {u"options", entries}});
}

QByteArray SitePages::Frame(const PracticeSite &site, const QString &title, const Html &content) const {
    const Html page = templates.Fill(u"page"_s, {{u"title", Html::Text(title)},
                                                 {u"site", Html::Text(site.name)},
                                                 {u"line", Html::Text(site.line)},
                                                 {u"style", templates.Fill(u"style-"_s + site.look)},
                                                 {u"look", Html::Text(site.look)},
                                                 {u"content", content}});
    return page.Markup().toUtf8();
}

} // namespace lanterra
