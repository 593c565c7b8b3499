#pragma once

#include "park/http_message.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace lanterra {

/// One field of a practice site's form.
struct SiteField {
    QString name;
    QString label;
    QString check;      ///< what the value must be: "address", "email", "category", "subject", or nothing
    QString example;    ///< shown in the empty box
    QString word;       ///< the placeholder word that fills it; empty for a fixed field
    QString fixedValue; ///< of a fixed field
    bool required = true;
    int limit = 0; ///< characters that the site takes; 0 for no limit
};

/// A practice site: its form, its look, and how it answers.
struct PracticeSite {
    QString name;
    QString kind; ///< "search engine", "directory", "link list", "semi-automated site" or "top engine"
    QString slug; ///< the folder of its pages
    QString line; ///< its motto
    QString look; ///< the piece of the site pages that frames its pages
    QByteArray path;
    bool post = true;
    bool takesEither = false; ///< its script minds no method
    QList<SiteField> fields;
    QStringList categories; ///< empty for a site without
    QString answer;         ///< key of its usual answer
    QString behaviour;      ///< if not empty: the scripted behaviour that takes the place of an answer
    bool remembers = false; ///< refuses an address that it has received already
    int delay = 0;          ///< milliseconds before it answers
    BodyFraming framing = BodyFraming::Length;
    bool keepsAlive = false;

    /// The folder of its pages as a path: "/slug/".
    QString Home() const { return u'/' + slug + u'/'; }
    /// The first field that this placeholder word fills, nullptr if there is none.
    const SiteField *FieldFor(QStringView word) const;
};

} // namespace lanterra
