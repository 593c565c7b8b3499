#include "project/site_source.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

struct TextKey {
    QLatin1StringView key;
    QString SiteEntry::*text;
};

constexpr std::array<TextKey, 5> textKeys{{{"name"_L1, &SiteEntry::name},
                                           {"type"_L1, &SiteEntry::type},
                                           {"method"_L1, &SiteEntry::method},
                                           {"action"_L1, &SiteEntry::action},
                                           {"query"_L1, &SiteEntry::query}}};
constexpr auto categoriesKey = "categories"_L1;

/// Turns the parsed JSON into a list and gathers what is wrong with it.
class SourceReader {
public:
    explicit SourceReader(const QString &path) : file(path) {}

    SiteSourceReading Read() {
        QFile source(file);
        if (!source.open(QIODevice::ReadOnly))
            Find(0, source.exists() ? u"The file can't be read."_s : u"There is no such file."_s);
        else
            ReadText(source.readAll());
        return result;
    }

private:
    void Find(int row, const QString &reason) { result.findings.append({file, row, reason}); }

    void ReadText(const QByteArray &text) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        if (error.error != QJsonParseError::NoError) {
            const auto line = text.first(error.offset).count('\n') + 1;
            return Find(0, u"Line %1 is no JSON: %2."_s.arg(line).arg(error.errorString()));
        }
        ReadFile(document.object());
    }

    void ReadFile(const QJsonObject &object) {
        RefuseOtherKeys(0, object, {u"version"_s, u"sites"_s});
        result.source.version = object["version"_L1].toInt();
        if (result.source.version < 1)
            Find(0, u"\"version\" is no whole number from 1."_s);
        if (!object["sites"_L1].isArray())
            return Find(0, u"\"sites\" is no list."_s);
        const QJsonArray sites = object["sites"_L1].toArray();
        for (int row = 1; row <= sites.size(); ++row)
            ReadSite(row, sites[row - 1]);
    }

    void ReadSite(int row, const QJsonValue &value) {
        if (!value.isObject())
            return Find(row, u"The entry is no site."_s);
        const QJsonObject object = value.toObject();
        SiteEntry site;
        QStringList known{categoriesKey};
        for (const auto &[key, text] : textKeys) {
            known.append(key);
            site.*text = ReadValue(row, key, object[key]);
        }
        RefuseOtherKeys(row, object, known);
        ReadCategories(row, object[categoriesKey], site.categories);
        result.source.sites.append(site);
    }

    QString ReadValue(int row, const QString &key, const QJsonValue &value) {
        if (value.isUndefined())
            Find(row, u"\"%1\" is missing."_s.arg(key));
        else if (!value.isString())
            Find(row, u"\"%1\" is no text."_s.arg(key));
        return value.toString();
    }

    void ReadCategories(int row, const QJsonValue &value, QStringList &categories) {
        if (value.isUndefined())
            return;
        if (!value.isArray() || value.toArray().isEmpty())
            return Find(row, u"\"categories\" is no list of at least one text."_s);
        for (const auto &category : value.toArray())
            categories.append(ReadValue(row, categoriesKey, category));
    }

    void RefuseOtherKeys(int row, const QJsonObject &object, const QStringList &known) {
        for (const QString &key : object.keys()) {
            if (!known.contains(key))
                Find(row, u"Unknown key \"%1\"."_s.arg(key));
        }
    }

    QString file;
    SiteSourceReading result;
};

// A byte order mark in front of a text is dropped by the reader unless it is escaped.
QString JsonList(const QStringList &texts) {
    QString list =
        QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
    return list.replace(QChar(QChar::ByteOrderMark), "\\ufeff"_L1);
}

// Only a list or an object is a document, so a text is written as a list of one and the brackets are cut off.
QString JsonText(const QString &text) { return JsonList({text}).sliced(1).chopped(1); }

QString SiteText(const SiteEntry &site) {
    QString text =
        u"    {\"name\": %1, \"type\": %2, \"method\": %3,\n     \"action\": %4,\n     \"query\": %5"_s.arg(
            JsonText(site.name), JsonText(site.type), JsonText(site.method), JsonText(site.action),
            JsonText(site.query));
    if (!site.categories.isEmpty())
        text += u",\n     \"categories\": "_s + JsonList(site.categories);
    return text + u'}';
}

} // namespace

QString SiteFinding::Text() const {
    return row == 0 ? u"%1: %2"_s.arg(file, reason) : u"%1:%2: %3"_s.arg(file, QString::number(row), reason);
}

SiteSourceReading ReadSiteSource(const QString &path) { return SourceReader(path).Read(); }

QString SiteSourceText(const SiteSource &source) {
    QStringList sites;
    for (const SiteEntry &site : source.sites)
        sites.append(SiteText(site));
    return u"{\n  \"version\": %1,\n  \"sites\": [\n%2\n  ]\n}\n"_s.arg(QString::number(source.version),
                                                                        sites.join(",\n"_L1));
}

} // namespace lanterra
