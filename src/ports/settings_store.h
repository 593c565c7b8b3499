#pragma once

#include <QList>
#include <QString>

namespace lanterra {

struct StoredSetting {
    QString section;
    QString key;
    QString value;
};

/// The per-user store of options: sections of keys, each with a text. It belongs to one application.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The stored text, empty for a key that was never written or when the store can't be read.
    virtual QString Get(const QString &section, const QString &key) const = 0;

    /// Stores the texts, all of them or none. False when the store could not take them; the old ones are then
    /// still there.
    virtual bool SetAll(const QList<StoredSetting> &texts) = 0;

    bool Set(const QString &section, const QString &key, const QString &value) {
        return SetAll({{section, key, value}});
    }

    /// Removes all keys of a section. False when the store could not take it.
    virtual bool DeleteSection(const QString &section) = 0;
};

} // namespace lanterra
