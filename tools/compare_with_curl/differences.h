#pragma once

#include <QHash>
#include <QString>

namespace lanterra {

/// The places where the client differs from curl on purpose, with the reasons.
///
/// The file: a line "NAME: reason" for a behaviour however it is reached, or "WAY NAME: reason" for one way
/// to it; lines that begin with "#" and empty lines are passed over.
class Differences {
public:
    /// A file that can't be read gives none.
    explicit Differences(const QString &path);

    /// Empty if none is known.
    QString ReasonFor(const QString &way, const QString &page) const;

private:
    QHash<QString, QString> reasons;
};

} // namespace lanterra
