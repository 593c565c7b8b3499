#pragma once

#include "ports/settings_store.h"

#include <functional>
#include <map>
#include <utility>

namespace lanterra {

/// A settings store in memory.
class FakeSettingsStore final : public SettingsStore {
public:
    QString Get(const QString &section, const QString &key) const override {
        Tell(key + u'?');
        const auto found = values.find({section, key});
        return found == values.end() ? QString() : found->second;
    }
    bool SetAll(const QList<StoredSetting> &texts) override {
        for (const StoredSetting &text : texts) {
            Tell(text.key + u'=' + text.value);
            if (!failing)
                values[{text.section, text.key}] = text.value;
        }
        return !failing;
    }
    bool DeleteSection(const QString &section) override {
        Tell(u'-' + section);
        std::erase_if(values, [&](const auto &entry) { return entry.first.first == section; });
        return true;
    }

    std::map<std::pair<QString, QString>, QString> values; ///< by section and key
    bool failing = false;                                  ///< Set takes nothing
    std::function<void(const QString &)> onAccess;         ///< told "KEY?", "KEY=VALUE" and "-SECTION"

private:
    void Tell(const QString &access) const {
        if (onAccess)
            onAccess(access);
    }
};

} // namespace lanterra
