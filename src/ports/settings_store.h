#pragma once

#include <QString>

namespace lanterra {

/// The per-user store of options: sections of keys, each with a text. It belongs to one application.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The stored text, empty for a key that was never written or when the store can't be read.
    virtual QString Get(const QString &section, const QString &key) const = 0;

    /// Stores the text at once. False when the store could not take it; the old text is then still there.
    virtual bool Set(const QString &section, const QString &key, const QString &value) = 0;

    /// Removes all keys of a section. False when the store could not take it.
    virtual bool DeleteSection(const QString &section) = 0;
};

} // namespace lanterra
