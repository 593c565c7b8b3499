#include "park/site_table.h"

#include "park/engine_rows.h"
#include "park/form_fields.h"
#include "park/json_resource.h"
#include "park/query_fields.h"
#include "support/text_file.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QUrl>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QByteArray FolderOf(const QByteArray &path) {
    const qsizetype slash = path.indexOf('/', 1);
    return slash < 0 ? QByteArray() : path.mid(1, slash - 1);
}

SiteField MakeField(const QueryField &source, const QJsonObject &placeholders, const QJsonObject &habits) {
    SiteField field;
    field.name = source.name;
    if (source.words.isEmpty()) {
        const QList<FormField> decoded = ParseFormFields("v=" + source.fixedValue.toLatin1());
        field.fixedValue = decoded.first().value;
        field.required = false;
        return field;
    }
    field.word = source.words.first();
    const QJsonObject placeholder = placeholders[field.word].toObject();
    field.label = placeholder["label"_L1].toString();
    field.check = placeholder["check"_L1].toString();
    field.example = placeholder["like"_L1].toString();
    field.required = !habits["optional"_L1].toArray().contains(source.name);
    field.limit = habits["limits"_L1][source.name].toInt();
    return field;
}

BodyFraming FramingNamed(const QString &name) {
    if (name == u"chunked")
        return BodyFraming::Chunks;
    return name == u"close" ? BodyFraming::Close : BodyFraming::Length;
}

void ReadHabits(PracticeSite &site, const QJsonObject &habits) {
    site.line = habits["line"_L1].toString();
    site.look = habits["look"_L1].toString();
    site.answer = habits["answer"_L1].toString();
    site.behaviour = habits["behaviour"_L1].toString();
    site.remembers = habits["remembers"_L1].toBool();
    site.delay = habits["delay"_L1].toInt();
    site.framing = FramingNamed(habits["framing"_L1].toString());
    site.keepsAlive = habits["keep"_L1].toBool();
}

/// A row has its categories in itself, or names the option list from which the page of ready-filled forms
/// takes them. Such a list is HTML.
QStringList CategoriesOf(const QJsonObject &row) {
    if (!row.contains("options"_L1))
        return row["categories"_L1].toVariant().toStringList();
    QStringList values;
    const QString list = ReadFileText(u":/park/options/%1.txt"_s.arg(row["options"_L1].toString()));
    for (const QString &option : list.split(u'\n', Qt::SkipEmptyParts))
        values.append(option.section(u'|', 0, 0).replace("&amp;"_L1, "&"_L1));
    return values;
}

PracticeSite MakeSite(const QJsonObject &row, const QJsonObject &allHabits, const QJsonObject &placeholders) {
    PracticeSite site;
    site.name = row["name"_L1].toString();
    site.kind = row["type"_L1].toString();
    site.post = row["method"_L1].toString() == u"post";
    site.takesEither = site.kind == u"top engine";
    site.path = QUrl(row["action"_L1].toString()).path().toLatin1();
    site.slug = QString::fromLatin1(FolderOf(site.path));
    site.categories = CategoriesOf(row);
    const QJsonObject habits = allHabits[site.slug].toObject();
    ReadHabits(site, habits);
    for (const QueryField &field : QueryFields(row["query"_L1].toString()))
        site.fields.append(MakeField(field, placeholders, habits));
    return site;
}

} // namespace

SiteTable::SiteTable() {
    const QJsonObject habits = ReadJsonResource(u":/park/site_habits.json"_s).object();
    const QJsonObject placeholders = ReadJsonResource(u":/park/placeholders.json"_s).object();
    for (const QJsonArray &rows :
         {ReadJsonResource(u":/park/sites.json"_s)["sites"_L1].toArray(),
          ReadJsonResource(u":/park/semi_sites.json"_s)["sites"_L1].toArray(), EngineRows()}) {
        for (const QJsonValueConstRef &row : rows) {
            sites.push_back(MakeSite(row.toObject(), habits, placeholders));
            rowBySlug.insert(sites.back().slug.toLatin1(), sites.size() - 1);
        }
    }
}

const PracticeSite *SiteTable::FindByPath(const QByteArray &path) const {
    const auto row = rowBySlug.constFind(FolderOf(path));
    return row == rowBySlug.constEnd() ? nullptr : &sites[*row];
}

} // namespace lanterra
