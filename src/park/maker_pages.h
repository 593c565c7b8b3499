#pragma once

#include "park/form_fields.h"
#include "park/received_log.h"

#include <QHash>
#include <QStringList>

namespace lanterra {

/// A page or a script on the practice web in the place of the maker's own.
struct MakerPage {
    QString answer;  ///< key of its answer
    QByteArray text; ///< if not empty: the plain text that takes the answer's place; "{{origin}}" is Park's

    // Of a script alone.
    QString receives;  ///< the name under which it keeps what is posted; empty for a page
    QStringList needs; ///< fields that must not be empty
    QString refusal;   ///< key of its answer where one is
    QString remembers; ///< a field whose value it takes once; empty for none
    QString known;     ///< key of its answer to a further time

    bool IsScript() const { return !receives.isEmpty(); }

    /// The key of a script's answer to these fields. `log` knows what it has taken so far.
    QString Judge(const QList<FormField> &fields, const ReceivedLog &log) const;
};

/// The maker's pages by their paths, from the table that is built into the program.
class MakerPages {
public:
    MakerPages();

    /// nullptr if the path is none's.
    const MakerPage *Find(const QByteArray &path) const;

private:
    QHash<QByteArray, MakerPage> pages;
};

} // namespace lanterra
