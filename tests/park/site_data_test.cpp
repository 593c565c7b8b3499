#include "park/park.h"
#include "park/query_fields.h"
#include "support/code_page.h"
#include "support/file_names.h"
#include "support/url_encode.h"
#include "tests/qt_printing.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUrl>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

QByteArray DataFile(const QString &name) {
    QFile file(QStringLiteral(LANTERRA_DATA_DIR "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

/// The values of the placeholder words for the example project.
QHash<QString, QString> ExampleValues() {
    QHash<QString, QString> fields;
    for (const QString &line : CodePage::Decode(DataFile(u"example_project.txt"_s)).split(u'\n'))
        fields.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    QHash<QString, QString> values;
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        values.insert(field.key() == u"txtURL" ? u"txtUrlText"_s : field.key() + u"Text"_s, field.value());
    QStringList keys;
    for (int i = 1; i <= 6; ++i)
        keys.append(fields.value(u"txtKey%1"_s.arg(i)));
    values.insert(u"AllKeywords"_s, keys.join(u", "_s));
    values.insert(u"txtNameText"_s, fields.value(u"txtName1"_s) + u' ' + fields.value(u"txtName2"_s));
    values.insert(u"Combo2.Text"_s, fields.value(u"Combo2"_s));
    return values;
}

/// The sites of the database's source, each submitted to the practice web with the example project.
class SiteDataTest : public testing::Test {
protected:
    QByteArray Expand(const QJsonObject &site, const QString &withoutField = {}) {
        values[u"CCCAAATTT"_s] = site["categories"_L1][1].toString();
        QStringList pairs;
        for (const QueryField &field : QueryFields(site["query"_L1].toString())) {
            if (field.name == withoutField)
                continue;
            used.unite({field.words.begin(), field.words.end()});
            QString value = field.fixedValue;
            for (const QString &word : field.words) {
                EXPECT_TRUE(values.contains(word)) << word.toStdString();
                value += UrlEncode(values.value(word));
            }
            pairs.append(field.name + u'=' + value);
        }
        return CodePage::Encode(pairs.join(u'&'));
    }

    QString Submit(const QJsonObject &site, const QByteArray &query) {
        HttpRequest request;
        request.method = site["method"_L1].toString().toUpper().toLatin1();
        request.path = request.target = QUrl(site["action"_L1].toString()).path().toLatin1();
        (request.method == "POST" ? request.body : request.query) = query;
        const qint64 before = park.Received().Total();
        answer = park.Answer(request);
        return park.Received().Total() == before ? QString() : park.Received().Receipts().front().outcome;
    }

    Park park{u"http://127.0.0.1:1"_s};
    QJsonArray sites = QJsonDocument::fromJson(DataFile(u"sites.json"_s))["sites"_L1].toArray();
    QHash<QString, QString> values = ExampleValues();
    QSet<QString> used;
    HttpAnswer answer;
};

TEST_F(SiteDataTest, HoldsSitesThatTheProgramCanUse) {
    QSet<QString> names;
    int withCategories = 0;
    for (const QJsonValueRef &site : sites) {
        const QString name = site["name"_L1].toString();
        EXPECT_TRUE(CanBeFileName(name)) << name.toStdString();
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        names.insert(name);
        EXPECT_TRUE(site["query"_L1].toString().startsWith(u'"')) << name.toStdString();
        const qsizetype categories = site["categories"_L1].toArray().size();
        withCategories += categories > 0 ? 1 : 0;
        EXPECT_TRUE(categories == 0 || (categories >= 5 && categories <= 41)) << name.toStdString();
    }
    EXPECT_GE(names.size(), 120);
    EXPECT_GE(withCategories, 20);
}

TEST_F(SiteDataTest, EverySiteTakesExactlyTheFieldsOfItsTemplate) {
    const SiteTable table;
    int accepted = 0;
    for (const QJsonValueRef &row : sites) {
        const QJsonObject site = row.toObject();
        const std::string name = site["name"_L1].toString().toStdString();
        const PracticeSite *practice = table.FindByPath(QUrl(site["action"_L1].toString()).path().toLatin1());
        ASSERT_NE(practice, nullptr) << name;
        EXPECT_EQ(practice->name.toStdString(), name);
        EXPECT_EQ(practice->kind, site["type"_L1].toString());
        const QString outcome = Submit(site, Expand(site));
        const QString usual = practice->behaviour.isEmpty() ? AnswerTable().Find(practice->answer).Outcome()
                                                            : practice->behaviour;
        EXPECT_EQ(outcome, usual) << name;
        accepted += outcome == u"accepted" ? 1 : 0;
        ASSERT_EQ(park.Received().Receipts().front().fields.size(), practice->fields.size()) << name;
        if (outcome != u"accepted")
            continue;
        for (const SiteField &field : practice->fields) {
            const QString without = Submit(site, Expand(site, field.name));
            const bool known = practice->remembers && field.word != u"txtUrlText";
            EXPECT_EQ(without, field.required || known ? u"refused"_s : u"accepted"_s)
                << name << ' ' << field.name.toStdString();
        }
    }
    EXPECT_GT(accepted, sites.size() / 2);
    EXPECT_EQ(used.size(), 24) << "placeholder words in use";
}

TEST_F(SiteDataTest, TheTableOfHabitsNamesWhatThereIs) {
    const SiteTable table;
    const AnswerTable answers;
    QSet<QString> slugs;
    for (const PracticeSite &site : table.Sites()) {
        slugs.insert(site.slug);
        const bool answered = answers.Contains(site.answer);
        EXPECT_NE(answered, park.BehaviourNamed(site.behaviour) != nullptr) << site.name.toStdString();
        EXPECT_FALSE(site.line.isEmpty()) << site.name.toStdString();
        EXPECT_TRUE(
            QStringList({u"classic"_s, u"portal"_s, u"paper"_s, u"terminal"_s, u"rounded"_s, u"bare"_s})
                .contains(site.look));
    }
    EXPECT_EQ(static_cast<size_t>(slugs.size()), table.Sites().size());
}

TEST_F(SiteDataTest, RefusesValuesThatAreNotWhatTheyClaim) {
    const auto siteNamed = [this](const QString &name) {
        for (const QJsonValueRef &site : sites)
            if (site["name"_L1].toString() == name)
                return site.toObject();
        return QJsonObject();
    };
    const QJsonObject site = siteNamed(u"Rowan & Teal"_s);
    ASSERT_EQ(Submit(site, Expand(site)), u"accepted"_s);
    const std::pair<const char16_t *, const char16_t *> faults[] = {
        {u"txtUrlText", u"www.orrell-lanterns.example"},
        {u"txtUrlText", u"http:///page"},
        {u"txtEmailText", u"tamsin"}};
    for (const auto &[word, value] : faults) {
        const QString good = std::exchange(values[QString::fromUtf16(word)], QString::fromUtf16(value));
        EXPECT_EQ(Submit(site, Expand(site)), u"refused"_s) << QString::fromUtf16(value).toStdString();
        values[QString::fromUtf16(word)] = good;
    }
    QByteArray query = Expand(site);
    EXPECT_EQ(Submit(site, query.replace("Art", "Tra")), u"refused"_s);
    EXPECT_TRUE(
        answer.body.contains("<p>Your entry was not accepted: Rowan &amp; Teal has no such category.</p>"));
}

} // namespace
