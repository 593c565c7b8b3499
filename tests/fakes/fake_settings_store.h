#pragma once

#include "ports/settings_store.h"

#include <map>
#include <utility>

namespace lanterra {

/// A settings store in memory.
class FakeSettingsStore final : public SettingsStore {
public:
    QString Get(const QString &section, const QString &key) const override {
        const auto found = values.find({section, key});
        return found == values.end() ? QString() : found->second;
    }
    bool Set(const QString &section, const QString &key, const QString &value) override {
        if (!failing)
            values[{section, key}] = value;
        return !failing;
    }
    bool DeleteSection(const QString &section) override {
        std::erase_if(values, [&](const auto &entry) { return entry.first.first == section; });
        return true;
    }

    std::map<std::pair<QString, QString>, QString> values; ///< by section and key
    bool failing = false;                                  ///< Set takes nothing
};

} // namespace lanterra
