#include "submission/request_template.h"

#include "support/url_encode.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString separator = u" & "_s;
const QString inner = u"\" & %1 & \""_s; ///< a word between two literals
const QString last = u"\" & %1"_s;       ///< a word at the end

bool StandsInTemplate(QStringView query, QStringView word) {
    for (qsizetype at = query.indexOf(separator); at >= 0; at = query.indexOf(separator, at + 1)) {
        if (query.mid(at + separator.size()).startsWith(word, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

void Replace(QString &query, const QString &shape, const QString &word, const QString &value) {
    query.replace(shape.arg(word), value, Qt::CaseInsensitive);
}

QString AllKeywords(const ProjectRecord &record) {
    QStringList keywords;
    for (const TextBox &box : record.txtKey)
        keywords.append(box.Text());
    return UrlEncode(keywords.join(u", "_s));
}

} // namespace

RequestTemplate::RequestTemplate(const ProjectRecord &record) {
    const auto add = [this](const QString &name, const TextBox &box) {
        words.push_back({name, UrlEncode(box.Text())});
    };
    add(u"txtUrlText"_s, record.txtURL);
    add(u"txtEmailText"_s, record.txtEmail);
    add(u"txtName1Text"_s, record.txtName1);
    add(u"txtName2Text"_s, record.txtName2);
    words.push_back(
        {u"txtNameText"_s, UrlEncode(record.txtName1.Text()) + u'+' + UrlEncode(record.txtName2.Text())});
    add(u"txtCompanyText"_s, record.txtCompany);
    add(u"txtStreetText"_s, record.txtStreet);
    add(u"txtStateText"_s, record.txtState);
    add(u"txtCountryText"_s, record.txtCountry);
    add(u"txtCityText"_s, record.txtCity);
    add(u"txtZipText"_s, record.txtZip);
    add(u"txtPhoneText"_s, record.txtPhone);
    add(u"txtFaxText"_s, record.txtFax);
    add(u"txtTitleText"_s, record.txtTitle);
    for (std::size_t i = 0; i < record.txtKey.size(); ++i)
        add(u"txtKey%1Text"_s.arg(i + 1), record.txtKey[i]);
    add(u"txtDescText"_s, record.txtDesc);
    words.push_back({u"AllKeywords"_s, AllKeywords(record)});
    words.push_back({u"Combo2.Text"_s, record.Combo2.Text()}); // one of seven known words, so not encoded
}

QString RequestTemplate::Value(QStringView word) const {
    const auto found =
        std::find_if(words.begin(), words.end(), [word](const Word &each) { return each.name == word; });
    return found == words.end() ? QString() : found->value;
}

QString RequestTemplate::Expand(QString query, const std::function<QString()> &category) const {
    const QString categoryWord = u"CCCAAATTT"_s;
    if (StandsInTemplate(query, categoryWord)) {
        for (const QString &shape : {inner, last}) {
            if (query.contains(shape.arg(categoryWord), Qt::CaseInsensitive))
                Replace(query, shape, categoryWord, category());
        }
    }
    // Words that stand nowhere behind a separator can be passed over, which spares most of the searches.
    std::vector<const Word *> present;
    for (const Word &word : words) {
        if (StandsInTemplate(query, word.name))
            present.push_back(&word);
    }
    for (const Word *word : present)
        Replace(query, inner, word->name, word->value);
    for (const Word *word : present) {
        if (StandsInTemplate(query, word->name))
            Replace(query, last, word->name, word->value);
    }
    query.remove(u"\" & \""_s); // two literals side by side
    return query.remove(u'"');
}

} // namespace lanterra
