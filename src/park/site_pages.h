#pragma once

#include "park/answer_table.h"
#include "park/html_templates.h"
#include "park/practice_site.h"

namespace lanterra {

/// One line of a search's result page.
struct SearchHit {
    QString name;
    QString line;
    QString address;
    QString link; ///< where a click leads
};

/// The pages of the practice sites, each in its site's look. All give UTF-8.
class SitePages {
public:
    SitePages();

    /// The form by which a page is submitted to the site.
    QByteArray FormPage(const PracticeSite &site) const;

    /// An answer of the site; the slots in its words take these values.
    QByteArray AnswerPage(const PracticeSite &site, const AnswerText &answer,
                          const QHash<QString, QString> &values) const;

    /// What a search has found.
    QByteArray ResultPage(const PracticeSite &engine, const QString &title,
                          const QList<SearchHit> &hits) const;

private:
    Html Row(const PracticeSite &site, const SiteField &field) const;
    Html Choice(const SiteField &field, const QStringList &options) const;
    QByteArray Frame(const PracticeSite &site, const QString &title, const Html &content) const;

    HtmlTemplates templates;
};

} // namespace lanterra
